// EditBodePlotProbeDialog2: which curves of a Bode plot probe are shown,
// their colours and limits, and where they go, with a live example plot
// that follows the choices. The frame loads and collects the 25 values;
// this class keeps the form coherent and can store the values as the
// preferred configuration of new probes.
#include "bodeexamplecurves.h"
#include "colornumber.h"
#include "dialogcommon.h"
#include "hostwidgets.h"
#include "registration.h"

#include "ui_editbodeplotprobedialog2.h"

#include <QCoreApplication>
#include <QLayout>
#include <QColorDialog>
#include <QDialog>
#include <QPen>
#include <QShowEvent>

#include <cmath>
#include <memory>
#include <new>
#include <vector>

namespace {

const char kPreferencesSection[] = "DialogPreferences";
const char kPreferencesKey[] = "EditBodePlotProbeDialog2";

// Element numbers of argument 0 that the start-up reads by itself.
enum Element {
    GraphName = 0,
    Persistence = 1,
    GainOn = 2,
    GainAutoLimits = 6,
    GainAutoGrid = 7,
    GainColour = 11,
    PhaseOn = 12,
    PhaseAutoLimits = 16,
    PhaseAutoGrid = 17,
    PhaseColour = 21,
};

QColor defaultCurveColour()
{
    return QColor(0, 128, 0, 255);
}

QPen curvePen()
{
    return QPen(QBrush(defaultCurveColour()), 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

QString flag(bool on)
{
    return QString::number(on ? 1 : 0, 10);
}

class EditBodePlotProbeDialog2 : public QDialog {
    Q_OBJECT

public:
    explicit EditBodePlotProbeDialog2(QWidget* parent = nullptr, const char* name = nullptr)
        : QDialog(parent)
        , m_ui(new Ui::EditBodePlotProbeDialog2)
        , m_gainPen(curvePen())
        , m_phasePen(curvePen())
        , m_gainColour(defaultCurveColour())
        , m_phaseColour(defaultCurveColour())
    {
        if (name)
            setObjectName(QString::fromLatin1(name));
        m_ui->setupUi(this);
        setModal(true);
        connectForm();
    }

    // Reads what the bindings can't take, before the frame loads the form.
    void start(UserFunctionInterface* call);

public slots:
    void helpButton_clicked();
    void update_graphs();
    void cbGainUseDefaultColor_clicked(bool checked);
    void cbPhaseUseDefaultColor_clicked(bool checked);
    void initializeGainColor(int value);
    void initializePhaseColor(int value);
    void useSeparateGraph_clicked(bool on);
    void cbUseDefaultPersistence_clicked(bool checked);
    void formAccepted();
    void toolButtonSaveSettings_clicked();
    void editGainColor();
    void editPhaseColor();
    QColor convertColorBGRtoRGB(int value) { return colornumber::toColor(value); }
    void cbDisableProbe_clicked(bool on);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void connectForm();
    // The colour a curve is drawn in; previous when it stays as it was.
    QColor previewColour(const QCheckBox* useDefault, const Spinner* number,
                         const QColor& previous) const;
    void editColor(int* number, Spinner* spinner, QCheckBox* useDefault);

    std::unique_ptr<Ui::EditBodePlotProbeDialog2> m_ui;
    QPen m_gainPen;
    QPen m_phasePen;
    QColor m_gainColour;
    QColor m_phaseColour;
    QString m_savedGraphName;
    int m_helpTopic = -1;
    int m_gainColourNumber = -1;
    int m_phaseColourNumber = -1;
    bool m_multipleSelection = false;
    bool m_gainShown = true;
    bool m_phaseShown = true;
};

void EditBodePlotProbeDialog2::connectForm()
{
    Ui::EditBodePlotProbeDialog2& ui = *m_ui;
    connect(ui.gbGain, &QGroupBox::toggled, this, &EditBodePlotProbeDialog2::update_graphs);
    connect(ui.gbPhase, &QGroupBox::toggled, this, &EditBodePlotProbeDialog2::update_graphs);
    connect(ui.rgPlaceCurvesOn, &RadioGroup::clicked, this, &EditBodePlotProbeDialog2::update_graphs);
    connect(ui.rgVerticalOrder, &RadioGroup::clicked, this, &EditBodePlotProbeDialog2::update_graphs);
    connect(ui.cbGainUseDefaultColor, &QCheckBox::clicked, this,
            &EditBodePlotProbeDialog2::cbGainUseDefaultColor_clicked);
    connect(ui.cbPhaseUseDefaultColor, &QCheckBox::clicked, this,
            &EditBodePlotProbeDialog2::cbPhaseUseDefaultColor_clicked);
    connect(ui.gainColorButton, &QPushButton::clicked, this, &EditBodePlotProbeDialog2::editGainColor);
    connect(ui.phaseColorButton, &QPushButton::clicked, this, &EditBodePlotProbeDialog2::editPhaseColor);
    connect(ui.gbUseSeparateGraph, &QGroupBox::clicked, this,
            &EditBodePlotProbeDialog2::useSeparateGraph_clicked);
    connect(ui.cbUseDefaultPersistence, &QCheckBox::clicked, this,
            &EditBodePlotProbeDialog2::cbUseDefaultPersistence_clicked);
    connect(ui.cbDisableProbe, &QCheckBox::clicked, this, &EditBodePlotProbeDialog2::cbDisableProbe_clicked);
    connect(ui.toolButtonSaveSettings, &QToolButton::clicked, this,
            &EditBodePlotProbeDialog2::toolButtonSaveSettings_clicked);
    connect(ui.helpButton, &QPushButton::clicked, this, &EditBodePlotProbeDialog2::helpButton_clicked);
    connect(ui.okButton, &QPushButton::clicked, this, &EditBodePlotProbeDialog2::formAccepted);
    connect(ui.checkBoxGainUseAutoLimits, &QCheckBox::toggled, ui.spinnerGainMaxLimit, &QWidget::setDisabled);
    connect(ui.checkBoxGainUseAutoLimits, &QCheckBox::toggled, ui.spinnerGainMinLimit, &QWidget::setDisabled);
    connect(ui.checkBoxGainUseAutoGrid, &QCheckBox::toggled, ui.spinnerGainGrid, &QWidget::setDisabled);
    connect(ui.checkBoxPhaseUseAutoLimits, &QCheckBox::toggled, ui.spinnerPhaseMaxLimit, &QWidget::setDisabled);
    connect(ui.checkBoxPhaseUseAutoLimits, &QCheckBox::toggled, ui.spinnerPhaseMinLimit, &QWidget::setDisabled);
    connect(ui.checkBoxPhaseUseAutoGrid, &QCheckBox::toggled, ui.spinnerPhaseGrid, &QWidget::setDisabled);
}

void EditBodePlotProbeDialog2::start(UserFunctionInterface* call)
{
    Ui::EditBodePlotProbeDialog2& ui = *m_ui;
    const QStringList values = dialogcommon::stringArg(call, 0);
    const int count = values.size();
    const auto number = [&values](int element) { return dialogcommon::leadingInt(values.at(element)); };

    ui.spinnerGainColor->hide();
    ui.spinnerPhaseColor->hide();
    ui.gbUseSeparateGraph->setChecked(count == 0 || !values.at(GraphName).isEmpty());
    if (count > Persistence && number(Persistence) < 0) {
        ui.spinnerPersistence->setEnabled(false);
        ui.cbUseDefaultPersistence->setChecked(true);
    }
    if (count > GainOn)
        m_gainShown = number(GainOn) != 0;
    if (count > PhaseOn)
        m_phaseShown = number(PhaseOn) != 0;
    if (count > GainAutoLimits && number(GainAutoLimits) != 0) {
        ui.spinnerGainMaxLimit->setEnabled(false);
        ui.spinnerGainMinLimit->setEnabled(false);
    }
    if (count > GainAutoGrid && number(GainAutoGrid) != 0)
        ui.spinnerGainGrid->setEnabled(false);
    if (count > PhaseAutoLimits && number(PhaseAutoLimits) != 0) {
        ui.spinnerPhaseMaxLimit->setEnabled(false);
        ui.spinnerPhaseMinLimit->setEnabled(false);
    }
    if (count > PhaseAutoGrid && number(PhaseAutoGrid) != 0)
        ui.spinnerPhaseGrid->setEnabled(false);

    if (count <= GainColour) {
        initializeGainColor(-1);
        ui.cbGainUseDefaultColor->setChecked(true);
    } else {
        const int colour = number(GainColour);
        ui.cbGainUseDefaultColor->setChecked(colour < 0);
        initializeGainColor(colour < 0 ? 0 : colour);
    }
    if (count <= PhaseColour) {
        initializePhaseColor(-1);
        ui.cbPhaseUseDefaultColor->setChecked(true);
    } else {
        const int colour = number(PhaseColour);
        ui.cbPhaseUseDefaultColor->setChecked(colour < 0);
        initializePhaseColor(colour < 0 ? 0 : colour);
    }

    const QStringList info = dialogcommon::stringArg(call, 1);
    if (info.size() > 0)
        setWindowTitle(info.at(0));
    m_helpTopic = info.size() > 1 ? dialogcommon::leadingInt(info.at(1)) : -1;
    m_multipleSelection = info.size() > 2 && dialogcommon::leadingInt(info.at(2)) != 0;
    if (m_helpTopic < 0)
        ui.helpButton->hide();
}

void EditBodePlotProbeDialog2::showEvent(QShowEvent* event)
{
    Ui::EditBodePlotProbeDialog2& ui = *m_ui;
    ui.toolButtonSaveSettings->setIcon(QIcon(QStringLiteral(":/16x16_save_o.png")));
    ui.checkBoxSaveSettings->hide();
    if (m_multipleSelection) {
        for (QLineEdit* label : {static_cast<QLineEdit*>(ui.leGainCurveLabel),
                                 static_cast<QLineEdit*>(ui.lePhaseCurveLabel)}) {
            label->clear();
            label->setEnabled(false);
        }
    }
    update_graphs();
    cbGainUseDefaultColor_clicked(ui.cbGainUseDefaultColor->isChecked());
    cbPhaseUseDefaultColor_clicked(ui.cbPhaseUseDefaultColor->isChecked());
    ui.leGainCurveLabel->selectAll();
    ui.leGainCurveLabel->setFocus();
    QDialog::showEvent(event);
    // Down to the layout's minimum, whatever the form's design size, once
    // the shown widgets have settled: posted, so it runs in the dialog's
    // own event loop.
    QMetaObject::invokeMethod(this, [this] { resize(0, 0); }, Qt::QueuedConnection);
}

void EditBodePlotProbeDialog2::helpButton_clicked()
{
    dialogcommon::runHelp(m_helpTopic);
}

QColor EditBodePlotProbeDialog2::previewColour(const QCheckBox* useDefault, const Spinner* number,
                                               const QColor& previous) const
{
    if (useDefault->isChecked())
        return defaultCurveColour();
    const double value = number->value();
    if (value >= 0.0)
        return colornumber::toColor(static_cast<std::int64_t>(std::min(std::trunc(value), 4294967296.0)));
    const bool bothOwn = !m_ui->cbGainUseDefaultColor->isChecked()
                         && !m_ui->cbPhaseUseDefaultColor->isChecked();
    return bothOwn ? previous : defaultCurveColour();
}

void EditBodePlotProbeDialog2::update_graphs()
{
    Ui::EditBodePlotProbeDialog2& ui = *m_ui;
    const int placement = static_cast<int>(ui.rgPlaceCurvesOn->value());
    const int order = static_cast<int>(ui.rgVerticalOrder->value());
    const bool gainOn = ui.gbGain->isChecked();
    const bool phaseOn = ui.gbPhase->isChecked();

    m_gainColour = previewColour(ui.cbGainUseDefaultColor, ui.spinnerGainColor, m_gainColour);
    m_phaseColour = previewColour(ui.cbPhaseUseDefaultColor, ui.spinnerPhaseColor, m_phaseColour);
    m_gainPen.setColor(m_gainColour);
    m_phasePen.setColor(m_phaseColour);

    Axis x, y;
    x.setAxisParams(10.0, 10000.0, 2, 4, 1, 0);
    y.setAxisParams(-60.0, 20.0, 3, 0, 0, 0);
    Plotter* upper = ui.plotterCurveTabUpper;
    Plotter* lower = ui.plotterCurveTabLower;
    for (Plotter* plotter : {upper, lower}) {
        plotter->initializeAxes(x, y);
        plotter->setMargins(0, 0, 0, 0);
        plotter->clearCurveAll();
    }
    const std::vector<double> gain = bodeexample::curve(bodeexample::kGain);
    const std::vector<double> phase = bodeexample::curve(bodeexample::kPhase);

    bool lowerShown = false;
    bool placementEnabled = false;
    bool orderEnabled = false;
    if (gainOn && phaseOn) {
        placementEnabled = true;
        if (placement == 1) {
            lowerShown = orderEnabled = true;
            const bool gainAbove = order == 1;
            upper->setCurveData(gainAbove ? 0 : 1, gainAbove ? gain : phase, gainAbove ? m_gainPen : m_phasePen);
            lower->setCurveData(gainAbove ? 1 : 0, gainAbove ? phase : gain, gainAbove ? m_phasePen : m_gainPen);
        } else {
            upper->setCurveData(0, gain, m_gainPen);
            upper->setCurveData(1, phase, m_phasePen);
        }
    } else if (gainOn) {
        upper->setCurveData(0, gain, m_gainPen);
    } else if (phaseOn) {
        upper->setCurveData(0, phase, m_phasePen);
    }
    lower->setVisible(lowerShown);
    ui.rgPlaceCurvesOn->setEnabled(placementEnabled);
    ui.rgVerticalOrder->setEnabled(orderEnabled);

    // Shrinks around the plotter that is left. Only the layouts' own
    // requests run here, not a nested event loop, which could run a
    // caller's events before the dialog's own loop has started.
    if (isVisible()) {
        // Each layout from the plotters' group out to the dialog takes in
        // the change before the next one asks it for its size.
        for (QWidget* w = lower->parentWidget(); w; w = w->parentWidget()) {
            if (QLayout* l = w->layout()) {
                l->invalidate();
                l->activate();
            }
            w->updateGeometry();
            if (w == this)
                break;
        }
        resize(width(), 0);
    }
}

void EditBodePlotProbeDialog2::cbGainUseDefaultColor_clicked(bool checked)
{
    m_ui->gainColorButton->setDisabled(checked);
    update_graphs();
}

void EditBodePlotProbeDialog2::cbPhaseUseDefaultColor_clicked(bool checked)
{
    m_ui->phaseColorButton->setDisabled(checked);
    update_graphs();
}

void EditBodePlotProbeDialog2::initializeGainColor(int value)
{
    m_gainColourNumber = value;
    m_ui->spinnerGainColor->setValue(value);
}

void EditBodePlotProbeDialog2::initializePhaseColor(int value)
{
    m_phaseColourNumber = value;
    m_ui->spinnerPhaseColor->setValue(value);
}

void EditBodePlotProbeDialog2::useSeparateGraph_clicked(bool on)
{
    EditBox* name = m_ui->leGraphName;
    if (on) {
        name->setText(m_savedGraphName);
        name->selectAll();
        name->setFocus();
    } else {
        m_savedGraphName = name->text();
        name->setText(QStringLiteral("default"));
        name->deselect();
    }
}

void EditBodePlotProbeDialog2::cbUseDefaultPersistence_clicked(bool checked)
{
    Spinner* spinner = m_ui->spinnerPersistence;
    spinner->setDisabled(checked);
    if (!checked) {
        spinner->lineEdit()->selectAll();
        spinner->lineEdit()->setFocus();
    }
}

void EditBodePlotProbeDialog2::formAccepted()
{
    Ui::EditBodePlotProbeDialog2& ui = *m_ui;
    if (ui.cbUseDefaultPersistence->isChecked()) {
        ui.spinnerPersistence->setMin(-1.0);
        ui.spinnerPersistence->setValue(-1);
    }
    if (ui.cbGainUseDefaultColor->isChecked())
        ui.spinnerGainColor->setValue(-1);
    if (ui.cbPhaseUseDefaultColor->isChecked())
        ui.spinnerPhaseColor->setValue(-1);
    if (!ui.gbUseSeparateGraph->isChecked())
        ui.leGraphName->clear();
    accept();
}

void EditBodePlotProbeDialog2::toolButtonSaveSettings_clicked()
{
    const Ui::EditBodePlotProbeDialog2& ui = *m_ui;
    const auto radio = [](const RadioGroup* group) { return QString::number(group->value(), 'g', 6); };
    const QStringList values = {
        ui.leGraphName->text(),
        ui.cbUseDefaultPersistence->isChecked() ? QStringLiteral("-1") : ui.spinnerPersistence->text(),
        flag(ui.gbGain->isChecked()),
        ui.leGainCurveLabel->text(),
        ui.leGainAxisLabel->text(),
        radio(ui.rgGainVertical),
        flag(ui.checkBoxGainUseAutoLimits->isChecked()),
        flag(ui.checkBoxGainUseAutoGrid->isChecked()),
        ui.spinnerGainMaxLimit->text(),
        ui.spinnerGainMinLimit->text(),
        ui.spinnerGainGrid->text(),
        ui.spinnerGainColor->text(),
        flag(ui.gbPhase->isChecked()),
        ui.lePhaseCurveLabel->text(),
        ui.lePhaseAxisLabel->text(),
        radio(ui.rgPhaseVertical),
        flag(ui.checkBoxPhaseUseAutoLimits->isChecked()),
        flag(ui.checkBoxPhaseUseAutoGrid->isChecked()),
        ui.spinnerPhaseMaxLimit->text(),
        ui.spinnerPhaseMinLimit->text(),
        ui.spinnerPhaseGrid->text(),
        ui.spinnerPhaseColor->text(),
        radio(ui.rgPlaceCurvesOn),
        radio(ui.rgVerticalOrder),
    };
    cfgman_WriteConfigSetting(kPreferencesSection, kPreferencesKey,
                              values.join(QLatin1Char(';')).toUtf8().constData());
}

void EditBodePlotProbeDialog2::editColor(int* number, Spinner* spinner, QCheckBox* useDefault)
{
    const QColor chosen = QColorDialog::getColor(convertColorBGRtoRGB(*number), this, QString());
    if (!chosen.isValid()) {
        useDefault->setChecked(spinner->value() < 0);
        return;
    }
    *number = colornumber::fromColor(chosen);
    spinner->setValue(*number);
    update_graphs();
}

void EditBodePlotProbeDialog2::editGainColor()
{
    editColor(&m_gainColourNumber, m_ui->spinnerGainColor, m_ui->cbGainUseDefaultColor);
}

void EditBodePlotProbeDialog2::editPhaseColor()
{
    editColor(&m_phaseColourNumber, m_ui->spinnerPhaseColor, m_ui->cbPhaseUseDefaultColor);
}

void EditBodePlotProbeDialog2::cbDisableProbe_clicked(bool on)
{
    Ui::EditBodePlotProbeDialog2& ui = *m_ui;
    if (on) {
        m_gainShown = ui.gbGain->isChecked();
        m_phaseShown = ui.gbPhase->isChecked();
        ui.gbGain->setChecked(false);
        ui.gbPhase->setChecked(false);
    } else {
        ui.gbGain->setChecked(m_gainShown);
        ui.gbPhase->setChecked(m_phaseShown);
    }
    update_graphs();
}

QDialog* createEditBodePlotProbeDialog2(UserFunctionInterface* call, void* /*unused*/)
{
    auto* dialog = new (std::nothrow) EditBodePlotProbeDialog2(nullptr, "EditBodePlotProbeDialog2");
    if (dialog)
        dialog->start(call);
    return dialog;
}

} // namespace

static const FunctionRegistration registerEditBodePlotProbeDialog2(
    "EditBodePlotProbeDialog2", argLimits(0, 32), &createEditBodePlotProbeDialog2);

#include "editbodeplotprobedialog2.moc"
