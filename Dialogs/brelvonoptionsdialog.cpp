// BrelvonOptionsDialog: the stored defaults of model extraction for six
// device kinds, and the options of creating ASCII models and symbols. The
// script passes each device's current settings and its factory defaults;
// the dialog writes the options itself on Ok and returns no values.
//
// A setting equal to its factory default is written as false, not as a
// number: a later change of the factory default then reaches everybody who
// never changed that setting.
#include "dialogcommon.h"
#include "hostsupport.h"
#include "hostwidgets.h"
#include "registration.h"

#include "ui_brelvonoptionsdialog.h"

#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QRadioButton>
#include <QShowEvent>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <new>

namespace {

const char kOptionPrefix[] = "BRELVONModelExtraction";
const char kNoCheckDotInclude[] = "BRELVONCreateASCIIModelNoCheckDotInclude";
const char kNoDotPrint[] = "BRELVONCreateASCIIModelNoDotPrint";
const char kNoDotGraph[] = "BRELVONCreateASCIIModelNoDotGraph";
const char kSymbolLibrary[] = "BRELVONCreateASCIIModelSymbolLibrary";
const char kSymbolCategory[] = "BRELVONCreateASCIIModelSymbolCategory";
const char kNonNativeFileDialog[] = "UseNonNativeFileDialog";
const char kDefaultCategory[] = "Vendor;PSU Controllers";

const int kHelpTopicsArg = 12;
const double kUnchanged = 1e-10;

// One device kind: the argument of its current settings (its defaults are
// the next one), and per element the control's object name and the option.
// Element 0 is the "extracted" (or "translated") radio button.
struct Device {
    const char* title;
    int currentArg;
    const char* userButton;
    std::initializer_list<const char*> controls;
    std::initializer_list<const char*> options;
};

// The zener's options stand in a different order from its elements, and
// values are written by position: element 4 (the segments) goes to
// "ZenerDefaultLimitMaxRoff". Scripts read them back that way.
const Device kDevices[] = {
    {"Diode", 0, "radioButtonDiodeUser",
     {"radioButtonDiodeExtracted", "checkBoxCopyDiode", "spinnerDIODEIdPeak", "spinnerDIODEVdPeak",
      "spinnerDIODETemp", "spinnerDIODELevel", "spinnerDIODENseg", "groupBoxDIODELimitMaxROFF",
      "spinnerDIODEMaxROFF", "checkBoxDIODEDebug"},
     {"DiodeUseExtractedModel", "DiodeDontOverWriteUserParams", "DiodeDefaultIdPeak",
      "DiodeDefaultVdPeak", "DiodeDefaultTemp", "DiodeDefaultLevel", "DiodeNumSeg",
      "DiodeDefaultLimitMaxRoff", "DiodeDefaultMaxRoff", "DiodeDebug"}},
    {"MOSFET", 2, "radioButtonMosUser",
     {"radioButtonMosExtracted", "checkBoxCopyMos", "spinnerMosIdPeak", "spinnerMosVdPeak",
      "spinnerMosVgsOn", "spinnerMosModelLevel", "spinnerMosTemp", "groupBoxMosLimitMaxROFF",
      "spinnerMosMaxROFF", "spinnerMosNseg", "checkBoxMosDebug", "spinnerMosKP1", "spinnerMosKP2",
      "spinnerMosPMax"},
     {"MosUseExtractedModel", "MosDontOverWriteUserParams", "MosDefaultIdPeak", "MosDefaultVdPeak",
      "MosDefaultVgson", "MosDefaultLevel", "MosDefaultTemp", "MosDefaultLimitMaxRoff",
      "MosDefaultMaxRoff", "MosBDNumSeg", "MosDebug", "MosKp1", "MosKp2", "MosMaxPower"}},
    {"IGBT", 4, "radioButtonIGBTUser",
     {"radioButtonIGBTExtracted", "checkBoxCopyIGBT", "spinnerIGBTIcePeak", "spinnerIGBTVcePeak",
      "spinnerIGBTVgeon", "spinnerIGBTModelLevel", "spinnerIGBTTemp", "groupBoxIGBTLimitMaxROFF",
      "spinnerIGBTMaxROFF", "spinnerIGBTNseg", "checkBoxIGBTDebug", "spinnerIGBTKP1",
      "spinnerIGBTKP2", "spinnerIGBTPMax"},
     {"IgbtUseExtractedModel", "IgbtDontOverWriteUserParams", "IgbtDefaultIcePeak",
      "IgbtDefaultVdPeak", "IgbtDefaultVgson", "IgbtDefaultLevel", "IgbtDefaultTemp",
      "IgbtDefaultLimitMaxRoff", "IgbtDefaultMaxRoff", "IgbtBDNumSeg", "IgbtDebug", "IgbtKp1",
      "IgbtKp2", "IgbtMaxPower"}},
    {"JFET", 6, "radioButtonJFETUser",
     {"radioButtonJFETExtracted", "checkBoxCopyJfet", "spinnerJFETIdPeak", "spinnerJFETVdPeak",
      "spinnerJFETVgsOff", "spinnerJFETModelLevel", "spinnerJFETTemp", "groupBoxJFETLimitMaxROFF",
      "spinnerJFETMaxROFF", "checkBoxJFETDebug", "spinnerJFETKP1", "spinnerJFETKP2",
      "spinnerJFETPMax"},
     {"JfetUseExtractedModel", "JfetDontOverWriteUserParams", "JfetDefaultIdPeak",
      "JfetDefaultVdPeak", "JfetDefaultVgsoff", "JfetDefaultLevel", "JfetDefaultTemp",
      "JfetDefaultLimitMaxRoff", "JfetDefaultMaxRoff", "JfetDebug", "JfetKp1", "JfetKp2",
      "JfetMaxPower"}},
    {"Zener", 8, "radioButtonZenerUser",
     {"radioButtonZenerExtracted", "checkBoxCopyZener", "spinnerZenerTestCurrent",
      "spinnerZenerTemp", "comboBoxZenerNseg", "groupBoxZenerLimitMaxROFF", "spinnerZenerMaxROFF",
      "checkBoxZenerDebug"},
     {"ZenerUseExtractedModel", "ZenerDontOverWriteUserParams", "ZenerDefaultIzTest",
      "ZenerDefaultTemp", "ZenerDefaultLimitMaxRoff", "ZenerDefaultMaxRoff", "ZenerNumSeg",
      "ZenerDebug"}},
    {"BJT", 10, "radioButtonBJTUser",
     {"radioButtonBJTTranslated", "checkBoxCopyBJT", "spinnerBJTIcePeak", "spinnerBJTModelLevel",
      "checkBoxBJTDebug"},
     {"BjtUseTranslatedModel", "BjtDontOverWriteUserParams", "BjtDefaultIcePeak",
      "BjtDefaultLevel", "BjtDebug"}},
};
enum DeviceIndex { Diode, Mos, Igbt, Jfet, Zener, Bjt };

using dialogcommon::leadingInt;

// The zener's segment count shows as "3 Segment Zener" for anything below 5.
void setZenerSegments(QComboBox* box, const QString& text)
{
    box->setCurrentIndex(leadingInt(text) < 5 ? 0 : 1);
}

} // namespace

