// PerCycleTiming, PerCycleValue and _TestPerCycleFunction: per-cycle
// analysis of a waveform. Cycle boundaries come from the host's "XfromY".
#include "callargs.h"
#include "hostsupport.h"
#include "registration.h"

#include <algorithm>
#include <cmath>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace {

constexpr double kMinPeriod = 1e-15;
constexpr double kFrequencyCap = 1 / 1e-15;
constexpr double kDutyScale = 100;

// The rising-edge selector written into the caller's record. Static, so
// the host's record never keeps a pointer into a finished stack frame.
double s_risingSelector = 1.0;

enum Timing { NoTiming, Frequency, Period, DutyCycle, OnTime, OffTime };
enum Statistic { NoStatistic, Minimum, Maximum, Mean, PeakToPeak, Rms };

constexpr const char* kTimingNames[] = {"frequency", "period", "duty-cycle", "on-time",
                                        "off-time"};
constexpr const char* kStatisticNames[] = {"minimum", "maximum", "mean", "peak-to-peak", "rms"};

// Position of key in names, counting from 1; 0 when it is none of them.
template <int N>
int lookup(const char* key, const char* const (&names)[N])
{
    for (int i = 0; i < N; ++i) {
        if (callargs::sameNoCase(key, names[i]))
            return i + 1;
    }
    return 0;
}

struct Waveform {
    const double* x = nullptr;
    const double* y = nullptr;
    long long n = 0;
};

bool waveformOf(const ArgRecord& arg, Waveform* wave)
{
    if (arg.count == 0 || !arg.data || !arg.xData)
        return false;
    wave->x = arg.xData;
    wave->y = static_cast<const double*>(arg.data);
    wave->n = arg.count;
    return true;
}

// Lowest and highest of values[0..n), n > 0. Four running pairs, written as
// comparisons rather than std::min/max so the compiler can keep them in
// vector registers: on millions of samples the loop then runs at the speed
// of memory.
void extremes(const double* values, long long n, double* low, double* high)
{
    double lo[4] = {values[0], values[0], values[0], values[0]};
    double hi[4] = {values[0], values[0], values[0], values[0]};
    long long i = 0;
    for (; i + 4 <= n; i += 4) {
        for (int k = 0; k < 4; ++k) {
            const double v = values[i + k];
            lo[k] = v < lo[k] ? v : lo[k];
            hi[k] = v > hi[k] ? v : hi[k];
        }
    }
    for (; i < n; ++i) {
        lo[0] = values[i] < lo[0] ? values[i] : lo[0];
        hi[0] = values[i] > hi[0] ? values[i] : hi[0];
    }
    *low = std::min(std::min(lo[0], lo[1]), std::min(lo[2], lo[3]));
    *high = std::max(std::max(hi[0], hi[1]), std::max(hi[2], hi[3]));
}

double midpointLevel(const double* y, long long n)
{
    double low = 0;
    double high = 0;
    extremes(y, n, &low, &high);
    return (high + low) * 0.5;
}

// Whether every x after the first is greater than the first (compared with
// the first only, not with its predecessor), and the extremes of ref, in
// one pass: on a long waveform two arrays read side by side cost little
// more than one. No early exit, so the loop stays branch-free.
bool checkAndExtremes(const double* x, long long n, const double* ref, long long refCount,
                      double* low, double* high)
{
    const double x0 = x[0];
    bool notAfterFirst = false;
    double lo = ref[0];
    double hi = ref[0];
    const long long both = std::min(n, refCount);
    long long i = 1;
#if defined(__SSE2__)
    // Two values a register, two registers a step. A comparison with NaN
    // is false, as in the scalar form below: "not greater" catches a NaN x,
    // and min and max keep the value they hold against a NaN.
    const __m128d first = _mm_set1_pd(x0);
    __m128d lo0 = _mm_set1_pd(lo), lo1 = lo0, hi0 = lo0, hi1 = lo0;
    __m128d bad = _mm_setzero_pd();
    for (; i + 4 <= both; i += 4) {
        const __m128d r0 = _mm_loadu_pd(ref + i), r1 = _mm_loadu_pd(ref + i + 2);
        lo0 = _mm_min_pd(r0, lo0);
        lo1 = _mm_min_pd(r1, lo1);
        hi0 = _mm_max_pd(r0, hi0);
        hi1 = _mm_max_pd(r1, hi1);
        bad = _mm_or_pd(bad, _mm_or_pd(_mm_cmpngt_pd(_mm_loadu_pd(x + i), first),
                                       _mm_cmpngt_pd(_mm_loadu_pd(x + i + 2), first)));
    }
    notAfterFirst = _mm_movemask_pd(bad) != 0;
    lo0 = _mm_min_pd(lo0, lo1);
    hi0 = _mm_max_pd(hi0, hi1);
    lo = std::min(_mm_cvtsd_f64(lo0), _mm_cvtsd_f64(_mm_unpackhi_pd(lo0, lo0)));
    hi = std::max(_mm_cvtsd_f64(hi0), _mm_cvtsd_f64(_mm_unpackhi_pd(hi0, hi0)));
#endif
    for (long long k = i; k < n; ++k)
        notAfterFirst |= !(x[k] > x0);
    if (i < refCount) {
        double restLow = 0;
        double restHigh = 0;
        extremes(ref + i, refCount - i, &restLow, &restHigh);
        lo = std::min(lo, restLow);
        hi = std::max(hi, restHigh);
    }
    *low = lo;
    *high = hi;
    return !notAfterFirst;
}

