// The two stored text formats of measurements and styles, read and written
// without a dialog: style text and style entries, and measurement
// definition lines of both lengths.
#include "hostsupport.h"
#include "measuredefinitions.h"
#include "stylerecord.h"

#include <QtTest>

namespace {

const QString kDefaults = QStringLiteral(
    "lineColour:0 lineType:0 lineThickness:0 fontFamily:\"arial\" fontItalics:0 fontBold:0 "
    "fontColour:0 fontSize:9 propertyStyle:0 fontOverline:0 fontUnderline:0 ");

// A record's fields as one comparable line, so a table row names them.
QString fieldsOf(const StyleRecord& r)
{
    return QStringLiteral("%1 %2 %3 [%4] %5 i%6 b%7 c%8 p%9 o%10 u%11")
        .arg(r.lineColour).arg(r.lineType).arg(r.lineThickness).arg(r.fontFamily)
        .arg(r.fontSize).arg(r.fontItalics).arg(r.fontBold).arg(r.fontColour)
        .arg(r.propertyStyle).arg(r.fontOverline).arg(r.fontUnderline);
}

QString choiceOf(const QString& line)
{
    measuredefs::Choice c;
    if (!measuredefs::parseChoice(line, &c))
        return QStringLiteral("skipped");
    return QStringLiteral("%1|%2|%3|%4").arg(c.name, c.description).arg(c.requiresCursors).arg(c.factory);
}

} // namespace

class TestTextFormats : public QObject {
    Q_OBJECT

private slots:
    void styleParse_data();
    void styleParse();
    void styleWriteIsStable_data();
    void styleWriteIsStable();
    void lineTypes_data();
    void lineTypes();
    void penAndFont_data();
    void penAndFont();
    void entries();

    void choiceLines_data();
    void choiceLines();
    void definitionLines_data();
    void definitionLines();
    void definitionContent();
    void nameSet();
};

void TestTextFormats::styleParse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("fields");
    const QString defaults = QStringLiteral("0 0 0 [arial] 9 i0 b0 c0 p0 o0 u0");
    QTest::newRow("defaults") << kDefaults << defaults;
    QTest::newRow("empty: zeros, not defaults") << QString() << QStringLiteral("0 0 0 [] 0 i0 b0 c0 p0 o0 u0");
    QTest::newRow("last value without its closing blank")
        << QString(kDefaults).replace(QStringLiteral("fontUnderline:0 "), QStringLiteral("fontUnderline:1"))
        << defaults;
    QTest::newRow("family with blanks")
        << QString(kDefaults).replace(QStringLiteral("arial"), QStringLiteral("Courier New"))
        << QStringLiteral("0 0 0 [Courier New] 9 i0 b0 c0 p0 o0 u0");
    QTest::newRow("reordered, no leading blank")
        << QStringLiteral("fontSize:12 lineType:3 fontFamily:\"x\" lineColour:255 fontBold:1 ")
        << QStringLiteral("255 3 0 [x] 12 i0 b1 c2 p0 o0 u0"); // a missing key reads a neighbour
    QTest::newRow("first occurrence wins")
        << QStringLiteral("lineType:2 lineType:4 ") << QStringLiteral("0 2 0 [] 0 i0 b0 c0 p0 o0 u0");
    // The value runs to the first blank, "3|lineColour:0", and isn't a number.
    QTest::newRow("a style name holding a key shadows it")
        << QStringLiteral("lineType:3|") + QString(kDefaults).replace(QStringLiteral("lineType:0"), QStringLiteral("lineType:4"))
        << QStringLiteral("0 0 0 [arial] 9 i0 b0 c0 p0 o0 u0");
    QTest::newRow("booleans: any number but 0")
        << QStringLiteral("fontItalics:-7 fontOverline:2 fontUnderline:x ")
        << QStringLiteral("0 0 7 [] 0 i1 b0 c0 p1 o1 u0");
    QTest::newRow("number out of int range reads 0")
        << QStringLiteral("lineColour:99999999999 fontSize:-5 ") << QStringLiteral("0 0 999999999 [] -5 i0 b0 c0 p1 o0 u1");
    QTest::newRow("truncated in the family")
        << QStringLiteral("lineColour:1 fontFamily:\"Cour") << QStringLiteral("1 0 0 [] 0 i1 b0 c0 p0 o0 u0");
    QTest::newRow("only a key") << QStringLiteral("fontSize:") << QStringLiteral("0 0 0 [] 0 i0 b0 c0 p0 o0 u0");
}

void TestTextFormats::styleParse()
{
    QFETCH(QString, text);
    QFETCH(QString, fields);
    QCOMPARE(fieldsOf(StyleRecord::parse(text)), fields);
}

