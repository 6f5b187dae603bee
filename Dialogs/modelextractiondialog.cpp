// ModelExtractionDialog: a BRELVON device model either extracted (for
// bipolar transistors: translated) from an installed SPICE model, or from
// user-defined parameters. The parameter pages come from descriptors; the
// dialog adds the model type, a history of SPICE models, diode and zener
// configurations with pictures, and keeps the initial-condition choices
// consistent when the number of segments changes. Nothing is extracted
// here: every number goes back to the script as a result element.
#include "ParameterPages.h"
#include "dialogcommon.h"
#include "hostsupport.h"
#include "hostwidgets.h"
#include "modelextractionnewdevicedialog.h"
#include "registration.h"

#include "ui_modelextractiondialog.h"

#include <QDialog>
#include <QMessageBox>
#include <QRegularExpressionValidator>
#include <QShowEvent>
#include <QSpacerItem>

#include <algorithm>
#include <array>
#include <functional>
#include <cstdlib>
#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace {

using parameterpages::CaseInsensitiveMap;

const char kPreferences[] = "DialogPreferences";
const char kWriteHistoryOption[] = "BRELVONModelExtractionWriteModelHistory";
const char kHistorySizeOption[] = "BRELVONModelExtractionNumModelHistory";
const int kDefaultHistorySize = 10;
const int kMaxHistorySize = 1000; // a history is a list a person scrolls

const char kExtractedGroup[] = "Extracted model";
const char kUserGroup[] = "User-defined model";
const char kSegmentsKey[] = "Extracted Model_Number of Segments";
const char* const kInitialConditionKeys[] = {
    "Extracted Model_Initial Condition", "Extracted Model_Initial Condition (Diode A)",
    "Extracted Model_Initial Condition (Diode B)", "Extracted Model_Initial Condition (Diode C)",
    "Extracted Model_Initial Condition (Diode D)"};

// The initial conditions offered by each choice of the number of segments.
const char* const kDiodeConditions[] = {"1 Reverse Biased|2 Forward Biased",
                                        "1 Reverse Biased|2 Slightly Forward Biased|3 Forward Biased"};
const char* const kZenerConditions[] = {
    "1 In Zener Avalanche|2 Off|3 Forward Biased",
    "1 In Zener Avalanche|2 At Zener Voltage|3 Off|4 Slightly Forward Biased|5 Forward Biased"};

// Elements of argument 2.
enum Info { InfoKind, InfoLabel, InfoHeadline, InfoDevice, InfoHistory, InfoHistoryKey, InfoHelp };
enum Args { ArgParams, ArgValues, ArgInfo, ArgModels, ArgCount };
const int kExtraElement = 16;

enum class Kind { Diode, Schottky, Jfet, Mos, Igbt, Zener, Bjt, Other };

struct KindInfo {
    const char* word;
    Kind kind;
    const char* objectName;
};
const KindInfo kKinds[] = {
    {"d", Kind::Diode, "ModelExtractionDiodeDialog"},
    {"schottky", Kind::Schottky, "ModelExtractionSchottkyDialog"},
    {"jfet", Kind::Jfet, "ModelExtractionJfetDialog"},
    {"mos", Kind::Mos, "ModelExtractionMosfetDialog"},
    {"igbt", Kind::Igbt, "ModelExtractionIgbtDialog"},
    {"zener", Kind::Zener, "ModelExtractionZenerDialog"},
    {"bjt", Kind::Bjt, "ModelExtractionBjtDialog"},
};

using dialogcommon::leadingInt;

QString withoutQuotes(QString text)
{
    return text.remove(QLatin1Char('\''));
}

} // namespace

class ModelExtractionDialog : public QDialog {
    Q_OBJECT

public:
    ModelExtractionDialog(QWidget* parent, int unused, const char* name);
    ~ModelExtractionDialog() override;

