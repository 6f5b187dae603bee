// The Plotter and its Axis: ticks and labels, log scaling, the column
// reduction of long curves against drawing every point, cursors, the mouse
// and keys, and data no plot can show.
#include "hostwidgets.h"

#include <QImage>
#include <QPicture>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

Q_DECLARE_METATYPE(std::vector<double>)
Q_DECLARE_METATYPE(Axis)

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

QString joined(const std::vector<double>& values, const Axis& axis)
{
    QStringList out;
    for (double v : values)
        out << axis.label(v);
    return out.join(QLatin1Char(' '));
}

// A plotter of a fixed size, painted into an image.
QImage picture(Plotter& plotter)
{
    QImage image(plotter.size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    plotter.render(&image);
    return image;
}

// Pixels that differ, and the largest difference of one colour channel.
struct Difference {
    int pixels = 0;
    int largest = 0;
};

Difference compare(const QImage& a, const QImage& b)
{
    Difference d;
    for (int y = 0; y < a.height(); ++y) {
        const auto* pa = reinterpret_cast<const QRgb*>(a.constScanLine(y));
        const auto* pb = reinterpret_cast<const QRgb*>(b.constScanLine(y));
        for (int x = 0; x < a.width(); ++x) {
            if (pa[x] == pb[x])
                continue;
            ++d.pixels;
            d.largest = std::max({d.largest, std::abs(qRed(pa[x]) - qRed(pb[x])),
                                  std::abs(qGreen(pa[x]) - qGreen(pb[x])),
                                  std::abs(qBlue(pa[x]) - qBlue(pb[x]))});
        }
    }
    return d;
}

// A noisy signal of n points over 0..1 with the shapes decimation must
// keep: spikes, gaps, values off the graph, and unless sorted, a stretch
// going backwards.
std::vector<double> roughCurve(int n, bool sorted = false)
{
    std::mt19937 random(7);
    std::normal_distribution<double> noise(0.0, 0.05);
    std::vector<double> d;
    d.reserve(std::size_t(2 * n));
    for (int i = 0; i < n; ++i) {
        double x = double(i) / n;
        double y = std::sin(40 * x) * 0.6 + noise(random);
        if (i % 9973 == 0)
            y = 3.0; // a spike above the graph
        if (i > n / 3 && i < n / 3 + 50)
            y = kNaN; // a gap
        if (std::abs(i - 2 * n / 3) < 1000) // a step with a gap: no line joins the two sides
            y = i < 2 * n / 3 ? -0.8 : i < 2 * n / 3 + 10 ? kNaN : 0.8;
        if (!sorted && i > n / 2 && i < n / 2 + 2000)
            x = 0.5 - (i - n / 2) * 1e-5; // going back
        d.push_back(x);
        d.push_back(y);
    }
    return d;
}

// The mouse with the left button held, as a drag sends it.
void dragTo(QWidget* w, QPointF to)
{
    QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(w, &move);
}

// Pixels where a shows the curve (differs from blank) but b has no curve
// pixel within one pixel of it.
int strayInk(const QImage& a, const QImage& b, const QImage& blank)
{
    int stray = 0;
    for (int y = 1; y + 1 < a.height(); ++y) {
        for (int x = 1; x + 1 < a.width(); ++x) {
            if (a.pixel(x, y) == blank.pixel(x, y))
                continue;
            bool near = false;
            for (int dy = -1; dy <= 1 && !near; ++dy)
                for (int dx = -1; dx <= 1 && !near; ++dx)
                    near = b.pixel(x + dx, y + dy) != blank.pixel(x + dx, y + dy);
            stray += !near;
        }
    }
    return stray;
}

} // namespace

class TestPlotter : public QObject {
    Q_OBJECT

private slots:
    void ticks_data();
    void ticks();
    void labels_data();
    void labels();
    void limitsMadeDrawable_data();
    void limitsMadeDrawable();
    void logScaling();
    void decimationKeepsThePicture_data();
    void decimationKeepsThePicture();
    void decimationBoundsItsWork();
    void badCurves_data();
    void badCurves();
    void curvesReplaceAndClear();
    void cursorPlacement();
    void cursorDrag();
    void zoomPanReset();
};

