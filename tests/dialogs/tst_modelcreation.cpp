// The model creation dialogs, called through the engine on the built module
// and answered as a script's user would.
#include "dialogtest.h"
#include "hostsupport.h"
#include "kitsupport.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QFile>

#include <QTemporaryDir>
#include <QtTest>

using namespace dialogtest;
Q_DECLARE_METATYPE(Args)
Q_DECLARE_METATYPE(std::vector<double>)

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
    void powerInductor_data();
    void powerInductor();
    void modelExtraction_data();
    void modelExtraction();
    void modelHistory();

private:
    vtkit::Engine m_engine;
    QTemporaryDir m_config;
};

void TestModelCreation::initTestCase()
{
    QVERIFY(loadModule(m_engine, &m_config));
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
    QCOMPARE(run.helpTopics(), QStringList{"10"});
}

// --------------------------------------------------- CreatePowerInductorModel

namespace {

// The entries of a result before the table: what an untouched dialog gives.
QStringList inductorHead(const QString& shunt = QString(), const QString& rows = QStringLiteral("0"))
{
    return {"SeriesR", "0", "ShuntR", shunt.isNull() ? QStringLiteral("0") : shunt, "SaveTo",
            "SchematicSymbol", "DeviceName", "", "InitialCondition", "0", "0", "Smoothing", "0",
            "DataTable", rows};
}

// A "GraphImageCapture" that answers with these values, or fails when empty.
vtkit::HostFunction capture(std::vector<double> values)
{
    return [values](const ArgRecord*, int, ScriptValue& result, int& error) {
        error = values.empty() ? 1 : 0;
        result = ScriptValue::fromReals(values);
        return !values.empty();
    };
}

} // namespace

void TestModelCreation::powerInductor_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<std::vector<double>>("captured");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QStringList>("expected"); // empty: no result
    QTest::addColumn<QString>("message");      // text of a message box the call showed

    const QString ok = R"({"accept": true}])";
    const std::vector<double> none;
    QTest::newRow("untouched: fifteen entries, the empty rows gone")
        << QStringList{} << "" << none << "[" + ok << inductorHead() << "";
    QTest::newRow("a shunt of 0 is infinite and stays 0")
        << QStringList{"ShuntR", "0"} << "" << none << R"([{"inspect": "editbox_ShuntR"}, )" + ok
        << inductorHead() << "";
    QTest::newRow("keys in any case, a former result passed back")
        << (inductorHead(QStringLiteral("1Meg"), QStringLiteral("2")) + QStringList{"1", "2u", "3", "1u"})
               .replaceInStrings(QStringLiteral("SeriesR"), QStringLiteral("seriesr"))
        << "" << none << "[" + ok
        << inductorHead(QStringLiteral("1Meg"), QStringLiteral("2")) + QStringList{"1", "2e-06", "3", "1e-06"}
        << "";
    QTest::newRow("a key without its values is skipped")
        << QStringList{"Smoothing", "2", "InitialCondition", "1"} << "" << none << "[" + ok
        << [] { QStringList head = inductorHead(); head[12] = "2"; return head; }() << "";
    QTest::newRow("a negative row count leaves the table alone")
        << QStringList{"DataTable", "-3", "1", "2"} << "" << none << "[" + ok << inductorHead() << "";
    QTest::newRow("a huge row count is cut to the pairs that came")
        << QStringList{"DataTable", "1e9", "1", "2"} << "" << none << "[" + ok
        << inductorHead(QString(), QStringLiteral("1")) + QStringList{"1", "2"} << "";
    QTest::newRow("paste of seven numbers makes three rows")
        << QStringList{"DataTable", "5", "1", "1", "2", "2", "3", "3", "4", "4", "5", "5"}
        << "(0, 1u) (1,0.9u)\n2 0.5u\t7" << none << R"([{"click": "pushbutton_Paste"}, )" + ok
        << inductorHead(QString(), QStringLiteral("3")) + QStringList{"0", "1u", "1", "0.9u", "2", "0.5u"}
        << "";
    QTest::newRow("delete empties the selected cells, Ok drops the rows")
        << QStringList{"DataTable", "2", "1", "1", "2", "2"} << "" << none
        << R"([{"key": "tableWidget", "keys": "Ctrl+A"}, {"key": "tableWidget", "keys": "Delete"}, )" + ok
        << inductorHead() << "";
    QTest::newRow("a row with one value stops Ok")
        << QStringList{"DataTable", "2", "1", "1", "2", "2"} << "" << none
        << R"([{"cell": "tableWidget", "row": 2, "column": 0, "text": "5"}, {"accept": true},
              {"message": "OK"}, {"cancel": true}])"
        << QStringList{}
        << "There is a row with an empty cell in the data table. Cannot complete while this cell is empty.";
    QTest::newRow("points from an image")
        << QStringList{} << "" << std::vector<double>{2, 0.5, 4, 8e-6, 2e-6}
        << R"([{"click": "pushbutton_LoadFromImage"}, )" + ok
        << inductorHead(QString(), QStringLiteral("2")) + QStringList{"0.5", "8e-06", "4", "2e-06"} << "";
    QTest::newRow("an image result that claims more points than it has")
        << QStringList{} << "" << std::vector<double>{100, 1, 2, 3, 4}
        << R"([{"click": "pushbutton_LoadFromImage"}, )" + ok
        << inductorHead(QString(), QStringLiteral("2")) + QStringList{"1", "3", "2", "4"} << "";
    QTest::newRow("a failed capture leaves the table")
        << QStringList{"DataTable", "1", "1", "2"} << "" << none
        << R"([{"click": "pushbutton_LoadFromImage"}, )" + ok
        << inductorHead(QString(), QStringLiteral("1")) + QStringList{"1", "2"} << "";
    QTest::newRow("cancel gives nothing")
        << QStringList{"DataTable", "1", "1", "2"} << "" << none << R"([{"cancel": true}])" << QStringList{}
        << "";
}