    void load(UserFunctionInterface* call);

public slots:
    void newDevice();
    void pushButtonSave_clicked() {}
    void radioButtonExtract_selected();
    void radioButtonUser_selected();
    void editBoxUser0_textChanged();
    void populateWidgets();
    void init() {}
    void formAccepted();
    void destroy() {}
    bool validateDialogValues();
    void radioGroupConfiguration_Clicked_Diode(int configuration);
    void radioGroupConfiguration_Clicked_Zener(int configuration);
    void comboNumSegments_Changed_Zener(int index);
    void comboIc_Changed_Zener(int index);
    void comboNumSegments_Changed_Diode(int index);
    void comboIc_Changed_Diode();
    void updateDiodeSpinnerVals(const QString& text);
    void runHelp();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QString info(int element) const { return dialogcommon::elementOr(m_args[ArgInfo], element); }
    bool isDiodeLike() const { return m_kind == Kind::Diode || m_kind == Kind::Schottky; }
    // Shows or enables the label, control and unit of group + "_" + name.
    void forParameter(const QString& key, const std::function<void(QWidget*)>& apply) const;

    std::unique_ptr<Ui::ModelExtractionDialog> m_ui;
    QStringList m_args[ArgCount];
    std::vector<QByteArray> m_modelNames; // argument 3, for the picker
    Kind m_kind = Kind::Other;
    int m_helpTopic = -1;

    parameterpages::PageMaps m_groups;
    CaseInsensitiveMap<QWidget*> m_parameterLabels;
    CaseInsensitiveMap<QWidget*> m_parameterControls;
    CaseInsensitiveMap<QWidget*> m_parameterUnits;
    ComboBox* m_segmentsCombo = nullptr;
    std::array<ComboBox*, 5> m_initialConditionCombos{};
    // Per initial-condition combo: the one-based choice in the two-segment
    // list and the one in the three-segment list.
    std::array<std::pair<int, int>, 5> m_initialConditionState{};
    int m_parallelCount = 2;
    int m_seriesCount = 2;
    double m_mismatchVolts = 0.01;
    QStringList m_history;
};

ModelExtractionDialog::ModelExtractionDialog(QWidget* parent, int /*unused*/, const char* name)
    : QDialog(parent)
    , m_ui(new Ui::ModelExtractionDialog)
{
    setObjectName(QString::fromLatin1(name ? name : "ModelExtractionDialog"));
    m_ui->setupUi(this);
    connect(m_ui->radioButtonExtract, &QRadioButton::clicked, this,
            &ModelExtractionDialog::radioButtonExtract_selected);
    connect(m_ui->radioButtonUser, &QRadioButton::clicked, this,
            &ModelExtractionDialog::radioButtonUser_selected);
    connect(m_ui->toolButtonSelectDevice, &QToolButton::clicked, this, &ModelExtractionDialog::newDevice);
    connect(m_ui->editBoxUser0, &QLineEdit::textChanged, this,
            &ModelExtractionDialog::editBoxUser0_textChanged);
    connect(m_ui->extraSpinner, &Spinner::changed, this, &ModelExtractionDialog::updateDiodeSpinnerVals);
    connect(m_ui->okButton, &QPushButton::clicked, this, &ModelExtractionDialog::formAccepted);
    connect(m_ui->helpButton, &QPushButton::clicked, this, &ModelExtractionDialog::runHelp);
}

ModelExtractionDialog::~ModelExtractionDialog() = default;

