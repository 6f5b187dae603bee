// CreatePowerInductorModel: the data of a saturating power inductor (its
// inductance over current as a table, resistances, initial condition,
// smoothing) for the script that makes the model. The dialog computes
// nothing about the inductor; it gathers a table and hands back a key list.
#include "dialogcommon.h"
#include "dialogwidgets.h"
#include "hostsupport.h"
#include "hostwidgets.h"
#include "registration.h"

#include "ui_createpowerinductormodeldialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTableWidget>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

// No inductor curve needs more points than this; a paste or a script that
// asks for more gets this many rows rather than a table too big to use.
const int kMaxRows = 10000;

const Qt::Alignment kCellAlignment = Qt::AlignRight | Qt::AlignVCenter;

// A count from a script or a host function: whole, and within the table.
int clampedRows(double count)
{
    if (!(count >= 0))
        return 0;
    return static_cast<int>(std::min(count, double(kMaxRows)));
}

QTableWidgetItem* numberItem(double value)
{
    auto* item = new QTableWidgetItem;
    item->setData(Qt::DisplayRole, value);
    item->setTextAlignment(kCellAlignment);
    return item;
}

QTableWidgetItem* textItem(const QString& text)
{
    auto* item = new QTableWidgetItem(text);
    item->setTextAlignment(kCellAlignment);
    return item;
}

bool filled(const QTableWidgetItem* item)
{
    return item && !item->text().trimmed().isEmpty();
}

} // namespace

class CreatePowerInductorModelDialog;

// Sees the table's keys before the table does, and lets it have them too.
class TableWidgetKeyPressReceiver : public QObject {
public:
    explicit TableWidgetKeyPressReceiver(CreatePowerInductorModelDialog* dialog)
        : m_dialog(dialog)
    {
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CreatePowerInductorModelDialog* m_dialog;
};

class CreatePowerInductorModelDialog : public QDialog {
    Q_OBJECT

public:
    explicit CreatePowerInductorModelDialog(UserFunctionInterface* call);
    ~CreatePowerInductorModelDialog() override;

    void load(const QStringList& keys);
    QStringList result() const;
    void tableKeyPressed(const QKeyEvent* event);

public slots:
    void accept() override;
    void loadFromImagePressed();
    void pastePressed();
    void swapIAndLPressed();
    void tableItemChanged(QTableWidgetItem* item);
    void tableItemChanged(int row, int column);
    void initialConditionEnableClicked();
    void infinityClicked();

private:
    void setRowHeights();

    std::unique_ptr<Ui::CreatePowerInductorModelDialog> m_ui;
    UserFunctionInterface* m_call;
    TableWidgetKeyPressReceiver m_keyReceiver;
};

bool TableWidgetKeyPressReceiver::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress)
        m_dialog->tableKeyPressed(static_cast<QKeyEvent*>(event));
    return QObject::eventFilter(watched, event);
}

CreatePowerInductorModelDialog::CreatePowerInductorModelDialog(UserFunctionInterface* call)
    : QDialog(nullptr)
    , m_ui(new Ui::CreatePowerInductorModelDialog)
    , m_call(call)
    , m_keyReceiver(this)
{
    setObjectName(QStringLiteral("CreatePowerInductorModelDialog"));
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_ui->pushbutton_SwapIL->hide();
    m_ui->tableWidget->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_ui->tableWidget->installEventFilter(&m_keyReceiver);

    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &CreatePowerInductorModelDialog::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_ui->pushbutton_LoadFromImage, &QPushButton::clicked, this,
            &CreatePowerInductorModelDialog::loadFromImagePressed);
    connect(m_ui->pushbutton_SwapIL, &QPushButton::clicked, this,
            &CreatePowerInductorModelDialog::swapIAndLPressed);
    connect(m_ui->pushbutton_Paste, &QPushButton::clicked, this,
            &CreatePowerInductorModelDialog::pastePressed);
    connect(m_ui->tableWidget, &QTableWidget::itemChanged, this,
            qOverload<QTableWidgetItem*>(&CreatePowerInductorModelDialog::tableItemChanged));
    connect(m_ui->tableWidget, &QTableWidget::cellChanged, this,
            qOverload<int, int>(&CreatePowerInductorModelDialog::tableItemChanged));
    connect(m_ui->checkbox_ShuntR_Infinity, &QCheckBox::clicked, this,
            &CreatePowerInductorModelDialog::infinityClicked);
    connect(m_ui->cbInitialConditionEnable, &QCheckBox::clicked, this,
            &CreatePowerInductorModelDialog::initialConditionEnableClicked);
    dialogwidgets::nameBoxButtons(m_ui->buttonBox);
}

