// The descriptor-built dialogs (TabValueDialog, RadioSelectWidgetStackDialog,
// LoopForgeEditComponentDialog, LoopForgeEditPWMDialog), called through the
// engine on the built module and answered as a user would.
#include "dialogtest.h"
#include "hostsupport.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QDialog>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

using namespace dialogtest;
Q_DECLARE_METATYPE(Args)

namespace {

QString itemName(QLayoutItem* item)
{
    if (item->widget())
        return item->widget()->objectName();
    return item->spacerItem() ? QStringLiteral("spacer") : QStringLiteral("layout");
}

// Where widget sits in its parent's grid: "row,column,rows,columns", or
// "none" when it isn't in one.
QString gridPlace(QWidget* widget)
{
    QWidget* parent = widget->parentWidget();
    auto* grid = parent ? qobject_cast<QGridLayout*>(parent->layout()) : nullptr;
    const int index = grid ? grid->indexOf(widget) : -1;
    if (index < 0)
        return QStringLiteral("none");
    int row = 0, column = 0, rows = 0, columns = 0;
    grid->getItemPosition(index, &row, &column, &rows, &columns);
    return QStringLiteral("%1,%2,%3,%4").arg(row).arg(column).arg(rows).arg(columns);
}

// One fact about a shown dialog, as "key=value":
//   name, title: the dialog's object name and window title
//   tabs, pages: titles of the tab widget tW, object names of the stack wStack
//   buttons: object names in the button row ("spacer" for its stretch)
//   OBJ.shown: the widget's own hidden flag is clear; OBJ.enabled
//   OBJ.grid: its place in the parent's grid; OBJ.class
//   OBJ.separators: grid columns of the vertical lines in OBJ
//   OBJ.icon: whether a label shows a picture; OBJ.PROPERTY: any property
QString fact(QDialog* dialog, const QString& key)
{
    if (key == QLatin1String("name"))
        return dialog->objectName();
    if (key == QLatin1String("title"))
        return dialog->windowTitle();
    if (key == QLatin1String("tabs")) {
        auto* tabs = dialog->findChild<QTabWidget*>(QStringLiteral("tW"));
        QStringList out;
        for (int i = 0; tabs && i < tabs->count(); ++i)
            out << tabs->tabText(i);
        return out.join(QLatin1Char('|'));
    }
    if (key == QLatin1String("pages")) {
        auto* stack = dialog->findChild<QStackedWidget*>(QStringLiteral("wStack"));
        QStringList out;
        for (int i = 0; stack && i < stack->count(); ++i)
            out << stack->widget(i)->objectName();
        return out.join(QLatin1Char('|'));
    }
    if (key == QLatin1String("buttons")) {
        QStringList out;
        for (QBoxLayout* row : dialog->findChildren<QBoxLayout*>()) {
            if (!row->objectName().startsWith(QLatin1String("layoutButtons")))
                continue;
            for (int i = 0; i < row->count(); ++i)
                out << itemName(row->itemAt(i));
        }
        return out.join(QLatin1Char('|'));
    }
    const QString object = key.section(QLatin1Char('.'), 0, -2);
    const QString property = key.section(QLatin1Char('.'), -1);
    auto* widget = dialog->findChild<QWidget*>(object);
    if (!widget)
        return QStringLiteral("absent");
    if (property == QLatin1String("shown"))
        return QVariant(!widget->isHidden()).toString();
    if (property == QLatin1String("enabled"))
        return QVariant(widget->isEnabled()).toString();
    if (property == QLatin1String("grid"))
        return gridPlace(widget);
    if (property == QLatin1String("class"))
        return QString::fromLatin1(widget->metaObject()->className());
    if (property == QLatin1String("icon")) {
        if (auto* label = qobject_cast<QLabel*>(widget))
            return QVariant(!label->pixmap(Qt::ReturnByValue).isNull()).toString();
        auto* button = qobject_cast<QAbstractButton*>(widget);
        return QVariant(button && !button->icon().isNull()).toString();
    }
    if (property == QLatin1String("picture")) {
        // Which block picture a label shows.
        auto* label = qobject_cast<QLabel*>(widget);
        const QImage shown = label ? label->pixmap(Qt::ReturnByValue).toImage() : QImage();
        for (const char* name : {"shift_left_32", "shift_right_32", "constant_32", "dac_32"}) {
            if (!shown.isNull() && shown == QImage(QStringLiteral(":/%1.png").arg(QLatin1String(name))).convertToFormat(shown.format()))
                return QLatin1String(name);
        }
        return shown.isNull() ? QStringLiteral("none") : QStringLiteral("other");
    }
    if (property == QLatin1String("separators")) {
        QStringList out;
        for (QFrame* line : widget->findChildren<QFrame*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (line->frameShape() == QFrame::VLine)
                out << gridPlace(line).section(QLatin1Char(','), 1, 1);
        }
        return out.join(QLatin1Char(' '));
    }
    return widget->property(property.toLatin1()).toString();
}

QString signatureName(const char* prefix, const QString& text)
{
    return QLatin1String(prefix) + QString::number(toYs(text).hashValue() % 1001u);
}

} // namespace

