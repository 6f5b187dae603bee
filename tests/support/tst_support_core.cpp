// Strings, containers, numbers, help and the call record of libvtsupport.
#include "kitsupport.h"
#include "udf.h"

#include <QDir>
#include <QTemporaryFile>
#include <QtTest>

#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

Q_DECLARE_METATYPE(std::vector<double>)

namespace {

QStringList toList(const YArray<YString>& parts)
{
    QStringList list;
    for (long long i = 0; i < parts.count(); ++i)
        list << toQs(parts[i]);
    return list;
}

bool near(double a, double b)
{
    if (a == b)
        return true;
    return std::fabs(a - b) <= 1e-12 * std::max(std::fabs(a), std::fabs(b));
}

} // namespace

class TestSupportCore : public QObject {
    Q_OBJECT

private slots:
    void engToReal_data();
    void engToReal();
    void engToRealSpecial();
    void realToEng_data();
    void realToEng();
    void engRoundTrip_data();
    void engRoundTrip();
    void splitLine_data();
    void splitLine();
    void splitLineClearsFirst();
    void scanLine_data();
    void scanLine();
    void binarySearch_data();
    void binarySearch();
    void binarySearchLarge();
    void hashStable_data();
    void hashStable();
    void yStringBasics();
    void yStringConcat();
    void stripQuotes_data();
    void stripQuotes();
    void latin1RoundTrip();
    void arrays();
    void vectorAppendSelf();
    void allocPrimOutOfMemory();
    void arrayDataOutOfMemory();
    void exceptions();
    void help();
    void helpContextId_data();
    void helpContextId();
    void extensions();
    void files();
    void clipboardWithoutGui();
    void callRecord();
};

// ------------------------------------------------------------------ numbers

void TestSupportCore::engToReal_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("expected");
    QTest::addColumn<int>("endOffset");

    QTest::newRow("plain") << QByteArray("12.5") << 12.5 << 4;
    QTest::newRow("leading space") << QByteArray("  12") << 12.0 << 4;
    QTest::newRow("k") << QByteArray("10k") << 1e4 << 3;
    QTest::newRow("K") << QByteArray("10K") << 1e4 << 3;
    QTest::newRow("MEG") << QByteArray("1.5MEG") << 1.5e6 << 6;
    QTest::newRow("Meg") << QByteArray("100Meg") << 1e8 << 6;
    QTest::newRow("meg") << QByteArray("1.5meg") << 1.5e6 << 6;
    QTest::newRow("mil") << QByteArray("2mil") << 2 * 25.4e-6 << 4;
    QTest::newRow("m") << QByteArray("3m") << 3e-3 << 2;
    QTest::newRow("M is milli") << QByteArray("3M") << 3e-3 << 2;
    QTest::newRow("T") << QByteArray("8T") << 8e12 << 2;
    QTest::newRow("G") << QByteArray("9g") << 9e9 << 2;
    QTest::newRow("u") << QByteArray("4u") << 4e-6 << 2;
    QTest::newRow("micro latin1") << QByteArray("4\xB5") << 4e-6 << 2;
    QTest::newRow("micro utf8") << QByteArray("4\xC2\xB5") << 4e-6 << 3;
    QTest::newRow("n") << QByteArray("5n") << 5e-9 << 2;
    QTest::newRow("p") << QByteArray("6P") << 6e-12 << 2;
    QTest::newRow("f") << QByteArray("7f") << 7e-15 << 2;
    QTest::newRow("unit after suffix") << QByteArray("10kOhm") << 1e4 << 6;
    QTest::newRow("unit only") << QByteArray("10Ohm") << 10.0 << 5;
    QTest::newRow("nF") << QByteArray("1nF rest") << 1e-9 << 3;
    QTest::newRow("exponent and suffix") << QByteArray("1e3k") << 1e6 << 4;
    QTest::newRow("negative") << QByteArray("-2.5K") << -2500.0 << 5;
    QTest::newRow("space before suffix") << QByteArray("10 k") << 10.0 << 2;
    QTest::newRow("no number") << QByteArray("abc") << 0.0 << 0;
    QTest::newRow("empty") << QByteArray("") << 0.0 << 0;
}