CreatePowerInductorModelDialog::~CreatePowerInductorModelDialog() = default;

// Keys and their values, in any order; an element that isn't a key with all
// its values after it is skipped on its own. "DataTable" reads its pairs to
// the end of the table and then skips one more element, so it comes last.
void CreatePowerInductorModelDialog::load(const QStringList& keys)
{
    const int n = keys.size();
    auto is = [](const QString& key, const char* name) {
        return key.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    };
    for (int i = 0; i < n;) {
        const QString& key = keys.at(i);
        if (is(key, "SeriesR") && i + 1 < n) {
            m_ui->editbox_SeriesR->setText(keys.at(i + 1));
            i += 2;
        } else if (is(key, "ShuntR") && i + 1 < n) {
            m_ui->editbox_ShuntR->setText(keys.at(i + 1));
            const bool infinite = m_ui->editbox_ShuntR->value() == 0.0;
            m_ui->checkbox_ShuntR_Infinity->setChecked(infinite);
            m_ui->editbox_ShuntR->setEnabled(!infinite);
            i += 2;
        } else if (is(key, "InitialCondition") && i + 2 < n) {
            const bool enabled = keys.at(i + 1).compare(QLatin1String("1"), Qt::CaseInsensitive) == 0;
            m_ui->cbInitialConditionEnable->setChecked(enabled);
            m_ui->initialConditionEdit->setText(keys.at(i + 2));
            m_ui->initialConditionEdit->setEnabled(enabled);
            i += 3;
        } else if (is(key, "Smoothing") && i + 1 < n) {
            m_ui->smoothingGroup->setValue(keys.at(i + 1).toInt());
            i += 2;
        } else if (is(key, "DataTable") && i + 1 < n) {
            const int rows = clampedRows(sp_ConvertEngToReal(keys.at(i + 1), nullptr));
            int next = i + 2;
            if (rows >= 1) {
                QTableWidget* table = m_ui->tableWidget;
                table->setRowCount(rows);
                for (int row = 0; row < rows && next + 1 < n; ++row, next += 2) {
                    table->setItem(row, 0, numberItem(sp_ConvertEngToReal(keys.at(next), nullptr)));
                    table->setItem(row, 1, numberItem(sp_ConvertEngToReal(keys.at(next + 1), nullptr)));
                }
                setRowHeights();
                ++next;
            }
            i = next;
        } else {
            ++i;
        }
    }
}

QStringList CreatePowerInductorModelDialog::result() const
{
    const QTableWidget* table = m_ui->tableWidget;
    QStringList out{
        QStringLiteral("SeriesR"), m_ui->editbox_SeriesR->text(),
        QStringLiteral("ShuntR"),
        m_ui->checkbox_ShuntR_Infinity->isChecked() ? QStringLiteral("0") : m_ui->editbox_ShuntR->text(),
        QStringLiteral("SaveTo"),
        m_ui->radioButton_SaveToModelLibrary->isChecked() ? QStringLiteral("ModelLibrary")
                                                          : QStringLiteral("SchematicSymbol"),
        QStringLiteral("DeviceName"), m_ui->editbox_DeviceName->text(),
        QStringLiteral("InitialCondition"),
        m_ui->cbInitialConditionEnable->isChecked() ? QStringLiteral("1") : QStringLiteral("0"),
        m_ui->initialConditionEdit->text(),
        QStringLiteral("Smoothing"), m_ui->smoothingGroup->text(),
        QStringLiteral("DataTable"), QString::number(table->rowCount())};
    for (int row = 0; row < table->rowCount(); ++row)
        for (int column = 0; column < 2; ++column) {
            const QTableWidgetItem* item = table->item(row, column);
            out << (item ? item->text() : QString());
        }
    return out;
}

void CreatePowerInductorModelDialog::setRowHeights()
{
    const QTableWidgetItem* header = m_ui->tableWidget->horizontalHeaderItem(0);
    if (!header)
        return;
    const int height = QFontMetrics(header->font()).height() * 3 / 2;
    for (int row = 0; row < m_ui->tableWidget->rowCount(); ++row)
        m_ui->tableWidget->setRowHeight(row, height);
}

void CreatePowerInductorModelDialog::tableKeyPressed(const QKeyEvent* event)
{
    QTableWidget* table = m_ui->tableWidget;
    if (event->key() == Qt::Key_Delete) {
        for (QTableWidgetItem* item : table->selectedItems())
            item->setText(QString());
    } else if (event->key() == Qt::Key_Down) {
        tableItemChanged(table->currentRow(), table->currentColumn());
    }
}

