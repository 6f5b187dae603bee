// The multi-level device editors (capacitor and inductor, MOSFET driver,
// opamp), the shunt resistance calculator, the host's point table
// "PWLDialog" and the PWL text form, called through the engine on the
// built module and answered as a user would.
#include "dialogtest.h"
#include "hostsupport.h"
#include "hostwidgets.h"
#include "pwldialog.h"
#include "pwltext.h"
#include "shuntresistancecalculatordialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

using namespace dialogtest;
Q_DECLARE_METATYPE(Args)

namespace {

const QString kDefaultCapCurve =
    QStringLiteral("NSEG=4 X0=0 Y0=0 X1=0.5 Y1=23.5u X2=2 Y2=90u X3=4 Y3=152u X4=6.3 Y4=196u");
const QString kDefaultIndCurve = QStringLiteral(
    "NSEG=4 X0=0 Y0=0 X1=1 Y1=1.002u X2=7.5 Y2=7.406u X3=11 Y3=10.54u X4=13 Y4=11.841u");
const QString kDists = QStringLiteral("None|Gaussian|Uniform");

// A capacitor's 18 values with the level (or its expression) last.
QStringList capValues(const QString& level, const QString& first = QStringLiteral("1u"))
{
    return {first, "10", "Gaussian", "100Meg", "5", "Uniform", "10m", "5", "None",
            "2n",  "1",  "None",     "500",    "1", "0",       "0",   "1", level};
}

QStringList indValues(const QString& level, const QString& first = QStringLiteral("4.7u"))
{
    return {first, "10", "Gaussian", "20m", "5", "Uniform", "2k", "0", "0", "1", "3", level};
}

// A curve of n points: x = i, y = i micro.
QStringList curve(int points)
{
    QStringList out;
    for (int i = 0; i < points; ++i)
        out << QString::number(i) << QString::number(i) + QLatin1Char('u');
    return out;
}

Args multiArgs(const QStringList& points, const QStringList& options, const QStringList& values,
               const QStringList& extra)
{
    return stringArgs({points, options, values, extra});
}

// The opamp's BRELVON values with the level first.
QStringList brelvonValues(const QString& level, const QString& rout = QStringLiteral("100"),
                          const QString& roAc = QStringLiteral("50"))
{
    return {level, "1m", "100n", "10n", "100k", "1Meg", "1Meg", "1Meg", "100k", "100k",
            "10Meg", "20m", "20m", rout, roAc, "10m", "1", "1", "1"};
}

QStringList driverValues(const QString& level)
{
    return {level, "0", "1", "2.5", "1", "15n", "10n", "1", "10Meg", "2", "1", "10Meg", "3", "OFF",
            "10Meg", "10Meg", "0", "0", "10", "500m", "10Meg", "500m", "2", "10", "500m", "10Meg",
            "100m", "3"};
}

// "object.property" of a child ("property" of the dialog), as text;
// "stack.page" is the object name of a stacked widget's current page.
QString fact(QDialog* dialog, const QString& key)
{
    QObject* object = dialog;
    const QString property = key.section(QLatin1Char('.'), -1);
    if (key.contains(QLatin1Char('.')))
        object = dialog->findChild<QObject*>(key.section(QLatin1Char('.'), 0, 0));
    if (!object)
        return QStringLiteral("absent");
    if (property == QLatin1String("page")) {
        auto* stack = qobject_cast<QStackedWidget*>(object);
        return stack && stack->currentWidget() ? stack->currentWidget()->objectName()
                                               : QStringLiteral("none");
    }
    if (property == QLatin1String("pages")) {
        auto* stack = qobject_cast<QStackedWidget*>(object);
        return stack ? QString::number(stack->count()) : QStringLiteral("none");
    }
    return object->property(property.toLatin1()).toString();
}

} // namespace

class TestMultiLevel : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void pwlText_data();
    void pwlText();
    void pwlParseRefuses_data();
    void pwlParseRefuses();
    void pwlTableRules_data();
    void pwlTableRules();

    void calculator_data();
    void calculator();

    void multiLevel_data();
    void multiLevel() { check("EditMultiLevelInductorCapacitorDialog"); }
    void multiLevelEdits();
    void defineCurveTwice();
    void defineCurveFailing_data();
    void defineCurveFailing();
    void mosfetDriver_data();
    void mosfetDriver() { check("EditBrelvonMosfetDriverDialog"); }
    void opamp_data();
    void opamp() { check("EditParameterisedOpampDialog"); }
    void opampAcResistanceWarning();
    void helpTopics_data();
    void helpTopics();

private:
    // Columns: args, steps, hasResult, expected ("count=N" and "i=text"
    // about the result, "object.field=value" about the last inspect line
    // of an object), facts ("key=value", read before the steps).
    static void columns();
    void check(const char* function);

    vtkit::Engine m_engine;
};

void TestMultiLevel::initTestCase()
{
    QVERIFY(loadModule(m_engine));
}

void TestMultiLevel::cleanup()
{
    m_engine.registerHostFunction("PWLDialog", &vtkit::pwlDialog);
    QVERIFY(noTopLevelsLeft());
}

void TestMultiLevel::columns()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<bool>("hasResult");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QStringList>("facts");
}

