// The filter editor, the digital gate, the jumper and the convergence
// dialog, called through the engine on the built module and answered as a
// user would.
#include "dialogtest.h"
#include "filtertransforms.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QMap>
#include <QtTest>

using namespace dialogtest;
using Facts = QMap<QString, QString>;
Q_DECLARE_METATYPE(Args)
Q_DECLARE_METATYPE(Facts)

namespace {

// A fact an inspect line doesn't report, read from the dialog as it opens:
// "object.property"; the pseudo properties are "shown" (visible within
// the dialog), "items" (of a combo box) and "focus" ("" object: the widget
// whose edit field has the focus). "" object: the dialog.
QString fact(QDialog* dialog, const QString& key)
{
    const QString name = key.section(QLatin1Char('.'), 0, 0);
    const QString property = key.section(QLatin1Char('.'), 1);
    if (property == QLatin1String("focus")) {
        QWidget* f = dialog->focusWidget();
        return f && f->parentWidget() ? f->parentWidget()->objectName() : QString();
    }
    QWidget* w = name.isEmpty() ? dialog : dialog->findChild<QWidget*>(name);
    if (!w)
        return QStringLiteral("absent");
    if (property == QLatin1String("shown"))
        return w->isVisibleTo(dialog) ? QStringLiteral("true") : QStringLiteral("false");
    if (property == QLatin1String("items")) {
        auto* combo = qobject_cast<QComboBox*>(w);
        QStringList items;
        for (int i = 0; combo && i < combo->count(); ++i)
            items << combo->itemText(i);
        return items.join(QLatin1Char('|'));
    }
    return w->property(property.toLatin1().constData()).toString();
}

// Elements of a filter's argument 0 from a sparse map over a default array.
QStringList filterArray(const QMap<int, QString>& changes, int count = 23)
{
    QStringList a{QStringLiteral("BRELVON_LaplaceXfer2ndOrder_BB"), "2", "1", "0", "0", "0", "0", "0",
                  "0", "0", "1", "1", "1", "Trapezoidal", "1k", "0", "0", "", "", "", "12", "6", "4"};
    for (auto it = changes.begin(); it != changes.end(); ++it)
        a[it.key()] = it.value();
    return a.mid(0, count);
}

QString atPrecision(double v, int digits)
{
    return QString::number(v, 'g', digits);
}

const QByteArray kAccept = "[{\"accept\": true}]";

// The facts that differ, for a readable failure.
QString differences(const Facts& got, const Facts& want)
{
    QStringList out;
    for (auto it = want.begin(); it != want.end(); ++it)
        if (got.value(it.key()) != it.value())
            out << QStringLiteral("%1: %2, want %3").arg(it.key(), got.value(it.key()), it.value());
    return out.join(QStringLiteral("; "));
}

// The inspected fields that want names, as text.
Facts inspectedFacts(const Answered& a, const Facts& want)
{
    Facts out;
    for (const QString& key : want.keys())
        out.insert(key, a.inspectedText(key));
    return out;
}

} // namespace

class TestDeviceDialogs : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(loadModule(m_engine)); }
    void cleanup() { QVERIFY(noTopLevelsLeft()); }

    void filterCalculates_data();
    void filterCalculates();
    void filterGuard_data();
    void filterGuard();
    void filterOkQuestion_data();
    void filterOkQuestion();
    void filterAnnotation_data();
    void filterAnnotation();
    void filterOpens_data();
    void filterOpens();
    void filterOrderLimits_data();
    void filterOrderLimits();

    void gateOpens_data();
    void gateOpens() { checkForm("EditBRELVONGateDialog"); }
    void gateCounts_data();
    void gateCounts();

    void jumper_data();
    void jumper() { checkForm("EditJumperDialog"); }

    void convergence_data();
    void convergence() { checkForm("ConvergenceDialog"); }

    void badArgumentsOpenWithDefaults_data();
    void badArgumentsOpenWithDefaults();

private:
    // Rows of a form answered by steps: the facts of its inspect lines on
    // opening ("object.field"), the result and the help topics asked for.
    static void columns();
    void checkForm(const char* function);

    vtkit::Engine m_engine;
};

void TestDeviceDialogs::columns()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QByteArray>("steps");
    QTest::addColumn<Facts>("want");
    QTest::addColumn<QStringList>("result");
    QTest::addColumn<QStringList>("help");
}

void TestDeviceDialogs::checkForm(const char* function)
{
    QFETCH(Args, args);
    QFETCH(QByteArray, steps);
    QFETCH(Facts, want);
    QFETCH(QStringList, result);
    QFETCH(QStringList, help);
    const Answered a = answer(m_engine, function, args, withInspections(steps, objectsOf(want.keys())));
    QVERIFY2(a.ok, qPrintable(a.failure));
    const Facts got = inspectedFacts(a, want);
    QVERIFY2(got == want, qPrintable(differences(got, want)));
    QCOMPARE(textsOf(a.result), result);
    QCOMPARE(a.helpTopics(), help);
}

