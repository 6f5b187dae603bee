// LoopForgeEditClocksDialog: the eight global clocks of a LoopForge design
// in one table, with the active synchronisation edge. Rows can be moved;
// each keeps its index, so the order the user gives is part of the result.
#include "dialogcommon.h"
#include "hostwidgets.h"
#include "registration.h"

#include "ui_loopforgeeditclocksdialog.h"

#include <QDialog>
#include <QHeaderView>
#include <QTableWidget>

#include <memory>

namespace {

enum Column { IndexColumn, EnableColumn, GraphColumn, LabelColumn, ColumnCount = 7 };
constexpr int kRows = 8;
constexpr int kSyncEdgeElement = 8;

// One pair of enclosing single quotes, as labels are kept in the design.
QString withoutQuotes(const QString& label)
{
    if (label.size() >= 2 && label.startsWith(QLatin1Char('\'')) && label.endsWith(QLatin1Char('\'')))
        return label.mid(1, label.size() - 2);
    return label;
}

bool isOn(const QString& field)
{
    return !field.isEmpty() && dialogcommon::leadingInt(field) != 0;
}

class LoopForgeEditClocksDialog : public QDialog {
    Q_OBJECT

public:
    explicit LoopForgeEditClocksDialog(QWidget* parent = nullptr)
        : QDialog(parent)
        , m_ui(new Ui::LoopForgeEditClocksDialog)
    {
        m_ui->setupUi(this);
        setObjectName(QStringLiteral("LoopForgeEditClocksDialog"));
        connect(m_ui->pushButtonMoveRowUp, &QPushButton::clicked, this, &LoopForgeEditClocksDialog::moveRowUp);
        connect(m_ui->pushButtonMoveRowDown, &QPushButton::clicked, this,
                &LoopForgeEditClocksDialog::moveRowDown);
        connect(m_ui->pushButtonSimulate, &QPushButton::clicked, this, &LoopForgeEditClocksDialog::simulate);
        connect(m_ui->helpButton, &QPushButton::clicked, this, &LoopForgeEditClocksDialog::helpButtonClicked);
    }

    void connectTable()
    {
        connect(m_ui->tableMain, &QTableWidget::cellClicked, this,
                &LoopForgeEditClocksDialog::tableValueChanged);
    }
    void load(const QStringList& clocks, const QStringList& info);
    QStringList result();

public slots:
    void moveRowUp();
    void moveRowDown();
    void simulate();
    QString readRow(int row);
    void helpButtonClicked();
    void tableValueChanged(int row, int column);

private:
    void fillRow(int row, const QString& text);
    // A disabled clock can only be switched on: all but its Enable box follow it.
    void applyEnabled(int row);
    void swapRows(int a, int b);
    void fitTable();