void TestPlotter::ticks_data()
{
    QTest::addColumn<Axis>("axis");
    QTest::addColumn<double>("length");
    QTest::addColumn<QString>("major");
    QTest::addColumn<QString>("minor");

    QTest::newRow("bode gain") << Axis(-60, 20, 3, 0, 0, 0) << 150.0 << "-60 -40 -20 0 20" << "";
    QTest::newRow("bode frequency") << Axis(10, 10000, 2, 4, 1, 0) << 300.0 << "10 100 1k 10k"
                                    << "20 40 60 80 200 400 600 800 2k 4k 6k 8k";
    QTest::newRow("linear minor") << Axis(0, 1, 3, 1, 0, 0) << 100.0 << "0 500m 1"
                                  << "250m 750m";
    QTest::newRow("crowded decades") << Axis(1e-3, 1e9, 3, 8, 1, 0) << 150.0
                                     << "1m 1 1k 1M 1G" << "";
    QTest::newRow("not on a step") << Axis(0.13, 0.87, 3, 0, 0, 0) << 200.0
                                   << "200m 400m 600m 800m" << "";
    QTest::newRow("no room") << Axis(0, 100, 3, 0, 0, 0) << 5.0 << "0 100" << "";
    QTest::newRow("no length") << Axis(0, 100, 3, 0, 0, 0) << 0.0 << "" << "";
    QTest::newRow("huge range") << Axis(-1e308, 1e308, 3, 20, 0, 0) << 1e9 << "" << "";
}

void TestPlotter::ticks()
{
    QFETCH(Axis, axis);
    QFETCH(double, length);
    QFETCH(QString, major);
    QFETCH(QString, minor);
    const std::vector<double> majors = axis.majorTicks(length, 30);
    if (QByteArray(QTest::currentDataTag()) == "huge range") {
        QVERIFY(majors.size() <= 1001);
        QVERIFY(axis.minorTickValues(length, 30).size() <= 30000);
        return;
    }
    QCOMPARE(joined(majors, axis), major);
    QCOMPARE(joined(axis.minorTickValues(length, 30), axis), minor);
}

void TestPlotter::labels_data()
{
    QTest::addColumn<unsigned>("precision");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("label");

    QTest::newRow("kilo") << 3u << 1000.0 << "1k";
    QTest::newRow("carries into kilo") << 3u << 999.96 << "1k";
    QTest::newRow("milli") << 3u << 0.0015 << "1.5m";
    QTest::newRow("micro") << 2u << 2.2e-6 << "2.2u";
    QTest::newRow("rounded") << 2u << 4.76e3 << "4.8k";
    QTest::newRow("negative") << 3u << -60.0 << "-60";
    QTest::newRow("zero") << 3u << 0.0 << "0";
    QTest::newRow("default digits") << 0u << 1234.5 << "1.23k";
    QTest::newRow("tera") << 3u << 5e12 << "5T";
    QTest::newRow("beyond tera") << 3u << 1e20 << "1e+20";
    QTest::newRow("below femto") << 3u << 1e-20 << "1e-20";
    QTest::newRow("hundred, two digits") << 2u << 100.0 << "100";
    QTest::newRow("tenth") << 3u << 0.1 << "100m";
    QTest::newRow("not a number") << 3u << kNaN << "nan";
}

void TestPlotter::labels()
{
    QFETCH(unsigned, precision);
    QFETCH(double, value);
    QFETCH(QString, label);
    QCOMPARE(Axis(0, 1, precision, 0, 0, 0).label(value), label);
}