void notify(UserFunctionInterface* ufi)
{
    if (ufi->NotifyHost)
        ufi->NotifyHost(ufi, 1);
}

// Crossings of local[1]'s level; false when the host's function failed.
bool findEdges(UserFunctionInterface* ufi, ArgRecord* local, ArgRecord* edges)
{
    *edges = ArgRecord{};
    int error = 0;
    if (!ufi->CallScriptFunction)
        return false;
    ufi->CallScriptFunction(ufi, "XfromY", local, 4, edges, &error);
    return edges->kind == ArgKindReal && error == 0;
}

long long edgeCount(const ArgRecord& edges)
{
    return edges.data ? edges.count : 0;
}

// The result waveform: two points per cycle as a flat step, or one point
// at the middle of each cycle when smooth.
class CycleOutput {
public:
    bool make(UserFunctionInterface* ufi, long long cycles, bool smooth, const char* units,
              const char* xUnits)
    {
        m_cycles = std::max(cycles, 0LL);
        m_smooth = smooth;
        m_stepEpsilon = std::pow(2.0, -51);
        const int size = static_cast<int>(m_smooth ? m_cycles : 2 * m_cycles);
        m_y = ufi->MakeRealVector(ufi, size, units);
        m_x = ufi->MakeXVector(ufi, size, xUnits);
        return size == 0 || (m_y && m_x);
    }

    void write(long long i, double t0, double t1, double value)
    {
        if (m_smooth) {
            m_y[i] = value;
            m_x[i] = (t1 + t0) * 0.5;
            return;
        }
        // Inner boundaries are pulled apart so x stays strictly ascending
        // where two cycles meet.
        m_y[2 * i] = value;
        m_y[2 * i + 1] = value;
        m_x[2 * i] = i == 0 ? t0 : t0 * (1 + m_stepEpsilon);
        m_x[2 * i + 1] = i == m_cycles - 1 ? t1 : t1 * (1 - m_stepEpsilon);
    }

private:
    double* m_y = nullptr;
    double* m_x = nullptr;
    long long m_cycles = 0;
    bool m_smooth = false;
    double m_stepEpsilon = 0;
};

// Value at x and the index of the sample at or before it. Outside the
// samples the end value holds (index -1 below, n-1 above), so the walks
// below never read past the arrays.
double interpolate(const Waveform& w, double x, long long* index)
{
    long long lower = -1;
    long long upper = -1;
    sp_BinarySearch(w.x, w.n, x, &lower, &upper, 1);
    if (lower < 0) {
        *index = -1;
        return w.y[0];
    }
    if (lower >= w.n - 1) {
        *index = w.n - 1;
        return w.y[w.n - 1];
    }
    *index = lower;
    if (w.x[lower + 1] > w.x[lower])
        return (w.y[lower + 1] - w.y[lower]) * (x - w.x[lower]) / (w.x[lower + 1] - w.x[lower])
               + w.y[lower];
    return w.y[lower + 1];
}

