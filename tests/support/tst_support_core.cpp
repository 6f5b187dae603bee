// Strings, containers, numbers, help and the call record of libvtsupport.
#include "kitsupport.h"
#include "udf.h"

#include <QTemporaryFile>
#include <QtTest>

#include <climits>
#include <cmath>
#include <cstring>
#include <functional>
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

QByteArray bytes(const char* text)
{
    return QByteArray(text);
}

bool near(double a, double b)
{
    return a == b || std::fabs(a - b) <= 1e-12 * std::max(std::fabs(a), std::fabs(b));
}

void setArg(ArgRecord& arg, void* data, std::uint32_t count, std::uint32_t kind)
{
    arg.data = data;
    arg.count = count;
    arg.kind = kind;
}

// "CODE TEXT" of the exception that action throws, or "none".
QByteArray thrown(const std::function<void()>& action)
{
    try {
        action();
    } catch (const VantrellException& e) {
        return QByteArray::number(e.code()) + ' ' + e.text();
    }
    return "none";
}

} // namespace

class TestSupportCore : public QObject {
    Q_OBJECT

private slots:
    void engToReal_data();
    void engToReal();
    void realToEng_data();
    void realToEng();
    void splitLine_data();
    void splitLine();
    void scanLine_data();
    void scanLine();
    void binarySearch_data();
    void binarySearch();
    void hashStable_data();
    void hashStable();
    void yStringBasics();
    void yStringConcat();
    void stripQuotes_data();
    void stripQuotes();
    void latin1RoundTrip();
    void arrays();
    void vectorAppendSelf();
    void exceptions();
    void help();
    void helpContextId_data();
    void helpContextId();
    void extensions_data();
    void extensions();
    void filesAndClipboard();
    void callRecord_data();
    void callRecord();
    void stringResult();
};

void TestSupportCore::engToReal_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("expected");
    QTest::addColumn<int>("endOffset");
    QTest::newRow("null") << QByteArray() << 0.0 << 0;
    QTest::newRow("plain") << QByteArray("12.5") << 12.5 << 4;
    QTest::newRow("k") << QByteArray("10k") << 1e4 << 3;
    QTest::newRow("MEG") << QByteArray("1.5MEG") << 1.5e6 << 6;
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
    QTest::newRow("exponent and suffix") << QByteArray("1e3k") << 1e6 << 4;
    QTest::newRow("negative") << QByteArray("-2.5K") << -2500.0 << 5;
    QTest::newRow("space before suffix") << QByteArray("10 k") << 10.0 << 2;
    // The nearest double, as the same number with an exponent reads.
    QTest::newRow("10u is 1e-5 exactly") << QByteArray("10u") << 1e-5 << 3;
    QTest::newRow("4.7n is 4.7e-9 exactly") << QByteArray("4.7n") << 4.7e-9 << 4;
    QTest::newRow("no number") << QByteArray("abc") << 0.0 << 0;
    QTest::newRow("empty") << QByteArray("") << 0.0 << 0;
}

void TestSupportCore::engToReal()
{
    QFETCH(QByteArray, text);
    QFETCH(double, expected);
    QFETCH(int, endOffset);
    const char* input = text.isNull() ? nullptr : text.constData();
    char* end = nullptr;
    const double value = sp_ConvertEngToReal(input, &end);
    // To the last bit: a suffix is an exponent, not a multiplication.
    QVERIFY2(value == expected, qPrintable(QString::number(value, 'g', 17)));
    QCOMPARE(end ? int(end - input) : -1, input ? endOffset : -1);
    QVERIFY(near(sp_ConvertEngToReal(input, nullptr), expected));
    // The QString overload parses a temporary copy, so end can't point into it.
    QVERIFY(near(sp_ConvertEngToReal(QString::fromLatin1(text), &end), expected));
    QVERIFY(!end);
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
    QTest::newRow("-inf") << -std::numeric_limits<double>::infinity() << 6 << "-inf";
}

