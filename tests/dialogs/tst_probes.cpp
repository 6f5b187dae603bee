// The probe dialogs, the efficiency calculator, the LoopForge clock table
// and bus probe, called through the engine on the built module and
// answered as a user would.
#include "dialogtest.h"
#include "hostsupport.h"
#include "hostwidgets.h"

#include <QApplication>
#include <QDialog>
#include <QListWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

#include <functional>

using namespace dialogtest;

namespace {

// For dialogs the driver can't reach (one that stops being modal) or where
// a test works a widget directly: finds the visible dialog of that name
// among the top-level windows, lets act look at it and end it, and rejects
// whatever is still open after 10 s so that nothing hangs.
CallResult actOn(vtkit::Engine& engine, const char* function, const Args& args, const QString& name,
                 const std::function<void(QDialog*)>& act)
{
    QTimer poll;
    poll.setInterval(10);
    bool done = false;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            auto* dialog = qobject_cast<QDialog*>(w);
            if (done || !dialog || !dialog->isVisible() || dialog->objectName() != name)
                continue;
            done = true;
            poll.stop();
            act(dialog);
            return;
        }
    });
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, [] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* d = qobject_cast<QDialog*>(w); d && d->isVisible())
                d->reject();
    });
    poll.start();
    guard.start(10000);
    CallResult r = engine.call(function, args);
    if (!done)
        qWarning("no dialog %s appeared", qPrintable(name));
    return r;
}

template <class T>
T* child(QDialog* dialog, const char* name)
{
    T* w = dialog->findChild<T*>(QLatin1String(name));
    if (!w)
        qWarning("no %s", name);
    return w;
}

// Presses a row of a list as the mouse does, so that itemPressed comes.
void pressRow(QListWidget* list, int row)
{
    if (QListWidgetItem* item = list->item(row))
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
}

// The 24 values of the Bode probe as a script keeps them.
QStringList bodeValues()
{
    return {"graph1", "10", "1", "Gain", "default", "0", "1", "1", "40", "-40", "20", "-1",
            "1", "Phase", "default", "0", "1", "1", "180", "-180", "45", "-1", "0", "1"};
}

QStringList with(QStringList values, int index, const QString& value)
{
    values[index] = value;
    return values;
}

} // namespace

class TestProbes : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void bodeProbe_data();
    void bodeProbe() { check("EditBodePlotProbeDialog"); }
    void bodeProbe2_data();
    void bodeProbe2() { check("EditBodePlotProbeDialog2"); }
    void bodeProbe2SavesConfiguration();
    void bodeProbe2PlotFollowsChoices();
    void efficiency_data();
    void efficiency() { check("EfficiencyDialog"); }
    void efficiencyProbeSelection();
    void efficiencyStoredProbeName();
    void clocks_data();
    void clocks() { check("LoopForgeEditClocksDialog"); }
    void clocksMoveAndEnable();
    void busProbe_data();
    void busProbe() { check("LoopForgeEditProbeDialog"); }

private:
    static void columns();
    void check(const char* function);

    vtkit::Engine m_engine;
};

void TestProbes::initTestCase()
{
    QVERIFY(loadModule(m_engine));
}

void TestProbes::cleanup()
{
    QVERIFY(noTopLevelsLeft());
}

void TestProbes::columns()
{
    QTest::addColumn<QList<QStringList>>("args");
    QTest::addColumn<QByteArray>("steps");
    QTest::addColumn<QStringList>("facts");
}

void TestProbes::check(const char* function)
{
    QFETCH(QList<QStringList>, args);
    QFETCH(QByteArray, steps);
    QFETCH(QStringList, facts);
    const Answered a = answer(m_engine, function, stringArgs(args), steps);
    QVERIFY2(a.ok, qPrintable(a.failure));
    QCOMPARE(factsSeen(a, facts), facts);
}

// ------------------------------------------------------------ Bode probes