void TestSupportCore::engToReal()
{
    QFETCH(QByteArray, text);
    QFETCH(double, expected);
    QFETCH(int, endOffset);
    char* end = nullptr;
    const double value = sp_ConvertEngToReal(text.constData(), &end);
    QVERIFY2(near(value, expected), qPrintable(QString::number(value, 'g', 17)));
    QCOMPARE(int(end - text.constData()), endOffset);
    QVERIFY(near(sp_ConvertEngToReal(text.constData(), nullptr), expected));
}

void TestSupportCore::engToRealSpecial()
{
    char* end = reinterpret_cast<char*>(1);
    QCOMPARE(sp_ConvertEngToReal(static_cast<const char*>(nullptr), &end), 0.0);
    QVERIFY(!end);

    end = reinterpret_cast<char*>(1);
    QVERIFY(near(sp_ConvertEngToReal(QString::fromUtf8("4.7\xC2\xB5"), &end), 4.7e-6));
    QVERIFY(!end);
    QVERIFY(near(sp_ConvertEngToReal(QStringLiteral("2.2kOhm"), nullptr), 2200));
    QCOMPARE(sp_ConvertEngToReal(QString(), nullptr), 0.0);
}

void TestSupportCore::realToEng_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("digits");
    QTest::addColumn<QString>("expected");

    QTest::newRow("kilo, six digits") << 62831.853 << 6 << "62.8319k";
    QTest::newRow("Meg") << 1e6 << 6 << "1Meg";
    QTest::newRow("u") << 1e-6 << 6 << "1u";
    QTest::newRow("m") << 0.0015 << 6 << "1.5m";
    QTest::newRow("zero") << 0.0 << 6 << "0";
    QTest::newRow("negative") << -4700.0 << 3 << "-4.7k";
    QTest::newRow("carry") << 999.9996 << 6 << "1k";
    QTest::newRow("carry from below") << 0.000999999999 << 6 << "1m";
    QTest::newRow("plain") << 100.0 << 6 << "100";
    QTest::newRow("rounded") << 1234.5678 << 3 << "1.23k";
    QTest::newRow("G") << 12345678901.0 << 4 << "12.35G";
    QTest::newRow("T") << 999e12 << 3 << "999T";
    QTest::newRow("f") << 1e-15 << 3 << "1f";
    QTest::newRow("p") << 4.7e-12 << 3 << "4.7p";
    QTest::newRow("n") << 33e-9 << 3 << "33n";
    QTest::newRow("one digit") << 62.8 << 1 << "60";
    QTest::newRow("digits 0 as 1") << 1.5 << 0 << "2";
    QTest::newRow("above range") << 1e15 << 3 << "1e+15";
    QTest::newRow("below range") << 1e-16 << 3 << "1e-16";
    QTest::newRow("carry out of range") << 999.9999e12 << 3 << "1e+15";
    QTest::newRow("nan") << std::numeric_limits<double>::quiet_NaN() << 6 << "nan";
    QTest::newRow("inf") << std::numeric_limits<double>::infinity() << 6 << "inf";
    QTest::newRow("-inf") << -std::numeric_limits<double>::infinity() << 6 << "-inf";
}

void TestSupportCore::realToEng()
{
    QFETCH(double, value);
    QFETCH(int, digits);
    QFETCH(QString, expected);
    QCOMPARE(toQs(sp_ConvertRealToJSEng(value, digits, false)), expected);
}

void TestSupportCore::engRoundTrip_data()
{
    QTest::addColumn<double>("value");
    for (double v : {1.0, 62831.853, -4.7e-9, 1.2345e-13, 3.3e12, 0.5, 999.0, 1001.0, 2.2e-3,
                     7.77e7})
        QTest::newRow(qPrintable(QString::number(v, 'g', 10))) << v;
}

