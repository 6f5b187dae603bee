// EditBrelvonMosfetDriverDialog: edits a multi-level MOSFET driver, a
// push-pull output of two switches behind an input comparator. The model
// level decides how the switches are modelled: on/off resistances, with a
// current-limited saturation region, or as 3-segment PWL resistors. The
// form's bindings load and collect the values; the dialog only shows what
// a level needs.
#include "dialogcommon.h"
#include "hostwidgets.h"
#include "parameterisedlevel.h"
#include "registration.h"

#include "ui_editbrelvonmosfetdriverdialog.h"

#include <QCoreApplication>
#include <QDialog>
#include <QShowEvent>

#include <cmath>
#include <new>

namespace {

const char kObjectNameLevel01[] = "EditBrelvonMosfetDriverDialog_Level0-1";
const char kObjectNameLevel2[] = "EditBrelvonMosfetDriverDialog_Level2";
const int kPwlLevel = 2;

// The level a text names: the integer part of its value, within the
// levels there are, so "1.9" is 1 and "99" the top level.
int levelOf(const QString& text)
{
    const double value = sp_ConvertEngToReal(text, nullptr);
    if (!(value > 0))
        return 0;
    return value >= kPwlLevel ? kPwlLevel : int(std::trunc(value));
}

} // namespace

class EditBrelvonMosfetDriverDialog : public QDialog {
    Q_OBJECT

public:
    EditBrelvonMosfetDriverDialog(QWidget* parent, const char* name);
    ~EditBrelvonMosfetDriverDialog() override;

    // Title, help topic and the level's shape, from the call's arguments.
    void load(UserFunctionInterface* call);

public slots:
    void modelLevel_Changed(int level);
    void onradiogroupLevelContextMenu(const QPoint& pos);
    void runHelp();

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::unique_ptr<Ui::EditBrelvonMosfetDriverDialog> m_ui;
    ParameterisedLevel* m_level = nullptr;
    QString m_helpTopic;
    int m_loadedLevel = 0;
    bool m_shown = false;
};

EditBrelvonMosfetDriverDialog::EditBrelvonMosfetDriverDialog(QWidget* /*parent*/,
                                                             const char* name)
    : QDialog(nullptr)
    , m_ui(new Ui::EditBrelvonMosfetDriverDialog)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    const QString omega(QChar(0x03A9));
    for (QLabel* units :
         {m_ui->labelRDSONUnitsHS, m_ui->labelRDSONUnitsLS, m_ui->labelSatRUnitsHS,
          m_ui->labelSatRUnitsLS, m_ui->labelROFFUnitsHS, m_ui->labelROFFUnitsLS,
          m_ui->labelRDSONUnitsHS_L2, m_ui->labelRDSONUnitsLS_L2, m_ui->labelR2UnitsHS_L2,
          m_ui->labelR2UnitsLS_L2, m_ui->labelSatRUnitsHS_L2, m_ui->labelSatRUnitsLS_L2})
        units->setText(omega);

    ParameterisedLevel::Rules rules;
    rules.focusEditor = true;
    rules.resetOnRemove = true;
    m_level = new ParameterisedLevel(m_ui->radiogroupLevel, m_ui->groupBoxParamValue,
                                     m_ui->editboxRadioReturn, rules, this);

    connect(m_ui->radiogroupLevel, &RadioGroup::clicked, this,
            &EditBrelvonMosfetDriverDialog::modelLevel_Changed);
    connect(m_ui->radiogroupLevel, &QWidget::customContextMenuRequested, this,
            &EditBrelvonMosfetDriverDialog::onradiogroupLevelContextMenu);
    connect(m_ui->helpButton, &QPushButton::clicked, this,
            &EditBrelvonMosfetDriverDialog::runHelp);
}

EditBrelvonMosfetDriverDialog::~EditBrelvonMosfetDriverDialog() = default;

