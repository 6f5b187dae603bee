#include "listsubsetdialog.h"

#include "dialogcommon.h"
#include "dialogwidgets.h"
#include "registration.h"

#include "ui_listsubsetdialog.h"

#include <QDialogButtonBox>
#include <QPushButton>

namespace {

void moveSelected(QListWidget* from, QListWidget* to)
{
    const QList<QListWidgetItem*> moving = from->selectedItems();
    for (QListWidgetItem* item : moving) {
        to->addItem(item->text());
        delete from->takeItem(from->row(item));
    }
    from->sortItems(Qt::AscendingOrder);
    to->sortItems(Qt::AscendingOrder);
}

// A script can't pass an empty array, so one empty string stands for none.
void appendItems(QListWidget* list, const QStringList& items)
{
    if (items.size() == 1 && items.first().isEmpty())
        return;
    list->addItems(items);
    list->sortItems(Qt::AscendingOrder);
}

QStringList allItems(QListWidget* list)
{
    list->selectAll();
    QStringList texts;
    const QList<QListWidgetItem*> items = list->selectedItems();
    texts.reserve(items.size());
    for (const QListWidgetItem* item : items)
        texts << item->text();
    return texts;
}

} // namespace

ListSubsetDialog::ListSubsetDialog(QWidget* parent, const char* name)
    : QDialog(parent)
    , m_ui(new Ui::ListSubsetDialog)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    dialogwidgets::nameBoxButtons(m_ui->buttonBox);

    connect(m_ui->addSelectedButton, &QPushButton::clicked, this, &ListSubsetDialog::addSelected);
    connect(m_ui->addAllButton, &QPushButton::clicked, this, &ListSubsetDialog::addAll);
    connect(m_ui->removeSelectedButton, &QPushButton::clicked, this,
            &ListSubsetDialog::removeSelected);
    connect(m_ui->removeAllButton, &QPushButton::clicked, this, &ListSubsetDialog::removeAll);
    connect(m_ui->listBoxAvailable, &QListWidget::doubleClicked, this,
            &ListSubsetDialog::addSelected);
    connect(m_ui->listBoxSelected, &QListWidget::doubleClicked, this,
            &ListSubsetDialog::removeSelected);
}

ListSubsetDialog::~ListSubsetDialog() = default;

void ListSubsetDialog::addAvailableItems(const QStringList& items)
{
    appendItems(m_ui->listBoxAvailable, items);
}

void ListSubsetDialog::addSelectedItems(const QStringList& items)
{
    appendItems(m_ui->listBoxSelected, items);
}

void ListSubsetDialog::setAvailableTitle(const QString& title)
{
    m_ui->labelAvailable->setText(title);
}

void ListSubsetDialog::setSelectedTitle(const QString& title)
{
    m_ui->labelSelected->setText(title);
}

QStringList ListSubsetDialog::selectedListItems() const
{
    return allItems(m_ui->listBoxSelected);
}

QStringList ListSubsetDialog::availableListItems() const
{
    return allItems(m_ui->listBoxAvailable);
}

void ListSubsetDialog::addSelected()
{
    moveSelected(m_ui->listBoxAvailable, m_ui->listBoxSelected);
}

void ListSubsetDialog::addAll()
{
    m_ui->listBoxAvailable->selectAll();
    addSelected();
}

void ListSubsetDialog::removeSelected()
{
    moveSelected(m_ui->listBoxSelected, m_ui->listBoxAvailable);
}

void ListSubsetDialog::removeAll()
{
    m_ui->listBoxSelected->selectAll();
    removeSelected();
}

namespace {

long long runListSubsetDialog(UserFunctionInterface* call)
{
    ListSubsetDialog dialog(nullptr, "ListSubsetDialog");
    sp_AutoSaveDialogDims(&dialog);
    sp_ApplyVantrellIcon(&dialog);

    const QStringList available = dialogcommon::stringArg(call, 0);
    const QStringList selected = dialogcommon::stringArg(call, 1);
    bool hasAvailableTitle = false;
    bool hasSelectedTitle = false;
    const QStringList availableTitle = dialogcommon::stringArg(call, 2, &hasAvailableTitle);
    const QStringList selectedTitle = dialogcommon::stringArg(call, 3, &hasSelectedTitle);

    dialog.addAvailableItems(available);
    dialog.addSelectedItems(selected);
    if (hasAvailableTitle)
        dialog.setAvailableTitle(availableTitle.first());
    if (hasSelectedTitle)
        dialog.setSelectedTitle(selectedTitle.first());

    if (dialog.exec() != QDialog::Accepted) {
        dialogcommon::setStringResult(call, {QString()});
        return 0;
    }

    QStringList result;
    result << QStringLiteral("[selected]") << dialog.selectedListItems()
           << QStringLiteral("[notselected]") << dialog.availableListItems();
    dialogcommon::setStringResult(call, result);
    return 0;
}

} // namespace

static const FunctionRegistration registerListSubsetDialog(
    "ListSubsetDialog", argLimits(1, 4), &runListSubsetDialog,
    {ArgStrings, ArgStrings, ArgStrings, ArgStrings});
