// LoopForgeEditComponentDialog: one block of a LoopForge block diagram (an
// adder, a delay, a converter ...). The block's parameters come from
// descriptors placed into three fixed groups; the dialog knows the block
// pictures and the rules of its two fixed choices, the delay kind and the
// output limit.
#include "ParameterPages.h"
#include "dialogcommon.h"
#include "hostwidgets.h"
#include "registration.h"

#include "ui_loopforgeeditcomponentdialog.h"

#include <QDialog>
#include <QGridLayout>
#include <QIcon>
#include <QPixmap>
#include <QShowEvent>

#include <map>
#include <memory>
#include <new>

namespace {

enum Argument { ArgParams, ArgValues, ArgInfo };
enum InfoElement { InfoHeadline, InfoBlurb, InfoTitle, InfoModel, InfoHelp };

// Descriptors with a fixed role.
enum Descriptor {
    PropagationDelay = 2, // asynchronous delay
    FirstSyncDelay = 3,   // 3 to 5: synchronous delay
    LastSyncDelay = 5,
    FirstLimit = 6, // 6 and 7: the output limit
    LastLimit = 7,
    GainFocus = 9,
    ShiftDirection = 10,
};

// A block's picture, or its up to four symbol pictures (empty: none).
struct BlockType {
    const char* model;
    const char* pictures[4];
};

const BlockType kBlockTypes[] = {
    {"BRELVON_LF_ADDER_32x32", {":/adder_32_0.png", ":/adder_32_1.png", ":/adder_32_2.png"}},
    {"BRELVON_LF_ADDER_32x32x32", {":/adder_32_0.png", ":/adder_32_1.png", ":/adder_32_2.png"}},
    {"BRELVON_LF_SUBTRACTOR_32x32",
     {":/subtractor_32_0.png", ":/subtractor_32_1.png", ":/subtractor_32_2.png",
      ":/subtractor_32_3.png"}},
    {"BRELVON_LF_MULTIPLIER_32x32",
     {":/multiplier_32_0.png", ":/multiplier_32_1.png", ":/multiplier_32_2.png"}},
    {"BRELVON_LF_MULTIPLIER_32x32x32",
     {":/multiplier_32_0.png", ":/multiplier_32_1.png", ":/multiplier_32_2.png"}},
    {"BRELVON_LF_DIVIDER_32x32",
     {":/divider_32_0.png", ":/divider_32_1.png", ":/divider_32_2.png", ":/divider_32_3.png"}},
    {"BRELVON_LF_DATA_REG_32", {":/data_reg_32.png"}},
    {"BRELVON_LF_UNIT_DELAY_32", {":/unit_delay_32.png"}},
    {"BRELVON_LF_LIMITER_32", {":/limiter_32.png"}},
    {"BRELVON_LF_MUX_32_X_2", {":/mux_32_x_2.png"}},
    {"BRELVON_LF_MUX_32_X_3", {":/mux_32_x_3.png"}},
    {"BRELVON_LF_MUX_32_X_4", {":/mux_32_x_4.png"}},
    {"BRELVON_LF_ADC_32", {":/adc_32.png"}},
    {"BRELVON_LF_DAC_32", {":/dac_32.png"}},
    {"BRELVON_LF_SHIFT_RIGHT_32", {":/shift_right_32.png"}},
    {"BRELVON_LF_SHIFT_LEFT_32", {":/shift_left_32.png"}},
    {"BRELVON_LF_GAIN_32", {":/gain_32.png"}},
    {"BRELVON_LF_GLOBAL_CLOCK_BREAKOUT", {":/global_clock_breakout.png"}},
    {"BRELVON_LF_CONSTANT_32", {":/constant_32.png"}},
    {"BRELVON_LF_SHIFT_32", {":/shift_left_32.png"}},
    {"BRELVON_LF_EPWM_BETA_2", {":/epwm_beta1.png"}},
};

const BlockType* blockType(const QString& model)
{
    for (const BlockType& type : kBlockTypes) {
        if (model.compare(QLatin1String(type.model), Qt::CaseInsensitive) == 0)
            return &type;
    }
    return nullptr;
}

bool isModel(const QString& model, const char* name)
{
    return model.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

// Whether a fixed group holds no widget beyond the count its form gave it.
bool holdsOnlyForm(const QWidget* group, int formWidgets)
{
    return group->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).size() <= formWidgets;
}

} // namespace

class LoopForgeEditComponentDialog : public QDialog {
    Q_OBJECT

public:
    explicit LoopForgeEditComponentDialog(QWidget* parent = nullptr, const char* name = nullptr);
    ~LoopForgeEditComponentDialog() override;

    void loadArguments(UserFunctionInterface* call);

public slots:
    void delayRadioGroup_Clicked(int id);
    void outputRadioGroup_Clicked(int id);
    void populateWidgets();
    void accept() override;
    void helpButtonClicked();
    void shiftDirectionCombo_activated(const QString& text);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void applyBlockType();
    void enableDescriptors(int first, int last, bool enabled);
    QWidget* control(int position) const;
    bool hasModel() const { return m_args[ArgInfo].size() > InfoModel; }
    QString model() const { return dialogcommon::elementOr(m_args[ArgInfo], InfoModel); }