double statistic(const Waveform& w, double a, double b, int which)
{
    if (w.n < 1)
        return 0;
    if (w.n < 2)
        return w.y[0];

    long long ia = 0;
    long long ib = 0;
    const double ya = interpolate(w, a, &ia);
    const double yb = interpolate(w, b, &ib);

    switch (which) {
    case Minimum:
    case Maximum:
    case PeakToPeak: {
        // The sample at or before a counts, though it may lie before the interval.
        double lo = std::min(ya, yb);
        double hi = std::max(ya, yb);
        for (long long i = std::max(ia, 0LL); i <= ib; ++i) {
            lo = std::min(lo, w.y[i]);
            hi = std::max(hi, w.y[i]);
        }
        return which == Minimum ? lo : which == Maximum ? hi : hi - lo;
    }
    case Mean: {
        // Trapezoids from (a, ya) through the samples to (b, yb).
        double sum = 0;
        double px = a;
        double py = ya;
        for (long long i = ia + 1; i <= ib; ++i) {
            sum += (w.y[i] + py) * 0.5 * (w.x[i] - px);
            px = w.x[i];
            py = w.y[i];
        }
        sum += (yb + py) * 0.5 * (b - px);
        return sum / (b - a);
    }
    case Rms: {
        // The exact integral of the square of each straight piece. The
        // common factor 1/3 is taken out, and two partial sums keep the
        // loop from waiting on one addition chain.
        auto piece = [](double x0, double y0, double x1, double y1) {
            return (y1 * y1 + y0 * y0 + y1 * y0) * (x1 - x0);
        };
        const long long first = ia + 1;
        if (first > ib)
            return std::sqrt(piece(a, ya, b, yb) / 3 / (b - a));
        double sums[2] = {piece(a, ya, w.x[first], w.y[first]), 0};
        long long i = first + 1;
        for (; i + 1 <= ib; i += 2) {
            sums[0] += piece(w.x[i - 1], w.y[i - 1], w.x[i], w.y[i]);
            sums[1] += piece(w.x[i], w.y[i], w.x[i + 1], w.y[i + 1]);
        }
        for (; i <= ib; ++i)
            sums[0] += piece(w.x[i - 1], w.y[i - 1], w.x[i], w.y[i]);
        const double sum = sums[0] + sums[1] + piece(w.x[ib], w.y[ib], b, yb);
        return std::sqrt(sum / 3 / (b - a));
    }
    default:
        return 0;
    }
}

void perCycleTiming(UserFunctionInterface* ufi)
{
    const int timing = lookup(callargs::text(ufi, 1), kTimingNames);
    if (timing == NoTiming)
        return;

    double one = 1.0;
    double minusOne = -1.0;
    bool smooth = false;
    bool selectorSet = false;
    if (!callargs::present(ufi, 2)) {
        notify(ufi);
        ufi->args[3].data = &s_risingSelector;
        selectorSet = true;
    } else {
        smooth = callargs::sameNoCase(callargs::text(ufi, 2), "smooth");
    }

    Waveform wave;
    if (!waveformOf(ufi->args[0], &wave))
        return;
    double level = midpointLevel(wave.y, wave.n);

    ArgRecord local[4];
    std::copy(ufi->args, ufi->args + 4, local);
    notify(ufi);
    local[1].data = &level;
    local[1].kind = ArgKindReal;
    local[2].data = &one;
    local[2].kind = ArgKindReal;
    if (timing >= DutyCycle) {
        local[3].data = &one; // high time is measured from rising edges
        local[3].kind = ArgKindReal;
    } else if (!selectorSet && !callargs::present(ufi, 3))
        local[3].data = nullptr; // no selector: the host takes rising edges

    ArgRecord rising;
    if (!findEdges(ufi, local, &rising))
        return;
    const double* r = static_cast<const double*>(rising.data);
    const long long risingCount = edgeCount(rising);
    const long long cycles = risingCount - 1;

    const char* xUnits = callargs::orEmpty(ufi->args[0].xUnits);
    const char* units = timing == Frequency ? "Frequency" : timing == DutyCycle ? "" : xUnits;
    CycleOutput out;
    if (!out.make(ufi, cycles, smooth, units, xUnits) || cycles < 1)
        return;

    if (timing == Frequency || timing == Period) {
        for (long long i = 0; i < cycles; ++i) {
            const double d = r[i + 1] - r[i];
            const double value = timing == Period ? d : d > kMinPeriod ? 1 / d : kFrequencyCap;
            out.write(i, r[i], r[i + 1], value);
        }
        return;
    }

    local[3].data = &minusOne;
    local[3].kind = ArgKindReal;
    ArgRecord falling;
    if (!findEdges(ufi, local, &falling))
        return;
    const double* f = static_cast<const double*>(falling.data);
    const long long fallingCount = edgeCount(falling);
    if (fallingCount < risingCount - 1 || fallingCount > risingCount + 1)
        return;

    const bool startsFalling = r[0] > f[0];
    for (long long i = 0; i < cycles; ++i) {
        const long long fi = startsFalling ? i + 1 : i;
        if (fi >= fallingCount)
            break; // no falling edge left to pair with
        const double d = r[i + 1] - r[i];
        double value = 0;
        if (timing == OnTime) {
            value = f[fi] - r[i];
        } else if (timing == OffTime) {
            value = r[i + 1] - f[fi];
        } else {
            // The fallback multiplies by minPeriod, not its inverse; kept as it always was.
            const double scale = (d > kMinPeriod ? 1 / d : kMinPeriod) * kDutyScale;
            value = (f[fi] - r[i]) * scale;
        }
        out.write(i, r[i], r[i + 1], value);
    }
}

