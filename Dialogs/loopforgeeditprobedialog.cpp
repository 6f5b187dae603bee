// LoopForgeEditProbeDialog: how a probe on a LoopForge bus plots its data,
// as a digital bus or an analog waveform, in which analyses, on which
// graph and in which colour. Values come in one array and go out in
// another of fixed layout; texts that end up in quoted property values
// can't take a double quote.
#include "colornumber.h"
#include "dialogcommon.h"
#include "hostwidgets.h"
#include "registration.h"

#include "ui_loopforgeeditprobedialog.h"

#include <QColorDialog>
#include <QDialog>
#include <QRegularExpressionValidator>

#include <memory>

namespace {

// Elements of argument 0 and of the result.
enum Value {
    CurveLabel,
    PlotKind,
    DigitalFormat,
    AnalogGain,
    AxisType,
    AxisName,
    DisplayOrder,
    Persistence,
    GraphName,
    AllDisabled,
    IntegerData,
    FloatData,
    Colour,
    ValueCount
};

// Elements of argument 1.
enum Info { Title, WindowTitle, FormatItems, FormatKeys, Multiple, HelpTopic };

const char kDefaultFormats[] = "signed decimal|decimal|hexadecimal|binary";
const char* const kAxisWords[] = {"auto", "axis", "grid", "digital"};

QString bit(bool on)
{
    return on ? QStringLiteral("1") : QStringLiteral("0");
}

class LoopForgeEditProbeDialog : public QDialog {
    Q_OBJECT

public:
    explicit LoopForgeEditProbeDialog(QWidget* parent = nullptr)
        : QDialog(parent)
        , m_ui(new Ui::LoopForgeEditProbeDialog)
    {
        m_ui->setupUi(this);
        setObjectName(QStringLiteral("LoopForgeEditProbeDialog"));
        Ui::LoopForgeEditProbeDialog& ui = *m_ui;
        connect(ui.checkBoxGraph, &QCheckBox::toggled, this, &LoopForgeEditProbeDialog::checkBoxGraph_toggled);
        connect(ui.checkBoxPersistence, &QCheckBox::toggled, this,
                &LoopForgeEditProbeDialog::checkBoxPersistence_toggled);
        connect(ui.checkBoxAllDisabled, &QCheckBox::toggled, this,
                &LoopForgeEditProbeDialog::checkBoxAllDisabled_Clicked);
        connect(ui.radioGroup2, &RadioGroup::clicked, this, &LoopForgeEditProbeDialog::radioGroupIntDataType_clicked);
        connect(ui.pushButtonColour, &QPushButton::clicked, this, &LoopForgeEditProbeDialog::editColor);
        connect(ui.pushButton3, &QPushButton::clicked, this, &LoopForgeEditProbeDialog::runHelp);
    }

    void load(const QStringList& values, const QStringList& info, const QStringList& tips);
    QStringList result() const;

public slots:
    void runHelp();
    void loadToolTips();
    void checkBoxAllDisabled_Clicked(bool on);
    void radioGroupIntDataType_clicked(int id);
    void checkBoxPersistence_toggled(bool on);
    void checkBoxGraph_toggled(bool on);
    void editColor();
    QColor convertColorBGRtoRGB(int value) { return colornumber::toColor(value); }

private:
    void loadValues(const QStringList& values, const QStringList& info);

    std::unique_ptr<Ui::LoopForgeEditProbeDialog> m_ui;
    QStringList m_toolTips;
    QStringList m_formatKeys;
    QString m_helpTopic;
    int m_valueCount = 0;
    int m_colourNumber = -1;
    bool m_hasHelpTopic = false;
    bool m_savedInteger = false;
    bool m_savedFloat = false;
};

void LoopForgeEditProbeDialog::load(const QStringList& values, const QStringList& info,
                                    const QStringList& tips)
{
    Ui::LoopForgeEditProbeDialog& ui = *m_ui;
    m_toolTips = tips;
    loadToolTips();

    auto* validator = new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[^\"]*")), this);
    for (QLineEdit* edit : {static_cast<QLineEdit*>(ui.editBoxCurveLabel),
                            static_cast<QLineEdit*>(ui.editBoxDisplayOrder),
                            static_cast<QLineEdit*>(ui.editBoxAxisName),
                            static_cast<QLineEdit*>(ui.editBoxGraphName)})
        edit->setValidator(validator);

    const QString title = dialogcommon::elementOr(info, Title);
    ui.labelTitle->setText(title);
    ui.labelTitle->setVisible(!title.isEmpty());
    setWindowTitle(info.size() > WindowTitle ? info.at(WindowTitle) : tr("Edit LoopForge Bus Probe"));
    if (values.size() > CurveLabel)
        ui.editBoxCurveLabel->setText(values.at(CurveLabel));
    if (info.size() > Multiple && dialogcommon::leadingInt(info.at(Multiple)) != 0) {
        ui.editBoxCurveLabel->setText(tr("Multiple curves selected"));
        ui.editBoxCurveLabel->setEnabled(false);
        ui.editBoxCurveLabel->setToolTip(
            tr("The Curve label control is disabled when editing multiple probes.\n"
               "This prevents you from accidentally renaming curves to the same name.\n"
               "To edit the Curve label, you will need to edit each probe individually.\n"
               "All other properties may be edited on this dialog."));
    }
    m_hasHelpTopic = info.size() > HelpTopic;
    m_helpTopic = dialogcommon::elementOr(info, HelpTopic);
    loadValues(values, info);

    ui.editBoxCurveLabel->selectAll();
    ui.editBoxCurveLabel->setFocus();
    ui.okButton1->setDefault(true);
    ui.editBoxGraphName->deselect();
}