void TestPlotter::limitsMadeDrawable_data()
{
    QTest::addColumn<double>("low");
    QTest::addColumn<double>("high");
    QTest::addColumn<unsigned>("log");
    QTest::addColumn<double>("wantLow");
    QTest::addColumn<double>("wantHigh");
    QTest::addColumn<bool>("wantLog");

    QTest::newRow("wrong order") << 20.0 << -60.0 << 0u << -60.0 << 20.0 << false;
    QTest::newRow("one value") << 5.0 << 5.0 << 0u << 4.5 << 5.5 << false;
    QTest::newRow("zero") << 0.0 << 0.0 << 0u << -1.0 << 1.0 << false;
    QTest::newRow("not finite") << kNaN << kInf << 0u << 0.0 << 1.0 << false;
    QTest::newRow("log from zero") << 0.0 << 1000.0 << 1u << 1.0 << 1000.0 << true;
    QTest::newRow("log negative low") << -5.0 << 10.0 << 1u << 0.01 << 10.0 << true;
    QTest::newRow("log all negative") << -5.0 << -1.0 << 1u << -5.0 << -1.0 << false;
    QTest::newRow("log one value") << 10.0 << 10.0 << 1u << 1.0 << 100.0 << true;
    QTest::newRow("log not finite") << kNaN << 1.0 << 1u << 1.0 << 10.0 << true;
}

void TestPlotter::limitsMadeDrawable()
{
    QFETCH(double, low);
    QFETCH(double, high);
    QFETCH(unsigned, log);
    QFETCH(double, wantLow);
    QFETCH(double, wantHigh);
    QFETCH(bool, wantLog);
    const Axis axis(low, high, 3, 0, log, 0);
    QCOMPARE(axis.low(), wantLow);
    QCOMPARE(axis.high(), wantHigh);
    QCOMPARE(axis.isLogarithmic(), wantLog);
}

void TestPlotter::logScaling()
{
    Plotter plotter;
    plotter.resize(400, 200);
    plotter.initializeAxes(Axis(10, 10000, 2, 4, 1, 0), Axis(-60, 20, 3, 0, 0, 0));
    const QRect area = plotter.plotArea();
    QVERIFY(area.width() > 200 && area.height() > 100);
    const double left = plotter.mapToPixel(10, 0).x();
    const double right = plotter.mapToPixel(10000, 0).x();
    QCOMPARE(left, double(area.left()));
    QCOMPARE(right, double(area.left() + area.width() - 1));
    // A decade is a third of the width, whatever the values.
    QCOMPARE(plotter.mapToPixel(100, 0).x() - left, (right - left) / 3);
    QCOMPARE(plotter.mapToPixel(316.2277660168379, 0).x() - left, (right - left) / 2);
    QCOMPARE(plotter.mapToPixel(10, 20).y(), double(area.top()));
    QVERIFY(std::isnan(plotter.mapToPixel(0, 0).x()));
    QVERIFY(std::isnan(plotter.mapToPixel(-10, 0).x()));
}

void TestPlotter::decimationKeepsThePicture_data()
{
    QTest::addColumn<bool>("antialiased");
    QTest::addColumn<double>("width");
    QTest::addColumn<bool>("logX");
    QTest::addColumn<bool>("logY");
    QTest::addColumn<bool>("sorted");

    QTest::newRow("aliased, 1 pixel") << false << 1.0 << false << false << false;
    QTest::newRow("aliased, log x") << false << 1.0 << true << false << false;
    QTest::newRow("aliased, 3 pixels") << false << 3.0 << false << false << false;
    QTest::newRow("antialiased, 2 pixels") << true << 2.0 << false << false << false;
    // Sorted x takes the block summaries, gaps and spikes inside blocks.
    QTest::newRow("sorted, aliased") << false << 1.0 << false << false << true;
    QTest::newRow("sorted, log x") << false << 1.0 << true << false << true;
    QTest::newRow("sorted, log y, values <= 0") << false << 1.0 << false << true << true;
    QTest::newRow("sorted, antialiased") << true << 1.0 << false << false << true;
}