void perCycleValue(UserFunctionInterface* ufi)
{
    const int which = lookup(callargs::text(ufi, 2), kStatisticNames);
    if (which == NoStatistic)
        return;

    Waveform wave;
    if (!waveformOf(ufi->args[0], &wave))
        return;

    // The reference is read with the waveform's x values and count, so a
    // shorter one would be read past its end: it is refused below.
    const double* reference = wave.y;
    long long referenceCount = wave.n;
    bool referenceTooShort = false;
    if (const ArgRecord* arg = callargs::present(ufi, 1); arg && arg->count > 1) {
        reference = static_cast<const double*>(arg->data);
        referenceCount = arg->count;
        referenceTooShort = referenceCount < wave.n;
    }

    // A reference too short to use still has the x check made first.
    double low = 0;
    double high = 0;
    const bool afterFirst =
        referenceTooShort ? checkAndExtremes(wave.x, wave.n, wave.y, wave.n, &low, &high)
                          : checkAndExtremes(wave.x, wave.n, reference, referenceCount, &low, &high);
    if (!afterFirst)
        return;

    bool smooth = false;
    if (!callargs::present(ufi, 3)) {
        notify(ufi);
        ufi->args[3].data = &s_risingSelector;
    } else {
        smooth = callargs::sameNoCase(callargs::text(ufi, 3), "smooth");
    }
    if (referenceTooShort)
        return;
    double level = (high + low) * 0.5;
    double one = 1.0;

    ArgRecord local[4];
    std::copy(ufi->args, ufi->args + 4, local);
    local[0].data = const_cast<double*>(reference);
    notify(ufi);
    local[1].data = &level;
    local[1].count = 1;
    local[2].data = &one;
    local[2].kind = ArgKindReal;
    const ArgRecord* selector = callargs::present(ufi, 4);
    local[3].data = selector ? selector->data : nullptr;
    local[3].kind = ArgKindReal;

    ArgRecord edges;
    if (!findEdges(ufi, local, &edges))
        return;
    const double* e = static_cast<const double*>(edges.data);
    const long long cycles = edgeCount(edges) - 1;

    CycleOutput out;
    if (!out.make(ufi, cycles, smooth, callargs::orEmpty(ufi->args[0].units),
                  callargs::orEmpty(ufi->args[0].xUnits))
        || cycles < 1)
        return;

    ArgRecord analysed[3];
    std::copy(ufi->args, ufi->args + 3, analysed);
    notify(ufi);
    waveformOf(analysed[0], &wave);
    for (long long i = 0; i < cycles; ++i)
        out.write(i, e[i], e[i + 1], statistic(wave, e[i], e[i + 1], which));
}

void testPerCycleFunction(UserFunctionInterface* ufi)
{
    const int which = lookup(callargs::text(ufi, 2), kStatisticNames);

    Waveform wave;
    if (!waveformOf(ufi->args[0], &wave))
        return;
    const ArgRecord* interval = callargs::present(ufi, 1);
    const double* bounds = interval ? static_cast<const double*>(interval->data) : nullptr;
    const double a = bounds ? bounds[0] : wave.x[0];
    const double b = bounds && interval->count >= 2 ? bounds[1] : wave.x[wave.n - 1];

    double* out = ufi->MakeRealVector(ufi, 1, callargs::orEmpty(ufi->args[0].units));
    if (out)
        out[0] = statistic(wave, a, b, which);
}

long long perCycleTimingHandler(UserFunctionInterface* ufi)
{
    perCycleTiming(ufi);
    return 0;
}

long long perCycleValueHandler(UserFunctionInterface* ufi)
{
    perCycleValue(ufi);
    return 0;
}

long long testPerCycleFunctionHandler(UserFunctionInterface* ufi)
{
    testPerCycleFunction(ufi);
    return 0;
}

const FunctionRegistration registerPerCycleTiming("PerCycleTiming", argLimits(2, 4),
                                                  &perCycleTimingHandler,
                                                  {ArgReals, ArgStrings, ArgStrings, ArgReals},
                                                  {1, 0, 0, 0});
const FunctionRegistration registerPerCycleValue("PerCycleValue", argLimits(5, 5),
                                                 &perCycleValueHandler,
                                                 {ArgReals, ArgReals, ArgStrings, ArgStrings,
                                                  ArgReals},
                                                 {1, 1, 0, 0, 0});
const FunctionRegistration registerTestPerCycleFunction("_TestPerCycleFunction", argLimits(3, 3),
                                                        &testPerCycleFunctionHandler,
                                                        {ArgReals, ArgReals, ArgStrings});

} // namespace