// ------------------------------------------------------------------ filter

void TestDeviceDialogs::filterCalculates_data()
{
    QTest::addColumn<bool>("first");
    QTest::addColumn<int>("method");
    QTest::addColumn<bool>("toZ");
    QTest::addColumn<QString>("methodText"); // as the script gives it
    using filtertransforms::BackwardEuler;
    using filtertransforms::ForwardEuler;
    using filtertransforms::Trapezoidal;
    QTest::newRow("2nd order, Trapezoidal, z from s") << false << int(Trapezoidal) << true << "Trapezoidal";
    QTest::newRow("2nd order, Backward Euler, z from s") << false << int(BackwardEuler) << true << "backward euler";
    QTest::newRow("2nd order, Forward Euler, z from s") << false << int(ForwardEuler) << true << "FORWARD EULER";
    QTest::newRow("2nd order, Trapezoidal, s from z") << false << int(Trapezoidal) << false << "trapezoidal";
    QTest::newRow("1st order, Trapezoidal, z from s") << true << int(Trapezoidal) << true << "Trapezoidal";
    QTest::newRow("1st order, Backward Euler, s from z") << true << int(BackwardEuler) << false << "Backward Euler";
    QTest::newRow("1st order, Forward Euler, s from z") << true << int(ForwardEuler) << false << "Forward euler";
}

// The result elements carry the transform of the loaded full-precision
// strings at model precision, each in its element of the order's layout.
void TestDeviceDialogs::filterCalculates()
{
    QFETCH(bool, first);
    QFETCH(int, method);
    QFETCH(bool, toZ);
    QFETCH(QString, methodText);
    const char* const methods[] = {"Trapezoidal", "Backward Euler", "Forward Euler"};
    const QStringList args = filterArray({{1, first ? "1" : "2"},
                                          {3, "0.0123456789012"}, {4, "0.0246913578024"},
                                          {5, "0.0123456789012"}, {6, "-1.71573944744"},
                                          {7, "0.765607412658"},
                                          {8, "0.5"}, {9, "3770.5"}, {10, "3.948e7"},
                                          {11, "8885.7658"}, {12, "3.94784176e7"},
                                          {13, methodText}, {14, "10k"}, {20, "14"}});
    const Answered a = answer(m_engine, "EditBrelvonFilter", {strings(args)},
                              toZ ? R"([{"click": "toolButtonCalculateZ"}, {"accept": true}])"
                                  : R"([{"click": "toolButtonCalculateS"}, {"accept": true}])");
    QVERIFY2(a.ok, qPrintable(a.failure));
    const QStringList out = textsOf(a.result);
    QCOMPARE(out.size(), 23);

    filtertransforms::SCoefficients s{3.94784176e7, 8885.7658, 3.948e7, 3770.5, 0.5};
    filtertransforms::ZCoefficients z{0.0123456789012, 0.0246913578024, 0.0123456789012,
                                      -1.71573944744, 0.765607412658};
    if (toZ)
        QCOMPARE(filtertransforms::zFromS(first, method, 1e4, s, &z), filtertransforms::Outcome::Done);
    else
        QCOMPARE(filtertransforms::sFromZ(first, method, 1e4, z, &s), filtertransforms::Outcome::Done);
    QMap<int, double> want{{8, s.n2}, {9, s.n1}, {10, s.n0}, {11, s.d1}, {12, s.d0},
                           {4, z.z4}, {5, z.z5}, {7, z.z7}};
    if (!first) {
        want[3] = z.z3;
        want[6] = z.z6;
    }
    for (auto it = want.begin(); it != want.end(); ++it)
        QVERIFY2(out.at(it.key()) == atPrecision(it.value(), 14),
                 qPrintable(QStringLiteral("element %1: %2, want %3")
                                .arg(it.key()).arg(out.at(it.key()), atPrecision(it.value(), 14))));
    if (first) { // no writer for the second-order-only elements
        QCOMPARE(out.at(3), QString());
        QCOMPARE(out.at(6), QString());
    }
    QCOMPARE(out.at(13), QString::fromLatin1(methods[method]));
    QVERIFY(a.messages().isEmpty());
}

