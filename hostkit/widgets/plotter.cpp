// The Plotter widget: layout of the graph, grid, tick labels, cursors, and
// the mouse and keys that zoom and pan. Curves are drawn in plottercurve.cpp.
#include "plotter_p.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

using plotter::Scale;

constexpr double kXLabelSpacing = 64.0;
constexpr double kYLabelSpacing = 28.0;
constexpr int kTickLength = 4;
constexpr int kMinorTickLength = 2;
constexpr int kLabelGap = 3;
constexpr int kCursorGrab = 4;
constexpr double kWheelZoom = 0.85; // per notch, zooming in
constexpr double kKeyPan = 0.1;     // of the plot area per arrow key

bool validIndex(int index)
{
    return index >= 0 && index < Plotter::kMaxCurves;
}

// The same axis over other limits, given in the axis' own scale (log10 of
// the values on a log axis).
Axis withRange(const Axis& a, double t0, double t1)
{
    const bool log = a.isLogarithmic();
    // Beyond these a zoom or pan would lose the axis to rounding.
    const double limit = log ? 300.0 : 1e300;
    t0 = std::clamp(t0, -limit, limit);
    t1 = std::clamp(t1, -limit, limit);
    const double least = 1e-12 * std::max({std::fabs(t0), std::fabs(t1), log ? 1.0 : 1e-290});
    if (!(t1 - t0 > least))
        return a;
    return Axis(log ? std::pow(10.0, t0) : t0, log ? std::pow(10.0, t1) : t1, a.precision(),
                a.minorTicks(), log ? 1u : 0u, a.flags());
}

QColor gridColour()
{
    return QColor(218, 218, 218);
}

QColor frameColour()
{
    return QColor(110, 110, 110);
}

} // namespace

struct Plotter::Drag {
    enum class Kind { Pan, Cursor } kind = Kind::Pan;
    int cursor = -1;
    QPointF start;
    Axis x;
    Axis y;
};

Plotter::Plotter(QWidget* parent, const char* name)
    : QWidget(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    m_givenX = m_viewX = Axis(0.0, 1.0, 0, 0, 0, 0);
    m_givenY = m_viewY = Axis(0.0, 1.0, 0, 0, 0, 0);
}

Plotter::~Plotter() = default;

void Plotter::initializeAxes(const Axis& x, const Axis& y)
{
    m_givenX = m_viewX = x;
    m_givenY = m_viewY = y;
    update();
}

void Plotter::setMargins(unsigned left, unsigned top, unsigned right, unsigned bottom)
{
    const auto fit = [](unsigned v) { return int(std::min(v, 1000u)); };
    m_margins = QMargins(fit(left), fit(top), fit(right), fit(bottom));
    update();
}

void Plotter::setCurveData(int curve, const std::vector<double>& data, const QPen& pen)
{
    if (!validIndex(curve))
        return;
    if (m_curves.size() <= std::size_t(curve))
        m_curves.resize(std::size_t(curve) + 1);
    Curve& c = m_curves[std::size_t(curve)];
    c = Curve{data, pen, true, {}};
    for (std::size_t i = 0; i + 1 < data.size() / 2 && c.sortedX; ++i)
        c.sortedX = data[2 * i] <= data[2 * i + 2];
    if (!data.empty() && std::isnan(data.front()))
        c.sortedX = false;
    if (c.sortedX)
        c.blocks = plotter::blockExtremes(data);
    update();
}

void Plotter::setCursorData(int cursor, const CursorLine& line)
{
    if (!validIndex(cursor))
        return;
    if (m_cursors.size() <= std::size_t(cursor))
        m_cursors.resize(std::size_t(cursor) + 1);
    m_cursors[std::size_t(cursor)] = line;
    update();
}

void Plotter::clearCurve(int curve)
{
    if (!validIndex(curve) || std::size_t(curve) >= m_curves.size())
        return;
    m_curves[std::size_t(curve)] = Curve{};
    update();
}

void Plotter::clearCurveAll()
{
    m_curves.clear();
    update();
}

void Plotter::clearCursorAll()
{
    m_cursors.clear();
    update();
}

int Plotter::curveCount() const
{
    return int(std::count_if(m_curves.begin(), m_curves.end(),
                             [](const Curve& c) { return c.data.size() >= 2; }));
}