void TestProbes::bodeProbe_data()
{
    columns();
    QTest::newRow("no arguments: the form's values")
        << QList<QStringList>{} << QByteArray(R"([{"inspect": "dbMinLimitEdit"}, {"accept": true}])")
        << QStringList{"count=11", "0=Gain", "1=Phase", "4=1", "5=-60", "7=1", "10=0",
                       "dbMinLimitEdit.enabled=false"};
    QTest::newRow("loaded limits are editable when auto is off")
        << QList<QStringList>{{"G", "P", "3", "1", "0", "-80", "10", "1", "-90", "90", "1"}}
        << QByteArray(R"([{"inspect": "dbMaxLimitEdit"}, {"inspect": "phaseMaxLimitEdit"}, {"accept": true}])")
        << QStringList{"0=G", "3=1", "5=-80", "6=10", "8=-90", "10=1", "dbMaxLimitEdit.enabled=true",
                       "phaseMaxLimitEdit.enabled=false"};
    QTest::newRow("clicking auto limits off enables the pair")
        << QList<QStringList>{}
        << QByteArray(R"([{"check": "cbPhaseAutoLimits", "on": false}, {"set": "phaseMinLimitEdit", "text": "-45"},
                          {"inspect": "phaseMaxLimitEdit"}, {"accept": true}])")
        << QStringList{"7=0", "8=-45", "phaseMaxLimitEdit.enabled=true"};
    QTest::newRow("cancel") << QList<QStringList>{{"G"}} << QByteArray(R"([{"cancel": true}])")
                            << QStringList{"none"};
}