void TestDeviceDialogs::filterGuard_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("fires");
    // 1st order: elements 4, 5 and 7 hold P0, P1 and Q1.
    QTest::newRow("1st order Trapezoidal, Z7 = 1")
        << filterArray({{1, "1"}, {4, "1"}, {5, "1"}, {7, "1"}}) << "toolButtonCalculateS" << true;
    QTest::newRow("1st order Backward Euler, Z7 = 0")
        << filterArray({{1, "1"}, {7, "0"}, {13, "Backward Euler"}}) << "toolButtonCalculateS" << true;
    QTest::newRow("1st order Trapezoidal, D0 = 0 gives D = 2")
        << filterArray({{1, "1"}, {12, "0"}}) << "toolButtonCalculateZ" << false;
    QTest::newRow("2nd order Backward Euler, D0 T2 + D1 T = -1")
        << filterArray({{11, "-1k"}, {12, "0"}, {13, "Backward Euler"}}) << "toolButtonCalculateZ" << true;
    QTest::newRow("Forward Euler z never guards")
        << filterArray({{11, "1k"}, {12, "0"}, {13, "Forward Euler"}}) << "toolButtonCalculateZ" << false;
}

// A fired guard shows its warning and leaves every coefficient as loaded.
void TestDeviceDialogs::filterGuard()
{
    QFETCH(QStringList, args);
    QFETCH(QString, button);
    QFETCH(bool, fires);
    const QByteArray steps = "[{\"click\": \"" + button.toLatin1() + "\"}"
                             + (fires ? ", {\"message\": \"OK\"}" : "") + ", {\"accept\": true}]";
    const Answered a = answer(m_engine, "EditBrelvonFilter", {strings(args)}, steps);
    QVERIFY2(a.ok, qPrintable(a.failure));
    const QStringList boxes = a.messages();
    QCOMPARE(boxes.size(), fires ? 1 : 0);
    if (!fires)
        return;
    QVERIFY2(boxes.first().startsWith("Division by Zero detected!|Using the coefficients provided, calculation of "
                                      "the new coeficiencts will result in a divide by zero.\n"),
             qPrintable(boxes.first()));
    const QStringList out = textsOf(a.result);
    for (int i = 8; i <= 12; ++i)
        QCOMPARE(out.at(i), args.at(i) == "-1k" ? QStringLiteral("-1000") : args.at(i));
}

void TestDeviceDialogs::filterOkQuestion_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QByteArray>("steps");
    QTest::addColumn<QString>("question"); // "" for none
    QTest::addColumn<bool>("closes");
    QTest::addColumn<QString>("element4"); // z P1 at 2nd order, "" when it's not checked
    const QString discrete = QStringLiteral("BRELVON_DIGI1_D_DF_2POLE_Y");
    const QString laplace = QStringLiteral("BRELVON_LaplaceXfer2ndOrder_BB");
    const QByteArray editS = R"({"set": "spinnerN0s", "text": "4"})";
    QTest::newRow("s edited, discrete model, Calculate Now")
        << discrete << "[" + editS + R"(, {"accept": true}, {"message": "Calculate Now"}])"
        << "S Coefficients have changed" << true << "1";
    QTest::newRow("s edited, discrete model, Cancel keeps it open")
        << discrete << "[" + editS + R"(, {"accept": true}, {"message": "Cancel"}, {"cancel": true}])"
        << "S Coefficients have changed" << false << "";
    QTest::newRow("s edited, Laplace model: no question, z as it was")
        << laplace << "[" + editS + R"(, {"accept": true}])" << "" << true << "0";
    QTest::newRow("z edited, Laplace model")
        << laplace << QByteArray(R"([{"set": "spinnerN1z", "text": "0.2"}, {"accept": true}, {"message": "Cancel"}, {"cancel": true}])")
        << "Z Coefficients have changed" << false << "";
    QTest::newRow("new sampling frequency raises both")
        << laplace << QByteArray(R"([{"set": "spinnerFSampling", "text": "2k"}, {"accept": true}, {"message": "Cancel"}, {"cancel": true}])")
        << "Z Coefficients have changed" << false << "";
    QTest::newRow("model radio changes no flag")
        << laplace << QByteArray(R"([{"click": "radioButtonZ"}, {"accept": true}])") << "" << true << "0";
    QTest::newRow("calculated: no question")
        << discrete << "[" + editS + R"(, {"click": "toolButtonCalculateZ"}, {"accept": true}])"
        << "" << true << "1";
}

void TestDeviceDialogs::filterOkQuestion()
{
    QFETCH(QString, model);
    QFETCH(QByteArray, steps);
    QFETCH(QString, question);
    QFETCH(bool, closes);
    QFETCH(QString, element4);
    // H(s) = N0 / (s^2 + 4) at fs 1, Trapezoidal: D = 8 and P1 = 2 N0 / 8,
    // so the edit of N0 to 4 makes element 4 "1"; the array starts at N0 1.
    const QStringList args = filterArray({{0, model}, {10, "1"}, {11, "0"}, {12, "4"}, {14, "1"}});
    const Answered a = answer(m_engine, "EditBrelvonFilter", {strings(args)}, steps);
    QVERIFY2(a.ok, qPrintable(a.failure));
    const QStringList boxes = a.messages();
    QCOMPARE(boxes.size(), question.isEmpty() ? 0 : 1);
    if (!question.isEmpty())
        QCOMPARE(boxes.first().section('|', 0, 0), question);
    const QStringList out = textsOf(a.result);
    QCOMPARE(out.isEmpty(), !closes);
    if (closes && !element4.isEmpty())
        QCOMPARE(out.at(4), element4);
}

