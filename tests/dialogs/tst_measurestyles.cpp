// MeasureDialog, ManageMeasureDialog, EditStylesDialog and
// CreateNewTitleBlockDialog, called through the engine on the built module
// and answered as a user would.
#include "dialogtest.h"
#include "hostsupport.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialog>
#include <QFileDialog>
#include <QImage>
#include <QListWidget>
#include <QMessageBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QFontDatabase>
#include <QJsonArray>
#include <QtTest>

using namespace dialogtest;
Q_DECLARE_METATYPE(Args)

namespace {

// A line of the result of MeasureDialog: the selected name, the three
// pre-process boxes, and the custom tab's six elements.
QStringList measureResult(const QString& name, const QString& boxes,
                          const QStringList& custom = {"", "", "0", "", "", ""})
{
    QStringList out{name};
    for (const QChar c : boxes)
        out << QString(c);
    return out + custom;
}

// A font family this machine has: the style editor replaces one it can't
// show by whatever its font box holds.
QString& machineFamily()
{
    static QString family;
    return family;
}

QString style(int lineColour, int lineType, int thickness, int fontColour = 0, int size = 9,
              bool bold = false)
{
    const QString& family = machineFamily();
    return QStringLiteral("lineColour:%1 lineType:%2 lineThickness:%3 fontFamily:\"%4\" fontItalics:0 "
                          "fontBold:%5 fontColour:%6 fontSize:%7 propertyStyle:0 fontOverline:0 "
                          "fontUnderline:0 ")
        .arg(lineColour).arg(lineType).arg(thickness).arg(family).arg(int(bold)).arg(fontColour).arg(size);
}

const QStringList kLineTypes{"Solid", "Dash", "Dot", "DashDot", "DashDotDot"};

// Style arguments: names, entries, line types, and whatever follows.
Args styleArgs(const QStringList& names, const QStringList& entries,
               const QList<QStringList>& more = {})
{
    return stringArgs(QList<QStringList>{names, entries, kLineTypes} + more);
}

QString pngBase64()
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return QString::fromLatin1(data.toBase64());
}

QString today()
{
    return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat);
}

} // namespace

class TestMeasureStyles : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void measure_data();
    void measure() { check("MeasureDialog"); }
    void manage_data();
    void manage() { check("ManageMeasureDialog"); }
    void styles_data();
    void styles() { check("EditStylesDialog"); }
    void titleBlock_data();
    void titleBlock() { check("CreateNewTitleBlockDialog"); }
    void measureGreyItemCantBePicked();

private:
    // Columns of every table. options are "name=value" pairs written before
    // the call; optionsAfter are read after it.
    static void columns();
    void check(const char* function);

    vtkit::Engine m_engine;
    QTemporaryDir m_config;
    QTemporaryDir m_files;
    QString m_logo; // a small PNG file
};

void TestMeasureStyles::initTestCase()
{
    QVERIFY(loadModule(m_engine, &m_config));
    QVERIFY(m_files.isValid());
    m_logo = m_files.filePath("logo.png");
    QVERIFY(QImage::fromData(QByteArray::fromBase64(pngBase64().toLatin1()), "PNG").save(m_logo));
    machineFamily() = QFontDatabase().families().value(0);
    QVERIFY(!machineFamily().isEmpty());
}

void TestMeasureStyles::init()
{
    for (const char* name : {"TitleBlockDefaultCompany", "TitleBlockDefaultAuthor",
                             "TitleBlockDefaultLogoPath"})
        sp_WriteOption(name, "");
}

void TestMeasureStyles::cleanup()
{
    QVERIFY(noTopLevelsLeft());
}

void TestMeasureStyles::columns()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<bool>("hasResult");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QStringList>("facts");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("optionsAfter");
}