void TestProbes::bodeProbe2_data()
{
    columns();
    const QStringList values = bodeValues();
    QTest::newRow("no arguments: separate graph, default colours")
        << QList<QStringList>{}
        << QByteArray(R"([{"inspect": "gbUseSeparateGraph"}, {"inspect": "leGraphName"},
                          {"inspect": "helpButton"}, {"accept": true}])")
        << QStringList{"count=25", "0=default", "11=-1", "21=-1", "gbUseSeparateGraph.checked=true",
                       "leGraphName.text=default", "helpButton.hidden=true"};
    QTest::newRow("no graph name: no separate graph")
        << QList<QStringList>{with(values, 0, "")} << QByteArray(R"([{"accept": true}])")
        << QStringList{"0=", "1=10", "3=Gain", "22=0", "23=1", "24=0"};
    QTest::newRow("separate graph off and on brings the name back")
        << QList<QStringList>{values}
        << QByteArray(R"([{"check": "gbUseSeparateGraph", "on": false}, {"inspect": "leGraphName"},
                          {"check": "gbUseSeparateGraph", "on": true}, {"accept": true}])")
        << QStringList{"0=graph1", "leGraphName.text=default"};
    QTest::newRow("separate graph off gives no name")
        << QList<QStringList>{values} << QByteArray(R"([{"check": "gbUseSeparateGraph", "on": false}, {"accept": true}])")
        << QStringList{"0="};
    QTest::newRow("disable and back restores the curves as they were")
        << QList<QStringList>{with(values, 12, "0")}
        << QByteArray(R"([{"check": "cbDisableProbe", "on": true}, {"inspect": "gbGain"},
                          {"check": "cbDisableProbe", "on": false}, {"accept": true}])")
        << QStringList{"2=1", "12=0", "gbGain.checked=false"};
    QTest::newRow("one curve: radio groups off, one plot")
        << QList<QStringList>{with(values, 12, "0")}
        << QByteArray(R"([{"inspect": "rgPlaceCurvesOn"}, {"inspect": "rgVerticalOrder"},
                          {"inspect": "plotterCurveTabLower"}, {"accept": true}])")
        << QStringList{"rgPlaceCurvesOn.enabled=false", "rgVerticalOrder.enabled=false",
                       "plotterCurveTabLower.visible=false"};
    QTest::newRow("two grids show the lower plot")
        << QList<QStringList>{with(values, 22, "1")}
        << QByteArray(R"([{"inspect": "plotterCurveTabLower"}, {"radio": "rgPlaceCurvesOn", "id": 0},
                          {"inspect": "rgVerticalOrder"}, {"accept": true}])")
        << QStringList{"plotterCurveTabLower.visible=true", "rgVerticalOrder.enabled=false", "22=0"};
    QTest::newRow("default colour stays -1")
        << QList<QStringList>{with(values, 11, "-1")} << QByteArray(R"([{"accept": true}])")
        << QStringList{"11=-1", "21=-1"};
    QTest::newRow("a colour of its own")
        << QList<QStringList>{with(values, 11, "255")}
        << QByteArray(R"([{"inspect": "cbGainUseDefaultColor"}, {"accept": true}])")
        << QStringList{"11=255", "cbGainUseDefaultColor.checked=false"};
    QTest::newRow("colour picked")
        << QList<QStringList>{with(values, 11, "255")}
        << QByteArray(R"([{"click": "gainColorButton"}, {"color": "#0080ff"}, {"accept": true}])")
        << QStringList{"11=16744448"};
    QTest::newRow("colour dialog cancelled keeps an own colour")
        << QList<QStringList>{with(values, 11, "255")}
        << QByteArray(R"([{"click": "gainColorButton"}, {"color": null}, {"inspect": "cbGainUseDefaultColor"},
                          {"accept": true}])")
        << QStringList{"11=255", "cbGainUseDefaultColor.checked=false"};
    QTest::newRow("default persistence goes out as -1")
        << QList<QStringList>{with(values, 1, "-1")}
        << QByteArray(R"([{"inspect": "spinnerPersistence"}, {"accept": true}])")
        << QStringList{"1=-1", "spinnerPersistence.enabled=false"};
    QTest::newRow("several probes: no curve labels")
        << QList<QStringList>{values, {"Edit Bode Plot Probe", "12", "1"}}
        << QByteArray(R"([{"inspect": "leGainCurveLabel"}, {"click": "helpButton"}, {"accept": true}])")
        << QStringList{"3=", "13=", "leGainCurveLabel.enabled=false", "help=12"};
    QTest::newRow("cancel") << QList<QStringList>{values} << QByteArray(R"([{"cancel": true}])")
                            << QStringList{"none"};
    QTest::newRow("values past the table and huge numbers")
        << QList<QStringList>{QStringList(values) << "x" << "y", {"T", "99999999999999999999", "-1e300"}}
        << QByteArray(R"([{"accept": true}])") << QStringList{"count=25", "0=graph1"};
}

void TestProbes::bodeProbe2SavesConfiguration()
{
    const Answered a = answer(m_engine, "EditBodePlotProbeDialog2",
                              stringArgs({with(with(bodeValues(), 1, "-1"), 21, "255")}),
                              R"([{"check": "cbPhaseUseDefaultColor", "on": true},
                                  {"click": "toolButtonSaveSettings"}, {"cancel": true}])");
    QVERIFY2(a.ok, qPrintable(a.failure));
    char buffer[1024] = {};
    QVERIFY(cfgman_GetConfigSetting("DialogPreferences", "EditBodePlotProbeDialog2", buffer,
                                    sizeof buffer - 1, false));
    // A colour set back to the default is written as the hidden spinner
    // holds it, the default persistence as -1.
    QCOMPARE(QString::fromUtf8(buffer),
             QStringLiteral("graph1;-1;1;Gain;default;0;1;1;40;-40;20;-1;1;Phase;default;0;1;1;180;-180;45;255;0;1"));
}