void TestDeviceDialogs::filterAnnotation_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QByteArray>("steps");
    QTest::addColumn<QStringList>("want"); // elements 0, 17, 18, 19
    QTest::newRow("Laplace 2nd order, unit s coefficient, zero s^2")
        << filterArray({{8, "0"}, {9, "1"}, {10, "1k"}, {11, "100"}, {12, "1Meg"}}) << kAccept
        << QStringList{"BRELVON_LaplaceXfer2ndOrder_BB", "s + 1k", "s^2 + 100 s + 1Meg",
                       "2ND ORDER CONTINUOUS TIME FILTER"};
    QTest::newRow("Laplace 1st order, a constant 1 through the conversion")
        << filterArray({{0, "x"}, {1, "1"}, {9, "2.5"}, {10, "1"}, {12, "6283.185"}}) << kAccept
        << QStringList{"BRELVON_LaplaceXfer1stOrder_BB", "2.5 s + 1", "s + 6.283k",
                       "1ST ORDER CONTINUOUS TIME FILTER"};
    QTest::newRow("Laplace 2nd order, zero D1 leaves the s term out, all-zero numerator")
        << filterArray({{8, "0"}, {9, "0"}, {10, "0"}, {11, "0"}, {12, "4"}}) << kAccept
        << QStringList{"BRELVON_LaplaceXfer2ndOrder_BB", "", "s^2 + 4", "2ND ORDER CONTINUOUS TIME FILTER"};
    QTest::newRow("discrete 2nd order, unit z^-1")
        << filterArray({{0, "BRELVON_DIGI1_D_DF_2POLE_Y"}, {3, "0.25"}, {4, "1"}, {5, "0.25"},
                        {6, "-0.5"}, {7, "0.125"}}) << kAccept
        << QStringList{"BRELVON_DIGI1_D_DF_2POLE_Y", "250m + z^-1 + 250m z^-2",
                       "1 + -500m z^-1 + 125m z^-2", "2ND ORDER DISCRETE TIME FILTER"};
    QTest::newRow("discrete 1st order")
        << filterArray({{0, "BRELVON_DIGI1_D_DF_1POLE_Y"}, {1, "1"}, {4, "0.5"}, {5, "0"}, {7, "-0.5"}})
        << kAccept
        << QStringList{"BRELVON_DIGI1_D_DF_1POLE_Y", "500m", "1 + -500m z^-1", "1ST ORDER DISCRETE TIME FILTER"};
    QTest::newRow("switched to discrete by the radio")
        << filterArray({{1, "1"}, {4, "2"}, {5, "1"}, {7, "0"}})
        << QByteArray(R"([{"click": "radioButtonZ"}, {"accept": true}])")
        << QStringList{"BRELVON_DIGI1_D_DF_1POLE_Y", "2 + z^-1", "1", "1ST ORDER DISCRETE TIME FILTER"};
    QTest::newRow("an expression stands as written and survives Ok")
        << filterArray({{9, "{2*k}"}, {8, "0"}, {10, "1"}}) << kAccept
        << QStringList{"BRELVON_LaplaceXfer2ndOrder_BB", "{2*k} s + 1", "s^2 + s + 1",
                       "2ND ORDER CONTINUOUS TIME FILTER"};
}

void TestDeviceDialogs::filterAnnotation()
{
    QFETCH(QStringList, args);
    QFETCH(QByteArray, steps);
    QFETCH(QStringList, want);
    const Answered a = answer(m_engine, "EditBrelvonFilter", {strings(args)}, steps);
    QVERIFY2(a.ok, qPrintable(a.failure));
    const QStringList out = textsOf(a.result);
    QCOMPARE(out.size(), 23);
    QCOMPARE((QStringList{out.at(0), out.at(17), out.at(18), out.at(19)}), want);
    for (int i = 3; i <= 12; ++i)
        if (args.at(i).startsWith('{'))
            QCOMPARE(out.at(i), args.at(i));
}

