// MeasureDialog: which measurement to apply to a curve. The list comes
// from the script as definition lines; one entry, "Custom", opens a second
// tab where the user writes a measurement of their own. The form's bindings
// give the script its answer; this class keeps the form coherent.
#include "dialogcommon.h"
#include "measuredefinitions.h"
#include "registration.h"

#include "ui_measuredialog.h"

#include <QDialog>
#include <QListWidgetItem>
#include <QShowEvent>

#include <memory>
#include <new>

namespace {

const QLatin1String kHaveCursors("haveCursors");
const QLatin1String kCustom("Custom");

// A measurement in the list. An item that requires cursors when the caller
// has none is greyed and can't be run.
class MeasureListBoxItem : public QListWidgetItem {
public:
    MeasureListBoxItem(QListWidget* list, const measuredefs::Choice& choice, bool disabled)
        : QListWidgetItem(choice.name, list, QListWidgetItem::Type)
    {
        replace(choice, disabled);
        factoryDefinition = choice.factory;
    }

    void setEnabledState(bool enabled)
    {
        setFlags(enabled ? flags() | Qt::ItemIsEnabled : flags() & ~Qt::ItemIsEnabled);
        disabled = !enabled;
        setForeground(QBrush(enabled ? QColor(0, 0, 0, 255) : QColor(128, 128, 128, 255)));
    }

    // A user line taking over a factory one: flags and colour stay.
    void replace(const measuredefs::Choice& choice, bool isDisabled)
    {
        name = choice.name;
        description = choice.description;
        requiresCursors = choice.requiresCursors;
        disabled = isDisabled;
    }

    QString name;
    QString description;
    bool disabled = false;
    bool requiresCursors = false;
    bool factoryDefinition = false;
};

class MeasureDialog : public QDialog {
    Q_OBJECT

public:
    explicit MeasureDialog(UserFunctionInterface* call);
    ~MeasureDialog() override;

public slots:
    void measureItemsListBox_clicked(QListWidgetItem* item);
    void cbSaveDefs_clicked();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void loadDefinitions(const QStringList& lines);
    void selectionChanged();

    std::unique_ptr<Ui::MeasureDialog> m_ui;
    bool m_rememberedCursorSpan = false;
    bool m_haveCursors = false;
    bool m_shown = false;
};

MeasureDialog::MeasureDialog(UserFunctionInterface* call)
    : QDialog(nullptr)
    , m_ui(new Ui::MeasureDialog)
{
    setObjectName(QStringLiteral("MeasureDialog"));
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    connect(m_ui->measureItemsListBox, &QListWidget::itemClicked, this,
            &MeasureDialog::measureItemsListBox_clicked);
    connect(m_ui->cbSaveDefs, &QAbstractButton::clicked, this, &MeasureDialog::cbSaveDefs_clicked);

    const QStringList lines = dialogcommon::stringArg(call, 0);
    const QString startName = dialogcommon::elementOr(dialogcommon::stringArg(call, 1), 0);
    m_haveCursors = dialogcommon::elementOr(dialogcommon::stringArg(call, 2), 0)
                        .compare(kHaveCursors, Qt::CaseInsensitive) == 0;

    m_ui->longDescriptionLabel->clear();
    if (m_haveCursors) {
        m_ui->messageLabel->hide();
    } else {
        m_ui->cbCursorSpan->setChecked(false);
        m_ui->cbCursorSpan->setEnabled(false);
        m_ui->messageLabel->setText(
            tr("Some items are disabled as they require cursors to be switched on\n"));
    }
    loadDefinitions(lines);

    ListBox* list = m_ui->measureItemsListBox;
    list->setStringValue(startName);
    QListWidgetItem* selected = list->selectedItem();
    list->setFocus(Qt::OtherFocusReason);
    measureItemsListBox_clicked(selected);

    // Keys move the selection without a click; the form follows them the
    // same way, and so it does when the host selects the start name.
    connect(list, &QListWidget::itemSelectionChanged, this, &MeasureDialog::selectionChanged);
}

MeasureDialog::~MeasureDialog() = default;

void MeasureDialog::loadDefinitions(const QStringList& lines)
{
    ListBox* list = m_ui->measureItemsListBox;
    measuredefs::NameSet seen;
    for (const QString& line : lines) {
        measuredefs::Choice choice;
        if (!measuredefs::parseChoice(line, &choice))
            continue;
        const bool disabled = choice.requiresCursors && !m_haveCursors;
        if (!seen.contains(choice.name)) {
            auto* item = new MeasureListBoxItem(list, choice, disabled);
            seen.insert(choice.name);
            if (disabled)
                item->setEnabledState(false);
            continue;
        }
        // A user definition wins over a factory one, whichever came first.
        auto* item = dynamic_cast<MeasureListBoxItem*>(list->findItem(choice.name, Qt::MatchExactly));
        if (!item)
            continue;
        if (choice.factory && !item->factoryDefinition)
            item->factoryDefinition = true;
        else if (!choice.factory && item->factoryDefinition)
            item->replace(choice, disabled);
    }
}

void MeasureDialog::measureItemsListBox_clicked(QListWidgetItem* clicked)
{
    auto* item = dynamic_cast<MeasureListBoxItem*>(clicked);
    if (!item || !(item->flags() & Qt::ItemIsEnabled))
        return;
    m_ui->longDescriptionLabel->setText(item->description);
    QCheckBox* cursorSpan = m_ui->cbCursorSpan;
    if (cursorSpan->isEnabled())
        m_rememberedCursorSpan = cursorSpan->isChecked();
    m_ui->okButton1->setEnabled(!item->disabled);
    if (m_haveCursors) {
        if (item->requiresCursors) {
            cursorSpan->setChecked(true);
            cursorSpan->setEnabled(false);
        } else if (!cursorSpan->isEnabled()) {
            cursorSpan->setEnabled(true);
            cursorSpan->setChecked(m_rememberedCursorSpan);
        }
    }
    QTabWidget* tabs = m_ui->tabWidget;
    if (QWidget* custom = tabs->widget(1); custom && tabs->indexOf(custom) == 1)
        tabs->setTabEnabled(1, item->name.compare(kCustom, Qt::CaseInsensitive) == 0);
}

void MeasureDialog::cbSaveDefs_clicked()
{
    m_ui->saveDefinitionGroupBox->setEnabled(m_ui->cbSaveDefs->isChecked());
}

void MeasureDialog::selectionChanged()
{
    if (QListWidgetItem* item = m_ui->measureItemsListBox->selectedItem())
        measureItemsListBox_clicked(item);
}

void MeasureDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (m_shown)
        return;
    m_shown = true;
    // The host loads the bound widgets after the form was built: without
    // cursors there is no cursor span, whatever the script's element says,
    // and the save group follows its box as loaded.
    if (!m_haveCursors)
        m_ui->cbCursorSpan->setChecked(false);
    cbSaveDefs_clicked();
}

QDialog* createMeasureDialog(UserFunctionInterface* call, void* /*unused*/)
{
    return new (std::nothrow) MeasureDialog(call);
}

} // namespace

static const FunctionRegistration registerMeasureDialog("MeasureDialog", argLimits(0, 32),
                                                        &createMeasureDialog);

#include "measuredialog.moc"