void TestMultiLevel::check(const char* function)
{
    QFETCH(Args, args);
    QFETCH(QString, steps);
    QFETCH(bool, hasResult);
    QFETCH(QStringList, expected);
    QFETCH(QStringList, facts);

    QStringList seen;
    std::unique_ptr<ShownDialogProbe> probe;
    if (!facts.isEmpty()) {
        probe = std::make_unique<ShownDialogProbe>([&](QDialog* dialog) {
            for (const QString& f : qAsConst(facts)) {
                const QString key = f.section(QLatin1Char('='), 0, 0);
                seen << key + QLatin1Char('=') + fact(dialog, key);
            }
        });
        steps = QString::fromUtf8(probed(steps.toUtf8()));
    }
    const Answered a = answer(m_engine, function, args, steps.toUtf8());
    QVERIFY2(a.ok, qPrintable(a.failure));
    QCOMPARE(seen, facts);
    QCOMPARE(a.result.hasResult, hasResult);
    QCOMPARE(factsSeen(a, expected), expected);
}

// ------------------------------------------------------------- PWL text form

void TestMultiLevel::pwlText_data()
{
    QTest::addColumn<QStringList>("flat");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("parsed"); // what the text reads back as

    QTest::newRow("texts are copied, suffixes stay")
        << QStringList{"0", "0", "0.5", "23.5u"} << "NSEG=1 X0=0 Y0=0 X1=0.5 Y1=23.5u"
        << QStringList{"0", "0", "0.5", "23.5u"};
    QTest::newRow("odd last entry is ignored")
        << QStringList{"1", "2", "3"} << "NSEG=0 X0=1 Y0=2" << QStringList{"1", "2"};
    QTest::newRow("expressions and empty texts pass through")
        << QStringList{"{t0}", "", "2", "{c*2}"} << "NSEG=1 X0={t0} Y0= X1=2 Y1={c*2}"
        << QStringList{"{t0}", "", "2", "{c*2}"};
    QTest::newRow("no point gives the count alone")
        << QStringList{"7"} << "NSEG=-1" << QStringList{};
}

void TestMultiLevel::pwlText()
{
    QFETCH(QStringList, flat);
    QFETCH(QString, text);
    QFETCH(QStringList, parsed);
    QCOMPARE(pwltext::write(flat), text);
    QStringList back{"untouched"};
    const bool ok = pwltext::parse(text, &back);
    QCOMPARE(ok, !parsed.isEmpty());
    if (ok)
        QCOMPARE(back, parsed);
}

void TestMultiLevel::pwlParseRefuses_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("count larger than the points") << "NSEG=2 X0=0 Y0=0 X1=1 Y1=1";
    QTest::newRow("huge count") << "NSEG=1000000000000000000 X0=0 Y0=0";
    QTest::newRow("count not a number") << "NSEG=1e18 X0=0 Y0=0";
    QTest::newRow("negative count") << "NSEG=-1";
    QTest::newRow("points out of order") << "NSEG=1 X1=0 Y1=0 X0=1 Y0=1";
    QTest::newRow("y before x") << "NSEG=0 Y0=0 X0=0";
    QTest::newRow("stray text") << "NSEG=0 X0=0 Y0=0 junk";
    QTest::newRow("a value with a blank") << "NSEG=0 X0=1 2 Y0=0";
}

void TestMultiLevel::pwlParseRefuses()
{
    QFETCH(QString, text);
    QStringList flat{"untouched"};
    QVERIFY(!pwltext::parse(text, &flat));
    QCOMPARE(flat, QStringList{"untouched"});
}

// The host's point table: what Ok takes and how its options read.
void TestMultiLevel::pwlTableRules_data()
{
    QTest::addColumn<QStringList>("points");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("problem"); // a word of the message, "" for none

    const QStringList none;
    QTest::newRow("four points pass the default bar") << curve(4) << none << "";
    QTest::newRow("three points don't") << curve(3) << none << "at least 4 points";
    QTest::newRow("bar from element 5") << curve(3) << QStringList{"", "", "", "", "", "1"} << "";
    QTest::newRow("bar that isn't a number is the default")
        << curve(3) << QStringList{"", "", "", "", "", "many"} << "at least 4 points";
    QTest::newRow("negative bar is none")
        << curve(2) << QStringList{"", "", "", "", "", "-7"} << "";
    QTest::newRow("x must increase")
        << QStringList{"0", "0", "2", "1", "1", "2", "3", "3"} << none << "must increase";
    QTest::newRow("text that is no number")
        << QStringList{"0", "0", "1", "abc", "2", "2", "3", "3"} << none << "\"abc\"";
    QTest::newRow("expressions are taken as they are")
        << QStringList{"0", "{a}", "{t1}", "1", "2", "2", "3", "{b*2}"} << none << "";
    QTest::newRow("suffixes are numbers")
        << QStringList{"0", "1u", "1m", "2u", "1", "3u", "1k", "4u"} << none << "";
}

void TestMultiLevel::pwlTableRules()
{
    QFETCH(QStringList, points);
    QFETCH(QStringList, options);
    QFETCH(QString, problem);
    const QString found = vtkit::pwlTableProblem(points, vtkit::pwlTableOptions(options).minSegments);
    if (problem.isEmpty())
        QCOMPARE(found, QString());
    else
        QVERIFY2(found.contains(problem), qPrintable(found));
}

// ------------------------------------------------------------ calculator