void TestModelCreation::powerInductor()
{
    QFETCH(QStringList, keys);
    QFETCH(QString, clipboard);
    QFETCH(std::vector<double>, captured);
    QFETCH(QString, steps);
    QFETCH(QStringList, expected);
    QFETCH(QString, message);

    QGuiApplication::clipboard()->setText(clipboard);
    m_engine.registerHostFunction("GraphImageCapture", capture(captured));
    const Answered run = answer(m_engine, "CreatePowerInductorModel",
                                keys.isEmpty() ? Args{} : stringArgs({keys}), steps.toUtf8());
    m_engine.removeHostFunction("GraphImageCapture");
    QVERIFY2(run.ok, qPrintable(run.failure));
    QCOMPARE(run.result.hasResult, !expected.isEmpty());
    if (!expected.isEmpty())
        QCOMPARE(textsOf(run.result), expected);
    QCOMPARE(run.messages(), message.isEmpty() ? QStringList() : QStringList{"Data Error|" + message});
    const QJsonObject shunt = run.inspected(QStringLiteral("editbox_ShuntR"));
    if (!shunt.isEmpty())
        QCOMPARE(shunt.value(QLatin1String("enabled")).toBool(), false);
}

// ------------------------------------------------------ ModelExtractionDialog

namespace {

// Descriptors 1 to 3 and 16 name no group: their elements belong to the
// fixed widgets. Controls are "parameter" + position.
QStringList extractionParams(bool zener)
{
    const QString shortList = zener ? "1 In Zener Avalanche|2 Off|3 Forward Biased"
                                    : "1 Reverse Biased|2 Forward Biased";
    QStringList params{":Model", ":-:Model name", ":-:Label", ":-:Configuration",
                       ":Extracted model:Forward current:1:0:A:real",
                       ":Extracted model:Number of Segments:2:0::list:2 Segments|3 Segments",
                       ":Extracted model:Initial Condition:3:0::list:" + shortList};
    for (const char* diode : {"A", "B", "C", "D"})
        params << QStringLiteral(":Extracted model:Initial Condition (Diode %1):4:0::list:").arg(diode) + shortList;
    params << ":User-defined model:Forward voltage:1:0:V:real"
           << ":User-defined model:Forward resistance:2:0:__Ohms__:real"
           << ":User-defined model:Zener voltage:3:0:V:real"
           << ":User-defined model:Series resistance:4:0:__Ohms__:real"
           << ":User-defined model:Transit time:5:0:s:real" << ":-:Count"
           << ":User-defined model:Capacitance:6:0:F:real";
    return params;
}

Args extractionArgs(const QString& kind, const QString& type, const QString& configuration,
                    const QString& count = "2", const QString& condition = "2 Forward Biased",
                    const QString& model = "'1N4007'", const QString& label = "'Rectifier'")
{
    const bool zener = kind == QLatin1String("zener");
    return stringArgs({extractionParams(zener),
                       {type, model, label, configuration, "1", "2 Segments", condition, condition,
                        condition, condition, condition, "0.7", "10m", "5.1", "1m", "5u", count, "15p"},
                       {kind, "", "headline", "Diode", "", "", "12"},
                       {"1N4148", "1N4007", "MUR160", "1n914?"}});
}

} // namespace