double Plotter::cursorPosition(int cursor) const
{
    if (cursor < 0 || std::size_t(cursor) >= m_cursors.size()
        || !m_cursors[std::size_t(cursor)].isVisible())
        return std::nan("");
    return m_cursors[std::size_t(cursor)].position();
}

void Plotter::setAntialiasing(bool on)
{
    m_antialiasing = on;
    update();
}

void Plotter::setDecimation(bool on)
{
    m_decimation = on;
    update();
}

QSize Plotter::sizeHint() const
{
    return QSize(360, 200);
}

QSize Plotter::minimumSizeHint() const
{
    return QSize(120, 80);
}

QRect Plotter::plotArea() const
{
    const QFontMetrics fm = fontMetrics();
    QRect r = rect().marginsRemoved(m_margins);
    // Half a label sticks out above the top tick and right of the last.
    const bool xLabels = !(m_viewX.flags() & Axis::NoLabels);
    const bool yLabels = !(m_viewY.flags() & Axis::NoLabels);
    const int top = yLabels ? fm.height() / 2 + 1 : 1;
    const int bottom = xLabels ? kTickLength + kLabelGap + fm.height() : kTickLength + 1;
    const int right = xLabels ? fm.horizontalAdvance(QStringLiteral("000.0k")) / 2 : 1;
    int left = kTickLength + 1;
    if (yLabels) {
        const int height = std::max(1, r.height() - top - bottom);
        int widest = 0;
        for (double v : m_viewY.majorTicks(height, kYLabelSpacing))
            widest = std::max(widest, fm.horizontalAdvance(m_viewY.label(v)));
        left += kLabelGap + widest;
    }
    r.adjust(left, top, -right, -bottom);
    if (r.width() < 2)
        r.setWidth(2);
    if (r.height() < 2)
        r.setHeight(2);
    return r;
}

QPointF Plotter::mapToPixel(double x, double y) const
{
    const QRect area = plotArea();
    return QPointF(Scale::horizontal(m_viewX, area).toPixel(x),
                   Scale::vertical(m_viewY, area).toPixel(y));
}

// ------------------------------------------------------------------ painting

void Plotter::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    const QRect area = plotArea();
    // Each pixel is filled once: the graph white, the frame around it.
    const QBrush window = palette().window();
    const QRect all = rect();
    p.fillRect(QRect(all.left(), all.top(), all.width(), area.top() - all.top()), window);
    p.fillRect(QRect(all.left(), area.bottom() + 1, all.width(), all.bottom() - area.bottom()), window);
    p.fillRect(QRect(all.left(), area.top(), area.left() - all.left(), area.height()), window);
    p.fillRect(QRect(area.right() + 1, area.top(), all.right() - area.right(), area.height()), window);
    p.fillRect(area, Qt::white);

    drawGrid(p, area);

    p.save();
    p.setClipRect(area);
    p.setRenderHint(QPainter::Antialiasing, m_antialiasing);
    for (const Curve& curve : m_curves) {
        if (curve.data.size() >= 2) {
            p.setPen(curve.pen);
            drawCurve(p, area, curve);
        }
    }
    p.restore();

    const QColor frame = frameColour();
    p.fillRect(QRect(area.left(), area.top(), area.width(), 1), frame);
    p.fillRect(QRect(area.left(), area.bottom(), area.width(), 1), frame);
    p.fillRect(QRect(area.left(), area.top(), 1, area.height()), frame);
    p.fillRect(QRect(area.right(), area.top(), 1, area.height()), frame);
    drawCursors(p, area);
}