class TestParameterPages : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void tabValue_data();
    void tabValue() { check("TabValueDialog"); }
    void pwm_data();
    void pwm() { check("LoopForgeEditPWMDialog"); }
    void radioStack_data();
    void radioStack() { check("RadioSelectWidgetStackDialog"); }
    void component_data();
    void component() { check("LoopForgeEditComponentDialog"); }

private:
    static void columns();
    void check(const char* function);

    vtkit::Engine m_engine;
    QTemporaryDir m_config;
};

void TestParameterPages::initTestCase()
{
    QVERIFY(loadModule(m_engine, &m_config));
}

void TestParameterPages::cleanup()
{
    QVERIFY(noTopLevelsLeft());
}

void TestParameterPages::columns()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QString>("steps");   // after the probe; "" is Ok
    QTest::addColumn<bool>("hasResult");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QStringList>("facts");  // "key=value", see fact()
    // "help=12", "messageBox=title|text", "inspect=OBJ enabled= hidden= text= current="
    QTest::addColumn<QStringList>("events");
}

void TestParameterPages::check(const char* function)
{
    QFETCH(Args, args);
    QFETCH(QString, steps);
    QFETCH(bool, hasResult);
    QFETCH(QStringList, expected);
    QFETCH(QStringList, facts);
    QFETCH(QStringList, events);

    QStringList seen;
    ShownDialogProbe probe([&](QDialog* dialog) {
        for (const QString& f : facts)
            seen << f.section(QLatin1Char('='), 0, 0) + QLatin1Char('=')
                        + fact(dialog, f.section(QLatin1Char('='), 0, 0));
    });
    const QString all = QLatin1Char('[') + (steps.isEmpty() ? QStringLiteral("{\"accept\": true}") : steps)
                        + QLatin1Char(']');
    const Answered answered = answer(m_engine, function, args, probed(all.toUtf8()));
    QVERIFY2(answered.ok, qPrintable(answered.failure));
    QCOMPARE(seen, facts);

    QStringList gotEvents;
    for (const QJsonObject& e : answered.events) {
        if (e.contains(QLatin1String("help")))
            gotEvents << QStringLiteral("help=") + e.value(QLatin1String("help")).toString();
        if (e.contains(QLatin1String("inspect"))) {
            QStringList parts{e.value(QLatin1String("inspect")).toString()};
            for (const char* field : {"enabled", "hidden", "text", "current"}) {
                const QJsonValue v = e.value(QLatin1String(field));
                parts << QLatin1String(field) + QLatin1Char('=')
                             + (v.isBool() ? QVariant(v.toBool()).toString() : v.toVariant().toString());
            }
            gotEvents << QStringLiteral("inspect=") + parts.join(QLatin1Char(' '));
        }
        if (e.contains(QLatin1String("messageBox"))) {
            const QJsonObject box = e.value(QLatin1String("messageBox")).toObject();
            gotEvents << QStringLiteral("messageBox=") + box.value(QLatin1String("title")).toString()
                             + QLatin1Char('|') + box.value(QLatin1String("text")).toString();
        }
    }
    QCOMPARE(gotEvents, events);

    QCOMPARE(answered.result.hasResult, hasResult);
    if (hasResult)
        QCOMPARE(textsOf(answered.result), expected);
}