void TestSupportCore::engRoundTrip()
{
    QFETCH(double, value);
    const YString text = sp_ConvertRealToJSEng(value, 12, false);
    const double back = sp_ConvertEngToReal(text.c_str(), nullptr);
    QVERIFY2(std::fabs(back - value) <= 1e-10 * std::fabs(value), text.c_str());
}

// -------------------------------------------------------------------- split

void TestSupportCore::splitLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<char>("separator");
    QTest::addColumn<int>("maxParts");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("empty") << QByteArray("") << '|' << 0 << QStringList();
    QTest::newRow("one") << QByteArray("a") << '|' << 0 << QStringList{"a"};
    QTest::newRow("two") << QByteArray("a|b") << '|' << 0 << QStringList{"a", "b"};
    QTest::newRow("empty middle") << QByteArray("a||b") << '|' << 0 << QStringList{"a", "", "b"};
    QTest::newRow("trailing") << QByteArray("a|") << '|' << 0 << QStringList{"a", ""};
    QTest::newRow("leading") << QByteArray("|a") << '|' << 0 << QStringList{"", "a"};
    QTest::newRow("only separator") << QByteArray("|") << '|' << 0 << QStringList{"", ""};
    QTest::newRow("max 3") << QByteArray("a|b|c|d") << '|' << 3 << QStringList{"a", "b", "c"};
    QTest::newRow("max 10 colon") << QByteArray("x:y: z") << ':' << 10
                                  << QStringList{"x", "y", " z"};
    QTest::newRow("max 1") << QByteArray("a|b") << '|' << 1 << QStringList{"a"};
    QTest::newRow("max equal") << QByteArray("a|b|") << '|' << 3 << QStringList{"a", "b", ""};
    QTest::newRow("other separator kept") << QByteArray("a;b|c") << '|' << 0
                                          << QStringList{"a;b", "c"};
}

void TestSupportCore::splitLine()
{
    QFETCH(QByteArray, line);
    QFETCH(char, separator);
    QFETCH(int, maxParts);
    QFETCH(QStringList, expected);
    YArray<YString> parts;
    sp_SplitLine(line.constData(), separator, &parts, maxParts);
    QCOMPARE(toList(parts), expected);
}

void TestSupportCore::splitLineClearsFirst()
{
    YList<YString> parts;
    parts.add("old");
    sp_SplitLine(nullptr, '|', &parts, 0);
    QCOMPARE(parts.count(), 0LL);
    parts.add("old");
    sp_SplitLine("n|m", '|', &parts, 0);
    QCOMPARE(toList(parts), (QStringList{"n", "m"}));
    sp_ScanLine("q", " ", &parts, 0);
    QCOMPARE(toList(parts), QStringList{"q"});
}

void TestSupportCore::scanLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("separators");
    QTest::addColumn<int>("maxParts");
    QTest::addColumn<QStringList>("expected");

    const QByteArray seps(" \t\n\r,()");
    QTest::newRow("empty") << QByteArray("") << seps << 0x7fffffff << QStringList();
    QTest::newRow("only separators") << QByteArray(" ,( )\t") << seps << 0x7fffffff
                                     << QStringList();
    QTest::newRow("runs") << QByteArray(" a  b\t(c),d \r\n") << seps << 0x7fffffff
                          << QStringList{"a", "b", "c", "d"};
    QTest::newRow("no limit 0") << QByteArray("1 2 3") << QByteArray(" ") << 0
                                << QStringList{"1", "2", "3"};
    QTest::newRow("max 2") << QByteArray("1 2 3") << QByteArray(" ") << 2
                           << QStringList{"1", "2"};
    QTest::newRow("trailing") << QByteArray("x,") << seps << 0x7fffffff << QStringList{"x"};
}

void TestSupportCore::scanLine()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, separators);
    QFETCH(int, maxParts);
    QFETCH(QStringList, expected);
    YArray<YString> parts;
    sp_ScanLine(line.constData(), separators.constData(), &parts, maxParts);
    QCOMPARE(toList(parts), expected);
}