void TestModelCreation::modelExtraction_data()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QStringList>("facts");    // "object.field=value" of the inspect lines, in order
    QTest::addColumn<QStringList>("elements"); // "index=value" of the result; empty: no result
    QTest::addColumn<QString>("message");      // title of a message box, if one is expected

    const QString ok = R"({"accept": true}])";
    QTest::newRow("object name, title and Ok by kind")
        << extractionArgs("D", "0", "0") << R"([{"inspect": ""}, {"inspect": "okButton"}, )" + ok
        << QStringList{".objectName=ModelExtractionDiodeDialog", ".title=Extract Diode", "okButton.text=Extract"}
        << QStringList{"0=0", "1='1N4007'", "2='Rectifier'", "3=0"} << "";
    QTest::newRow("a bipolar transistor is translated and has no configuration")
        << extractionArgs("bjt", "0", "0")
        << R"([{"inspect": ""}, {"inspect": "radioGroupConfigDiode"}, {"inspect": "radioButtonExtract"}, )" + ok
        << QStringList{".objectName=ModelExtractionBjtDialog", ".title=Translate Diode",
                       "radioGroupConfigDiode.hidden=true", "radioButtonExtract.text=Translated"}
        << QStringList{"1='1N4007'", "3="} << "";
    QTest::newRow("an unknown kind keeps the default name")
        << extractionArgs("triac", "1", "0") << R"([{"inspect": ""}, )" + ok
        << QStringList{".objectName=ModelExtractionDialog"} << QStringList{"0=1"} << "";
    QTest::newRow("two to three segments keeps forward biased")
        << extractionArgs("d", "0", "0")
        << R"([{"choose": "parameter5", "text": "3 Segments"}, {"inspect": "parameter6"},
              {"choose": "parameter6", "text": "2 Slightly Forward Biased"},
              {"choose": "parameter5", "text": "2 Segments"}, {"inspect": "parameter6"}, )" + ok
        << QStringList{"parameter6.text=3 Forward Biased", "parameter6.text=2 Forward Biased"}
        << QStringList{"5=2 Segments", "6=2 Forward Biased"} << "";
    QTest::newRow("zener conditions between the short and the long list")
        << extractionArgs("zener", "0", "0", "2", "2 Off")
        << R"([{"choose": "parameter5", "text": "3 Segments"}, {"inspect": "parameter6"},
              {"choose": "parameter6", "text": "4 Slightly Forward Biased"},
              {"choose": "parameter5", "text": "2 Segments"}, {"inspect": "parameter6"}, )" + ok
        << QStringList{"parameter6.text=3 Off", "parameter6.text=3 Forward Biased"}
        << QStringList{"6=3 Forward Biased"} << "";
    QTest::newRow("back-to-back zeners: no forward parameters, no count")
        << extractionArgs("zener", "1", "1")
        << R"([{"inspect": "parameter11"}, {"inspect": "parameter12"}, {"inspect": "extraSpinner"}, )" + ok
        << QStringList{"parameter11.enabled=false", "parameter12.enabled=false", "extraSpinner.hidden=true"}
        << QStringList{"3=1", "16="} << "";
    QTest::newRow("parallel and series remember their counts")
        << extractionArgs("d", "0", "1", "4")
        << R"([{"inspect": "extraSpinner"}, {"click": "radioButton3"}, {"inspect": "extraSpinner"},
              {"set": "extraSpinner", "text": "5"}, {"click": "radioButton2"}, {"inspect": "extraSpinner"},
              {"click": "radioButton3"}, )" + ok
        << QStringList{"extraSpinner.text=4", "extraSpinner.text=2", "extraSpinner.text=4"}
        << QStringList{"3=2", "16=5"} << "";
    QTest::newRow("a bridge has an initial condition per diode")
        << extractionArgs("d", "0", "3", "0.02")
        << R"([{"inspect": "parameter6"}, {"inspect": "parameter7"}, {"inspect": "extraSpinner"}, )" + ok
        << QStringList{"parameter6.hidden=true", "parameter7.hidden=false", "extraSpinner.text=0.02"}
        << QStringList{"3=3", "16=0.02"} << "";
    QTest::newRow("a model that differs only in case is installed")
        << extractionArgs("d", "0", "0", "2", "2 Forward Biased", "'mur160'") << "[" + ok << QStringList{}
        << QStringList{"1='mur160'"} << "";
    QTest::newRow("question marks are the names' own")
        << extractionArgs("d", "0", "0", "2", "2 Forward Biased", "1N914?") << "[" + ok << QStringList{}
        << QStringList{"1='1N914?'"} << "";
    QTest::newRow("a model that isn't installed")
        << extractionArgs("d", "0", "0", "2", "2 Forward Biased", "'BAV99'")
        << R"([{"accept": true}, {"message": "OK"}, {"cancel": true}])" << QStringList{} << QStringList{}
        << "Model BAV99 not found in libraries";
    QTest::newRow("no model at all")
        << extractionArgs("d", "0", "0", "2", "2 Forward Biased", "")
        << R"([{"accept": true}, {"message": "OK"}, {"cancel": true}])" << QStringList{} << QStringList{}
        << "No Model selected";
    QTest::newRow("a user-defined model needs a label")
        << extractionArgs("d", "1", "0", "2", "2 Forward Biased", "'BAV99'", "")
        << R"([{"accept": true}, {"message": "OK"}, {"cancel": true}])" << QStringList{} << QStringList{}
        << "Need User label for this device!";
    QTest::newRow("a user-defined model isn't validated, both names come quoted")
        << extractionArgs("d", "1", "0", "2", "2 Forward Biased", "'BAV99'", "")
        << R"([{"set": "editBoxUser0", "text": "my diode"}, {"inspect": "editBoxUser0"}, )" + ok
        << QStringList{"editBoxUser0.text=my_diode"} << QStringList{"1='BAV99'", "2='my_diode'"} << "";
    QTest::newRow("the picker narrows to one name")
        << extractionArgs("d", "0", "0")
        << R"([{"click": "toolButtonSelectDevice"}, {"wait": "ModelExtractionNewDeviceDialog"},
              {"set": "searchEdit", "text": "4148"}, {"accept": true}, {"wait": "ModelExtractionDiodeDialog"}, )" + ok
        << QStringList{} << QStringList{"1='1N4148'"} << "";
    QTest::newRow("the picker needs a selection")
        << extractionArgs("d", "0", "0")
        << R"([{"click": "toolButtonSelectDevice"}, {"wait": "ModelExtractionNewDeviceDialog"},
              {"set": "searchEdit", "text": "?"}, {"inspect": "listBoxModels"},
              {"set": "searchEdit", "text": "zzz"}, {"accept": true},
              {"message": "OK"}, {"cancel": true}, {"wait": "ModelExtractionDiodeDialog"}, )" + ok
        << QStringList{"listBoxModels.items=1n914?"} << QStringList{"1='1N4007'"} << "No device selected!";
}