void TestSupportCore::realToEng()
{
    QFETCH(double, value);
    QFETCH(int, digits);
    QFETCH(QString, expected);
    QCOMPARE(toQs(sp_ConvertRealToJSEng(value, digits, false)), expected);
}

void TestSupportCore::splitLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<char>("separator");
    QTest::addColumn<int>("maxParts");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("null") << QByteArray() << '|' << 0 << QStringList();
    QTest::newRow("empty") << QByteArray("") << '|' << 0 << QStringList();
    QTest::newRow("one") << QByteArray("a") << '|' << 0 << QStringList{"a"};
    QTest::newRow("empty middle") << QByteArray("a||b") << '|' << 0 << QStringList{"a", "", "b"};
    QTest::newRow("trailing") << QByteArray("a|") << '|' << 0 << QStringList{"a", ""};
    QTest::newRow("leading") << QByteArray("|a") << '|' << 0 << QStringList{"", "a"};
    QTest::newRow("only separator") << QByteArray("|") << '|' << 0 << QStringList{"", ""};
    QTest::newRow("max 3") << QByteArray("a|b|c|d") << '|' << 3 << QStringList{"a", "b", "c"};
    QTest::newRow("max 10") << QByteArray("x:y: z") << ':' << 10 << QStringList{"x", "y", " z"};
    QTest::newRow("max 1") << QByteArray("a|b") << '|' << 1 << QStringList{"a"};
    QTest::newRow("max equal") << QByteArray("a|b|") << '|' << 3 << QStringList{"a", "b", ""};
    QTest::newRow("other separator") << QByteArray("a;b|c") << '|' << 0 << QStringList{"a;b", "c"};
}

void TestSupportCore::splitLine()
{
    QFETCH(QByteArray, line);
    QFETCH(char, separator);
    QFETCH(int, maxParts);
    QFETCH(QStringList, expected);
    YArray<YString> parts;
    parts.add("stale");
    sp_SplitLine(line.isNull() ? nullptr : line.constData(), separator, &parts, maxParts);
    QCOMPARE(toList(parts), expected);
}

void TestSupportCore::scanLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("separators");
    QTest::addColumn<int>("maxParts");
    QTest::addColumn<QStringList>("expected");
    const QByteArray seps(" \t\n\r,()");
    const int all = 0x7fffffff;
    QTest::newRow("empty") << QByteArray("") << seps << all << QStringList();
    QTest::newRow("only separators") << QByteArray(" ,( )\t") << seps << all << QStringList();
    QTest::newRow("runs") << QByteArray(" a  b\t(c),d \r\n") << seps << all
                          << QStringList{"a", "b", "c", "d"};
    QTest::newRow("no limit 0") << QByteArray("1 2 3") << QByteArray(" ") << 0
                                << QStringList{"1", "2", "3"};
    QTest::newRow("max 2") << QByteArray("1 2 3") << QByteArray(" ") << 2 << QStringList{"1", "2"};
    QTest::newRow("trailing") << QByteArray("x,") << seps << all << QStringList{"x"};
}

void TestSupportCore::scanLine()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, separators);
    QFETCH(int, maxParts);
    QFETCH(QStringList, expected);
    YArray<YString> parts;
    parts.add("stale");
    sp_ScanLine(line.constData(), separators.constData(), &parts, maxParts);
    QCOMPARE(toList(parts), expected);
}

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
    QTest::newRow("nan") << four << std::numeric_limits<double>::quiet_NaN() << 4LL;
    QTest::newRow("one equal") << std::vector<double>{5} << 5.0 << 0LL;
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
    const YString empty;
    QVERIFY(empty.c_str() && empty.isEmpty());
    QCOMPARE(YString(static_cast<const char*>(nullptr)), empty);
    QCOMPARE(bytes(YString(INT_MIN)), QByteArray("-2147483648"));

    YString a("hello");
    YString b(a);
    QVERIFY(b.c_str() == a.c_str()); // shared, not copied
    YString c;
    c = a;
    QVERIFY(c.c_str() == a.c_str());
    c = "other";
    QCOMPARE(bytes(a), QByteArray("hello"));
    c = c.c_str() + 1; // assignment from its own text
    QCOMPARE(bytes(c), QByteArray("ther"));
    c = c;
    QCOMPARE(bytes(c), QByteArray("ther"));
    QVERIFY(a == YString("hello"));
    QVERIFY(a != c);
}