// ------------------------------------------------------------ binary search

void TestSupportCore::binarySearch_data()
{
    QTest::addColumn<std::vector<double>>("values");
    QTest::addColumn<double>("value");
    QTest::addColumn<long long>("lower");

    const std::vector<double> four{0, 1, 2, 3};
    QTest::newRow("below") << four << -1.0 << -1LL;
    QTest::newRow("first") << four << 0.0 << 0LL;
    QTest::newRow("inside first") << four << 0.5 << 0LL;
    QTest::newRow("on sample") << four << 1.0 << 1LL;
    QTest::newRow("inside last") << four << 2.5 << 2LL;
    QTest::newRow("last sample") << four << 3.0 << 2LL;
    QTest::newRow("above") << four << 3.5 << 4LL;
    QTest::newRow("one equal") << std::vector<double>{5} << 5.0 << 0LL;
    QTest::newRow("one below") << std::vector<double>{5} << 4.0 << -1LL;
    QTest::newRow("one above") << std::vector<double>{5} << 6.0 << 1LL;
    QTest::newRow("empty") << std::vector<double>{} << 1.0 << -1LL;
    QTest::newRow("two last") << std::vector<double>{1, 2} << 2.0 << 0LL;
    QTest::newRow("duplicates") << std::vector<double>{0, 1, 1, 2} << 1.0 << 2LL;
}

void TestSupportCore::binarySearch()
{
    QFETCH(std::vector<double>, values);
    QFETCH(double, value);
    QFETCH(long long, lower);
    long long lo = 12345, up = 12345;
    sp_BinarySearch(values.data(), static_cast<long long>(values.size()), value, &lo, &up, 1);
    QCOMPARE(lo, lower);
    QCOMPARE(up, lower + 1);
}

void TestSupportCore::binarySearchLarge()
{
    std::vector<double> values(2000001);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<double>(i) * 0.5;
    const long long n = static_cast<long long>(values.size());
    for (long long k = 0; k < 2000; ++k) {
        const long long i = (k * 7919) % (n - 1);
        long long lo = 0, up = 0;
        sp_BinarySearch(values.data(), n, values[i] + 0.25, &lo, &up, 1);
        if (lo != i)
            QFAIL(qPrintable(QString("index %1 gave %2").arg(i).arg(lo)));
    }
}

// ------------------------------------------------------------------ strings

void TestSupportCore::hashStable_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<uint>("hash");
    // FNV-1a 32-bit; pinned so that a change of algorithm is caught.
    QTest::newRow("empty") << QByteArray("") << 2166136261u;
    QTest::newRow("a") << QByteArray("a") << 3826002220u;
    QTest::newRow("foobar") << QByteArray("foobar") << 3214735720u;
    QTest::newRow("TableDialogDims") << QByteArray("TableDialogDims") << 3186106512u;
}

void TestSupportCore::hashStable()
{
    QFETCH(QByteArray, text);
    QFETCH(uint, hash);
    QCOMPARE(YString(text.constData()).hashValue(), hash);
}

void TestSupportCore::yStringBasics()
{
    QCOMPARE(sizeof(YString), sizeof(void*));
    YString empty;
    QVERIFY(empty.c_str());
    QCOMPARE(empty.length(), 0);
    QVERIFY(empty.isEmpty());
    YString fromNull(static_cast<const char*>(nullptr));
    QVERIFY(fromNull.c_str() && !*fromNull.c_str());
    QCOMPARE(fromNull, empty);

    QCOMPARE(QByteArray(YString(-42).c_str()), QByteArray("-42"));
    QCOMPARE(QByteArray(YString(0).c_str()), QByteArray("0"));
    QCOMPARE(QByteArray(YString(INT_MIN).c_str()), QByteArray("-2147483648"));

    YString a("hello");
    YString b(a);
    QCOMPARE(b.c_str(), a.c_str()); // shared
    YString c;
    c = a;
    QCOMPARE(c.c_str(), a.c_str());
    c = "other";
    QCOMPARE(QByteArray(a.c_str()), QByteArray("hello"));
    QCOMPARE(QByteArray(c.c_str()), QByteArray("other"));
    c = c.c_str() + 1; // assignment from its own text
    QCOMPARE(QByteArray(c.c_str()), QByteArray("ther"));
    c = c;
    QCOMPARE(QByteArray(c.c_str()), QByteArray("ther"));
    QVERIFY(a == YString("hello"));
    QVERIFY(a != c);
    QCOMPARE(a.length(), 5);
    const char* asChar = a;
    QCOMPARE(QByteArray(asChar), QByteArray("hello"));

    b.stripQuotes("\"", false); // no quotes: b still shares a's text
    QCOMPARE(QByteArray(a.c_str()), QByteArray("hello"));
}

