// PerCycleTiming, PerCycleValue and _TestPerCycleFunction through the
// engine, with the engine's XfromY or a stand-in that returns fixed edges.
#include "engine.h"

#include <QtTest>

#include <cmath>
#include <memory>

using vtkit::CallResult;
using vtkit::ScriptValue;
using Args = std::vector<ScriptValue>;
using Reals = QVector<double>;
using Edges = QVector<Reals>; // rising, falling
Q_DECLARE_METATYPE(Args)

namespace {

constexpr double kNoSelector = 99; // XfromY got a selector record without data

ScriptValue text(const char* s) { return ScriptValue::fromStrings({s}); }
ScriptValue reals(std::vector<double> v) { return ScriptValue::fromReals(std::move(v)); }

// 1 kHz, 100 samples a period, five periods, starting at a phase of 1 rad
// so that no sample sits on the midpoint level.
ScriptValue sine(double amplitude, double offset)
{
    const double pi = std::acos(-1.0);
    std::vector<double> x, y;
    for (int i = 0; i <= 500; ++i) {
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

// Stands in for XfromY: fixed edges (none: it fails), and a log of what
// the module passed.
struct FakeEdges {
    std::vector<double> rising, falling, selectors, levels;
};

std::shared_ptr<FakeEdges> install(vtkit::Engine& engine, const Reals& rising, const Reals& falling = {})
{
    auto fake = std::make_shared<FakeEdges>();
    fake->rising.assign(rising.begin(), rising.end());
    fake->falling.assign(falling.begin(), falling.end());
    engine.registerHostFunction("XfromY", [fake](const ArgRecord* args, int nargs,
                                                 ScriptValue& result, int& error) {
        if (nargs != 4)
            return false;
        fake->levels.push_back(*static_cast<const double*>(args[1].data));
        const auto* sel = static_cast<const double*>(args[3].data);
        fake->selectors.push_back(sel ? *sel : kNoSelector);
        const bool fail = fake->rising.empty();
        error = fail ? 1 : 0;
        result = reals(sel && *sel < 0 ? fake->falling : fake->rising);
        return !fail;
    });
    return fake;
}

bool near(double a, double b, double relative)
{
    return a == b || std::fabs(a - b) <= relative * std::fabs(b);
}

} // namespace

class TestPerCycle : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_engine.load(VT_MODULE_PATH)); }
    void init() { m_engine.registerHostFunction("XfromY", &vtkit::xFromY); }

    void onSine_data();
    void onSine();
    void exactEdges();
    void hostCalls_data();
    void hostCalls();
    void cases_data();
    void cases();

private:
    vtkit::Engine m_engine;
};

void TestPerCycle::onSine_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<Args>("args");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("units");
    QTest::addColumn<double>("expected");

    // Five rising edges: four cycles, two points each unless smooth.
    const auto timing = [](const char* keyword, const char* smooth) {
        return Args{sine(1, 0), text(keyword), text(smooth)};
    };
    // A scalar reference: the waveform finds its own cycles.
    const auto value = [](const char* keyword) {
        return Args{sine(2, 0.5), reals({0}), text(keyword), text("smooth"), reals({1})};
    };
    const QString t = QStringLiteral("PerCycleTiming");
    QTest::newRow("period") << t << timing("period", "steps") << 8 << "s" << 1e-3;
    QTest::newRow("frequency, upper case") << t << timing("FREQUENCY", "steps") << 8 << "Frequency" << 1000.0;
    QTest::newRow("duty-cycle") << t << timing("duty-cycle", "steps") << 8 << "" << 50.0;
    QTest::newRow("on-time") << t << timing("On-Time", "steps") << 8 << "s" << 0.5e-3;
    QTest::newRow("off-time smooth") << t << timing("off-time", "SMOOTH") << 4 << "s" << 0.5e-3;
    QTest::newRow("peak-to-peak") << "PerCycleValue" << value("peak-to-peak") << 4 << "V" << 4.0;
    // sqrt(offset^2 + amplitude^2 / 2)
    QTest::newRow("rms") << "PerCycleValue" << value("RMS") << 4 << "V" << 1.5;
}

void TestPerCycle::onSine()
{
    QFETCH(QString, function);
    QFETCH(Args, args);
    QFETCH(int, count);
    QFETCH(QString, units);
    QFETCH(double, expected);

    const CallResult r = m_engine.call(function.toStdString(), args);
    QVERIFY(r.hasResult);
    QCOMPARE(r.value.values.size(), size_t(count));
    QCOMPARE(r.value.x.size(), r.value.values.size());
    QCOMPARE(QString::fromStdString(r.value.units), units);
    QCOMPARE(r.value.xUnits, std::string("s"));
    // Sampling costs the statistics about 1e-4; edges are interpolated far closer.
    const double tolerance = function == QLatin1String("PerCycleValue") ? 1e-3 : 1e-5;
    for (size_t i = 0; i < r.value.values.size(); ++i) {
        const double v = r.value.values[i];
        QVERIFY2(near(v, expected, tolerance), qPrintable(QString::number(v)));
        if (i > 0)
            QVERIFY(r.value.x[i] > r.value.x[i - 1]);
    }
}