void LoopForgeEditProbeDialog::loadValues(const QStringList& values, const QStringList& info)
{
    Ui::LoopForgeEditProbeDialog& ui = *m_ui;
    m_valueCount = values.size();
    const bool analog = dialogcommon::elementOr(values, PlotKind).compare(QLatin1String("analog"), Qt::CaseInsensitive) == 0;
    (analog ? ui.radioButtonAnalog : ui.radioButtonDigital)->setChecked(true);
    radioGroupIntDataType_clicked(analog ? 1 : 0);

    const QString items = info.size() > FormatItems ? info.at(FormatItems) : QString::fromLatin1(kDefaultFormats);
    ui.comboBoxDigitalFormat->addItems(items.split(QLatin1Char('|')));
    m_formatKeys = dialogcommon::elementOr(info, FormatKeys).split(QLatin1Char('|'));
    if (values.size() > DigitalFormat) {
        const int index = m_formatKeys.indexOf(values.at(DigitalFormat));
        if (index >= 0 && index < ui.comboBoxDigitalFormat->count())
            ui.comboBoxDigitalFormat->setCurrentIndex(index);
    }
    if (values.size() > AnalogGain)
        ui.spinnerAnalogGain->setText(values.at(AnalogGain));
    if (values.size() > AxisType) {
        const QString word = values.at(AxisType);
        QRadioButton* choice = ui.radioButtonAuto;
        if (word.compare(QLatin1String("axis"), Qt::CaseInsensitive) == 0)
            choice = ui.radioButtonYAxis;
        else if (word.compare(QLatin1String("grid"), Qt::CaseInsensitive) == 0)
            choice = ui.radioButtonGrid;
        else if (word.compare(QLatin1String("digital"), Qt::CaseInsensitive) == 0)
            choice = ui.radioButtonAnalogAxisDigital;
        choice->setChecked(true);
    }
    if (values.size() > AxisName)
        ui.editBoxAxisName->setText(values.at(AxisName));
    if (values.size() > DisplayOrder)
        ui.editBoxDisplayOrder->setText(values.at(DisplayOrder));
    if (values.size() > Persistence) {
        const bool byDefault = dialogcommon::leadingInt(values.at(Persistence)) == -1;
        ui.checkBoxPersistence->setChecked(byDefault);
        ui.spinnerPersistence->setText(byDefault ? QStringLiteral("0") : values.at(Persistence));
        checkBoxPersistence_toggled(byDefault);
    }
    if (values.size() > GraphName) {
        ui.editBoxGraphName->setText(values.at(GraphName));
        ui.checkBoxGraph->setChecked(!values.at(GraphName).isEmpty());
        ui.editBoxGraphName->setEnabled(ui.checkBoxGraph->isChecked());
    }
    if (values.size() > AllDisabled)
        ui.checkBoxAllDisabled->setChecked(sp_ConvertEngToReal(values.at(AllDisabled), nullptr) != 0.0);
    if (values.size() > IntegerData) {
        m_savedInteger = dialogcommon::leadingInt(values.at(IntegerData)) != 0;
        ui.checkBoxInteger->setChecked(m_savedInteger);
    }
    if (values.size() > FloatData) {
        m_savedFloat = dialogcommon::leadingInt(values.at(FloatData)) != 0;
        ui.checkBoxFloat->setChecked(m_savedFloat);
    }
    m_colourNumber = values.size() > Colour ? dialogcommon::leadingInt(values.at(Colour)) : -1;
    ui.checkBoxColour->setChecked(m_colourNumber < 0);
}