// The reduced drawing against every point drawn at its pixel. Aliased, the
// two are the same pixel for pixel. Antialiased, the rasteriser works out
// the coverage of edge pixels from the outline of the whole stroke, which
// is made of other segments, so edge pixels may be shaded differently:
// allowed are at most 5% of the curve's pixels, and only at its edge, with
// no pixel of curve in one picture that isn't beside curve in the other.
void TestPlotter::decimationKeepsThePicture()
{
    QFETCH(bool, antialiased);
    QFETCH(double, width);
    QFETCH(bool, logX);
    QFETCH(bool, logY);
    QFETCH(bool, sorted);

    std::vector<double> data = roughCurve(300000, sorted);
    for (std::size_t i = 0; i < data.size(); i += 2) {
        if (logX)
            data[i] = std::pow(10.0, 1.0 + 3.0 * data[i]);
        if (logY && !std::isnan(data[i + 1]))
            data[i + 1] = data[i + 1] < -0.5 ? -data[i + 1] - 0.5 : std::pow(10.0, 2 * data[i + 1]);
    }
    Plotter plotter;
    plotter.resize(800, 400);
    plotter.initializeAxes(logX ? Axis(10, 10000, 3, 4, 1, 0) : Axis(0, 1, 3, 4, 0, 0),
                           logY ? Axis(0.01, 100, 3, 0, 1, 0) : Axis(-1, 1, 3, 0, 0, 0));
    plotter.setAntialiasing(antialiased);
    plotter.setCurveData(0, data, QPen(QColor(0, 128, 0), width, Qt::SolidLine, Qt::RoundCap,
                                       Qt::RoundJoin));
    plotter.setDecimation(true);
    const QImage reduced = picture(plotter);
    plotter.setDecimation(false);
    const QImage every = picture(plotter);

    plotter.clearCurveAll();
    const QImage blank = picture(plotter);

    const Difference d = compare(reduced, every);
    const int ink = compare(every, blank).pixels;
    QVERIFY(ink > 1000);
    if (!antialiased) {
        QCOMPARE(d.pixels, 0);
    } else {
        QVERIFY2(d.pixels * 20 <= ink, qPrintable(QStringLiteral("%1 of %2 pixels differ")
                                                      .arg(d.pixels).arg(ink)));
        QCOMPARE(strayInk(reduced, every, blank), 0);
        QCOMPARE(strayInk(every, reduced, blank), 0);
    }
}

// What reaches the paint engine is bounded by the pixel columns: a million
// points record no more drawing than a few thousand, where drawing every
// point records them all.
void TestPlotter::decimationBoundsItsWork()
{
    const auto recorded = [](int points, bool decimation) {
        std::vector<double> data(2 * std::size_t(points));
        for (std::size_t i = 0; i < data.size() / 2; ++i) {
            data[2 * i] = double(i) / points;
            data[2 * i + 1] = std::sin(double(i) * 0.001) * double((i * 7919) % 13) / 13.0;
        }
        Plotter plotter;
        plotter.resize(800, 400);
        plotter.initializeAxes(Axis(0, 1, 3, 0, 0, 0), Axis(-1, 1, 3, 0, 0, 0));
        plotter.setDecimation(decimation);
        plotter.setCurveData(0, data, QPen(Qt::blue, 1));
        QPicture picture;
        plotter.render(&picture);
        return picture.size();
    };
    const uint few = recorded(4000, true);
    const uint many = recorded(1'000'000, true);
    QVERIFY2(many < few * 3 / 2, qPrintable(QStringLiteral("%1 bytes against %2").arg(many).arg(few)));
    QVERIFY(recorded(1'000'000, false) > 10 * many);
}

void TestPlotter::badCurves_data()
{
    QTest::addColumn<std::vector<double>>("data");
    QTest::addColumn<bool>("drawn");

    QTest::newRow("empty") << std::vector<double>{} << false;
    QTest::newRow("one value") << std::vector<double>{0.5} << false;
    QTest::newRow("one point") << std::vector<double>{0.5, 0.5} << true;
    QTest::newRow("odd count") << std::vector<double>{0.1, 0.1, 0.9, 0.9, 0.5} << true;
    QTest::newRow("all NaN") << std::vector<double>{kNaN, kNaN, kNaN, 1.0, 1.0, kNaN} << false;
    QTest::newRow("infinities") << std::vector<double>{-kInf, 0.5, 0.2, kInf, 0.4, 0.4, 0.6, 0.6} << true;
    QTest::newRow("far off") << std::vector<double>{-1e300, -1e300, 0.5, 0.5, 1e300, 1e300} << true;
    QTest::newRow("denormals") << std::vector<double>{5e-324, 0.5, 0.5, -5e-324} << true;
    QTest::newRow("outside") << std::vector<double>{2, 2, 3, 3, 4, 4} << false;
}