void TestDeviceDialogs::filterOpens_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<Facts>("want");
    QTest::newRow("discrete model name")
        << filterArray({{0, "BRELVON_DIGI1_D_DF_2POLE_Y"}})
        << Facts{{"radioButtonZ.checked", "true"}, {".focus", "spinnerN2z"},
                 {"spinnerN0z.shown", "true"}, {"tabWidget4.currentIndex", "0"}};
    QTest::newRow("unknown model name opens as Laplace")
        << filterArray({{0, "whatever"}})
        << Facts{{"radioButtonLaplace.checked", "true"}, {".focus", "spinnerN0s"}};
    QTest::newRow("first order layout")
        << filterArray({{1, "1"}, {4, "0.5"}, {5, "0.25"}, {7, "-0.5"}})
        << Facts{{"spinnerN2s.shown", "false"}, {"spinnerD1s.shown", "false"},
                 {"spinnerN0z.shown", "false"}, {"spinnerD0z.shown", "false"},
                 {"labelLaplaceNumSPlus.text", "s"}, {"labelZNumZminus1.text", "z<sup>-1</sup>"},
                 {"spinnerN2z.text", "0.5"}, {"spinnerN1z.text", "0.25"}, {"spinnerD1z.text", "-0.5"},
                 {"spinnerD1z.outElementIndex", "7"}, {"spinnerD1z.inElementIndex", "7"}};
    QTest::newRow("order 7 keeps the form as it is")
        << filterArray({{1, "7"}}) << Facts{{"spinnerN2s.shown", "true"}, {"spinnerN1z.outElementIndex", "4"}};
    QTest::newRow("display precision applied at load")
        << filterArray({{10, "0.123456789"}, {21, "4"}}) << Facts{{"spinnerN0s.text", "0.1235"}};
    QTest::newRow("precision 100 is clamped to 16")
        << filterArray({{10, "0.1234567890123456789"}, {21, "100"}}) << Facts{{"spinnerN0s.text", "0.1234567890123457"}};
    QTest::newRow("an s expression disables Calculate z only")
        << filterArray({{9, "{k}"}})
        << Facts{{"toolButtonCalculateZ.enabled", "false"}, {"toolButtonCalculateS.enabled", "true"}};
    QTest::newRow("a second-order-only expression is ignored at first order")
        << filterArray({{1, "1"}, {8, "{k}"}}) << Facts{{"toolButtonCalculateZ.enabled", "true"}};
    QTest::newRow("a coefficient that is no finite number disables its direction")
        << filterArray({{9, "nan"}, {4, "1e999"}})
        << Facts{{"toolButtonCalculateZ.enabled", "false"}, {"toolButtonCalculateS.enabled", "false"}};
    QTest::newRow("sampling frequency 0 disables both")
        << filterArray({{14, "0"}})
        << Facts{{"toolButtonCalculateZ.enabled", "false"}, {"toolButtonCalculateS.enabled", "false"}};
    QTest::newRow("no arguments")
        << QStringList{} << Facts{{"helpButton.shown", "true"}, {"comboBoxTransformMethod.items",
                                                                  "Trapezoidal|Backward Euler|Forward Euler"}};
}

void TestDeviceDialogs::filterOpens()
{
    QFETCH(QStringList, args);
    QFETCH(Facts, want);
    Facts got;
    ShownDialogProbe probe([&](QDialog* dialog) {
        for (const QString& key : want.keys())
            got.insert(key, fact(dialog, key));
    });
    const Answered a = answer(m_engine, "EditBrelvonFilter", args.isEmpty() ? Args{} : Args{strings(args)},
                              probed("[{\"cancel\": true}]"));
    QVERIFY2(a.ok, qPrintable(a.failure));
    QVERIFY2(got == want, qPrintable(differences(got, want)));
}

void TestDeviceDialogs::filterOrderLimits_data()
{
    QTest::addColumn<QString>("order");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("title");
    QTest::newRow("up at 2") << "2" << "Up" << "Maximum Model Order Exceeded!";
    QTest::newRow("down at 1") << "1" << "Down" << "Minimum Model Order Exceeded!";
}

void TestDeviceDialogs::filterOrderLimits()
{
    QFETCH(QString, order);
    QFETCH(QString, key);
    QFETCH(QString, title);
    const QByteArray steps = R"([{"key": "spinnerOrder", "keys": ")" + key.toLatin1()
                             + R"("}, {"message": "OK"}, {"cancel": true}])";
    const Answered a = answer(m_engine, "EditBrelvonFilter", {strings(filterArray({{1, order}}))}, steps);
    QVERIFY2(a.ok, qPrintable(a.failure));
    QCOMPARE(a.messages().size(), 1);
    QCOMPARE(a.messages().first().section('|', 0, 0), title);
}

// -------------------------------------------------------------------- gate

