#include "engine.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

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
    const auto visit = [&](std::uint32_t i) {
        const double y0 = y[i];
        const double y1 = y[i + 1];
        const bool up = rising && y0 < level && level <= y1;
        const bool down = falling && y0 > level && level >= y1;
        if (up || down)
            out.push_back(x[i] + (level - y0) * (x[i + 1] - x[i]) / (y1 - y0));
    };
    std::uint32_t i = 0;
#if defined(__SSE2__)
    // Crossings are rare: four segments at a time are tested for one, and
    // only a group that holds one is looked at segment by segment.
    const __m128d l = _mm_set1_pd(level);
    const __m128d up = rising ? _mm_castsi128_pd(_mm_set1_epi32(-1)) : _mm_setzero_pd();
    const __m128d down = falling ? _mm_castsi128_pd(_mm_set1_epi32(-1)) : _mm_setzero_pd();
    for (; i + 4 < n; i += 4) {
        const __m128d a0 = _mm_loadu_pd(y + i), a1 = _mm_loadu_pd(y + i + 2);
        const __m128d b0 = _mm_loadu_pd(y + i + 1), b1 = _mm_loadu_pd(y + i + 3);
        const __m128d rise = _mm_or_pd(_mm_and_pd(_mm_cmplt_pd(a0, l), _mm_cmple_pd(l, b0)),
                                       _mm_and_pd(_mm_cmplt_pd(a1, l), _mm_cmple_pd(l, b1)));
        const __m128d fall = _mm_or_pd(_mm_and_pd(_mm_cmpgt_pd(a0, l), _mm_cmpge_pd(l, b0)),
                                       _mm_and_pd(_mm_cmpgt_pd(a1, l), _mm_cmpge_pd(l, b1)));
        if (_mm_movemask_pd(_mm_or_pd(_mm_and_pd(rise, up), _mm_and_pd(fall, down)))) {
            for (std::uint32_t k = i; k < i + 4; ++k)
                visit(k);
        }
    }
#endif
    for (; i + 1 < n; ++i)
        visit(i);
    return true;
}

} // namespace vtkit