void Plotter::drawGrid(QPainter& p, const QRect& area) const
{
    const Scale sx = Scale::horizontal(m_viewX, area);
    const Scale sy = Scale::vertical(m_viewY, area);
    const auto pixel = [](double at) { return int(std::floor(std::clamp(at, -1e6, 1e6))); };
    const std::vector<double> xMajor = m_viewX.majorTicks(area.width(), kXLabelSpacing);
    const std::vector<double> yMajor = m_viewY.majorTicks(area.height(), kYLabelSpacing);
    const int left = area.left(), top = area.top();
    const int bottom = area.top() + area.height();

    // Grid lines and ticks are one pixel wide and axis-parallel: filled as
    // rectangles, since the rasteriser draws such a line pixel by pixel, at
    // some fifty times the cost of a fill.
    const QColor grid = gridColour();
    if (!(m_viewX.flags() & Axis::NoGrid)) {
        for (double v : xMajor)
            p.fillRect(QRect(pixel(sx.toPixel(v)), top, 1, area.height()), grid);
    }
    if (!(m_viewY.flags() & Axis::NoGrid)) {
        for (double v : yMajor)
            p.fillRect(QRect(left, pixel(sy.toPixel(v)), area.width(), 1), grid);
    }

    const QColor frame = frameColour();
    for (double v : xMajor)
        p.fillRect(QRect(pixel(sx.toPixel(v)), bottom, 1, kTickLength + 1), frame);
    for (double v : m_viewX.minorTickValues(area.width(), kXLabelSpacing))
        p.fillRect(QRect(pixel(sx.toPixel(v)), bottom, 1, kMinorTickLength + 1), frame);
    for (double v : yMajor)
        p.fillRect(QRect(left - kTickLength - 1, pixel(sy.toPixel(v)), kTickLength + 1, 1), frame);
    for (double v : m_viewY.minorTickValues(area.height(), kYLabelSpacing))
        p.fillRect(QRect(left - kMinorTickLength - 1, pixel(sy.toPixel(v)), kMinorTickLength + 1, 1), frame);

    const QFontMetrics fm = fontMetrics();
    p.setPen(palette().color(QPalette::WindowText));
    if (!(m_viewX.flags() & Axis::NoLabels)) {
        for (double v : xMajor) {
            const QString text = m_viewX.label(v);
            const int w = fm.horizontalAdvance(text);
            const int x = int(std::lround(sx.toPixel(v))) - w / 2;
            p.drawText(QRect(x, bottom + kTickLength + kLabelGap - 1, w + 2, fm.height()),
                       Qt::AlignLeft | Qt::AlignTop, text);
        }
    }
    if (!(m_viewY.flags() & Axis::NoLabels)) {
        for (double v : yMajor) {
            const QString text = m_viewY.label(v);
            const int y = int(std::lround(sy.toPixel(v))) - fm.height() / 2;
            p.drawText(QRect(0, y, left - kTickLength - kLabelGap, fm.height()),
                       Qt::AlignRight | Qt::AlignVCenter, text);
        }
    }
}

void Plotter::drawCursors(QPainter& p, const QRect& area) const
{
    const Scale sx = Scale::horizontal(m_viewX, area);
    const Scale sy = Scale::vertical(m_viewY, area);
    const QFontMetrics fm = fontMetrics();
    p.save();
    p.setClipRect(area);
    for (const CursorLine& c : m_cursors) {
        if (!c.isVisible())
            continue;
        const double pixel = (c.isVertical() ? sx : sy).toPixel(c.position());
        if (!std::isfinite(pixel))
            continue;
        const double at = std::floor(std::clamp(pixel, -1e6, 1e6)) + 0.5;
        p.setPen(c.pen());
        if (c.isVertical())
            p.drawLine(QPointF(at, area.top()), QPointF(at, area.bottom()));
        else
            p.drawLine(QPointF(area.left(), at), QPointF(area.right(), at));
        if (c.label().isEmpty())
            continue;
        const QSize size(fm.horizontalAdvance(c.label()) + 6, fm.height() + 2);
        QRect box = c.isVertical()
                        ? QRect(QPoint(int(at) + 3, area.top() + 2), size)
                        : QRect(QPoint(area.right() - size.width() - 2, int(at) - size.height() - 1), size);
        if (box.right() > area.right())
            box.moveRight(int(at) - 3);
        if (box.top() < area.top())
            box.moveTop(int(at) + 2);
        p.fillRect(box, QColor(255, 255, 255, 220));
        p.setPen(c.pen().color());
        p.drawText(box, Qt::AlignCenter, c.label());
    }
    p.restore();
}

void Plotter::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    update();
}

// --------------------------------------------------------- zoom, pan, cursors

void Plotter::resetView()
{
    m_viewX = m_givenX;
    m_viewY = m_givenY;
    update();
}

void Plotter::zoom(double factorX, double factorY, QPointF centre)
{
    const QRect area = plotArea();
    const auto scaled = [](const Axis& a, const Scale& s, double factor, double pixel) {
        const double tc = s.tFromPixel(pixel);
        const double t0 = s.t(a.low()), t1 = s.t(a.high());
        return withRange(a, tc + (t0 - tc) * factor, tc + (t1 - tc) * factor);
    };
    m_viewX = scaled(m_viewX, Scale::horizontal(m_viewX, area), factorX, centre.x());
    m_viewY = scaled(m_viewY, Scale::vertical(m_viewY, area), factorY, centre.y());
    update();
}

