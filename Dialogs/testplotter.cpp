// TestPlotter: a form for trying the Plotter widget out. The upper plotter
// shows the Bode example response over a log frequency axis, the lower a
// long noisy time-domain curve with two cursors to drag, whose readings
// the form shows. Accepted or cancelled like any factory dialog; it takes
// no arguments and gives an empty result.
#include "bodeexamplecurves.h"
#include "hostwidgets.h"
#include "registration.h"
#include "userdialogclass.h"

#include "ui_testplotter.h"

#include <QDialog>

#include <cmath>
#include <new>
#include <vector>

namespace {

using TestPlotter = UserDialogClass<Ui::TestPlotter, QDialog>;

constexpr int kTimePoints = 200000;
constexpr double kDuration = 10e-3;

QPen pen(const QColor& colour)
{
    return QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// A ringing that dies away, with a little deterministic noise on it.
std::vector<double> ringing()
{
    std::vector<double> data;
    data.reserve(2 * kTimePoints);
    unsigned noise = 12345;
    for (int i = 0; i < kTimePoints; ++i) {
        const double t = kDuration * i / (kTimePoints - 1);
        noise = noise * 1103515245u + 12345u;
        const double jitter = ((noise >> 16) & 0x7fff) / 32767.0 - 0.5;
        data.push_back(t);
        data.push_back(std::exp(-t / 3e-3) * std::sin(2 * M_PI * 1e3 * t) + 0.05 * jitter);
    }
    return data;
}

void showCursors(QLabel* label, const Plotter* plotter)
{
    const double t1 = plotter->cursorPosition(0) * 1e3;
    const double t2 = plotter->cursorPosition(1) * 1e3;
    label->setText(QCoreApplication::translate("TestPlotter", "t1 = %1 ms, t2 = %2 ms, t2 - t1 = %3 ms")
                       .arg(t1, 0, 'f', 3)
                       .arg(t2, 0, 'f', 3)
                       .arg(t2 - t1, 0, 'f', 3));
}

void fill(QDialog* dialog)
{
    auto* bode = dialog->findChild<Plotter*>(QStringLiteral("plotterUpper"));
    auto* time = dialog->findChild<Plotter*>(QStringLiteral("plotterLower"));
    auto* readings = dialog->findChild<QLabel*>(QStringLiteral("labelCursors"));
    if (!bode || !time || !readings)
        return;

    bode->initializeAxes(Axis(10, 10000, 3, 8, 1, 0), Axis(-60, 20, 3, 1, 0, 0));
    bode->setMargins(4, 4, 8, 2);
    bode->setCurveData(0, bodeexample::curve(bodeexample::kGain), pen(QColor(0, 128, 0)));
    bode->setCurveData(1, bodeexample::curve(bodeexample::kPhase), pen(QColor(200, 40, 40)));
    const QPen marker(QColor(90, 90, 200), 1, Qt::DashLine);
    bode->setCursorData(0, CursorLine(true, 500, QStringLiteral("f0"), true, true, marker));
    bode->setCursorData(1, CursorLine(false, 0, QStringLiteral("0 dB"), true, true, marker));

    time->initializeAxes(Axis(0, kDuration, 3, 4, 0, 0), Axis(-1.2, 1.2, 3, 1, 0, 0));
    time->setMargins(4, 4, 8, 2);
    time->setCurveData(0, ringing(), QPen(QColor(30, 90, 200), 1));
    const QPen cursor(QColor(200, 0, 120), 1, Qt::DashLine);
    time->setCursorData(0, CursorLine(true, 2e-3, QStringLiteral("t1"), true, true, cursor));
    time->setCursorData(1, CursorLine(true, 6e-3, QStringLiteral("t2"), true, true, cursor));
    showCursors(readings, time);
    QObject::connect(time, &Plotter::cursorMoved, readings, [readings, time] { showCursors(readings, time); });
}

QDialog* createTestPlotter(UserFunctionInterface* /*call*/, void* /*unused*/)
{
    auto* dialog = new (std::nothrow) TestPlotter(nullptr, 0, "TestPlotter");
    if (dialog)
        fill(dialog);
    return dialog;
}

} // namespace

static const FunctionRegistration registerTestPlotter("TestPlotter", argLimits(0, 32), &createTestPlotter);