class BrelvonOptionsDialog : public QDialog {
    Q_OBJECT

public:
    explicit BrelvonOptionsDialog(UserFunctionInterface* call);
    ~BrelvonOptionsDialog() override;

public slots:
    void advMOSButtonClicked(bool shown);
    void advJFETButtonClicked(bool shown);
    void advIGBTButtonClicked(bool shown);
    void tbResetDIODEToDefaultsClicked() { resetDevice(Diode); }
    void tbResetMOSToDefaultsClicked() { resetDevice(Mos); }
    void tbResetJFETToDefaultsClicked() { resetDevice(Jfet); }
    void tbResetIGBTToDefaultsClicked() { resetDevice(Igbt); }
    void tbResetZenerToDefaultsClicked() { resetDevice(Zener); }
    void tbResetBjtToDefaultsClicked() { resetDevice(Bjt); }
    void writeDiodeOptions() { writeDevice(Diode); }
    void writeMosOptions() { writeDevice(Mos); }
    void writeIgbtOptions() { writeDevice(Igbt); }
    void writeJfetOptions() { writeDevice(Jfet); }
    void writeZenerOptions() { writeDevice(Zener); }
    void writeBjtOptions() { writeDevice(Bjt); }
    void formAccepted();
    void runHelp();
    void tabWidgetModelExtraction_tabChanged();
    void pushButtonBrowseSymbolLib_Clicked();
    void tabWidgetMain_tabChanged();
    void writeASCIIModelOptions();
    void initializeASCIIModelCreationControls();
    void saveSymbolRadioButtonGlobal_Clicked();
    void saveSymbolRadioButtonLocal_Clicked();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void showAdvanced(QToolButton* button, QWidget* group, bool shown);
    void resetDevice(int device);
    void writeDevice(int device);
    QWidget* control(const char* name) const;
    QString helpTopic() const;