void TestParameterPages::tabValue_data()
{
    columns();
    const QString ok;
    const QString cancel = QStringLiteral("{\"cancel\": true}");

    QTest::newRow("no arguments: one empty page, nothing returned")
        << Args() << ok << true << QStringList()
        << QStringList{"tabs=Parameters", "labelTitle.shown=false", "helpButton.shown=false",
                       "name=" + signatureName("TabValueDialog_", ""),
                       "title=Edit Device Parameters"}
        << QStringList();

    const QStringList tabs = {"Main", "Noise"};
    const QStringList groups = {"Main::Values:0:0", "Noise:check:Flicker:0:0:::5"};
    const QStringList params = {"Main:Values:R:0:0:k__Ohms__", "Main:Values:Note:1:0::label",
                                "Main:Values:Mode:2:0::list:fast|slow", "Noise:Flicker:On:0:0::bool",
                                "Main:Missing:Lost:0:0", "Main:values:Gain:3:0::int:0|10"};
    const QStringList values = {"4.7k", "SLOW", "true", "9", "7"};
    const QStringList info = {"Resistor R1", "<b>R1</b>", "12"};
    QTest::newRow("numbering: labels take no element, a lost group drops its element")
        << stringArgs({tabs, groups, params, values, info}) << ok << true
        << QStringList{"4.7k", "slow", "1", "", "7", "1"}
        << QStringList{"tabs=Main|Noise", "title=Resistor R1", "labelTitle.shown=true",
                       "helpButton.shown=true", "parameter0.grid=0,1,1,1",
                       "parameterLabel0.grid=0,0,1,1", "parameterUnit0.text=k\u03A9",
                       "parameterLabel1.grid=1,0,1,3", "parameter4.class=absent",
                       "parameter5.grid=3,1,1,1",
                       "name=" + signatureName("TabValueDialog_", "RNoteModeOnLostGain12")}
        << QStringList();
    QTest::newRow("cancel gives no result")
        << stringArgs({tabs, groups, params, values, info}) << cancel << false << QStringList()
        << QStringList() << QStringList();
    QTest::newRow("help runs its topic")
        << stringArgs({tabs, groups, params, values, info})
        << QStringLiteral("{\"click\": \"helpButton\"}, {\"accept\": true}") << true
        << QStringList{"4.7k", "slow", "1", "", "7", "1"} << QStringList()
        << QStringList{"help=12"};
    QTest::newRow("edits come back in their elements")
        << stringArgs({tabs, groups, params, values, info})
        << QStringLiteral("{\"set\": \"parameter0\", \"text\": \"10k\"},"
                          "{\"choose\": \"parameter2\", \"text\": \"fast\"},"
                          "{\"accept\": true}")
        << true << QStringList{"10k", "fast", "1", "", "7", "1"} << QStringList() << QStringList();
    QTest::newRow("a control on another tab, reached by its tab")
        << stringArgs({tabs, groups, params, values, info})
        << QStringLiteral("{\"choose\": \"tW\", \"text\": \"Noise\"},"
                          "{\"check\": \"parameter3\", \"on\": false},"
                          "{\"inspect\": \"tW\"}, {\"accept\": true}")
        << true << QStringList{"4.7k", "slow", "0", "", "7", "1"} << QStringList()
        << QStringList{"inspect=tW enabled=true hidden=false text= current=1"};
    QTest::newRow("object name ignores values and headline")
        << stringArgs({tabs, groups, params, {"1"}, {"Other", "", "12"}}) << ok << true
        << QStringList{"1", "fast", "0", "", "0", "1"}
        << QStringList{"labelTitle.shown=false",
                       "name=" + signatureName("TabValueDialog_", "RNoteModeOnLostGain12")}
        << QStringList();

    QTest::newRow("buttons group: column 1 stands beside Ok")
        << stringArgs({{}, {"::G"}, {":G:a", ":*#!buttons:Keep:0:1::bool"}, {"1", "1"},
                       {"T", "", "-5"}})
        << ok << true << QStringList{"1", "1"}
        << QStringList{"buttons=spacer|parameter1|pushButtonOk|cancelButton|helpButton",
                       "helpButton.shown=false"}
        << QStringList();

    QTest::newRow("separated columns: pitch 4 and separators from column 3")
        << stringArgs({{}, {"::Wide:0:0::::1:9"},
                       {":Wide:a:0:0", ":Wide:b:0:1", ":Wide:c:2:2"}, {"1", "2", "3"}})
        << ok << true << QStringList{"1", "2", "3"}
        << QStringList{"parameter1.grid=0,5,1,1", "parameter2.grid=2,9,1,1",
                       "group0.separators=3 3 7", "group0.grid=0,0,1,1"}
        << QStringList();

    QTest::newRow("nested groups: own pass, named grid under tab + name")
        << stringArgs({{}, {"::Outer"},
                       {":Outer:a", ":Outer:Inner:1:0::check", ":Inner:b:0:0:", ":Outer:Plain:2:::group",
                        ":Plain:c"},
                       {"1", "0", "2", "3"}})
        << ok << true << QStringList{"1", "0", "2", "3"}
        << QStringList{"parameter1.grid=1,0,1,3", "parameter1.checked=false",
                       "parameter2.grid=0,1,1,1", "parameter3.grid=2,0,1,3",
                       "parameter4.grid=0,1,1,1"}
        << QStringList();

    QTest::newRow("a unit beside a lone control keeps the control out of the grid")
        << stringArgs({{}, {"::G"}, {":G:Flag:0:0:V:bool"}, {"1"}}) << ok << true
        << QStringList{"1"}
        << QStringList{"parameter0.grid=none", "parameterUnit0.grid=0,2,1,1"} << QStringList();

    QStringList wild;
    wild << QString(29, QLatin1Char(':')) << QString() << ":G:x:2147483647:-2147483647"
         << ":G:y:-5:99999999999999:zz:int:a|b|c:1" << "Nowhere:G:z" << ":G:::::list" << "::::::::";
    QTest::newRow("bad input opens with what it can place")
        << stringArgs({{"", ""}, {"::G:-9:2147483647:-1:-1:999999", "Gone::H"}, wild,
                       {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"}, {}})
        << ok << true << QStringList{"", "", "3", "4", "", ""}
        << QStringList{"tabs=Parameters|Parameters 1", "parameter2.grid=255,1,1,1",
                       "parameter3.grid=0,766,1,1"}
        << QStringList();
}

void TestParameterPages::pwm_data()
{
    columns();
    const QString ok;
    const QStringList info = {"PWM1", "Pulse width modulator", "PWM A", "7"};

    QTest::newRow("no arguments: fixed name, no description element")
        << Args() << ok << true << QStringList()
        << QStringList{"name=LoopForgeEditPWMDialog", "tabs=Parameters", "labelTitle.shown=false",
                       "helpButton.shown=false", "editBoxSymDescription.text="}
        << QStringList();
    QTest::newRow("description after a label's gap")
        << stringArgs({{}, {"::G"}, {":G:a", ":G:note:1:0::label", ":G:b:2"}, {"1", "2", "x", "PWM A"},
                       info})
        << ok << true << QStringList{"1", "2", "", "PWM A"}
        << QStringList{"name=LoopForgeEditPWMDialog", "title=PWM1", "labelTitle.shown=true",
                       "labelSymDescription.text=PWM A", "editBoxSymDescription.text=PWM A",
                       "helpButton.shown=true"}
        << QStringList();
    QTest::newRow("as many values as parameters: no description")
        << stringArgs({{}, {"::G"}, {":G:a", ":G:b:1"}, {"1", "2"}, {"T", "", "S"}}) << ok << true
        << QStringList{"1", "2"}
        << QStringList{"editBoxSymDescription.text=", "helpButton.shown=false"} << QStringList();
    QTest::newRow("edited description and help")
        << stringArgs({{}, {"::G"}, {":G:a"}, {"1", "old"}, info})
        << QStringLiteral("{\"set\": \"editBoxSymDescription\", \"text\": \"new\"},"
                          "{\"click\": \"helpButton\"}, {\"accept\": true}")
        << true << QStringList{"1", "new"} << QStringList() << QStringList{"help=7"};
    QTest::newRow("separators every 3 columns, width 5, group width unused")
        << stringArgs({{}, {"::Wide:0:0::::1:9"}, {":Wide:a:0:0", ":Wide:b:0:1", ":Wide:c:1:2"},
                       {"1", "2", "3"}})
        << ok << true << QStringList{"1", "2", "3"}
        << QStringList{"parameter1.grid=0,5,1,1", "parameter2.grid=1,9,1,1",
                       "group0.separators=3 3 6 9", "parameter0.grid=0,1,1,1"}
        << QStringList();
    QTest::newRow("nested group found by name alone, in the same pass")
        << stringArgs({{}, {"::G"},
                       {":G:Sub:1:0::check", "Parameters:Sub:lost", "Su:b:found", ":G:after:2"},
                       {"1", "2", "3", "4"}})
        << ok << true << QStringList{"1", "", "3", "4"}
        << QStringList{"parameter0.grid=1,0,1,3", "parameter1.class=absent",
                       "parameter2.grid=0,1,1,1", "parameter3.grid=2,1,1,1"}
        << QStringList();
}

void TestParameterPages::radioStack_data()
{
    columns();
    const QString ok;
    const QStringList tabs = {"A", "B\\sC", "D"};
    const QStringList groups = {"A::G", "B\\sC::G", "D::G"};
    const QStringList params = {"::Mode:::::::Pick a page", "A:G:x", "D:G:y", "B\\sC:G:z"};
    const QStringList info = {"Select", "<b>Mode</b>", "3"};
    auto args = [&](const QString& selection) {
        return stringArgs({tabs, groups, params, {selection, "1", "2", "3"}, info});
    };
    const QString badBox = QStringLiteral(
        "messageBox=Error: Incorrect parameter name|Parameter values must meet three "
        "requirements:<ol><li>Begin with the opening curly brace \"{\",</li><li>End with the "
        "closing curly brace \"}\",</li><li>And not contain spaces.</li></ol>The errors are:");
    const QString noOpen = QStringLiteral(
        "<br/><nobr>The Parameter value doesn't begin with an opening curly brace \"{\"</nobr>");
    const QString noClose = QStringLiteral(
        "<br/><nobr>The Parameter value doesn't end with a closing curly brace \"}\"</nobr>");
    const QString spaces = QStringLiteral("<br/>The Parameter value contains spaces");
    auto steps = [](const QString& s) { return s; };

    QTest::newRow("unknown selection: first button, first title back")
        << args("nothing") << ok << true << QStringList{"A", "1", "2", "3"}
        << QStringList{"pages=A|B\\sC|D", "radioButtonSelect1.text=B C",
                       "radioButtonSelect0.checked=true", "wStack.currentIndex=0",
                       "groupBoxParamValue.shown=false", "radiogroupSelect.title=Mode",
                       "radiogroupSelect.toolTip=Pick a page", "labelTitle.shown=true",
                       "name=" + signatureName("RadioSelectWidgetStackDialog_", "Modexyz3")}
        << QStringList();
    QTest::newRow("selection ignores case, the raw title goes back")
        << args("b\\SC") << ok << true << QStringList{"B\\sC", "1", "2", "3"}
        << QStringList{"radioButtonSelect1.checked=true", "wStack.currentIndex=1"}
        << QStringList();
    QTest::newRow("a click moves page and selection")
        << args("A")
        << steps("{\"radio\": \"radiogroupSelect\", \"id\": 2}, {\"inspect\": \"wStack\"},"
                 "{\"accept\": true}")
        << true << QStringList{"D", "1", "2", "3"} << QStringList()
        << QStringList{"inspect=wStack enabled=true hidden=false text= current=2"};
    QTest::newRow("expression in braces shows the value box on page 0")
        << args("{mode}") << ok << true << QStringList{"{mode}", "1", "2", "3"}
        << QStringList{"groupBoxParamValue.shown=true", "editboxRadioReturn.text={mode}",
                       "wStack.currentIndex=0"}
        << QStringList();
    QTest::newRow("parameterized: blanks around braces pass, typed text goes out")
        << args("{mode}")
        << steps("{\"set\": \"editboxRadioReturn\", \"text\": \" {m} \"}, {\"accept\": true}")
        << true << QStringList{" {m} ", "1", "2", "3"} << QStringList() << QStringList();
    QTest::newRow("parameterized: a title passes without braces")
        << args("{mode}")
        << steps("{\"radio\": \"radiogroupSelect\", \"id\": 1},"
                 "{\"set\": \"editboxRadioReturn\", \"text\": \"d\"}, {\"accept\": true}")
        << true << QStringList{"d", "1", "2", "3"} << QStringList() << QStringList();
    QTest::newRow("three rules broken, three lines")
        << args("{mode}")
        << steps("{\"set\": \"editboxRadioReturn\", \"text\": \"a b\"}, {\"accept\": true},"
                 "{\"message\": \"OK\"}, {\"cancel\": true}")
        << false << QStringList() << QStringList()
        << QStringList{badBox + noOpen + noClose + spaces};
    QTest::newRow("braces with a space inside: one line")
        << args("{mode}")
        << steps("{\"set\": \"editboxRadioReturn\", \"text\": \"{a b}\"}, {\"accept\": true},"
                 "{\"message\": \"OK\"}, {\"set\": \"editboxRadioReturn\", \"text\": \"{ab}\"},"
                 "{\"accept\": true}")
        << true << QStringList{"{ab}", "1", "2", "3"} << QStringList() << QStringList{badBox + spaces};
    QTest::newRow("context menu parameterizes from the current title")
        << args("D")
        << steps("{\"menu\": \"radiogroupSelect\", \"action\": \"Parameterize Mode\"},"
                 "{\"radio\": \"radiogroupSelect\", \"id\": 0}, {\"accept\": true}")
        << true << QStringList{"D", "1", "2", "3"} << QStringList() << QStringList();
    QTest::newRow("removing the parameterization returns the selected title")
        << args("{mode}")
        << steps("{\"menu\": \"radiogroupSelect\", \"action\": \"Remove Parameterization\"},"
                 "{\"radio\": \"radiogroupSelect\", \"id\": 2}, {\"accept\": true}")
        << true << QStringList{"D", "1", "2", "3"} << QStringList() << QStringList();
    QTest::newRow("help")
        << args("A") << steps("{\"click\": \"helpButton\"}, {\"accept\": true}") << true
        << QStringList{"A", "1", "2", "3"} << QStringList() << QStringList{"help=3"};
    QTest::newRow("no arguments: one page, nothing but the selection")
        << Args() << ok << true << QStringList{"Parameters"}
        << QStringList{"pages=Parameters", "helpButton.shown=false", "labelTitle.shown=false"}
        << QStringList();
}

void TestParameterPages::component_data()
{
    columns();
    const QString ok;
    // Descriptors 0 and 1 stand for the two fixed choices and are never placed.
    const QStringList params = {"::Delay type", "::Output type", ":Delay:Propagation delay:1:0:s",
                                ":Delay:Clock cycles:3:0::int", ":Delay:Clock:4:0::string",
                                ":Delay:Edge:5:0::list:'0_TO_1'|'1_TO_0'",
                                ":Output:Bits:2:0::int:1|32", ":Output:Format:3:0::list:SIGNED|UNSIGNED",
                                ":Params:Gain:0:0"};
    const QStringList values = {"'ASYNC'", "0", "10n", "1", "CLK", "'0_TO_1'", "16", "SIGNED", "2", "2"};
    auto info = [](const char* model) {
        return QStringList{"Adder", "Adds its two inputs", "Edit Block", model, "21"};
    };
    auto withValue = [&](int index, const QString& value) {
        QStringList changed = values;
        changed[index] = value;
        return changed;
    };
    const QStringList placed = {"10n", "1", "CLK", "'0_TO_1'", "16", "SIGNED", "2"};

    QTest::newRow("adder: symbol pictures, asynchronous delay, normal output")
        << stringArgs({params, values, info("BRELVON_LF_ADDER_32x32")}) << ok << true
        << QStringList{"'ASYNC'", "0"} + placed + QStringList{"2"}
        << QStringList{"name=dialog_for_loop_forge_model_BRELVON_LF_ADDER_32x32", "title=Edit Block",
                       "groupBoxSymbol.shown=false", "radioGroupSymbolMath.shown=true",
                       "radioButtonSymbol3.shown=false", "radioButtonSymbol1.icon=true",
                       "radioButtonSymbol2.checked=true", "labelBlurb.text=Adds its two inputs",
                       "parameter2.enabled=true", "parameterLabel3.enabled=false",
                       "parameter5.enabled=false", "parameter6.enabled=false",
                       "parameter8.grid=0,1,1,1", "parameter0.class=absent", "editBoxDelayType.shown=false",
                       "groupBoxParams.shown=true", "helpButton.shown=true"}
        << QStringList();
    QTest::newRow("opening synchronous enables the clock settings")
        << stringArgs({params, withValue(0, "'sync'"), info("BRELVON_LF_SUBTRACTOR_32x32")}) << ok
        << true << QStringList{"'SYNC'", "0"} + placed + QStringList{"2"}
        << QStringList{"parameter2.enabled=false", "parameterLabel2.enabled=false",
                       "parameter3.enabled=true", "parameter5.enabled=true",
                       "radioButtonSymbol3.shown=true"}
        << QStringList();
    QTest::newRow("choices clicked switch what is enabled and come back as elements 0 and 1")
        << stringArgs({params, values, info("BRELVON_LF_MULTIPLIER_32x32")})
        << QStringLiteral("{\"radio\": \"radioGroupDelay\", \"id\": 1},"
                          "{\"radio\": \"radioGroupOutput\", \"id\": 1},"
                          "{\"inspect\": \"parameter2\"}, {\"inspect\": \"parameter4\"},"
                          "{\"inspect\": \"parameter7\"}, {\"accept\": true}")
        << true << QStringList{"'SYNC'", "1"} + placed + QStringList{"2"} << QStringList()
        << QStringList{"inspect=parameter2 enabled=false hidden=false text=10n current=",
                       "inspect=parameter4 enabled=true hidden=false text=CLK current=",
                       "inspect=parameter7 enabled=true hidden=false text=SIGNED current=0"};
    QTest::newRow("a constant is always delay type 0")
        << stringArgs({params, withValue(0, "'SYNC'"), info("BRELVON_LF_CONSTANT_32")}) << ok << true
        << QStringList{"0", "0"} + placed
        << QStringList{"pixmapImage.picture=constant_32", "radioGroupSymbolMath.shown=false",
                       "groupBoxSymbol.shown=true"}
        << QStringList();
    QTest::newRow("fewer than six values: everything stays enabled")
        << stringArgs({params, {"'SYNC'", "1", "1n"}, info("BRELVON_LF_LIMITER_32")}) << ok << true
        << QStringList{"'SYNC'", "1", "1n", "0", "0", "'0_TO_1'", "0", "SIGNED", "0"}
        << QStringList{"parameter2.enabled=true", "parameter3.enabled=true", "parameter6.enabled=true"}
        << QStringList();
    QTest::newRow("a DAC never disables the output limit")
        << stringArgs({params, values, info("brelvon_lf_dac_32")}) << ok << true
        << QStringList{"'ASYNC'", "0"} + placed
        << QStringList{"parameter6.enabled=true", "pixmapImage.picture=dac_32"} << QStringList();

    const QStringList shiftParams = params + QStringList{":Params:Offset:1:0", ":Params:Direction:2:0::list:Left|Right"};
    const QStringList shiftValues = values + QStringList{"Left"};
    QTest::newRow("shift right set to Left shows the left picture")
        << stringArgs({shiftParams, shiftValues, info("BRELVON_LF_SHIFT_RIGHT_32")}) << ok << true
        << QStringList{"'ASYNC'", "0"} + placed + QStringList{"2", "Left"}
        << QStringList{"pixmapImage.picture=shift_left_32"} << QStringList();
    QTest::newRow("picking a direction changes the picture")
        << stringArgs({shiftParams, shiftValues, info("BRELVON_LF_SHIFT_LEFT_32")})
        << QStringLiteral("{\"choose\": \"parameter10\", \"text\": \"Right\"},"
                          "{\"accept\": true}")
        << true << QStringList{"'ASYNC'", "0"} + placed + QStringList{"2", "Right"}
        << QStringList{"pixmapImage.picture=shift_left_32"} << QStringList();
    QTest::newRow("plain shift: left picture, no direction slot")
        << stringArgs({shiftParams, withValue(0, "'ASYNC'") + QStringList{"Right"},
                       info("BRELVON_LF_SHIFT_32")})
        << ok << true << QStringList{"'ASYNC'", "0"} + placed + QStringList{"2", "Right"}
        << QStringList{"pixmapImage.picture=shift_left_32"} << QStringList();
    QTest::newRow("a model outside the table still names the dialog")
        << stringArgs({params, values, info("MY_BLOCK")}) << ok << true
        << QStringList{"'ASYNC'", "0"} + placed
        << QStringList{"name=dialog_for_loop_forge_model_MY_BLOCK", "pixmapImage.picture=none",
                       "groupBoxSymbol.shown=true", "radioGroupSymbolMath.shown=false"}
        << QStringList();
    QTest::newRow("no arguments: empty groups hidden, no delay type")
        << Args() << ok << true << QStringList{"", "0"}
        << QStringList{"name=LoopForgeEditComponentDialog", "groupBoxParams.shown=false",
                       "radioGroupDelay.shown=false", "radioGroupOutput.shown=false",
                       "radioGroupSymbolMath.shown=true", "helpButton.shown=false"}
        << QStringList();
    QTest::newRow("cancel and help")
        << stringArgs({params, values, info("BRELVON_LF_GAIN_32")})
        << QStringLiteral("{\"click\": \"helpButton\"}, {\"cancel\": true}") << false
        << QStringList() << QStringList() << QStringList{"help=21"};
}

QTEST_MAIN(TestParameterPages)
#include "tst_parameterpages.moc"
