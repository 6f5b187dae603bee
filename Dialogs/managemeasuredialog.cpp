// ManageMeasureDialog: edits the library of measurement definitions. The
// script hands in factory and user lines mixed; what comes back is what a
// user file has to hold: the user's own definitions and the factory ones
// that no longer read as shipped.
#include "dialogcommon.h"
#include "measuredefinitions.h"
#include "registration.h"

#include "ui_managemeasuredialog.h"

#include <QDialog>
#include <QListWidgetItem>
#include <QMessageBox>

#include <memory>

namespace {

using measuredefs::Definition;

class ManageMeasureListBoxItem : public QListWidgetItem {
public:
    ManageMeasureListBoxItem(QListWidget* list, const Definition& line, int factory)
        : QListWidgetItem(line.name, list, QListWidgetItem::Type)
        , definition(line)
        , factoryIndex(factory)
    {
        definition.factory = false;
    }

    // Everything but the name, which stays for the item's life.
    void assignFields(const Definition& line)
    {
        const QString name = definition.name;
        definition = line;
        definition.name = name;
        definition.factory = false;
    }

    bool equalsLine(const Definition& line) const { return definition.sameContent(line); }
    QString toDefinition() const { return definition.toLine(); }

    Definition definition;
    int factoryIndex = -1; // the factory line of this name in the input, or -1
};

class ManageMeasureDialog : public QDialog {
    Q_OBJECT

public:
    explicit ManageMeasureDialog(UserFunctionInterface* call);
    ~ManageMeasureDialog() override;

    // The lines a user file has to hold, in list order.
    QStringList changedDefinitions() const;

public slots:
    void measureItemsListBox_clicked(QListWidgetItem* item);
    void deleteButton_clicked();
    void createButton_clicked();
    void nameEdit_textChanged(const QString& text);
    void labelEdit_textChanged(const QString& text);
    void expressionEdit_textChanged();
    void formatEdit_textChanged(const QString& text);
    void fullDescriptionEdit_textChanged();
    void cbRequiresCursors_clicked();
    void copySelectedButton_clicked();

private:
    void loadDefinitions();
    bool factoryLine(int index, Definition* out) const;
    ManageMeasureListBoxItem* selectedDefinition() const;
    // The selected item when an edit may write to it.
    ManageMeasureListBoxItem* editTarget() const;
    bool nameIsTaken();
    void addAndSelect(const Definition& line);
    void selectionChanged();