void ModelExtractionDialog::load(UserFunctionInterface* call)
{
    m_ui->radioGroupModelType->setToolTip(
        tr("\"Extracted\" creates a BRELVON model from the SPICE model.\n"
           "\"User-defined\" creates a model based on user input."));
    const QString modelTip =
        tr("<p>There are three ways to choose the SPICE model:</p>"
           "<p><img src=\":/combo_box_mouse_cursor_transparent.png\"> pick a recently used model "
           "from the list,</p>"
           "<p><img src=\":/select_button_mouse_cursor_transparent.png\"> press \"Select...\" and "
           "choose from all installed models,</p>"
           "<p>or type the name of the model. The name is <b>NOT</b> cap sensitive.</p>");
    m_ui->labelDevice->setToolTip(modelTip);
    m_ui->comboBoxModel->setToolTip(modelTip);
    const QString labelTip = tr("The label may hold only letters, digits and the underscore. It "
                                "describes the device\nand isn't used in simulation.");
    m_ui->labelUser0->setToolTip(labelTip);
    m_ui->editBoxUser0->setToolTip(labelTip);

    parameterpages::readArguments(call, m_args, ArgCount);
    for (const QString& name : m_args[ArgModels])
        m_modelNames.push_back(name.toLatin1());
    const QStringList& values = m_args[ArgValues];
    const QStringList& info = m_args[ArgInfo];

    if (values.size() >= 2 && info.size() >= 5) {
        m_history = info.at(InfoHistory).split(QLatin1Char(';'));
        const QString model = withoutQuotes(values.at(1));
        if (info.at(InfoHistory).isEmpty())
            m_history.clear();
        if (m_history.isEmpty()) {
            m_ui->comboBoxModel->addItem(model);
        } else {
            m_history.removeOne(model);
            m_history.prepend(model);
            if (m_history.size() > kMaxHistorySize)
                m_history.erase(m_history.begin() + kMaxHistorySize, m_history.end());
            m_ui->comboBoxModel->addItems(m_history);
        }
        m_ui->comboBoxModel->setCurrentIndex(0);
    }
    if (values.size() >= 3)
        m_ui->editBoxUser0->setText(withoutQuotes(values.at(2)));

    if (!info.isEmpty()) {
        for (const KindInfo& k : kKinds) {
            if (info.at(InfoKind).compare(QLatin1String(k.word), Qt::CaseInsensitive) == 0) {
                m_kind = k.kind;
                setObjectName(QLatin1String(k.objectName));
            }
        }
        const char* const* pictures = nullptr;
        static const char* const kDiodePictures[] = {":/single_1p0.png", ":/parallel_1p0.png",
                                                     ":/series_1p0.png", ":/bridge_1p0.png"};
        static const char* const kSchottkyPictures[] = {
            ":/schottky_1p0.png", ":/schottky_parallel_1p0.png", ":/schottky_series_1p0.png",
            ":/schottky_bridge_1p0.png"};
        static const char* const kZenerPictures[] = {":/zener_1p0.png", ":/zener_dual_clamp_1p0.png",
                                                     nullptr, nullptr};
        QStringList texts;
        if (isDiodeLike()) {
            pictures = m_kind == Kind::Diode ? kDiodePictures : kSchottkyPictures;
            texts = QStringList{tr("Single"), tr("Parallel"), tr("Series"), tr("Bridge")};
        } else if (m_kind == Kind::Zener) {
            pictures = kZenerPictures;
            texts = QStringList{tr("Single"), tr("Back-to-back zeners")};
            const QList<QWidget*> unused{m_ui->radioButton3, m_ui->radioButton4, m_ui->textLabelRB3,
                                         m_ui->textLabelRB4};
            for (QWidget* w : unused)
                w->hide();
        } else {
            m_ui->radioGroupConfigDiode->hide();
            m_ui->radioGroupConfigDiode->setArgIndex(-1);
            m_ui->radioGroupConfigDiode->setInElementIndex(-1);
            m_ui->radioGroupConfigDiode->setOutElementIndex(-1);
        }
        QRadioButton* buttons[] = {m_ui->radioButton1, m_ui->radioButton2, m_ui->radioButton3,
                                   m_ui->radioButton4};
        QLabel* labels[] = {m_ui->textLabelRB1, m_ui->textLabelRB2, m_ui->textLabelRB3, m_ui->textLabelRB4};
        for (int i = 0; pictures && i < 4; ++i) {
            if (!pictures[i])
                continue;
            const QPixmap picture(QString::fromLatin1(pictures[i]));
            buttons[i]->setIcon(picture);
            buttons[i]->setIconSize(picture.size());
            labels[i]->setText(texts.value(i));
        }
        if (m_kind == Kind::Bjt) {
            m_ui->radioButtonExtract->setText(tr("Translated"));
            m_ui->groupBoxExtract->setTitle(tr("Model translation test conditions"));
            m_ui->radioGroupModelType->setToolTip(
                tr("\"Translated\" creates a BRELVON model from the SPICE model.\n"
                   "\"User-defined\" creates a model based on user input."));
            const QString tip = tr("Choose the SPICE model to translate: pick it from the list, "
                                   "press \"Select...\", or type its name.");
            m_ui->labelDevice->setToolTip(tip);
            m_ui->comboBoxModel->setToolTip(tip);
        }
    }

    // A diode configuration remembers its own count or mismatch.
    if (isDiodeLike() && values.size() > kExtraElement && !values.at(3).isEmpty()) {
        switch (leadingInt(values.at(3))) {
        case 1:
            m_parallelCount = leadingInt(values.at(kExtraElement));
            break;
        case 2:
            m_seriesCount = leadingInt(values.at(kExtraElement));
            break;
        case 3:
            m_mismatchVolts = sp_ConvertEngToReal(values.at(kExtraElement), nullptr);
            break;
        }
    }
    if (info.size() > InfoLabel)
        m_ui->labelTitle->setText(info.at(InfoLabel));
    if (info.size() > InfoDevice)
        setWindowTitle(info.at(InfoDevice));
    m_helpTopic = parameterpages::helpTopicOf(info, InfoHelp);
    if (m_helpTopic < 0)
        m_ui->helpButton->hide();
}

