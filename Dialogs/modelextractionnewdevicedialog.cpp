#include "modelextractionnewdevicedialog.h"

#include "hostwidgets.h"

#include "ui_modelextractionnewdevicedialog.h"

#include <QMessageBox>

ModelExtractionNewDeviceDialog::ModelExtractionNewDeviceDialog(QWidget* parent, const char* name)
    : QDialog(parent)
    , m_ui(new Ui::ModelExtractionNewDeviceDialog)
{
    setObjectName(name ? QString::fromLatin1(name) : QStringLiteral("ModelExtractionNewDeviceDialog"));
    m_ui->setupUi(this);
    connect(m_ui->searchEdit, &QLineEdit::textChanged, this,
            &ModelExtractionNewDeviceDialog::searchEdit_textChanged2);
    connect(m_ui->okButton, &QPushButton::clicked, this, &ModelExtractionNewDeviceDialog::formAccepted);
}

ModelExtractionNewDeviceDialog::~ModelExtractionNewDeviceDialog() = default;

void ModelExtractionNewDeviceDialog::loadDialog(const char* const* names, int count, const QString& current)
{
    const QByteArray wanted = current.toUtf8();
    for (int i = 0; names && i < count; ++i) {
        const char* name = names[i] ? names[i] : "";
        m_ui->listBoxModels->addItem(QString::fromUtf8(name));
        m_modelNames.push_back(name);
        if (wanted == name)
            m_ui->listBoxModels->item(m_ui->listBoxModels->count() - 1)->setSelected(true);
    }
    m_ui->searchEdit->selectAll();
    m_ui->searchEdit->setFocus(Qt::OtherFocusReason);
}

// A plain substring search, ignoring case; "*" alone shows every name, but
// otherwise wildcards are the characters they are.
void ModelExtractionNewDeviceDialog::searchEdit_textChanged2()
{
    ListBox* list = m_ui->listBoxModels;
    list->clear();
    QString text = m_ui->searchEdit->text().toLower();
    if (text == QLatin1String("*"))
        text.clear();
    for (const char* name : m_modelNames) {
        const QString shown = QString::fromUtf8(name);
        if (shown.toLower().contains(text))
            list->addItem(shown);
    }
    if (list->count() == 1)
        list->item(0)->setSelected(true);
}

void ModelExtractionNewDeviceDialog::formAccepted()
{
    if (QListWidgetItem* item = m_ui->listBoxModels->selectedItem()) {
        m_chosenDevice = item->text();
        accept();
        return;
    }
    QMessageBox::critical(this, tr("No device selected!"),
                          tr("No device was selected.\nPlease select a device from the list,\nand "
                             "press Ok to continue."));
}

void ModelExtractionNewDeviceDialog::showEvent(QShowEvent* event)
{
    m_ui->groupBoxSearch->setToolTip(
        tr("The search engine uses a full substring search, and the list is updated as you "
           "type.\nWildcard characters (*, ?, etc.) are not used, and are interpreted literally."));
    m_ui->groupBoxModels->setToolTip(
        tr("This list contains all installed SPICE models of this device type. Models are added "
           "by dragging\nand dropping the model file into the command shell. The extraction "
           "algorithms extract\nparameters from the model selected in this list."));
    QDialog::showEvent(event);
}