namespace {

// Gate arguments: values, the four numbers of argument 1, limits.
Args gateArgs(const QStringList& numbers, const QStringList& limits = {"0|1|X", "0|VSS", "9", "1"})
{
    return {strings({"0", "1Meg", "10", "2.5", "0.1", "0", "5", "10n"}), strings(numbers), strings(limits),
            strings({"AND gate", "OR gate", "XOR gate", "Buffer"}),
            strings({"all high", "any high", "differ", "follows"})};
}

} // namespace

void TestDeviceDialogs::gateOpens_data()
{
    columns();
    const auto row = [](const char* name, const Args& args, const Facts& want) {
        QTest::newRow(name) << args << QByteArray("[{\"cancel\": true}]") << want << QStringList() << QStringList();
    };
    const QString inputs = QStringLiteral("numberOfLogicInputsCombo.");
    const QString inverted = QStringLiteral("numberOfInvertedLogicInputsCombo.");
    QStringList counts;
    for (int n = 2; n <= 64; ++n)
        counts << QString::number(n);
    const QString upTo64 = counts.join(QLatin1Char('|'));
    row("type 7 opens as AND / NAND",
        gateArgs({"7", "3", "1"}),
        Facts{{"gateTypeGroup.current", "0"}, {"labelTitle.text", "AND gate"},
              {inputs + "text", "3"}, {inverted + "items", "0|1|2"}});
    row("count 12 above the maximum opens at 2",
        gateArgs({"0", "12", "0"}), Facts{{inputs + "text", "2"}, {inverted + "items", "0|1"}});
    row("inverted equal to the inputs becomes 0",
        gateArgs({"1", "3", "3"}),
        Facts{{inverted + "text", "0"}, {"labelDescription.text", "any high"}});
    row("minimum non-inverted 3 of 2 inputs: empty and disabled",
        gateArgs({"0", "2", "0"}, {"", "", "9", "3"}),
        Facts{{inverted + "items", ""}, {inverted + "enabled", "false"}, {inputs + "enabled", "true"}});
    row("XOR has fixed lists",
        gateArgs({"2", "5", "1"}),
        Facts{{inputs + "items", "2"}, {inputs + "enabled", "false"}, {inverted + "items", "0|1"},
              {inverted + "text", "1"}, {"labelTitle.text", "XOR gate"}});
    row("inverter",
        gateArgs({"3", "1", "0"}), Facts{{inputs + "items", "1"}, {inverted + "items", "0"}});
    row("maximum of 1e9 is capped",
        gateArgs({"0", "2", "0"}, {"", "", "1000000000", "1"}), Facts{{inputs + "items", upTo64}});
    row("help topic -1 hides Help for its type",
        gateArgs({"2", "2", "0"}, {"", "", "9", "1", "", "", "Gate Title", "10|11|-1|13", "A-D"}),
        Facts{{"helpButton.visible", "false"}, {".title", "Gate Title"}, {"labelADInterface.text", "A-D"}});
    row("help topic shown for its type",
        gateArgs({"1", "2", "0"}, {"", "", "9", "1", "", "", "", "10|11|-1|13"}),
        Facts{{"helpButton.visible", "true"}});
    row("fewer than 8 limits: no help",
        gateArgs({"0", "2", "0"}), Facts{{"helpButton.visible", "false"}});
    row("ground reference of one item is disabled",
        gateArgs({"0", "2", "0"}, {"0|1", "0", "9", "1"}),
        Facts{{"groundReferenceCombo.enabled", "false"}, {"labelResUnits1.text", QString(QChar(0x03A9))}});
}

void TestDeviceDialogs::gateCounts_data()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QByteArray>("steps");
    QTest::addColumn<QStringList>("want"); // elements 8, 9, 10
    QTest::addColumn<QStringList>("help");
    const Args andGate = gateArgs({"0", "3", "1"}, {"0|1|X", "0|VSS", "9", "1", "", "", "", "10|11|-1|13"});
    QTest::newRow("as loaded") << andGate << kAccept << QStringList{"0", "3", "1"} << QStringList{};
    QTest::newRow("first visit to OR takes the AND counts")
        << andGate << QByteArray(R"([{"radio": "gateTypeGroup", "id": 1}, {"accept": true}])")
        << QStringList{"1", "3", "1"} << QStringList{};
    QTest::newRow("AND keeps its counts when OR changes")
        << andGate
        << QByteArray(R"([{"radio": "gateTypeGroup", "id": 1}, {"choose": "numberOfLogicInputsCombo", "text": "5"},
             {"radio": "gateTypeGroup", "id": 0}, {"accept": true}])")
        << QStringList{"0", "3", "1"} << QStringList{};
    QTest::newRow("OR remembers its own")
        << andGate
        << QByteArray(R"([{"radio": "gateTypeGroup", "id": 1}, {"choose": "numberOfLogicInputsCombo", "text": "5"},
             {"choose": "numberOfInvertedLogicInputsCombo", "text": "4"},
             {"radio": "gateTypeGroup", "id": 3}, {"radio": "gateTypeGroup", "id": 1}, {"accept": true}])")
        << QStringList{"1", "5", "4"} << QStringList{};
    QTest::newRow("fewer inputs than the inverted count: no selection")
        << gateArgs({"0", "6", "5"})
        << QByteArray(R"([{"choose": "numberOfLogicInputsCombo", "text": "3"}, {"accept": true}])")
        << QStringList{"0", "3", ""} << QStringList{};
    QTest::newRow("help of the selected type")
        << andGate
        << QByteArray(R"([{"click": "helpButton"}, {"radio": "gateTypeGroup", "id": 3}, {"click": "helpButton"},
             {"accept": true}])")
        << QStringList{"3", "1", "0"} << QStringList{"10", "13"};
}

