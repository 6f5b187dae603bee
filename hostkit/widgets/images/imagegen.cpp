// Draws the library's image resources into the directory given as the only
// argument. Shapes only, no fonts, so the pictures don't depend on the
// machine that draws them.
#include "blockimages.h"
#include "deviceimages.h"

#include <QColor>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QtMath>

#include <cstdio>
#include <functional>
#include <iterator>
#include <vector>

namespace {

QColor ink()
{
    return QColor(40, 40, 40);
}

QImage canvas(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void setUp(QPainter& p)
{
    p.setRenderHint(QPainter::Antialiasing, true);
}

// A filled triangle pointing up or down, for the spin buttons.
void drawArrow(QPainter& p, int size, bool up)
{
    const qreal s = size;
    const qreal tip = up ? 0.25 : 0.75;
    const qreal base = up ? 0.72 : 0.28;
    p.setPen(Qt::NoPen);
    p.setBrush(ink());
    p.drawPolygon(QPolygonF({QPointF(s * 0.5, s * tip), QPointF(s * 0.88, s * base),
                             QPointF(s * 0.12, s * base)}));
}

// A logic edge: low, a vertical transition with an arrow head, high. On
// whole pixels so that the 16 pixel picture stays crisp.
void drawEdge(QPainter& p, int size, bool rising)
{
    const qreal s = size;
    const QColor blue(20, 90, 200);
    const qreal low = qRound(s * 0.81), high = qRound(s * 0.19), mid = qRound(s * 0.5);
    QPen pen(blue, 2.0);
    pen.setJoinStyle(Qt::MiterJoin);
    pen.setCapStyle(Qt::FlatCap);
    p.setPen(pen);
    p.setBrush(Qt::NoBrush);
    const qreal before = rising ? low : high;
    const qreal after = rising ? high : low;
    p.drawPolyline(QPolygonF({QPointF(0, before), QPointF(mid, before), QPointF(mid, after),
                              QPointF(s, after)}));
    p.setPen(Qt::NoPen);
    p.setBrush(blue);
    const qreal tip = rising ? s * 0.28 : s * 0.72;
    const qreal base = rising ? s * 0.56 : s * 0.44;
    p.drawPolygon(QPolygonF({QPointF(mid, tip), QPointF(mid - s * 0.25, base),
                             QPointF(mid + s * 0.25, base)}));
}

void drawStop(QPainter& p, int size)
{
    const qreal s = size;
    const qreal r = s * 0.46;
    QPolygonF octagon;
    for (int i = 0; i < 8; ++i) {
        const qreal angle = qDegreesToRadians(22.5 + 45.0 * i);
        octagon << QPointF(s * 0.5 + r * qCos(angle), s * 0.5 + r * qSin(angle));
    }
    p.setPen(QPen(QColor(130, 0, 0), 1.0));
    p.setBrush(QColor(210, 30, 30));
    p.drawPolygon(octagon);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawRoundedRect(QRectF(s * 0.22, s * 0.42, s * 0.56, s * 0.16), s * 0.03, s * 0.03);
}

// A gear: a toothed wheel with a hole.
void drawOptions(QPainter& p, int size)
{
    const qreal s = size;
    const QPointF c(s * 0.5, s * 0.5);
    const int teeth = 8;
    const qreal outer = s * 0.46, inner = s * 0.34;
    QPainterPath gear;
    for (int i = 0; i < teeth * 4; ++i) {
        const qreal angle = qDegreesToRadians(360.0 * i / (teeth * 4));
        const qreal radius = (i % 4 == 1 || i % 4 == 2) ? outer : inner;
        const QPointF point(c.x() + radius * qCos(angle), c.y() + radius * qSin(angle));
        if (i == 0)
            gear.moveTo(point);
        else
            gear.lineTo(point);
    }
    gear.closeSubpath();
    gear.addEllipse(c, s * 0.13, s * 0.13);
    gear.setFillRule(Qt::OddEvenFill);
    p.setPen(QPen(QColor(60, 60, 70), 1.0));
    p.setBrush(QColor(150, 155, 165));
    p.drawPath(gear);
}

// Message box pictures, 32 pixels as Qt's own.
void drawWarning(QPainter& p, int size)
{
    const qreal s = size;
    p.setPen(QPen(QColor(150, 100, 0), 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(QColor(250, 200, 40));
    p.drawPolygon(QPolygonF({QPointF(s * 0.5, s * 0.06), QPointF(s * 0.96, s * 0.9),
                             QPointF(s * 0.04, s * 0.9)}));
    p.setPen(Qt::NoPen);
    p.setBrush(ink());
    QPolygonF bar({QPointF(s * 0.45, s * 0.32), QPointF(s * 0.55, s * 0.32), QPointF(s * 0.53, s * 0.64),
                   QPointF(s * 0.47, s * 0.64)});
    p.drawPolygon(bar);
    p.drawEllipse(QPointF(s * 0.5, s * 0.76), s * 0.055, s * 0.055);
}

void drawDisc(QPainter& p, int size, const QColor& fill, const QColor& rim)
{
    const qreal s = size;
    p.setPen(QPen(rim, 1.2));
    p.setBrush(fill);
    p.drawEllipse(QPointF(s * 0.5, s * 0.5), s * 0.45, s * 0.45);
}

void drawQuestion(QPainter& p, int size)
{
    const qreal s = size;
    drawDisc(p, size, QColor(60, 120, 210), QColor(30, 70, 150));
    QPen pen(Qt::white, s * 0.11, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    p.setPen(pen);
    p.setBrush(Qt::NoBrush);
    QPainterPath hook;
    const QRectF arc(s * 0.35, s * 0.2, s * 0.3, s * 0.28);
    hook.arcMoveTo(arc, 160);
    hook.arcTo(arc, 160, -250);
    hook.lineTo(s * 0.5, s * 0.58);
    p.drawPath(hook);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(s * 0.5, s * 0.76), s * 0.065, s * 0.065);
}

void drawInfo(QPainter& p, int size)
{
    const qreal s = size;
    drawDisc(p, size, QColor(60, 120, 210), QColor(30, 70, 150));
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(s * 0.5, s * 0.27), s * 0.07, s * 0.07);
    p.drawRoundedRect(QRectF(s * 0.44, s * 0.42, s * 0.12, s * 0.38), s * 0.03, s * 0.03);
}

// A filled arrow pointing right, for "this becomes that".
void drawRightArrow(QPainter& p, int size)
{
    const qreal s = size;
    p.setPen(Qt::NoPen);
    p.setBrush(ink());
    p.drawPolygon(QPolygonF({QPointF(s * 0.1, s * 0.4), QPointF(s * 0.52, s * 0.4), QPointF(s * 0.52, s * 0.18),
                             QPointF(s * 0.92, s * 0.5), QPointF(s * 0.52, s * 0.82), QPointF(s * 0.52, s * 0.6),
                             QPointF(s * 0.1, s * 0.6)}));
}

// A comparator with hysteresis: a triangle input crossing the upper and the
// lower threshold (dashed, TH above TL by the hysteresis), and the output
// that switches at the upper threshold going up and the lower going down.
void drawThresholdHysteresis(QPainter& p, int width, int height)
{
    const qreal w = width, h = height;
    const qreal top = h * 0.08, bottom = h * 0.56;        // input panel
    const qreal outHigh = h * 0.66, outLow = h * 0.92;    // output panel
    const qreal th = top + (bottom - top) * 0.35, tl = top + (bottom - top) * 0.65;
    p.fillRect(QRectF(0, 0, w, h), Qt::white);
    p.setPen(QPen(QColor(150, 150, 150), 1.0, Qt::DashLine));
    p.drawLine(QPointF(0, th), QPointF(w, th));
    p.drawLine(QPointF(0, tl), QPointF(w, tl));
    // Input: up from bottom to top over the first half, down again after.
    const qreal x0 = w * 0.04, xm = w * 0.5, x1 = w * 0.96;
    p.setPen(QPen(QColor(20, 90, 200), 2.0));
    p.drawPolyline(QPolygonF({QPointF(x0, bottom), QPointF(xm, top), QPointF(x1, bottom)}));
    const qreal riseAt = x0 + (xm - x0) * (bottom - th) / (bottom - top);
    const qreal fallAt = xm + (x1 - xm) * (tl - top) / (bottom - top);
    p.setPen(QPen(QColor(200, 60, 30), 2.0));
    p.drawPolyline(QPolygonF({QPointF(x0, outLow), QPointF(riseAt, outLow), QPointF(riseAt, outHigh),
                              QPointF(fallAt, outHigh), QPointF(fallAt, outLow), QPointF(x1, outLow)}));
    p.setPen(QPen(QColor(120, 120, 120), 1.0, Qt::DotLine));
    p.drawLine(QPointF(riseAt, th), QPointF(riseAt, outHigh));
    p.drawLine(QPointF(fallAt, tl), QPointF(fallAt, outHigh));
}

// A diskette: body, shutter and label, for saving.
void drawSave(QPainter& p, int size)
{
    const qreal s = size;
    p.setPen(QPen(QColor(20, 50, 110), 1.0));
    p.setBrush(QColor(60, 110, 200));
    QPolygonF body({QPointF(s * 0.1, s * 0.1), QPointF(s * 0.78, s * 0.1), QPointF(s * 0.9, s * 0.22),
                    QPointF(s * 0.9, s * 0.9), QPointF(s * 0.1, s * 0.9)});
    p.drawPolygon(body);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(215, 220, 230));
    p.drawRect(QRectF(s * 0.28, s * 0.1, s * 0.44, s * 0.28));
    p.setBrush(QColor(60, 110, 200));
    p.drawRect(QRectF(s * 0.56, s * 0.15, s * 0.1, s * 0.18));
    p.setBrush(Qt::white);
    p.drawRect(QRectF(s * 0.22, s * 0.52, s * 0.56, s * 0.3));
}

// A power probe: a round meter face with a lightning bolt.
void drawPowerProbe(QPainter& p, int size)
{
    const qreal s = size;
    drawDisc(p, size, QColor(250, 245, 225), QColor(120, 90, 20));
    p.setPen(QPen(QColor(120, 70, 0), 0.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(QColor(245, 170, 20));
    p.drawPolygon(QPolygonF({QPointF(s * 0.56, s * 0.12), QPointF(s * 0.3, s * 0.55),
                             QPointF(s * 0.48, s * 0.55), QPointF(s * 0.4, s * 0.88),
                             QPointF(s * 0.72, s * 0.42), QPointF(s * 0.53, s * 0.42)}));
}

struct Picture {
    const char* file;
    int width;
    int height;
    std::function<void(QPainter&, int)> draw; // drawn at the width
};

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: vtimagegen DIRECTORY\n");
        return 2;
    }
    const QString directory = QString::fromLocal8Bit(argv[1]);
    const Picture pictures[] = {
        {"16x16_uparrow_transparent_bg.png", 16, 16, [](QPainter& p, int s) { drawArrow(p, s, true); }},
        {"16x16_downarrow_transparent_bg.png", 16, 16, [](QPainter& p, int s) { drawArrow(p, s, false); }},
        {"16x16_rising_edge_no_frame.png", 16, 16, [](QPainter& p, int s) { drawEdge(p, s, true); }},
        {"16x16_falling_edge_no_frame.png", 16, 16, [](QPainter& p, int s) { drawEdge(p, s, false); }},
        {"stop.png", 32, 32, drawStop},
        {"options.png", 32, 32, drawOptions},
        {"qmessagebox-warn_transparent_bg.png", 32, 32, drawWarning},
        {"qmessagebox-quest_transparent_bg.png", 32, 32, drawQuestion},
        {"qmessagebox-info_transparent_bg.png", 32, 32, drawInfo},
        {"16x16_rightarrow_transparent_bg.png", 16, 16, drawRightArrow},
        {"threshold_hysteresis.png", 160, 100, [](QPainter& p, int) { drawThresholdHysteresis(p, 160, 100); }},
        {"16x16_save_o.png", 16, 16, drawSave},
        {"power_probe_24x24.png", 24, 24, drawPowerProbe},
    };
    int failures = 0;
    std::vector<Picture> all(std::begin(pictures), std::end(pictures));
    for (const BlockPicture& block : loopForgeBlockPictures())
        all.push_back({block.file, block.size, block.size, block.draw});
    for (const BlockPicture& device : deviceConfigurationPictures())
        all.push_back({device.file, device.size, device.size, device.draw});
    for (const Picture& picture : all) {
        QImage image = canvas(picture.width, picture.height);
        {
            QPainter painter(&image);
            setUp(painter);
            picture.draw(painter, picture.width);
        }
        const QString path = directory + QLatin1Char('/') + QString::fromLatin1(picture.file);
        if (!image.save(path, "PNG")) {
            std::fprintf(stderr, "vtimagegen: cannot write %s\n", qPrintable(path));
            ++failures;
        }
    }
    return failures ? 1 : 0;
}