void TestSupportCore::yStringConcat()
{
    const YString a("ab");
    YString r = a.concat("x").concat("y");
    QCOMPARE(bytes(r), QByteArray("abxy"));
    QCOMPARE(bytes(a), QByteArray("ab"));
    QCOMPARE(bytes(YString(a.concat(nullptr).concat(nullptr).concat(""))), QByteArray("ab"));
    QCOMPARE(bytes(YString(YString().concat("z"))), QByteArray("z"));

    // Two temporaries alive in one expression.
    YString both = YString(YString("1").concat("2")).concat(YString("3").concat("4").c_str());
    QCOMPARE(bytes(both), QByteArray("1234"));

    // More in a row than the ring holds.
    YString acc("s");
    for (int i = 0; i < 100; ++i)
        acc = acc.concat("-").concat(YString(i).c_str());
    QVERIFY(bytes(acc).startsWith("s-0-1-2-"));
    QVERIFY(bytes(acc).endsWith("-98-99"));

    TempString& t = a.concat("c");
    t.concat(t.c_str()); // appending its own text
    QCOMPARE(bytes(t.c_str()), QByteArray("abcabc"));
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
    QTest::newRow("one pair") << QByteArray("\"\"x\"\"") << QByteArray("\"") << QByteArray("\"x\"");
}

void TestSupportCore::stripQuotes()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, quotes);
    QFETCH(QByteArray, expected);
    YString s(text.constData());
    const YString shared(s);
    s.stripQuotes(quotes.constData(), false);
    QCOMPARE(bytes(s), expected);
    QCOMPARE(bytes(shared), text); // the copy keeps its text
}

void TestSupportCore::latin1RoundTrip()
{
    QByteArray all;
    for (int c = 1; c < 256; ++c)
        all.append(static_cast<char>(c));
    const QString q = toQs(YString(all.constData()));
    QCOMPARE(q.size(), 255);
    QCOMPARE(q.at(0xB4).unicode(), ushort(0xB5));
    QCOMPARE(bytes(toYs(q)), all);
    QCOMPARE(bytes(Tocs(q)), all);
    QCOMPARE(bytes(Tocs(QString())), QByteArray(""));
}

void TestSupportCore::arrays()
{
    YArray<YString> a;
    a.add("b");
    a.insertAt("a", 0);
    a.insertAt("d", 99); // clamped: appended
    a.insertAt("c", 2);
    a.insertAt("e", -1); // negative appends
    QCOMPARE(toList(a), (QStringList{"a", "b", "c", "d", "e"}));
    a.removeAt(1);
    a.removeAt(10);
    QCOMPARE(toList(a), (QStringList{"a", "c", "d", "e"}));
    // Adding an element of the array itself while it grows.
    for (int i = 0; i < 100; ++i)
        a.add(a[0]);
    QCOMPARE(a.count(), 104LL);
    QCOMPARE(bytes(a[103]), QByteArray("a"));
    a.clear();
    QVERIFY(a.isEmpty());

    YArrayData raw(sizeof(int));
    int values[] = {1, 3, 2};
    QCOMPARE(raw.addDataAt(&values[0], -1), 0LL);
    QCOMPARE(raw.addDataAt(&values[1], 5), 1LL);
    QCOMPARE(raw.addDataAt(&values[2], 1), 1LL);
    for (int i = 0; i < 50; ++i)
        raw.addDataAt(raw.at(0), 0); // element inside the array
    QCOMPARE(raw.count(), 53LL);
    auto intAt = [&raw](long long i) { return *static_cast<int*>(raw.at(i)); };
    QCOMPARE(QList<int>({intAt(50), intAt(51), intAt(52)}), QList<int>({1, 2, 3}));
    raw.removeBytesAt(51);
    QCOMPARE(intAt(51), 3);
    raw.truncate(2);
    QCOMPARE(raw.count(), 2LL);
}

