// Painting one curve of a million points into 800 by 400 pixels, axes and
// grid included: the Plotter against QCustomPlot with its adaptive
// sampling and against one QPainter::drawPolyline of every point, all in
// the same run, so that the ratios mean something on any machine. The
// QCustomPlot case is there when the library was found at configure time.
#include "hostwidgets.h"
#include "ratioreporter.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#ifdef VT_HAVE_QCUSTOMPLOT
#include <qcustomplot.h>
#endif

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr int kPoints = 1'000'000;
constexpr int kWidth = 800;
constexpr int kHeight = 400;

// A noisy sine over 0..1: each pixel column holds 1250 points that spread
// over several rows, as a long simulated waveform does.
const std::vector<double>& curve()
{
    static const std::vector<double>* data = [] {
        auto* d = new std::vector<double>;
        d->reserve(2 * kPoints);
        unsigned noise = 1;
        for (int i = 0; i < kPoints; ++i) {
            const double x = double(i) / kPoints;
            noise = noise * 1664525u + 1013904223u;
            d->push_back(x);
            d->push_back(std::sin(2 * M_PI * 5 * x) * 0.8 + 0.1 * ((noise >> 8) / 16777216.0 - 0.5));
        }
        return d;
    }();
    return *data;
}

QImage& canvas()
{
    static QImage* image = new QImage(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
    return *image;
}

void PlotterPaint(benchmark::State& state)
{
    Plotter plotter;
    plotter.resize(kWidth, kHeight);
    plotter.setAntialiasing(state.range(0) != 0);
    plotter.initializeAxes(Axis(0, 1, 3, 4, 0, 0), Axis(-1, 1, 3, 1, 0, 0));
    plotter.setCurveData(0, curve(), QPen(QColor(0, 90, 200), 1));
    for (auto _ : state) {
        // As a window shows it: the widget paints every pixel itself, so
        // nothing is filled under it first.
        plotter.render(&canvas(), QPoint(), QRegion(), QWidget::DrawChildren);
        benchmark::DoNotOptimize(canvas().constBits());
    }
}

// New data for every picture, as a running simulation hands it over: the
// copy and the block summary made in setCurveData count too.
void PlotterSetAndPaint(benchmark::State& state)
{
    Plotter plotter;
    plotter.resize(kWidth, kHeight);
    plotter.initializeAxes(Axis(0, 1, 3, 4, 0, 0), Axis(-1, 1, 3, 1, 0, 0));
    for (auto _ : state) {
        plotter.setCurveData(0, curve(), QPen(QColor(0, 90, 200), 1));
        plotter.render(&canvas(), QPoint(), QRegion(), QWidget::DrawChildren);
        benchmark::DoNotOptimize(canvas().constBits());
    }
}
BENCHMARK(PlotterSetAndPaint)->Unit(benchmark::kMillisecond);

// The frame alone: axes, grid and labels around an empty graph.
void PlotterFrame(benchmark::State& state)
{
    Plotter plotter;
    plotter.resize(kWidth, kHeight);
    plotter.initializeAxes(Axis(0, 1, 3, 4, 0, 0), Axis(-1, 1, 3, 1, 0, 0));
    for (auto _ : state) {
        plotter.render(&canvas(), QPoint(), QRegion(), QWidget::DrawChildren);
        benchmark::DoNotOptimize(canvas().constBits());
    }
}
BENCHMARK(PlotterFrame)->Unit(benchmark::kMillisecond);

// The same picture without any reduction: the points mapped once, outside
// the loop, and drawn as one polyline inside a frame, as the Plotter would.
void PolylineEveryPoint(benchmark::State& state)
{
    const std::vector<double>& d = curve();
    QVector<QPointF> points;
    points.reserve(kPoints);
    const QRectF area(40, 10, kWidth - 60, kHeight - 40);
    for (int i = 0; i < kPoints; ++i)
        points.append(QPointF(area.left() + d[2 * i] * area.width(),
                              area.bottom() - (d[2 * i + 1] + 1) / 2 * area.height()));
    for (auto _ : state) {
        QPainter p(&canvas());
        p.fillRect(canvas().rect(), Qt::white);
        p.setPen(QPen(QColor(0, 90, 200), 1));
        p.drawPolyline(points.constData(), points.size());
        benchmark::DoNotOptimize(canvas().constBits());
    }
}

#ifdef VT_HAVE_QCUSTOMPLOT
void QCustomPlotPaint(benchmark::State& state)
{
    const std::vector<double>& d = curve();
    QVector<double> x(kPoints), y(kPoints);
    for (int i = 0; i < kPoints; ++i) {
        x[i] = d[2 * i];
        y[i] = d[2 * i + 1];
    }
    QCustomPlot plot;
    plot.resize(kWidth, kHeight);
    QCPGraph* graph = plot.addGraph();
    graph->setData(x, y, true);
    graph->setAdaptiveSampling(true);
    graph->setPen(QPen(QColor(0, 90, 200), 1));
    plot.xAxis->setRange(0, 1);
    plot.yAxis->setRange(-1, 1);
    for (auto _ : state) {
        QCPPainter painter(&canvas());
        plot.toPainter(&painter, kWidth, kHeight);
        benchmark::DoNotOptimize(canvas().constBits());
    }
}
BENCHMARK(QCustomPlotPaint)->Unit(benchmark::kMillisecond);
#endif

// Argument 1: antialiased, as the widget draws by default; 0: aliased.
BENCHMARK(PlotterPaint)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);
BENCHMARK(PolylineEveryPoint)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    curve();
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    const double plotter = reporter.cpuTime("PlotterPaint/1");
    const double polyline = reporter.cpuTime("PolylineEveryPoint/iterations:3");
    const double peer = reporter.cpuTime("QCustomPlotPaint");
    std::printf("\n%-40s %10s %s\n", "ratio", "value", "target");
    if (plotter > 0 && peer > 0)
        std::printf("%-40s %10.2f <= 1.0 %s\n", "Plotter / QCustomPlot (CPU time)", plotter / peer,
                    plotter / peer <= 1.0 ? "met" : "MISSED");
    else
        std::printf("%-40s %10s (QCustomPlot not built in)\n", "Plotter / QCustomPlot (time)", "-");
    const double setAndPaint = reporter.cpuTime("PlotterSetAndPaint");
    if (setAndPaint > 0 && peer > 0)
        std::printf("%-40s %10.2f\n", "Plotter new data + paint / QCustomPlot", setAndPaint / peer);
    if (plotter > 0 && polyline > 0)
        std::printf("%-40s %10.1f\n", "drawPolyline / Plotter (speed-up)", polyline / plotter);
    if (peer > 0 && polyline > 0)
        std::printf("%-40s %10.1f\n", "drawPolyline / QCustomPlot (speed-up)", polyline / peer);
    return 0;
}