void TestMultiLevel::calculator_data()
{
    QTest::addColumn<QString>("inductance");
    QTest::addColumn<bool>("editable");
    QTest::addColumn<QStringList>("typed"); // into the inductance, in turn
    QTest::addColumn<QString>("frequency");
    QTest::addColumn<QString>("shown");

    QTest::newRow("1u at 10G") << "1u" << false << QStringList{} << "" << "62.8319k";
    QTest::newRow("expression is never evaluated") << "{L}" << false << QStringList{} << "" << "1k";
    QTest::newRow("emptied inductance keeps the last result")
        << "1u" << true << QStringList{"2u", ""} << "" << "125.664k";
    QTest::newRow("a number after an expression computes again")
        << "{L}" << true << QStringList{"1m"} << "1Meg" << "6.28319k";
    QTest::newRow("only the frequency is a magnitude")
        << "-1u" << false << QStringList{} << "-1Meg" << "-6.28319";
}

void TestMultiLevel::calculator()
{
    QFETCH(QString, inductance);
    QFETCH(bool, editable);
    QFETCH(QStringList, typed);
    QFETCH(QString, frequency);
    QFETCH(QString, shown);

    ShuntResistanceCalculatorDialog dialog(nullptr, "test", inductance, editable);
    auto* field = dialog.findChild<Spinner*>(QStringLiteral("inductance"));
    QVERIFY(field);
    QCOMPARE(field->isEnabled(), editable);
    if (!frequency.isEmpty())
        dialog.findChild<Spinner*>(QStringLiteral("spinnerF"))->setText(frequency);
    for (const QString& text : qAsConst(typed))
        field->setText(text);
    QCOMPARE(dialog.findChild<Spinner*>(QStringLiteral("newValue"))->text(), shown);
    QMetaObject::invokeMethod(&dialog, "closeDialog");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.resultText(), shown);
}

// ---------------------------------------------- EditMultiLevelInductorCapacitor