void TestMeasureStyles::check(const char* function)
{
    QFETCH(Args, args);
    QFETCH(QString, steps);
    QFETCH(bool, hasResult);
    QFETCH(QStringList, expected);
    QFETCH(QStringList, facts);
    QFETCH(QStringList, messages);
    QFETCH(QStringList, options);
    QFETCH(QStringList, optionsAfter);

    for (const QString& option : options)
        sp_WriteOption(toYs(option.section('=', 0, 0)), toYs(option.section('=', 1)));
    const Answered a = answer(m_engine, function, args,
                              withInspections(steps.toUtf8(), objectsOf(facts), InspectAt::BeforeLast));
    QVERIFY2(a.ok, qPrintable(a.failure));
    QCOMPARE(a.result.hasResult, hasResult);
    if (hasResult)
        QCOMPARE(textsOf(a.result), expected);
    QStringList seen;
    for (const QString& f : facts)
        seen << f.section('=', 0, 0) + '=' + a.inspectedText(f.section('=', 0, 0));
    QCOMPARE(seen, facts);
    QCOMPARE(a.messages(), messages);

    QStringList after;
    for (const QString& option : optionsAfter) {
        const QString name = option.section('=', 0, 0);
        after << name + '=' + toQs(sp_GetStringOption(Tocs(name)));
    }
    QCOMPARE(after, optionsAfter);
}

void TestMeasureStyles::measure_data()
{
    columns();
    const QStringList lines{"Mean;Average value;0;1", "RMS;Root mean square;0;1",
                            "Freq;Frequency between cursors;1;1", "Custom;Write your own;0;1"};
    const QString none = "[{\"cancel\": true}]";
    const QString customTab = "{\"choose\": \"tabWidget\", \"index\": 1}";
    const QString listTab = "{\"choose\": \"tabWidget\", \"index\": 0}";
    auto row = [](const char* name, const Args& args, const QString& steps, bool hasResult,
                  const QStringList& expected, const QStringList& facts) {
        QTest::newRow(name) << args << steps << hasResult << expected << facts << QStringList()
                            << QStringList() << QStringList();
    };

    row("no arguments", {}, none, false, {},
        {"okButton1.enabled=false", "cbCursorSpan.checked=false", "cbCursorSpan.enabled=false",
         "messageLabel.text=Some items are disabled as they require cursors to be switched on\n",
         "measureItemsListBox.items="});
    row("start name selected, Ok", stringArgs({lines, {"RMS", "0", "1", "0"}, {"haveCursors"}}),
        "[{\"accept\": true}]", true, measureResult("RMS", "010"),
        {"longDescriptionLabel.text=Root mean square", "messageLabel.hidden=true",
         "tabCustom.enabled=false"});
    row("without cursors the item is grey and a click does nothing", stringArgs({lines, {"Mean"}}),
        none, false, {},
        {"longDescriptionLabel.text=Average value", "okButton1.enabled=true"});
    row("a start name that is greyed leaves Ok off", stringArgs({lines, {"Freq"}}), none, false, {},
        {"okButton1.enabled=false", "longDescriptionLabel.text="});
    row("cursors forced on and given back",
        stringArgs({lines, {"Mean"}, {"HAVECURSORS"}}),
        "[{\"check\": \"cbCursorSpan\", \"on\": false}, {\"choose\": \"measureItemsListBox\", \"text\": \"Freq\"},"
        " {\"choose\": \"measureItemsListBox\", \"text\": \"RMS\"}, {\"accept\": true}]",
        true, measureResult("RMS", "000"), {"cbCursorSpan.enabled=true"});
    row("a cursor measurement locks cursor span on",
        stringArgs({lines, {"RMS"}, {"haveCursors"}}),
        "[{\"choose\": \"measureItemsListBox\", \"text\": \"Freq\"}, {\"accept\": true}]", true,
        measureResult("Freq", "100"), {"cbCursorSpan.enabled=false"});
    row("custom in any case opens the second tab",
        stringArgs({QStringList{"CUSTOM;Own"} + lines, {"RMS"}}),
        "[{\"choose\": \"measureItemsListBox\", \"text\": \"CUSTOM\"}, " + customTab + ", {\"set\": \"labelEdit\", \"text\": \"Pk\"},"
        " {\"check\": \"cbSaveDefs\"}, {\"set\": \"shortDescriptionEdit\", \"text\": \"Peak\"}, {\"accept\": true}]",
        true, measureResult("CUSTOM", "000", {"Pk", "", "1", "", "Peak", ""}),
        {"tabCustom.enabled=true", "saveDefinitionGroupBox.enabled=true"});
    row("leaving custom closes the tab and keeps its text",
        stringArgs({lines, {"Custom"}}),
        "[" + customTab + ", {\"set\": \"editBox6\", \"text\": \"%.3g\"}, " + listTab + ", {\"choose\": \"measureItemsListBox\", \"text\": \"Mean\"},"
        " {\"accept\": true}]",
        true, measureResult("Mean", "000", {"", "", "0", "%.3g", "", ""}), {"tabCustom.enabled=false"});
    row("a line of a name only describes itself", stringArgs({{"Peak"}}),
        "[{\"choose\": \"measureItemsListBox\", \"text\": \"Peak\"}, {\"accept\": true}]", true,
        measureResult("Peak", "000"), {"longDescriptionLabel.text=Peak"});
    row("factory then user line: the user's description",
        stringArgs({{"A;x;1;1", "A;y;0"}, {"A"}, {"haveCursors"}}), "[{\"accept\": true}]", true,
        measureResult("A", "000"),
        {"measureItemsListBox.items=A", "longDescriptionLabel.text=y", "cbCursorSpan.enabled=true"});
    row("user then factory line: the same", stringArgs({{"A;y;0", "A;x;1;1"}, {"A"}}),
        "[{\"accept\": true}]", true, measureResult("A", "000"),
        {"measureItemsListBox.items=A", "longDescriptionLabel.text=y"});
    row("an overriding line that needs cursors looks enabled, Ok stays off",
        stringArgs({{"B;x;0;1", "B;z;1;0"}, {"B"}}), none, false, {},
        {"okButton1.enabled=false",
         "longDescriptionLabel.text=z"});
    row("empty lines, 40 fields, one list of junk",
        stringArgs({{"", QString(39, ';'), "X;d;1;1" + QString(36, ';'), ";;;"}}), none, false, {},
        {"measureItemsListBox.items=|X"});
}

