// The engine against the real module: the function list as the host reads
// it, the refusals, and the host's own "XfromY".

#include "engine.h"

#include <QtTest>

#include <dlfcn.h>

#include <cstring>

using vtkit::CallResult;
using vtkit::Engine;
using vtkit::ScriptValue;

namespace {

struct Row {
    const char* name;
    int min;
    int max;
    bool factory;
    std::vector<std::uint32_t> types; // empty: 32 entries of 1
    std::vector<std::uint32_t> flags;
};

// The whole function table in registration order.
const std::vector<Row>& table()
{
    static const std::vector<Row> rows = {
        {"SaveSpecialDialog", 0, 32, true, {}, {}},
        {"CreateDiodeDialog", 0, 32, true, {}, {}},
        {"TableEditor", 3, 4, false, {1, 1, 1, 1}, {}},
        {"TableDialog", 1, 2, false, {4, 1}, {}},
        {"EditBodePlotProbeDialog", 0, 32, true, {}, {}},
        {"Select2Dialog", 0, 32, true, {}, {}},
        {"MeasureDialog", 0, 32, true, {}, {}},
        {"ManageMeasureDialog", 1, 2, false, {1, 1}, {}},
        {"EditBRELVONGateDialog", 0, 32, true, {}, {}},
        {"EditJumperDialog", 0, 32, true, {}, {}},
        {"TestPlotter", 0, 32, true, {}, {}},
        {"EditBodePlotProbeDialog2", 0, 32, true, {}, {}},
        {"EfficiencyDialog", 0, 32, true, {}, {}},
        {"EditStylesDialog", 3, 7, false, {1, 1, 1, 1, 1, 1, 1}, {}},
        {"CreateNewTitleBlockDialog", 0, 1, false, {1}, {}},
        {"ListSubsetDialog", 1, 4, false, {1, 1, 1, 1}, {}},
        {"CreatePowerInductorModel", 0, 1, false, {1}, {}},
        {"ModelExtractionDialog", 0, 32, true, {}, {}},
        {"BrelvonOptionsDialog", 0, 32, true, {}, {}},
        {"TabValueDialog", 0, 32, true, {}, {}},
        {"BRELVONSearchIdx", 2, 3, false, {1, 1, 1}, {}},
        {"ThdWeight", 1, 1, false, {1}, {}},
        {"ParseEscape", 1, 2, false, {1, 1}, {}},
        {"ScanEscape", 1, 3, false, {1, 1, 4}, {}},
        {"LoopForgeEditClocksDialog", 1, 2, false, {1, 1}, {}},
        {"LoopForgeEditComponentDialog", 0, 32, true, {}, {}},
        {"LoopForgeEditProbeDialog", 3, 3, false, {1, 1, 1}, {}},
        {"LoopForgeEditPWMDialog", 0, 32, true, {}, {}},
        {"DialogDesigner", 0, 1, false, {1}, {}},
        {"PerCycleTiming", 2, 4, false, {4, 1, 1, 4}, {1, 0, 0, 0}},
        {"PerCycleValue", 5, 5, false, {4, 4, 1, 1, 4}, {1, 1, 0, 0, 0}},
        {"_TestPerCycleFunction", 3, 3, false, {4, 4, 1}, {}},
        {"EditBrelvonFilter", 0, 32, true, {}, {}},
        {"EditBrelvonMosfetDriverDialog", 0, 32, true, {}, {}},
        {"EditMultiLevelInductorCapacitorDialog", 4, 4, false, {1, 1, 1, 1}, {}},
        {"ConvergenceDialog", 0, 32, true, {}, {}},
        {"RadioSelectWidgetStackDialog", 0, 32, true, {}, {}},
        {"TwoFileSelectionDialog", 0, 3, false, {1, 1, 1}, {}},
        {"EditParameterisedOpampDialog", 0, 32, true, {}, {}},
    };
    return rows;
}


ScriptValue strings(std::vector<std::string> s)
{
    return ScriptValue::fromStrings(std::move(s));
}

bool allZero(const void* p, std::size_t n)
{
    const auto* b = static_cast<const unsigned char*>(p);
    for (std::size_t i = 0; i < n; ++i)
        if (b[i])
            return false;
    return true;
}

} // namespace

Q_DECLARE_METATYPE(std::vector<ScriptValue>)