    std::unique_ptr<Ui::BrelvonOptionsDialog> m_ui;
    QStringList m_args[kHelpTopicsArg + 1]; // current and default arrays, help topics
};

BrelvonOptionsDialog::BrelvonOptionsDialog(UserFunctionInterface* call)
    : QDialog(nullptr)
    , m_ui(new Ui::BrelvonOptionsDialog)
{
    setObjectName(QStringLiteral("BrelvonOptionsDialog"));
    m_ui->setupUi(this);

    connect(m_ui->pushButtonOk, &QPushButton::clicked, this, &BrelvonOptionsDialog::formAccepted);
    connect(m_ui->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_ui->helpButton, &QPushButton::clicked, this, &BrelvonOptionsDialog::runHelp);
    connect(m_ui->tbShowHideMosAdvOptions, &QToolButton::toggled, this,
            &BrelvonOptionsDialog::advMOSButtonClicked);
    connect(m_ui->tbShowHideJFETAdvOptions, &QToolButton::toggled, this,
            &BrelvonOptionsDialog::advJFETButtonClicked);
    connect(m_ui->tbShowHideIGBTAdvOptions, &QToolButton::toggled, this,
            &BrelvonOptionsDialog::advIGBTButtonClicked);
    connect(m_ui->tbResetDIODEToDefaults, &QToolButton::clicked, this,
            &BrelvonOptionsDialog::tbResetDIODEToDefaultsClicked);
    connect(m_ui->tbResetMosToDefaults, &QToolButton::clicked, this,
            &BrelvonOptionsDialog::tbResetMOSToDefaultsClicked);
    connect(m_ui->tbResetJFETToDefaults, &QToolButton::clicked, this,
            &BrelvonOptionsDialog::tbResetJFETToDefaultsClicked);
    connect(m_ui->tbResetIGBTToDefaults, &QToolButton::clicked, this,
            &BrelvonOptionsDialog::tbResetIGBTToDefaultsClicked);
    connect(m_ui->tbResetZenerToDefaults, &QToolButton::clicked, this,
            &BrelvonOptionsDialog::tbResetZenerToDefaultsClicked);
    connect(m_ui->tbResetBJTToDefaults, &QToolButton::clicked, this,
            &BrelvonOptionsDialog::tbResetBjtToDefaultsClicked);
    connect(m_ui->tabWidgetMain, &QTabWidget::currentChanged, this,
            &BrelvonOptionsDialog::tabWidgetMain_tabChanged);
    connect(m_ui->tabWidgetModelExtract, &QTabWidget::currentChanged, this,
            &BrelvonOptionsDialog::tabWidgetModelExtraction_tabChanged);
    connect(m_ui->pushButtonBrowseSymbolLib, &QToolButton::clicked, this,
            &BrelvonOptionsDialog::pushButtonBrowseSymbolLib_Clicked);
    connect(m_ui->radioButtonSymbolGlobal, &QRadioButton::clicked, this,
            &BrelvonOptionsDialog::saveSymbolRadioButtonGlobal_Clicked);
    connect(m_ui->radioButtonSymbolLocal, &QRadioButton::clicked, this,
            &BrelvonOptionsDialog::saveSymbolRadioButtonLocal_Clicked);
    // Commenting out the print statements comments out the graph ones too.
    connect(m_ui->checkBoxASCIINoPrint, &QCheckBox::toggled, m_ui->checkBoxASCIINoGraph,
            &QCheckBox::setChecked);
    connect(m_ui->checkBoxASCIINoPrint, &QCheckBox::toggled, m_ui->checkBoxASCIINoGraph,
            &QCheckBox::setDisabled);

    advMOSButtonClicked(false);
    advJFETButtonClicked(false);
    advIGBTButtonClicked(false);
    for (int arg = 0; arg <= kHelpTopicsArg; ++arg)
        m_args[arg] = dialogcommon::stringArg(call, arg);
    for (const Device& device : kDevices) {
        const bool extracted =
            sp_ConvertEngToReal(dialogcommon::elementOr(m_args[device.currentArg], 0), nullptr) != 0.0;
        if (auto* button = findChild<QRadioButton*>(QLatin1String(*device.controls.begin())))
            button->setChecked(extracted);
        if (auto* button = findChild<QRadioButton*>(QLatin1String(device.userButton)))
            button->setChecked(!extracted);
    }
}

BrelvonOptionsDialog::~BrelvonOptionsDialog() = default;