void ModelExtractionDialog::showEvent(QShowEvent* event)
{
    // The script passes back the quoted name it got; show the plain name,
    // as the history lists it.
    const QString model = withoutQuotes(m_ui->comboBoxModel->currentText());
    const int item = m_ui->comboBoxModel->findText(model);
    if (item >= 0)
        m_ui->comboBoxModel->setCurrentIndex(item);
    else
        m_ui->comboBoxModel->setEditText(model);
    populateWidgets();
    radioButtonUser_selected();
    radioButtonExtract_selected();
    // Spaces pass and become underscores as they are typed.
    m_ui->editBoxUser0->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[A-Za-z0-9_ \\-]*")), m_ui->editBoxUser0));

    if (!m_args[ArgInfo].isEmpty()) {
        if (isDiodeLike()) {
            connect(m_ui->radioGroupConfigDiode, &RadioGroup::clicked, this,
                    &ModelExtractionDialog::radioGroupConfiguration_Clicked_Diode);
            if (m_segmentsCombo) {
                connect(m_segmentsCombo, qOverload<int>(&QComboBox::activated), this,
                        &ModelExtractionDialog::comboNumSegments_Changed_Diode);
                for (ComboBox* combo : m_initialConditionCombos)
                    if (combo)
                        connect(combo, qOverload<int>(&QComboBox::activated), this,
                                &ModelExtractionDialog::comboIc_Changed_Diode);
                comboIc_Changed_Diode();
                comboNumSegments_Changed_Diode(m_segmentsCombo->currentIndex());
            }
        } else if (m_kind == Kind::Zener) {
            connect(m_ui->radioGroupConfigDiode, &RadioGroup::clicked, this,
                    &ModelExtractionDialog::radioGroupConfiguration_Clicked_Zener);
            if (m_segmentsCombo && m_initialConditionCombos[0]) {
                comboIc_Changed_Zener(m_initialConditionCombos[0]->currentIndex());
                comboNumSegments_Changed_Zener(m_segmentsCombo->currentIndex());
                connect(m_initialConditionCombos[0], qOverload<int>(&QComboBox::activated), this,
                        &ModelExtractionDialog::comboIc_Changed_Zener);
                connect(m_segmentsCombo, qOverload<int>(&QComboBox::activated), this,
                        &ModelExtractionDialog::comboNumSegments_Changed_Zener);
            }
        }
    }
    if (m_args[ArgValues].size() >= 4 && !m_args[ArgInfo].isEmpty()) {
        const int configuration = leadingInt(m_args[ArgValues].at(3));
        if (isDiodeLike())
            radioGroupConfiguration_Clicked_Diode(configuration);
        else if (m_kind == Kind::Zener)
            radioGroupConfiguration_Clicked_Zener(configuration);
    }
    QDialog::showEvent(event);
    resize(0, 0); // the smallest size that the pages allow
}

