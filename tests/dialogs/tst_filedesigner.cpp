// SaveSpecialDialog, TwoFileSelectionDialog and DialogDesigner called
// through the engine on the built module and answered as a user would.
#include "designertest.h"
#include "designerxml.h"
#include "dialogtest.h"
#include "kitsupport.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

using namespace designertest;
using namespace dialogtest;

namespace {

// One fact about the dialog on screen, or a null string where it doesn't
// apply. "windowTitle", "objectName": the dialog's; "obj.hidden",
// "obj.items", "obj.prop": a child's; "tree", "expanded", "preview": the
// designer's; "fileDialog.title" and "fileDialog.filters": an open file
// dialog's.
QString fact(QWidget* dialog, const QString& key)
{
    const QString object = key.section(QLatin1Char('.'), 0, -2);
    const QString property = key.section(QLatin1Char('.'), -1);
    if (auto* files = qobject_cast<QFileDialog*>(dialog)) {
        if (object != QLatin1String("fileDialog"))
            return QString();
        return property == QLatin1String("title") ? files->windowTitle()
                                                  : files->nameFilters().join(QLatin1Char(';'));
    }
    if (object == QLatin1String("fileDialog"))
        return QString();
    if (auto* tree = dialog->findChild<QTreeWidget*>(QStringLiteral("treeWidget_Layout"))) {
        if (key == QLatin1String("tree"))
            return QLatin1String("") + describeTree(tree->invisibleRootItem()); // never null
        if (key == QLatin1String("expanded"))
            return QVariant(allExpanded(tree->invisibleRootItem())).toString();
        if (key == QLatin1String("preview"))
            return describeLayout(dialog->findChild<QWidget*>(QStringLiteral("widget_Preview"))->layout());
    }
    QObject* target = object.isEmpty() ? dialog : dialog->findChild<QWidget*>(object);
    if (!target)
        return QStringLiteral("absent");
    if (property == QLatin1String("hidden"))
        return QVariant(static_cast<QWidget*>(target)->isHidden()).toString();
    if (auto* combo = qobject_cast<QComboBox*>(target); combo && property == QLatin1String("items")) {
        QStringList items;
        for (int i = 0; i < combo->count(); ++i)
            items << combo->itemText(i);
        return items.join(QLatin1Char('|'));
    }
    return target->property(property.toLatin1()).toString();
}

// Follows the facts while the call runs: each time one changes, its new
// value is noted. A message box in front is passed over.
class Recorder {
public:
    explicit Recorder(const QStringList& keys)
        : m_keys(keys)
    {
        m_timer.setInterval(3);
        QObject::connect(&m_timer, &QTimer::timeout, [this] { look(); });
        m_timer.start();
    }

    // "key=value": the last value seen; "key=a -> b": these values were
    // seen in this order (others may come between).
    bool saw(const QString& expectation, QString* values) const
    {
        const QString key = expectation.section(QLatin1Char('='), 0, 0);
        const QString rest = expectation.section(QLatin1Char('='), 1);
        const QStringList history = m_values.value(key);
        *values = history.join(QStringLiteral(" -> "));
        if (!rest.contains(QLatin1String(" -> ")))
            return !history.isEmpty() && history.last() == rest;
        int at = 0;
        for (const QString& wanted : rest.split(QStringLiteral(" -> "))) {
            while (at < history.size() && history[at] != wanted)
                ++at;
            if (at++ >= history.size())
                return false;
        }
        return true;
    }

private:
    void look()
    {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible() || qobject_cast<QMessageBox*>(dialog))
            return;
        for (const QString& key : m_keys) {
            const QString value = fact(dialog, key);
            QStringList& history = m_values[key];
            if (!value.isNull() && (history.isEmpty() || history.last() != value))
                history << value;
        }
    }

    QStringList m_keys;
    QMap<QString, QStringList> m_values;
    QTimer m_timer;
};

QString setting(const QString& key)
{
    char buffer[4096] = {};
    if (!cfgman_GetConfigSetting("DialogPreferences", Tocs(key), buffer, 4095, false))
        return QStringLiteral("<none>");
    return QString::fromLatin1(buffer);
}

QString objectNameFor(const QString& key)
{
    return QStringLiteral("TwoFileSelectionDialog_%1").arg(toYs(key).hashValue() % 1001u);
}

} // namespace

class TestFileDesigner : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void saveSpecial_data();
    void saveSpecial() { check("SaveSpecialDialog"); }
    void twoFiles_data();
    void twoFiles() { check("TwoFileSelectionDialog"); }
    void designer_data();
    void designer() { check("DialogDesigner"); }