void TestSupportCore::yStringConcat()
{
    const YString a("ab");
    YString r = a.concat("x").concat("y");
    QCOMPARE(QByteArray(r.c_str()), QByteArray("abxy"));
    QCOMPARE(QByteArray(a.c_str()), QByteArray("ab"));
    YString n = a.concat(nullptr).concat(nullptr).concat("");
    QCOMPARE(QByteArray(n.c_str()), QByteArray("ab"));
    YString e = YString().concat("z");
    QCOMPARE(QByteArray(e.c_str()), QByteArray("z"));

    // Two temporaries alive in one expression.
    YString both = YString(YString("1").concat("2")).concat(YString("3").concat("4").c_str());
    QCOMPARE(QByteArray(both.c_str()), QByteArray("1234"));

    // Many in a row, more than the ring holds, and a long chain.
    YString acc("s");
    for (int i = 0; i < 100; ++i)
        acc = acc.concat("-").concat(YString(i).c_str());
    QVERIFY(QByteArray(acc.c_str()).startsWith("s-0-1-2-"));
    QVERIFY(QByteArray(acc.c_str()).endsWith("-98-99"));

    TempString& t = a.concat("c");
    t.concat(t.c_str()); // appending its own text
    QCOMPARE(QByteArray(t.c_str()), QByteArray("abcabc"));
    QCOMPARE(t.length(), 6);
}

void TestSupportCore::stripQuotes_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("quotes");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("double") << QByteArray("\"abc\"") << QByteArray("\"'") << QByteArray("abc");
    QTest::newRow("single") << QByteArray("'abc'") << QByteArray("\"'") << QByteArray("abc");
    QTest::newRow("mixed") << QByteArray("'abc\"") << QByteArray("\"'") << QByteArray("'abc\"");
    QTest::newRow("not a quote") << QByteArray("'abc'") << QByteArray("\"") << QByteArray("'abc'");
    QTest::newRow("only open") << QByteArray("\"abc") << QByteArray("\"") << QByteArray("\"abc");
    QTest::newRow("pair") << QByteArray("\"\"") << QByteArray("\"") << QByteArray("");
    QTest::newRow("single char") << QByteArray("\"") << QByteArray("\"") << QByteArray("\"");
    QTest::newRow("one pair only") << QByteArray("\"\"x\"\"") << QByteArray("\"")
                                   << QByteArray("\"x\"");
    QTest::newRow("empty") << QByteArray("") << QByteArray("\"") << QByteArray("");
}

void TestSupportCore::stripQuotes()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, quotes);
    QFETCH(QByteArray, expected);
    YString s(text.constData());
    const YString shared(s);
    s.stripQuotes(quotes.constData(), false);
    QCOMPARE(QByteArray(s.c_str()), expected);
    QCOMPARE(QByteArray(shared.c_str()), text); // the copy keeps its text
}

