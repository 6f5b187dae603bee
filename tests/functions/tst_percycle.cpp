// PerCycleTiming, PerCycleValue and _TestPerCycleFunction through the
// engine, with the engine's XfromY or a stand-in that returns fixed edges.
#include "engine.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>

using vtkit::CallResult;
using vtkit::ScriptValue;
using Args = std::vector<ScriptValue>;
Q_DECLARE_METATYPE(Args)

namespace {

constexpr double kNoSelector = 99; // XfromY got a selector record without data

ScriptValue text(const char* s)
{
    return ScriptValue::fromStrings({s});
}

ScriptValue reals(std::vector<double> v)
{
    return ScriptValue::fromReals(std::move(v));
}

ScriptValue noStrings()
{
    return ScriptValue::fromStrings({});
}

// 1 kHz, 100 samples a period, starting at a phase of 1 rad so that no
// sample sits on the midpoint level.
ScriptValue sine(double amplitude, double offset, int periods = 5)
{
    const double pi = std::acos(-1.0);
    std::vector<double> x, y;
    for (int i = 0; i <= periods * 100; ++i) {
        x.push_back(i * 1e-5);
        y.push_back(offset + amplitude * std::sin(2 * pi * 1000 * x.back() + 1));
    }
    return ScriptValue::waveform(y, x, "V", "s");
}

ScriptValue sampled(std::vector<double> y)
{
    std::vector<double> x;
    for (size_t i = 0; i < y.size(); ++i)
        x.push_back(double(i));
    return ScriptValue::waveform(y, x, "V", "s");
}

const ScriptValue& ramp()
{
    static const ScriptValue r = sampled({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    return r;
}

// Stands in for XfromY: fixed edges, and a log of what the module passed.
struct FakeEdges {
    std::vector<double> rising;
    std::vector<double> falling;
    bool fail = false;
    std::vector<double> selectors;
    std::vector<double> levels;
};

void install(vtkit::Engine& engine, const std::shared_ptr<FakeEdges>& fake)
{
    engine.registerHostFunction("XfromY", [fake](const ArgRecord* args, int nargs,
                                                 ScriptValue& result, int& error) {
        if (nargs != 4)
            return false;
        fake->levels.push_back(*static_cast<const double*>(args[1].data));
        const auto* sel = static_cast<const double*>(args[3].data);
        fake->selectors.push_back(sel ? *sel : kNoSelector);
        error = fake->fail ? 1 : 0;
        result = reals(sel && *sel < 0 ? fake->falling : fake->rising);
        return !fake->fail;
    });
}

bool near(double a, double b, double relative)
{
    return a == b || std::fabs(a - b) <= relative * std::fabs(b);
}

} // namespace

class TestPerCycle : public QObject {
    Q_OBJECT

private slots:
    void timingOnSine_data();
    void timingOnSine();
    void valueOnSine_data();
    void valueOnSine();
    void staircase();
    void frequencyCap();
    void hostCalls_data();
    void hostCalls();
    void cases_data();
    void cases();
};

void TestPerCycle::timingOnSine_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<bool>("smooth");
    QTest::addColumn<double>("expected");
    QTest::addColumn<QString>("units");

    QTest::newRow("period") << "period" << false << 1e-3 << "s";
    QTest::newRow("frequency, upper case") << "FREQUENCY" << false << 1000.0 << "Frequency";
    QTest::newRow("duty-cycle") << "duty-cycle" << false << 50.0 << "";
    QTest::newRow("on-time") << "On-Time" << false << 0.5e-3 << "s";
    QTest::newRow("off-time smooth") << "off-time" << true << 0.5e-3 << "s";
}

void TestPerCycle::timingOnSine()
{
    QFETCH(QString, keyword);
    QFETCH(bool, smooth);
    QFETCH(double, expected);
    QFETCH(QString, units);

    vtkit::Engine e;
    QVERIFY(e.load(VT_MODULE_PATH));
    const CallResult r = e.call("PerCycleTiming", {sine(1, 0), text(keyword.toUtf8()),
                                                  text(smooth ? "SMOOTH" : "steps")});
    QVERIFY(r.hasResult);
    QCOMPARE(r.notifications, 1);
    // Five rising edges: four cycles.
    QCOMPARE(r.value.values.size(), size_t(smooth ? 4 : 8));
    QCOMPARE(r.value.x.size(), r.value.values.size());
    QCOMPARE(QString::fromStdString(r.value.units), units);
    QCOMPARE(r.value.xUnits, std::string("s"));
    for (size_t i = 0; i < r.value.values.size(); ++i) {
        QVERIFY2(near(r.value.values[i], expected, 1e-5), qPrintable(QString::number(i)));
        if (i > 0)
            QVERIFY(r.value.x[i] > r.value.x[i - 1]);
    }
}

void TestPerCycle::valueOnSine_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<double>("expected");