private:
    static void columns();
    void check(const char* function);

    vtkit::Engine m_engine;
    QTemporaryDir m_files;
    std::unique_ptr<QTemporaryDir> m_config;
};

Q_DECLARE_METATYPE(Args)

void TestFileDesigner::initTestCase()
{
    QVERIFY(loadModule(m_engine));
    QVERIFY(m_files.isValid());
    QFile input(m_files.filePath(QStringLiteral("in.net")));
    QVERIFY(input.open(QIODevice::WriteOnly));
}

// Each row starts from no preferences, with the file dialogs that can be
// answered headless.
void TestFileDesigner::init()
{
    m_config = std::make_unique<QTemporaryDir>();
    QVERIFY(m_config->isValid());
    vtkit::setConfigDir(m_config->path());
    sp_WriteOption("UseNonNativeFileDialog", true);
}

void TestFileDesigner::cleanup()
{
    QVERIFY(noTopLevelsLeft());
}

void TestFileDesigner::columns()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QStringList>("before");   // "key=value" preferences to store first
    QTest::addColumn<QString>("steps");
    // Elements joined by "|", "<none>", "<reals>" (the number 0), or "<fails>"
    // and the driver's complaint.
    QTest::addColumn<QString>("result");
    QTest::addColumn<QStringList>("facts");    // see Recorder::saw
    QTest::addColumn<QStringList>("messages"); // "title|text" and "help|topic", in order
    QTest::addColumn<QStringList>("after");    // "key=value" preferences afterwards
}

void TestFileDesigner::check(const char* function)
{
    QFETCH(Args, args);
    QFETCH(QStringList, before);
    QFETCH(QString, steps);
    QFETCH(QString, result);
    QFETCH(QStringList, facts);
    QFETCH(QStringList, messages);
    QFETCH(QStringList, after);

    for (const QString& kv : before)
        cfgman_WriteConfigSetting("DialogPreferences", Tocs(kv.section(QLatin1Char('='), 0, 0)),
                                  Tocs(kv.section(QLatin1Char('='), 1)));
    QStringList keys;
    for (const QString& f : facts)
        if (!f.startsWith(QLatin1String("inspect:")))
            keys << f.section(QLatin1Char('='), 0, 0);
    Recorder recorder(keys);
    const Answered answered = answer(m_engine, function, args, steps.toUtf8());
    if (result.startsWith(QLatin1String("<fails>"))) {
        QVERIFY(!answered.ok);
        QVERIFY2(answered.failure.contains(result.mid(7)), qPrintable(answered.failure));
        return;
    }
    QVERIFY2(answered.ok, qPrintable(answered.failure));

    for (const QString& f : facts) {
        QString values;
        if (f.startsWith(QLatin1String("inspect:")))
            QCOMPARE(f.mid(8).section(QLatin1Char('='), 0, 0) + QLatin1Char('=')
                         + answered.inspectedText(f.mid(8).section(QLatin1Char('='), 0, 0)),
                     f.mid(8));
        else
            QVERIFY2(recorder.saw(f, &values), qPrintable(f + QStringLiteral(" but saw ") + values));
    }
    QStringList seen = answered.messages();
    for (const QString& topic : answered.helpTopics())
        seen << QStringLiteral("help|") + topic;
    QCOMPARE(seen, messages);
    const CallResult& r = answered.result;
    if (result == QLatin1String("<none>")) {
        QVERIFY(!r.hasResult);
    } else if (result == QLatin1String("<reals>")) {
        QVERIFY(r.hasResult);
        QCOMPARE(int(r.value.kind), int(vtkit::ScriptValue::Kind::Reals));
        QCOMPARE(r.value.values, std::vector<double>{0.0});
        QCOMPARE(QString::fromStdString(r.value.units), QStringLiteral("PT_None"));
    } else {
        QVERIFY(r.hasResult);
        QCOMPARE(int(r.value.kind), int(vtkit::ScriptValue::Kind::Strings));
        QCOMPARE(textsOf(r).join(QLatin1Char('|')), result);
    }
    for (const QString& kv : after)
        QCOMPARE(kv.section(QLatin1Char('='), 0, 0) + QLatin1Char('=')
                     + setting(kv.section(QLatin1Char('='), 0, 0)),
                 kv);
}

// ----------------------------------------------------------- SaveSpecialDialog