// The example plot follows the choices: curves by the table of pictures,
// and the dialog grows with the second plot and shrinks back.
void TestProbes::bodeProbe2PlotFollowsChoices()
{
    int singleHeight = 0, twoHeight = 0, backHeight = 0;
    int upperCurves = -1, lowerCurves = -1;
    const CallResult r = actOn(m_engine, "EditBodePlotProbeDialog2", stringArgs({bodeValues()}),
                               QStringLiteral("EditBodePlotProbeDialog2"), [&](QDialog* d) {
        auto* place = child<RadioGroup>(d, "rgPlaceCurvesOn");
        auto* upper = child<Plotter>(d, "plotterCurveTabUpper");
        auto* lower = child<Plotter>(d, "plotterCurveTabLower");
        if (!place || !upper || !lower)
            return d->reject();
        singleHeight = d->height();
        upperCurves = upper->curveCount();
        QTest::mouseClick(place->button(1), Qt::LeftButton);
        QApplication::processEvents();
        twoHeight = d->height();
        lowerCurves = lower->curveCount() * 10 + upper->curveCount();
        QTest::mouseClick(place->button(0), Qt::LeftButton);
        QApplication::processEvents();
        backHeight = d->height();
        d->reject();
    });
    QCOMPARE(r.status, CallResult::Status::Ok);
    QCOMPARE(upperCurves, 2);
    QCOMPARE(lowerCurves, 11);
    QVERIFY2(twoHeight > singleHeight + 50, qPrintable(QStringLiteral("%1 -> %2").arg(singleHeight).arg(twoHeight)));
    QVERIFY2(backHeight + 50 < twoHeight && backHeight <= singleHeight,
             qPrintable(QStringLiteral("%1 -> %2 -> %3").arg(singleHeight).arg(twoHeight).arg(backHeight)));
}

// ------------------------------------------------------------ efficiency

void TestProbes::efficiency_data()
{
    columns();
    const QStringList texts = {"Out of date", "Simulate <b>again</b>?"};
    QTest::newRow("yesno with warn: Yes returns YES")
        << QList<QStringList>{{"yesno", "warn"}, {}, texts}
        << QByteArray(R"([{"inspect": "okButton"}, {"inspect": "cancelButton"}, {"inspect": "checkBoxMessage"},
                          {"inspect": "groupBoxAllProbes"}, {"accept": true}])")
        << QStringList{"0=YES", "count=1", "okButton.text=Yes", "cancelButton.text=No",
                       "checkBoxMessage.visible=false", "groupBoxAllProbes.visible=false"};
    QTest::newRow("yesno: No is a cancel")
        << QList<QStringList>{{"YesNo", "warn"}, {}, texts} << QByteArray(R"([{"cancel": true}])")
        << QStringList{"none"};
    QTest::newRow("question with the check box answers in element 1")
        << QList<QStringList>{{"continuecancel", "question", "1"}, {}, texts}
        << QByteArray(R"([{"check": "checkBoxMessage", "on": true}, {"accept": true}])")
        << QStringList{"0=Continue", "1=1"};
    QTest::newRow("ok alone")
        << QList<QStringList>{{"ok"}, {}, texts}
        << QByteArray(R"([{"inspect": "cancelButton"}, {"inspect": "pixmapInfo"}, {"accept": true}])")
        << QStringList{"0=Ok", "cancelButton.visible=false", "pixmapInfo.visible=true"};
    QTest::newRow("simulate and close")
        << QList<QStringList>{{"simulatecancel", "other"}, {}, texts} << QByteArray(R"([{"accept": true}])")
        << QStringList{"0=Simulate"};
    QTest::newRow("results: the browser, no icon, no lists")
        << QList<QStringList>{{"results", "warn"}, {"a|b", "a", "b"}, {"Results", "<p>Efficiency 93.1 %</p>"},
                              {"7", "Efficiency results"}}
        << QByteArray(R"([{"inspect": "pixmapInfo"}, {"inspect": "textBrowserResults"}, {"inspect": ""},
                          {"inspect": "cancelButton"}, {"accept": true}])")
        << QStringList{"count=1", "0=0", "pixmapInfo.visible=false", "textBrowserResults.visible=true",
                       ".title=Efficiency results", "cancelButton.visible=false"};
}

