// ParseEscape, ScanEscape, BRELVONSearchIdx and ThdWeight, called through
// the engine on the built module.
#include "engine.h"

#include <QtTest>

#include <limits>

using vtkit::CallResult;
using vtkit::ScriptValue;

namespace {

ScriptValue one(const QByteArray& text)
{
    return ScriptValue::fromStrings({text.toStdString()});
}

QByteArrayList stringsOf(const CallResult& r)
{
    QByteArrayList out;
    for (const std::string& s : r.value.strings)
        out << QByteArray::fromStdString(s);
    return out;
}

} // namespace

class TestTextFunctions : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_engine.load(VT_MODULE_PATH)); }

    void split_data();
    void split();
    void emptyArguments();
    void padLimits_data();
    void padLimits();
    void searchIndex_data();
    void searchIndex();
    void thdWeight_data();
    void thdWeight();

private:
    vtkit::Engine m_engine;
};

void TestTextFunctions::split_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<QByteArrayList>("args"); // one string array of one element each
    QTest::addColumn<int>("pad");             // ScanEscape's third argument; -1 absent
    QTest::addColumn<bool>("hasResult");
    QTest::addColumn<QByteArrayList>("expected");

    const QByteArrayList none;
    QTest::newRow("parse defaults") << "ParseEscape" << QByteArrayList{"a b,c\td"} << -1 << true
                                    << QByteArrayList{"a", "b", "c", "d"};
    QTest::newRow("parse drops empty parts") << "ParseEscape" << QByteArrayList{"a  b,"} << -1
                                             << true << QByteArrayList{"a", "b"};
    QTest::newRow("parse only delimiters") << "ParseEscape" << QByteArrayList{" ,\t"} << -1 << true
                                           << none;
    QTest::newRow("parse escaped space") << "ParseEscape" << QByteArrayList{"a\\ b c"} << -1
                                         << true << QByteArrayList{"a b", "c"};
    QTest::newRow("parse double backslash still escapes")
        << "ParseEscape" << QByteArrayList{"a\\\\,b"} << -1 << true << QByteArrayList{"a\\,b"};
    QTest::newRow("parse backslash before other char stays")
        << "ParseEscape" << QByteArrayList{"a\\x b"} << -1 << true << QByteArrayList{"a\\x", "b"};
    QTest::newRow("parse literal regex chars") << "ParseEscape" << QByteArrayList{"a|b.c\\|d x", "|."}
                                               << -1 << true << QByteArrayList{"a", "b", "c|d x"};
    QTest::newRow("parse empty delimiters passes bytes")
        << "ParseEscape" << QByteArrayList{"a b\xe9", ""} << -1 << true
        << QByteArrayList{"a b\xe9"};
    QTest::newRow("parse latin1 in, utf8 out") << "ParseEscape" << QByteArrayList{"\xe9 b"} << -1
                                               << true << QByteArrayList{"\xc3\xa9", "b"};
    QTest::newRow("parse empty text") << "ParseEscape" << QByteArrayList{""} << -1 << false << none;
    QTest::newRow("parse empty text, empty delimiters")
        << "ParseEscape" << QByteArrayList{"", ""} << -1 << false << none;
    QTest::newRow("backslash as delimiter splits unless escaped by one")
        << "ParseEscape" << QByteArrayList{"a\\b\\\\c", "\\"} << -1 << true
        << QByteArrayList{"a", "b", "\\c"};
    QTest::newRow("a repeated delimiter unescapes twice")
        << "ScanEscape" << QByteArrayList{"\\\\\\;a;b", ";;"} << -1 << true
        << QByteArrayList{"\\;a", "b"};
    QTest::newRow("scan keeps empty parts") << "ScanEscape" << QByteArrayList{"a;;b"} << -1 << true
                                            << QByteArrayList{"a", "", "b"};
    QTest::newRow("scan default is only semicolon")
        << "ScanEscape" << QByteArrayList{"a b,c;d"} << -1 << true << QByteArrayList{"a b,c", "d"};
    QTest::newRow("scan escaped semicolon") << "ScanEscape" << QByteArrayList{"a\\;b;c"} << -1
                                            << true << QByteArrayList{"a;b", "c"};
    QTest::newRow("scan pads") << "ScanEscape" << QByteArrayList{"a;b", ";"} << 4 << true
                               << QByteArrayList{"a", "b", "", ""};
    // More copies than one block of the host's DupString holds, with a
    // part too long to share a block among them.
    QByteArrayList many;
    for (int i = 0; i < 20000; ++i)
        many << (i == 7000 ? QByteArray(20000, 'L') : "w" + QByteArray::number(i));
    QTest::newRow("parse many parts, one long") << "ParseEscape" << QByteArrayList{many.join(' ')} << -1
                                                << true << many;
    QTest::newRow("scan pad below parts") << "ScanEscape" << QByteArrayList{"a;b;c", ";"} << 2
                                          << true << QByteArrayList{"a", "b", "c"};
}

