// Axis and CursorLine, the plain values a Plotter is given: limits made
// drawable, tick positions and engineering tick labels.
#include "hostwidgets.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr unsigned kMaxMinorTicks = 20;
constexpr unsigned kMaxPrecision = 15;
constexpr unsigned kDefaultPrecision = 3;
// More ticks than this on one axis is never readable; it also bounds the
// work when a script passes absurd limits.
constexpr double kMaxTicks = 1000.0;

// The smallest of 1, 2, 5 times a power of ten that is at least raw.
double niceStep(double raw)
{
    const double decade = std::pow(10.0, std::floor(std::log10(raw)));
    for (double m : {1.0, 2.0, 5.0, 10.0}) {
        if (m * decade >= raw * (1 - 1e-12))
            return m * decade;
    }
    return 10.0 * decade;
}

// The multiples of a decade that carry minor ticks on a log axis.
std::vector<int> logMultiples(unsigned minorTicks)
{
    if (minorTicks == 0)
        return {};
    if (minorTicks == 1)
        return {5};
    if (minorTicks <= 3)
        return {2, 5};
    if (minorTicks <= 7)
        return {2, 4, 6, 8};
    return {2, 3, 4, 5, 6, 7, 8, 9};
}

// Decades between labels on a log axis of that many decades.
double decadeStep(double decades, double length, double spacing)
{
    const double fit = std::max(1.0, std::floor(length / std::max(spacing, 1.0)));
    double step = 1.0;
    // Steps of three decades keep to the engineering suffixes.
    for (double s : {1.0, 2.0, 3.0, 6.0, 12.0, 30.0, 60.0, 120.0}) {
        step = s;
        if (decades / s <= fit)
            break;
    }
    return std::max(step, std::ceil(decades / kMaxTicks));
}

// Step of a linear axis: labels at least spacing pixels apart.
double linearStep(double span, double length, double spacing)
{
    const double fit = std::max(1.0, std::floor(length / std::max(spacing, 1.0)));
    return niceStep(span / std::min(fit, kMaxTicks));
}

} // namespace

// ---------------------------------------------------------------------- Axis

Axis::Axis(double low, double high, unsigned precision, unsigned minorTicks, unsigned logarithmic,
           unsigned flags)
{
    setAxisParams(low, high, precision, minorTicks, logarithmic, flags);
}

void Axis::setAxisParams(double low, double high, unsigned precision, unsigned minorTicks,
                         unsigned logarithmic, unsigned flags)
{
    m_precision = std::min(precision, kMaxPrecision);
    m_minorTicks = std::min(minorTicks, kMaxMinorTicks);
    m_flags = flags;
    m_logarithmic = logarithmic != 0;

    if (!std::isfinite(low) || !std::isfinite(high)) {
        low = m_logarithmic ? 1.0 : 0.0;
        high = m_logarithmic ? 10.0 : 1.0;
    }
    if (low > high)
        std::swap(low, high);
    if (m_logarithmic && high <= 0.0)
        m_logarithmic = false;
    if (m_logarithmic) {
        if (low <= 0.0)
            low = high / 1000.0;
        if (!(high > low)) {
            low /= 10.0;
            high *= 10.0;
        }
        // Keeps log10 of both finite and apart.
        low = std::max(low, std::numeric_limits<double>::min());
        high = std::min(high, std::numeric_limits<double>::max());
    } else if (!(high > low)) {
        const double spread = low == 0.0 ? 1.0 : std::fabs(low) * 0.1;
        low -= spread;
        high += spread;
    }
    // A span beyond the range of doubles can't be divided into ticks.
    if (!m_logarithmic && !std::isfinite(high - low)) {
        low /= 4.0;
        high /= 4.0;
    }
    m_low = low;
    m_high = high;
}