// Exact comparisons throughout: QCOMPARE on doubles would be fuzzy.
void TestPerCycle::exactEdges()
{
    install(m_engine, {1, 2, 4});
    // Ends exact, inner boundaries pulled apart by 2^-51 of their value.
    const double eps = std::pow(2.0, -51);
    const CallResult steps = m_engine.call("PerCycleTiming", {ramp(), text("period")});
    QVERIFY(steps.value.values == (std::vector<double>{1, 1, 2, 2}));
    QVERIFY(steps.value.x == (std::vector<double>{1, 2 * (1 - eps), 2 * (1 + eps), 4}));
    QVERIFY(steps.value.x[1] < 2 && steps.value.x[2] > 2);
    const CallResult smooth = m_engine.call("PerCycleTiming", {ramp(), text("period"), text("smooth")});
    QVERIFY(smooth.value.values == (std::vector<double>{1, 2}));
    QVERIFY(smooth.value.x == (std::vector<double>{1.5, 3}));

    // Below the shortest period the frequency is capped at 1/1e-15, which is not 1e15.
    const auto fake = install(m_engine, {1e-3, 1e-3 + 1e-16}, {1e-3 + 5e-17});
    const CallResult f = m_engine.call("PerCycleTiming", {ramp(), text("frequency")});
    QCOMPARE(f.value.values.size(), size_t(2));
    QVERIFY(f.value.values[0] == 1 / 1e-15 && f.value.values[0] != 1e15);
    // ... and the duty cycle scales the high time by minPeriod, not 1/minPeriod.
    const CallResult duty = m_engine.call("PerCycleTiming", {ramp(), text("duty-cycle")});
    QVERIFY(duty.value.values[0] == (fake->falling[0] - fake->rising[0]) * (1e-15 * 100));
}

void TestPerCycle::hostCalls_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<Args>("args");
    QTest::addColumn<Reals>("selectors");
    QTest::addColumn<double>("level");
    QTest::addColumn<int>("notifications");

    const ScriptValue wave = sampled({0, 4, 2, 3});
    const auto timing = [&](const char* keyword, Args options) {
        options.insert(options.begin(), {wave, text(keyword)});
        return options;
    };
    const QString t = QStringLiteral("PerCycleTiming");
    QTest::newRow("timing, no options") << t << timing("period", {}) << Reals{1} << 2.0 << 2;
    QTest::newRow("timing, no selector")
        << t << timing("period", {text("smooth")}) << Reals{kNoSelector} << 2.0 << 1;
    QTest::newRow("timing, falling")
        << t << timing("period", {text("x"), reals({-1})}) << Reals{-1} << 2.0 << 1;
    QTest::newRow("duty starts from rising")
        << t << timing("duty-cycle", {text("x"), reals({-1})}) << Reals{1, -1} << 2.0 << 1;
    QTest::newRow("value, own reference")
        << "PerCycleValue" << Args{wave, reals({7}), text("mean"), text("smooth"), reals({-1})}
        << Reals{-1} << 2.0 << 2;
    QTest::newRow("value, reference")
        << "PerCycleValue"
        << Args{wave, reals({10, 20, 30, 14}), text("mean"), ScriptValue::fromStrings({}), reals({})}
        << Reals{kNoSelector} << 20.0 << 3;
}

void TestPerCycle::hostCalls()
{
    QFETCH(QString, function);
    QFETCH(Args, args);
    QFETCH(Reals, selectors);
    QFETCH(double, level);
    QFETCH(int, notifications);

    const auto fake = install(m_engine, {0.5, 1.5, 2.5}, {1, 2});
    const CallResult r = m_engine.call(function.toStdString(), args);
    QCOMPARE(int(r.status), int(CallResult::Status::Ok));
    QVERIFY(r.hasResult);
    QCOMPARE(Reals(fake->selectors.begin(), fake->selectors.end()), selectors);
    for (double l : fake->levels)
        QCOMPARE(l, level);
    QCOMPARE(r.notifications, notifications);
}

