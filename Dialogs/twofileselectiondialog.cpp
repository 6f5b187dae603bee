// TwoFileSelectionDialog: an input file, an output file, an optional short
// description and a check box, for tools that read one file and write
// another. Each field remembers its last entries, so a tool run twice finds
// its files again; the output name can be proposed from the input name.
#include "dialogcommon.h"
#include "hostsupport.h"
#include "hostwidgets.h"
#include "registration.h"

#include "ui_twofileselectiondialog.h"

#include <QDebug>
#include <QDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QSignalMapper>

#include <cstdlib>
#include <memory>

namespace {

const char kPreferences[] = "DialogPreferences";
const int kDescriptionLength = 32;
const int kHistoryEntries = 10;
// Buffers for the stored histories, without their terminating NUL.
const int kFileHistorySize = 4095;
const int kDescriptionHistorySize = 511;

// Argument 1: texts of the form.
enum TextElement {
    TextWindowTitle,
    TextTitle,
    TextTopTitle,
    TextTop,
    TextInputTitle,
    TextInput,
    TextOutputTitle,
    TextOutput,
    TextCheckBox,
    TextDescriptionTitle,
    TextDescription,
    TextDescriptionHidden,
    TextHelpTopic
};

// Argument 2: behaviour.
enum BehaviourElement {
    KeyInputHistory,
    KeyOutputHistory,
    KeyDescriptionHistory,
    KeyCheckBox,
    InputKind,
    OutputKind,
    OutputNameMode,
    OutputNameSuffix
};

} // namespace

class TwoFileSelectionDialog : public QDialog {
    Q_OBJECT

public:
    explicit TwoFileSelectionDialog(UserFunctionInterface* call);
    ~TwoFileSelectionDialog() override;

public slots:
    void toolButton_clicked(QWidget* widget);
    void descriptionChanged(const QString& text);
    void validateReturns();
    void helpButton_clicked();

private:
    void applyTexts(const QStringList& texts);
    void loadHistory(ComboBox* combo, const QString& key, int size);
    void saveHistory(ComboBox* combo, const QString& key);
    QString fileFilter(const QString& kind) const;
    void showCharactersLeft(const QString& text);

    std::unique_ptr<Ui::TwoFileSelectionDialog> m_ui;
    UserFunctionInterface* m_call;
    QSignalMapper* m_mapper;
    QString m_helpTopic;
    QString m_inputHistoryKey;
    QString m_outputHistoryKey;
    QString m_descriptionHistoryKey;
    QString m_checkBoxKey;
    QString m_inputKind;
    QString m_outputKind;
    QString m_outputNameMode;
    QString m_outputNameSuffix;
    QString m_inputFilter;
    QString m_outputFilter;
    QStringList m_documentKinds;
};

