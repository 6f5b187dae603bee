// EfficiencyDialog: one form for every step of the efficiency calculator a
// script runs. In its main mode the user sorts the schematic's power probes
// into input and output probes; the same form then asks questions with a
// choice of buttons and icons, and reports results. The first word of
// argument 0 picks the mode of a call.
#include "dialogcommon.h"
#include "hostwidgets.h"
#include "registration.h"

#include "ui_efficiencydialog.h"

#include <QDialog>
#include <QLayout>
#include <QShowEvent>

#include <memory>
#include <new>

namespace {

enum Mode { ProbeSelection, Results, MessageOk, MessageContinue, MessageSimulate, MessageYesNo, MessageClose };

// Valid from the factory call to the end of the dialog's run: one dialog at
// a time. The probe name lasts across calls until a call names another.
Mode g_mode = ProbeSelection;
QString& selectedProbeName()
{
    static QString name;
    return name;
}

const char kProbeIcon[] = ":/power_probe_24x24.png";

struct ModeWord {
    const char* word;
    Mode mode;
    const char* ok;     // button text; null keeps the form's
    const char* answer; // what the accepted dialog returns; null for the lists
    bool cancel;
};

// The button words are the form's texts, translated in its context.
const ModeWord kModes[] = {
    {"results", Results, nullptr, nullptr, false},
    {"ok", MessageOk, QT_TRANSLATE_NOOP("EfficiencyDialog", "Ok"), "Ok", false},
    {"continuecancel", MessageContinue, QT_TRANSLATE_NOOP("EfficiencyDialog", "Continue"), "Continue", true},
    {"simulatecancel", MessageSimulate, QT_TRANSLATE_NOOP("EfficiencyDialog", "Simulate"), "Simulate", true},
    {"yesno", MessageYesNo, QT_TRANSLATE_NOOP("EfficiencyDialog", "Yes"), "YES", true},
    {"close", MessageClose, QT_TRANSLATE_NOOP("EfficiencyDialog", "Close"), "Close", false},
};

const ModeWord* modeWord(Mode mode)
{
    for (const ModeWord& m : kModes) {
        if (m.mode == mode)
            return &m;
    }
    return nullptr;
}

Mode modeOf(const QString& word)
{
    for (const ModeWord& m : kModes) {
        if (word.compare(QLatin1String(m.word), Qt::CaseInsensitive) == 0)
            return m.mode;
    }
    return ProbeSelection;
}

QIcon probeIcon()
{
    return QIcon(QPixmap(QString::fromLatin1(kProbeIcon)));
}

class EfficiencyDialog : public QDialog {
    Q_OBJECT

public:
    explicit EfficiencyDialog(QWidget* parent = nullptr, const char* name = nullptr)
        : QDialog(parent)
        , m_ui(new Ui::EfficiencyDialog)
    {
        if (name)
            setObjectName(QString::fromLatin1(name));
        m_ui->setupUi(this);
        setModal(true);
        Ui::EfficiencyDialog& ui = *m_ui;
        connect(ui.pushButtonRemoveOutput, &QToolButton::clicked, this,
                &EfficiencyDialog::pushButtonRemoveOutput_Clicked);
        connect(ui.pushButtonAddOutput, &QToolButton::clicked, this, &EfficiencyDialog::pushButtonAddOutput_Clicked);
        connect(ui.pushButtonRemoveInput, &QToolButton::clicked, this,
                &EfficiencyDialog::pushButtonRemoveInput_Clicked);
        connect(ui.pushButtonAddInput, &QToolButton::clicked, this, &EfficiencyDialog::pushButtonAddInput_Clicked);
        connect(ui.listBoxAllProbes, &QListWidget::itemPressed, this, &EfficiencyDialog::listBoxAllProbes_clicked);
        connect(ui.listBoxInputProbes, &QListWidget::itemPressed, this,
                &EfficiencyDialog::listBoxInputProbes_clicked);
        connect(ui.listBoxOutputProbes, &QListWidget::itemPressed, this,
                &EfficiencyDialog::listBoxOutputProbes_clicked);
        connect(ui.okButton, &QPushButton::clicked, this, &EfficiencyDialog::formAccepted);
        connect(ui.cancelButton, &QPushButton::clicked, this, &EfficiencyDialog::formRejected);
        connect(ui.helpButton, &QPushButton::clicked, this, &EfficiencyDialog::runHelp);
    }

    void start(UserFunctionInterface* call);

public slots:
    void pushButtonRemoveOutput_Clicked();
    void pushButtonAddOutput_Clicked();
    void pushButtonRemoveInput_Clicked();
    void pushButtonAddInput_Clicked();
    void listBoxAllProbes_clicked();
    void listBoxInputProbes_clicked();
    void listBoxOutputProbes_clicked();
    void formAccepted();
    void validateSelections();
    void formRejected() {}
    void runHelp();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void fitToContents();

private:
    // Moves the selected probes of from to to, selected there.
    void moveProbes(ListBox* from, ListBox* to);
    // Clears the other lists' selections; true if list has a selected item.
    bool pickList(ListBox* list);
    void setButtons(bool addInput, bool addOutput, bool removeInput, bool removeOutput);