void TestPerCycle::cases_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<Args>("args");
    QTest::addColumn<Edges>("edges"); // none: the engine's XfromY
    QTest::addColumn<bool>("hasResult");
    QTest::addColumn<Reals>("values");

    const QString timing = QStringLiteral("PerCycleTiming");
    const QString value = QStringLiteral("PerCycleValue");
    const QString test = QStringLiteral("_TestPerCycleFunction");
    const Edges engine;
    const Reals none;
    const ScriptValue startsHigh = sampled({1, 1, 0, 0, 1, 1, 0, 0, 1, 1, 0, 0});
    const ScriptValue single = sampled({7});
    const ScriptValue noOptions = ScriptValue::fromStrings({});
    const ScriptValue smooth = text("smooth");
    const auto stat = [](const ScriptValue& wave, const ScriptValue& reference, const char* keyword,
                         const ScriptValue& options) {
        return Args{wave, reference, text(keyword), options, reals({1})};
    };
    // The statistic over one interval of the ramp y = x on 0..10.
    const auto once = [](std::vector<double> interval, const char* keyword) {
        return Args{ramp(), reals(std::move(interval)), text(keyword)};
    };

    QTest::newRow("starts high, on-time")
        << timing << Args{startsHigh, text("on-time")} << engine << true << Reals{2, 2};
    QTest::newRow("starts low, on-time")
        << timing << Args{sampled({0, 0, 1, 1, 0, 0, 1, 1, 0, 0}), text("on-time")} << engine << true
        << Reals{2, 2};
    QTest::newRow("one edge: empty result")
        << timing << Args{sampled({0, 1}), text("period")} << engine << true << none;
    QTest::newRow("single point: XfromY fails")
        << timing << Args{single, text("period")} << engine << false << none;
    QTest::newRow("empty waveform")
        << timing << Args{reals({}), text("period")} << Edges{{1, 2}} << false << none;
    QTest::newRow("waveform without x")
        << timing << Args{reals({1, 2}), text("period")} << Edges{{1, 2}} << false << none;
    QTest::newRow("unknown timing") << timing << Args{startsHigh, text("width")} << engine << false << none;
    // Falling edges that don't fit: the result is made and left as the host made it.
    QTest::newRow("too many falling edges")
        << timing << Args{ramp(), text("on-time")} << Edges{{1, 2}, {0.1, 0.2, 0.3, 0.4}} << true
        << Reals{0, 0};
    QTest::newRow("last cycle has no falling edge")
        << timing << Args{ramp(), text("on-time")} << Edges{{1, 3, 5}, {0.5, 2}} << true << Reals{1, 1, 0, 0};

    QTest::newRow("unknown statistic")
        << value << stat(single, reals({0}), "max", noOptions) << Edges{{0, 1, 2}} << false << none;
    QTest::newRow("value of a single point, rms")
        << value << stat(single, reals({0}), "rms", noOptions) << Edges{{0, 1, 2}} << true
        << Reals{7, 7, 7, 7};
    QTest::newRow("reference gives the cycles")
        << value << stat(ramp(), sampled({0, 0, 1, 1, 0, 0, 1, 1, 0, 0, 1}), "mean", smooth) << engine << true
        << Reals{3.5, 7.5};
    QTest::newRow("reference shorter than waveform")
        << value << stat(ramp(), reals({0, 1, 0}), "mean", smooth) << Edges{{1, 2}} << false << none;
    QTest::newRow("x not above the first")
        << value << stat(ScriptValue::waveform({1, 2, 3}, {0, 1, 0}), reals({0}), "mean", smooth)
        << Edges{{0, 1}} << false << none;
    QTest::newRow("x not above the first, far from the start")
        << value
        << stat(ScriptValue::waveform({0, 1, 0, 1, 0, 1, 0, 1, 0, 1, 0, 1}, {0, 1, 2, 3, 4, 5, 0, 7, 8, 9, 10, 11}),
                reals({0}), "mean", smooth)
        << Edges{{0, 1}} << false << none;
    QTest::newRow("value, XfromY fails")
        << value << stat(ramp(), reals({0}), "mean", smooth) << Edges{Reals{}} << false << none;

    QTest::newRow("empty interval covers all") << test << once({}, "mean") << engine << true << Reals{5};
    QTest::newRow("start only") << test << once({5}, "mean") << engine << true << Reals{7.5};
    QTest::newRow("minimum counts the sample before")
        << test << once({2.5, 4}, "minimum") << engine << true << Reals{2};
    QTest::newRow("maximum") << test << once({2.5, 4}, "maximum") << engine << true << Reals{4};
    QTest::newRow("rms is exact for lines")
        << test << once({0, 1}, "rms") << engine << true << Reals{std::sqrt(1.0 / 3)};
    QTest::newRow("outside the samples the ends hold")
        << test << once({-5, 20}, "mean") << engine << true << Reals{6};
    QTest::newRow("unknown statistic is 0") << test << once({}, "median") << engine << true << Reals{0};
    QTest::newRow("single point")
        << test << Args{single, reals({}), text("mean")} << engine << true << Reals{7};
}

void TestPerCycle::cases()
{
    QFETCH(QString, function);
    QFETCH(Args, args);
    QFETCH(Edges, edges);
    QFETCH(bool, hasResult);
    QFETCH(Reals, values);

    if (!edges.isEmpty())
        install(m_engine, edges[0], edges.value(1));
    const CallResult r = m_engine.call(function.toStdString(), args);
    QCOMPARE(int(r.status), int(CallResult::Status::Ok));
    QCOMPARE(r.hasResult, hasResult);
    if (!hasResult)
        return;
    QCOMPARE(r.value.values.size(), size_t(values.size()));
    if (function != QLatin1String("_TestPerCycleFunction"))
        QCOMPARE(r.value.x.size(), r.value.values.size());
    for (int i = 0; i < values.size(); ++i)
        QVERIFY2(near(r.value.values[size_t(i)], values[i], 1e-12),
                 qPrintable(QString::number(r.value.values[size_t(i)])));
}

QTEST_GUILESS_MAIN(TestPerCycle)
#include "tst_percycle.moc"
