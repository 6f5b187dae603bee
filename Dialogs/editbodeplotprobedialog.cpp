// EditBodePlotProbeDialog: the eleven values of a Bode plot probe in a
// plain bound form. Its only logic keeps the limit fields disabled while
// their auto limits are on.
#include "registration.h"

#include "ui_editbodeplotprobedialog.h"

#include <QDialog>
#include <QShowEvent>

#include <memory>
#include <new>

namespace {

class EditBodePlotProbeDialog : public QDialog {
    Q_OBJECT

public:
    explicit EditBodePlotProbeDialog(QWidget* parent = nullptr, const char* name = nullptr)
        : QDialog(parent)
        , m_ui(new Ui::EditBodePlotProbeDialog)
    {
        if (name)
            setObjectName(QString::fromLatin1(name));
        m_ui->setupUi(this);
        setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
        connect(m_ui->cbDbAutoLimits, &QCheckBox::clicked, this,
                &EditBodePlotProbeDialog::cbDbAutoLimits_clicked);
        connect(m_ui->cbPhaseAutoLimits, &QCheckBox::clicked, this,
                &EditBodePlotProbeDialog::cbPhaseAutoLimits_clicked);
    }

public slots:
    void cbDbAutoLimits_clicked()
    {
        const bool manual = !m_ui->cbDbAutoLimits->isChecked();
        for (QWidget* w : {static_cast<QWidget*>(m_ui->dbMinLimitEdit),
                           static_cast<QWidget*>(m_ui->dbMaxLimitEdit),
                           static_cast<QWidget*>(m_ui->labelDbMinLimit),
                           static_cast<QWidget*>(m_ui->labelDbMaxLimit)})
            w->setEnabled(manual);
    }

    void cbPhaseAutoLimits_clicked()
    {
        const bool manual = !m_ui->cbPhaseAutoLimits->isChecked();
        for (QWidget* w : {static_cast<QWidget*>(m_ui->phaseMinLimitEdit),
                           static_cast<QWidget*>(m_ui->phaseMaxLimitEdit),
                           static_cast<QWidget*>(m_ui->labelPhaseMinLimit),
                           static_cast<QWidget*>(m_ui->labelPhaseMaxLimit)})
            w->setEnabled(manual);
    }

protected:
    // The boxes were loaded from the call after construction.
    void showEvent(QShowEvent* event) override
    {
        cbDbAutoLimits_clicked();
        cbPhaseAutoLimits_clicked();
        QDialog::showEvent(event);
    }

private:
    std::unique_ptr<Ui::EditBodePlotProbeDialog> m_ui;
};

QDialog* createEditBodePlotProbeDialog(UserFunctionInterface* /*call*/, void* /*unused*/)
{
    return new (std::nothrow) EditBodePlotProbeDialog(nullptr, "EditBodePlotProbeDialog");
}

} // namespace

static const FunctionRegistration registerEditBodePlotProbeDialog(
    "EditBodePlotProbeDialog", argLimits(0, 32), &createEditBodePlotProbeDialog);

#include "editbodeplotprobedialog.moc"