void TestTextFormats::styleWriteIsStable_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("defaults") << kDefaults;
    QTest::newRow("everything set")
        << QStringLiteral("lineColour:16711680 lineType:4 lineThickness:3 fontFamily:\"Courier New\" "
                          "fontItalics:1 fontBold:1 fontColour:255 fontSize:14 propertyStyle:1 "
                          "fontOverline:1 fontUnderline:1 ");
    QTest::newRow("garbage") << QStringLiteral("\"\"::: fontFamily:\" lineType: |");
}

// Parse, write, parse, write: the second text equals the first, and a text
// in the stored form is written back exactly.
void TestTextFormats::styleWriteIsStable()
{
    QFETCH(QString, text);
    const QString once = StyleRecord::parse(text).toText();
    QCOMPARE(StyleRecord::parse(once).toText(), once);
    if (text.startsWith(QLatin1String("lineColour:")))
        QCOMPARE(once, text);
    QCOMPARE(StyleRecord().toText(), kDefaults);
}

void TestTextFormats::lineTypes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("comboText");
    QTest::addColumn<int>("fromCombo");
    QTest::addColumn<QString>("penName");
    QTest::addColumn<int>("pen");
    QTest::newRow("solid") << 0 << "Solid" << "SOLID" << 0 << "Solid" << int(Qt::SolidLine);
    QTest::newRow("dash") << 1 << "Dash" << "dash" << 1 << "Dash" << int(Qt::DashLine);
    QTest::newRow("dot") << 2 << "Dot" << "Dot" << 2 << "Dot" << int(Qt::DotLine);
    QTest::newRow("dash-dot, two spellings") << 3 << "Dashdot" << "DashDot" << 3 << "DashDot" << int(Qt::DashDotLine);
    QTest::newRow("dash-dot-dot") << 4 << "Dashdotdot" << "dashdotdot" << 4 << "DashDotDot" << int(Qt::DashDotDotLine);
    QTest::newRow("out of range, unknown") << 5 << "Solid" << "Wavy" << 0 << "Dashdot" << int(Qt::SolidLine);
    QTest::newRow("negative, empty") << -1 << "Solid" << "" << 0 << "" << int(Qt::SolidLine);
}

void TestTextFormats::lineTypes()
{
    QFETCH(int, type);
    QFETCH(QString, name);
    QFETCH(QString, comboText);
    QFETCH(int, fromCombo);
    QFETCH(QString, penName);
    QFETCH(int, pen);
    StyleRecord r;
    r.lineType = type;
    QCOMPARE(styles::lineTypeName(r), name);
    r.lineType = 99;
    styles::setLineType(r, comboText);
    QCOMPARE(r.lineType, fromCombo);
    QCOMPARE(int(styles::penStyleFromName(penName)), pen);
}

void TestTextFormats::penAndFont_data()
{
    QTest::addColumn<int>("thickness");
    QTest::addColumn<int>("colour");
    QTest::addColumn<int>("fontSize");
    QTest::addColumn<int>("width");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<int>("points");
    QTest::newRow("red, 12 pt") << 0 << 255 << 12 << 0 << QColor(255, 0, 0) << 10;
    QTest::newRow("thickness 1 draws as 0, blue, 9 pt") << 1 << 16711680 << 9 << 0 << QColor(0, 0, 255) << 7;
    QTest::newRow("green, size 1") << 2 << 0x00ff00 << 1 << 2 << QColor(0, 255, 0) << 1;
    QTest::newRow("size 0 is 1 point") << 3 << 0x123456 << 0 << 3 << QColor(0x56, 0x34, 0x12) << 1;
    QTest::newRow("huge size and width are cut") << 100000 << 0 << 100000 << 100 << QColor(0, 0, 0) << 1000;
    QTest::newRow("negative colour has none") << -4 << -1 << -9 << 0 << QColor() << 1;
}

void TestTextFormats::penAndFont()
{
    QFETCH(int, thickness);
    QFETCH(int, colour);
    QFETCH(int, fontSize);
    QFETCH(int, width);
    QFETCH(QColor, color);
    QFETCH(int, points);
    const QPen pen = styles::penFor(thickness, QStringLiteral("Dash"), colour);
    QCOMPARE(pen.width(), width);
    QCOMPARE(pen.color(), color);
    QCOMPARE(pen.style(), Qt::DashLine);
    QVERIFY(width == 0 || !pen.isCosmetic()); // Qt counts a zero width as cosmetic

    StyleRecord r;
    r.fontSize = fontSize;
    r.fontBold = fontSize % 2;
    r.fontUnderline = true;
    const QFont font = styles::fontFor(r);
    QCOMPARE(font.pointSize(), points);
    QCOMPARE(font.weight(), r.fontBold ? 75 : 50);
    QVERIFY(font.underline() && !font.overline() && !font.italic());
}