void TestSupportCore::vectorAppendSelf()
{
    YVector<double> v(3);
    QCOMPARE(v[2], 0.0);
    v[0] = 7.5;
    for (int i = 0; i < 40; ++i)
        v.append(v[0]);
    QCOMPARE(v.size(), 43LL);
    QCOMPARE(v[42], 7.5);
}

void TestSupportCore::exceptions()
{
    const QByteArray fatal = "5 *** Fatal error, out of memory ***\nDetected in ";
    // Sizes no allocator can serve.
    QCOMPARE(thrown([] { YVector<double>().allocPrim(LLONG_MAX); }),
             fatal + "YVector<double>::allocPrim");
    QCOMPARE(thrown([] { YVector<bool>().allocPrim(LLONG_MAX); }),
             fatal + "YVector<bool>::allocPrim");
    QCOMPARE(thrown([] { YVector<const char*>().allocPrim(LLONG_MAX); }),
             fatal + "YVector<const char*>::allocPrim");
    QCOMPARE(thrown([] { YVector<double> negative(-1); }), fatal + "YVector<double>::allocPrim");
    YArrayData raw(16);
    QCOMPARE(thrown([&raw] { raw.checkAlloc(LLONG_MAX / 2); }), fatal + "YArrayData::checkAlloc");
    QCOMPARE(raw.count(), 0LL);

    QCOMPARE(thrown([] { throw VantrellException(); }), QByteArray("9 "));
    QCOMPARE(thrown([] { throw MemoryException("m"); }), QByteArray("5 m"));
    const std::string longText(2000, 'x');
    const VantrellException big(3, longText.c_str());
    QCOMPARE(std::strlen(big.text()), std::size_t(VantrellException::TextSize - 1));
}

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
    QTest::newRow("empty") << QByteArray("") << 37261;
    QTest::newRow("mixed") << QByteArray("12a") << 1000 + int(YString("12a").hashValue() % 100000);
    QTest::newRow("ten digits") << QByteArray("1234567890")
                                << 1000 + int(YString("1234567890").hashValue() % 100000);
}

void TestSupportCore::helpContextId()
{
    QFETCH(QByteArray, name);
    QFETCH(int, id);
    QCOMPARE(sp_GetHelpContextId(YString(name.constData())), id);
}

void TestSupportCore::extensions_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QByteArray>("defaultExtension");
    QTest::addColumn<QStringList>("all");
    QTest::newRow("Schematic") << QByteArray("Schematic") << QByteArray("sxsch")
                               << QStringList{".sxsch", ".sch"};
    QTest::newRow("Component") << QByteArray("Component") << QByteArray("sxcmp")
                               << QStringList{".sxcmp"};
    QTest::newRow("Netlist") << QByteArray("Netlist") << QByteArray("net")
                             << QStringList{".net", ".cir", ".sp", ".spi"};
    QTest::newRow("case matters") << QByteArray("schematic") << QByteArray() << QStringList();
    QTest::newRow("unknown") << QByteArray("Nothing") << QByteArray() << QStringList();
}