TwoFileSelectionDialog::TwoFileSelectionDialog(UserFunctionInterface* call)
    : QDialog(nullptr)
    , m_ui(new Ui::TwoFileSelectionDialog)
    , m_call(call)
    , m_mapper(new QSignalMapper(this))
{
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    m_mapper->setMapping(m_ui->toolButtonInput, m_ui->comboBoxInputFile);
    m_mapper->setMapping(m_ui->toolButtonOutput, m_ui->comboBoxOutputFile);
    connect(m_ui->toolButtonInput, &QToolButton::clicked, m_mapper,
            qOverload<>(&QSignalMapper::map));
    connect(m_ui->toolButtonOutput, &QToolButton::clicked, m_mapper,
            qOverload<>(&QSignalMapper::map));
    connect(m_mapper, &QSignalMapper::mappedWidget, this,
            &TwoFileSelectionDialog::toolButton_clicked);

    const QStringList values = dialogcommon::stringArg(call, 0);
    ComboBox* const combos[] = {m_ui->comboBoxInputFile, m_ui->comboBoxOutputFile,
                                m_ui->comboBoxDescription};
    for (int i = 0; i < 3; ++i) {
        if (i >= values.size())
            continue;
        if (!values.at(i).isEmpty())
            combos[i]->insertItem(values.at(i), 0);
        combos[i]->setEditText(values.at(i));
    }
    descriptionChanged(m_ui->comboBoxDescription->currentText());

    const QStringList texts = dialogcommon::stringArg(call, 1);
    applyTexts(texts);

    const QStringList behaviour = dialogcommon::stringArg(call, 2);
    m_inputHistoryKey = dialogcommon::elementOr(behaviour, KeyInputHistory);
    m_outputHistoryKey = dialogcommon::elementOr(behaviour, KeyOutputHistory);
    m_descriptionHistoryKey = dialogcommon::elementOr(behaviour, KeyDescriptionHistory);
    m_checkBoxKey = dialogcommon::elementOr(behaviour, KeyCheckBox);
    m_inputKind = dialogcommon::elementOr(behaviour, InputKind);
    m_outputKind = dialogcommon::elementOr(behaviour, OutputKind);
    m_outputNameMode = dialogcommon::elementOr(behaviour, OutputNameMode);
    m_outputNameSuffix = dialogcommon::elementOr(behaviour, OutputNameSuffix);

    // Window sizes are filed by object name: the same texts and keys find
    // their size again.
    const QString key = texts.join(QString()) + behaviour.join(QString());
    setObjectName(QStringLiteral("TwoFileSelectionDialog_%1")
                      .arg(toYs(key).hashValue() % 1001u));

    loadHistory(m_ui->comboBoxInputFile, m_inputHistoryKey, kFileHistorySize);
    loadHistory(m_ui->comboBoxOutputFile, m_outputHistoryKey, kFileHistorySize);
    loadHistory(m_ui->comboBoxDescription, m_descriptionHistoryKey, kDescriptionHistorySize);
    // The newest description may have become the current text.
    showCharactersLeft(m_ui->comboBoxDescription->currentText());

    bool checked = true;
    if (!m_checkBoxKey.isEmpty()) {
        char buffer[8] = {};
        if (cfgman_GetConfigSetting(kPreferences, Tocs(m_checkBoxKey), buffer,
                                    int(sizeof buffer) - 1, false))
            checked = qstrcmp(buffer, "1") == 0;
    }
    if (values.size() > 3)
        checked = dialogcommon::leadingInt(values.at(3)) != 0;
    m_ui->checkbox->setChecked(checked);

    m_documentKinds = QStringList{
        QStringLiteral("Schematic"),  QStringLiteral("Model"),
        QStringLiteral("Netlist"),    QStringLiteral("Graph"),
        QStringLiteral("Script"),     QStringLiteral("VerilogA"),
        QStringLiteral("VerilogHDL"), QStringLiteral("Data"),
        QStringLiteral("Text"),       QStringLiteral("AsciiFileEditor"),
        QStringLiteral("LogicDef"),   QStringLiteral("Init")};
    m_inputFilter = fileFilter(m_inputKind);
    m_outputFilter = fileFilter(m_outputKind);

    // Connected only now, so that filling the form shows no warning twice.
    connect(m_ui->comboBoxDescription, &QComboBox::editTextChanged, this,
            &TwoFileSelectionDialog::descriptionChanged);
    connect(m_ui->okButton, &QPushButton::clicked, this,
            &TwoFileSelectionDialog::validateReturns);
    connect(m_ui->helpButton, &QPushButton::clicked, this,
            &TwoFileSelectionDialog::helpButton_clicked);

    resize(1, 1);
}

TwoFileSelectionDialog::~TwoFileSelectionDialog() = default;

