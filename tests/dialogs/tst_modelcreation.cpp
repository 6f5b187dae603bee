// The model creation dialogs, called through the engine on the built module
// and answered as a script's user would.
#include "dialogtest.h"
#include "hostsupport.h"
#include "kitsupport.h"

#include <QDir>
#include <QFile>

#include <QTemporaryDir>
#include <QtTest>

using namespace dialogtest;
Q_DECLARE_METATYPE(Args)

class TestModelCreation : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void createDiode_data();
    void createDiode();
    void brelvonOptions_data();
    void brelvonOptions();
    void brelvonOptionsHelp();

private:
    vtkit::Engine m_engine;
    QTemporaryDir m_config;
};

void TestModelCreation::initTestCase()
{
    if (qEnvironmentVariableIsEmpty("VANTRELL_CONFIG_DIR")) {
        QVERIFY(m_config.isValid());
        qputenv("VANTRELL_CONFIG_DIR", m_config.path().toLocal8Bit());
    }
    QVERIFY(loadModule(m_engine));
}

void TestModelCreation::cleanup()
{
    QVERIFY(noTopLevelsLeft());
}

// ----------------------------------------------------------- CreateDiodeDialog

void TestModelCreation::createDiode_data()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<bool>("hasResult");
    QTest::addColumn<QStringList>("expected");

    const QStringList sheet{"10", "1", "100M", "50n", "0.7", "1", "0.9", "10", "100p", "1", "D1N4148"};
    QTest::newRow("every element comes back where it went in")
        << stringArgs({sheet}) << R"([{"accept": true}])" << true << sheet;
    QTest::newRow("no arguments: zero fields, saved to the schematic symbol")
        << Args{} << R"([{"accept": true}])" << true
        << QStringList{"0", "0", "0", "0", "0", "0", "0", "0", "0", "0", ""};
    QTest::newRow("a short array fills what it has")
        << stringArgs({{"2", "3"}}) << R"([{"accept": true}])" << true
        << QStringList{"2", "3", "0", "0", "0", "0", "0", "0", "0", "0", ""};
    QTest::newRow("edits and the library choice")
        << stringArgs({sheet})
        << R"([{"set": "spinner9", "text": "47p"}, {"click": "radioButton5"}, {"set": "editBox1", "text": "MURS120"}, {"click": "okButton"}])"
        << true
        << QStringList{"10", "1", "100M", "50n", "0.7", "1", "0.9", "10", "47p", "0", "MURS120"};
    QTest::newRow("the misspelt cancel button still cancels")
        << stringArgs({sheet}) << R"([{"click": "cacnelButton"}])" << false << QStringList{};
}

void TestModelCreation::createDiode()
{
    QFETCH(Args, args);
    QFETCH(QString, steps);
    QFETCH(bool, hasResult);
    QFETCH(QStringList, expected);

    const Answered run = answer(m_engine, "CreateDiodeDialog", args, steps.toUtf8());
    QVERIFY2(run.ok, qPrintable(run.failure));
    QCOMPARE(run.result.hasResult, hasResult);
    if (hasResult)
        QCOMPARE(textsOf(run.result), expected);
}

// ------------------------------------------------------- BrelvonOptionsDialog

namespace {

// Current settings equal to the factory defaults, per device.
const QStringList kDiode{"1", "0", "1", "100", "25", "1", "3", "1", "1k", "0"};
const QStringList kMos{"1", "0", "10", "100", "10", "1", "25", "1", "1Meg", "2", "0", "0.9", "0.1", "100"};
const QStringList kJfet{"0", "0", "1", "100", "10", "1", "25", "1", "1Meg", "0", "0.9", "0.1", "100"};
const QStringList kZener{"1", "0", "5m", "25", "3", "1", "1Meg", "0"};
const QStringList kBjt{"1", "0", "1", "1", "0"};

Args optionArgs(QStringList diodeNow = kDiode, QStringList mosDefaults = kMos, QStringList zenerNow = kZener)
{
    return stringArgs({diodeNow, kDiode, kMos, mosDefaults, kMos, kMos, kJfet, kJfet, zenerNow, kZener,
                       kBjt, kBjt, {"10", "11", "12", "13", "14", "15"}, {"Vendor;PSU Controllers|Vendor;Diodes"}});
}

} // namespace

