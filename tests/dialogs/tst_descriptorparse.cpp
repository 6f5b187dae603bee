// The descriptor parser and the widget factory of parameter pages, on their
// own: strings in, descriptors and widgets out, no dialog.
#include "ParameterPages.h"
#include "dialogcommon.h"

#include "hostwidgets.h"

#include <QGridLayout>
#include <QtTest>

#include <climits>
#include <memory>

using namespace parameterpages;

class TestDescriptorParse : public QObject {
    Q_OBJECT

private slots:
    void splitting_data();
    void splitting();
    void atoiLikeC_data();
    void atoiLikeC();
    void tabTitles_data();
    void tabTitles();
    void elementNumbering_data();
    void elementNumbering();
    void typesAndRanges_data();
    void typesAndRanges();
    void groups_data();
    void groups();
    void separatedColumnLookup();
    void units();
    void controls_data();
    void controls();
    void listSelection_data();
    void listSelection();
    void badInputNeverBreaks();
    void placementClampsGrid();
};

void TestDescriptorParse::splitting_data()
{
    QTest::addColumn<QString>("descriptor");
    QTest::addColumn<QStringList>("fields");
    const QStringList empty10 = QVector<QString>(10).toList();
    QTest::newRow("empty gives ten empty") << QString() << empty10;
    QStringList escaped = empty10;
    escaped[0] = "a";
    escaped[2] = "x:y";
    QTest::newRow("escaped colon") << QString("a::x\\:y") << escaped;
    QStringList eleven = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"};
    QTest::newRow("eleventh dropped") << QString("0:1:2:3:4:5:6:7:8:9:10") << eleven;
    QStringList trailing = empty10;
    trailing[0] = "t";
    QTest::newRow("trailing colons") << QString("t::::") << trailing;
}

void TestDescriptorParse::splitting()
{
    QFETCH(QString, descriptor);
    QFETCH(QStringList, fields);
    QCOMPARE(splitDescriptor(descriptor), fields);
}

void TestDescriptorParse::atoiLikeC_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::newRow("plain") << "42" << 42;
    QTest::newRow("blanks and sign") << "  -7x" << -7;
    QTest::newRow("no number") << "abc" << 0;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("huge saturates") << "99999999999999999999" << INT_MAX;
    QTest::newRow("huge negative saturates") << "-99999999999999999999" << INT_MIN;
    QTest::newRow("2^31") << "2147483648" << INT_MAX;
    QTest::newRow("fraction stops") << "3.9" << 3;
}

void TestDescriptorParse::atoiLikeC()
{
    QFETCH(QString, text);
    QFETCH(int, value);
    QCOMPARE(dialogcommon::leadingInt(text), value);
}

void TestDescriptorParse::tabTitles_data()
{
    QTest::addColumn<QStringList>("tabs");
    QTest::addColumn<QStringList>("titles");
    QTest::newRow("none") << QStringList() << QStringList{"Parameters"};
    QTest::newRow("three empty") << QStringList{"", "", ""}
                                 << QStringList{"Parameters", "Parameters 1", "Parameters 2"};
    QTest::newRow("named first") << QStringList{"Main", "", "Noise"}
                                 << QStringList{"Main", "Parameters 1", "Noise"};
}

void TestDescriptorParse::tabTitles()
{
    QFETCH(QStringList, tabs);
    QFETCH(QStringList, titles);
    const ParameterPageSpec spec(tabs, {}, {}, {});
    QCOMPARE(spec.tabTitles(), titles);
    QCOMPARE(spec.tabCount(), titles.size());
}

void TestDescriptorParse::elementNumbering_data()
{
    QTest::addColumn<QStringList>("params");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QList<int>>("elements");
    QTest::addColumn<QStringList>("read");
    QTest::newRow("label takes none")
        << QStringList{"::a", "::::::label", "::b"} << QStringList{"1", "2"}
        << QList<int>{0, -1, 1} << QStringList{"1", "", "2"};
    QTest::newRow("plain group takes none, check group one")
        << QStringList{"::::::group", "::::::check", "::c"} << QStringList{"5", "6"}
        << QList<int>{-1, 0, 1} << QStringList{"", "5", "6"};
    QTest::newRow("values run out read 0")
        << QStringList{"::a", "::b", "::c"} << QStringList{"x"} << QList<int>{0, 1, 2}
        << QStringList{"x", "0", "0"};
}