void TestFileDesigner::saveSpecial_data()
{
    columns();
    const QString chosen = m_files.filePath(QStringLiteral("copy.sxsch"));
    QTest::newRow("arguments load the form and come back on Ok")
        << stringArgs({{"/work/amp.sxsch", "1", "0"}}) << QStringList()
        << R"([{"accept": true}])" << "/work/amp.sxsch|1|0"
        << QStringList{"windowTitle=Save Special", "helpButton.hidden=absent",
                       "checkBoxBinary.checked=true", "checkBoxComponent.checked=false"}
        << QStringList() << QStringList();
    QTest::newRow("no arguments: empty path, options off")
        << Args() << QStringList() << R"([{"accept": true}])" << "|0|0" << QStringList()
        << QStringList() << QStringList();
    QTest::newRow("browse takes the chosen file")
        << stringArgs({{"old.sxsch", "0", "0"}}) << QStringList()
        << QStringLiteral(R"([{"click": "browseButton"}, {"file": "%1"}, {"check": "checkBoxComponent"},
                             {"accept": true}])").arg(chosen)
        << QDir::toNativeSeparators(chosen) + "|0|1"
        << QStringList{"fileDialog.title=Save As", "fileDialog.filters=Schematics (*.sxsch *.sxcmp)"}
        << QStringList() << QStringList();
    QTest::newRow("browse cancelled keeps the path")
        << stringArgs({{"old.sxsch"}}) << QStringList()
        << R"([{"click": "browseButton"}, {"file": ""}, {"accept": true}])" << "old.sxsch|0|0"
        << QStringList() << QStringList() << QStringList();
    QTest::newRow("Cancel: no result")
        << stringArgs({{"a.sxsch", "1", "1"}}) << QStringList() << R"([{"cancel": true}])"
        << "<none>" << QStringList() << QStringList() << QStringList();
}

// ------------------------------------------------------ TwoFileSelectionDialog