void TestModelCreation::modelExtraction()
{
    QFETCH(Args, args);
    QFETCH(QString, steps);
    QFETCH(QStringList, facts);
    QFETCH(QStringList, elements);
    QFETCH(QString, message);

    const Answered run = answer(m_engine, "ModelExtractionDialog", args, steps.toUtf8());
    QVERIFY2(run.ok, qPrintable(run.failure));
    // Facts in order: each names the next inspect line of its object, and
    // facts in a row about one object read the same line.
    const QList<QJsonObject> lines = run.eventsOf(QStringLiteral("inspect"));
    QStringList seen;
    int line = -1;
    QString lastObject;
    QStringList fieldsRead;
    for (const QString& fact : facts) {
        const QString key = fact.section(QLatin1Char('='), 0, 0);
        const QString object = key.section(QLatin1Char('.'), 0, 0);
        const QString field = key.section(QLatin1Char('.'), 1);
        if (line < 0 || object != lastObject || fieldsRead.contains(field)) {
            do
                ++line;
            while (line < lines.size() && lines[line].value(QLatin1String("inspect")).toString() != object);
            fieldsRead.clear();
        }
        lastObject = object;
        fieldsRead << field;
        const QJsonValue value = lines.value(line).value(field);
        seen << key + QLatin1Char('=')
                    + (value.isArray() ? value.toVariant().toStringList().join(QLatin1Char('|'))
                                       : value.toVariant().toString());
    }
    QCOMPARE(seen, facts);
    QCOMPARE(run.result.hasResult, !elements.isEmpty());
    const QStringList result = textsOf(run.result);
    for (const QString& element : elements) {
        const int index = element.section(QLatin1Char('='), 0, 0).toInt();
        QCOMPARE(QString::number(index) + QLatin1Char('=') + result.value(index), element);
    }
    const QStringList boxes = run.messages();
    QCOMPARE(boxes.isEmpty(), message.isEmpty());
    if (!message.isEmpty())
        QCOMPARE(boxes.first().section('|', 0, 0), message);
}