// Rows on Ok: empty ones at any place go, a row with one value stops it.
void CreatePowerInductorModelDialog::accept()
{
    QTableWidget* table = m_ui->tableWidget;
    for (int row = table->rowCount() - 1; row >= 0; --row) {
        const bool i = filled(table->item(row, 0));
        const bool l = filled(table->item(row, 1));
        if (!i && !l) {
            table->removeRow(row);
        } else if (i != l) {
            QMessageBox::warning(this, tr("Data Error"),
                                 tr("There is a row with an empty cell in the data table. Cannot "
                                    "complete while this cell is empty."),
                                 QMessageBox::Ok);
            return;
        }
    }
    QDialog::accept();
}

void CreatePowerInductorModelDialog::loadFromImagePressed()
{
    if (!m_call || !m_call->CallScriptFunction)
        return;
    ArgRecord captured{};
    int error = 0;
    if (!m_call->CallScriptFunction(m_call, "GraphImageCapture", nullptr, 0, &captured, &error)
        || error != 0 || !captured.data || captured.count < 1)
        return;
    const auto* values = static_cast<const double*>(captured.data);
    // N comes first; a host that claims more points than it sent gets the
    // points it sent.
    const long long available = (captured.count - 1) / 2;
    const int rows = clampedRows(std::min(values[0], double(available)));
    QTableWidget* table = m_ui->tableWidget;
    table->clearContents();
    table->setRowCount(rows);
    for (int row = 0; row < rows; ++row) {
        table->setItem(row, 0, numberItem(values[1 + row]));
        table->setItem(row, 1, numberItem(values[1 + rows + row]));
    }
    setRowHeights();
}

void CreatePowerInductorModelDialog::pastePressed()
{
    YString clipboard;
    if (!sp_PasteTextFromClipboard(&clipboard) || toQs(clipboard).isEmpty())
        return;
    YArray<YString> parts;
    sp_ScanLine(clipboard.c_str(), " \t\n\r,()", &parts, 0x7fffffff);
    const int rows = clampedRows(double(parts.count() / 2));
    QTableWidget* table = m_ui->tableWidget;
    table->clearContents();
    table->setRowCount(rows);
    for (int row = 0; row < rows; ++row) {
        table->setItem(row, 0, textItem(toQs(parts[2 * row])));
        table->setItem(row, 1, textItem(toQs(parts[2 * row + 1])));
    }
}

void CreatePowerInductorModelDialog::swapIAndLPressed()
{
    QTableWidget* table = m_ui->tableWidget;
    for (int row = 0; row < table->rowCount(); ++row) {
        QTableWidgetItem* i = table->takeItem(row, 0);
        QTableWidgetItem* l = table->takeItem(row, 1);
        table->setItem(row, 0, l);
        table->setItem(row, 1, i);
    }
}

// Cells a user typed get the alignment of the loaded ones.
void CreatePowerInductorModelDialog::tableItemChanged(QTableWidgetItem* item)
{
    if (item && item->textAlignment() != int(kCellAlignment))
        item->setTextAlignment(kCellAlignment);
}

// A change in the last row adds a spare one, so there is always room to type.
void CreatePowerInductorModelDialog::tableItemChanged(int row, int /*column*/)
{
    QTableWidget* table = m_ui->tableWidget;
    if (row >= 0 && table->rowCount() == row + 1 && table->rowCount() < kMaxRows)
        table->insertRow(table->rowCount());
}

void CreatePowerInductorModelDialog::initialConditionEnableClicked()
{
    m_ui->initialConditionEdit->setEnabled(m_ui->cbInitialConditionEnable->isChecked());
}

void CreatePowerInductorModelDialog::infinityClicked()
{
    m_ui->editbox_ShuntR->setEnabled(!m_ui->checkbox_ShuntR_Infinity->isChecked());
}

namespace {

long long createPowerInductorModel(UserFunctionInterface* call)
{
    CreatePowerInductorModelDialog dialog(call);
    sp_AutoSaveDialogDims(&dialog);
    sp_ApplyVantrellIcon(&dialog);
    dialog.load(dialogcommon::stringArg(call, 0));
    if (dialog.exec() == QDialog::Accepted)
        dialogcommon::setStringResult(call, dialog.result());
    return 0;
}

} // namespace

static const FunctionRegistration registerCreatePowerInductorModel(
    "CreatePowerInductorModel", argLimits(0, 1), &createPowerInductorModel, {ArgStrings});

#include "createpowerinductormodeldialog.moc"