void TestSupportCore::latin1RoundTrip()
{
    QByteArray bytes;
    for (int c = 1; c < 256; ++c)
        bytes.append(static_cast<char>(c));
    const YString y(bytes.constData());
    const QString q = toQs(y);
    QCOMPARE(q.size(), 255);
    QCOMPARE(q.at(0xB4).unicode(), ushort(0xB5));
    QCOMPARE(QByteArray(toYs(q).c_str()), bytes);
    Tocs narrow(q);
    QCOMPARE(QByteArray(static_cast<const char*>(narrow)), bytes);
    QVERIFY(equals(QStringLiteral("x"), QStringLiteral("x")));
    QVERIFY(!equals(QStringLiteral("x"), QStringLiteral("X")));
    Tocs empty{QString()};
    QCOMPARE(QByteArray(static_cast<const char*>(empty)), QByteArray(""));
}

// --------------------------------------------------------------- containers

void TestSupportCore::arrays()
{
    YArray<YString> a;
    QVERIFY(a.isEmpty());
    a.add("b");
    a.insertAt("a", 0);
    a.insertAt("d", 99);  // clamped: appended
    a.insertAt("c", 2);
    a.insertAt("e", -1);  // negative appends
    QCOMPARE(toList(a), (QStringList{"a", "b", "c", "d", "e"}));
    a.removeAt(1);
    a.removeAt(10);
    QCOMPARE(toList(a), (QStringList{"a", "c", "d", "e"}));
    // Adding an element of the array itself while it grows.
    for (int i = 0; i < 100; ++i)
        a.add(a[0]);
    QCOMPARE(a.count(), 104LL);
    QCOMPARE(QByteArray(a[103].c_str()), QByteArray("a"));
    a.clear();
    QCOMPARE(a.size(), 0LL);

    YArrayData raw(sizeof(int));
    int v = 1;
    QCOMPARE(raw.addDataAt(&v, -1), 0LL);
    v = 3;
    QCOMPARE(raw.addDataAt(&v, 5), 1LL);
    v = 2;
    QCOMPARE(raw.addDataAt(&v, 1), 1LL);
    for (int i = 0; i < 50; ++i)
        raw.addDataAt(raw.at(0), 0); // element inside the array
    QCOMPARE(raw.count(), 53LL);
    QCOMPARE(*static_cast<int*>(raw.at(50)), 1);
    QCOMPARE(*static_cast<int*>(raw.at(51)), 2);
    QCOMPARE(*static_cast<int*>(raw.at(52)), 3);
    raw.removeBytesAt(51);
    QCOMPARE(*static_cast<int*>(raw.at(51)), 3);
    raw.truncate(2);
    QCOMPARE(raw.count(), 2LL);
}

void TestSupportCore::vectorAppendSelf()
{
    YVector<double> v(3);
    QCOMPARE(v.size(), 3LL);
    QCOMPARE(v[2], 0.0);
    v[0] = 7.5;
    for (int i = 0; i < 40; ++i)
        v.append(v[0]);
    QCOMPARE(v.size(), 43LL);
    QCOMPARE(v[42], 7.5);
    v.clear();
    QCOMPARE(v.size(), 0LL);
}

void TestSupportCore::allocPrimOutOfMemory()
{
    // Code and text of the exception, "" when none is thrown.
    auto check = [](auto& vector, const char* expected) -> bool {
        try {
            vector.allocPrim(LLONG_MAX); // beyond SIZE_MAX / sizeof(T): nothing is allocated
        } catch (const MemoryException& e) {
            return e.code() == 5 && QByteArray(e.text()) == QByteArray(expected);
        }
        return false;
    };
    YVector<double> d;
    QVERIFY(check(d, "*** Fatal error, out of memory ***\nDetected in YVector<double>::allocPrim"));
    YVector<bool> b;
    QVERIFY(check(b, "*** Fatal error, out of memory ***\nDetected in YVector<bool>::allocPrim"));
    YVector<const char*> s;
    QVERIFY(check(s, "*** Fatal error, out of memory ***\nDetected in YVector<const char*>::allocPrim"));
    bool thrown = false;
    try {
        YVector<double> negative(-1);
    } catch (const VantrellException& e) {
        thrown = true;
        QCOMPARE(e.code(), 5);
    }
    QVERIFY(thrown);
}