    QTest::newRow("minimum") << "minimum" << -1.5;
    QTest::newRow("maximum") << "Maximum" << 2.5;
    QTest::newRow("mean") << "mean" << 0.5;
    QTest::newRow("peak-to-peak") << "peak-to-peak" << 4.0;
    QTest::newRow("rms") << "RMS" << 1.5; // sqrt(offset^2 + amplitude^2 / 2)
}

void TestPerCycle::valueOnSine()
{
    QFETCH(QString, keyword);
    QFETCH(double, expected);

    vtkit::Engine e;
    QVERIFY(e.load(VT_MODULE_PATH));
    // A scalar reference: the waveform finds its own cycles.
    const CallResult r = e.call("PerCycleValue", {sine(2, 0.5), reals({0}), text(keyword.toUtf8()),
                                                 text("smooth"), reals({1})});
    QVERIFY(r.hasResult);
    QCOMPARE(r.value.values.size(), size_t(4));
    QCOMPARE(r.value.units, std::string("V"));
    QCOMPARE(r.value.xUnits, std::string("s"));
    for (double v : r.value.values)
        QVERIFY2(near(v, expected, 1e-3), qPrintable(QString::number(v)));
}

void TestPerCycle::staircase()
{
    vtkit::Engine e;
    QVERIFY(e.load(VT_MODULE_PATH));
    auto fake = std::make_shared<FakeEdges>();
    fake->rising = {1, 2, 4};
    install(e, fake);

    // Ends exact, inner boundaries pulled apart by 2^-51 of their value.
    const double eps = std::pow(2.0, -51);
    const CallResult steps = e.call("PerCycleTiming", {ramp(), text("period")});
    QVERIFY(steps.hasResult);
    QCOMPARE(steps.value.values, (std::vector<double>{1, 1, 2, 2}));
    const std::vector<double> x{1, 2 * (1 - eps), 2 * (1 + eps), 4};
    QVERIFY(steps.value.x == x); // exact: QCOMPARE would be fuzzy
    QVERIFY(steps.value.x[1] < 2 && steps.value.x[2] > 2);

    const CallResult smooth = e.call("PerCycleTiming", {ramp(), text("period"), text("smooth")});
    QCOMPARE(smooth.value.values, (std::vector<double>{1, 2}));
    QCOMPARE(smooth.value.x, (std::vector<double>{1.5, 3}));
}

void TestPerCycle::frequencyCap()
{
    vtkit::Engine e;
    QVERIFY(e.load(VT_MODULE_PATH));
    auto fake = std::make_shared<FakeEdges>();
    fake->rising = {1e-3, 1e-3 + 1e-16};
    fake->falling = {1e-3 + 5e-17};
    install(e, fake);

    const CallResult f = e.call("PerCycleTiming", {ramp(), text("frequency")});
    QCOMPARE(f.value.values.size(), size_t(2));
    QVERIFY(f.value.values[0] == 1 / 1e-15);
    QVERIFY(f.value.values[0] != 1e15);
    QVERIFY(f.value.values[0] == 999999999999999.9);

    // A period this short scales the high time by minPeriod, not 1/minPeriod.
    const CallResult duty = e.call("PerCycleTiming", {ramp(), text("duty-cycle")});
    const double high = fake->falling[0] - fake->rising[0];
    QVERIFY(duty.value.values[0] == high * (1e-15 * 100));
}

void TestPerCycle::hostCalls_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<Args>("args");
    QTest::addColumn<QVector<double>>("selectors");
    QTest::addColumn<double>("level");
    QTest::addColumn<int>("notifications");

    const ScriptValue wave = sampled({0, 4, 2, 3});
    QTest::newRow("timing, no options") << "PerCycleTiming" << Args{wave, text("period")}
                                        << QVector<double>{1} << 2.0 << 2;
    QTest::newRow("timing, no selector") << "PerCycleTiming"
                                         << Args{wave, text("period"), text("smooth")}
                                         << QVector<double>{kNoSelector} << 2.0 << 1;
    QTest::newRow("timing, falling") << "PerCycleTiming"
                                     << Args{wave, text("period"), text("x"), reals({-1})}
                                     << QVector<double>{-1} << 2.0 << 1;
    QTest::newRow("duty starts from rising") << "PerCycleTiming"
                                             << Args{wave, text("duty-cycle"), text("x"), reals({-1})}
                                             << QVector<double>{1, -1} << 2.0 << 1;
    QTest::newRow("value, own reference") << "PerCycleValue"
                                          << Args{wave, reals({7}), text("mean"), text("smooth"),
                                                  reals({-1})}
                                          << QVector<double>{-1} << 2.0 << 2;
    QTest::newRow("value, reference") << "PerCycleValue"
                                      << Args{wave, reals({10, 20, 30, 14}), text("mean"), noStrings(),
                                              reals({})}
                                      << QVector<double>{kNoSelector} << 20.0 << 3;
}