void TestDescriptorParse::elementNumbering()
{
    QFETCH(QStringList, params);
    QFETCH(QStringList, values);
    QFETCH(QList<int>, elements);
    QFETCH(QStringList, read);
    const ParameterPageSpec spec(params, values);
    QCOMPARE(spec.parameterCount(), params.size());
    for (int p = 0; p < params.size(); ++p) {
        QCOMPARE(spec.parameter(p).elementIndex, elements.at(p));
        QCOMPARE(spec.parameter(p).value, read.at(p));
        QCOMPARE(spec.parameter(p).takesFocus, p == 0);
    }
}

Q_DECLARE_METATYPE(ParameterKind)

void TestDescriptorParse::typesAndRanges_data()
{
    QTest::addColumn<QString>("descriptor");
    QTest::addColumn<ParameterKind>("kind");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("step");
    QTest::addColumn<bool>("numberFlag");
    QTest::addColumn<bool>("stringFlag");
    QTest::newRow("empty type is real") << "T:G:n" << ParameterKind::Real << -1e100 << 1e100 << 0.0
                                        << true << false;
    QTest::newRow("integer without range") << "::n::::INT" << ParameterKind::Integer << 0.0 << 100.0
                                           << 0.0 << true << false;
    QTest::newRow("real with eng range") << "::n::::real:1k|2Meg|5:0" << ParameterKind::Real << 1e3
                                         << 2e6 << 5.0 << false << false;
    QTest::newRow("negative step counts as 0")
        << "::n::::real:0|10|-1" << ParameterKind::Real << 0.0 << 10.0 << 0.0 << true << false;
    QTest::newRow("unknown word is real") << "::n::::wobble" << ParameterKind::Real << -1e100
                                          << 1e100 << 0.0 << true << false;
    QTest::newRow("list flag 1 strips quotes") << "::n::::LIST:a|b:1" << ParameterKind::List
                                               << -1e100 << 1e100 << 0.0 << true << true;
    QTest::newRow("string flag other than 1") << "::n::::string::yes" << ParameterKind::String
                                              << -1e100 << 1e100 << 0.0 << true << false;
    QTest::newRow("bool ignores flag") << "::n::::bool::0" << ParameterKind::Bool << -1e100 << 1e100
                                       << 0.0 << true << false;
    QTest::newRow("groupcheckable") << "::n::::GroupCheckable" << ParameterKind::CheckGroup
                                    << -1e100 << 1e100 << 0.0 << true << false;
}

void TestDescriptorParse::typesAndRanges()
{
    QFETCH(QString, descriptor);
    QFETCH(ParameterKind, kind);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, step);
    QFETCH(bool, numberFlag);
    QFETCH(bool, stringFlag);
    const ParameterPageSpec spec({descriptor}, {});
    const ParameterDescriptor& d = spec.parameter(0);
    QCOMPARE(d.kind, kind);
    QCOMPARE(d.minimum, minimum);
    QCOMPARE(d.maximum, maximum);
    QCOMPARE(d.step, step);
    QCOMPARE(d.numberFlag, numberFlag);
    QCOMPARE(d.stringFlag, stringFlag);
    QCOMPARE(d.tab, descriptor.startsWith("T") ? QString("T") : QString("Parameters"));
}

void TestDescriptorParse::groups_data()
{
    QTest::addColumn<QString>("descriptor");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<bool>("isPlain");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<int>("element");
    QTest::addColumn<QList<int>>("area"); // first row, column, last row, column
    QTest::addColumn<int>("separatorWidth");
    QTest::newRow("defaults") << ":group:G" << QStringList() << true << false << -1
                              << QList<int>{0, 0, 0, 0} << 6;
    QTest::newRow("check without element stays plain")
        << ":check:G" << QStringList{"0"} << true << true << -1 << QList<int>{0, 0, 0, 0} << 6;
    QTest::newRow("check reads its value") << "T:CHECK:G:1:2:3:4:1:1:9" << QStringList{"1", "0"}
                                           << false << false << 1 << QList<int>{1, 2, 3, 4} << 9;
    QTest::newRow("check beyond values is checked")
        << ":groupcheck:G:::::5" << QStringList{"0"} << false << true << 5
        << QList<int>{0, 0, 0, 0} << 6;
    QTest::newRow("other word is plain") << ":frame:G:2:1::::0:-3" << QStringList() << true << false
                                         << -1 << QList<int>{2, 1, 2, 1} << 6;
    QTest::newRow("huge element is none") << ":check:G:::::2147483647" << QStringList() << false
                                          << true << -1 << QList<int>{0, 0, 0, 0} << 6;
    QTest::newRow("negative element is none") << ":check:G:::::-4" << QStringList{"0"} << false
                                              << true << -1 << QList<int>{0, 0, 0, 0} << 6;
}

