// SaveSpecialDialog: where to save a copy of the schematic, and in which
// form. The form's bindings carry the path and the two options; the dialog
// only adds a file browser.
#include "hostsupport.h"
#include "registration.h"

#include "ui_savespecialdialog.h"

#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QLayout>

#include <memory>
#include <new>

class SaveSpecialDialog : public QDialog {
    Q_OBJECT

public:
    SaveSpecialDialog(QWidget* parent, const char* name);
    ~SaveSpecialDialog() override;

public slots:
    void browseButton_clicked();

private:
    std::unique_ptr<Ui::SaveSpecialDialog> m_ui;
};

SaveSpecialDialog::SaveSpecialDialog(QWidget* parent, const char* name)
    : QDialog(parent)
    , m_ui(new Ui::SaveSpecialDialog)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    // The explanations wrap; the window needs their height at its width,
    // which the layout's minimum size doesn't tell (longer translations).
    if (QLayout* l = layout())
        resize(width(), qMax(height(), l->totalHeightForWidth(width())));
    connect(m_ui->browseButton, &QPushButton::clicked, this,
            &SaveSpecialDialog::browseButton_clicked);
}

SaveSpecialDialog::~SaveSpecialDialog() = default;

void SaveSpecialDialog::browseButton_clicked()
{
    const QString schematic = toQs(sp_GetVantrellDefaultExtension("Schematic"));
    const QString component = toQs(sp_GetVantrellDefaultExtension("Component"));
    const QString filter = tr("Schematics (*.%1 *.%2)").arg(schematic, component);

    QFileDialog dialog(this, tr("Save As"), toQs(sp_GetCwd()), filter);
    dialog.setObjectName(QStringLiteral("fileDialogSaveAs"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    if (sp_GetBoolOption("UseNonNativeFileDialog", nullptr))
        dialog.setOption(QFileDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QStringList files = dialog.selectedFiles();
    if (!files.isEmpty())
        m_ui->editBoxPath->setText(QDir::toNativeSeparators(files.first()));
}

namespace {

QDialog* createSaveSpecialDialog(UserFunctionInterface* /*call*/, void* /*unused*/)
{
    return new (std::nothrow) SaveSpecialDialog(nullptr, "SaveSpecialDialog");
}

} // namespace

static const FunctionRegistration registerSaveSpecialDialog("SaveSpecialDialog",
                                                            argLimits(0, 32),
                                                            &createSaveSpecialDialog);

#include "savespecialdialog.moc"