    std::unique_ptr<Ui::LoopForgeEditComponentDialog> m_ui;
    parameterpages::PageMaps m_groups;
    std::map<int, QWidget*> m_labels;
    std::map<int, QWidget*> m_controls;
    QStringList m_args[3];
    int m_helpTopic = -1;
    bool m_built = false;
};

LoopForgeEditComponentDialog::LoopForgeEditComponentDialog(QWidget* parent, const char* name)
    : QDialog(parent)
    , m_ui(new Ui::LoopForgeEditComponentDialog)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    m_ui->setupUi(this);
    m_ui->radioGroupDelay->assignIds();
    m_ui->radioGroupOutput->assignIds();
    m_ui->radioGroupSymbolMath->assignIds();
}

LoopForgeEditComponentDialog::~LoopForgeEditComponentDialog() = default;

void LoopForgeEditComponentDialog::loadArguments(UserFunctionInterface* call)
{
    m_ui->editBoxDelayType->hide();
    m_ui->radioButtonDelayAsync->setToolTip(
        tr("Implements a combintorial model where the output voltage changes in response\n"
           "to the input voltage(s) change after a propagation delay."));
    m_ui->radioButtonDelaySync->setToolTip(
        tr("In response to an input voltage change, the output voltage\n"
           "changes after a designated number of clock cycles."));
    m_ui->radioButtonOutputNormal->setToolTip(tr("The full 32 bit signed data is output."));
    m_ui->radioButtonOutputLimit->setToolTip(
        tr("The output is limited to a Signed or Unsigned number\n"
           "with a designated number of bits."));

    parameterpages::readArguments(call, m_args, ArgInfo + 1);
    const QStringList& info = m_args[ArgInfo];
    const QStringList& values = m_args[ArgValues];
    if (hasModel()) {
        m_ui->radioGroupSymbolMath->hide();
        applyBlockType();
        // Each block type keeps a window geometry of its own.
        setObjectName(QStringLiteral("dialog_for_loop_forge_model_") + model());
    }
    m_helpTopic = parameterpages::applyDialogInfo(this, nullptr, m_ui->helpButton, info, InfoTitle,
                                                  -1, InfoHelp);
    if (!values.isEmpty()) {
        const bool async = values.at(0).compare(QLatin1String("'ASYNC'"), Qt::CaseInsensitive) == 0;
        m_ui->radioButtonDelayAsync->setChecked(async);
        m_ui->radioButtonDelaySync->setChecked(!async);
    }
    if (values.size() > 1) {
        const bool normal = values.at(1) == QLatin1String("0");
        m_ui->radioButtonOutputNormal->setChecked(normal);
        m_ui->radioButtonOutputLimit->setChecked(!normal);
    }
}

void LoopForgeEditComponentDialog::applyBlockType()
{
    const BlockType* type = blockType(model());
    if (!type)
        return;
    if (!type->pictures[1]) {
        m_ui->pixmapImage->setPixmap(QPixmap(QLatin1String(type->pictures[0])));
        return;
    }
    // Arithmetic blocks: the user picks one of the symbol pictures.
    m_ui->groupBoxSymbol->hide();
    m_ui->radioGroupSymbolMath->show();
    m_ui->radioGroupSymbolMath->setOutElementIndex(9);
    m_ui->radioGroupSymbolMath->setInElementIndex(9);
    QRadioButton* buttons[] = {m_ui->radioButtonSymbol0, m_ui->radioButtonSymbol1,
                               m_ui->radioButtonSymbol2, m_ui->radioButtonSymbol3};
    for (int i = 0; i < 4; ++i) {
        if (type->pictures[i])
            buttons[i]->setIcon(QIcon(QLatin1String(type->pictures[i])));
        else
            buttons[i]->hide();
    }
}

void LoopForgeEditComponentDialog::showEvent(QShowEvent* event)
{
    if (m_built) {
        QDialog::showEvent(event);
        return;
    }
    m_built = true;
    populateWidgets();

    if (hasModel()) {
        int focus = PropagationDelay;
        if (isModel(model(), "BRELVON_LF_GAIN_32") || isModel(model(), "BRELVON_LF_ADC_32"))
            focus = GainFocus;
        if (QWidget* target = control(focus))
            target->setFocus(Qt::OtherFocusReason);
    }

    // A fixed group that got no descriptor has nothing to show.
    if (holdsOnlyForm(m_ui->groupBoxParams, 0))
        m_ui->groupBoxParams->hide();
    if (holdsOnlyForm(m_ui->radioGroupDelay, 2))
        m_ui->radioGroupDelay->hide();
    if (holdsOnlyForm(m_ui->radioGroupOutput, 2))
        m_ui->radioGroupOutput->hide();

    connect(m_ui->radioGroupDelay, &RadioGroup::clicked, this,
            &LoopForgeEditComponentDialog::delayRadioGroup_Clicked);
    if (hasModel() && !isModel(model(), "BRELVON_LF_DAC_32")) {
        connect(m_ui->radioGroupOutput, &RadioGroup::clicked, this,
                &LoopForgeEditComponentDialog::outputRadioGroup_Clicked);
        outputRadioGroup_Clicked(m_ui->radioButtonOutputLimit->isChecked() ? 1 : 0);
        if (isModel(model(), "BRELVON_LF_SHIFT_LEFT_32")
            || isModel(model(), "BRELVON_LF_SHIFT_RIGHT_32")) {
            if (auto* combo = qobject_cast<ComboBox*>(control(ShiftDirection))) {
                connect(combo, &QComboBox::textActivated, this,
                        &LoopForgeEditComponentDialog::shiftDirectionCombo_activated);
                shiftDirectionCombo_activated(dialogcommon::elementOr(m_args[ArgValues], ShiftDirection));
            }
        }
    }
    delayRadioGroup_Clicked(m_ui->radioButtonDelaySync->isChecked() ? 1 : 0);
    QDialog::showEvent(event);
}