void TestDescriptorParse::groups()
{
    QFETCH(QString, descriptor);
    QFETCH(QStringList, values);
    QFETCH(bool, isPlain);
    QFETCH(bool, checked);
    QFETCH(int, element);
    QFETCH(QList<int>, area);
    QFETCH(int, separatorWidth);
    const ParameterPageSpec spec({}, {}, {descriptor}, values);
    const GroupDescriptor& g = spec.group(0);
    QCOMPARE(g.isPlain, isPlain);
    QCOMPARE(g.checked, checked);
    QCOMPARE(g.elementIndex, element);
    QCOMPARE((QList<int>{g.firstRow, g.firstColumn, g.lastRow, g.lastColumn}), area);
    QCOMPARE(g.separatorWidth, separatorWidth);
    QCOMPARE(g.title, QString("G"));
}

void TestDescriptorParse::separatedColumnLookup()
{
    const ParameterPageSpec spec({}, {}, {"::Wide::::::1:8", "::wide", "::Narrow"}, {});
    QVERIFY(groupHasSeparatedColumns(spec, "WIDE")); // first match wins
    QCOMPARE(groupSeparatorWidth(spec, "wide"), 8);
    QVERIFY(!groupHasSeparatedColumns(spec, "Narrow"));
    QVERIFY(!groupHasSeparatedColumns(spec, "none"));
    QCOMPARE(groupSeparatorWidth(spec, "none"), 0);
}

void TestDescriptorParse::units()
{
    QCOMPARE(replaceUnitPlaceholders("k__Ohms__ __degrees__C __micro__s __Mho__ __ohms__"),
             QString("k") + QChar(0x3A9) + " " + QChar(0xB0) + "C " + QChar(0xB5) + "s "
                 + QChar(0x2127) + " __ohms__");
}

void TestDescriptorParse::controls_data()
{
    QTest::addColumn<QString>("descriptor");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("className"); // "" for none
    QTest::addColumn<bool>("hasLabel");
    QTest::addColumn<QString>("state"); // text or checked state
    QTest::newRow("real keeps text") << "::R::::real" << "10k" << "Spinner" << true << "10k";
    QTest::newRow("string") << "::S::::string" << "abc" << "EditBox" << true << "abc";
    QTest::newRow("bool FALSE") << "::B::::bool" << "FALSE" << "CheckBox" << false << "0";
    QTest::newRow("bool True") << "::B::::bool" << "True" << "CheckBox" << false << "1";
    QTest::newRow("bool 2") << "::B::::bool" << "2" << "CheckBox" << false << "1";
    QTest::newRow("label") << "::L::::label" << "" << "" << true << "";
    QTest::newRow("check group") << "::C::::check" << "1" << "GroupBox" << false << "1";
    QTest::newRow("plain group") << "::P::::group" << "" << "GroupBox" << false << "plain";
}