void TestFileDesigner::twoFiles_data()
{
    columns();
    const QString in = m_files.filePath(QStringLiteral("in.net"));
    const QString dir = m_files.path();
    const QString missing = m_files.filePath(QStringLiteral("missing.net"));
    const QStringList allTexts{"Convert", "Netlist converter", "About", "Reads a netlist",
                               "Source", "", "Target", "Written here", "Open it?", "Notes",
                               "", "0", "12"};
    const QStringList keys{"in", "out", "desc", "open", "Netlist", "Netlist"};
    const QString accept = R"([{"accept": true}])";
    const QString noHistory = QStringLiteral("in=<none>");
    const QString thirtyThree(33, QLatin1Char('x'));
    // Not x: the editable combo would complete a typed x to the item.
    const QString typed(33, QLatin1Char('z'));
    const QString tooLong = QStringLiteral(
        "Warning: Greater than 32 character description|The description must be less than 32 characters");

    QTest::newRow("no arguments: no description, no help, all files")
        << Args() << QStringList()
        << R"([{"click": "toolButtonInput"}, {"file": ""}, {"click": "toolButtonOutput"},
              {"file": ""}, {"cancel": true}])"
        << "<none>"
        << QStringList{"windowTitle=Two File Selection Dialog",
                       "objectName=" + objectNameFor(QString()),
                       "groupBoxDescription.hidden=true", "helpButton.hidden=true",
                       "checkbox.checked=true",
                       "fileDialog.title=Select Input File Name -> Select Output File Name",
                       "fileDialog.filters=All Files (*.*)"}
        << QStringList() << QStringList();
    QTest::newRow("texts from argument 1; empty labels hidden; help topic as text")
        << stringArgs({{in, "out.net"}, allTexts}) << QStringList()
        << R"([{"inspect": ""}, {"inspect": "labelTitle"}, {"inspect": "groupBoxTop"},
              {"inspect": "labelTop"}, {"inspect": "groupBoxInput"}, {"inspect": "labelInput"},
              {"inspect": "labelOutput"}, {"inspect": "checkbox"},
              {"inspect": "groupBoxDescription"}, {"inspect": "labelDescription"},
              {"click": "helpButton"}, {"accept": true}])"
        << in + "|out.net||1"
        << QStringList{"inspect:.title=Convert", "inspect:labelTitle.text=Netlist converter",
                       "inspect:groupBoxTop.text=About", "inspect:labelTop.hidden=false",
                       "inspect:groupBoxInput.text=Source", "inspect:labelInput.hidden=true",
                       "inspect:labelOutput.text=Written here", "inspect:checkbox.text=Open it?",
                       "inspect:groupBoxDescription.hidden=false",
                       "inspect:labelDescription.hidden=true",
                       "inspect:.text=" + objectNameFor(allTexts.join(QString()))}
        << QStringList{"help|12"} << QStringList();
    QStringList hidden = allTexts;
    hidden[11] = QStringLiteral("1");
    QTest::newRow("element 11 \"1\" hides the description")
        << stringArgs({{in}, hidden}) << QStringList()
        << R"([{"inspect": "groupBoxDescription"}, {"accept": true}])" << in + "|||1"
        << QStringList{"inspect:groupBoxDescription.hidden=true"} << QStringList() << QStringList();
    QTest::newRow("kinds give the filters; the output is not checked")
        << stringArgs({{in, missing}, {}, keys}) << QStringList()
        << R"([{"click": "toolButtonInput"}, {"file": ""}, {"click": "toolButtonOutput"},
              {"file": ""}, {"accept": true}])"
        << in + "|" + missing + "||1"
        << QStringList{"fileDialog.filters=Netlist Files (*.net *.cir *.sp *.spi)"}
        << QStringList() << QStringList();
    const QStringList inputMissing{
        "Error: Input file doesn't exist|The input file doesn't exist on disk. Check the path "
        "and/or click on the <b>Select...</b> button to locate the input file."};
    QTest::newRow("missing input: error, dialog stays, nothing written")
        << stringArgs({{missing, "o.net", "d"}, {}, keys}) << QStringList()
        << R"([{"accept": true}, {"message": "OK"}, {"cancel": true}])" << "<none>"
        << QStringList()
        << inputMissing
        << QStringList{noHistory, "out=<none>", "desc=<none>", "open=<none>"};
    QTest::newRow("Ok stores histories newest first, at most ten, and the check box")
        << stringArgs({{in, "new.net", "run 3"}, {}, keys})
        << QStringList{"in=a;b;c;d;e;f;g;h;i;j;k;l", "out=old.net;;new.net", "open=0"}
        << accept << in + "|new.net|run 3|0"
        << QStringList{"comboBoxInputFile.items=" + in + "|a|b|c|d|e|f|g|h|i|j",
                       "comboBoxOutputFile.items=new.net|old.net", "checkbox.checked=false"}
        << QStringList()
        << QStringList{"in=" + in + ";a;b;c;d;e;f;g;h;i", "out=new.net;old.net",
                       "desc=run 3", "open=0"};
    QStringList thousands;
    for (int i = 0; i < 3000; ++i)
        thousands << QStringLiteral("x%1").arg(i);
    QTest::newRow("a history of thousands: ten shown, ten kept")
        << stringArgs({{in}, {}, keys}) << QStringList{"in=" + thousands.join(';')} << accept
        << in + "|||1"
        << QStringList{"comboBoxInputFile.items=" + in + "|" + thousands.mid(0, 10).join('|')}
        << QStringList() << QStringList{"in=" + in + ";" + thousands.mid(0, 9).join(';')};
    QTest::newRow("a directory is no input file")
        << stringArgs({{dir, "o.net"}, {}, keys}) << QStringList()
        << R"([{"accept": true}, {"message": "OK"}, {"cancel": true}])" << "<none>"
        << QStringList() << inputMissing << QStringList{noHistory, "out=<none>"};
    QTest::newRow("element 3 overrides the stored check box")
        << stringArgs({{in, "", "", "1"}, {}, keys}) << QStringList{"open=0"} << accept
        << in + "|||1" << QStringList() << QStringList() << QStringList{"open=1"};
    QTest::newRow("an empty field takes the newest entry of its history")
        << stringArgs({{"", ""}, {}, keys}) << QStringList{"in=" + in, "out=last.net"}
        << accept << in + "|last.net||1" << QStringList() << QStringList() << QStringList();
    QTest::newRow("Cancel writes no history")
        << stringArgs({{in, "x.net"}, {}, keys}) << QStringList() << R"([{"cancel": true}])"
        << "<none>" << QStringList() << QStringList()
        << QStringList{noHistory, "out=<none>", "open=<none>"};
    QStringList shown;
    for (int i = 0; i < 12; ++i)
        shown << (i == 11 ? QStringLiteral("0") : QString());
    QTest::newRow("33 characters: warning at start and at each change")
        << stringArgs({{in, "o.net", thirtyThree}, shown}) << QStringList()
        << QStringLiteral(R"([{"message": "OK"}, {"set": "comboBoxDescription", "text": "%1"},
                             {"message": "OK"}, {"accept": true}])").arg(typed)
        << in + "|o.net|" + typed + "|1"
        << QStringList{"labelNumChars.text=Characters left: -1"}
        << QStringList{tooLong, tooLong} << QStringList();
    QTest::newRow("32 characters: no warning, nothing left")
        << stringArgs({{in, "o.net", QString(32, QLatin1Char('y'))}, shown}) << QStringList()
        << accept << in + "|o.net|" + QString(32, QLatin1Char('y')) + "|1"
        << QStringList{"labelNumChars.text=Characters left: 0"} << QStringList() << QStringList();

    const QString pick = QStringLiteral(R"([{"click": "toolButtonInput"}, {"file": "%1"},
                                            {"accept": true}])").arg(in);
    QTest::newRow("mode file: suffix before the extension")
        << stringArgs({{"", "old.net"}, {}, {"", "", "", "", "Netlist", "Netlist", "file", "_conv"}})
        << QStringList() << pick << in + "|" + dir + "/in_conv.net||1" << QStringList()
        << QStringList() << QStringList();
    QTest::newRow("mode ext: suffix behind the extension")
        << stringArgs({{""}, {}, {"", "", "", "", "", "", "ext", ".bak"}}) << QStringList()
        << pick << in + "|" + dir + "/in.net.bak||1" << QStringList() << QStringList()
        << QStringList();
    QTest::newRow("no mode: the output stays")
        << stringArgs({{"", "keep.net"}, {}, {"", "", "", "", "", "", "other", "_x"}})
        << QStringList() << pick << in + "|keep.net||1" << QStringList() << QStringList()
        << QStringList();
}