void TestSupportCore::arrayDataOutOfMemory()
{
    YArrayData raw(16);
    bool thrown = false;
    try {
        raw.checkAlloc(LLONG_MAX / 2);
    } catch (const MemoryException& e) {
        thrown = true;
        QCOMPARE(e.code(), 5);
        QCOMPARE(QByteArray(e.text()),
                 QByteArray("*** Fatal error, out of memory ***\nDetected in YArrayData::checkAlloc"));
    }
    QVERIFY(thrown);
    QCOMPARE(raw.count(), 0LL);
}

void TestSupportCore::exceptions()
{
    VantrellException plain;
    QCOMPARE(plain.code(), 9);
    QCOMPARE(QByteArray(plain.text()), QByteArray(""));
    const std::string longText(2000, 'x');
    VantrellException big(3, longText.c_str());
    QCOMPARE(big.code(), 3);
    QCOMPARE(std::strlen(big.text()), std::size_t(VantrellException::TextSize - 1));
    MemoryException memory("m");
    QCOMPARE(memory.code(), 5);
    QCOMPARE(QByteArray(memory.text()), QByteArray("m"));
    const VantrellException& base = memory;
    QCOMPARE(base.code(), 5);
}

// --------------------------------------------------------------------- help

void TestSupportCore::help()
{
    vtkit::clearHelpRequests();
    sp_RunHelp(RunHelpContext, "4711", nullptr, nullptr); // default handler: stderr
    QStringList seen;
    vtkit::setHelpHandler([&seen](const QString& topic) { seen << topic; });
    int unused = 0;
    sp_RunHelp(RunHelpContext, "123", &unused, nullptr);
    sp_RunHelp(RunHelpKeyword, nullptr, nullptr, nullptr);
    QCOMPARE(seen, (QStringList{"123", ""}));
    QCOMPARE(vtkit::helpRequests(), (QStringList{"4711", "123", ""}));
    vtkit::setHelpHandler({});
    vtkit::clearHelpRequests();
    QVERIFY(vtkit::helpRequests().isEmpty());
    sp_RunHelp(RunHelpContext, "9", nullptr, nullptr);
    QCOMPARE(vtkit::helpRequests(), QStringList{"9"});
    QCOMPARE(seen.size(), 2); // the handler was removed
    vtkit::clearHelpRequests();
}

void TestSupportCore::helpContextId_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("id");
    QTest::newRow("decimal") << QByteArray("123") << 123;
    QTest::newRow("zero") << QByteArray("0") << 0;
    QTest::newRow("name") << QByteArray("abc") << 21331;
    QTest::newRow("table") << QByteArray("TableDialogDims") << 7512;
    QTest::newRow("mixed") << QByteArray("12a") << 1000 + int(YString("12a").hashValue() % 100000);
}

void TestSupportCore::helpContextId()
{
    QFETCH(QByteArray, name);
    QFETCH(int, id);
    QCOMPARE(sp_GetHelpContextId(YString(name.constData())), id);
}

// -------------------------------------------------------------------- files

void TestSupportCore::extensions()
{
    QCOMPARE(QByteArray(sp_GetVantrellDefaultExtension("Schematic").c_str()), QByteArray(".sxsch"));
    QCOMPARE(QByteArray(sp_GetVantrellDefaultExtension("Component").c_str()), QByteArray(".sxcmp"));
    QCOMPARE(QByteArray(sp_GetVantrellDefaultExtension("Symbol").c_str()), QByteArray(".sxsym"));
    QCOMPARE(QByteArray(sp_GetVantrellDefaultExtension("Nothing").c_str()), QByteArray(""));
    QCOMPARE(QByteArray(sp_GetVantrellDefaultExtension(nullptr).c_str()), QByteArray(""));

    YList<YString> list;
    QVERIFY(sp_GetVantrellFileExtension("Schematic", &list));
    QCOMPARE(toList(list), (QStringList{".sxsch", ".sch"}));
    QVERIFY(sp_GetVantrellFileExtension("Component", &list));
    QCOMPARE(toList(list), QStringList{".sxcmp"});
    QVERIFY(sp_GetVantrellFileExtension("Symbol", &list));
    QCOMPARE(toList(list), (QStringList{".sxsym", ".sym"}));
    QVERIFY(!sp_GetVantrellFileExtension("Nothing", &list));
    QVERIFY(list.isEmpty());
}