void BrelvonOptionsDialog::showEvent(QShowEvent* event)
{
    tabWidgetMain_tabChanged();
    setZenerSegments(m_ui->comboBoxZenerNseg, dialogcommon::elementOr(m_args[kDevices[Zener].currentArg], 4));
    m_ui->groupBoxBJTDebug->hide();
    initializeASCIIModelCreationControls();
    QDialog::showEvent(event);
    resize(0, 0); // the smallest size that the pages allow
}

void BrelvonOptionsDialog::showAdvanced(QToolButton* button, QWidget* group, bool shown)
{
    group->setVisible(shown);
    button->setText(shown ? tr("Hide Advanced Options") : tr("Show Advanced Options"));
}

void BrelvonOptionsDialog::advMOSButtonClicked(bool shown)
{
    showAdvanced(m_ui->tbShowHideMosAdvOptions, m_ui->groupBoxAdvOptMos, shown);
}

void BrelvonOptionsDialog::advJFETButtonClicked(bool shown)
{
    showAdvanced(m_ui->tbShowHideJFETAdvOptions, m_ui->groupBoxAdvOptJFET, shown);
}

void BrelvonOptionsDialog::advIGBTButtonClicked(bool shown)
{
    showAdvanced(m_ui->tbShowHideIGBTAdvOptions, m_ui->groupBoxAdvOptIGBT, shown);
}

QWidget* BrelvonOptionsDialog::control(const char* name) const
{
    return findChild<QWidget*>(QLatin1String(name));
}

void BrelvonOptionsDialog::resetDevice(int index)
{
    const Device& device = kDevices[index];
    const QStringList& defaults = m_args[device.currentArg + 1];
    if (defaults.size() < int(device.controls.size()))
        return;
    int element = 0;
    for (const char* name : device.controls) {
        const QString text = defaults.at(element++);
        QWidget* widget = control(name);
        if (auto* spinner = qobject_cast<Spinner*>(widget)) {
            spinner->setText(text);
        } else if (auto* radio = qobject_cast<QRadioButton*>(widget)) {
            const bool extracted = sp_ConvertEngToReal(text, nullptr) != 0.0;
            radio->setChecked(extracted);
            if (auto* user = findChild<QRadioButton*>(QLatin1String(device.userButton)))
                user->setChecked(!extracted);
        } else if (auto* check = qobject_cast<QCheckBox*>(widget)) {
            check->setChecked(leadingInt(text) != 0);
        } else if (auto* group = qobject_cast<QGroupBox*>(widget)) {
            // The reset only asks that the element exists: the limit is on.
            group->setChecked(true);
        } else if (auto* box = qobject_cast<QComboBox*>(widget)) {
            setZenerSegments(box, text);
        }
    }
}

void BrelvonOptionsDialog::writeDevice(int index)
{
    const Device& device = kDevices[index];
    const QStringList& defaults = m_args[device.currentArg + 1];
    auto option = device.options.begin();
    int element = 0;
    for (const char* name : device.controls) {
        QWidget* widget = control(name);
        double value = 0.0;
        if (auto* spinner = qobject_cast<Spinner*>(widget))
            value = spinner->value();
        else if (auto* button = qobject_cast<QAbstractButton*>(widget))
            value = button->isChecked() ? 1.0 : 0.0;
        else if (auto* group = qobject_cast<QGroupBox*>(widget))
            value = group->isChecked() ? 1.0 : 0.0;
        else if (auto* box = qobject_cast<QComboBox*>(widget))
            value = box->currentText().left(1).toInt(); // "3 Segment Zener" is 3
        // A default the script left out reads as an empty text does: 0.
        const double factory =
            sp_ConvertEngToReal(dialogcommon::elementOr(defaults, element++), nullptr);
        const YString key = YString(kOptionPrefix).concat(*option++);
        if (std::fabs(value - factory) > kUnchanged)
            sp_WriteOption(key, sp_ConvertRealToJSEng(value, 6, false));
        else
            sp_WriteOption(key, false);
    }
}

void BrelvonOptionsDialog::formAccepted()
{
    for (int device = Diode; device <= Bjt; ++device)
        writeDevice(device);
    writeASCIIModelOptions();
    accept();
}

QString BrelvonOptionsDialog::helpTopic() const
{
    return dialogcommon::elementOr(m_args[kHelpTopicsArg], m_ui->tabWidgetModelExtract->currentIndex());
}

void BrelvonOptionsDialog::runHelp()
{
    dialogcommon::runHelp(helpTopic());
}