std::vector<double> Axis::majorTicks(double length, double spacing) const
{
    std::vector<double> ticks;
    if (!(length > 0.0) || !std::isfinite(length))
        return ticks;
    if (m_logarithmic) {
        const double l0 = std::log10(m_low), l1 = std::log10(m_high);
        const double step = decadeStep(l1 - l0, length, spacing);
        for (double d = std::ceil(l0 / step) * step; d <= l1 + 1e-9; d += step)
            ticks.push_back(std::pow(10.0, d));
        return ticks;
    }
    const double step = linearStep(m_high - m_low, length, spacing);
    const double first = std::ceil(m_low / step - 1e-9);
    const double last = std::floor(m_high / step + 1e-9);
    for (double k = first; k <= last && ticks.size() <= kMaxTicks; ++k) {
        const double v = k * step;
        ticks.push_back(std::fabs(v) < step * 1e-9 ? 0.0 : v);
    }
    return ticks;
}

std::vector<double> Axis::minorTickValues(double length, double spacing) const
{
    std::vector<double> ticks;
    if (m_minorTicks == 0 || !(length > 0.0) || !std::isfinite(length))
        return ticks;
    if (m_logarithmic) {
        const double l0 = std::log10(m_low), l1 = std::log10(m_high);
        // Between labels more than a decade apart the decades themselves
        // are the minor ticks.
        if (decadeStep(l1 - l0, length, spacing) > 1.0)
            return ticks;
        const std::vector<int> multiples = logMultiples(m_minorTicks);
        for (double d = std::floor(l0); d <= std::ceil(l1); ++d) {
            const double decade = std::pow(10.0, d);
            for (int m : multiples) {
                const double v = m * decade;
                if (v >= m_low && v <= m_high)
                    ticks.push_back(v);
            }
        }
        return ticks;
    }
    const double step = linearStep(m_high - m_low, length, spacing);
    const double minor = step / (m_minorTicks + 1);
    const double first = std::ceil(m_low / minor - 1e-9);
    const double last = std::floor(m_high / minor + 1e-9);
    if (last - first > kMaxTicks * (kMaxMinorTicks + 1))
        return ticks;
    for (double k = first; k <= last; ++k) {
        if (std::fmod(std::fabs(k), m_minorTicks + 1.0) != 0.0)
            ticks.push_back(k * minor);
    }
    return ticks;
}

QString Axis::label(double v) const
{
    static const char* const kSuffixes[] = {"f", "p", "n", "u", "m", "", "k", "M", "G", "T"};
    const int digits = int(m_precision == 0 ? kDefaultPrecision : m_precision);
    if (v == 0.0 || !std::isfinite(v))
        return QString::number(v);
    const double magnitude = std::fabs(v);
    if (magnitude >= 1e15 || magnitude < 1e-15)
        return QString::number(v, 'g', digits);
    int power = int(std::floor(std::log10(magnitude) / 3.0)) * 3;
    power = std::clamp(power, -15, 12);
    double mantissa = v / std::pow(10.0, power);
    // Rounding to the digits shown may carry into the next group (999.96
    // at 3 digits is 1k, not 1000).
    const auto decimals = [digits](double m) {
        return std::max(0, digits - 1 - int(std::floor(std::log10(std::fabs(m)))));
    };
    if (std::fabs(QString::number(mantissa, 'f', decimals(mantissa)).toDouble()) >= 1000.0
        && power < 12) {
        power += 3;
        mantissa /= 1000.0;
    }
    QString text = QString::number(mantissa, 'f', decimals(mantissa));
    if (text.contains(QLatin1Char('.'))) {
        while (text.endsWith(QLatin1Char('0')))
            text.chop(1);
        if (text.endsWith(QLatin1Char('.')))
            text.chop(1);
    }
    return text + QLatin1String(kSuffixes[(power + 15) / 3]);
}

// ---------------------------------------------------------------- CursorLine

CursorLine::CursorLine(bool vertical, double position, QString label, bool visible, bool movable,
                       QPen pen)
    : m_label(std::move(label))
    , m_pen(std::move(pen))
    , m_position(position)
    , m_vertical(vertical)
    , m_visible(visible)
    , m_movable(movable)
{
}

void CursorLine::setCursorLine(bool vertical, double position, QString label, QPen pen)
{
    m_vertical = vertical;
    m_position = position;
    m_label = std::move(label);
    m_pen = std::move(pen);
}