// Mode 0 stops being modal while it runs, so it is worked directly.
void TestProbes::efficiencyProbeSelection()
{
    QStringList seen;
    bool okAtStart = true, okWithBoth = false, okAfterRemove = true;
    const Args args = stringArgs({{"select"}, {"V1|Q1|Q2|RL|D1", "", "", "Q"}, {"Pick", "Move probes"}});
    const CallResult r = actOn(m_engine, "EfficiencyDialog", args, QStringLiteral("EfficiencyDialog"), [&](QDialog* d) {
        auto* all = child<ListBox>(d, "listBoxAllProbes");
        auto* inputs = child<ListBox>(d, "listBoxInputProbes");
        auto* ok = child<QPushButton>(d, "okButton");
        auto* addInput = child<QToolButton>(d, "pushButtonAddInput");
        auto* addOutput = child<QToolButton>(d, "pushButtonAddOutput");
        auto* removeInput = child<QToolButton>(d, "pushButtonRemoveInput");
        if (!all || !inputs || !ok || !addInput || !addOutput || !removeInput)
            return d->reject();
        seen << all->currentText() << QString::number(d->isModal());
        okAtStart = ok->isEnabled();
        addInput->click(); // Q1, the first that starts with "Q"
        pressRow(all, all->count() - 1);
        addOutput->click(); // D1
        okWithBoth = ok->isEnabled();
        pressRow(all, 0);
        addInput->click(); // V1
        pressRow(inputs, 0);
        removeInput->click(); // Q1 goes back
        okAfterRemove = ok->isEnabled();
        ok->click();
    });
    QCOMPARE(r.status, CallResult::Status::Ok);
    QCOMPARE(seen, QStringList({"Q1", "0"}));
    QVERIFY(!okAtStart);
    QVERIFY(okWithBoth);
    QVERIFY(okAfterRemove); // V1 is left in the inputs
    QCOMPARE(textsOf(r), QStringList({"Q2|RL|Q1", "V1", "D1"}));
}

// The probe to select lasts across calls; without a match the last one.
void TestProbes::efficiencyStoredProbeName()
{
    const auto selectedWith = [this](const QStringList& probes) {
        QString current;
        actOn(m_engine, "EfficiencyDialog", stringArgs({{}, probes}), QStringLiteral("EfficiencyDialog"),
              [&](QDialog* d) {
                  if (auto* all = child<ListBox>(d, "listBoxAllProbes"))
                      current = all->currentText();
                  d->reject();
              });
        return current;
    };
    QCOMPARE(selectedWith({"P1|P2|P3", "", "", "P2"}), QStringLiteral("P2"));
    QCOMPARE(selectedWith({"P1|P2|P3", "", ""}), QStringLiteral("P2"));
    QCOMPARE(selectedWith({"A|B|C", "", ""}), QStringLiteral("C"));
    QCOMPARE(selectedWith({"A|B|C", "", "", "x"}), QStringLiteral("C"));
}

// ------------------------------------------------------------ clocks