    std::unique_ptr<Ui::EfficiencyDialog> m_ui;
    int m_helpTopic = -1;
};

void EfficiencyDialog::start(UserFunctionInterface* call)
{
    Ui::EfficiencyDialog& ui = *m_ui;
    const QStringList mode = dialogcommon::stringArg(call, 0);
    const QStringList probes = dialogcommon::stringArg(call, 1);
    const QStringList texts = dialogcommon::stringArg(call, 2);
    const QStringList info = dialogcommon::stringArg(call, 3);

    ui.pushButtonAddInput->setIcon(QIcon(QStringLiteral(":/16x16_downarrow_transparent_bg.png")));
    ui.pushButtonAddOutput->setIcon(QIcon(QStringLiteral(":/16x16_downarrow_transparent_bg.png")));
    ui.pushButtonRemoveInput->setIcon(QIcon(QStringLiteral(":/16x16_uparrow_transparent_bg.png")));
    ui.pushButtonRemoveOutput->setIcon(QIcon(QStringLiteral(":/16x16_uparrow_transparent_bg.png")));
    g_mode = modeOf(dialogcommon::elementOr(mode, 0));

    if (g_mode != ProbeSelection) {
        for (QWidget* w : {static_cast<QWidget*>(ui.groupBoxAllProbes),
                           static_cast<QWidget*>(ui.groupBoxInputProbes),
                           static_cast<QWidget*>(ui.groupBoxOutputProbes),
                           static_cast<QWidget*>(ui.pushButtonAddInput),
                           static_cast<QWidget*>(ui.pushButtonRemoveInput),
                           static_cast<QWidget*>(ui.pushButtonAddOutput),
                           static_cast<QWidget*>(ui.pushButtonRemoveOutput)})
            w->hide();
    }
    if (g_mode == Results) {
        ui.pixmapInfo->hide();
        ui.labelInfo->hide();
        ui.checkBoxMessage->hide();
        ui.textBrowserResults->show();
        ui.cancelButton->hide();
        if (texts.size() >= 2)
            ui.textBrowserResults->setHtml(texts.at(1));
    } else if (g_mode == ProbeSelection) {
        ui.checkBoxMessage->hide();
        ui.pixmapInfo->hide();
        ui.textBrowserResults->hide();
    } else {
        ui.textBrowserResults->hide();
    }

    ui.okButton->setDefault(true);
    if (const ModeWord* word = modeWord(g_mode); word && word->ok) {
        ui.okButton->setText(tr(word->ok));
        if (word->cancel)
            ui.cancelButton->setText(g_mode == MessageYesNo ? tr("No") : tr("Cancel"));
        else
            ui.cancelButton->hide();
    }

    QString icon = QStringLiteral(":/qmessagebox-info_transparent_bg.png");
    if (mode.size() >= 2) {
        const QString kind = mode.at(1);
        if (kind.compare(QLatin1String("warn"), Qt::CaseInsensitive) == 0)
            icon = QStringLiteral(":/qmessagebox-warn_transparent_bg.png");
        else if (kind.compare(QLatin1String("question"), Qt::CaseInsensitive) == 0)
            icon = QStringLiteral(":/qmessagebox-quest_transparent_bg.png");
        else if (kind.compare(QLatin1String("info"), Qt::CaseInsensitive) != 0)
            icon.clear();
    }
    ui.pixmapInfo->setPixmap(icon.isEmpty() ? QPixmap() : QPixmap(icon));

    const bool askAgain = mode.size() > 2 && dialogcommon::leadingInt(mode.at(2)) != 0;
    ui.checkBoxMessage->setVisible(askAgain);
    ui.checkBoxMessage->setOutElementIndex(askAgain ? 1 : 0);

    if (probes.size() > 3)
        selectedProbeName() = probes.at(3);
    // The frame loads only the list it fills from an element; the two
    // target lists take their items here.
    ui.listBoxInputProbes->initialiseWidget(call);
    ui.listBoxOutputProbes->initialiseWidget(call);

    m_helpTopic = info.isEmpty() ? -1 : dialogcommon::leadingInt(info.at(0));
    if (m_helpTopic < 0)
        ui.helpButton->hide();
    if (info.size() > 1)
        setWindowTitle(info.at(1));
}

// The size the mode's contents ask for. adjustSize() would also hold the
// window to two thirds of a small screen and squeeze the lists to a line.
void EfficiencyDialog::fitToContents()
{
    if (layout())
        layout()->activate();
    resize(sizeHint().expandedTo(minimumSizeHint()));
}

void EfficiencyDialog::showEvent(QShowEvent* event)
{
    Ui::EfficiencyDialog& ui = *m_ui;
    if (g_mode != ProbeSelection) {
        ui.okButton->setEnabled(true);
        fitToContents();
        QDialog::showEvent(event);
        return;
    }
    // The probes are picked while the schematic stays usable.
    setModal(false);
    for (ListBox* list : {ui.listBoxAllProbes, ui.listBoxInputProbes, ui.listBoxOutputProbes}) {
        QStringList names;
        for (int row = 0; row < list->count(); ++row)
            names << list->item(row)->text();
        list->clear();
        for (const QString& name : names)
            list->addItem(new QListWidgetItem(probeIcon(), name));
    }
    ListBox* all = ui.listBoxAllProbes;
    QListWidgetItem* chosen = all->findItem(selectedProbeName(), Qt::MatchStartsWith);
    if (!chosen && all->count() > 0)
        chosen = all->item(all->count() - 1);
    if (chosen) {
        all->setSelected(chosen, true);
        all->setCurrentItem(chosen);
    }
    all->setFocus();
    listBoxAllProbes_clicked();
    validateSelections();
    fitToContents();
    QDialog::showEvent(event);
}

bool EfficiencyDialog::pickList(ListBox* list)
{
    for (ListBox* other : {m_ui->listBoxAllProbes, m_ui->listBoxInputProbes, m_ui->listBoxOutputProbes}) {
        if (other != list)
            other->clearSelection();
    }
    return !list->selectedItems().isEmpty();
}

void EfficiencyDialog::setButtons(bool addInput, bool addOutput, bool removeInput, bool removeOutput)
{
    m_ui->pushButtonAddInput->setEnabled(addInput);
    m_ui->pushButtonAddOutput->setEnabled(addOutput);
    m_ui->pushButtonRemoveInput->setEnabled(removeInput);
    m_ui->pushButtonRemoveOutput->setEnabled(removeOutput);
}

void EfficiencyDialog::listBoxAllProbes_clicked()
{
    const bool selected = pickList(m_ui->listBoxAllProbes);
    setButtons(selected, selected, false, false);
}

void EfficiencyDialog::listBoxInputProbes_clicked()
{
    setButtons(false, false, pickList(m_ui->listBoxInputProbes), false);
}

void EfficiencyDialog::listBoxOutputProbes_clicked()
{
    setButtons(false, false, false, pickList(m_ui->listBoxOutputProbes));
}

void EfficiencyDialog::moveProbes(ListBox* from, ListBox* to)
{
    to->clearSelection();
    QList<int> moved;
    for (int row = 0; row < from->count(); ++row) {
        if (!from->item(row)->isSelected())
            continue;
        auto* item = new QListWidgetItem(probeIcon(), from->item(row)->text());
        to->addItem(item);
        item->setSelected(true);
        to->setCurrentItem(item);
        moved << row;
    }
    for (int i = moved.size() - 1; i >= 0; --i)
        delete from->takeItem(moved.at(i));
    to->setFocus();
}

void EfficiencyDialog::pushButtonAddInput_Clicked()
{
    moveProbes(m_ui->listBoxAllProbes, m_ui->listBoxInputProbes);
    listBoxInputProbes_clicked();
    validateSelections();
}

void EfficiencyDialog::pushButtonAddOutput_Clicked()
{
    moveProbes(m_ui->listBoxAllProbes, m_ui->listBoxOutputProbes);
    listBoxOutputProbes_clicked();
    validateSelections();
}

void EfficiencyDialog::pushButtonRemoveInput_Clicked()
{
    moveProbes(m_ui->listBoxInputProbes, m_ui->listBoxAllProbes);
    listBoxAllProbes_clicked();
    validateSelections();
}

void EfficiencyDialog::pushButtonRemoveOutput_Clicked()
{
    moveProbes(m_ui->listBoxOutputProbes, m_ui->listBoxAllProbes);
    listBoxAllProbes_clicked();
    validateSelections();
}

void EfficiencyDialog::validateSelections()
{
    m_ui->okButton->setEnabled(m_ui->listBoxInputProbes->count() > 0
                               && m_ui->listBoxOutputProbes->count() > 0);
}

void EfficiencyDialog::formAccepted()
{
    Ui::EfficiencyDialog& ui = *m_ui;
    if (g_mode == ProbeSelection) {
        for (ListBox* list : {ui.listBoxAllProbes, ui.listBoxInputProbes, ui.listBoxOutputProbes})
            list->selectAll();
        accept();
        return;
    }
    ui.listBoxInputProbes->setOutElementIndex(-1);
    ui.listBoxOutputProbes->setOutElementIndex(-1);
    const ModeWord* word = modeWord(g_mode);
    if (!word || !word->answer) {
        ui.listBoxAllProbes->setOutElementIndex(-1);
        accept();
        return;
    }
    // Element 0 tells the script which button ended the dialog.
    ui.listBoxAllProbes->clear();
    ui.listBoxAllProbes->addItem(QString::fromLatin1(word->answer));
    ui.listBoxAllProbes->selectAll();
    accept();
}

void EfficiencyDialog::runHelp()
{
    dialogcommon::runHelp(m_helpTopic);
}

QDialog* createEfficiencyDialog(UserFunctionInterface* call, void* /*unused*/)
{
    auto* dialog = new (std::nothrow) EfficiencyDialog(nullptr, "EfficiencyDialog");
    if (dialog)
        dialog->start(call);
    return dialog;
}

} // namespace

static const FunctionRegistration registerEfficiencyDialog("EfficiencyDialog", argLimits(0, 32),
                                                           &createEfficiencyDialog);

#include "efficiencydialog.moc"