// Without cursors a measurement that needs them is grey: a click can't
// pick it, and the form stays as it was.
void TestMeasureStyles::measureGreyItemCantBePicked()
{
    const Answered a = answer(m_engine, "MeasureDialog",
                              stringArgs({{"Mean;Average;0;1", "Freq;Frequency;1;1", "B;x;0;1", "B;z;1;0"}, {"Mean"}}),
                              R"([{"choose": "measureItemsListBox", "text": "Freq"}, {"accept": true}])");
    QVERIFY(!a.ok);
    QVERIFY2(a.failure.contains("did not give the selection"), qPrintable(a.failure));
    // A user line over a factory one keeps the item enabled, though it now
    // needs cursors: picked, it doesn't enable Ok.
    const Answered b = answer(m_engine, "MeasureDialog",
                              stringArgs({{"Mean;Average;0;1", "B;x;0;1", "B;z;1;0"}, {"Mean"}}),
                              R"([{"choose": "measureItemsListBox", "text": "B"}, {"inspect": "okButton1"},
                                  {"inspect": "longDescriptionLabel"}, {"cancel": true}])");
    QVERIFY2(b.ok, qPrintable(b.failure));
    QCOMPARE(b.inspected("okButton1").value("enabled").toBool(), false);
    QCOMPARE(b.inspected("longDescriptionLabel").value("text").toString(), QString("z"));
}