void BrelvonOptionsDialog::tabWidgetModelExtraction_tabChanged()
{
    const QString topic = helpTopic();
    m_ui->helpButton->setVisible(!topic.isEmpty() && leadingInt(topic) >= 0);
}

void BrelvonOptionsDialog::tabWidgetMain_tabChanged()
{
    if (m_ui->tabWidgetMain->currentIndex() == 1)
        m_ui->helpButton->hide();
    else
        tabWidgetModelExtraction_tabChanged();
}

void BrelvonOptionsDialog::pushButtonBrowseSymbolLib_Clicked()
{
    bool found = false;
    const bool nonNative = sp_GetBoolOption(kNonNativeFileDialog, &found);
    const QString filter = tr("Symbol Libraries (*.%1)")
                               .arg(toQs(sp_GetVantrellDefaultExtension("Symbol")));
    const QString name = QFileDialog::getSaveFileName(
        this, tr("Save As"), m_ui->editBoxSymbolLibFileName->text(), filter, nullptr,
        nonNative ? QFileDialog::DontUseNativeDialog : QFileDialog::Options());
    if (!name.isEmpty())
        m_ui->editBoxSymbolLibFileName->setText(QDir::toNativeSeparators(name));
}

void BrelvonOptionsDialog::initializeASCIIModelCreationControls()
{
    m_ui->checkBoxASCIIDontInclude->setChecked(sp_GetBoolOption(kNoCheckDotInclude, nullptr));
    // The graph box first: checking the print box then checks and locks it.
    m_ui->checkBoxASCIINoGraph->setChecked(sp_GetBoolOption(kNoDotGraph, nullptr));
    m_ui->checkBoxASCIINoPrint->setChecked(sp_GetBoolOption(kNoDotPrint, nullptr));

    const QString library = toQs(sp_GetStringOption(kSymbolLibrary));
    m_ui->editBoxSymbolLibFileName->setText(library);
    m_ui->radioButtonSymbolGlobal->setChecked(!library.isEmpty());
    m_ui->radioButtonSymbolLocal->setChecked(library.isEmpty());
    saveSymbolRadioButtonGlobal_Clicked();

    const QString category = toQs(sp_GetStringOption(kSymbolCategory));
    m_ui->comboBoxSymbolCategory->setEditText(category.isEmpty() ? QString::fromLatin1(kDefaultCategory)
                                                                 : category);
}

void BrelvonOptionsDialog::writeASCIIModelOptions()
{
    sp_WriteOption(kNoCheckDotInclude, m_ui->checkBoxASCIIDontInclude->isChecked());
    sp_WriteOption(kNoDotPrint, m_ui->checkBoxASCIINoPrint->isChecked());
    sp_WriteOption(kNoDotGraph, m_ui->checkBoxASCIINoGraph->isChecked());

    const QString library = m_ui->editBoxSymbolLibFileName->text();
    if (m_ui->radioButtonSymbolGlobal->isChecked() && !library.isEmpty())
        sp_WriteOption(kSymbolLibrary, toYs(library));
    else
        sp_WriteOption(kSymbolLibrary, false);

    const QString category = m_ui->comboBoxSymbolCategory->currentText();
    if (category != QLatin1String(kDefaultCategory))
        sp_WriteOption(kSymbolCategory, toYs(category));
    else
        sp_WriteOption(kSymbolCategory, false);
}

void BrelvonOptionsDialog::saveSymbolRadioButtonGlobal_Clicked()
{
    const bool global = m_ui->radioButtonSymbolGlobal->isChecked();
    if (global)
        m_ui->radioButtonSymbolLocal->setChecked(false);
    m_ui->editBoxSymbolLibFileName->setEnabled(global);
    m_ui->pushButtonBrowseSymbolLib->setEnabled(global);
}

void BrelvonOptionsDialog::saveSymbolRadioButtonLocal_Clicked()
{
    const bool local = m_ui->radioButtonSymbolLocal->isChecked();
    if (local)
        m_ui->radioButtonSymbolGlobal->setChecked(false);
    m_ui->editBoxSymbolLibFileName->setEnabled(!local);
    m_ui->pushButtonBrowseSymbolLib->setEnabled(!local);
}

namespace {

QDialog* createBrelvonOptionsDialog(UserFunctionInterface* call, void* /*unused*/)
{
    return new (std::nothrow) BrelvonOptionsDialog(call);
}

} // namespace

static const FunctionRegistration registerBrelvonOptionsDialog("BrelvonOptionsDialog",
                                                               argLimits(0, 32),
                                                               &createBrelvonOptionsDialog);

#include "brelvonoptionsdialog.moc"