void TestModelCreation::brelvonOptions_data()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QStringList>("options"); // "name=value" after the call

    const QString ok = R"({"accept": true}])";
    const QString px = QStringLiteral("BRELVONModelExtraction");
    QTest::newRow("values equal to their defaults are written false")
        << optionArgs() << "[" + ok
        << QStringList{px + "MosDefaultIdPeak=", px + "DiodeUseExtractedModel=", px + "ZenerNumSeg=",
                       "BRELVONCreateASCIIModelSymbolCategory=", "BRELVONCreateASCIIModelSymbolLibrary="};
    QTest::newRow("a changed setting is written as a number")
        << optionArgs() << R"([{"set": "spinnerMosIdPeak", "text": "20"}, )" + ok
        << QStringList{px + "MosDefaultIdPeak=20", px + "MosDefaultVdPeak="};
    QTest::newRow("less than 1e-10 away counts as unchanged")
        << optionArgs() << R"([{"set": "spinnerMosIdPeak", "text": "10.00000000001"}, )" + ok
        << QStringList{px + "MosDefaultIdPeak="};
    QTest::newRow("a current value away from the default is written without a change")
        << optionArgs({"0", "0", "2", "100", "25", "1", "3", "1", "1k", "0"}) << "[" + ok
        << QStringList{px + "DiodeUseExtractedModel=0", px + "DiodeDefaultIdPeak=2"};
    QTest::newRow("reset puts the defaults back and checks the limit whatever it says")
        << optionArgs(kDiode, {"1", "0", "10", "100", "10", "1", "25", "0", "1Meg", "2", "0", "0.9", "0.1", "100"})
        << R"([{"set": "spinnerMosIdPeak", "text": "20"}, {"click": "tbResetMosToDefaults"}, )" + ok
        << QStringList{px + "MosDefaultIdPeak=", px + "MosDefaultLimitMaxRoff=1"};
    QTest::newRow("reset with a default array one short does nothing")
        << optionArgs(kDiode, kMos.mid(0, 13))
        << R"([{"set": "spinnerMosIdPeak", "text": "20"}, {"click": "tbResetMosToDefaults"}, )" + ok
        << QStringList{px + "MosDefaultIdPeak=20"};
    QTest::newRow("the zener's segments go to the option in its place")
        << optionArgs(kDiode, kMos, {"1", "0", "5m", "25", "5", "1", "1Meg", "0"}) << "[" + ok
        << QStringList{px + "ZenerDefaultLimitMaxRoff=5", px + "ZenerNumSeg="};
    QTest::newRow("the IGBT debug box reads the diode array")
        << optionArgs({"1", "0", "1", "100", "25", "1", "3", "1", "1k", "0", "1"}) << "[" + ok
        << QStringList{px + "IgbtDebug=1", px + "MosDebug="};
    QTest::newRow("print statements out takes the graph statements with them")
        << optionArgs() << R"([{"choose": "tabWidgetMain", "text": "ASCII Model/Symbol Creation"}, {"check": "checkBoxASCIINoPrint", "on": true}, )" + ok
        << QStringList{"BRELVONCreateASCIIModelNoDotPrint=1", "BRELVONCreateASCIIModelNoDotGraph=1"};
    QTest::newRow("a global library without a name is not stored")
        << optionArgs() << R"([{"choose": "tabWidgetMain", "text": "ASCII Model/Symbol Creation"}, {"click": "radioButtonSymbolGlobal"}, )" + ok
        << QStringList{"BRELVONCreateASCIIModelSymbolLibrary="};
    QTest::newRow("a global library and another category are stored")
        << optionArgs()
        << R"([{"choose": "tabWidgetMain", "text": "ASCII Model/Symbol Creation"}, {"click": "radioButtonSymbolGlobal"}, {"set": "editBoxSymbolLibFileName", "text": "/lib/mine.sxslb"},
              {"set": "comboBoxSymbolCategory", "text": "Vendor;Diodes"}, )" + ok
        << QStringList{"BRELVONCreateASCIIModelSymbolLibrary=/lib/mine.sxslb",
                       "BRELVONCreateASCIIModelSymbolCategory=Vendor;Diodes"};
    QTest::newRow("cancel writes nothing")
        << optionArgs() << R"([{"set": "spinnerMosIdPeak", "text": "20"}, {"click": "cancelButton"}])"
        << QStringList{px + "MosDefaultIdPeak=unwritten"};
}

void TestModelCreation::brelvonOptions()
{
    QFETCH(Args, args);
    QFETCH(QString, steps);
    QFETCH(QStringList, options);

    QFile::remove(QDir(vtkit::configDir()).filePath(QStringLiteral("options.ini")));
    const Answered run = answer(m_engine, "BrelvonOptionsDialog", args, steps.toUtf8());
    QVERIFY2(run.ok, qPrintable(run.failure));
    for (const QString& expected : options) {
        const QString name = expected.section(QLatin1Char('='), 0, 0);
        bool found = false;
        const QString value = toQs(sp_GetStringOption(Tocs(name), &found));
        QCOMPARE(name + QLatin1Char('=') + (found ? value : QStringLiteral("unwritten")), expected);
    }
}

// The help button follows the topic of the device tab, and the symbol page
// has none.
void TestModelCreation::brelvonOptionsHelp()
{
    Args args = optionArgs();
    args[12] = strings({"10", "", "-1"});
    const Answered run = answer(m_engine, "BrelvonOptionsDialog", args, R"([
        {"inspect": "helpButton"}, {"click": "helpButton"},
        {"choose": "tabWidgetModelExtract", "text": "Diode"}, {"inspect": "helpButton"},
        {"choose": "tabWidgetModelExtract", "text": "IGBT"}, {"inspect": "helpButton"},
        {"choose": "tabWidgetModelExtract", "text": "BJT"}, {"inspect": "helpButton"},
        {"choose": "tabWidgetModelExtract", "text": "MOSFET"},
        {"choose": "tabWidgetMain", "index": 1}, {"inspect": "helpButton"},
        {"cancel": true}])");
    QVERIFY2(run.ok, qPrintable(run.failure));
    QStringList hidden;
    for (const QJsonObject& line : run.eventsOf(QStringLiteral("inspect")))
        hidden << line.value(QLatin1String("hidden")).toVariant().toString();
    QCOMPARE(hidden, (QStringList{"false", "true", "true", "true", "true"}));
    const QList<QJsonObject> help = run.eventsOf(QStringLiteral("help"));
    QCOMPARE(help.size(), 1);
    QCOMPARE(help.first().value(QLatin1String("help")).toString(), QStringLiteral("10"));
}

QTEST_MAIN(TestModelCreation)
#include "tst_modelcreation.moc"