QStringList LoopForgeEditProbeDialog::result() const
{
    const Ui::LoopForgeEditProbeDialog& ui = *m_ui;
    QStringList out;
    out << ui.editBoxCurveLabel->text();
    out << (ui.radioButtonAnalog->isChecked() ? QStringLiteral("analog") : QStringLiteral("digital"));
    out << (m_valueCount > DigitalFormat ? m_formatKeys.value(ui.comboBoxDigitalFormat->currentIndex())
                                         : QString());
    out << ui.spinnerAnalogGain->text();
    int axis = 0;
    if (ui.radioButtonYAxis->isChecked())
        axis = 1;
    else if (ui.radioButtonGrid->isChecked())
        axis = 2;
    else if (ui.radioButtonAnalogAxisDigital->isChecked())
        axis = 3;
    out << QLatin1String(kAxisWords[axis]);
    out << ui.editBoxAxisName->text();
    out << ui.editBoxDisplayOrder->text();
    out << (ui.checkBoxPersistence->isChecked() ? QStringLiteral("-1") : ui.spinnerPersistence->text());
    out << (ui.checkBoxGraph->isChecked() ? ui.editBoxGraphName->text() : QString());
    out << (ui.checkBoxAllDisabled->isChecked() ? QStringLiteral("true") : QStringLiteral("false"));
    out << bit(ui.checkBoxInteger->isChecked());
    out << bit(ui.checkBoxFloat->isChecked());
    out << (ui.checkBoxColour->isChecked() ? QStringLiteral("-1") : QString::asprintf("%d", m_colourNumber));
    return out;
}

void LoopForgeEditProbeDialog::runHelp()
{
    if (!m_hasHelpTopic)
        return;
    dialogcommon::runHelp(m_helpTopic);
}

void LoopForgeEditProbeDialog::loadToolTips()
{
    Ui::LoopForgeEditProbeDialog& ui = *m_ui;
    const QList<QList<QWidget*>> targets = {
        {ui.editBoxCurveLabel},
        {ui.radioButtonDigital},
        {ui.comboBoxDigitalFormat, ui.labelDigital},
        {ui.radioButtonAnalog},
        {ui.spinnerAnalogGain, ui.labelAnalogGain},
        {ui.radioButtonAuto, ui.radioButtonYAxis, ui.radioButtonGrid, ui.radioButtonAnalogAxisDigital},
        {ui.editBoxAxisName, ui.labelAxisName},
        {ui.groupBoxDisplayOrder},
        {ui.groupBoxPersistence},
        {ui.groupBoxGraphName},
        {ui.checkBoxAllDisabled},
        {ui.checkBoxInteger},
        {ui.checkBoxFloat},
        {ui.checkBoxColour},
        {ui.pushButtonColour},
    };
    for (int i = 0; i < targets.size() && i < m_toolTips.size(); ++i) {
        for (QWidget* w : targets.at(i))
            w->setToolTip(m_toolTips.at(i));
    }
}

void LoopForgeEditProbeDialog::checkBoxAllDisabled_Clicked(bool on)
{
    Ui::LoopForgeEditProbeDialog& ui = *m_ui;
    if (on) {
        m_savedInteger = ui.checkBoxInteger->isChecked();
        m_savedFloat = ui.checkBoxFloat->isChecked();
        ui.checkBoxInteger->setChecked(false);
        ui.checkBoxFloat->setChecked(false);
    } else {
        ui.checkBoxInteger->setChecked(m_savedInteger);
        ui.checkBoxFloat->setChecked(m_savedFloat);
    }
    ui.checkBoxInteger->setEnabled(!on);
    ui.checkBoxFloat->setEnabled(!on);
}

void LoopForgeEditProbeDialog::radioGroupIntDataType_clicked(int id)
{
    m_ui->labelDigital->setEnabled(id == 0);
    m_ui->comboBoxDigitalFormat->setEnabled(id == 0);
}

void LoopForgeEditProbeDialog::checkBoxPersistence_toggled(bool on)
{
    m_ui->spinnerPersistence->setDisabled(on);
}

void LoopForgeEditProbeDialog::checkBoxGraph_toggled(bool on)
{
    EditBox* name = m_ui->editBoxGraphName;
    name->setEnabled(on);
    if (on) {
        name->selectAll();
        name->setFocus();
    }
}

void LoopForgeEditProbeDialog::editColor()
{
    const QColor chosen = QColorDialog::getColor(convertColorBGRtoRGB(m_colourNumber), this, QString());
    if (chosen.isValid())
        m_colourNumber = colornumber::fromColor(chosen);
    m_ui->checkBoxColour->setChecked(m_colourNumber < 0);
}

long long runLoopForgeEditProbeDialog(UserFunctionInterface* call)
{
    LoopForgeEditProbeDialog dialog;
    sp_AutoSaveDialogDims(&dialog);
    dialog.load(dialogcommon::stringArg(call, 0), dialogcommon::stringArg(call, 1),
                dialogcommon::stringArg(call, 2));
    if (dialog.exec() == QDialog::Accepted)
        dialogcommon::setStringResult(call, dialog.result());
    return 0;
}

} // namespace

static const FunctionRegistration registerLoopForgeEditProbeDialog(
    "LoopForgeEditProbeDialog", argLimits(3, 3), &runLoopForgeEditProbeDialog,
    {ArgStrings, ArgStrings, ArgStrings});

#include "loopforgeeditprobedialog.moc"
