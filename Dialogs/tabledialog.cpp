#include "tabledialog.h"

#include "dialogcommon.h"
#include "hostsupport.h"
#include "registration.h"

#include "ui_tabledialog.h"

#include <QComboBox>
#include <QHeaderView>
#include <QTableWidget>
#include <QTableWidgetItem>

#include <algorithm>

namespace {

// Limits on what a script can ask of a table: far beyond what a person
// can work in, and small enough that building the dialog never stalls the
// host. A count of 1e18, or a row text of 100,000 "|", is read as the limit.
constexpr int kMaxRows = 1000;
constexpr int kMaxColumns = 100;
// TableEditor puts a combo box in every cell, and a few thousand of them
// take seconds to make, so its cells and their items are bounded too.
constexpr int kMaxChoiceCells = 2000;
constexpr int kMaxChoices = 1000;       // per column
constexpr int kMaxChoiceItems = 200000; // over all the boxes
constexpr int kMaxRememberedWidth = 4000;

// A count from the script: truncated; absent, non-positive or NaN gives 10.
int tableCount(const double* values, unsigned count, unsigned index, int limit)
{
    if (!values || index >= count || !(values[index] >= 1.0))
        return std::min(10, limit);
    if (values[index] >= static_cast<double>(limit))
        return limit;
    return static_cast<int>(values[index]);
}

// An absent or empty element gives no parts.
QStringList splitElement(const QStringList& texts, int index)
{
    const QString text = dialogcommon::elementOr(texts, index);
    if (text.isEmpty())
        return {};
    return text.split(QLatin1Char('|'), Qt::KeepEmptyParts);
}

} // namespace

TableDialog::TableDialog(QWidget* parent, const char* name, bool plainCells)
    : QDialog(parent)
    , m_ui(new Ui::TableDialog)
    , m_plainCells(plainCells)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    connect(m_ui->addRowButton, &QPushButton::clicked, this, &TableDialog::addRowButton_clicked);
    connect(m_ui->addColumnButton, &QPushButton::clicked, this,
            &TableDialog::addColumnButton_clicked);
    connect(m_ui->removeRowButton, &QPushButton::clicked, this,
            &TableDialog::removeRowButton_clicked);
    connect(m_ui->removeColumnButton, &QPushButton::clicked, this,
            &TableDialog::removeColumnButton_clicked);
}

TableDialog::~TableDialog() = default;

void TableDialog::loadPlainTable(UserFunctionInterface* call)
{
    QTableWidget* table = m_ui->tableWidget;

    const double* counts = nullptr;
    unsigned countCount = 0;
    sp_GetRealIfVector(call, 0, &counts, &countCount);
    const int rows = tableCount(counts, countCount, 0, kMaxRows);
    const int columns = tableCount(counts, countCount, 1, kMaxColumns);
    table->setRowCount(rows);
    table->setColumnCount(columns);

    const QStringList rowTexts = dialogcommon::stringArg(call, 1);
    const int filledRows = std::min(rows, rowTexts.size());
    for (int row = 0; row < filledRows; ++row) {
        const QStringList cells = rowTexts.at(row).split(QLatin1Char(';'), Qt::KeepEmptyParts);
        const int filledColumns = std::min(columns, cells.size());
        for (int column = 0; column < filledColumns; ++column)
            table->setItem(row, column, new QTableWidgetItem(cells.at(column)));
    }

    table->resizeRowsToContents();
    m_ui->messageLabel->clear();
    m_ui->messageLabel->hide();
}