void TestPlotter::badCurves()
{
    QFETCH(std::vector<double>, data);
    QFETCH(bool, drawn);
    for (unsigned log : {0u, 1u}) {
        Plotter plotter;
        plotter.resize(300, 200);
        plotter.initializeAxes(Axis(0, 1, 3, 0, log, 0), Axis(0, 1, 3, 0, log, 0));
        const QImage blank = picture(plotter);
        plotter.setCurveData(0, data, QPen(Qt::red, 2));
        const QImage image = picture(plotter);
        // A log axis shows nothing at or below zero; the rest is drawn.
        if (!log)
            QCOMPARE(compare(image, blank).pixels > 0, drawn);
    }
}

void TestPlotter::curvesReplaceAndClear()
{
    Plotter plotter;
    plotter.resize(300, 200);
    plotter.initializeAxes(Axis(0, 1, 3, 0, 0, 0), Axis(0, 1, 3, 0, 0, 0));
    const QImage blank = picture(plotter);
    plotter.setCurveData(-1, {0, 0, 1, 1}, QPen(Qt::red));
    plotter.setCurveData(Plotter::kMaxCurves, {0, 0, 1, 1}, QPen(Qt::red));
    QCOMPARE(plotter.curveCount(), 0);
    plotter.setCurveData(3, {0, 0, 1, 1}, QPen(Qt::red));
    plotter.setCurveData(1, {0, 1, 1, 0}, QPen(Qt::blue));
    QCOMPARE(plotter.curveCount(), 2);
    plotter.setCurveData(3, {}, QPen(Qt::red));
    QCOMPARE(plotter.curveCount(), 1);
    plotter.clearCurve(1);
    plotter.clearCurve(40);
    QCOMPARE(plotter.curveCount(), 0);
    QCOMPARE(compare(picture(plotter), blank).pixels, 0);
    plotter.setCurveData(0, {0, 0, 1, 1}, QPen(Qt::red));
    plotter.clearCurveAll();
    QCOMPARE(compare(picture(plotter), blank).pixels, 0);
}

void TestPlotter::cursorPlacement()
{
    Plotter plotter;
    plotter.resize(400, 200);
    plotter.initializeAxes(Axis(10, 10000, 2, 4, 1, 0), Axis(-60, 20, 3, 0, 0, 0));
    const QColor pink(255, 0, 255);
    plotter.setCursorData(0, CursorLine(true, 1000, QString(), true, false, QPen(pink, 0)));
    plotter.setCursorData(1, CursorLine(false, -20, QString(), true, false, QPen(pink, 0)));
    plotter.setCursorData(2, CursorLine(true, 500, QString(), false, false, QPen(pink, 0)));
    plotter.setCursorData(3, CursorLine(true, -5, QStringLiteral("lost"), true, false, QPen(pink, 0)));
    const QImage image = picture(plotter);
    const QRect area = plotter.plotArea();
    const int x = int(std::floor(plotter.mapToPixel(1000, 0).x()));
    const int y = int(std::floor(plotter.mapToPixel(10, -20).y()));
    const int hidden = int(std::floor(plotter.mapToPixel(500, 0).x()));
    int onColumn = 0, onRow = 0, onHidden = 0;
    for (int row = area.top() + 1; row < area.bottom(); ++row) {
        onColumn += QColor(image.pixel(x, row)) == pink;
        onHidden += QColor(image.pixel(hidden, row)) == pink;
    }
    for (int column = area.left() + 1; column < area.right(); ++column)
        onRow += QColor(image.pixel(column, y)) == pink;
    QVERIFY(onColumn >= area.height() - 3);
    QVERIFY(onRow >= area.width() - 3);
    QVERIFY(onHidden <= 1); // where it crosses the horizontal cursor
    QCOMPARE(plotter.cursorPosition(0), 1000.0);
    QVERIFY(std::isnan(plotter.cursorPosition(2)));
    QVERIFY(std::isnan(plotter.cursorPosition(9)));
}

