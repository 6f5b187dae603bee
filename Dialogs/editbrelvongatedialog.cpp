// EditBRELVONGateDialog: editor of the advanced digital gate. One form
// serves four gate families; the script passes the texts, limits and help
// topics of each. What the dialog adds is which input counts a family may
// have, and the memory of the counts while the user goes from family to
// family: "AND / NAND" and "OR / NOR" share their counts until one of them
// is changed.
#include "dialogcommon.h"
#include "hostsupport.h"
#include "hostwidgets.h"
#include "registration.h"

#include "ui_editbrelvongatedialog.h"

#include <QDialog>
#include <QShowEvent>

#include <cmath>
#include <memory>
#include <new>
#include <vector>

namespace {

enum GateType { AndNand = 0, OrNor = 1, XorXnor = 2, InverterBuffer = 3 };

constexpr int kDefaultMaxInputs = 9;
constexpr int kDefaultMinNonInverted = 1;
// A script's limits are clamped to this, so that a count of 1e9 can't
// fill a list box with a billion entries.
constexpr int kInputsCap = 64;
constexpr int kMaxHelpTopics = 4;

// Argument 2, by element.
enum LimitElement {
    ItemsInitialCondition = 0,
    ItemsGroundReference = 1,
    MaxInputs = 2,
    MinNonInverted = 3,
    DelayMin = 4,
    DelayMax = 5,
    WindowTitle = 6,
    HelpTopics = 7,
};

int clampedCount(const QString& text)
{
    const int n = dialogcommon::leadingInt(text);
    return n < 0 ? 0 : n > kInputsCap ? kInputsCap : n;
}

} // namespace

class EditBRELVONGateDialog : public QDialog {
    Q_OBJECT

public:
    explicit EditBRELVONGateDialog(QWidget* parent = nullptr, const char* name = nullptr);
    ~EditBRELVONGateDialog() override;

    void loadArguments(UserFunctionInterface* call);

public slots:
    virtual void numberOfLogicInputsCombo_activated(const QString& text);
    virtual void numberOfInvertedLogicInputsCombo_activated(const QString& text);
    virtual void gateTypeGroup_clicked(int type);
    virtual void helpButton_clicked();

protected:
    void showEvent(QShowEvent* event) override;

private:
    // Inputs -1: the type hasn't been visited.
    struct Counts {
        int inputs = -1;
        int inverted = 0;
    };

    int selectedType() const;
    QString helpTopic(int type) const;

    std::unique_ptr<Ui::EditBRELVONGateDialog> m_ui;
    std::vector<Counts> m_counts;
    int m_maxInputs = kDefaultMaxInputs;
    int m_minNonInverted = kDefaultMinNonInverted;
    int m_loadedType = AndNand;
    // Per gate type, from the script; valid for this call.
    QStringList m_titles;
    QStringList m_descriptions;
    QStringList m_helpTopics;
};

EditBRELVONGateDialog::EditBRELVONGateDialog(QWidget* parent, const char* name)
    : QDialog(parent), m_ui(new Ui::EditBRELVONGateDialog)
{
    setObjectName(QString::fromLatin1(name ? name : "EditBRELVONGateDialog"));
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_counts.resize(static_cast<size_t>(std::max(0, m_ui->gateTypeGroup->count())));

    connect(m_ui->numberOfLogicInputsCombo, &QComboBox::textActivated, this,
            &EditBRELVONGateDialog::numberOfLogicInputsCombo_activated);
    connect(m_ui->numberOfInvertedLogicInputsCombo, &QComboBox::textActivated, this,
            &EditBRELVONGateDialog::numberOfInvertedLogicInputsCombo_activated);
    connect(m_ui->gateTypeGroup, &RadioGroup::clicked, this, &EditBRELVONGateDialog::gateTypeGroup_clicked);
    connect(m_ui->helpButton, &QPushButton::clicked, this, &EditBRELVONGateDialog::helpButton_clicked);
}

EditBRELVONGateDialog::~EditBRELVONGateDialog() = default;

void EditBRELVONGateDialog::loadArguments(UserFunctionInterface* call)
{
    // The three numbers of argument 1 where the form's bindings find them;
    // a missing element reads as -1.
    auto bound = [call](const VT_FunctionDef* widget) {
        const QStringList arg = dialogcommon::stringArg(call, widget->argIndex());
        const int i = widget->inElementIndex();
        return i >= 0 && i < arg.size() ? dialogcommon::leadingInt(arg.at(i)) : -1;
    };
    int type = bound(m_ui->gateTypeGroup);
    int inputs = bound(m_ui->numberOfLogicInputsCombo);
    int inverted = bound(m_ui->numberOfInvertedLogicInputsCombo);

    const QStringList limits = dialogcommon::stringArg(call, 2);
    auto present = [&limits](int i) { return i < limits.size() && !limits.at(i).isEmpty(); };
    if (limits.size() > MaxInputs)
        m_maxInputs = clampedCount(limits.at(MaxInputs));
    if (limits.size() > MinNonInverted)
        m_minNonInverted = clampedCount(limits.at(MinNonInverted));
    if (present(DelayMin)) {
        const double v = sp_ConvertEngToReal(limits.at(DelayMin), nullptr);
        if (std::isfinite(v))
            m_ui->propagationDelayEdit->setMin(v);
    }
    if (present(DelayMax)) {
        const double v = sp_ConvertEngToReal(limits.at(DelayMax), nullptr);
        if (std::isfinite(v))
            m_ui->propagationDelayEdit->setMax(v);
    }
    if (present(WindowTitle))
        setWindowTitle(limits.at(WindowTitle));
    if (limits.size() > HelpTopics)
        m_helpTopics = limits.at(HelpTopics).split(QLatin1Char('|')).mid(0, kMaxHelpTopics);
    m_titles = dialogcommon::stringArg(call, 3);
    m_descriptions = dialogcommon::stringArg(call, 4);

    if (type < 0 || type >= static_cast<int>(m_counts.size()))
        type = AndNand;
    if (inputs < 0 || inputs > m_maxInputs)
        inputs = 2;
    if (inverted < 0 || inverted > inputs - 1)
        inverted = 0;
    if (m_counts.empty())
        return;
    m_loadedType = type;
    m_counts[static_cast<size_t>(type)] = Counts{inputs, inverted};
    m_ui->gateTypeGroup->setButton(type);
    gateTypeGroup_clicked(type);

    const QString omega(QChar(0x03A9));
    m_ui->labelResUnits1->setText(omega);
    m_ui->labelResUnits2->setText(omega);
}

