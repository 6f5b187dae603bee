// Diode configurations as small schematic symbols: single, parallel, series
// and bridge, for plain and Schottky diodes, and one or two zeners. Strokes
// only, like the block pictures.
#include "deviceimages.h"

#include <QPainterPath>
#include <QPolygonF>
#include <QtMath>

namespace {

const QColor kInk(35, 45, 60);
const QColor kFill(232, 239, 250);

enum class Bar { Plain, Schottky, Zener };

// Every picture is drawn on a 64 unit square and scaled to the canvas.
void scaleTo(QPainter& p, int size)
{
    p.scale(size / 64.0, size / 64.0);
}

QPen inkPen(qreal width = 2.2)
{
    return QPen(kInk, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// A diode from anode a to cathode k: leads, a filled triangle and the bar,
// with the Schottky hooks or the zener bends.
void diode(QPainter& p, QPointF a, QPointF k, Bar bar = Bar::Plain, qreal body = 14)
{
    const QLineF line(a, k);
    const qreal length = line.length();
    p.save();
    p.translate(a);
    p.rotate(-line.angle());
    const qreal start = (length - body) / 2, end = start + body;
    p.setPen(inkPen());
    p.drawLine(QPointF(0, 0), QPointF(start, 0));
    p.drawLine(QPointF(end, 0), QPointF(length, 0));
    p.setBrush(kFill);
    p.drawPolygon(QPolygonF({QPointF(start, -body / 2), QPointF(start, body / 2), QPointF(end, 0)}));
    const qreal h = body / 2;
    p.drawLine(QPointF(end, -h), QPointF(end, h));
    const qreal hook = body * 0.22;
    if (bar == Bar::Schottky) {
        p.drawPolyline(QPolygonF({QPointF(end, -h), QPointF(end + hook, -h), QPointF(end + hook, -h + hook)}));
        p.drawPolyline(QPolygonF({QPointF(end, h), QPointF(end - hook, h), QPointF(end - hook, h - hook)}));
    } else if (bar == Bar::Zener) {
        p.drawLine(QPointF(end, -h), QPointF(end + hook, -h - hook));
        p.drawLine(QPointF(end, h), QPointF(end - hook, h + hook));
    }
    p.restore();
}

void dot(QPainter& p, QPointF at)
{
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(kInk);
    p.drawEllipse(at, 2.2, 2.2);
    p.restore();
}

void single(QPainter& p, int size, Bar bar)
{
    scaleTo(p, size);
    diode(p, QPointF(4, 32), QPointF(60, 32), bar, 20);
}

void parallel(QPainter& p, int size, Bar bar)
{
    scaleTo(p, size);
    diode(p, QPointF(14, 18), QPointF(50, 18), bar, 16);
    diode(p, QPointF(14, 46), QPointF(50, 46), bar, 16);
    p.setPen(inkPen());
    p.drawLine(QPointF(14, 18), QPointF(14, 46));
    p.drawLine(QPointF(50, 18), QPointF(50, 46));
    p.drawLine(QPointF(2, 32), QPointF(14, 32));
    p.drawLine(QPointF(50, 32), QPointF(62, 32));
    for (QPointF at : {QPointF(14, 32), QPointF(50, 32)})
        dot(p, at);
}

void series(QPainter& p, int size, Bar bar)
{
    scaleTo(p, size);
    diode(p, QPointF(2, 32), QPointF(32, 32), bar, 14);
    diode(p, QPointF(32, 32), QPointF(62, 32), bar, 14);
}

// Four diodes in a diamond: the AC inputs left and right, + on top.
void bridge(QPainter& p, int size, Bar bar)
{
    scaleTo(p, size);
    const QPointF left(8, 32), top(32, 8), right(56, 32), bottom(32, 56);
    diode(p, left, top, bar, 12);
    diode(p, bottom, left, bar, 12);
    diode(p, right, top, bar, 12);
    diode(p, bottom, right, bar, 12);
    for (QPointF at : {left, top, right, bottom})
        dot(p, at);
}

void backToBack(QPainter& p, int size)
{
    scaleTo(p, size);
    // Cathode to cathode: each clamps one polarity.
    diode(p, QPointF(32, 32), QPointF(2, 32), Bar::Zener, 14);
    diode(p, QPointF(32, 32), QPointF(62, 32), Bar::Zener, 14);
}

// A mouse pointer at (x, y), pointing up and left.
void pointer(QPainter& p, QPointF at)
{
    p.save();
    p.translate(at);
    p.setPen(QPen(kInk, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::white);
    p.drawPolygon(QPolygonF({QPointF(0, 0), QPointF(0, 20), QPointF(5, 15), QPointF(9, 24),
                             QPointF(12, 22.5), QPointF(8, 14), QPointF(15, 14)}));
    p.restore();
}

// A combo box with its drop-down arrow, and the pointer on the arrow.
void comboCursor(QPainter& p, int size)
{
    scaleTo(p, size);
    p.setPen(inkPen(1.6));
    p.setBrush(Qt::white);
    p.drawRoundedRect(QRectF(3, 16, 58, 20), 3, 3);
    p.drawLine(QPointF(45, 16), QPointF(45, 36));
    p.setBrush(kInk);
    p.drawPolygon(QPolygonF({QPointF(49, 23), QPointF(57, 23), QPointF(53, 29)}));
    p.setPen(QPen(kInk, 2, Qt::SolidLine, Qt::RoundCap));
    for (qreal y : {22.0, 30.0})
        p.drawLine(QPointF(8, y), QPointF(36 - (y - 22) * 1.5, y));
    pointer(p, QPointF(50, 28));
}

// A push button reading "...", and the pointer on it.
void selectCursor(QPainter& p, int size)
{
    scaleTo(p, size);
    p.setPen(inkPen(1.6));
    p.setBrush(kFill);
    p.drawRoundedRect(QRectF(8, 14, 48, 24), 4, 4);
    p.setPen(Qt::NoPen);
    p.setBrush(kInk);
    for (qreal x : {24.0, 32.0, 40.0})
        p.drawEllipse(QPointF(x, 26), 2.4, 2.4);
    pointer(p, QPointF(38, 30));
}

} // namespace

const std::vector<BlockPicture>& deviceConfigurationPictures()
{
    static const std::vector<BlockPicture> pictures{
        {"single_1p0.png", 48, [](QPainter& p, int s) { single(p, s, Bar::Plain); }},
        {"parallel_1p0.png", 48, [](QPainter& p, int s) { parallel(p, s, Bar::Plain); }},
        {"series_1p0.png", 48, [](QPainter& p, int s) { series(p, s, Bar::Plain); }},
        {"bridge_1p0.png", 48, [](QPainter& p, int s) { bridge(p, s, Bar::Plain); }},
        {"schottky_1p0.png", 48, [](QPainter& p, int s) { single(p, s, Bar::Schottky); }},
        {"schottky_parallel_1p0.png", 48, [](QPainter& p, int s) { parallel(p, s, Bar::Schottky); }},
        {"schottky_series_1p0.png", 48, [](QPainter& p, int s) { series(p, s, Bar::Schottky); }},
        {"schottky_bridge_1p0.png", 48, [](QPainter& p, int s) { bridge(p, s, Bar::Schottky); }},
        {"zener_1p0.png", 48, [](QPainter& p, int s) { single(p, s, Bar::Zener); }},
        {"zener_dual_clamp_1p0.png", 48, backToBack},
        {"combo_box_mouse_cursor_transparent.png", 64, comboCursor},
        {"select_button_mouse_cursor_transparent.png", 64, selectCursor},
    };
    return pictures;
}