void Plotter::pan(double dxPixels, double dyPixels)
{
    const QRect area = plotArea();
    const auto moved = [](const Axis& a, const Scale& s, double pixels) {
        const double dt = -pixels / s.k;
        return withRange(a, s.t(a.low()) + dt, s.t(a.high()) + dt);
    };
    m_viewX = moved(m_viewX, Scale::horizontal(m_viewX, area), dxPixels);
    m_viewY = moved(m_viewY, Scale::vertical(m_viewY, area), dyPixels);
    update();
}

int Plotter::cursorAt(QPointF pos) const
{
    const QRect area = plotArea();
    const Scale sx = Scale::horizontal(m_viewX, area);
    const Scale sy = Scale::vertical(m_viewY, area);
    for (std::size_t i = 0; i < m_cursors.size(); ++i) {
        const CursorLine& c = m_cursors[i];
        if (!c.isVisible() || !c.isMovable())
            continue;
        const double pixel = (c.isVertical() ? sx : sy).toPixel(c.position());
        const double along = c.isVertical() ? pos.x() : pos.y();
        if (std::fabs(pixel - along) <= kCursorGrab)
            return int(i);
    }
    return -1;
}

void Plotter::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_drag = std::make_unique<Drag>();
    m_drag->start = event->localPos();
    m_drag->x = m_viewX;
    m_drag->y = m_viewY;
    m_drag->cursor = cursorAt(event->localPos());
    m_drag->kind = m_drag->cursor >= 0 ? Drag::Kind::Cursor : Drag::Kind::Pan;
    if (m_drag->kind == Drag::Kind::Pan)
        setCursor(Qt::ClosedHandCursor);
    event->accept();
}

void Plotter::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_drag) {
        const int c = cursorAt(event->localPos());
        if (c < 0)
            unsetCursor();
        else
            setCursor(m_cursors[std::size_t(c)].isVertical() ? Qt::SizeHorCursor : Qt::SizeVerCursor);
        return;
    }
    const QRect area = plotArea();
    if (m_drag->kind == Drag::Kind::Cursor) {
        CursorLine& c = m_cursors[std::size_t(m_drag->cursor)];
        const double position = c.isVertical()
                                    ? Scale::horizontal(m_viewX, area).fromPixel(event->localPos().x())
                                    : Scale::vertical(m_viewY, area).fromPixel(event->localPos().y());
        if (std::isfinite(position)) {
            c.setPosition(position);
            update();
            emit cursorMoved(m_drag->cursor, position);
        }
        return;
    }
    // Panning goes from where the drag began, so no rounding piles up.
    m_viewX = m_drag->x;
    m_viewY = m_drag->y;
    const QPointF delta = event->localPos() - m_drag->start;
    pan(delta.x(), delta.y());
}

void Plotter::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_drag) {
        m_drag.reset();
        unsetCursor();
        event->accept();
        return;
    }
    QWidget::mouseReleaseEvent(event);
}

void Plotter::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        resetView();
        event->accept();
    }
}

void Plotter::wheelEvent(QWheelEvent* event)
{
    const double notches = event->angleDelta().y() / 120.0;
    if (notches == 0.0) {
        event->ignore();
        return;
    }
    const double factor = std::pow(kWheelZoom, std::clamp(notches, -10.0, 10.0));
    const Qt::KeyboardModifiers mods = event->modifiers();
    zoom(mods & Qt::ControlModifier ? 1.0 : factor, mods & Qt::ShiftModifier ? 1.0 : factor,
         event->position());
    event->accept();
}

void Plotter::keyPressEvent(QKeyEvent* event)
{
    const QRect area = plotArea();
    const QPointF centre = QRectF(area).center();
    switch (event->key()) {
    case Qt::Key_Home:
    case Qt::Key_R:
        resetView();
        break;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoom(kWheelZoom, kWheelZoom, centre);
        break;
    case Qt::Key_Minus:
        zoom(1 / kWheelZoom, 1 / kWheelZoom, centre);
        break;
    case Qt::Key_Left:
        pan(area.width() * kKeyPan, 0);
        break;
    case Qt::Key_Right:
        pan(-area.width() * kKeyPan, 0);
        break;
    case Qt::Key_Up:
        pan(0, area.height() * kKeyPan);
        break;
    case Qt::Key_Down:
        pan(0, -area.height() * kKeyPan);
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
}
