// Drawing one curve of a Plotter. A short curve is drawn as it is; a long
// one at pixel resolution, reduced per pixel column.
//
// Every point goes to the centre of its pixel. The points of one run that
// fall in one pixel column lie on one vertical line there, and the segments
// between them cover exactly the line from the lowest to the highest, in
// whatever order they came; so a column needs only its first, lowest,
// highest and last point for the same picture: the segments into and out
// of the column start and end at the same places. A column is found by comparing
// x with the column's bounds, so sorted data costs no mapping per point.
#include "plotter_p.h"

#include <QPainter>
#include <QVector>

#include <algorithm>
#include <cmath>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace {

using plotter::Scale;

// Pixel positions that keep well inside what the rasteriser takes.
constexpr double kFar = 1e15;
// Points per drawPolyline call: keeps memory flat whatever the data.
constexpr int kChunk = 4096;

double clampFar(double v)
{
    return std::clamp(v, -kFar, kFar);
}

// Collects polylines and hands them to the painter in chunks. Segments are
// clipped to a guard rectangle a little outside the plot area first, so
// that far-off points neither reach the rasteriser nor bend what is seen.
class PolylineSink {
public:
    PolylineSink(QPainter& painter, const QRectF& guard)
        : m_painter(painter)
        , m_guard(guard)
    {
        m_points.reserve(kChunk + 2);
    }
    ~PolylineSink() { flush(); }

    void point(const QPointF& q)
    {
        const bool inside = m_guard.contains(q);
        if (!m_started) {
            m_started = true;
            if (inside)
                m_points.push_back(q);
        } else if (q == m_previous) {
            return;
        } else if (m_previousInside && inside) {
            m_points.push_back(q);
        } else {
            QPointF a = m_previous, b = q;
            if (clip(a, b)) {
                if (!m_previousInside) {
                    flush();
                    m_points.push_back(a);
                }
                m_points.push_back(b);
            }
            if (!inside)
                flush();
        }
        m_previous = q;
        m_previousInside = inside;
        if (m_points.size() >= kChunk) {
            const QPointF last = m_points.back();
            flush();
            m_points.push_back(last);
        }
    }

    // A gap: the next point starts a new line.
    void breakLine()
    {
        flush();
        m_started = false;
    }

private:
    void flush()
    {
        if (m_points.size() >= 2)
            m_painter.drawPolyline(m_points.constData(), m_points.size());
        else if (m_points.size() == 1)
            m_painter.drawPoint(m_points.front());
        m_points.clear();
    }

    // Liang-Barsky: cuts a to b down to the part inside the guard.
    bool clip(QPointF& a, QPointF& b) const
    {
        const double dx = b.x() - a.x(), dy = b.y() - a.y();
        double t0 = 0.0, t1 = 1.0;
        const double p[4] = {-dx, dx, -dy, dy};
        const double q[4] = {a.x() - m_guard.left(), m_guard.right() - a.x(),
                             a.y() - m_guard.top(), m_guard.bottom() - a.y()};
        for (int i = 0; i < 4; ++i) {
            if (p[i] == 0.0) {
                if (q[i] < 0.0)
                    return false;
                continue;
            }
            const double r = q[i] / p[i];
            if (p[i] < 0.0)
                t0 = std::max(t0, r);
            else
                t1 = std::min(t1, r);
            if (t0 > t1)
                return false;
        }
        const QPointF start = a;
        a = QPointF(start.x() + t0 * dx, start.y() + t0 * dy);
        b = QPointF(start.x() + t1 * dx, start.y() + t1 * dy);
        return true;
    }

    QPainter& m_painter;
    QRectF m_guard;
    QVector<QPointF> m_points;
    QPointF m_previous;
    bool m_started = false;
    bool m_previousInside = false;
};

// Which pixel column an x value falls in. Column c holds the x with
// bound(c) <= x < bound(c + 1); the bounds of the last column found are
// kept, so runs of sorted data are placed by two comparisons.
class Columns {
public:
    explicit Columns(const Scale& scale)
        : m_scale(scale)
    {
    }

    // False for an x the axis can't place.
    bool find(double x, long long* column)
    {
        if (x >= m_low && x < m_high) {
            *column = m_column;
            return true;
        }
        const double pixel = m_scale.toPixel(x);
        if (!std::isfinite(pixel))
            return false;
        long long c = static_cast<long long>(std::floor(clampFar(pixel)));
        // The mapping and its inverse may disagree in the last bit; the
        // bounds decide, so that every way of placing x agrees.
        for (int i = 0; i < 2 && x < bound(c); ++i)
            --c;
        for (int i = 0; i < 2 && x >= bound(c + 1); ++i)
            ++c;
        m_column = c;
        m_low = bound(c);
        m_high = bound(c + 1);
        *column = c;
        return true;
    }