void TestPlotter::cursorDrag()
{
    Plotter plotter;
    plotter.resize(400, 200);
    plotter.initializeAxes(Axis(0, 10, 3, 0, 0, 0), Axis(0, 1, 3, 0, 0, 0));
    plotter.setCursorData(0, CursorLine(true, 5, QStringLiteral("t1"), true, true, QPen(Qt::red)));
    plotter.show();
    QVERIFY(QTest::qWaitForWindowExposed(&plotter));
    QSignalSpy moved(&plotter, &Plotter::cursorMoved);
    const QPointF from = plotter.mapToPixel(5, 0.5);
    const QPointF to = plotter.mapToPixel(7.5, 0.5);
    QTest::mousePress(&plotter, Qt::LeftButton, {}, from.toPoint());
    dragTo(&plotter, to);
    QTest::mouseRelease(&plotter, Qt::LeftButton, {}, to.toPoint());
    QVERIFY(!moved.isEmpty());
    QCOMPARE(moved.last().at(0).toInt(), 0);
    QVERIFY(std::fabs(plotter.cursorPosition(0) - 7.5) < 0.05);
    // The axes stayed where they were: the drag moved the cursor only.
    QCOMPARE(plotter.xAxis().low(), 0.0);
}

void TestPlotter::zoomPanReset()
{
    Plotter plotter;
    plotter.resize(400, 200);
    plotter.initializeAxes(Axis(10, 10000, 2, 4, 1, 0), Axis(-60, 20, 3, 0, 0, 0));
    plotter.show();
    QVERIFY(QTest::qWaitForWindowExposed(&plotter));
    const QPointF centre = plotter.mapToPixel(316.2277660168379, -20);

    QWheelEvent in(centre, QPointF(plotter.mapToGlobal(centre.toPoint())), {}, QPoint(0, 120), Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&plotter, &in);
    QVERIFY(plotter.xAxis().low() > 10 && plotter.xAxis().high() < 10000);
    QVERIFY(plotter.yAxis().low() > -60 && plotter.yAxis().high() < 20);
    // Zooming keeps the point under the mouse, on the log axis too.
    QVERIFY(std::fabs(plotter.mapToPixel(316.2277660168379, -20).x() - centre.x()) < 0.01);
    QVERIFY(plotter.xAxis().isLogarithmic());

    const double low = plotter.xAxis().low();
    QTest::mousePress(&plotter, Qt::LeftButton, {}, centre.toPoint());
    dragTo(&plotter, centre + QPointF(50, 0));
    QTest::mouseRelease(&plotter, Qt::LeftButton, {}, centre.toPoint() + QPoint(50, 0));
    QVERIFY(plotter.xAxis().low() < low); // dragged right: earlier values come in

    QTest::keyClick(&plotter, Qt::Key_Home);
    QCOMPARE(plotter.xAxis().low(), 10.0);
    QCOMPARE(plotter.yAxis().high(), 20.0);
    QTest::keyClick(&plotter, Qt::Key_Minus);
    QVERIFY(plotter.yAxis().high() > 20);
    QTest::keyClick(&plotter, Qt::Key_R);
    QCOMPARE(plotter.yAxis().high(), 20.0);
    QTest::keyClick(&plotter, Qt::Key_Right);
    QVERIFY(plotter.xAxis().low() > 10);
    QTest::mouseDClick(&plotter, Qt::LeftButton, {}, centre.toPoint());
    QCOMPARE(plotter.xAxis().low(), 10.0);
}

QTEST_MAIN(TestPlotter)
#include "tst_plotter.moc"