void EditBrelvonMosfetDriverDialog::load(UserFunctionInterface* call)
{
    const QStringList header = dialogcommon::stringArg(call, 1);
    if (!header.isEmpty() && !header.first().isEmpty())
        setWindowTitle(header.first());
    if (header.size() < 3)
        m_ui->helpButton->hide();
    else
        m_helpTopic = header.at(2);

    const QString toolTip = QCoreApplication::translate(
        "EditBrelvonMosfetDriverDialog",
        "<b>Level 0</b> models the output switches as simple on/off resistances.<br/><b>Level "
        "1</b> includes the saturation region where switches are current limited.<br/><b>Level "
        "2</b> models the output switches as 3-segment PWL resistors.<br/>Compatible with "
        "Version 8.0+. Click on the <b>Help</b> button for more information.<p>To enter a "
        "expression containing parameter names enclosed in {}, right-click and select the "
        "Parameterize context menu option.</p>");
    m_ui->radiogroupLevel->setToolTip(toolTip);
    for (QWidget* button : {m_ui->radiobutton0, m_ui->radiobutton1, m_ui->radiobutton2})
        button->setToolTip(toolTip);

    const QStringList values = dialogcommon::stringArg(call, 0);
    const QString first = dialogcommon::elementOr(values, 0);
    if (values.isEmpty()) {
        m_loadedLevel = 0;
    } else if (ParameterisedLevel::isExpression(first)) {
        // An expression may stand for any level, so every page it could
        // need is there.
        m_loadedLevel = kPwlLevel;
    } else {
        m_loadedLevel = levelOf(first);
    }
    m_level->setParameterized(!values.isEmpty() && ParameterisedLevel::isExpression(first));
    modelLevel_Changed(m_loadedLevel);
}

// The binding fills the edit box and the radio group from element 0 after
// the factory has returned; a level given as "1.9" or "99" is shown as the
// level it was read as, and an expression selects no button.
void EditBrelvonMosfetDriverDialog::showEvent(QShowEvent* event)
{
    if (!m_shown) {
        m_shown = true;
        if (!ParameterisedLevel::isExpression(m_ui->editboxRadioReturn->text())) {
            m_ui->editboxRadioReturn->setText(QString::number(m_loadedLevel));
            m_ui->radiogroupLevel->setButton(m_loadedLevel);
        }
    }
    QDialog::showEvent(event);
}

void EditBrelvonMosfetDriverDialog::modelLevel_Changed(int level)
{
    m_level->showLevel(level);

    // A page taken out of its stack doesn't count in the window's size; the
    // two object names keep the sizes of the two shapes apart. Widgets on a
    // page that is out keep their values and still go out with the result.
    QStackedWidget* stacks[] = {m_ui->stackedWidgetHS, m_ui->stackedWidgetLS};
    QWidget* pwlPages[] = {m_ui->L2HS, m_ui->L2LS};
    for (int i = 0; i < 2; ++i) {
        const bool present = stacks[i]->indexOf(pwlPages[i]) >= 0;
        if (level == kPwlLevel && !present)
            stacks[i]->insertWidget(1, pwlPages[i]);
        else if (level != kPwlLevel && present)
            stacks[i]->removeWidget(pwlPages[i]);
        stacks[i]->setCurrentIndex(level == kPwlLevel ? 1 : 0);
    }
    setObjectName(QLatin1String(level == kPwlLevel ? kObjectNameLevel2 : kObjectNameLevel01));

    const bool saturation = level == 1;
    for (QWidget* w : {static_cast<QWidget*>(m_ui->labelSatIHS), static_cast<QWidget*>(m_ui->labelSatRHS),
                       static_cast<QWidget*>(m_ui->labelSatILS), static_cast<QWidget*>(m_ui->labelSatRLS),
                       static_cast<QWidget*>(m_ui->spinnerSatIHS), static_cast<QWidget*>(m_ui->spinnerSatRHS),
                       static_cast<QWidget*>(m_ui->spinnerSatILS), static_cast<QWidget*>(m_ui->spinnerSatRLS),
                       static_cast<QWidget*>(m_ui->labelSatRUnitsHS), static_cast<QWidget*>(m_ui->labelSatRUnitsLS),
                       static_cast<QWidget*>(m_ui->labelSatIUnitsHS), static_cast<QWidget*>(m_ui->labelSatIUnitsLS)})
        w->setEnabled(saturation);
    m_ui->groupboxOnStateV->setEnabled(level != kPwlLevel);
}

void EditBrelvonMosfetDriverDialog::onradiogroupLevelContextMenu(const QPoint& pos)
{
    m_level->contextMenu(pos);
}

void EditBrelvonMosfetDriverDialog::runHelp()
{
    dialogcommon::runHelp(m_helpTopic);
}

namespace {

QDialog* createEditBrelvonMosfetDriverDialog(UserFunctionInterface* call, void* /*unused*/)
{
    auto* dialog =
        new (std::nothrow) EditBrelvonMosfetDriverDialog(nullptr, "EditBrelvonMosfetDriverDialog");
    if (!dialog)
        return nullptr;
    dialog->load(call);
    return dialog;
}

} // namespace

static const FunctionRegistration registerEditBrelvonMosfetDriverDialog(
    "EditBrelvonMosfetDriverDialog", argLimits(0, 32), &createEditBrelvonMosfetDriverDialog);

#include "editbrelvonmosfetdriverdialog.moc"