void LoopForgeEditComponentDialog::populateWidgets()
{
    if (m_args[ArgParams].isEmpty() || m_args[ArgValues].isEmpty())
        return;
    const parameterpages::ParameterPageSpec spec(m_args[ArgParams], m_args[ArgValues]);
    const std::pair<const char*, QWidget*> fixed[] = {{"Params", m_ui->groupBoxParams},
                                                      {"Delay", m_ui->radioGroupDelay},
                                                      {"Output", m_ui->radioGroupOutput}};
    for (const auto& [name, group] : fixed)
        m_groups.storeFormGroup(QLatin1String(name), group);
    parameterpages::PlacementRules rules;
    rules.firstDescriptor = 2;
    rules.nestedGroupsFirst = false;
    rules.groupKeyWithTab = false;
    rules.nestedKeyWithTab = false;
    rules.wideSeparatedColumns = false;
    rules.separatorPitch = 0;
    rules.placed = [this](const parameterpages::ParameterDescriptor& d,
                          const parameterpages::PlacedParameter& w) {
        m_labels[d.position] = w.label;
        m_controls[d.position] = w.control;
    };
    parameterpages::placeParameters(spec, m_groups, rules);
}

QWidget* LoopForgeEditComponentDialog::control(int position) const
{
    const auto it = m_controls.find(position);
    return it == m_controls.end() ? nullptr : it->second;
}

void LoopForgeEditComponentDialog::enableDescriptors(int first, int last, bool enabled)
{
    for (int position = first; position <= last; ++position) {
        for (const std::map<int, QWidget*>* widgets : {&m_labels, &m_controls}) {
            const auto it = widgets->find(position);
            if (it != widgets->end() && it->second)
                it->second->setEnabled(enabled);
        }
    }
}

// The asynchronous delay uses the propagation delay, the synchronous one
// the clock settings.
void LoopForgeEditComponentDialog::delayRadioGroup_Clicked(int id)
{
    if (m_args[ArgValues].size() < 6)
        return;
    enableDescriptors(FirstSyncDelay, LastSyncDelay, id != 0);
    enableDescriptors(PropagationDelay, PropagationDelay, id == 0);
}

void LoopForgeEditComponentDialog::outputRadioGroup_Clicked(int id)
{
    if (m_args[ArgValues].size() < 8)
        return;
    enableDescriptors(FirstLimit, LastLimit, id != 0);
}

void LoopForgeEditComponentDialog::shiftDirectionCombo_activated(const QString& text)
{
    if (!qobject_cast<ComboBox*>(control(ShiftDirection)))
        return;
    if (text == QLatin1String("Left"))
        m_ui->pixmapImage->setPixmap(QPixmap(QStringLiteral(":/shift_left_32.png")));
    else if (text == QLatin1String("Right"))
        m_ui->pixmapImage->setPixmap(QPixmap(QStringLiteral(":/shift_right_32.png")));
}

void LoopForgeEditComponentDialog::accept()
{
    if (hasModel()) {
        QString delayType;
        if (isModel(model(), "BRELVON_LF_CONSTANT_32")
            || isModel(model(), "BRELVON_LF_GLOBAL_CLOCK_BREAKOUT"))
            delayType = QStringLiteral("0");
        else
            delayType = m_ui->radioButtonDelaySync->isChecked() ? QStringLiteral("'SYNC'")
                                                                : QStringLiteral("'ASYNC'");
        m_ui->editBoxDelayType->setText(delayType);
    }
    QDialog::accept();
}

void LoopForgeEditComponentDialog::helpButtonClicked()
{
    parameterpages::runHelpTopic(m_helpTopic);
}

namespace {

QDialog* createLoopForgeEditComponentDialog(UserFunctionInterface* call, void* /*unused*/)
{
    auto* dialog = new (std::nothrow)
        LoopForgeEditComponentDialog(nullptr, "LoopForgeEditComponentDialog");
    if (!dialog)
        return nullptr;
    dialog->loadArguments(call);
    return dialog;
}

} // namespace

static const FunctionRegistration registerLoopForgeEditComponentDialog(
    "LoopForgeEditComponentDialog", argLimits(0, 32), &createLoopForgeEditComponentDialog);

#include "loopforgeeditcomponentdialog.moc"