void TestMultiLevel::multiLevel_data()
{
    columns();
    const QString accept = R"([{"accept": true}])";
    const QStringList none;
    const QStringList cap{"", kDists};
    const QStringList pwlc{"pwlc", kDists};
    const QStringList ind{"l", kDists};
    const QStringList pwll{"pwll", kDists};

    QTest::newRow("capacitor: values go back as loaded, window from the variant")
        << multiArgs({}, {}, capValues("2"), {"", kDists, "", "12"}) << accept << true
        << QStringList{"count=18", "0=1u", "2=Gaussian", "5=Uniform", "13=1", "15=0", "17=2"}
        << QStringList{"objectName=EditMultiLevelCapV8", "windowTitle=Edit Multi-Level Capacitor",
                       "helpButton.visible=true", "labelTitle.text=Multi-Level Capacitor w/ Levels 0-3 (Version 8.0+)",
                       "tW.count=2", "pwl_label.visible=false", "c.visible=true",
                       "radiobutton2.checked=true", "esr.enabled=true", "esl.enabled=false",
                       "toolButtonEslShuntCalculate.enabled=false", "groupBoxParamValue.visible=false",
                       "esr_units.text=\u03a9", "c_dist.count=3"};
    QTest::newRow("cancel gives no result")
        << multiArgs({}, {}, capValues("2"), cap) << R"([{"cancel": true}])" << false << none << none;
    QTest::newRow("PWL capacitor: 2 points give the default curve, element 0 is never loaded")
        << multiArgs(curve(2), {}, capValues("1", "junk"), pwlc) << accept << true
        << QStringList{"count=18", "0=" + kDefaultCapCurve, "17=1"}
        << QStringList{"objectName=EditMultiLevelPWLCapV8", "c.visible=false", "c.text=1u",
                       "pwl_label.visible=true", "helpButton.visible=false",
                       "labelTitle.text=Multi-Level PWL Capacitor w/ Levels 0-3 (Version 8.0+)"};
    QTest::newRow("PWL capacitor: 3 segments and no options keep the curve")
        << multiArgs(curve(4), {}, capValues("3"), pwlc) << accept << true
        << QStringList{"0=" + pwltext::write(curve(4))} << none;
    QTest::newRow("threshold from element 5 of the options")
        << multiArgs(curve(4), {"", "", "", "", "", "3"}, capValues("3"), pwlc) << accept << true
        << QStringList{"0=" + kDefaultCapCurve} << none;
    QTest::newRow("five options: element 5 is absent, the bar is 2")
        << multiArgs(curve(4), {"", "", "", "", "0"}, capValues("3"), pwlc) << accept << true
        << QStringList{"0=" + pwltext::write(curve(4))} << none;
    QTest::newRow("odd count: the last entry is dropped")
        << multiArgs(curve(5) << "99", {}, capValues("3"), pwlc) << accept << true
        << QStringList{"0=" + pwltext::write(curve(5))} << none;
    QTest::newRow("100000 points pass through")
        << multiArgs(curve(100000), {}, capValues("3"), pwlc) << accept << true
        << QStringList{"0=" + pwltext::write(curve(100000))} << none;
    QTest::newRow("PWL inductor: default curve, l hidden and unloaded")
        << multiArgs({}, {}, indValues("1", "junk"), pwll) << accept << true
        << QStringList{"count=12", "0=" + kDefaultIndCurve, "11=1"}
        << QStringList{"objectName=EditLossyPWLInductorV8", "l.visible=false", "l.text=1u",
                       "toolButtonEslShuntCalculate_l.enabled=true"};
    QTest::newRow("expression level: level 3, radios locked, group shown, text intact")
        << multiArgs({}, {}, capValues("{lvl}"), cap) << accept << true << QStringList{"17={lvl}"}
        << QStringList{"radiobutton3.checked=true", "radiobutton0.enabled=false",
                       "groupBoxParamValue.visible=true", "esl.enabled=true"};
    QTest::newRow("expression with a blank stays one text")
        << multiArgs({}, {}, capValues("{a b}"), cap) << accept << true << QStringList{"17={a b}"} << none;
    QTest::newRow("level 5 in a capacitor opens at 3 and is rewritten")
        << multiArgs({}, {}, capValues("5"), cap) << accept << true << QStringList{"17=3"}
        << QStringList{"radiobutton3.checked=true"};
    QTest::newRow("level -1 in a capacitor reads as 3")
        << multiArgs({}, {}, capValues("-1"), cap) << accept << true << QStringList{"17=3"} << none;
    QTest::newRow("inductor: level 2 opens as 1, upper levels hidden")
        << multiArgs({}, {}, indValues("2"), ind) << accept << true
        << QStringList{"count=12", "0=4.7u", "6=2k", "11=1"}
        << QStringList{"objectName=EditLossyInductorV8", "windowTitle=Edit Multi-Level Lossy Inductor",
                       "radiobutton1.checked=true", "radiobutton2.visible=false", "radiobutton3.visible=false",
                       "esl_shunt_units_l.text=\u03a9", "toolButtonDefinePWL_l.visible=false"};
    QTest::newRow("inductor at level 0: group 1 off, its tolerance unit stays on")
        << multiArgs({}, {}, indValues("0"), ind) << accept << true << QStringList{"11=0"}
        << QStringList{"esr_l.enabled=false", "esr_tol_l.enabled=false", "esr_tol_units_l.enabled=true",
                       "esl_shunt_l.enabled=true", "esl_shunt_tol_l.enabled=false"};
    QTest::newRow("variant key without regard to case, title from the call")
        << multiArgs({}, {}, indValues("1"), {"PWLL", kDists, "My inductor", "-3"}) << accept << true
        << QStringList{"count=12"}
        << QStringList{"objectName=EditLossyPWLInductorV8", "windowTitle=My inductor", "helpButton.visible=false"};
    QTest::newRow("empty argument 3: a capacitor with no distributions")
        << multiArgs({}, {}, capValues("1"), {}) << accept << true << QStringList{"count=18", "2=", "17=1"}
        << QStringList{"objectName=EditMultiLevelCapV8", "c_dist.count=0"};
    QTest::newRow("short values: form defaults, distributions still offered")
        << multiArgs({}, {}, {"2u", "7"}, cap) << accept << true
        << QStringList{"count=18", "0=2u", "1=7", "2=None", "3=100Meg", "17=3"}
        << QStringList{"rlk_dist.count=3"};
    QTest::newRow("a radio click rewrites a plain level")
        << multiArgs({}, {}, capValues("3"), cap) << R"([{"radio": "radiogroupLevel", "id": 0}, {"accept": true}])"
        << true << QStringList{"17=0"} << none;
    QTest::newRow("parameterize: top level, radios locked, then an expression typed")
        << multiArgs({}, {}, capValues("1"), cap)
        << R"([{"menu": "radiogroupLevel", "action": "Parameterize Model Level"},
               {"inspect": "radiogroupLevel"}, {"inspect": "radiobutton1"}, {"inspect": "groupBoxParamValue"},
               {"inspect": "toolButtonEslShuntCalculate"}, {"set": "esl", "text": "3n"},
               {"set": "editboxRadioReturn", "text": "{lvl}"}, {"accept": true}])"
        << true
        << QStringList{"9=3n", "17={lvl}", "radiogroupLevel.current=3", "radiobutton1.enabled=false",
                       "groupBoxParamValue.visible=true", "toolButtonEslShuntCalculate.enabled=true"}
        << none;

    QTest::newRow("inductor parameterize goes to level 1")
        << multiArgs({}, {}, indValues("0"), ind)
        << R"([{"menu": "radiogroupLevel", "action": "Parameterize Model Level"}, {"set": "esr_l", "text": "33m"}, {"accept": true}])"
        << true << QStringList{"3=33m", "11=1"} << none;
    QTest::newRow("remove parameterization keeps the expression through radio clicks")
        << multiArgs({}, {}, capValues("{x}"), cap)
        << R"([{"menu": "radiogroupLevel", "action": "Remove Parameterization"},
               {"inspect": "groupBoxParamValue"}, {"radio": "radiogroupLevel", "id": 1},
               {"inspect": "esr"}, {"accept": true}])"
        << true << QStringList{"17={x}", "groupBoxParamValue.hidden=true", "esr.enabled=false"} << none;
    QTest::newRow("an expression or nothing in ESL turns the calculator off")
        << multiArgs({}, {}, capValues("3"), cap)
        << R"([{"set": "esl", "text": "{L1}"}, {"inspect": "toolButtonEslShuntCalculate"}, {"accept": true}])"
        << true << QStringList{"9={L1}", "toolButtonEslShuntCalculate.enabled=false"} << none;
    QTest::newRow("inductor Monte Carlo page: the shunt row is off for good")
        << multiArgs({}, {}, indValues("1"), ind)
        << R"([{"choose": "tW", "text": "Monte Carlo Parameters"}, {"inspect": "tW"},
               {"inspect": "esl_shunt_tol_l"}, {"inspect": "esl_shunt_dist_l"}, {"accept": true}])"
        << true
        << QStringList{"count=12", "tW.items=Parameters|Monte Carlo Parameters", "tW.current=1",
                       "esl_shunt_tol_l.enabled=false", "esl_shunt_dist_l.text=None"}
        << none;
    QTest::newRow("calculator from ESL: 1u at 10G")
        << multiArgs({}, {}, capValues("3", "1u") .replaceInStrings(QStringLiteral("2n"), QStringLiteral("1u")), cap)
        << R"([{"click": "toolButtonEslShuntCalculate"}, {"wait": "test"}, {"accept": true}, {"accept": true}])"
        << true << QStringList{"12=62.8319k"} << none;
    QTest::newRow("calculator cancelled leaves the shunt alone")
        << multiArgs({}, {}, capValues("3"), cap)
        << R"([{"click": "toolButtonEslShuntCalculate"}, {"wait": "test"}, {"cancel": true}, {"accept": true}])"
        << true << QStringList{"12=500"} << none;
    QTest::newRow("calculator of the PWL inductor takes a typed inductance")
        << multiArgs({}, {}, indValues("1"), pwll)
        << R"([{"click": "toolButtonEslShuntCalculate_l"}, {"wait": "test"}, {"set": "inductance", "text": "2u"},
               {"set": "spinnerF", "text": "1Meg"}, {"accept": true}, {"accept": true}])"
        << true << QStringList{"6=12.5664"} << none;
    QTest::newRow("calculator of the inductor uses l")
        << multiArgs({}, {}, indValues("1", "10u"), ind)
        << R"([{"click": "toolButtonEslShuntCalculate_l"}, {"wait": "test"}, {"accept": true}, {"accept": true}])"
        << true << QStringList{"6=628.319k"} << none;
    QTest::newRow("define: the edited points become the curve")
        << multiArgs(curve(4), {"Capacitance"}, capValues("3"), pwlc)
        << R"([{"click": "toolButtonDefinePWL"}, {"wait": "PWLDialog"},
               {"cell": "tablePoints", "row": 3, "column": 1, "text": "47u"}, {"accept": true}, {"accept": true}])"
        << true << QStringList{"0=NSEG=3 X0=0 Y0=0u X1=1 Y1=1u X2=2 Y2=2u X3=3 Y3=47u"} << none;
    QTest::newRow("define cancelled leaves the curve")
        << multiArgs(curve(4), {}, capValues("3"), pwlc)
        << R"([{"click": "toolButtonDefinePWL"}, {"wait": "PWLDialog"}, {"cancel": true}, {"accept": true}])"
        << true << QStringList{"0=" + pwltext::write(curve(4))} << none;
    QTest::newRow("define refuses a short curve with a message, then takes a longer one")
        << multiArgs(curve(4), {}, capValues("3"), pwlc)
        << R"([{"click": "toolButtonDefinePWL"}, {"wait": "PWLDialog"},
               {"cell": "tablePoints", "row": 0, "column": 0, "text": "0"}, {"click": "removePointButton"},
               {"accept": true}, {"message": "OK"},
               {"cell": "tablePoints", "row": 2, "column": 0, "text": "3"}, {"click": "addPointButton"},
               {"cell": "tablePoints", "row": 3, "column": 0, "text": "9"},
               {"cell": "tablePoints", "row": 3, "column": 1, "text": "9u"}, {"accept": true}, {"accept": true}])"
        << true << QStringList{"0=NSEG=3 X0=1 Y0=1u X1=2 Y1=2u X2=3 Y2=3u X3=9 Y3=9u"} << none;
}