void TestTextFormats::entries()
{
    const QStringList list{QStringLiteral("Wire2|a"), QStringLiteral("Wire|b"), QStringLiteral("wire|c")};
    QCOMPARE(styles::findEntry(list, QStringLiteral("Wire")), QStringLiteral("Wire|b"));
    QCOMPARE(styles::findEntry(list, QStringLiteral("wire")), QStringLiteral("wire|c"));
    QCOMPARE(styles::findEntry(list, QStringLiteral("WIRE"), Qt::CaseInsensitive), QStringLiteral("Wire|b"));
    QCOMPARE(styles::indexOfEntry(list, QStringLiteral("Wir")), -1);
    QCOMPARE(styles::makeEntry(QStringLiteral("N"), StyleRecord()), QStringLiteral("N|") + kDefaults);
}

void TestTextFormats::choiceLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("choice");
    QTest::newRow("no field") << "" << "skipped";
    QTest::newRow("name only") << "Mean" << "Mean|Mean|0|0";
    QTest::newRow("empty description kept") << "Mean;" << "Mean||0|0";
    QTest::newRow("all four") << "Freq;Frequency;1;1" << "Freq|Frequency|1|1";
    QTest::newRow("flags other than 1") << "A;d;yes;true" << "A|d|0|0";
    QTest::newRow("40 fields") << QStringLiteral("A;d;1;0") + QString(36, QLatin1Char(';')) << "A|d|1|0";
    QTest::newRow("only separators") << ";;;" << "||0|0";
}

void TestTextFormats::choiceLines()
{
    QFETCH(QString, line);
    QFETCH(QString, choice);
    QCOMPARE(choiceOf(line), choice);
}

void TestTextFormats::definitionLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("written");
    QTest::addColumn<bool>("factory");
    QTest::newRow("six fields, cursors") << "X;;;;;1" << "X;;;;;1" << false;
    QTest::newRow("empty last field") << "X;e;f;l;d;" << "X;e;f;l;d;" << false;
    QTest::newRow("factory mark dropped") << "X;e;f;l;d;1;1" << "X;e;f;l;d;1" << true;
    QTest::newRow("mark 0 is a user line") << "X;e;f;l;d;;0" << "X;e;f;l;d;" << false;
    QTest::newRow("short line padded") << "X;e" << "X;e;;;;" << false;
    QTest::newRow("no field") << "" << ";;;;;" << false;
    QTest::newRow("40 fields") << QStringLiteral("X;e;f;l;d;1;1") + QString(33, QLatin1Char(';'))
                               << "X;e;f;l;d;1" << true;
    QTest::newRow("description with a written \\n") << "X;e;f;l;a\\nb;0" << "X;e;f;l;a\\nb;" << false;
}

void TestTextFormats::definitionLines()
{
    QFETCH(QString, line);
    QFETCH(QString, written);
    QFETCH(bool, factory);
    const measuredefs::Definition d = measuredefs::Definition::parse(line);
    QCOMPARE(d.toLine(), written);
    QCOMPARE(d.factory, factory);
    QCOMPARE(measuredefs::Definition::parse(written).toLine(), written);
}

void TestTextFormats::definitionContent()
{
    using measuredefs::Definition;
    const Definition shipped = Definition::parse(QStringLiteral("M;Mean1(data);%g;Mean;Average;1;1"));
    QVERIFY(shipped.sameContent(Definition::parse(QStringLiteral("other;MEAN1(DATA);%G;mean;average;1"))));
    QVERIFY(!shipped.sameContent(Definition::parse(QStringLiteral("M;Mean1(data);%g;Mean;Average;0"))));
    QVERIFY(!shipped.sameContent(Definition::parse(QStringLiteral("M;Mean2(data);%g;Mean;Average;1"))));
}

void TestTextFormats::nameSet()
{
    measuredefs::NameSet set;
    set.insert(QStringLiteral("Mean"));
    QVERIFY(set.contains(QStringLiteral("Mean")));
    QVERIFY(!set.contains(QStringLiteral("Median")));
    // Letter case matters through the hash: the case-blind comparison only
    // sees names of one bucket, and with this hash a name and its other
    // case land in different ones.
    QVERIFY(YString("Mean").hashValue() % 101 != YString("MEAN").hashValue() % 101);
    QVERIFY(!set.contains(QStringLiteral("MEAN")));
    set.insert(QStringLiteral("MEAN"));
    QVERIFY(set.contains(QStringLiteral("MEAN")) && set.contains(QStringLiteral("Mean")));
}

QTEST_GUILESS_MAIN(TestTextFormats)
#include "tst_textformats.moc"