void TestMeasureStyles::manage_data()
{
    columns();
    const QString mean = "Mean;Mean1(data);%g;Mean;Average value;;1";
    const QString freq = "Freq;Freq(data);;F;Frequency;1;1";
    const QStringList duplicate{"Duplicate Entry|The name you have entered is already used\nChoose another name"};
    auto row = [](const char* name, const QStringList& input, const QString& steps,
                  const QStringList& expected, const QStringList& facts = {},
                  const QStringList& messages = {}) {
        QTest::newRow(name) << stringArgs({input}) << steps << true << expected << facts << messages
                            << QStringList() << QStringList();
    };

    row("factory lines unchanged give one empty line", {mean, freq}, "[{\"accept\": true}]", {""},
        {"deleteButton.text=Restore Factory Definition", "deleteButton.enabled=false",
         "labelEdit.text=Mean", "measureItemsListBox.items=Mean|Freq"});
    row("cancel gives one empty line", {mean, "U;u;;;;"}, "[{\"set\": \"labelEdit\", \"text\": \"x\"}, {\"cancel\": true}]",
        {""});
    row("a change of letter case only is no change", {mean, freq},
        "[{\"set\": \"expressionEdit\", \"text\": \"MEAN1(DATA)\"}, {\"choose\": \"measureItemsListBox\", \"text\": \"Freq\"},"
        " {\"choose\": \"measureItemsListBox\", \"text\": \"Mean\"}, {\"accept\": true}]",
        {""}, {"deleteButton.enabled=false", "expressionEdit.text=MEAN1(DATA)"});
    row("a changed factory definition comes back, six fields", {mean, freq},
        "[{\"choose\": \"measureItemsListBox\", \"text\": \"Freq\"}, {\"set\": \"formatEdit\", \"text\": \"%.2f\"},"
        " {\"check\": \"cbRequiresCursors\", \"on\": false}, {\"accept\": true}]",
        {"Freq;Freq(data);%.2f;F;Frequency;"}, {"deleteButton.enabled=false"});
    row("changed and put back by hand", {mean},
        "[{\"set\": \"labelEdit\", \"text\": \"M\"}, {\"set\": \"labelEdit\", \"text\": \"Mean\"}, {\"accept\": true}]",
        {""});
    row("restore reloads the factory text", {mean},
        "[{\"set\": \"labelEdit\", \"text\": \"Other\"}, {\"choose\": \"measureItemsListBox\", \"text\": \"Mean\"},"
        " {\"click\": \"deleteButton\"}, {\"accept\": true}]",
        {""}, {"labelEdit.text=Mean", "deleteButton.enabled=false"});
    row("factory and user line merge, user first", {"Mean;Mean2(data);%g;My mean;Mine;", mean},
        "[{\"accept\": true}]", {"Mean;Mean2(data);%g;My mean;Mine;"},
        {"measureItemsListBox.items=Mean", "deleteButton.text=Restore Factory Definition",
         "deleteButton.enabled=true", "expressionEdit.text=Mean2(data)"});
    row("factory and user line merge, factory first", {mean, "Mean;Mean2(data);%g;My mean;Mine;"},
        "[{\"accept\": true}]", {"Mean;Mean2(data);%g;My mean;Mine;"},
        {"measureItemsListBox.items=Mean", "deleteButton.enabled=true"});
    row("user lines come back as they were", {"X;;;;;1", "Y;e;f;l;d;", "Z;e;f;l;d;;0"},
        "[{\"accept\": true}]", {"X;;;;;1", "Y;e;f;l;d;", "Z;e;f;l;d;"},
        {"deleteButton.text=Delete", "deleteButton.enabled=true"});
    row("delete a user definition", {mean, "U;u;;;;", "V;v;;;;"},
        "[{\"choose\": \"measureItemsListBox\", \"text\": \"U\"}, {\"click\": \"Delete\"}, {\"accept\": true}]",
        {"V;v;;;;"}, {"measureItemsListBox.items=Mean|V"});
    row("empty input: create works", {},
        "[{\"set\": \"nameEdit\", \"text\": \"Peak\"}, {\"click\": \"createButton\"},"
        " {\"set\": \"expressionEdit\", \"text\": \"Max(data)\"}, {\"accept\": true}]",
        {"Peak;Max(data);;;;"}, {"measureItemsListBox.items=Peak", "deleteButton.text=Delete"});
    row("empty input, nothing made", {""}, "[{\"set\": \"labelEdit\", \"text\": \"x\"}, {\"accept\": true}]",
        {""}, {"createButton.enabled=false", "copySelectedButton.enabled=false"});
    row("copy of a factory definition is the user's", {mean},
        "[{\"set\": \"nameEdit\", \"text\": \"Mean2\"}, {\"click\": \"copySelectedButton\"}, {\"accept\": true}]",
        {"Mean2;Mean1(data);%g;Mean;Average value;"}, {"deleteButton.text=Delete"});
    row("a taken name is refused with a warning", {mean},
        "[{\"set\": \"nameEdit\", \"text\": \"Mean\"}, {\"click\": \"createButton\"}, {\"message\": \"OK\"},"
        " {\"click\": \"copySelectedButton\"}, {\"message\": \"OK\"}, {\"accept\": true}]",
        {""}, {"measureItemsListBox.items=Mean"}, duplicate + duplicate);
    row("a ; typed into a new name splits it", {},
        "[{\"set\": \"nameEdit\", \"text\": \"Pk;Max(data)\"}, {\"click\": \"createButton\"}, {\"accept\": true}]",
        {"Pk;Max(data);;;;"}, {"expressionEdit.text=Max(data)"});
    row("another case is another name", {mean},
        "[{\"set\": \"nameEdit\", \"text\": \"MEAN\"}, {\"click\": \"createButton\"}, {\"accept\": true}]",
        {"MEAN;;;;;"}, {"measureItemsListBox.items=Mean|MEAN"});
    row("lines without a name, 40 fields", {"", ";x;y", "W;e;f;l;d;1;1" + QString(33, ';')},
        "[{\"accept\": true}]", {""}, {"measureItemsListBox.items=W"});
}