void TestTextFunctions::split()
{
    QFETCH(QString, function);
    QFETCH(QByteArrayList, args);
    QFETCH(int, pad);
    QFETCH(bool, hasResult);
    QFETCH(QByteArrayList, expected);

    std::vector<ScriptValue> values;
    for (const QByteArray& a : args)
        values.push_back(one(a));
    if (pad >= 0)
        values.push_back(ScriptValue::fromReals({pad + 0.7})); // truncated towards zero
    const CallResult r = m_engine.call(function.toStdString(), values);
    QCOMPARE(int(r.status), int(CallResult::Status::Ok));
    QCOMPARE(r.hasResult, hasResult);
    if (hasResult) {
        QCOMPARE(int(r.value.kind), int(ScriptValue::Kind::Strings));
        QCOMPARE(stringsOf(r), expected);
    }
}

void TestTextFunctions::emptyArguments()
{
    // Empty arrays in every position: nothing to work on, nothing read.
    const ScriptValue empty = ScriptValue::fromStrings({});
    QVERIFY(!m_engine.call("ThdWeight", {empty}).hasResult);
    QVERIFY(!m_engine.call("ParseEscape", {empty}).hasResult);
    QVERIFY(!m_engine.call("ScanEscape", {empty, empty, ScriptValue::fromReals({})}).hasResult);
    // An empty delimiter array is an absent one.
    const CallResult r = m_engine.call("ScanEscape", {one("a;b"), empty, ScriptValue::fromReals({})});
    QCOMPARE(stringsOf(r), (QByteArrayList{"a", "b"}));
}

void TestTextFunctions::padLimits_data()
{
    QTest::addColumn<double>("pad");
    QTest::addColumn<int>("parts");

    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("1e18 is capped") << 1e18 << 100000;
    QTest::newRow("2^31 is capped") << 2147483648.0 << 100000;
    QTest::newRow("infinity is capped") << std::numeric_limits<double>::infinity() << 100000;
    QTest::newRow("just below the cap") << 99999.9 << 99999;
    QTest::newRow("-1e18 pads nothing") << -1e18 << 2;
    QTest::newRow("nan pads nothing") << nan << 2;
}

// A count from a script never turns into an allocation request.
void TestTextFunctions::padLimits()
{
    QFETCH(double, pad);
    QFETCH(int, parts);

    QElapsedTimer clock;
    clock.start();
    const CallResult r =
        m_engine.call("ScanEscape", {one("a;b"), one(";"), ScriptValue::fromReals({pad})});
    QCOMPARE(int(r.status), int(CallResult::Status::Ok));
    QCOMPARE(int(r.value.strings.size()), parts);
    QCOMPARE(QByteArray::fromStdString(r.value.strings.back()), parts > 2 ? "" : "b");
    QVERIFY2(clock.elapsed() < 5000, "a huge count must not cost time");
}