void TestPerCycle::hostCalls()
{
    QFETCH(QString, function);
    QFETCH(Args, args);
    QFETCH(QVector<double>, selectors);
    QFETCH(double, level);
    QFETCH(int, notifications);

    vtkit::Engine e;
    QVERIFY(e.load(VT_MODULE_PATH));
    auto fake = std::make_shared<FakeEdges>();
    fake->rising = {0.5, 1.5, 2.5};
    fake->falling = {1, 2};
    install(e, fake);

    const CallResult r = e.call(function.toStdString(), args);
    QCOMPARE(int(r.status), int(CallResult::Status::Ok));
    QVERIFY(r.hasResult);
    QCOMPARE(QVector<double>(fake->selectors.begin(), fake->selectors.end()), selectors);
    for (double l : fake->levels)
        QCOMPARE(l, level);
    QCOMPARE(r.notifications, notifications);
}

void TestPerCycle::cases_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<Args>("args");
    QTest::addColumn<bool>("fake");
    QTest::addColumn<QVector<double>>("rising");
    QTest::addColumn<QVector<double>>("falling");
    QTest::addColumn<bool>("hasResult");
    QTest::addColumn<QVector<double>>("values");

    const QVector<double> none;
    const ScriptValue startsHigh = sampled({1, 1, 0, 0, 1, 1, 0, 0, 1, 1, 0, 0});
    const ScriptValue startsLow = sampled({0, 0, 1, 1, 0, 0, 1, 1, 0, 0});
    const ScriptValue single = sampled({7});
    const ScriptValue opts[] = {text("smooth"), reals({1})};

    // Pairing of rising and falling edges, with the engine's XfromY.
    QTest::newRow("starts high, on-time") << "PerCycleTiming" << Args{startsHigh, text("on-time")}
                                          << false << none << none << true
                                          << QVector<double>{2, 2};
    QTest::newRow("starts high, duty") << "PerCycleTiming" << Args{startsHigh, text("duty-cycle")}
                                       << false << none << none << true
                                       << QVector<double>{50, 50};
    QTest::newRow("starts low, on-time") << "PerCycleTiming" << Args{startsLow, text("on-time")}
                                         << false << none << none << true
                                         << QVector<double>{2, 2};
    QTest::newRow("one edge: empty result") << "PerCycleTiming" << Args{sampled({0, 1}), text("period")}
                                            << false << none << none << true << none;
    QTest::newRow("single point: XfromY fails") << "PerCycleTiming" << Args{single, text("period")}
                                                << false << none << none << false << none;
    QTest::newRow("empty waveform") << "PerCycleTiming" << Args{reals({}), text("period")} << true
                                    << QVector<double>{1, 2} << none << false << none;
    QTest::newRow("waveform without x") << "PerCycleTiming" << Args{reals({1, 2}), text("period")}
                                        << true << QVector<double>{1, 2} << none << false << none;
    QTest::newRow("unknown timing") << "PerCycleTiming" << Args{startsHigh, text("width")} << false
                                    << none << none << false << none;

    // Falling edges that don't fit: the result is made and left as the host made it.
    QTest::newRow("too many falling edges") << "PerCycleTiming" << Args{ramp(), text("on-time")}
                                            << true << QVector<double>{1, 2}
                                            << QVector<double>{0.1, 0.2, 0.3, 0.4} << true
                                            << QVector<double>{0, 0};
    QTest::newRow("last cycle has no falling edge")
        << "PerCycleTiming" << Args{ramp(), text("on-time")} << true << QVector<double>{1, 3, 5}
        << QVector<double>{0.5, 2} << true << QVector<double>{1, 1, 0, 0};

    // PerCycleValue with its own reference and fixed edges.
    QTest::newRow("unknown statistic") << "PerCycleValue"
                                             << Args{single, reals({0}), text("max"), noStrings(), opts[1]}
                                             << true << QVector<double>{0, 1, 2} << none << false
                                             << none;
    QTest::newRow("value of a single point, rms")
        << "PerCycleValue" << Args{single, reals({0}), text("rms"), noStrings(), opts[1]} << true
        << QVector<double>{0, 1, 2} << none << true << QVector<double>{7, 7, 7, 7};
    QTest::newRow("reference gives the cycles")
        << "PerCycleValue"
        << Args{ramp(), sampled({0, 0, 1, 1, 0, 0, 1, 1, 0, 0, 1}), text("mean"), opts[0], opts[1]}
        << false << none << none << true << QVector<double>{3.5, 7.5};
    QTest::newRow("reference shorter than waveform")
        << "PerCycleValue" << Args{ramp(), reals({0, 1, 0}), text("mean"), opts[0], opts[1]} << true
        << QVector<double>{1, 2} << none << false << none;
    QTest::newRow("x not above the first") << "PerCycleValue"
                                           << Args{ScriptValue::waveform({1, 2, 3}, {0, 1, 0}),
                                                   reals({0}), text("mean"), opts[0], opts[1]}
                                           << true << QVector<double>{0, 1} << none << false << none;
    QTest::newRow("value, XfromY fails") << "PerCycleValue"
                                         << Args{ramp(), reals({0}), text("mean"), opts[0], opts[1]}
                                         << true << none << none << false << none;

    // The statistic over one interval of the ramp y = x on 0..10.
    const auto once = [&](std::vector<double> interval, const char* keyword) {
        return Args{ramp(), reals(std::move(interval)), text(keyword)};
    };
    QTest::newRow("empty interval covers all") << "_TestPerCycleFunction" << once({}, "mean")
                                               << false << none << none << true
                                               << QVector<double>{5};
    QTest::newRow("start only") << "_TestPerCycleFunction" << once({5}, "mean") << false << none
                                << none << true << QVector<double>{7.5};
    QTest::newRow("mean") << "_TestPerCycleFunction" << once({2, 4}, "mean") << false << none << none
                          << true << QVector<double>{3};
    QTest::newRow("minimum counts the sample before")
        << "_TestPerCycleFunction" << once({2.5, 4}, "minimum") << false << none << none << true
        << QVector<double>{2};
    QTest::newRow("peak-to-peak") << "_TestPerCycleFunction" << once({}, "peak-to-peak") << false
                                  << none << none << true << QVector<double>{10};
    QTest::newRow("rms is exact for lines") << "_TestPerCycleFunction" << once({0, 1}, "rms")
                                            << false << none << none << true
                                            << QVector<double>{std::sqrt(1.0 / 3)};
    QTest::newRow("outside the samples the ends hold")
        << "_TestPerCycleFunction" << once({-5, 20}, "mean") << false << none << none << true
        << QVector<double>{6};
    QTest::newRow("unknown statistic is 0") << "_TestPerCycleFunction" << once({}, "median") << false
                                            << none << none << true << QVector<double>{0};
    QTest::newRow("single point") << "_TestPerCycleFunction" << Args{single, reals({}), text("mean")}
                                  << false << none << none << true << QVector<double>{7};
}