// Edits made by hand between load and Ok, and what they enable.
void TestMultiLevel::multiLevelEdits()
{
    QStringList seen;
    ShownDialogProbe probe([&seen](QDialog* dialog) {
        auto* esl = dialog->findChild<Spinner*>(QStringLiteral("esl"));
        auto* calc = dialog->findChild<QWidget*>(QStringLiteral("toolButtonEslShuntCalculate"));
        QVERIFY(esl && calc);
        for (const char* text : {"{L1}", "", "2n", "x}"}) {
            esl->setText(QLatin1String(text));
            seen << QLatin1String(text) + QLatin1Char('=') + QVariant(calc->isEnabled()).toString();
        }
    });
    const Answered a = answer(m_engine, "EditMultiLevelInductorCapacitorDialog",
                              multiArgs({}, {}, capValues("3"), {"", kDists}),
                              probed(R"([{"accept": true}])"));
    QVERIFY2(a.ok, qPrintable(a.failure));
    QCOMPARE(seen, (QStringList{"{L1}=false", "=false", "2n=true", "x}=false"}));
}

// What "Define..." gets the second time is what the first gave back.
void TestMultiLevel::defineCurveTwice()
{
    QList<QStringList> passed;
    m_engine.registerHostFunction(
        "PWLDialog", [&passed](const ArgRecord* args, int nargs, vtkit::ScriptValue& result, int&) {
            QStringList texts;
            const auto* data = static_cast<const char* const*>(args[0].data);
            for (std::uint32_t i = 0; data && i < args[0].count; ++i)
                texts << QString::fromLatin1(data[i]);
            passed << texts << QStringList{QString::number(nargs)};
            result = strings({"0", "1", "5", "{y}"});
            return true;
        });
    const Answered a = answer(
        m_engine, "EditMultiLevelInductorCapacitorDialog",
        multiArgs(curve(4), {}, indValues("1"), {"pwll", kDists}),
        R"([{"click": "toolButtonDefinePWL_l"}, {"click": "toolButtonDefinePWL_l"}, {"accept": true}])");
    QVERIFY2(a.ok, qPrintable(a.failure));
    QCOMPARE(passed.size(), 4);
    QCOMPARE(passed.at(0), curve(4));
    QCOMPARE(passed.at(1), QStringList{"2"});
    QCOMPARE(passed.at(2), (QStringList{"0", "1", "5", "{y}"}));
    QCOMPARE(textsOf(a.result).value(0), QStringLiteral("NSEG=1 X0=0 Y0=1 X1=5 Y1={y}"));
}

