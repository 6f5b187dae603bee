// ConvergenceDialog: the simulation options that help a run that doesn't
// converge. The dialog knows nothing of the simulator; its one rule is that
// a checked "Default" box disables its field and puts the default back.
#include "dialogcommon.h"
#include "hostsupport.h"
#include "hostwidgets.h"
#include "registration.h"

#include "ui_convergencedialog.h"

#include <QDialog>
#include <QShowEvent>

#include <memory>
#include <new>

namespace {

constexpr double kDefaultAbsoluteCurrentTolerance = 1e-12;
constexpr double kDefaultShuntCapacitance = 0.0;

} // namespace

class ConvergenceDialog : public QDialog {
    Q_OBJECT

public:
    explicit ConvergenceDialog(QWidget* parent = nullptr, const char* name = nullptr);
    ~ConvergenceDialog() override;

    void loadArguments(UserFunctionInterface* call);

public slots:
    virtual void cbDefaultAbsToleranceClicked(bool checked);
    virtual void cbEnableDiscontinuousSlewRateClicked(bool checked);
    virtual void cbDefaultShuntCapacitanceClicked(bool checked);
    virtual void cbDefaultMinTimeStepClicked(bool checked);

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::unique_ptr<Ui::ConvergenceDialog> m_ui;
    double m_defaultMinTimeStep = 0.0; // the script's, from argument 1
};

ConvergenceDialog::ConvergenceDialog(QWidget* parent, const char* name)
    : QDialog(parent), m_ui(new Ui::ConvergenceDialog)
{
    setObjectName(QString::fromLatin1(name ? name : "ConvergenceDialog"));
    m_ui->setupUi(this);
    connect(m_ui->cbDefaultAbsoluteCurrentTolerance, &QCheckBox::clicked, this,
            &ConvergenceDialog::cbDefaultAbsToleranceClicked);
    connect(m_ui->cbEnableDiscontinuousSourceSlewRate, &QCheckBox::clicked, this,
            &ConvergenceDialog::cbEnableDiscontinuousSlewRateClicked);
    connect(m_ui->cbDefaultShuntCapacitance, &QCheckBox::clicked, this,
            &ConvergenceDialog::cbDefaultShuntCapacitanceClicked);
    connect(m_ui->cbDefaultMinTimeStep, &QCheckBox::clicked, this,
            &ConvergenceDialog::cbDefaultMinTimeStepClicked);
}

ConvergenceDialog::~ConvergenceDialog() = default;

void ConvergenceDialog::loadArguments(UserFunctionInterface* call)
{
    const QStringList defaults = dialogcommon::stringArg(call, 1);
    if (!defaults.isEmpty())
        m_defaultMinTimeStep = sp_ConvertEngToReal(defaults.at(0), nullptr);
}

void ConvergenceDialog::cbDefaultAbsToleranceClicked(bool checked)
{
    m_ui->abstolEdit->setEnabled(!checked);
    if (checked)
        m_ui->abstolEdit->setValue(kDefaultAbsoluteCurrentTolerance);
}

// "Disable" checked means no slew rate is applied; the rate itself stays.
void ConvergenceDialog::cbEnableDiscontinuousSlewRateClicked(bool checked)
{
    m_ui->discontinuousSourceSlewRateEdit->setEnabled(!checked);
}

void ConvergenceDialog::cbDefaultShuntCapacitanceClicked(bool checked)
{
    m_ui->shuntCapacitanceEdit->setEnabled(!checked);
    m_ui->cbApplyShuntCapacitanceGlobally->setEnabled(!checked);
    if (checked)
        m_ui->shuntCapacitanceEdit->setValue(kDefaultShuntCapacitance);
}

void ConvergenceDialog::cbDefaultMinTimeStepClicked(bool checked)
{
    m_ui->minTimeStepEdit->setEnabled(!checked);
    if (checked)
        m_ui->minTimeStepEdit->setValue(m_defaultMinTimeStep);
}

void ConvergenceDialog::showEvent(QShowEvent* event)
{
    // The binding has run: the fields follow the loaded boxes.
    cbDefaultAbsToleranceClicked(m_ui->cbDefaultAbsoluteCurrentTolerance->isChecked());
    cbEnableDiscontinuousSlewRateClicked(m_ui->cbEnableDiscontinuousSourceSlewRate->isChecked());
    cbDefaultShuntCapacitanceClicked(m_ui->cbDefaultShuntCapacitance->isChecked());
    cbDefaultMinTimeStepClicked(m_ui->cbDefaultMinTimeStep->isChecked());
    QDialog::showEvent(event);
}

namespace {

QDialog* createConvergenceDialog(UserFunctionInterface* call, void* /*unused*/)
{
    auto* dialog = new (std::nothrow) ConvergenceDialog(nullptr, "ConvergenceDialog");
    if (!dialog)
        return nullptr;
    dialog->loadArguments(call);
    return dialog;
}

} // namespace

static const FunctionRegistration registerConvergenceDialog("ConvergenceDialog", argLimits(0, 32),
                                                            &createConvergenceDialog);

#include "convergencedialog.moc"