    // The x range of the column found last: [lowBound, highBound).
    double lowBound() const { return m_low; }
    double highBound() const { return m_high; }

private:
    double bound(long long c) const { return m_scale.fromPixel(double(c)); }

    const Scale& m_scale;
    long long m_column = 0;
    double m_low = 1.0;
    double m_high = 0.0; // empty until the first find
};

// The y pixel row's centre for a value, NaN where it can't be shown.
double rowCentre(const Scale& y, double v)
{
    const double pixel = y.toPixel(v);
    if (!std::isfinite(pixel))
        return pixel;
    return std::floor(clampFar(pixel)) + 0.5;
}

// The column being gathered: values by data y, in the order seen.
struct Column {
    long long index = 0;
    double first = 0.0, last = 0.0, low = 0.0, high = 0.0;
    bool open = false;
};

void emitColumn(PolylineSink& sink, const Scale& y, const Column& c)
{
    const double x = double(c.index) + 0.5;
    for (double v : {c.first, c.low, c.high, c.last})
        sink.point(QPointF(x, rowCentre(y, v)));
}

// The lowest and highest y of the points [k, j) of flat x, y data, with
// low and high to start from, and whether every y there is finite.
struct RunExtremes {
    double low, high;
    bool finite;
};

// The extremes on independent chains with no branch on the values, which
// noisy data would make unpredictable. v * 0 is 0 for every finite v and
// NaN otherwise, so one sum tells whether the run holds a value that can't
// be shown.
RunExtremes runExtremes(const double* d, std::size_t k, std::size_t j, double low, double high)
{
    double nonFinite = 0.0;
#if defined(__SSE2__)
    // Two points' y values per register, gathered from two x, y pairs.
    const __m128d zero = _mm_setzero_pd();
    __m128d lo0 = _mm_set1_pd(low), lo1 = lo0, hi0 = _mm_set1_pd(high), hi1 = hi0;
    __m128d nf0 = zero, nf1 = zero;
    for (; k + 4 <= j; k += 4) {
        const double* p = d + 2 * k;
        const __m128d y0 = _mm_unpackhi_pd(_mm_loadu_pd(p), _mm_loadu_pd(p + 2));
        const __m128d y1 = _mm_unpackhi_pd(_mm_loadu_pd(p + 4), _mm_loadu_pd(p + 6));
        lo0 = _mm_min_pd(y0, lo0);
        lo1 = _mm_min_pd(y1, lo1);
        hi0 = _mm_max_pd(y0, hi0);
        hi1 = _mm_max_pd(y1, hi1);
        nf0 = _mm_add_pd(nf0, _mm_mul_pd(y0, zero));
        nf1 = _mm_add_pd(nf1, _mm_mul_pd(y1, zero));
    }
    lo0 = _mm_min_pd(lo0, lo1);
    hi0 = _mm_max_pd(hi0, hi1);
    nf0 = _mm_add_pd(nf0, nf1);
    low = std::min(_mm_cvtsd_f64(lo0), _mm_cvtsd_f64(_mm_unpackhi_pd(lo0, lo0)));
    high = std::max(_mm_cvtsd_f64(hi0), _mm_cvtsd_f64(_mm_unpackhi_pd(hi0, hi0)));
    nonFinite = _mm_cvtsd_f64(nf0) + _mm_cvtsd_f64(_mm_unpackhi_pd(nf0, nf0));
#endif
    for (; k < j; ++k) {
        const double v = d[2 * k + 1];
        low = v < low ? v : low;
        high = v > high ? v : high;
        nonFinite += v * 0.0;
    }
    return RunExtremes{low, high, nonFinite == 0.0};
}

// runExtremes over the summary where the run spans whole blocks.
RunExtremes runExtremes(const std::vector<double>& d, const std::vector<double>& blocks,
                        std::size_t k, std::size_t j, double low, double high)
{
    using plotter::kBlock;
    const std::size_t first = (k + kBlock - 1) / kBlock, end = j / kBlock;
    if (first >= end || 2 * end > blocks.size())
        return runExtremes(d.data(), k, j, low, high);
    RunExtremes run = runExtremes(d.data(), k, first * kBlock, low, high);
    for (std::size_t b = first; b < end; ++b) {
        const double blockLow = blocks[2 * b], blockHigh = blocks[2 * b + 1];
        run.finite = run.finite && !std::isnan(blockLow);
        run.low = blockLow < run.low ? blockLow : run.low;
        run.high = blockHigh > run.high ? blockHigh : run.high;
    }
    const RunExtremes tail = runExtremes(d.data(), end * kBlock, j, run.low, run.high);
    return RunExtremes{tail.low, tail.high, run.finite && tail.finite};
}