void TwoFileSelectionDialog::applyTexts(const QStringList& texts)
{
    auto has = [&texts](int i) { return i < texts.size(); };
    auto at = [&texts](int i) { return dialogcommon::elementOr(texts, i); };
    // A label the script leaves empty takes no room.
    auto setLabel = [&](QLabel* label, int i) {
        if (has(i))
            label->setText(at(i));
        label->setHidden(label->text().isEmpty());
    };

    if (has(TextWindowTitle))
        setWindowTitle(at(TextWindowTitle));
    setLabel(m_ui->labelTitle, TextTitle);
    if (has(TextTopTitle))
        m_ui->groupBoxTop->setTitle(at(TextTopTitle));
    setLabel(m_ui->labelTop, TextTop);
    // A description group with nothing to describe would stand empty.
    m_ui->groupBoxTop->setHidden(m_ui->labelTop->isHidden());
    if (has(TextInputTitle))
        m_ui->groupBoxInput->setTitle(at(TextInputTitle));
    setLabel(m_ui->labelInput, TextInput);
    if (has(TextOutputTitle))
        m_ui->groupBoxOutput->setTitle(at(TextOutputTitle));
    setLabel(m_ui->labelOutput, TextOutput);
    if (has(TextCheckBox))
        m_ui->checkbox->setText(at(TextCheckBox));
    if (has(TextDescriptionTitle))
        m_ui->groupBoxDescription->setTitle(at(TextDescriptionTitle));
    setLabel(m_ui->labelDescription, TextDescription);
    m_ui->groupBoxDescription->setHidden(!has(TextDescriptionHidden)
                                         || at(TextDescriptionHidden) == QLatin1String("1"));
    m_helpTopic = at(TextHelpTopic);
    m_ui->helpButton->setHidden(m_helpTopic.isEmpty());
}