class TestEngine : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        std::string error;
        QVERIFY2(m_engine.load(VT_MODULE_PATH, &error), error.c_str());
    }

    void registryMatchesTable()
    {
        QStringList expected;
        for (auto it = table().rbegin(); it != table().rend(); ++it)
            expected << it->name;
        QStringList listed;
        for (const FunctionDecl* f : m_engine.functions())
            listed << QString::fromLatin1(f->name);
        // Head first: the function registered last.
        QCOMPARE(listed, expected);

        for (const FunctionDecl* f : m_engine.functions()) {
            const auto row = std::find_if(table().begin(), table().end(),
                                          [f](const Row& r) { return !std::strcmp(r.name, f->name); });
            QVERIFY(row != table().end());
            QCOMPARE(int(f->minArgs), row->min);
            QCOMPARE(int(f->maxArgs), row->max);
            QCOMPARE(f->isDialogFactory, row->factory ? 1u : 0u);
            for (int i = 0; i < 32; ++i) {
                const std::uint32_t type = row->types.empty() ? (i < row->max ? 1u : 0u)
                                           : i < int(row->types.size()) ? row->types[i]
                                                                        : 0u;
                const std::uint32_t flag = i < int(row->flags.size()) ? row->flags[i] : 0u;
                QCOMPARE(f->argTypes[i], type);
                QCOMPARE(f->argFlags[i], flag);
            }
            QVERIFY(f->handler);
            QCOMPARE(f->reserved0, 0ull);
            QCOMPARE(f->reserved1, 0u);
            QCOMPARE(f->reserved2, 0u);
            QCOMPARE(f->reserved3, 0u);
            QVERIFY(allZero(f->name + std::strlen(f->name), sizeof f->name - std::strlen(f->name)));
        }
    }

    // The list doesn't depend on the callbacks, and asking twice changes nothing.
    void declsBeforeCallbacksAndTwice()
    {
        void* handle = dlopen(VT_MODULE_PATH, RTLD_NOW | RTLD_LOCAL);
        QVERIFY(handle);
        auto get = reinterpret_cast<GetFunctionDeclsFn>(dlsym(handle, "udf_GetFunctionDecls"));
        QVERIFY(get);
        FunctionDecl* first[2] = {nullptr, nullptr};
        std::uint8_t flag[2] = {7, 7};
        std::uint32_t sizes[2][3] = {};
        FunctionDecl* returned[2];
        for (int i = 0; i < 2; ++i)
            returned[i] = get(&first[i], &flag[i], sizes[i]);
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(returned[i], first[i]);
            QCOMPARE(flag[i], std::uint8_t(0));
            QCOMPARE(sizes[i][0], 2192u);
            QCOMPARE(sizes[i][1], 368u);
            QCOMPARE(sizes[i][2], 2u);
        }
        QCOMPARE(first[0], first[1]);
        QCOMPARE(static_cast<const FunctionDecl*>(first[0]), m_engine.functions().front());
        dlclose(handle);
    }

    void refusesModules_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("why");
        QTest::newRow("missing file") << "/nonexistent/libvtdialogs.so" << "cannot load";
        QTest::newRow("no entry points") << VT_NOENTRY_PATH << "not a dialog module";
        QTest::newRow("other record sizes") << VT_BADSIZES_PATH << "2184";
    }
    void refusesModules()
    {
        QFETCH(QString, path);
        QFETCH(QString, why);
        Engine e;
        std::string error;
        QVERIFY(!e.load(path.toStdString(), &error));
        QVERIFY2(QString::fromStdString(error).contains(why), error.c_str());
        QVERIFY(!e.isLoaded());
        QVERIFY(e.functions().empty());
    }

    void refusesCalls_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<std::vector<ScriptValue>>("args");
        QTest::addColumn<int>("status");
        using S = CallResult::Status;
        const ScriptValue text = strings({"a b"});
        QTest::newRow("unknown") << "NoSuchFunction" << std::vector<ScriptValue>{} << int(S::UnknownFunction);
        QTest::newRow("too few") << "ParseEscape" << std::vector<ScriptValue>{} << int(S::BadArgCount);
        QTest::newRow("too many") << "ParseEscape" << std::vector<ScriptValue>{text, text, text}
                                  << int(S::BadArgCount);
        QTest::newRow("reals for strings")
            << "ParseEscape" << std::vector<ScriptValue>{ScriptValue::fromReals({1})} << int(S::BadArgKind);
        QTest::newRow("strings for reals")
            << "ScanEscape" << std::vector<ScriptValue>{text, strings({";"}), strings({"4"})}
            << int(S::BadArgKind);
        QTest::newRow("scalar is fine")
            << "ScanEscape" << std::vector<ScriptValue>{text, strings({";"}), ScriptValue::fromReals({4})}
            << int(S::Ok);
    }
    void refusesCalls()
    {
        QFETCH(QString, name);
        QFETCH(std::vector<ScriptValue>, args);
        QFETCH(int, status);
        const CallResult r = m_engine.call(name.toStdString(), args);
        QCOMPARE(int(r.status), status);
        QCOMPARE(r.error.empty(), status == int(CallResult::Status::Ok));
        if (status != int(CallResult::Status::Ok))
            QVERIFY(!r.hasResult);
    }

    // An empty script array takes the kind its position asks for.
    void emptyArrayAdaptsToType()
    {
        ScriptValue empty;
        empty.untyped = true;
        const CallResult r = m_engine.call("ScanEscape", {strings({"a;b"}), strings({";"}), empty});
        QCOMPARE(int(r.status), int(CallResult::Status::Ok));
        QCOMPARE(r.value.strings, (std::vector<std::string>{"a", "b"}));
    }

    void xFromY_data()
    {
        QTest::addColumn<std::vector<double>>("y");
        QTest::addColumn<double>("level");
        QTest::addColumn<int>("selector"); // 2: record without data
        QTest::addColumn<std::vector<double>>("crossings");
        const std::vector<double> tri = {0, 2, 0, 2, 0};
        QTest::newRow("rising") << tri << 1.0 << 1 << std::vector<double>{0.5, 2.5};
        QTest::newRow("falling") << tri << 1.0 << -1 << std::vector<double>{1.5, 3.5};
        QTest::newRow("both") << tri << 1.0 << 0 << std::vector<double>{0.5, 1.5, 2.5, 3.5};
        QTest::newRow("no selector data is rising") << tri << 1.0 << 2 << std::vector<double>{0.5, 2.5};
        // Reaching the level counts as crossing it; leaving it doesn't again.
        QTest::newRow("touching the level") << std::vector<double>{0, 1, 1, 2} << 1.0 << 1
                                            << std::vector<double>{1};
        QTest::newRow("starting on the level") << std::vector<double>{1, 2, 0, 2} << 1.0 << 1
                                               << std::vector<double>{2.5};
        QTest::newRow("flat") << std::vector<double>{1, 1, 1} << 1.0 << 0 << std::vector<double>{};
        // Long enough to be tested four segments at a time, crossings at
        // every place in a group, NaN crossing nothing.
        std::vector<double> saw, sawCrossings;
        for (int i = 0; i < 41; ++i) {
            saw.push_back(i % 5 != 4 ? 0.0 : i < 30 ? 3.0 : std::nan(""));
            if (i % 5 == 3 && i < 30)
                sawCrossings.push_back(i + 1.0 / 3);
        }
        QTest::newRow("many, in groups of four") << saw << 1.0 << 1 << sawCrossings;
    }
    void xFromY()
    {
        QFETCH(std::vector<double>, y);
        QFETCH(double, level);
        QFETCH(int, selector);
        QFETCH(std::vector<double>, crossings);
        std::vector<double> x(y.size());
        for (std::size_t i = 0; i < x.size(); ++i)
            x[i] = double(i);
        ArgRecord args[4] = {};
        args[0].data = y.data();
        args[0].xData = x.data();
        args[0].count = std::uint32_t(y.size());
        args[1].data = &level;
        double one = 1;
        args[2].data = &one;
        double sel = selector;
        args[3].data = selector == 2 ? nullptr : &sel;
        ScriptValue result;
        int error = -1;
        QVERIFY(vtkit::xFromY(args, 4, result, error));
        QCOMPARE(error, 0);
        QCOMPARE(result.values, crossings);
    }

    void xFromYErrors_data()
    {
        QTest::addColumn<int>("points");
        QTest::addColumn<bool>("withX");
        QTest::newRow("no x values") << 4 << false;
        QTest::newRow("one point") << 1 << true;
        QTest::newRow("no points") << 0 << true;
    }
    void xFromYErrors()
    {
        QFETCH(int, points);
        QFETCH(bool, withX);
        std::vector<double> y(std::size_t(points) + 1, 1.0), x(y.size(), 0.0);
        double level = 0.5;
        ArgRecord args[4] = {};
        args[0].data = y.data();
        args[0].xData = withX ? x.data() : nullptr;
        args[0].count = std::uint32_t(points);
        args[1].data = &level;
        ScriptValue result;
        int error = 0;
        QVERIFY(!vtkit::xFromY(args, 4, result, error));
        QVERIFY(error != 0);
    }

    // A replaced host function is what the module's nested calls reach.
    void hostFunctionsCanBeReplaced()
    {
        Engine e;
        QVERIFY(e.load(VT_MODULE_PATH));
        int calls = 0;
        e.registerHostFunction("XfromY", [&calls](const ArgRecord*, int, ScriptValue& r, int& err) {
            ++calls;
            err = 0;
            r = ScriptValue::fromReals({1, 3, 4});
            return true;
        });
        const ScriptValue w = ScriptValue::waveform({0, 1, 0, 1}, {0, 1, 2, 3});
        CallResult r = e.call("PerCycleTiming", {w, strings({"period"}), strings({"smooth"})});
        QCOMPARE(calls, 1);
        QCOMPARE(r.value.values, (std::vector<double>{2, 1}));

        e.removeHostFunction("XfromY");
        r = e.call("PerCycleTiming", {w, strings({"period"})});
        QCOMPARE(int(r.status), int(CallResult::Status::Ok));
        QVERIFY(!r.hasResult);
    }

private:
    Engine m_engine;
};

QTEST_GUILESS_MAIN(TestEngine)
#include "tst_engine.moc"