void TestMeasureStyles::styles_data()
{
    columns();
    const QString wire = "Wire|" + style(32768, 0, 2);
    const QString inst = "Instance|" + style(128, 1, 0);
    const QStringList names{"Wire", "Instance"};
    // A new style is "arial". Leaving it stores the form over it, with the
    // family the font box could show: the machine's Arial, or else the one
    // it showed before.
    QString leftFamily = machineFamily();
    for (const QString& f : QFontDatabase().families())
        if (f.compare("arial", Qt::CaseInsensitive) == 0)
            leftFamily = f;
    const QString newStyle = style(0, 0, 0).replace(machineFamily(), "%1");
    const QStringList entries{wire, inst};
    auto row = [](const char* name, const Args& args, const QString& steps, const QStringList& expected,
                  const QStringList& facts = {}) {
        QTest::newRow(name) << args << steps << true << expected << facts << QStringList()
                            << QStringList() << QStringList();
    };

    row("unchanged, Ok", styleArgs(names, entries), "[{\"accept\": true}]", entries,
        {"listbox_StyleNames.items=Instance|Wire", "listbox_StyleNames.selected=Instance",
         "combobox_LineType.text=Dash", "spinner_LineSize.text=1",
         "pushbutton_EditName.enabled=false", "pushButton_RevertGlobal.hidden=true"});
    row("cancel", styleArgs(names, entries), "[{\"check\": \"checkbox_Bold\"}, {\"cancel\": true}]", {""});
    row("empty entries, Ok gives none", styleArgs({}, {}), "[{\"accept\": true}]", {});
    row("bold and a line type", styleArgs(names, entries),
        "[{\"choose\": \"listbox_StyleNames\", \"text\": \"Wire\"}, {\"check\": \"checkbox_Bold\"},"
        " {\"choose\": \"combobox_LineType\", \"text\": \"Dot\"}, {\"accept\": true}]",
        {"Wire|" + style(32768, 2, 2, 0, 9, true), inst},
        {"combobox_LineType.text=Dot"});
    row("line colour from the chooser, packed blue high", styleArgs(names, entries),
        "[{\"click\": \"pushbutton_LineColour\"}, {\"color\": \"#0000ff\"}, {\"accept\": true}]",
        {wire, "Instance|" + style(16711680, 1, 0)});
    row("thickness 1 becomes 0 on a selection change",
        styleArgs(names, {"Wire|" + style(0, 0, 1), inst}),
        "[{\"choose\": \"listbox_StyleNames\", \"text\": \"Wire\"},"
        " {\"choose\": \"listbox_StyleNames\", \"text\": \"Instance\"}, {\"accept\": true}]",
        {"Wire|" + style(0, 0, 0), inst});
    row("three new styles", styleArgs(names, entries),
        "[{\"click\": \"pushbutton_NewStyle\"}, {\"click\": \"pushbutton_NewStyle\"},"
        " {\"click\": \"pushbutton_NewStyle\"}, {\"accept\": true}]",
        entries + QStringList{"NewStyle|" + newStyle.arg(leftFamily), "NewStyle1|" + newStyle.arg(leftFamily),
                              "NewStyle2|" + newStyle.arg("arial")},
        {"listbox_StyleNames.items=Instance|NewStyle|NewStyle1|NewStyle2|Wire",
         "pushbutton_EditName.enabled=true"});
    // The list's item editor, as a user types into it.
    const QString rename = "{\"set\": \"QExpandingLineEdit\", \"text\": \"%1\"}";
    const QString newAndName = "[{\"click\": \"pushbutton_NewStyle\"}, " + rename + ", {\"accept\": true}]";
    row("a new name loses its blanks", styleArgs(names, entries), newAndName.arg("My Wire"),
        entries + QStringList{"MyWire|" + newStyle.arg("arial")},
        {"listbox_StyleNames.items=Instance|MyWire|Wire", "pushbutton_EditName.enabled=true"});
    row("a name with | goes back", styleArgs(names, entries), newAndName.arg("A|B"),
        entries + QStringList{"NewStyle|" + newStyle.arg("arial")},
        {"listbox_StyleNames.items=Instance|NewStyle|Wire"});
    row("a name with ; goes back", styleArgs(names, entries), newAndName.arg("A;B"),
        entries + QStringList{"NewStyle|" + newStyle.arg("arial")});
    row("a taken name in another case goes back", styleArgs(names, entries), newAndName.arg("WIRE"),
        entries + QStringList{"NewStyle|" + newStyle.arg("arial")},
        {"listbox_StyleNames.items=Instance|NewStyle|Wire"});
    row("only names given here can be renamed again", styleArgs(names, entries),
        "[{\"click\": \"pushbutton_NewStyle\"}, " + rename.arg("Mine")
            + ", {\"choose\": \"listbox_StyleNames\", \"text\": \"Wire\"},"
              " {\"choose\": \"listbox_StyleNames\", \"text\": \"Mine\"},"
              " {\"click\": \"pushbutton_EditName\"}, " + rename.arg("Yours") + ", {\"accept\": true}]",
        entries + QStringList{"Yours|" + newStyle.arg(leftFamily)},
        {"listbox_StyleNames.items=Instance|Wire|Yours", "pushbutton_EditName.enabled=true"});
    row("duplicate strips trailing digits", styleArgs({"Wire", "Wire2"}, {wire, "Wire2|" + style(5, 3, 4)}),
        "[{\"choose\": \"listbox_StyleNames\", \"text\": \"Wire2\"}, {\"click\": \"pushbutton_Duplicate\"},"
        " {\"accept\": true}]",
        {wire, "Wire2|" + style(5, 3, 4), "Wire1|" + style(5, 3, 4)});
    row("flags hide their buttons", styleArgs(names, entries, {{}, {"noedit", "noadd", "NODUPLICATE", "x"}}),
        "[{\"accept\": true}]", entries,
        {"pushbutton_EditName.hidden=true", "pushbutton_NewStyle.hidden=true",
         "pushbutton_Duplicate.hidden=false"});
    row("font only", styleArgs(names, entries, {{}, {}, {}, {"FontOnly"}}), "[{\"accept\": true}]", entries,
        {"groupBox_LineType.hidden=true", "groupBox_LineColour.hidden=true",
         "checkbox_PreviewAsWire.hidden=true", "checkbox_PreviewAsWire.checked=true",
         "checkbox_PreviewAsText.checked=true", "groupBox_Font.hidden=false"});
    row("use global, looked up without regard to case",
        styleArgs(names, entries, {{}, {}, {"WIRE|" + style(1, 4, 3)}}),
        "[{\"choose\": \"listbox_StyleNames\", \"text\": \"Wire\"}, {\"click\": \"pushButton_RevertGlobal\"},"
        " {\"accept\": true}]",
        {"WIRE|" + style(1, 4, 3), inst}, {"pushButton_RevertGlobal.hidden=false"});
    row("a default style shows but can't change",
        styleArgs({"Grid"}, {}, {{"Grid|" + style(7, 2, 0)}}),
        "[{\"check\": \"checkbox_Bold\"}, {\"accept\": true}]", {},
        {"combobox_LineType.text=Dot", "checkbox_Bold.checked=false"});
    row("junk entries and a wild size",
        styleArgs({"A", "", "B"}, {"A|fontSize:100000 lineThickness:999999999 lineColour:-5 ", "|", "junk"},
                  {{"DefaultGrid|lineThickness:2000000000 ", "DefaultInstance|fontSize:2000000000 "}}),
        "[{\"choose\": \"listbox_StyleNames\", \"text\": \"B\"},"
        " {\"choose\": \"listbox_StyleNames\", \"text\": \"A\"}, {\"cancel\": true}]",
        {""});
}