void ModelExtractionDialog::populateWidgets()
{
    using parameterpages::ParameterDescriptor;
    using parameterpages::PlacedParameter;
    if (m_args[ArgParams].isEmpty() || m_args[ArgValues].isEmpty())
        return;
    const parameterpages::ParameterPageSpec spec(m_args[ArgParams], m_args[ArgValues]);
    m_groups.storeFormGroup(QLatin1String(kExtractedGroup), m_ui->groupBoxExtract);
    m_groups.storeFormGroup(QLatin1String(kUserGroup), m_ui->groupBoxUser);

    parameterpages::PlacementRules rules;
    rules.firstDescriptor = 1;
    rules.nestedGroupsFirst = true;
    rules.groupKeyWithTab = false;
    rules.nestedKeyWithTab = false;
    rules.nestedGridNameSuffix = QStringLiteral(" Layout");
    rules.ignoreColumn = true;
    rules.separatorPitch = 0;
    rules.placed = [this](const ParameterDescriptor& d, const PlacedParameter& w) {
        const QString key = d.group + QLatin1Char('_') + d.name;
        if (w.label)
            m_parameterLabels[key] = w.label;
        if (w.control)
            m_parameterControls[key] = w.control;
        if (w.unit)
            m_parameterUnits[key] = w.unit;
        if (auto* combo = qobject_cast<ComboBox*>(w.control)) {
            if (key.compare(QLatin1String(kSegmentsKey), Qt::CaseInsensitive) == 0)
                m_segmentsCombo = combo;
            for (size_t i = 0; i < m_initialConditionCombos.size(); ++i)
                if (key.compare(QLatin1String(kInitialConditionKeys[i]), Qt::CaseInsensitive) == 0)
                    m_initialConditionCombos[i] = combo;
        }
        // The extraction needs plain numbers.
        if (auto* spinner = qobject_cast<Spinner*>(w.control))
            if (d.group.compare(QLatin1String(kExtractedGroup), Qt::CaseInsensitive) == 0)
                spinner->setAllowExpressions(false);
    };
    parameterpages::placeParameters(spec, m_groups, rules);
    // Keeps the user-defined page from collapsing around short parameters.
    if (QGridLayout* userGrid = m_groups.groupGrid(QLatin1String(kUserGroup)))
        userGrid->addItem(new QSpacerItem(20, 0, QSizePolicy::Fixed, QSizePolicy::Expanding), 100, 0);
}

void ModelExtractionDialog::radioButtonExtract_selected()
{
    if (!m_ui->radioButtonExtract->isChecked())
        return;
    m_ui->widgetStackMain->setCurrentIndex(0);
    if (m_args[ArgInfo].isEmpty()) {
        m_ui->okButton->setText(tr("Ok"));
        return;
    }
    const bool bjt = m_kind == Kind::Bjt;
    m_ui->okButton->setText(bjt ? tr("Translate") : tr("Extract"));
    if (m_args[ArgInfo].size() >= 4)
        setWindowTitle((bjt ? tr("Translate ") : tr("Extract ")) + info(InfoDevice));
}

void ModelExtractionDialog::radioButtonUser_selected()
{
    if (!m_ui->radioButtonUser->isChecked())
        return;
    if (m_args[ArgInfo].size() > InfoDevice)
        setWindowTitle(tr("Edit ") + info(InfoDevice));
    m_ui->widgetStackMain->setCurrentIndex(1);
    m_ui->okButton->setText(tr("Ok"));
}

void ModelExtractionDialog::editBoxUser0_textChanged()
{
    const QString text = m_ui->editBoxUser0->text();
    if (text.contains(QLatin1Char(' ')))
        m_ui->editBoxUser0->setText(QString(text).replace(QLatin1Char(' '), QLatin1Char('_')));
}

void ModelExtractionDialog::newDevice()
{
    ModelExtractionNewDeviceDialog picker(this);
    std::vector<const char*> names;
    names.reserve(m_modelNames.size());
    for (const QByteArray& name : m_modelNames)
        names.push_back(name.constData());
    picker.loadDialog(names.data(), int(names.size()), m_ui->comboBoxModel->currentText());
    if (picker.exec() == QDialog::Accepted) {
        m_ui->comboBoxModel->insertItem(0, picker.selectedDevice());
        m_ui->comboBoxModel->setCurrentIndex(0);
    }
}

void ModelExtractionDialog::forParameter(const QString& key,
                                         const std::function<void(QWidget*)>& apply) const
{
    for (const auto* map : {&m_parameterLabels, &m_parameterControls, &m_parameterUnits}) {
        const auto it = map->find(key);
        if (it != map->end() && it->second)
            apply(it->second);
    }
}

