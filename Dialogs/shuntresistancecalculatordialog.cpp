#include "shuntresistancecalculatordialog.h"

#include "dialogcommon.h"
#include "hostsupport.h"

#include "ui_shuntresistancecalculatordialog.h"

#include <QByteArray>

#include <cmath>

namespace {

bool isExpressionOrEmpty(const QString& text)
{
    return text.isEmpty() || text.contains(QLatin1Char('{')) || text.contains(QLatin1Char('}'));
}

} // namespace

ShuntResistanceCalculatorDialog::ShuntResistanceCalculatorDialog(QWidget* /*parent*/,
                                                                 const char* name,
                                                                 const QString& inductance,
                                                                 bool inductanceEditable)
    : QDialog(nullptr)
    , m_ui(new Ui::ShuntResistanceCalculatorDialog)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    m_ui->setupUi(this);
    connect(m_ui->okButton, &QPushButton::clicked, this,
            &ShuntResistanceCalculatorDialog::closeDialog);
    connect(m_ui->spinnerF, &Spinner::textChanged, this,
            &ShuntResistanceCalculatorDialog::calculate);
    connect(m_ui->inductance, &Spinner::textChanged, this,
            &ShuntResistanceCalculatorDialog::calculate);
    loadDialog(inductance, inductanceEditable);
}

ShuntResistanceCalculatorDialog::~ShuntResistanceCalculatorDialog() = default;

// Nothing sets the context or connects the button: the calculator has no
// help topic of its own.
void ShuntResistanceCalculatorDialog::runHelp()
{
    dialogcommon::runHelp(m_helpContext);
}

void ShuntResistanceCalculatorDialog::loadDialog(const QString& inductance, bool inductanceEditable)
{
    m_ui->inductance->setEnabled(inductanceEditable);
    m_ui->labelInductance->setEnabled(inductanceEditable);
    m_ui->labelInductanceUnits->setEnabled(inductanceEditable);
    m_ui->inductance->setText(inductance);
    calculate();
}

// The resistance whose magnitude equals the inductor's reactance at F. An
// expression is never evaluated: the last result stands until a number is
// back in the inductance.
void ShuntResistanceCalculatorDialog::calculate()
{
    if (isExpressionOrEmpty(m_ui->inductance->text()))
        return;
    const double inductance = m_ui->inductance->value();
    const double frequency = m_ui->spinnerF->value();
    m_ui->newValue->setValue(std::fabs(frequency) * 6.283185307179586 * inductance);
}

void ShuntResistanceCalculatorDialog::closeDialog()
{
    m_result = m_ui->newValue->text();
    accept();
}