void TestTextFunctions::searchIndex_data()
{
    QTest::addColumn<QByteArrayList>("items");
    QTest::addColumn<QByteArrayList>("value"); // empty: an empty array
    QTest::addColumn<QByteArrayList>("option"); // empty: argument not passed
    QTest::addColumn<QVector<double>>("expected");

    const QByteArrayList items{"a", "B", "A"};
    QTest::newRow("ignores case") << items << QByteArrayList{"a"} << QByteArrayList{}
                                  << QVector<double>{0, 2};
    QTest::newRow("case sensitive option") << items << QByteArrayList{"a"}
                                           << QByteArrayList{"CASESENSITIVE"} << QVector<double>{0};
    QTest::newRow("no match") << items << QByteArrayList{"c"} << QByteArrayList{}
                              << QVector<double>{-1};
    QTest::newRow("prefix is no match") << QByteArrayList{"ab", "abc"} << QByteArrayList{"AB"}
                                        << QByteArrayList{} << QVector<double>{0};
    QTest::newRow("empty array") << QByteArrayList{} << QByteArrayList{"a"} << QByteArrayList{}
                                 << QVector<double>{-1};
    QTest::newRow("empty value array") << items << QByteArrayList{} << QByteArrayList{}
                                       << QVector<double>{-1};
}

void TestTextFunctions::searchIndex()
{
    QFETCH(QByteArrayList, items);
    QFETCH(QByteArrayList, value);
    QFETCH(QByteArrayList, option);
    QFETCH(QVector<double>, expected);

    auto toArray = [](const QByteArrayList& list) {
        std::vector<std::string> out;
        for (const QByteArray& s : list)
            out.push_back(s.toStdString());
        return ScriptValue::fromStrings(out);
    };
    ScriptValue haystack = toArray(items);
    haystack.units = "Index";
    std::vector<ScriptValue> args{haystack, toArray(value)};
    if (!option.isEmpty())
        args.push_back(toArray(option));
    const CallResult r = m_engine.call("BRELVONSearchIdx", args);
    QVERIFY(r.hasResult);
    QCOMPARE(int(r.value.kind), int(ScriptValue::Kind::Reals));
    QCOMPARE(QVector<double>(r.value.values.begin(), r.value.values.end()), expected);
    QCOMPARE(QString::fromStdString(r.value.units), QString("Index"));
}

void TestTextFunctions::thdWeight_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<int>("index"); // -1: no result expected
    QTest::addColumn<double>("weight");

    QTest::newRow("a at 10 Hz") << QByteArray("a") << 0 << -70.4;
    QTest::newRow("A at 10 Hz") << QByteArray("A") << 0 << -70.4;
    QTest::newRow("b at 20 kHz") << QByteArray("B") << 33 << -11.1;
    QTest::newRow("c at 1 kHz") << QByteArray("c") << 20 << 0.0;
    QTest::newRow("d at 3150 Hz") << QByteArray("d") << 25 << 11.6;
    QTest::newRow("longer key") << QByteArray("aa") << -1 << 0.0;
    QTest::newRow("empty key") << QByteArray("") << -1 << 0.0;
    QTest::newRow("unknown key") << QByteArray("e") << -1 << 0.0;
}

void TestTextFunctions::thdWeight()
{
    QFETCH(QByteArray, key);
    QFETCH(int, index);
    QFETCH(double, weight);

    const CallResult r = m_engine.call("ThdWeight", {one(key)});
    QCOMPARE(r.hasResult, index >= 0);
    if (index < 0)
        return;
    QCOMPARE(r.value.values.size(), size_t(34));
    QCOMPARE(r.value.x.size(), size_t(34));
    QCOMPARE(r.value.x.front(), 10.0);
    QCOMPARE(r.value.x[20], 1000.0);
    QCOMPARE(r.value.x.back(), 20000.0);
    QVERIFY(r.value.units.empty() && r.value.xUnits.empty());
    QCOMPARE(r.value.values[size_t(index)], weight);

    const CallResult lower = m_engine.call("ThdWeight", {one(key.toLower())});
    QVERIFY(lower.value == r.value);
}

QTEST_GUILESS_MAIN(TestTextFunctions)
#include "tst_textfunctions.moc"