// -------------------------------------------------------------- DialogDesigner

void TestFileDesigner::designer_data()
{
    columns();
    const QString accept = R"([{"accept": true}])";
    const auto xml = [](const QString& body) { return stringArgs({{body}}); };

    QTest::newRow("empty tree accepted: declaration and empty Dialog")
        << Args() << QStringList() << accept << xmlOf("<Dialog/>")
        << QStringList{"windowTitle=DialogDesigner", "objectName=Dialog Designer", "tree="}
        << QStringList() << QStringList();
    QTest::newRow("Cancel: the real number 0")
        << xml("<Dialog><CheckBox title=\"c\"/></Dialog>") << QStringList()
        << R"([{"cancel": true}])" << "<reals>" << QStringList() << QStringList()
        << QStringList();
    QTest::newRow("a group of two radio buttons reads back flat")
        << xml("<Dialog><Group title=\"G\"><RadioButton title=\"a\"/><RadioButton title=\"b\"/>"
               "</Group></Dialog>")
        << QStringList() << accept
        << xmlOf("<Dialog><Group title=\"G\"/><RadioButton title=\"a\"/>"
                 "<RadioButton title=\"b\"/></Dialog>")
        << QStringList{"tree=Group: G, Radio button: a, Radio button: b",
                       "preview=Group(G){}, RadioButton(a), RadioButton(b)"}
        << QStringList() << QStringList();
    QTest::newRow("elements joined; spacers and unknown elements lost; no unit")
        << stringArgs({{"<Dialog><Spin", "Box title=\"f\"/><VerticalSpacer/><Button title=\"x\"/>",
                        "<Tab title=\"T\"/></Dialog>"}})
        << QStringList() << accept
        << xmlOf("<Dialog><SpinBox title=\"f\" unit=\"\"/><Tab title=\"T\"/></Dialog>")
        << QStringList{"preview=Spin(f|), Tabs{T{}}"} << QStringList() << QStringList();
    const QString box = QStringLiteral("<CheckBox title=\"c\"/>");
    QTest::newRow("10 MB of XML: the first items only")
        << xml("<Dialog>" + box.repeated(500000) + "</Dialog>") << QStringList() << accept
        << xmlOf("<Dialog>" + box.repeated(designer::kMaxReadItems) + "</Dialog>")
        << QStringList() << QStringList() << QStringList();
    QTest::newRow("XML broken halfway keeps what came before")
        << xml("<Dialog><CheckBox title='a &amp; &quot;b&quot;'/><Group title=\"g\"><<")
        << QStringList() << accept
        << xmlOf("<Dialog><CheckBox title=\"a &amp; &quot;b&quot;\"/><Group title=\"g\"/></Dialog>")
        << QStringList() << QStringList() << QStringList();
    QTest::newRow("menu of the empty tree adds a tab")
        << Args() << QStringList()
        << R"([{"menu": "treeWidget_Layout", "action": "Add Tab"}, {"accept": true}])"
        << xmlOf("<Dialog><Tab title=\"Tab\"/></Dialog>") << QStringList{"preview=Tabs{Tab{}}"}
        << QStringList() << QStringList();
    QTest::newRow("menus of a group and a tab add children with their defaults")
        << xml("<Dialog><Group title=\"G\"/><Tab title=\"T\"/></Dialog>") << QStringList()
        << R"([{"choose": "treeWidget_Layout", "text": "Group: G"},
              {"menu": "treeWidget_Layout", "action": "Add Radio Button"},
              {"menu": "treeWidget_Layout", "action": "Add Spin Box"},
              {"choose": "treeWidget_Layout", "text": "Tab: T"},
              {"menu": "treeWidget_Layout", "action": "Add Spacer"},
              {"menu": "treeWidget_Layout", "action": "Add Check Box"},
              {"menu": "treeWidget_Layout", "action": "Add Group"},
              {"accept": true}])"
        << xmlOf("<Dialog><Group title=\"G\"><RadioButton title=\"Radio\"/>"
                 "<SpinBox title=\"SpinBox\" unit=\"V\"/></Group><Tab title=\"T\"><VerticalSpacer/>"
                 "<CheckBox title=\"CheckBox\"/><Group title=\"Group\"/></Tab></Dialog>")
        << QStringList{"preview=Group(G){RadioButton(Radio), Spin(SpinBox|V)}, "
                       "Tabs{T{spacer, CheckBox(CheckBox), Group(Group){}}}",
                       "tree=Group: G{Radio button: Radio, Spin Box: SpinBox}, "
                       "Tab: T{Spacer, Check box: CheckBox, Group: Group}"}
        << QStringList() << QStringList();
    QTest::newRow("a tab dragged into a group is red, dragged back white")
        << xml("<Dialog><Group title=\"G\"/><Tab title=\"T\"/><CheckBox title=\"c\"/></Dialog>")
        << QStringList()
        << R"([{"drag": "treeWidget_Layout", "item": "Tab: T", "onto": "Group: G"},
              {"inspect": "treeWidget_Layout"},
              {"drag": "treeWidget_Layout", "item": "Tab: T", "onto": ""}, {"accept": true}])"
        << xmlOf("<Dialog><Group title=\"G\"/><CheckBox title=\"c\"/><Tab title=\"T\"/></Dialog>")
        << QStringList{"tree=Group: G, Tab: T, Check box: c -> Group: G{Tab: T!}, Check box: c "
                       "-> Group: G, Check box: c, Tab: T",
                       "preview=Group(G){}, Tabs{T{}}, CheckBox(c) -> Tabs{T{}}, Group(G){}, "
                       "CheckBox(c) -> Group(G){}, CheckBox(c), Tabs{T{}}",
                       "inspect:treeWidget_Layout.items=Group: G|  Tab: T|Check box: c"}
        << QStringList() << QStringList();
    QTest::newRow("a check box dropped on a radio button is red and not written")
        << xml("<Dialog><RadioButton title=\"r\"/><CheckBox title=\"c\"/></Dialog>")
        << QStringList()
        << R"([{"drag": "treeWidget_Layout", "item": "Check box: c", "onto": "Radio button: r"},
              {"accept": true}])"
        << xmlOf("<Dialog><RadioButton title=\"r\"/></Dialog>")
        << QStringList{"tree=Radio button: r{Check box: c!}", "expanded=true",
                       "preview=RadioButton(r)"}
        << QStringList() << QStringList();
    QTest::newRow("menu of a group offers no tab")
        << xml("<Dialog><Group title=\"G\"/></Dialog>") << QStringList()
        << R"([{"choose": "treeWidget_Layout", "text": "Group: G"},
              {"menu": "treeWidget_Layout", "action": "Add Tab"}])"
        << R"(<fails>no action "Add Tab" in the context menu (it has "Add Group", "Add Radio Button", "Add Spin Box", "Add Check Box", "Add Spacer"))"
        << QStringList() << QStringList() << QStringList();
    QTest::newRow("a radio button has no menu")
        << xml("<Dialog><RadioButton title=\"r\"/></Dialog>") << QStringList()
        << R"([{"choose": "treeWidget_Layout", "text": "Radio button: r"},
              {"menu": "treeWidget_Layout", "action": "Add Group"}])"
        << "<fails>no context menu opened" << QStringList() << QStringList() << QStringList();
}

QTEST_MAIN(TestFileDesigner)
#include "tst_filedesigner.moc"