// A table editor that fails, gives nothing, gives reals, or doesn't exist
// leaves the curve as it was.
void TestMultiLevel::defineCurveFailing_data()
{
    QTest::addColumn<int>("how");
    QTest::newRow("fails") << 0;
    QTest::newRow("returns an empty array") << 1;
    QTest::newRow("returns reals") << 2;
    QTest::newRow("is not there") << 3;
}

void TestMultiLevel::defineCurveFailing()
{
    QFETCH(int, how);
    if (how == 3) {
        m_engine.removeHostFunction("PWLDialog");
    } else {
        m_engine.registerHostFunction(
            "PWLDialog", [how](const ArgRecord*, int, vtkit::ScriptValue& result, int& error) {
                if (how == 0) {
                    error = 7;
                    return false;
                }
                result = how == 1 ? strings({}) : vtkit::ScriptValue::fromReals({1, 2, 3, 4});
                return true;
            });
    }
    const Answered a =
        answer(m_engine, "EditMultiLevelInductorCapacitorDialog",
               multiArgs(curve(4), {}, capValues("3"), {"pwlc", kDists}),
               R"([{"click": "toolButtonDefinePWL"}, {"accept": true}])");
    QVERIFY2(a.ok, qPrintable(a.failure));
    QCOMPARE(textsOf(a.result).value(0), pwltext::write(curve(4)));
}

// ----------------------------------------------------------- MOSFET driver

void TestMultiLevel::mosfetDriver_data()
{
    columns();
    const QString accept = R"([{"accept": true}])";
    const QStringList none;
    const QStringList header{"Edit Gate Driver", "\"OFF\"|\"ON\"", "233"};

    QTest::newRow("level 2: PWL pages, on-state voltages off")
        << stringArgs({driverValues("2"), header}) << accept << true
        << QStringList{"count=28", "0=2", "13=OFF", "20=10Meg", "27=3"}
        << QStringList{"objectName=EditBrelvonMosfetDriverDialog_Level2", "windowTitle=Edit Gate Driver",
                       "stackedWidgetHS.page=L2HS", "stackedWidgetLS.page=L2LS",
                       "groupboxOnStateV.enabled=false", "radiobutton2.checked=true",
                       "helpButton.visible=true", "labelRDSONUnitsHS.text=\u03a9", "combobox.count=2"};
    QTest::newRow("level 1: saturation row on")
        << stringArgs({driverValues("1"), header}) << accept << true << QStringList{"0=1"}
        << QStringList{"objectName=EditBrelvonMosfetDriverDialog_Level0-1", "stackedWidgetHS.page=L0L1HS",
                       "stackedWidgetHS.pages=1", "spinnerSatIHS.enabled=true", "labelSatRUnitsLS.enabled=true",
                       "groupboxOnStateV.enabled=true"};
    QTest::newRow("level 0: saturation row off, help hidden with two header elements")
        << stringArgs({driverValues("0"), {"Driver", "\"OFF\"|\"ON\""}}) << accept << true << QStringList{"0=0"}
        << QStringList{"stackedWidgetLS.page=L0L1LS", "spinnerSatRLS.enabled=false", "helpButton.visible=false"};
    QTest::newRow("expression: level 2 shape, group shown, no button checked")
        << stringArgs({driverValues("{lvl}"), header}) << accept << true << QStringList{"0={lvl}"}
        << QStringList{"objectName=EditBrelvonMosfetDriverDialog_Level2", "groupBoxParamValue.visible=true",
                       "radiogroupLevel.selectedId=-1", "radiobutton0.enabled=true"};
    QTest::newRow("1.9 reads as level 1")
        << stringArgs({driverValues("1.9"), header}) << accept << true << QStringList{"0=1"}
        << QStringList{"radiobutton1.checked=true", "groupBoxParamValue.visible=false"};
    QTest::newRow("99 is the top level") << stringArgs({driverValues("99")}) << accept << true
                                         << QStringList{"0=2"} << QStringList{"stackedWidgetHS.page=L2HS"};
    QTest::newRow("-1 and text read as level 0")
        << stringArgs({driverValues("-1")}) << accept << true << QStringList{"0=0"}
        << QStringList{"radiobutton0.checked=true", "windowTitle=Edit Multi-Level MOSFET Driver"};
    QTest::newRow("no arguments: form defaults at level 0")
        << Args{} << accept << true << QStringList{"count=28", "0=0", "3=2.5", "8=10Meg", "26=100m"}
        << QStringList{"helpButton.visible=false"};
    QTest::newRow("values typed at level 2 survive going back to level 1")
        << stringArgs({driverValues("2"), header})
        << R"([{"set": "spinnerV1HS_L2", "text": "700m"}, {"radio": "radiogroupLevel", "id": 1}, {"accept": true}])"
        << true << QStringList{"0=1", "21=700m"} << none;
    QTest::newRow("a click with an expression changes the pages, not the text")
        << stringArgs({driverValues("{lvl}"), header})
        << R"([{"radio": "radiogroupLevel", "id": 1}, {"set": "spinnerSatIHS", "text": "5"}, {"accept": true}])"
        << true << QStringList{"0={lvl}", "9=5"} << none;
    QTest::newRow("parameterize keeps the level until the user types")
        << stringArgs({driverValues("1"), header})
        << R"([{"menu": "radiogroupLevel", "action": "Parameterize Model Level"},
               {"inspect": "groupBoxParamValue"}, {"inspect": "radiobutton2"}, {"accept": true}])"
        << true << QStringList{"0=1", "groupBoxParamValue.visible=true", "radiobutton2.enabled=true"} << none;
    QTest::newRow("level 2 clicked: PWL pages in, on-state voltages off")
        << stringArgs({driverValues("0"), header})
        << R"([{"radio": "radiogroupLevel", "id": 2}, {"inspect": "stackedWidgetHS"}, {"inspect": "groupboxOnStateV"},
               {"inspect": ""}, {"accept": true}])"
        << true
        << QStringList{"0=2", "stackedWidgetHS.current=1", "groupboxOnStateV.enabled=false",
                       ".text=EditBrelvonMosfetDriverDialog_Level2"}
        << none;
    QTest::newRow("parameterize, then type an expression")
        << stringArgs({driverValues("1"), header})
        << R"([{"menu": "radiogroupLevel", "action": "Parameterize Model Level"},
               {"set": "editboxRadioReturn", "text": "{drv}"}, {"radio": "radiogroupLevel", "id": 2}, {"accept": true}])"
        << true << QStringList{"0={drv}"} << none;
    QTest::newRow("remove drops the expression for the selected level")
        << stringArgs({driverValues("{lvl}"), header})
        << R"([{"radio": "radiogroupLevel", "id": 1}, {"menu": "radiogroupLevel", "action": "Remove Parameterization"}, {"accept": true}])"
        << true << QStringList{"0=1"} << none;
    QTest::newRow("remove with no button checked gives the level shown")
        << stringArgs({driverValues("{lvl}"), header})
        << R"([{"menu": "radiogroupLevel", "action": "Remove Parameterization"}, {"accept": true}])"
        << true << QStringList{"0=2"} << none;
    QTest::newRow("cancel") << stringArgs({driverValues("2")}) << R"([{"cancel": true}])" << false << none << none;
}