    std::unique_ptr<Ui::LoopForgeEditClocksDialog> m_ui;
    QString m_graphRequest = QStringLiteral("0");
    int m_helpTopic = -1;
};

void LoopForgeEditClocksDialog::load(const QStringList& clocks, const QStringList& info)
{
    Ui::LoopForgeEditClocksDialog& ui = *m_ui;
    if (clocks.size() > kSyncEdgeElement) {
        if (dialogcommon::leadingInt(clocks.at(kSyncEdgeElement)) >= 1)
            ui.radioButtonRising->setChecked(true);
        else
            ui.radioButtonFalling->setChecked(true);
    }
    if (info.size() > 0)
        ui.labelTitle->setText(info.at(0));
    if (info.size() > 1)
        ui.labelBlurb->setText(info.at(1));
    if (info.size() > 2)
        setWindowTitle(info.at(2));
    m_helpTopic = info.size() > 3 ? dialogcommon::leadingInt(info.at(3)) : -1;
    if (m_helpTopic < 0)
        ui.helpButton->hide();

    QTableWidget* table = ui.tableMain;
    const int rowHeight = table->verticalHeader()->fontMetrics().height() + 4;
    for (int row = 0; row < kRows && row < clocks.size(); ++row) {
        fillRow(row, clocks.at(row));
        table->setRowHeight(row, rowHeight);
    }
    table->hideColumn(IndexColumn);
    fitTable();
}

// The whole table shows: eight clocks never need scrolling.
void LoopForgeEditClocksDialog::fitTable()
{
    QTableWidget* table = m_ui->tableMain;
    int width = table->verticalHeader()->sizeHint().width() + 2 * table->frameWidth();
    for (int column = 0; column < ColumnCount; ++column) {
        if (!table->isColumnHidden(column))
            width += table->columnWidth(column);
    }
    int height = table->horizontalHeader()->sizeHint().height() + 2 * table->frameWidth();
    for (int row = 0; row < kRows; ++row)
        height += table->rowHeight(row);
    table->setMinimumSize(width, height);
    // The layout doesn't count the lines a wrapped label takes; at the
    // table's width it takes the most it ever will.
    Label* blurb = m_ui->labelBlurb;
    blurb->setMinimumHeight(blurb->text().isEmpty() ? 0 : blurb->heightForWidth(width));
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void LoopForgeEditClocksDialog::fillRow(int row, const QString& text)
{
    QTableWidget* table = m_ui->tableMain;
    const QStringList fields = text.split(QLatin1Char(';'));
    for (int column = 0; column < ColumnCount; ++column) {
        const QString field = dialogcommon::elementOr(fields, column);
        auto* item = new QTableWidgetItem;
        if (column == EnableColumn || column == GraphColumn) {
            item->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
            item->setCheckState(isOn(field) ? Qt::Checked : Qt::Unchecked);
        } else {
            item->setText(column == LabelColumn ? withoutQuotes(field) : field);
        }
        table->setItem(row, column, item);
        table->resizeColumnToContents(column);
    }
    const int index = dialogcommon::leadingInt(fields.value(IndexColumn));
    table->setVerticalHeaderItem(row, new QTableWidgetItem(index == 0 ? tr("Sys CLK")
                                                                      : tr("User %1").arg(index)));
    applyEnabled(row);
}

void LoopForgeEditClocksDialog::applyEnabled(int row)
{
    QTableWidget* table = m_ui->tableMain;
    const QTableWidgetItem* enable = table->item(row, EnableColumn);
    const bool on = enable && enable->checkState() == Qt::Checked;
    for (int column = 0; column < ColumnCount; ++column) {
        QTableWidgetItem* item = table->item(row, column);
        if (!item || column == EnableColumn)
            continue;
        item->setFlags(on ? item->flags() | Qt::ItemIsEnabled : item->flags() & ~Qt::ItemIsEnabled);
    }
}

QString LoopForgeEditClocksDialog::readRow(int row)
{
    QStringList fields;
    for (int column = 0; column < ColumnCount; ++column) {
        const QTableWidgetItem* item = m_ui->tableMain->item(row, column);
        if (!item)
            fields << QString();
        else if (column == EnableColumn || column == GraphColumn)
            fields << (item->checkState() == Qt::Checked ? QStringLiteral("1") : QStringLiteral("0"));
        else if (column == LabelColumn)
            fields << QLatin1Char('\'') + item->text() + QLatin1Char('\'');
        else
            fields << item->text();
    }
    return fields.join(QLatin1Char(';'));
}

QStringList LoopForgeEditClocksDialog::result()
{
    QStringList out;
    for (int row = 0; row < kRows; ++row)
        out << readRow(row);
    out << (m_ui->radioButtonRising->isChecked() ? QStringLiteral("1") : QStringLiteral("-1"));
    out << m_graphRequest;
    return out;
}

void LoopForgeEditClocksDialog::swapRows(int a, int b)
{
    QTableWidget* table = m_ui->tableMain;
    for (int column = 0; column < ColumnCount; ++column) {
        QTableWidgetItem* first = table->takeItem(a, column);
        QTableWidgetItem* second = table->takeItem(b, column);
        table->setItem(a, column, second);
        table->setItem(b, column, first);
    }
    QTableWidgetItem* firstHeader = table->takeVerticalHeaderItem(a);
    QTableWidgetItem* secondHeader = table->takeVerticalHeaderItem(b);
    table->setVerticalHeaderItem(a, secondHeader);
    table->setVerticalHeaderItem(b, firstHeader);
    // The moved clock stays selected, whole, so it can be moved on.
    const QAbstractItemView::SelectionBehavior behaviour = table->selectionBehavior();
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setCurrentCell(b, 0);
    table->setSelectionBehavior(behaviour);
}

void LoopForgeEditClocksDialog::moveRowUp()
{
    const int row = m_ui->tableMain->currentRow();
    if (row > 0 && row < kRows)
        swapRows(row, row - 1);
}

void LoopForgeEditClocksDialog::moveRowDown()
{
    const int row = m_ui->tableMain->currentRow();
    if (row >= 0 && row < kRows - 1)
        swapRows(row, row + 1);
}

void LoopForgeEditClocksDialog::simulate()
{
    m_graphRequest = QStringLiteral("1");
    accept();
}

void LoopForgeEditClocksDialog::helpButtonClicked()
{
    dialogcommon::runHelp(m_helpTopic);
}

void LoopForgeEditClocksDialog::tableValueChanged(int row, int column)
{
    if (column == EnableColumn)
        applyEnabled(row);
    else if (column != GraphColumn && column >= 0 && column < ColumnCount) {
        m_ui->tableMain->resizeColumnToContents(column);
        fitTable();
    }
}

long long runLoopForgeEditClocksDialog(UserFunctionInterface* call)
{
    LoopForgeEditClocksDialog dialog;
    dialog.connectTable();
    sp_AutoSaveDialogDims(&dialog);
    dialog.load(dialogcommon::stringArg(call, 0), dialogcommon::stringArg(call, 1));
    if (dialog.exec() == QDialog::Accepted)
        dialogcommon::setStringResult(call, dialog.result());
    return 0;
}

} // namespace

static const FunctionRegistration registerLoopForgeEditClocksDialog(
    "LoopForgeEditClocksDialog", argLimits(1, 2), &runLoopForgeEditClocksDialog, {ArgStrings, ArgStrings});

#include "loopforgeeditclocksdialog.moc"