void TableDialog::loadEditorTable(UserFunctionInterface* call)
{
    QTableWidget* table = m_ui->tableWidget;

    const QStringList choices = dialogcommon::stringArg(call, 0);
    const QStringList selections = dialogcommon::stringArg(call, 1);
    const QStringList texts = dialogcommon::stringArg(call, 2);
    const QStringList titleAndMessage = dialogcommon::stringArg(call, 3);

    const int columns = std::min(choices.size(), kMaxColumns);
    table->setRowCount(1);
    table->setColumnCount(columns);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);

    const QStringList columnHeaders = splitElement(texts, 0);
    const QStringList rowHeaders = splitElement(texts, 1);
    const QStringList buttonTexts = splitElement(texts, 2);

    // Tables with the same title and headers share their remembered widths.
    QString key;
    const QString title = dialogcommon::elementOr(titleAndMessage, 0);
    if (!title.isEmpty()) {
        setWindowTitle(title);
        key = title;
    }
    const QString message = dialogcommon::elementOr(titleAndMessage, 1);
    m_ui->messageLabel->setText(message);
    m_ui->messageLabel->setVisible(!message.isEmpty());
    if (!columnHeaders.isEmpty())
        table->setHorizontalHeaderLabels(columnHeaders);

    int longestChoices = 1;
    for (int column = 0; column < columns; ++column) {
        QStringList columnChoices = choices.at(column).split(QLatin1Char('|'), Qt::KeepEmptyParts);
        if (columnChoices.size() > kMaxChoices)
            columnChoices.erase(columnChoices.begin() + kMaxChoices, columnChoices.end());
        longestChoices = std::max(longestChoices, int(columnChoices.size()));
        m_columnChoices << columnChoices;
    }
    const int maxRows = std::min({kMaxRows, kMaxChoiceCells / std::max(columns, 1),
                                  kMaxChoiceItems / longestChoices});
    for (int column = 0; column < columns; ++column) {
        key += dialogcommon::elementOr(columnHeaders, column);
        if (column >= selections.size())
            continue;
        QStringList values = selections.at(column).split(QLatin1Char('|'), Qt::KeepEmptyParts);
        if (values.size() > maxRows)
            values.erase(values.begin() + maxRows, values.end());
        if (table->rowCount() < values.size())
            table->setRowCount(values.size());
        for (int row = 0; row < values.size(); ++row) {
            QComboBox* box = makeChoiceBox(column);
            const int found = box->findData(values.at(row), Qt::DisplayRole,
                                            Qt::MatchExactly | Qt::MatchCaseSensitive);
            box->setCurrentIndex(found >= 0 ? found : 0);
            table->setCellWidget(row, column, box);
        }
    }
    // Rows exist only now, so their headers go on last.
    if (!rowHeaders.isEmpty())
        table->setVerticalHeaderLabels(rowHeaders);

    if (!dialogcommon::elementOr(buttonTexts, 0).isEmpty())
        m_ui->addRowButton->setText(buttonTexts.at(0));
    if (!dialogcommon::elementOr(buttonTexts, 1).isEmpty())
        m_ui->removeRowButton->setText(buttonTexts.at(1));
    m_ui->addColumnButton->hide();
    m_ui->removeColumnButton->hide();

    m_widthsOption = QStringLiteral("TableDialogDims_") + QString::number(toYs(key).hashValue());
    loadColumnWidths();

    table->resizeRowsToContents();
    table->horizontalHeader()->setStretchLastSection(true);
    table->resizeColumnsToContents();
    // Contents win where they need more room; a column the user widened
    // stays wide.
    for (int column = 0; column < m_loadedWidths.size(); ++column) {
        if (m_loadedWidths.at(column) > table->columnWidth(column))
            table->setColumnWidth(column, m_loadedWidths.at(column));
    }
}

QComboBox* TableDialog::makeChoiceBox(int column)
{
    auto* box = new QComboBox(m_ui->tableWidget);
    box->setEditable(false);
    box->setFrame(false);
    if (column >= 0 && column < m_columnChoices.size())
        box->addItems(m_columnChoices.at(column));
    box->setCurrentIndex(0);
    return box;
}

void TableDialog::loadColumnWidths()
{
    m_loadedWidths.clear();
    bool found = false;
    const YString saved = sp_GetStringOption(Tocs(m_widthsOption), &found);
    if (!found)
        return;
    const QStringList parts = toQs(saved).split(QLatin1Char('|'), Qt::KeepEmptyParts);
    const int n = std::min(parts.size(), m_ui->tableWidget->columnCount());
    for (int column = 0; column < n; ++column) {
        const int width = std::min(parts.at(column).toInt(), kMaxRememberedWidth);
        m_loadedWidths << width;
        if (width > 0)
            m_ui->tableWidget->setColumnWidth(column, width);
    }
}