void TestMeasureStyles::titleBlock_data()
{
    columns();
    const QString png = pngBase64();
    const QStringList newBlock{"CompanyName:", "Title:", "Author:", "Notes:", "LayoutStyle:Horizontal",
                               "Logo:", "Version:<<auto>>", "Date:<<auto>>"};
    const QStringList logoAfter{"TitleBlockDefaultLogoPath=FromSchematic"};
    auto row = [](const char* name, const QStringList& input, const QString& steps, bool hasResult,
                  const QStringList& expected, const QStringList& facts = {},
                  const QStringList& options = {}, const QStringList& after = {}) {
        QTest::newRow(name) << (input.isEmpty() ? Args() : stringArgs({input})) << steps << hasResult
                            << expected << facts << QStringList() << options << after;
    };

    row("a new block", {}, "[{\"accept\": true}]", true, newBlock,
        {"editbox_Version.enabled=false", "dateEdit_Date.enabled=false",
         "horizontalStyleButton.checked=true", "checkBox_DefaultCompany.checked=false",
         "checkBox_DefaultLogo.checked=false", "editbox_ImageSelection.enabled=true"},
        {}, {"TitleBlockDefaultLogoPath=", "TitleBlockDefaultAuthor="});
    row("cancel changes no option", {}, "[{\"set\": \"editbox_ImageSelection\", \"text\": \"a.png\"}, {\"cancel\": true}]",
        true, {""}, {}, {"TitleBlockDefaultLogoPath=old.png"}, {"TitleBlockDefaultLogoPath=old.png"});
    row("defaults fill a new block and are written back", {}, 
        "[{\"set\": \"textedit_Author\", \"text\": \"B. Jones\"}, {\"accept\": true}]", true,
        {"CompanyName:Acme", "Title:", "Author:B. Jones", "Notes:", "LayoutStyle:Horizontal",
         "Logo:/nowhere/logo.png", "Version:<<auto>>", "Date:<<auto>>"},
        {"checkBox_DefaultCompany.checked=true", "checkBox_DefaultAuthor.checked=true",
         "checkBox_DefaultLogo.checked=true"},
        {"TitleBlockDefaultCompany=Acme", "TitleBlockDefaultAuthor=A. Smith",
         "TitleBlockDefaultLogoPath=/nowhere/logo.png"},
        {"TitleBlockDefaultAuthor=B. Jones", "TitleBlockDefaultLogoPath=/nowhere/logo.png"});
    row("tags in any case, output as written", 
        {"AUTHOR:x", "title:T", "companyname:C", "NOTES:n", "layoutstyle:vertical", "Version:<<AUTO>>",
         "Nonsense:1"},
        "[{\"accept\": true}]", true,
        {"CompanyName:C", "Title:T", "Author:x", "Notes:n", "LayoutStyle:Vertical", "Logo:",
         "Version:<<auto>>", "Date:<<auto>>"},
        {"textedit_Notes.enabled=false", "checkBox_DefaultLogo.enabled=false",
         "editbox_Version.enabled=false", "checkBox_DefaultAuthor.checked=false"},
        {"TitleBlockDefaultAuthor=kept"}, {"TitleBlockDefaultAuthor=kept", "TitleBlockDefaultLogoPath="});
    row("a logo from the schematic", {"Logo:" + png, "Version:3", "Date:" + today()},
        "[{\"accept\": true}]", true,
        {"CompanyName:", "Title:", "Author:", "Notes:", "LayoutStyle:Horizontal", "Logo:FromSchematic",
         "Version:3", "Date:" + today()},
        {"editbox_ImageSelection.enabled=false", "editbox_Version.enabled=true",
         "radioButton_ManualDate.checked=true"},
        {}, logoAfter);
    row("a logo that is no image still reads FromSchematic", {"Logo:***not base64***"},
        "[{\"accept\": true}]", true,
        {"CompanyName:", "Title:", "Author:", "Notes:", "LayoutStyle:Horizontal", "Logo:FromSchematic",
         "Version:<<auto>>", "Date:<<auto>>"},
        {"editbox_ImageSelection.enabled=false"}, {}, logoAfter);
    row("a 20 MB logo line", {"Logo:" + QString(20 * 1024 * 1024, 'A')}, "[{\"accept\": true}]", true,
        {"CompanyName:", "Title:", "Author:", "Notes:", "LayoutStyle:Horizontal", "Logo:FromSchematic",
         "Version:<<auto>>", "Date:<<auto>>"});
    row("a date that doesn't parse keeps today's", {"Date:31/31/31x"},
        "[{\"accept\": true}]", true,
        {"CompanyName:", "Title:", "Author:", "Notes:", "LayoutStyle:Horizontal", "Logo:",
         "Version:<<auto>>", "Date:" + today()},
        {"dateEdit_Date.enabled=true"});
    row("choose after FromSchematic enables the path", {"Logo:" + png, "LayoutStyle:Sideways"},
        "[{\"click\": \"button_ImageSelection\"}, {\"file\": \"" + m_logo + "\"}, {\"accept\": true}]", true,
        {"CompanyName:", "Title:", "Author:", "Notes:", "LayoutStyle:Horizontal", "Logo:" + m_logo,
         "Version:<<auto>>", "Date:<<auto>>"},
        {"editbox_ImageSelection.enabled=true"}, {}, {"TitleBlockDefaultLogoPath=" + m_logo});
    row("manual version, then back to auto", {"Version:7"},
        "[{\"radio\": \"widget_Version\", \"id\": 0}, {\"accept\": true}]", true,
        {"CompanyName:", "Title:", "Author:", "Notes:", "LayoutStyle:Horizontal", "Logo:",
         "Version:<<auto>>", "Date:<<auto>>"},
        {"editbox_Version.enabled=false", "editbox_Version.text=7"});
}

QTEST_MAIN(TestMeasureStyles)
#include "tst_measurestyles.moc"