    std::unique_ptr<Ui::ManageMeasureDialog> m_ui;
    bool m_loading = false;
    QStringList m_lines;
};

ManageMeasureDialog::ManageMeasureDialog(UserFunctionInterface* call)
    : QDialog(nullptr)
    , m_ui(new Ui::ManageMeasureDialog)
{
    setObjectName(QStringLiteral("ManageMeasureDialog"));
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    Ui::ManageMeasureDialog& ui = *m_ui;
    connect(ui.measureItemsListBox, &QListWidget::itemClicked, this,
            &ManageMeasureDialog::measureItemsListBox_clicked);
    connect(ui.deleteButton, &QPushButton::clicked, this, &ManageMeasureDialog::deleteButton_clicked);
    connect(ui.createButton, &QPushButton::clicked, this, &ManageMeasureDialog::createButton_clicked);
    connect(ui.nameEdit, &QLineEdit::textChanged, this, &ManageMeasureDialog::nameEdit_textChanged);
    connect(ui.labelEdit, &QLineEdit::textChanged, this,
            &ManageMeasureDialog::labelEdit_textChanged);
    connect(ui.expressionEdit, &QPlainTextEdit::textChanged, this,
            &ManageMeasureDialog::expressionEdit_textChanged);
    connect(ui.formatEdit, &QLineEdit::textChanged, this,
            &ManageMeasureDialog::formatEdit_textChanged);
    connect(ui.fullDescriptionEdit, &QPlainTextEdit::textChanged, this,
            &ManageMeasureDialog::fullDescriptionEdit_textChanged);
    connect(ui.cbRequiresCursors, &QCheckBox::clicked, this,
            &ManageMeasureDialog::cbRequiresCursors_clicked);
    connect(ui.copySelectedButton, &QPushButton::clicked, this,
            &ManageMeasureDialog::copySelectedButton_clicked);

    m_lines = dialogcommon::stringArg(call, 0);
    loadDefinitions();
    // Keys move the selection without a click; the form follows them.
    connect(ui.measureItemsListBox, &QListWidget::itemSelectionChanged, this,
            &ManageMeasureDialog::selectionChanged);
}

ManageMeasureDialog::~ManageMeasureDialog() = default;

void ManageMeasureDialog::loadDefinitions()
{
    ListBox* list = m_ui->measureItemsListBox;
    measuredefs::NameSet seen;
    QListWidgetItem* first = nullptr;
    for (int i = 0; i < m_lines.size(); ++i) {
        const Definition line = Definition::parse(m_lines.at(i));
        const int factory = line.factory ? i : -1;
        if (line.name.isEmpty())
            continue;
        if (!seen.contains(line.name)) {
            auto* item = new ManageMeasureListBoxItem(list, line, factory);
            seen.insert(line.name);
            if (!first)
                first = item;
            continue;
        }
        // One item per name: the user's text under the factory line's index,
        // whichever of the two came first.
        auto* item = dynamic_cast<ManageMeasureListBoxItem*>(
            list->findItem(line.name, Qt::MatchExactly));
        if (!item)
            continue;
        if (factory >= 0 && item->factoryIndex < 0)
            item->factoryIndex = factory;
        else if (factory < 0 && item->factoryIndex >= 0)
            item->assignFields(line);
    }
    list->setSelected(first, true);
    measureItemsListBox_clicked(first);
}

bool ManageMeasureDialog::factoryLine(int index, Definition* out) const
{
    if (index < 0 || index >= m_lines.size())
        return false;
    *out = Definition::parse(m_lines.at(index));
    return true;
}

ManageMeasureListBoxItem* ManageMeasureDialog::selectedDefinition() const
{
    return dynamic_cast<ManageMeasureListBoxItem*>(m_ui->measureItemsListBox->selectedItem());
}

ManageMeasureListBoxItem* ManageMeasureDialog::editTarget() const
{
    return m_loading ? nullptr : selectedDefinition();
}

QStringList ManageMeasureDialog::changedDefinitions() const
{
    QStringList out;
    const ListBox* list = m_ui->measureItemsListBox;
    for (int row = 0; row < list->count(); ++row) {
        const auto* item = dynamic_cast<const ManageMeasureListBoxItem*>(list->item(row));
        if (!item)
            continue;
        Definition factory;
        const bool returned = item->factoryIndex < 0
                              || (factoryLine(item->factoryIndex, &factory)
                                  && !item->equalsLine(factory));
        if (returned)
            out << item->toDefinition();
    }
    return out;
}

void ManageMeasureDialog::measureItemsListBox_clicked(QListWidgetItem* clicked)
{
    auto* item = dynamic_cast<ManageMeasureListBoxItem*>(clicked);
    if (!item)
        return;
    Ui::ManageMeasureDialog& ui = *m_ui;
    if (item->factoryIndex < 0) {
        ui.deleteButton->setEnabled(true);
        ui.deleteButton->setText(tr("Delete"));
    } else {
        ui.deleteButton->setText(tr("Restore Factory Definition"));
        Definition factory;
        if (factoryLine(item->factoryIndex, &factory))
            ui.deleteButton->setEnabled(!item->equalsLine(factory));
    }
    m_loading = true;
    const Definition& d = item->definition;
    ui.labelEdit->setText(d.label);
    ui.expressionEdit->setPlainText(d.expression);
    ui.formatEdit->setText(d.format);
    ui.fullDescriptionEdit->setPlainText(d.fullDescription);
    ui.cbRequiresCursors->setChecked(d.requiresCursors);
    m_loading = false;
}

void ManageMeasureDialog::deleteButton_clicked()
{
    ManageMeasureListBoxItem* item = selectedDefinition();
    if (!item)
        return;
    ListBox* list = m_ui->measureItemsListBox;
    if (item->factoryIndex < 0) {
        list->removeItem(list->index(item));
        return;
    }
    Definition factory;
    if (!factoryLine(item->factoryIndex, &factory))
        return;
    item->assignFields(factory);
    measureItemsListBox_clicked(item);
}

bool ManageMeasureDialog::nameIsTaken()
{
    if (!m_ui->measureItemsListBox->findItem(m_ui->nameEdit->text(), Qt::MatchExactly))
        return false;
    QMessageBox::warning(this, tr("Duplicate Entry"),
                         tr("The name you have entered is already used\nChoose another name"),
                         QMessageBox::Ok);
    return true;
}

void ManageMeasureDialog::addAndSelect(const Definition& line)
{
    ListBox* list = m_ui->measureItemsListBox;
    auto* item = new ManageMeasureListBoxItem(list, line, -1);
    list->setCurrentItem(item);
    list->setSelected(item, true);
    measureItemsListBox_clicked(item);
}

void ManageMeasureDialog::createButton_clicked()
{
    if (nameIsTaken())
        return;
    // A line of one field: the name as typed, split as any line is.
    addAndSelect(Definition::parse(m_ui->nameEdit->text()));
}

void ManageMeasureDialog::copySelectedButton_clicked()
{
    if (nameIsTaken())
        return;
    const ManageMeasureListBoxItem* source = selectedDefinition();
    if (!source)
        return;
    Definition copy = Definition::parse(source->toDefinition());
    copy.name = m_ui->nameEdit->text();
    addAndSelect(copy);
}

void ManageMeasureDialog::nameEdit_textChanged(const QString& text)
{
    m_ui->createButton->setEnabled(!text.isEmpty());
    m_ui->copySelectedButton->setEnabled(!text.isEmpty());
}

void ManageMeasureDialog::labelEdit_textChanged(const QString& text)
{
    if (ManageMeasureListBoxItem* item = editTarget())
        item->definition.label = text;
}

void ManageMeasureDialog::expressionEdit_textChanged()
{
    if (ManageMeasureListBoxItem* item = editTarget())
        item->definition.expression = m_ui->expressionEdit->toPlainText();
}

void ManageMeasureDialog::formatEdit_textChanged(const QString& text)
{
    if (ManageMeasureListBoxItem* item = editTarget())
        item->definition.format = text;
}

void ManageMeasureDialog::fullDescriptionEdit_textChanged()
{
    if (ManageMeasureListBoxItem* item = editTarget())
        item->definition.fullDescription = m_ui->fullDescriptionEdit->toPlainText();
}

void ManageMeasureDialog::cbRequiresCursors_clicked()
{
    if (ManageMeasureListBoxItem* item = editTarget())
        item->definition.requiresCursors = m_ui->cbRequiresCursors->isChecked();
}

void ManageMeasureDialog::selectionChanged()
{
    if (QListWidgetItem* item = m_ui->measureItemsListBox->selectedItem())
        measureItemsListBox_clicked(item);
}

long long runManageMeasureDialog(UserFunctionInterface* call)
{
    ManageMeasureDialog dialog(call);
    sp_AutoSaveDialogDims(&dialog);
    sp_ApplyVantrellIcon(&dialog);
    if (dialog.exec() != QDialog::Accepted) {
        dialogcommon::setStringResult(call, {QString()});
        return 0;
    }
    QStringList result = dialog.changedDefinitions();
    if (result.isEmpty())
        result << QString();
    dialogcommon::setStringResult(call, result);
    return 0;
}

} // namespace

static const FunctionRegistration registerManageMeasureDialog(
    "ManageMeasureDialog", argLimits(1, 2), &runManageMeasureDialog, {ArgStrings, ArgStrings});

#include "managemeasuredialog.moc"