void TableDialog::saveColumnWidths() const
{
    if (m_widthsOption.isEmpty())
        return;
    QStringList widths;
    for (int column = 0; column < m_ui->tableWidget->columnCount(); ++column)
        widths << QString::number(m_ui->tableWidget->columnWidth(column));
    sp_WriteOption(toYs(m_widthsOption), toYs(widths.join(QLatin1Char('|'))));
}

QStringList TableDialog::plainResult() const
{
    const QTableWidget* table = m_ui->tableWidget;
    QStringList rows;
    rows.reserve(table->rowCount());
    for (int row = 0; row < table->rowCount(); ++row) {
        QString line;
        for (int column = 0; column < table->columnCount(); ++column) {
            if (const QTableWidgetItem* cell = table->item(row, column))
                line += cell->text();
            line += QLatin1Char(';');
        }
        rows << line;
    }
    return rows;
}

QStringList TableDialog::editorResult() const
{
    const QTableWidget* table = m_ui->tableWidget;
    QStringList columns;
    columns.reserve(table->columnCount());
    for (int column = 0; column < table->columnCount(); ++column) {
        QStringList cells;
        for (int row = 0; row < table->rowCount(); ++row) {
            if (const auto* box = qobject_cast<const QComboBox*>(table->cellWidget(row, column)))
                cells << box->currentText();
        }
        columns << cells.join(QLatin1Char('|'));
    }
    return columns;
}

void TableDialog::addRowButton_clicked()
{
    QTableWidget* table = m_ui->tableWidget;
    if (!m_plainCells)
        table->clearSelection();
    const int row = table->rowCount();
    table->insertRow(row);
    for (int column = 0; column < table->columnCount(); ++column) {
        if (m_plainCells)
            table->setItem(row, column, new QTableWidgetItem);
        else if (column < m_columnChoices.size())
            table->setCellWidget(row, column, makeChoiceBox(column));
    }
    table->resizeRowToContents(row);
    table->selectRow(row);
}

void TableDialog::addColumnButton_clicked()
{
    m_ui->tableWidget->insertColumn(m_ui->tableWidget->columnCount());
}

void TableDialog::removeRowButton_clicked()
{
    m_ui->tableWidget->removeRow(m_ui->tableWidget->currentRow());
}

void TableDialog::removeColumnButton_clicked()
{
    m_ui->tableWidget->removeColumn(m_ui->tableWidget->columnCount() - 1);
}

namespace {

long long runTableDialog(UserFunctionInterface* call)
{
    TableDialog dialog(nullptr, "TableDialog", true);
    sp_AutoSaveDialogDims(&dialog);
    sp_ApplyVantrellIcon(&dialog);
    dialog.loadPlainTable(call);
    sp_AutoSaveDialogDims(&dialog);
    if (dialog.exec() == QDialog::Accepted)
        dialogcommon::setStringResult(call, dialog.plainResult());
    return 0;
}

long long runTableEditor(UserFunctionInterface* call)
{
    TableDialog dialog(nullptr, "TableEditor", false);
    sp_AutoSaveDialogDims(&dialog);
    sp_ApplyVantrellIcon(&dialog);
    dialog.loadEditorTable(call);
    sp_AutoSaveDialogDims(&dialog);
    const int outcome = dialog.exec();
    dialog.saveColumnWidths();
    if (outcome == QDialog::Accepted)
        dialogcommon::setStringResult(call, dialog.editorResult());
    return 0;
}

} // namespace

// TableEditor must register before TableDialog.
static const FunctionRegistration registerTableEditor("TableEditor", argLimits(3, 4),
                                                      &runTableEditor,
                                                      {ArgStrings, ArgStrings, ArgStrings,
                                                       ArgStrings});
static const FunctionRegistration registerTableDialog("TableDialog", argLimits(1, 2),
                                                      &runTableDialog, {ArgReals, ArgStrings});