int EditBRELVONGateDialog::selectedType() const
{
    const int type = m_ui->gateTypeGroup->selectedId();
    return type >= 0 && type < static_cast<int>(m_counts.size()) ? type : -1;
}

// The topic list is read as if padded with empty entries up to the type.
QString EditBRELVONGateDialog::helpTopic(int type) const
{
    return dialogcommon::elementOr(m_helpTopics, type);
}

void EditBRELVONGateDialog::gateTypeGroup_clicked(int type)
{
    if (type < 0 || type >= static_cast<int>(m_counts.size()))
        return;
    ComboBox* inputsCombo = m_ui->numberOfLogicInputsCombo;
    ComboBox* invertedCombo = m_ui->numberOfInvertedLogicInputsCombo;
    inputsCombo->clear();
    invertedCombo->clear();
    Counts& counts = m_counts[static_cast<size_t>(type)];

    if (type == InverterBuffer) {
        inputsCombo->addItem(QStringLiteral("1"));
        invertedCombo->addItem(QStringLiteral("0"));
    } else if (type == XorXnor) {
        inputsCombo->addItem(QStringLiteral("2"));
        invertedCombo->addItem(QStringLiteral("0"));
        invertedCombo->addItem(QStringLiteral("1"));
    } else {
        const size_t other = type == AndNand ? OrNor : AndNand;
        if (counts.inputs == -1)
            counts = other < m_counts.size() && m_counts[other].inputs != -1 ? m_counts[other] : Counts{2, 0};
        for (int n = 2; n <= m_maxInputs; ++n)
            inputsCombo->addItem(QString::number(n));
        for (int n = 0; n <= counts.inputs - m_minNonInverted; ++n)
            invertedCombo->addItem(QString::number(n));
        inputsCombo->setCurrentIndex(counts.inputs - 2);
    }

    if (type < m_titles.size())
        m_ui->labelTitle->setText(m_titles.at(type));
    if (type < m_descriptions.size())
        m_ui->labelDescription->setText(m_descriptions.at(type));
    const QString topic = helpTopic(type);
    m_ui->helpButton->setVisible(!topic.isEmpty() && dialogcommon::leadingInt(topic) >= 0);

    invertedCombo->setCurrentIndex(counts.inverted);
    inputsCombo->setEnabled(inputsCombo->count() >= 2);
    invertedCombo->setEnabled(invertedCombo->count() >= 2);
}

void EditBRELVONGateDialog::numberOfLogicInputsCombo_activated(const QString& text)
{
    bool ok = false;
    const int inputs = text.toInt(&ok);
    const int type = selectedType();
    if (!ok || inputs < 0 || inputs > m_maxInputs || type < 0)
        return;
    Counts& counts = m_counts[static_cast<size_t>(type)];
    counts.inputs = inputs;
    counts.inverted = m_ui->numberOfInvertedLogicInputsCombo->currentText().toInt();
    gateTypeGroup_clicked(type);
}

void EditBRELVONGateDialog::numberOfInvertedLogicInputsCombo_activated(const QString& text)
{
    const int type = selectedType();
    if (type < 0)
        return;
    Counts& counts = m_counts[static_cast<size_t>(type)];
    counts.inputs = m_ui->numberOfLogicInputsCombo->currentText().toInt();
    counts.inverted = text.toInt();
}

void EditBRELVONGateDialog::helpButton_clicked()
{
    dialogcommon::runHelp(helpTopic(selectedType()));
}

void EditBRELVONGateDialog::showEvent(QShowEvent* event)
{
    // The ground reference list came with the binding, after the load.
    m_ui->groundReferenceCombo->setEnabled(m_ui->groundReferenceCombo->count() >= 2);
    // A gate type the load put right may have been bound over since.
    if (selectedType() < 0)
        m_ui->gateTypeGroup->setButton(m_loadedType);
    QDialog::showEvent(event);
}

namespace {

QDialog* createEditBRELVONGateDialog(UserFunctionInterface* call, void* /*unused*/)
{
    auto* dialog = new (std::nothrow) EditBRELVONGateDialog(nullptr, "EditBRELVONGateDialog");
    if (!dialog)
        return nullptr;
    dialog->loadArguments(call);
    return dialog;
}

} // namespace

static const FunctionRegistration registerEditBRELVONGateDialog("EditBRELVONGateDialog",
                                                                argLimits(0, 32),
                                                                &createEditBRELVONGateDialog);

#include "editbrelvongatedialog.moc"