// ------------------------------------------------------------------ opamp

void TestMultiLevel::opamp_data()
{
    columns();
    const QString accept = R"([{"accept": true}])";
    const QStringList none;
    const QStringList vantrell{"1m", "100n", "10n", "100k", "1Meg", "1Meg", "1Meg", "100k",
                               "100k", "10Meg", "100", "10m", "1", "1", "1m"};

    QTest::newRow("no engine: Vantrell, 15 values, element 0 from the visible spinner")
        << stringArgs({vantrell}) << accept << true << QStringList{"count=15", "0=1m", "10=100", "14=1m"}
        << QStringList{"objectName=EditParameterisedOpampDialog_Vantrell", "windowTitle=Edit Parameterised Opamp",
                       "labelTitle.text=Parameterised Opamp (Version 8.0+)", "radiogroupLevel.visible=false",
                       "groupBoxParamValue.visible=false", "tW.page=vantrell_params", "vantrell_rin_units.text=\u03a9"};
    QTest::newRow("Vantrell with a typed value")
        << stringArgs({vantrell, {"vantrell"}})
        << R"([{"set": "vantrell_gbw", "text": "3Meg"}, {"accept": true}])" << true
        << QStringList{"count=15", "4=3Meg"} << none;
    QTest::newRow("BRELVON any case: 19 values, level 2")
        << stringArgs({brelvonValues("2"), {"brelvon"}}) << accept << true
        << QStringList{"count=19", "0=2", "5=1Meg", "13=100", "14=50", "18=1"}
        << QStringList{"objectName=EditParameterisedOpampDialog_BRELVON",
                       "windowTitle=Edit Multi-Level Parameterized Opamp (Version 8.0+)",
                       "tW.page=brelvon_params", "tW.pages=1", "groupBoxLevel2.enabled=true",
                       "groupBoxParamValue.visible=false", "radiobutton2.checked=true", "ro_ac.max=100"};
    QTest::newRow("a bare 3 opens as level 2 and is rewritten")
        << stringArgs({brelvonValues("3"), {"BRELVON"}}) << accept << true << QStringList{"0=2"}
        << QStringList{"radiobutton2.checked=true"};
    QTest::newRow("level 1 disables the level 2 group, whose values still go out")
        << stringArgs({brelvonValues("1"), {"BRELVON"}}) << accept << true << QStringList{"0=1", "5=1Meg"}
        << QStringList{"groupBoxLevel2.enabled=false", "radiobutton1.checked=true"};
    QTest::newRow("expression: group shown, level 2 checked, text kept")
        << stringArgs({brelvonValues("{lvl}"), {"BRELVON"}}) << accept << true << QStringList{"0={lvl}"}
        << QStringList{"groupBoxParamValue.visible=true", "radiobutton2.checked=true", "groupBoxLevel2.enabled=true"};
    QTest::newRow("a radio click doesn't replace an expression")
        << stringArgs({brelvonValues("{lvl}"), {"BRELVON"}})
        << R"([{"radio": "radiogroupLevel", "id": 1}, {"accept": true}])" << true << QStringList{"0={lvl}"} << none;
    QTest::newRow("parameterize enables level 2 values even at level 1")
        << stringArgs({brelvonValues("1"), {"BRELVON"}})
        << R"([{"menu": "radiogroupLevel", "action": "Parameterize Model Level"},
               {"set": "gbw", "text": "5Meg"}, {"set": "editboxRadioReturn", "text": "{l}"}, {"accept": true}])"
        << true << QStringList{"0={l}", "5=5Meg"} << none;
    QTest::newRow("parameterized, a click on level 1 still turns level 2 values off")
        << stringArgs({brelvonValues("2"), {"BRELVON"}})
        << R"([{"menu": "radiogroupLevel", "action": "Parameterize Model Level"},
               {"radio": "radiogroupLevel", "id": 1}, {"inspect": "groupBoxLevel2"}, {"inspect": "editboxRadioReturn"},
               {"accept": true}])"
        << true << QStringList{"0=1", "groupBoxLevel2.enabled=false", "editboxRadioReturn.text=1"} << none;
    QTest::newRow("remove keeps the text")
        << stringArgs({brelvonValues("{lvl}"), {"BRELVON"}})
        << R"([{"menu": "radiogroupLevel", "action": "Remove Parameterization"}, {"accept": true}])"
        << true << QStringList{"0={lvl}"} << none;
    // The rule follows every keystroke: typing "10" passes through "1".
    QTest::newRow("rout below ro_ac pulls ro_ac down to rout - 1")
        << stringArgs({brelvonValues("2"), {"BRELVON"}})
        << R"([{"set": "rout", "text": "5"}, {"accept": true}])" << true << QStringList{"13=5", "14=4"} << none;
    QTest::newRow("rout below 1 makes ro_ac negative")
        << stringArgs({brelvonValues("2"), {"BRELVON"}})
        << R"([{"set": "rout", "text": "500m"}, {"accept": true}])" << true << QStringList{"14=-500m"} << none;
    QTest::newRow("an expression in ro_ac is left alone")
        << stringArgs({brelvonValues("2", "100", "{rac}"), {"BRELVON"}})
        << R"([{"set": "rout", "text": "10"}, {"accept": true}])" << true << QStringList{"14={rac}"} << none;
    QTest::newRow("an expression in rout lifts the limit")
        << stringArgs({brelvonValues("2", "{ro}", "50"), {"BRELVON"}}) << accept << true
        << QStringList{"13={ro}", "14=50"} << QStringList{"ro_ac.max=1e+100"};
    QTest::newRow("a loaded ro_ac above rout is not changed at open")
        << stringArgs({brelvonValues("2", "10", "50"), {"BRELVON"}}) << accept << true
        << QStringList{"14=50"} << none;
    QTest::newRow("cancel") << stringArgs({brelvonValues("2"), {"BRELVON"}}) << R"([{"cancel": true}])"
                            << false << none << none;
    QTest::newRow("BRELVON with no values: level 2, form values")
        << stringArgs({{}, {"BRELVON"}}) << accept << true << QStringList{"count=19", "0=2"} << none;
}