void TestDeviceDialogs::gateCounts()
{
    QFETCH(Args, args);
    QFETCH(QByteArray, steps);
    QFETCH(QStringList, want);
    QFETCH(QStringList, help);
    const Answered a = answer(m_engine, "EditBRELVONGateDialog", args, steps);
    QVERIFY2(a.ok, qPrintable(a.failure));
    const QStringList out = textsOf(a.result);
    QCOMPARE(out.size(), 12);
    QCOMPARE(out.mid(8, 3), want);
    QCOMPARE(out.mid(0, 8), (QStringList{"0", "1Meg", "10", "2.5", "0.1", "0", "5", "10n"}));
    QCOMPARE(a.helpTopics(), help);
}

// ------------------------------------------------------------------ jumper

void TestDeviceDialogs::jumper_data()
{
    columns();
    const Args titled = {strings({"1", "4", "0"}), strings({"J1", "12"})};
    QTest::newRow("one position, closed")
        << Args{strings({"0", "2", "1"})} << kAccept
        << Facts{{"rbPosition2.visible", "false"}, {"rbPosition1.text", "Closed"},
                 {"jumperPositionGroup.current", "1"}, {"helpButton.visible", "false"}}
        << QStringList{"0", "2", "1"} << QStringList{};
    QTest::newRow("first switch to two positions selects Open")
        << Args{strings({"0", "1", "1"})}
        << QByteArray(R"([{"radio": "numberOfPositionsGroup", "id": 1}, {"accept": true}])") << Facts{}
        << QStringList{"1", "1", "0"} << QStringList{};
    QTest::newRow("back and forth restores each shape")
        << Args{strings({"1", "1", "2"})}
        << QByteArray(R"([{"radio": "numberOfPositionsGroup", "id": 0}, {"radio": "jumperPositionGroup", "id": 1},
             {"radio": "numberOfPositionsGroup", "id": 1}, {"accept": true}])")
        << Facts{{"rbPosition2.visible", "true"}, {"rbPosition1.text", "Position 1"}}
        << QStringList{"1", "1", "2"} << QStringList{};
    QTest::newRow("a hidden selection stays and goes out")
        << Args{strings({"0", "1", "2"})} << kAccept << Facts{{"rbPosition2.visible", "false"}}
        << QStringList{"0", "1", "2"} << QStringList{};
    QTest::newRow("title and help 12")
        << titled << QByteArray(R"([{"click": "helpButton"}, {"accept": true}])")
        << Facts{{"helpButton.visible", "true"}} << QStringList{"1", "4", "0"} << QStringList{"12"};
    QTest::newRow("help -5 hides the button")
        << Args{strings({"1", "1", "0"}), strings({"J1", "-5"})} << kAccept
        << Facts{{"helpButton.visible", "false"}} << QStringList{"1", "1", "0"} << QStringList{};
    QTest::newRow("no arguments: form defaults")
        << Args{} << kAccept << Facts{{"numberOfPositionsGroup.current", "1"}, {"rbOpen.checked", "true"}}
        << QStringList{"1", "1", "0"} << QStringList{};
}

// ------------------------------------------------------------- convergence