void TestProbes::clocks_data()
{
    columns();
    const QStringList rows = {"0;1;1;'sys';10Meg;50;0", "1;1;0;'adc';100k;50;0", "2;0;1;'pwm';20k;50;1u",
                              "3", "4;;;", "5;1;1", "6;0;0;'u6';1k;50;0", "7;0;0;'u7';1k;50;0"};
    QTest::newRow("rows come back as they went in")
        << QList<QStringList>{QStringList(rows) << "1", {"Clocks", "Blurb", "Title", "5"}}
        << QByteArray(R"([{"inspect": ""}, {"inspect": "labelBlurb"}, {"accept": true}])")
        << QStringList{"count=10", "0=0;1;1;'sys';10Meg;50;0", "2=2;0;1;'pwm';20k;50;1u", "8=1", "9=0",
                       ".title=Title", "labelBlurb.text=Blurb"};
    QTest::newRow("missing fields are empty and unchecked")
        << QList<QStringList>{rows} << QByteArray(R"([{"accept": true}])")
        << QStringList{"3=3;0;0;'';;;", "4=4;0;0;'';;;", "5=5;1;1;'';;;"};
    QTest::newRow("a sync edge of 0 is falling and goes out as -1")
        << QList<QStringList>{QStringList(rows) << "0"} << QByteArray(R"([{"accept": true}])")
        << QStringList{"8=-1"};
    QTest::newRow("no sync edge keeps rising")
        << QList<QStringList>{rows.mid(0, 2)} << QByteArray(R"([{"inspect": "helpButton"}, {"accept": true}])")
        << QStringList{"8=1", "7=;;;;;;", "helpButton.hidden=true"};
    QTest::newRow("close and graph")
        << QList<QStringList>{QStringList(rows) << "-1"} << QByteArray(R"([{"click": "pushButtonSimulate"}])")
        << QStringList{"8=-1", "9=1"};
    QTest::newRow("help") << QList<QStringList>{rows, {"", "", "", "12"}}
                          << QByteArray(R"([{"click": "helpButton"}, {"cancel": true}])")
                          << QStringList{"none", "help=12"};
    QTest::newRow("cancel") << QList<QStringList>{rows} << QByteArray(R"([{"cancel": true}])")
                            << QStringList{"none"};
}

void TestProbes::clocksMoveAndEnable()
{
    const QStringList rows = {"0;1;1;'sys';10Meg;50;0", "1;0;0;'adc';100k;50;0", "2;1;0;'c';1;2;3"};
    bool greyed = false, back = false;
    QStringList headers;
    const CallResult r = actOn(m_engine, "LoopForgeEditClocksDialog", stringArgs({rows}),
                               QStringLiteral("LoopForgeEditClocksDialog"), [&](QDialog* d) {
        auto* table = child<QTableWidget>(d, "tableMain");
        if (!table)
            return d->reject();
        greyed = !(table->item(1, 3)->flags() & Qt::ItemIsEnabled);
        table->item(1, 1)->setCheckState(Qt::Checked);
        QMetaObject::invokeMethod(d, "tableValueChanged", Q_ARG(int, 1), Q_ARG(int, 1));
        back = table->item(1, 3)->flags() & Qt::ItemIsEnabled;
        table->setCurrentCell(0, 3);
        QMetaObject::invokeMethod(d, "moveRowDown");
        QMetaObject::invokeMethod(d, "moveRowUp"); // row 1, the moved clock, goes back up ...
        QMetaObject::invokeMethod(d, "moveRowDown"); // ... and down again
        table->setCurrentCell(7, 0);
        QMetaObject::invokeMethod(d, "moveRowDown"); // the last row stays
        table->setCurrentCell(0, 0);
        QMetaObject::invokeMethod(d, "moveRowUp"); // so does the first
        for (int row = 0; row < 3; ++row)
            headers << table->verticalHeaderItem(row)->text();
        d->accept();
    });
    QCOMPARE(r.status, CallResult::Status::Ok);
    QVERIFY(greyed);
    QVERIFY(back);
    QCOMPARE(headers, QStringList({"User 1", "Sys CLK", "User 2"}));
    const QStringList result = textsOf(r);
    QCOMPARE(result.mid(0, 3),
             QStringList({"1;1;0;'adc';100k;50;0", "0;1;1;'sys';10Meg;50;0", "2;1;0;'c';1;2;3"}));
    QCOMPARE(result.at(7), QStringLiteral(";;;;;;")); // no row given: seven empty fields
}

// ------------------------------------------------------------ bus probe

