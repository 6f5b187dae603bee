// Pictures of the LoopForge blocks: the block symbol with its inputs on the
// left and its output on the right, drawn from strokes only (no fonts), so
// that an adder shows its sum sign and a multiplexer its inputs on any
// machine.
#include "blockimages.h"

#include <QPainterPath>
#include <QPolygonF>
#include <QtMath>

namespace {

const QColor kInk(35, 45, 60);
const QColor kFill(232, 239, 250);
const QColor kAccent(25, 95, 190);

// All pictures are drawn on a 64 unit square and scaled to the canvas.
void scaleTo(QPainter& p, int size)
{
    p.scale(size / 64.0, size / 64.0);
}

QPen inkPen(qreal width = 2.4)
{
    return QPen(kInk, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

QPen accentPen(qreal width = 3.0)
{
    return QPen(kAccent, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void arrowHead(QPainter& p, QPointF tip)
{
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(kInk);
    p.drawPolygon(QPolygonF({tip, tip + QPointF(-6, -3.5), tip + QPointF(-6, 3.5)}));
    p.restore();
}

// A signal line from x0 to x1 at y, with an arrow head at x1.
void wire(QPainter& p, qreal x0, qreal x1, qreal y)
{
    p.setPen(inkPen(2.0));
    p.drawLine(QPointF(x0, y), QPointF(x1 - 4, y));
    arrowHead(p, QPointF(x1, y));
}

void box(QPainter& p, const QRectF& r)
{
    p.setPen(inkPen());
    p.setBrush(kFill);
    p.drawRoundedRect(r, 4, 4);
}

void junction(QPainter& p, QPointF c, qreal r)
{
    p.setPen(inkPen());
    p.setBrush(kFill);
    p.drawEllipse(c, r, r);
}

void strokes(QPainter& p, const QPolygonF& line, const QPen& pen)
{
    p.setPen(pen);
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(line);
}

void sigma(QPainter& p, QPointF c, qreal h)
{
    const qreal w = h * 0.75;
    strokes(p,
            QPolygonF({c + QPointF(w / 2, -h / 2), c + QPointF(-w / 2, -h / 2), c + QPointF(w * 0.1, 0),
                       c + QPointF(-w / 2, h / 2), c + QPointF(w / 2, h / 2)}),
            accentPen());
}

void plus(QPainter& p, QPointF c, qreal r, const QPen& pen)
{
    p.setPen(pen);
    p.drawLine(c + QPointF(-r, 0), c + QPointF(r, 0));
    p.drawLine(c + QPointF(0, -r), c + QPointF(0, r));
}

void minus(QPainter& p, QPointF c, qreal r, const QPen& pen)
{
    p.setPen(pen);
    p.drawLine(c + QPointF(-r, 0), c + QPointF(r, 0));
}

void times(QPainter& p, QPointF c, qreal r)
{
    p.setPen(accentPen());
    p.drawLine(c + QPointF(-r, -r), c + QPointF(r, r));
    p.drawLine(c + QPointF(-r, r), c + QPointF(r, -r));
}

void divide(QPainter& p, QPointF c, qreal r)
{
    minus(p, c, r, accentPen());
    p.setPen(Qt::NoPen);
    p.setBrush(kAccent);
    p.drawEllipse(c + QPointF(0, -r * 0.65), 2.2, 2.2);
    p.drawEllipse(c + QPointF(0, r * 0.65), 2.2, 2.2);
}

void slash(QPainter& p, QPointF c, qreal r)
{
    p.setPen(accentPen());
    p.drawLine(c + QPointF(r * 0.6, -r), c + QPointF(-r * 0.6, r));
}

void pi(QPainter& p, QPointF c, qreal r)
{
    p.setPen(accentPen());
    p.drawLine(c + QPointF(-r, -r * 0.8), c + QPointF(r, -r * 0.8));
    p.drawLine(c + QPointF(-r * 0.5, -r * 0.8), c + QPointF(-r * 0.5, r));
    p.drawLine(c + QPointF(r * 0.5, -r * 0.8), c + QPointF(r * 0.5, r));
}

// Two inputs and one output around a circle at the centre.
void junctionBlock(QPainter& p)
{
    wire(p, 2, 21, 20);
    wire(p, 2, 21, 44);
    wire(p, 46, 62, 32);
    junction(p, QPointF(32, 32), 14);
}

// Two inputs and one output around a box.
void boxBlock(QPainter& p, int inputs = 2)
{
    for (int i = 0; i < inputs; ++i)
        wire(p, 2, 16, inputs == 1 ? 32 : 20 + 24.0 * i / (inputs - 1));
    wire(p, 48, 62, 32);
    box(p, QRectF(16, 10, 32, 44));
}

// The signs of a subtraction beside its two inputs.
void inputSigns(QPainter& p, qreal x)
{
    plus(p, QPointF(x, 12), 3.5, inkPen(1.8));
    minus(p, QPointF(x, 52), 3.5, inkPen(1.8));
}

void adder(QPainter& p, int variant)
{
    switch (variant) {
    case 0:
        junctionBlock(p);
        sigma(p, QPointF(32, 32), 14);
        break;
    case 1:
        junctionBlock(p);
        plus(p, QPointF(32, 32), 8, accentPen());
        break;
    default:
        boxBlock(p);
        sigma(p, QPointF(32, 32), 18);
        break;
    }
}

void subtractor(QPainter& p, int variant)
{
    switch (variant) {
    case 0:
        junctionBlock(p);
        sigma(p, QPointF(32, 32), 14);
        inputSigns(p, 10);
        break;
    case 1:
        junctionBlock(p);
        minus(p, QPointF(32, 32), 8, accentPen());
        inputSigns(p, 10);
        break;
    case 2:
        boxBlock(p);
        sigma(p, QPointF(32, 32), 18);
        inputSigns(p, 8);
        break;
    default:
        boxBlock(p);
        minus(p, QPointF(32, 32), 9, accentPen());
        break;
    }
}

void multiplier(QPainter& p, int variant)
{
    switch (variant) {
    case 0:
        junctionBlock(p);
        times(p, QPointF(32, 32), 6.5);
        break;
    case 1:
        junctionBlock(p);
        pi(p, QPointF(32, 32), 7);
        break;
    default:
        boxBlock(p);
        times(p, QPointF(32, 32), 9);
        break;
    }
}

void divider(QPainter& p, int variant)
{
    switch (variant) {
    case 0:
        junctionBlock(p);
        divide(p, QPointF(32, 32), 8);
        break;
    case 1:
        boxBlock(p);
        divide(p, QPointF(32, 32), 10);
        break;
    case 2:
        junctionBlock(p);
        slash(p, QPointF(32, 32), 8);
        break;
    default:
        boxBlock(p);
        slash(p, QPointF(32, 32), 11);
        break;
    }
}

// A clock input: the small triangle inside the box edge.
void clockNotch(QPainter& p, qreal x, qreal y)
{
    strokes(p, QPolygonF({QPointF(x, y - 5), QPointF(x + 7, y), QPointF(x, y + 5)}), inkPen(1.8));
}

void dataRegister(QPainter& p)
{
    boxBlock(p);
    clockNotch(p, 16, 44);
    // D at the data input, Q at the output, as strokes.
    p.setPen(accentPen(2.2));
    p.setBrush(Qt::NoBrush);
    p.drawLine(QPointF(21, 15), QPointF(21, 25));
    p.drawArc(QRectF(15, 15, 12, 10), -90 * 16, 180 * 16);
    p.drawEllipse(QRectF(35, 26, 9, 12));
    p.drawLine(QPointF(41, 35), QPointF(45, 40));
}

void unitDelay(QPainter& p)
{
    boxBlock(p, 1);
    // z^-1
    strokes(p, QPolygonF({QPointF(21, 28), QPointF(31, 28), QPointF(21, 41), QPointF(31, 41)}),
            accentPen());
    minus(p, QPointF(36.5, 22), 2.5, accentPen(2.2));
    strokes(p, QPolygonF({QPointF(41, 19), QPointF(43, 17), QPointF(43, 27)}), accentPen(2.2));
}

void limiter(QPainter& p)
{
    boxBlock(p, 1);
    strokes(p, QPolygonF({QPointF(20, 44), QPointF(27, 44), QPointF(37, 20), QPointF(44, 20)}),
            accentPen());
}

// A multiplexer: a trapezoid with its data inputs, its output and the
// select line from below.
void mux(QPainter& p, int inputs)
{
    const qreal top = 8, bottom = 56;
    for (int i = 0; i < inputs; ++i) {
        const qreal y = top + 8 + (bottom - top - 16) * i / (inputs - 1);
        wire(p, 2, 20, y);
    }
    wire(p, 44, 62, 32);
    p.setPen(inkPen(2.0));
    p.drawLine(QPointF(32, 63), QPointF(32, 52));
    p.setPen(inkPen());
    p.setBrush(kFill);
    p.drawPolygon(QPolygonF({QPointF(20, top), QPointF(44, top + 10), QPointF(44, bottom - 10),
                             QPointF(20, bottom)}));
    // Numbered inputs as tick marks: one, two, three, four short strokes.
    p.setPen(inkPen(1.4));
    for (int i = 0; i < inputs; ++i) {
        const qreal y = top + 8 + (bottom - top - 16) * i / (inputs - 1);
        for (int k = 0; k <= i; ++k)
            p.drawLine(QPointF(24 + 3 * k, y - 3), QPointF(24 + 3 * k, y + 3));
    }
}

QPolygonF sine(QRectF r)
{
    QPolygonF out;
    for (int i = 0; i <= 24; ++i) {
        const qreal t = i / 24.0;
        out << QPointF(r.left() + r.width() * t, r.center().y() - r.height() / 2 * qSin(2 * M_PI * t));
    }
    return out;
}

QPolygonF staircase(QRectF r, int steps)
{
    QPolygonF out;
    for (int i = 0; i < steps; ++i) {
        const qreal x0 = r.left() + r.width() * i / steps;
        const qreal x1 = r.left() + r.width() * (i + 1) / steps;
        const qreal y = r.bottom() - r.height() * (i + 1) / steps;
        out << QPointF(x0, y) << QPointF(x1, y);
    }
    return out;
}

void converter(QPainter& p, bool toDigital)
{
    boxBlock(p, 1);
    p.setPen(inkPen(1.4));
    p.drawLine(QPointF(16, 54), QPointF(48, 10));
    const QRectF upper(19, 14, 16, 14), lower(30, 36, 15, 14);
    strokes(p, toDigital ? sine(upper) : staircase(upper, 4), accentPen(2.0));
    strokes(p, toDigital ? staircase(lower, 4) : sine(lower), accentPen(2.0));
}

void shifter(QPainter& p, bool left)
{
    boxBlock(p, 1);
    const qreal d = left ? -1 : 1;
    for (int k = 0; k < 2; ++k) {
        const qreal x = 32 + d * (k * 9 - 4.5);
        strokes(p, QPolygonF({QPointF(x - d * 6, 22), QPointF(x + d * 3, 32), QPointF(x - d * 6, 42)}),
                accentPen());
    }
}

void gain(QPainter& p)
{
    wire(p, 2, 14, 32);
    wire(p, 50, 62, 32);
    p.setPen(inkPen());
    p.setBrush(kFill);
    p.drawPolygon(QPolygonF({QPointF(14, 10), QPointF(50, 32), QPointF(14, 54)}));
    // K, the factor
    p.setPen(accentPen(2.2));
    p.drawLine(QPointF(21, 25), QPointF(21, 39));
    p.drawLine(QPointF(30, 25), QPointF(22, 32));
    p.drawLine(QPointF(24, 30.5), QPointF(30, 39));
}

void clockBreakout(QPainter& p)
{
    box(p, QRectF(4, 16, 30, 32));
    strokes(p, QPolygonF({QPointF(8, 40), QPointF(13, 40), QPointF(13, 24), QPointF(20, 24),
                          QPointF(20, 40), QPointF(27, 40), QPointF(27, 24), QPointF(31, 24)}),
            accentPen(2.2));
    // One clock out to several blocks.
    p.setPen(inkPen(2.0));
    p.drawLine(QPointF(34, 32), QPointF(42, 32));
    p.drawLine(QPointF(42, 14), QPointF(42, 50));
    for (qreal y : {14.0, 32.0, 50.0})
        wire(p, 42, 62, y);
}

void constant(QPainter& p)
{
    wire(p, 48, 62, 32);
    box(p, QRectF(12, 12, 36, 40));
    // K
    p.setPen(accentPen());
    p.drawLine(QPointF(24, 21), QPointF(24, 43));
    p.drawLine(QPointF(37, 21), QPointF(25, 33));
    p.drawLine(QPointF(29, 29), QPointF(37, 43));
}

void pwm(QPainter& p)
{
    wire(p, 2, 12, 32);
    wire(p, 52, 62, 24);
    wire(p, 52, 62, 40);
    box(p, QRectF(12, 8, 40, 48));
    // The carrier above, the pulses it makes below.
    strokes(p, QPolygonF({QPointF(16, 28), QPointF(22, 14), QPointF(28, 28), QPointF(34, 14),
                          QPointF(40, 28), QPointF(46, 14), QPointF(48, 18)}),
            inkPen(1.6));
    strokes(p, QPolygonF({QPointF(16, 48), QPointF(19, 48), QPointF(19, 36), QPointF(25, 36),
                          QPointF(25, 48), QPointF(30, 48), QPointF(30, 36), QPointF(38, 36),
                          QPointF(38, 48), QPointF(41, 48), QPointF(41, 36), QPointF(47, 36),
                          QPointF(47, 48), QPointF(48, 48)}),
            accentPen(2.2));
}

template <void (*Draw)(QPainter&, int), int Variant>
void variantOf(QPainter& p, int size)
{
    scaleTo(p, size);
    Draw(p, Variant);
}

template <void (*Draw)(QPainter&)>
void plainOf(QPainter& p, int size)
{
    scaleTo(p, size);
    Draw(p);
}

void shiftLeft(QPainter& p)
{
    shifter(p, true);
}
void shiftRight(QPainter& p)
{
    shifter(p, false);
}
void adc(QPainter& p)
{
    converter(p, true);
}
void dac(QPainter& p)
{
    converter(p, false);
}
void mux2(QPainter& p)
{
    mux(p, 2);
}
void mux3(QPainter& p)
{
    mux(p, 3);
}
void mux4(QPainter& p)
{
    mux(p, 4);
}

} // namespace

const std::vector<BlockPicture>& loopForgeBlockPictures()
{
    static const std::vector<BlockPicture> pictures = {
        {"adder_32_0.png", 64, variantOf<adder, 0>},
        {"adder_32_1.png", 64, variantOf<adder, 1>},
        {"adder_32_2.png", 64, variantOf<adder, 2>},
        {"subtractor_32_0.png", 64, variantOf<subtractor, 0>},
        {"subtractor_32_1.png", 64, variantOf<subtractor, 1>},
        {"subtractor_32_2.png", 64, variantOf<subtractor, 2>},
        {"subtractor_32_3.png", 64, variantOf<subtractor, 3>},
        {"multiplier_32_0.png", 64, variantOf<multiplier, 0>},
        {"multiplier_32_1.png", 64, variantOf<multiplier, 1>},
        {"multiplier_32_2.png", 64, variantOf<multiplier, 2>},
        {"divider_32_0.png", 64, variantOf<divider, 0>},
        {"divider_32_1.png", 64, variantOf<divider, 1>},
        {"divider_32_2.png", 64, variantOf<divider, 2>},
        {"divider_32_3.png", 64, variantOf<divider, 3>},
        {"data_reg_32.png", 64, plainOf<dataRegister>},
        {"unit_delay_32.png", 64, plainOf<unitDelay>},
        {"limiter_32.png", 64, plainOf<limiter>},
        {"mux_32_x_2.png", 64, plainOf<mux2>},
        {"mux_32_x_3.png", 64, plainOf<mux3>},
        {"mux_32_x_4.png", 64, plainOf<mux4>},
        {"adc_32.png", 64, plainOf<adc>},
        {"dac_32.png", 64, plainOf<dac>},
        {"shift_left_32.png", 64, plainOf<shiftLeft>},
        {"shift_right_32.png", 64, plainOf<shiftRight>},
        {"gain_32.png", 64, plainOf<gain>},
        {"global_clock_breakout.png", 64, plainOf<clockBreakout>},
        {"constant_32.png", 64, plainOf<constant>},
        {"epwm_beta1.png", 64, plainOf<pwm>},
    };
    return pictures;
}