void TestDescriptorParse::controls()
{
    QFETCH(QString, descriptor);
    QFETCH(QString, value);
    QFETCH(QString, className);
    QFETCH(bool, hasLabel);
    QFETCH(QString, state);
    QWidget parent;
    const ParameterPageSpec spec({"::first", descriptor + ":::tip"}, {"1", value});
    QWidget* control = createParameterControl(spec, &parent, 1);
    std::unique_ptr<QLabel> label(createParameterLabel(spec, &parent, 1));
    QCOMPARE(bool(label), hasLabel);
    if (className.isEmpty()) {
        QVERIFY(!control);
        return;
    }
    QVERIFY(control);
    QCOMPARE(control->metaObject()->className(), qPrintable(className));
    QCOMPARE(control->toolTip(), QString("tip"));
    if (auto* spinner = qobject_cast<Spinner*>(control)) {
        QCOMPARE(spinner->text(), state);
        QVERIFY(spinner->engMode());
        QCOMPARE(spinner->outElementIndex(), 1);
    } else if (auto* edit = qobject_cast<EditBox*>(control)) {
        QCOMPARE(edit->text(), state);
    } else if (auto* check = qobject_cast<CheckBox*>(control)) {
        QCOMPARE(check->isChecked(), state == "1");
        QCOMPARE(check->text(), QString("B"));
    } else if (auto* box = qobject_cast<GroupBox*>(control)) {
        QCOMPARE(box->isCheckable(), state != "plain");
        if (box->isCheckable())
            QCOMPARE(box->isChecked(), state == "1");
    }
}

void TestDescriptorParse::listSelection_data()
{
    QTest::addColumn<QString>("items");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("selected");
    QTest::newRow("exact, ignoring case") << "low|HIGH|highest" << "high" << 1;
    QTest::newRow("prefix picks the later") << "fast|faster|slow" << "fa" << 1;
    QTest::newRow("empty picks the last") << "a|b|c" << "" << 2;
    QTest::newRow("no match keeps first") << "a|b|c" << "zzz" << 0;
}

void TestDescriptorParse::listSelection()
{
    QFETCH(QString, items);
    QFETCH(QString, value);
    QFETCH(int, selected);
    QWidget parent;
    const ParameterPageSpec spec({"::L::::list:" + items}, {value});
    auto* combo = qobject_cast<ComboBox*>(createParameterControl(spec, &parent, 0));
    QVERIFY(combo);
    QCOMPARE(combo->currentIndex(), selected);
}

void TestDescriptorParse::badInputNeverBreaks()
{
    QStringList params = {"", ":::::::::::::::::::::::::::::", "a:b:c:99999999999:-99999999999",
                          "::x::::real:abc|def|ghi", "::y::::list:", "::z::::int:|", "\\:\\:\\"};
    const ParameterPageSpec spec({""}, params, {"", "::::::::::", "x:check:y:-5:-5:-9:-9:-1"}, {});
    QCOMPARE(spec.parameterCount(), params.size());
    QWidget parent;
    for (int p = -1; p <= params.size(); ++p) {
        createParameterLabel(spec, &parent, p);
        createParameterControl(spec, &parent, p);
        createParameterUnit(spec, &parent, p);
    }
    QVERIFY(!createGroupBox(spec, &parent, -1));
    QVERIFY(!createGroupBox(spec, &parent, 3));
    QCOMPARE(spec.parameter(99).name, QString());
    QCOMPARE(spec.tabTitle(-1), QString());
}

void TestDescriptorParse::placementClampsGrid()
{
    QWidget page;
    auto* grid = new QGridLayout(&page);
    PageMaps maps;
    maps.storePage("Parameters", &page, grid);
    const ParameterPageSpec spec({}, {":G:big:2147483647:2147483647", "Nowhere:Gone:lost"},
                                 {"::G:99999:99999", "Nowhere::Gone"}, {});
    placeGroups(spec, maps);
    placeParameters(spec, maps, PlacementRules());
    QVERIFY(grid->rowCount() <= kMaxGridIndex + 1);
    QVERIFY(grid->columnCount() <= kMaxGridIndex + 1);
    QVERIFY(maps.groupGrid("PARAMETERSg")); // keys ignore case
    QVERIFY(maps.groupGrid("parametersg")->rowCount() <= kMaxGridIndex + 1);
    QVERIFY(page.findChild<QWidget*>("parameter0"));
    QVERIFY(!maps.group("NowhereGone")); // its tab doesn't exist
    QVERIFY(!page.findChild<QWidget*>("parameter1"));
    QCOMPARE(gridSpan(3, -1), -1);
    QCOMPARE(gridSpan(5, 2), 1);
    QCOMPARE(gridSpan(1, 3), 3);
}

QTEST_MAIN(TestDescriptorParse)
#include "tst_descriptorparse.moc"