void TestProbes::busProbe_data()
{
    columns();
    const QStringList info = {"Probe on DATA", "Bus Probe", "signed|unsigned|hex", "sdec|dec|hex", "0", "77"};
    const QStringList values = {"DATA", "digital", "hex", "2", "grid", "ax", "10", "5", "g1",
                                "0", "1", "0", "255"};
    QTest::newRow("values come back as they went in")
        << QList<QStringList>{values, info, {"tip0", "tip1"}}
        << QByteArray(R"([{"inspect": "comboBoxDigitalFormat"}, {"inspect": ""}, {"accept": true}])")
        << QStringList{"count=13", "0=DATA", "1=digital", "2=hex", "3=2", "4=grid", "5=ax", "6=10", "7=5",
                       "8=g1", "9=false", "10=1", "11=0", "12=255", "comboBoxDigitalFormat.text=hex",
                       ".title=Bus Probe"};
    QTest::newRow("unknown format key: the first")
        << QList<QStringList>{with(values, 2, "HEX"), info, {}} << QByteArray(R"([{"accept": true}])")
        << QStringList{"2=sdec"};
    QTest::newRow("analog, case ignored; colour 0 is black")
        << QList<QStringList>{with(with(values, 1, "ANALOG"), 12, "0"), info, {}}
        << QByteArray(R"([{"inspect": "comboBoxDigitalFormat"}, {"inspect": "checkBoxColour"}, {"accept": true}])")
        << QStringList{"1=analog", "12=0", "comboBoxDigitalFormat.enabled=false", "checkBoxColour.checked=false"};
    QTest::newRow("all analyses off and on restores the data types")
        << QList<QStringList>{values, info, {}}
        << QByteArray(R"([{"check": "checkBoxAllDisabled", "on": true}, {"inspect": "checkBoxInteger"},
                          {"check": "checkBoxAllDisabled", "on": false}, {"accept": true}])")
        << QStringList{"9=false", "10=1", "11=0", "checkBoxInteger.enabled=false"};
    QTest::newRow("default persistence goes out as -1")
        << QList<QStringList>{with(values, 7, "-1"), info, {}}
        << QByteArray(R"([{"inspect": "spinnerPersistence"}, {"accept": true}])")
        << QStringList{"7=-1", "spinnerPersistence.text=0", "spinnerPersistence.enabled=false"};
    QTest::newRow("no separate graph: no name")
        << QList<QStringList>{values, info, {}}
        << QByteArray(R"([{"check": "checkBoxGraph", "on": false}, {"accept": true}])") << QStringList{"8="};
    QTest::newRow("a double quote can't be typed")
        << QList<QStringList>{values, info, {}}
        << QByteArray(R"([{"set": "editBoxCurveLabel", "text": "a\"b"}, {"set": "editBoxAxisName", "text": "\"x\""},
                          {"accept": true}])")
        << QStringList{"0=ab", "5=x"};
    QTest::newRow("several probes: the label is locked")
        << QList<QStringList>{values, with(info, 4, "1"), {}}
        << QByteArray(R"([{"inspect": "editBoxCurveLabel"}, {"click": "pushButton3"}, {"accept": true}])")
        << QStringList{"editBoxCurveLabel.enabled=false", "0=Multiple curves selected", "help=77"};
    QTest::newRow("short values: no format key, default colour")
        << QList<QStringList>{{"L", "digital"}, {}, {}}
        << QByteArray(R"([{"inspect": ""}, {"inspect": "labelTitle"}, {"accept": true}])")
        << QStringList{"2=", "12=-1", ".title=Edit LoopForge Bus Probe", "labelTitle.hidden=true"};
    QTest::newRow("cancel") << QList<QStringList>{values, info, {}} << QByteArray(R"([{"cancel": true}])")
                            << QStringList{"none"};
}

QTEST_MAIN(TestProbes)
#include "tst_probes.moc"