void TestSupportCore::extensions()
{
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, defaultExtension);
    QFETCH(QStringList, all);
    QCOMPARE(bytes(sp_GetVantrellDefaultExtension(kind.constData())), defaultExtension);
    YList<YString> list;
    list.add(YString("stale"));
    QCOMPARE(sp_GetVantrellFileExtension(kind.constData(), &list), !all.isEmpty());
    QCOMPARE(toList(list), all);
    QCOMPARE(bytes(sp_GetVantrellDefaultExtension(nullptr)), QByteArray(""));
    QVERIFY(!sp_GetVantrellFileExtension(nullptr, nullptr));
}

void TestSupportCore::filesAndClipboard()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    QVERIFY(sp_ExistFile(file.fileName().toLocal8Bit().constData()));
    QVERIFY(!sp_ExistFile((file.fileName() + ".missing").toLocal8Bit().constData()));
    QVERIFY(!sp_ExistFile(nullptr) && !sp_ExistFile(""));
    QVERIFY(!sp_ExistFile(QDir::tempPath().toLocal8Bit().constData()));

    // Without a GUI application there is no clipboard; the text stays.
    YString text("keep");
    QVERIFY(!sp_PasteTextFromClipboard(&text));
    QCOMPARE(bytes(text), QByteArray("keep"));
}

void TestSupportCore::callRecord_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("argCount");
    QTest::addColumn<uint>("strings");
    QTest::addColumn<uint>("reals");
    QTest::newRow("strings") << 0 << 3 << 2u << 0u;
    QTest::newRow("reals") << 1 << 3 << 0u << 3u;
    QTest::newRow("absent") << 2 << 3 << 0u << 0u;
    QTest::newRow("beyond argCount") << 3 << 3 << 0u << 0u;
    QTest::newRow("negative") << -1 << 3 << 0u << 0u;
    QTest::newRow("beyond record") << udf::kMaxArgs << udf::kMaxArgs + 8 << 0u << 0u;
}

void TestSupportCore::callRecord()
{
    QFETCH(int, index);
    QFETCH(int, argCount);
    QFETCH(uint, strings);
    QFETCH(uint, reals);
    const char* texts[] = {"a", "b"};
    double values[] = {1.0, 2.0, 3.0};
    UserFunctionInterface call;
    std::memset(&call, 0xA5, sizeof call); // a host zeroes nothing it doesn't fill
    setArg(call.args[0], texts, 2, ArgKindStrings);
    setArg(call.args[1], values, 3, ArgKindReal);
    setArg(call.args[2], values, 0, ArgKindReal);
    setArg(call.args[3], texts, 2, ArgKindStrings);
    call.argCount = argCount;

    const char* const* s = reinterpret_cast<const char* const*>(1);
    unsigned n = 99;
    sp_GetStringIfVector(&call, index, &s, &n);
    QCOMPARE(static_cast<const void*>(s), strings ? static_cast<const void*>(texts) : nullptr);
    QCOMPARE(n, strings);
    const double* r = reinterpret_cast<const double*>(1);
    n = 99;
    sp_GetRealIfVector(&call, index, &r, &n);
    QCOMPARE(r, reals ? static_cast<const double*>(values) : nullptr);
    QCOMPARE(n, reals);
    sp_GetStringIfVector(&call, index, nullptr, nullptr);
    sp_GetRealIfVector(&call, index, nullptr, nullptr);
    sp_GetStringIfVector(nullptr, index, &s, &n);
    QVERIFY(!s && n == 0);
}

void TestSupportCore::stringResult()
{
    static char* strings[3];
    UserFunctionInterface call{};
    QVERIFY(!sp_MakeStringResult(&call, 3)); // no function
    QVERIFY(!sp_MakeStringResult(nullptr, 3));
    call.MakeStringArray = [](UserFunctionInterface*, int count) -> char** {
        return count == 3 ? strings : nullptr;
    };
    QCOMPARE(sp_MakeStringResult(&call, 3), static_cast<char**>(strings));
}

QTEST_GUILESS_MAIN(TestSupportCore)
#include "tst_support_core.moc"