// Stepping the AC resistance into its limit warns; the value stays.
void TestMultiLevel::opampAcResistanceWarning()
{
    const Answered a = answer(
        m_engine, "EditParameterisedOpampDialog", stringArgs({brelvonValues("2", "100", "100"), {"BRELVON"}}),
        R"([{"key": "ro_ac", "keys": "Up"}, {"message": "OK"}, {"accept": true}])");
    QVERIFY2(a.ok, qPrintable(a.failure));
    QCOMPARE(a.messages(), QStringList{"Maximum Output AC Resistance Hit|The maximum value of the <b>Output AC "
                                       "Resistance</b> must be less than the <b>Output Resistance</b> value."});
    QCOMPARE(textsOf(a.result).value(14), QStringLiteral("100"));
}

// ------------------------------------------------------------------- help

void TestMultiLevel::helpTopics_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<Args>("args");
    QTest::addColumn<QStringList>("topics");

    QTest::newRow("capacitor: the context number of argument 3")
        << "EditMultiLevelInductorCapacitorDialog"
        << multiArgs({}, {}, capValues("1"), {"", kDists, "", "1200"}) << QStringList{"1200"};
    QTest::newRow("driver: the topic text as given")
        << "EditBrelvonMosfetDriverDialog" << stringArgs({driverValues("1"), {"T", "a|b", "Driver_Help"}})
        << QStringList{"Driver_Help"};
    QTest::newRow("opamp: one request a click")
        << "EditParameterisedOpampDialog" << stringArgs({brelvonValues("1"), {"BRELVON"}})
        << QStringList{QString::number(sp_GetHelpContextId(YString("Parameterised_Opamp_BRELVON")))};
}

void TestMultiLevel::helpTopics()
{
    QFETCH(QString, function);
    QFETCH(Args, args);
    QFETCH(QStringList, topics);
    const Answered a = answer(m_engine, function.toLatin1().constData(), args,
                              R"([{"click": "helpButton"}, {"cancel": true}])");
    QVERIFY2(a.ok, qPrintable(a.failure));
    QCOMPARE(a.helpTopics(), topics);
}

QTEST_MAIN(TestMultiLevel)
#include "tst_multilevel.moc"