// Entries below the current one, newest first, each once.
void TwoFileSelectionDialog::loadHistory(ComboBox* combo, const QString& key, int size)
{
    if (key.isEmpty())
        return;
    std::unique_ptr<char[]> buffer(new char[size + 1]());
    if (!cfgman_GetConfigSetting(kPreferences, Tocs(key), buffer.get(), size, false))
        return;
    const QStringList entries = QString::fromLatin1(buffer.get())
                                    .split(QLatin1Char(';'), Qt::SkipEmptyParts);
    int position = 1;
    for (const QString& entry : entries) {
        if (position > kHistoryEntries)
            break;
        if (combo->findText(entry, Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0)
            continue;
        combo->insertItem(entry, position++);
    }
}

void TwoFileSelectionDialog::saveHistory(ComboBox* combo, const QString& key)
{
    if (key.isEmpty())
        return;
    QStringList entries{combo->currentText()};
    for (int i = 0; i < combo->count(); ++i)
        entries << combo->itemText(i);
    entries.removeAll(QString());
    entries.removeDuplicates();
    const QString value = entries.mid(0, kHistoryEntries).join(QLatin1Char(';'));
    cfgman_WriteConfigSetting(kPreferences, Tocs(key), Tocs(value));
}

// "Netlist Files (*.net *.cir *.sp *.spi)" for a known document kind.
QString TwoFileSelectionDialog::fileFilter(const QString& kind) const
{
    if (!m_documentKinds.contains(kind, Qt::CaseSensitive))
        return tr("All Files (*.*)");
    YList<YString> extensions;
    sp_GetVantrellFileExtension(Tocs(kind), &extensions);
    QStringList patterns;
    for (long long i = 0; i < extensions.count(); ++i)
        patterns << QLatin1Char('*') + toQs(extensions[i]);
    return tr("%1 Files (%2)").arg(kind, patterns.join(QLatin1Char(' ')));
}

void TwoFileSelectionDialog::toolButton_clicked(QWidget* widget)
{
    auto* combo = qobject_cast<ComboBox*>(widget);
    if (!combo)
        return;
    const QString start = combo->currentText();
    QFileDialog::Options options;
    if (sp_GetBoolOption("UseNonNativeFileDialog", nullptr))
        options |= QFileDialog::DontUseNativeDialog;

    QString chosen;
    if (combo->outElementIndex() != 0) {
        qDebug() << "output filter" << m_outputFilter;
        chosen = QFileDialog::getSaveFileName(this, tr("Select Output File Name"), start,
                                              m_outputFilter, nullptr, options);
    } else {
        qDebug() << "input filter" << m_inputFilter;
        chosen = QFileDialog::getOpenFileName(this, tr("Select Input File Name"), start,
                                              m_inputFilter, nullptr, options);
        if (!chosen.isEmpty()) {
            const QFileInfo info(chosen);
            // A name without extension gets none, not a lone dot.
            const QString extension =
                info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
            const QString directory = info.absolutePath() + QLatin1Char('/');
            QString proposal;
            if (m_outputNameMode == QLatin1String("file"))
                proposal = directory + info.completeBaseName() + m_outputNameSuffix + extension;
            else if (m_outputNameMode == QLatin1String("ext"))
                proposal = directory + info.baseName() + extension + m_outputNameSuffix;
            if (!proposal.isEmpty()) {
                m_ui->comboBoxOutputFile->insertItem(proposal, 0);
                m_ui->comboBoxOutputFile->setCurrentIndex(0);
            }
        }
    }
    qDebug() << "chosen" << chosen;
    if (chosen.isEmpty())
        return;
    combo->insertItem(chosen, 0);
    combo->setCurrentIndex(0);
}

void TwoFileSelectionDialog::descriptionChanged(const QString& text)
{
    if (text.length() > kDescriptionLength)
        QMessageBox::warning(this, tr("Warning: Greater than 32 character description"),
                             tr("The description must be less than 32 characters"),
                             QMessageBox::Ok);
    showCharactersLeft(text);
}

// May go negative: the count tells how much is too long.
void TwoFileSelectionDialog::showCharactersLeft(const QString& text)
{
    m_ui->labelNumChars->setText(
        tr("Characters left: %1").arg(kDescriptionLength - text.length()));
}

void TwoFileSelectionDialog::validateReturns()
{
    if (!sp_ExistFile(Tocs(m_ui->comboBoxInputFile->currentText()))) {
        QMessageBox::critical(
            this, tr("Error: Input file doesn't exist"),
            tr("The input file doesn't exist on disk. Check the path and/or click on the "
               "<b>Select...</b> button to locate the input file."),
            QMessageBox::Ok);
        return;
    }
    saveHistory(m_ui->comboBoxInputFile, m_inputHistoryKey);
    saveHistory(m_ui->comboBoxOutputFile, m_outputHistoryKey);
    saveHistory(m_ui->comboBoxDescription, m_descriptionHistoryKey);
    if (!m_checkBoxKey.isEmpty())
        cfgman_WriteConfigSetting(kPreferences, Tocs(m_checkBoxKey),
                                  m_ui->checkbox->isChecked() ? "1" : "0");

    dialogcommon::setStringResult(
        m_call, {m_ui->comboBoxInputFile->currentText(), m_ui->comboBoxOutputFile->currentText(),
                 m_ui->comboBoxDescription->currentText(),
                 m_ui->checkbox->isChecked() ? QStringLiteral("1") : QStringLiteral("0")});
    QDialog::accept();
}

void TwoFileSelectionDialog::helpButton_clicked()
{
    dialogcommon::runHelp(m_helpTopic);
}

namespace {

long long runTwoFileSelectionDialog(UserFunctionInterface* call)
{
    TwoFileSelectionDialog dialog(call);
    sp_AutoSaveDialogDims(&dialog);
    sp_ApplyVantrellIcon(&dialog);
    dialog.exec();
    return 0;
}

} // namespace

static const FunctionRegistration registerTwoFileSelectionDialog(
    "TwoFileSelectionDialog", argLimits(0, 3), &runTwoFileSelectionDialog,
    {ArgStrings, ArgStrings, ArgStrings});

#include "twofileselectiondialog.moc"