// The history keeps the model just used in front, as many entries as the
// option allows, and only when the option doesn't forbid it.
void TestModelCreation::modelHistory()
{
    Args args = extractionArgs("d", "0", "0", "2", "2 Forward Biased", "'1N4148'");
    args[2] = strings({"d", "", "", "Diode", "a;b;c;1N4148;d;e;f;g;h;i", "TestHistory"});
    struct Case {
        const char* size;
        const char* write; // nullptr: option absent
        const char* expected;
    } cases[] = {
        {"5", nullptr, "1N4148;a;b;c;d"},
        {"0", nullptr, "1N4148;a;b;c;d;e;f;g;h;i"},
        {"5", "0", "unwritten"},
    };
    for (const Case& c : cases) {
        QFile::remove(QDir(vtkit::configDir()).filePath(QStringLiteral("options.ini")));
        QFile::remove(QDir(vtkit::configDir()).filePath(QStringLiteral("config.ini")));
        sp_WriteOption("BRELVONModelExtractionNumModelHistory", c.size);
        if (c.write)
            sp_WriteOption("BRELVONModelExtractionWriteModelHistory", c.write);
        const Answered run = answer(m_engine, "ModelExtractionDialog", args, R"([{"accept": true}])");
        QVERIFY2(run.ok, qPrintable(run.failure));
        char buffer[512] = {};
        const bool found = cfgman_GetConfigSetting("DialogPreferences", "TestHistory", buffer, sizeof buffer, false);
        QCOMPARE(found ? QString::fromLatin1(buffer) : QStringLiteral("unwritten"), QLatin1String(c.expected));
    }
}

QTEST_MAIN(TestModelCreation)
#include "tst_modelcreation.moc"