void TestSupportCore::files()
{
    QCOMPARE(toQs(sp_GetCwd()), QDir::currentPath());
    QTemporaryFile file;
    QVERIFY(file.open());
    QVERIFY(sp_ExistFile(file.fileName().toLocal8Bit().constData()));
    QVERIFY(!sp_ExistFile((file.fileName() + ".missing").toLocal8Bit().constData()));
    QVERIFY(!sp_ExistFile(nullptr));
    QVERIFY(!sp_ExistFile(""));
}

void TestSupportCore::clipboardWithoutGui()
{
    YString text("keep");
    QVERIFY(!sp_PasteTextFromClipboard(&text));
    QCOMPARE(QByteArray(text.c_str()), QByteArray("keep"));
}

// -------------------------------------------------------------- call record

namespace {
char* g_strings[3];
char** makeStrings(UserFunctionInterface*, int n)
{
    return n <= 3 ? g_strings : nullptr;
}
} // namespace

void TestSupportCore::callRecord()
{
    UserFunctionInterface call{};
    const char* strings[] = {"a", "b"};
    double reals[] = {1.0, 2.0, 3.0};
    call.args[0].data = strings;
    call.args[0].count = 2;
    call.args[0].kind = ArgKindStrings;
    call.args[1].data = reals;
    call.args[1].count = 3;
    call.args[1].kind = ArgKindReal;
    call.args[2].data = strings; // beyond argCount
    call.args[2].count = 2;
    call.args[2].kind = ArgKindStrings;
    call.argCount = 2;

    const char* const* s = reinterpret_cast<const char* const*>(1);
    unsigned n = 99;
    sp_GetStringIfVector(&call, 0, &s, &n);
    QCOMPARE(static_cast<const void*>(s), static_cast<const void*>(strings));
    QCOMPARE(n, 2u);
    sp_GetStringIfVector(&call, 1, &s, &n); // real, not strings
    QVERIFY(!s);
    QCOMPARE(n, 0u);
    n = 99;
    sp_GetStringIfVector(&call, 2, &s, &n);
    QVERIFY(!s);
    QCOMPARE(n, 0u);
    sp_GetStringIfVector(&call, -1, &s, &n);
    QVERIFY(!s);
    sp_GetStringIfVector(&call, 40, &s, &n);
    QVERIFY(!s);
    sp_GetStringIfVector(nullptr, 0, &s, &n);
    QVERIFY(!s);
    QCOMPARE(n, 0u);
    sp_GetStringIfVector(&call, 0, nullptr, nullptr);

    const double* r = reinterpret_cast<const double*>(1);
    n = 99;
    sp_GetRealIfVector(&call, 1, &r, &n);
    QCOMPARE(r, static_cast<const double*>(reals));
    QCOMPARE(n, 3u);
    sp_GetRealIfVector(&call, 0, &r, &n);
    QVERIFY(!r);
    QCOMPARE(n, 0u);
    call.args[1].count = 0; // absent
    n = 99;
    sp_GetRealIfVector(&call, 1, &r, &n);
    QVERIFY(!r);
    QCOMPARE(n, 0u);

    QVERIFY(!sp_MakeStringResult(&call, 1)); // no function
    QVERIFY(!sp_MakeStringResult(nullptr, 1));
    call.MakeStringArray = makeStrings;
    QCOMPARE(sp_MakeStringResult(&call, 0), static_cast<char**>(g_strings));
    QCOMPARE(sp_MakeStringResult(&call, 3), static_cast<char**>(g_strings));
}

QTEST_GUILESS_MAIN(TestSupportCore)
#include "tst_support_core.moc"