void ModelExtractionDialog::radioGroupConfiguration_Clicked_Diode(int configuration)
{
    Spinner* spinner = m_ui->extraSpinner;
    spinner->setOutElementIndex(kExtraElement);
    switch (configuration) {
    case 0:
        m_ui->extraLabel->hide();
        spinner->hide();
        spinner->setOutElementIndex(-1);
        break;
    case 1:
    case 2:
        m_ui->extraLabel->setText(tr("Number of diodes"));
        spinner->setStep125(false);
        spinner->setMin(1);
        spinner->setValue(configuration == 1 ? m_parallelCount : m_seriesCount);
        break;
    case 3:
        m_ui->extraLabel->setText(tr("Diode mismatch (V)"));
        spinner->setStep125(true);
        spinner->setMin(0);
        spinner->setValue(m_mismatchVolts);
        break;
    }
    if (configuration >= 1 && configuration <= 3) {
        m_ui->extraLabel->show();
        spinner->show();
    }
    // A bridge has one initial condition per diode.
    const bool bridge = configuration == 3;
    for (const char* group : {kExtractedGroup, kUserGroup}) {
        const QString prefix = QLatin1String(group) + QStringLiteral("_Initial Condition");
        forParameter(prefix, [bridge](QWidget* w) { w->setVisible(!bridge); });
        for (const char* diode : {" (Diode A)", " (Diode B)", " (Diode C)", " (Diode D)"})
            forParameter(prefix + QLatin1String(diode), [bridge](QWidget* w) { w->setVisible(bridge); });
    }
}

void ModelExtractionDialog::radioGroupConfiguration_Clicked_Zener(int configuration)
{
    m_ui->extraLabel->hide();
    m_ui->extraSpinner->hide();
    m_ui->extraSpinner->setOutElementIndex(-1);
    if (configuration != 0 && configuration != 1)
        return;
    // Back to back, the forward characteristic is the other zener's.
    for (const char* name : {"User-defined model_Forward voltage", "User-defined model_Forward resistance"})
        forParameter(QLatin1String(name),
                     [configuration](QWidget* w) { w->setEnabled(configuration == 0); });
}

void ModelExtractionDialog::updateDiodeSpinnerVals(const QString& text)
{
    const double value = sp_ConvertEngToReal(text, nullptr);
    const int count = value >= 0 && value < 1e9 ? int(value) : 0;
    if (m_ui->radioButton2->isChecked())
        m_parallelCount = count;
    else if (m_ui->radioButton3->isChecked())
        m_seriesCount = count;
    else if (m_ui->radioButton4->isChecked())
        m_mismatchVolts = value;
}

// The lists differ with the number of segments; the state translates a
// physical condition between them, so "Forward Biased" stays forward biased.
void ModelExtractionDialog::comboNumSegments_Changed_Diode(int index)
{
    const int list = index == 0 ? 0 : 1;
    for (size_t i = 0; i < m_initialConditionCombos.size(); ++i) {
        ComboBox* combo = m_initialConditionCombos[i];
        if (!combo)
            continue;
        combo->clear();
        combo->loadStrings(kDiodeConditions[list]);
        const auto& [two, three] = m_initialConditionState[i];
        combo->setCurrentIndex((list == 0 ? two : three) - 1);
    }
    comboIc_Changed_Diode();
}

void ModelExtractionDialog::comboIc_Changed_Diode()
{
    if (!m_segmentsCombo)
        return;
    const bool twoSegments = m_segmentsCombo->currentIndex() == 0;
    for (size_t i = 0; i < m_initialConditionCombos.size(); ++i) {
        ComboBox* combo = m_initialConditionCombos[i];
        if (!combo)
            continue;
        const int c = combo->currentIndex() + 1;
        auto& [two, three] = m_initialConditionState[i];
        if (twoSegments) {
            two = c;
            if (c == 1)
                three = 1;
            else if (c == 2)
                three = 3;
        } else {
            three = c;
            two = c < 2 ? 1 : 2;
        }
    }
}

void ModelExtractionDialog::comboNumSegments_Changed_Zener(int index)
{
    ComboBox* combo = m_initialConditionCombos[0];
    if (!m_segmentsCombo || !combo)
        return;
    const int list = index == 0 ? 0 : 1;
    combo->clear();
    combo->loadStrings(kZenerConditions[list]);
    const auto& [shortList, longList] = m_initialConditionState[0];
    combo->setCurrentIndex((list == 0 ? shortList : longList) - 1);
    comboIc_Changed_Zener(combo->currentIndex());
}