bool showable(const Scale& s, double v)
{
    return std::isfinite(v) && (!s.log || v > 0.0);
}

} // namespace

std::vector<double> plotter::blockExtremes(const std::vector<double>& data)
{
    const std::size_t blocks = data.size() / 2 / kBlock;
    std::vector<double> summary;
    summary.reserve(2 * blocks);
    const double inf = std::numeric_limits<double>::infinity();
    for (std::size_t b = 0; b < blocks; ++b) {
        const RunExtremes run = runExtremes(data.data(), b * kBlock, (b + 1) * kBlock, inf, -inf);
        const double nan = std::numeric_limits<double>::quiet_NaN();
        summary.push_back(run.finite ? run.low : nan);
        summary.push_back(run.finite ? run.high : nan);
    }
    return summary;
}

void Plotter::drawCurve(QPainter& p, const QRect& area, const Curve& curve) const
{
    const Scale sx = Scale::horizontal(m_viewX, area);
    const Scale sy = Scale::vertical(m_viewY, area);
    const double pad = std::max(8.0, curve.pen.widthF() * 2 + 4);
    PolylineSink sink(p, QRectF(area).adjusted(-pad, -pad, pad, pad));
    Columns columns(sx);

    const std::vector<double>& d = curve.data;
    const std::size_t n = d.size() / 2;
    // A curve with few points per column is drawn as it is, between pixels.
    if (m_decimation && n <= std::size_t(2 * area.width())) {
        for (std::size_t i = 0; i < n; ++i) {
            const double x = d[2 * i], y = d[2 * i + 1];
            if (!showable(sx, x) || !showable(sy, y)) {
                sink.breakLine();
                continue;
            }
            sink.point(QPointF(clampFar(sx.toPixel(x)), clampFar(sy.toPixel(y))));
        }
        return;
    }
    if (!m_decimation) {
        for (std::size_t i = 0; i < n; ++i) {
            const double x = d[2 * i], y = d[2 * i + 1];
            long long c = 0;
            if (!showable(sx, x) || !showable(sy, y) || !columns.find(x, &c)) {
                sink.breakLine();
                continue;
            }
            sink.point(QPointF(double(c) + 0.5, rowCentre(sy, y)));
        }
        return;
    }

    Column col;
    const bool logY = sy.log;
    std::size_t i = 0;
    while (i < n) {
        const double x = d[2 * i], y = d[2 * i + 1];
        long long c = 0;
        if (!showable(sx, x) || !showable(sy, y) || !columns.find(x, &c)) {
            if (col.open)
                emitColumn(sink, sy, col);
            col.open = false;
            sink.breakLine();
            ++i;
            continue;
        }
        if (col.open && c != col.index)
            emitColumn(sink, sy, col);
        if (!col.open || c != col.index)
            col = Column{c, y, y, y, y, true};
        // The rest of the column's run: where x leaves the column, then the
        // extremes of y there.
        const double lo = columns.lowBound(), hi = columns.highBound();
        std::size_t j = i + 1;
        if (curve.sortedX) {
            // Sorted x: the column ends at the first x >= hi, found by
            // doubling steps and then halving them.
            std::size_t step = 1;
            while (j + step < n && d[2 * (j + step)] < hi)
                step *= 2;
            std::size_t a = j, b = std::min(n, j + step);
            while (a < b) {
                const std::size_t m = a + (b - a) / 2;
                if (d[2 * m] < hi)
                    a = m + 1;
                else
                    b = m;
            }
            j = a;
        } else {
            while (j < n && d[2 * j] >= lo && d[2 * j] < hi)
                ++j;
        }
        RunExtremes run = runExtremes(d, curve.blocks, i + 1, j, col.low, col.high);
        const bool bad = !run.finite || (logY && !(run.low > 0.0));
        if (bad) {
            // A value that can't be shown ends the run; rare, so done again
            // one by one up to it.
            j = i + 1;
            while (j < n && d[2 * j] >= lo && d[2 * j] < hi && showable(sy, d[2 * j + 1]))
                ++j;
            run = runExtremes(d.data(), i + 1, j, col.low, col.high);
        }
        col.low = run.low;
        col.high = run.high;
        col.last = d[2 * (j - 1) + 1];
        i = j;
    }
    if (col.open)
        emitColumn(sink, sy, col);
}