void TestDeviceDialogs::convergence_data()
{
    columns();
    const QStringList defaults{"0", "1n", "1", "5e11", "1", "1p", "1", "1", "1f", "1"};
    QTest::newRow("default boxes put the defaults back, slew rate kept")
        << Args{strings(defaults)} << kAccept
        << Facts{{"abstolEdit.enabled", "false"}, {"cbApplyShuntCapacitanceGlobally.enabled", "false"},
                 {"discontinuousSourceSlewRateEdit.enabled", "false"}}
        << QStringList{"0", "1e-12", "1", "5e11", "1", "0", "1", "1", "0", "1"} << QStringList();
    QTest::newRow("minimum time step default from argument 1")
        << Args{strings(defaults), strings({"10f"})} << kAccept << Facts{}
        << QStringList{"0", "1e-12", "1", "5e11", "1", "0", "1", "1", "1e-14", "1"} << QStringList();
    QTest::newRow("unchecked boxes keep the loaded values, fields enabled")
        << Args{strings({"1", "1n", "0", "5e11", "0", "1p", "0", "1", "2f", "0"})} << kAccept
        << Facts{{"abstolEdit.enabled", "true"}, {"minTimeStepEdit.enabled", "true"},
                 {"discontinuousSourceSlewRateEdit.enabled", "true"},
                 {"cbApplyShuntCapacitanceGlobally.enabled", "true"}}
        << QStringList{"1", "1n", "0", "5e11", "0", "1p", "0", "1", "2f", "0"} << QStringList();
    QTest::newRow("unchecking keeps 1e-12; checking again writes it back")
        << Args{strings(defaults)}
        << QByteArray(R"([{"check": "cbDefaultAbsoluteCurrentTolerance", "on": false}, {"set": "abstolEdit", "text": "3n"},
             {"check": "cbDefaultAbsoluteCurrentTolerance", "on": true}, {"accept": true}])")
        << Facts{} << QStringList{"0", "1e-12", "1", "5e11", "1", "0", "1", "1", "0", "1"} << QStringList();
    QTest::newRow("unchecked default keeps an edit")
        << Args{strings(defaults)}
        << QByteArray(R"([{"check": "cbDefaultAbsoluteCurrentTolerance", "on": false}, {"set": "abstolEdit", "text": "3n"},
             {"check": "cbEnableDiscontinuousSourceSlewRate", "on": false}, {"accept": true}])")
        << Facts{} << QStringList{"0", "3n", "0", "5e11", "0", "0", "1", "1", "0", "1"} << QStringList();
    QTest::newRow("no arguments: form defaults")
        << Args{} << kAccept << Facts{{"discontinuousSourceSlewRateEdit.text", "1e+012"}}
        << QStringList{"0", "1e-12", "1", "1e+012", "1", "0", "1", "0", "0", "1"} << QStringList();
}

// ------------------------------------------------------------ bad input

void TestDeviceDialogs::badArgumentsOpenWithDefaults_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<Args>("args");
    QTest::addColumn<QByteArray>("steps");
    const QByteArray calculate = R"([{"click": "toolButtonCalculateZ"}, {"click": "toolButtonCalculateS"},
                                     {"accept": true}])";
    const QString huge = QStringLiteral("1e308");
    QStringList fifty;
    for (int i = 0; i < 50; ++i)
        fifty << QString::number(i - 10);
    QTest::newRow("filter, NaN and 1e308")
        << "EditBrelvonFilter" << Args{strings(filterArray({{3, "NaN"}, {10, huge}, {12, huge}, {14, huge}}))} << calculate;
    QTest::newRow("filter, order -1, precision 0")
        << "EditBrelvonFilter" << Args{strings(filterArray({{1, "-1"}, {20, "0"}, {21, "0"}, {22, "-7"}}))} << calculate;
    QTest::newRow("filter, 50 elements") << "EditBrelvonFilter" << Args{strings(fifty)} << kAccept;
    QTest::newRow("gate, counts far out of range")
        << "EditBRELVONGateDialog"
        << gateArgs({"-2147483648", "99999999999999999999", "-5"}, {"", "", "1e18", "-1e18"}) << kAccept;
    QTest::newRow("gate, 50 help topics, 50 titles")
        << "EditBRELVONGateDialog"
        << Args{strings({}), strings({"1"}), strings({"", "", "9", "1", "nan", "-inf", "T", fifty.join('|')}),
                strings(fifty), strings(fifty)} << kAccept;
    QTest::newRow("gate, nothing") << "EditBRELVONGateDialog" << Args{} << kAccept;
    QTest::newRow("jumper, wrong text") << "EditJumperDialog"
                                        << Args{strings({"x", "1e18", "-1"}), strings({"", "99999999999"})} << kAccept;
    QTest::newRow("convergence, NaN default") << "ConvergenceDialog" << Args{strings({"9"}), strings({"NaN"})} << kAccept;
}

// Opened, answered, and the call ran with a result; whatever the form
// makes of it.
void TestDeviceDialogs::badArgumentsOpenWithDefaults()
{
    QFETCH(QString, function);
    QFETCH(Args, args);
    QFETCH(QByteArray, steps);
    const Answered a = answer(m_engine, function.toLatin1().constData(), args, steps);
    QVERIFY2(a.ok, qPrintable(a.failure));
    QVERIFY(!textsOf(a.result).isEmpty());
}

QTEST_MAIN(TestDeviceDialogs)
#include "tst_devicedialogs.moc"