void ModelExtractionDialog::comboIc_Changed_Zener(int index)
{
    if (!m_segmentsCombo || !m_initialConditionCombos[0])
        return;
    const int c = index + 1;
    auto& [shortList, longList] = m_initialConditionState[0];
    if (m_segmentsCombo->currentIndex() == 0) {
        shortList = c;
        longList = 2 * c - 1;
    } else {
        longList = c;
        shortList = c >= 4 ? 3 : (c == 3 ? 2 : 1);
    }
}

bool ModelExtractionDialog::validateDialogValues()
{
    if (!m_ui->radioButtonExtract->isChecked()) {
        if (!m_ui->editBoxUser0->text().isEmpty())
            return true;
        QMessageBox::critical(this, tr("Need User label for this device!"),
                              tr("All User-defined models must have a label with at least one "
                                 "character.\n\nValid characters include A-Z, a-z, 0-9, _ and -"));
        return false;
    }
    const QString model = withoutQuotes(m_ui->comboBoxModel->currentText());
    for (const QString& installed : m_args[ArgModels])
        if (installed.compare(model, Qt::CaseInsensitive) == 0)
            return true;
    if (model.isEmpty())
        QMessageBox::critical(this, tr("No Model selected"),
                              tr("The \"SPICE Model\" selection box is empty.\n\nPlease select a "
                                 "model using the \"Select...\" button to continue."));
    else
        QMessageBox::critical(
            this, tr("Model %1 not found in libraries").arg(model),
            tr("The model :\n\n%1\n\nwasn't found in any installed libraries. To extract a "
               "BRELVON model,\nthe SPICE model must first be installed in the library "
               "system.\n\nModel files can be installed into the library system by dragging and "
               "dropping\nthe model file into the Vantrell/BRELVON Command Shell.")
                .arg(model));
    return false;
}

void ModelExtractionDialog::formAccepted()
{
    if (!validateDialogValues())
        return;
    const QStringList& info = m_args[ArgInfo];
    bool found = false;
    const bool writeHistory = sp_GetBoolOption(kWriteHistoryOption, &found);
    if (info.size() > InfoHistoryKey && (!found || writeHistory)) {
        const QString model = withoutQuotes(m_ui->comboBoxModel->currentText());
        m_history.removeAll(model);
        m_history.prepend(model);
        int limit = sp_GetIntOption(kHistorySizeOption);
        if (limit <= 0)
            limit = kDefaultHistorySize;
        limit = std::min(limit, kMaxHistorySize);
        if (m_history.size() > limit)
            m_history.erase(m_history.begin() + limit, m_history.end());
        cfgman_WriteConfigSetting(kPreferences, Tocs(info.at(InfoHistoryKey)),
                                  Tocs(m_history.join(QLatin1Char(';'))));
    }
    // The script gets both names quoted, whichever model type was chosen.
    const QString quote = QStringLiteral("'");
    m_ui->editBoxUser0->blockSignals(true);
    m_ui->editBoxUser0->setValidator(nullptr);
    m_ui->editBoxUser0->setText(quote + withoutQuotes(m_ui->editBoxUser0->text()) + quote);
    m_ui->editBoxUser0->blockSignals(false);
    m_ui->comboBoxModel->setEditText(quote + withoutQuotes(m_ui->comboBoxModel->currentText()) + quote);
    accept();
}

void ModelExtractionDialog::runHelp()
{
    parameterpages::runHelpTopic(m_helpTopic);
}

namespace {

QDialog* createModelExtractionDialog(UserFunctionInterface* call, void* /*unused*/)
{
    auto* dialog = new (std::nothrow) ModelExtractionDialog(nullptr, 0, "ModelExtractionDialog");
    if (dialog)
        dialog->load(call);
    return dialog;
}

} // namespace

static const FunctionRegistration registerModelExtractionDialog("ModelExtractionDialog",
                                                                argLimits(0, 32),
                                                                &createModelExtractionDialog);

#include "modelextractiondialog.moc"
