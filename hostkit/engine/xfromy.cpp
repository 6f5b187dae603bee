#include "engine.h"

namespace vtkit {

namespace {
// Callers pass scalars as a pointer to one double and leave the count as it
// was copied, so a scalar is read from data whatever the count says.
bool scalarOf(const ArgRecord& a, double* out)
{
    if (!a.data || a.kind != ArgKindReal)
        return false;
    *out = *static_cast<const double*>(a.data);
    return true;
}
} // namespace

bool xFromY(const ArgRecord* args, int nargs, ScriptValue& result, int& error)
{
    error = 0;
    if (!args || nargs < 2) {
        error = 1;
        return false;
    }
    const ArgRecord& wave = args[0];
    const auto* y = static_cast<const double*>(wave.data);
    const double* x = wave.xData;
    double level = 0;
    if (wave.kind != ArgKindReal || !y || !x || wave.count < 2 || !scalarOf(args[1], &level)) {
        error = 1;
        return false;
    }
    double selector = 1;
    if (nargs > 3 && !scalarOf(args[3], &selector))
        selector = 1;
    const bool rising = selector >= 0;
    const bool falling = selector <= 0;

    result = ScriptValue::fromReals({}, wave.xUnits ? wave.xUnits : "");
    std::vector<double>& out = result.values;
    const std::uint32_t n = wave.count;
    for (std::uint32_t i = 0; i + 1 < n; ++i) {
        const double y0 = y[i];
        const double y1 = y[i + 1];
        const bool up = rising && y0 < level && level <= y1;
        const bool down = falling && y0 > level && level >= y1;
        if (up || down)
            out.push_back(x[i] + (level - y0) * (x[i + 1] - x[i]) / (y1 - y0));
    }
    return true;
}

} // namespace vtkit