void TestPerCycle::cases()
{
    QFETCH(QString, function);
    QFETCH(Args, args);
    QFETCH(bool, fake);
    QFETCH(QVector<double>, rising);
    QFETCH(QVector<double>, falling);
    QFETCH(bool, hasResult);
    QFETCH(QVector<double>, values);

    vtkit::Engine e;
    QVERIFY(e.load(VT_MODULE_PATH));
    if (fake) {
        auto edges = std::make_shared<FakeEdges>();
        edges->rising.assign(rising.begin(), rising.end());
        edges->falling.assign(falling.begin(), falling.end());
        edges->fail = rising.isEmpty();
        install(e, edges);
    }
    const CallResult r = e.call(function.toStdString(), args);
    QCOMPARE(int(r.status), int(CallResult::Status::Ok));
    QCOMPARE(r.hasResult, hasResult);
    if (!hasResult)
        return;
    QCOMPARE(r.value.values.size(), size_t(values.size()));
    if (function != "_TestPerCycleFunction")
        QCOMPARE(r.value.x.size(), r.value.values.size());
    for (int i = 0; i < values.size(); ++i)
        QVERIFY2(near(r.value.values[size_t(i)], values[i], 1e-12),
                 qPrintable(QString::number(r.value.values[size_t(i)])));
}

QTEST_GUILESS_MAIN(TestPerCycle)
#include "tst_percycle.moc"
