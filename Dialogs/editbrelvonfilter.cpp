// EditBrelvonFilter: editor of the filter device that models a first or
// second order transfer function in s or in z. The user enters one set of
// coefficients and has the other computed by an integration rule; both sets
// stay on the device, and the "Model" buttons choose the one simulated.
//
// The coefficients live in members at full precision. The spinners only
// show them: whenever the dialog writes a spinner it drops that domain's
// connections first, so that digits lost to the display never flow back
// into a member, and a calculation always starts from what was entered or
// computed, never from what was shown.
#include "dialogcommon.h"
#include "filtertransforms.h"
#include "hostsupport.h"
#include "hostwidgets.h"
#include "registration.h"

#include "ui_editbrelvonfilter.h"

#include <QDialog>
#include <QIcon>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QShowEvent>

#include <array>
#include <cmath>
#include <memory>
#include <new>

namespace {

using filtertransforms::Outcome;
using filtertransforms::SCoefficients;
using filtertransforms::ZCoefficients;

// Raised by edits of a domain's coefficients and by a new order, method or
// sampling frequency; cleared by a finished transform and on show. One
// filter editor is open at a time, so the flags need no owner.
bool sCoefficientsChanged = false;
bool zCoefficientsChanged = false;

// Item texts are also the value element 13 carries to and from the script,
// so they stay untranslated.
const char* const kMethods[] = {"Trapezoidal", "Backward Euler", "Forward Euler"};
const char* const kDiscreteModel1 = "BRELVON_DIGI1_D_DF_1POLE_Y";
const char* const kDiscreteModel2 = "BRELVON_DIGI1_D_DF_2POLE_Y";
const char* const kLaplaceModel1 = "BRELVON_LaplaceXfer1stOrder_BB";
const char* const kLaplaceModel2 = "BRELVON_LaplaceXfer2ndOrder_BB";

constexpr int kMinPrecision = 3;
constexpr int kMaxPrecision = 16;

// The element layout of the first-order z set: three spinners move up one
// element, so that both orders share one array.
constexpr int kFirstOrderD1z = 7;
constexpr int kFirstOrderN2z = 4;
constexpr int kFirstOrderN1z = 5;
constexpr int kSecondOrderD1z = 6;
constexpr int kSecondOrderN2z = 3;
constexpr int kSecondOrderN1z = 4;

bool isExpression(const Spinner* spinner)
{
    const QString text = spinner->text().trimmed();
    return spinner->allowExpressions() && text.startsWith(QLatin1Char('{'))
           && text.endsWith(QLatin1Char('}'));
}

int clampedPrecision(double digits)
{
    if (!(digits >= kMinPrecision)) // NaN too
        return kMinPrecision;
    return digits > kMaxPrecision ? kMaxPrecision : static_cast<int>(digits);
}

} // namespace

class EditBrelvonFilter : public QDialog {
    Q_OBJECT

public:
    explicit EditBrelvonFilter(QWidget* parent = nullptr, const char* name = nullptr);
    ~EditBrelvonFilter() override;

    // Runs between construction and the binding of the arguments.
    void loadArguments(UserFunctionInterface* call);

public slots:
    virtual bool calculateZ();
    virtual bool calculateS();
    virtual void update_equations();
    virtual void formAccepted();
    virtual void updateSMemberVars();
    virtual void updateZMemberVars();
    virtual void composeNumerDenomString();
    virtual void disconnectS();
    virtual void disconnectZ();
    virtual void reconnectS();
    virtual void reconnectZ();
    virtual void setPrecision(int digits);
    virtual void composeParamModelName();
    virtual void setZSpinnerValues();
    virtual void setSSpinnerValues();
    virtual void displayPrecisionChanged();
    virtual void orderMaxHit();
    virtual void orderMinHit();
    virtual void haveChanges();
    virtual bool validateDenominator(double value);

protected:
    void showEvent(QShowEvent* event) override;

private:
    bool isFirstOrder() const;
    int method() const;
    double samplingFrequency() const;
    std::array<Spinner*, 5> sSpinners() const;
    std::array<Spinner*, 5> zSpinners() const;
    // The spinners a calculation reads for the current order.
    QList<Spinner*> usedSSpinners() const;
    QList<Spinner*> usedZSpinners() const;
    // A calculation needs numbers: none while a coefficient it reads is an
    // expression, or the sampling frequency is no usable number.
    bool canCalculateFrom(const QList<Spinner*>& sources) const;
    bool canCalculateZ() const;
    bool canCalculateS() const;
    void updateCalculateButtons();
    bool runTransform(bool toZ);
    void writeSpinner(Spinner* spinner, double value);
    QString terms(const QList<QPair<Spinner*, QString>>& parts, const QString& fixedFirst,
                  const QString& fixedLast, int digits) const;

    std::unique_ptr<Ui::EditBrelvonFilter> m_ui;
    SCoefficients m_s;
    ZCoefficients m_z;
    QStringList m_args;
    bool m_membersLoaded = false;
    bool m_sConnected = false;
    bool m_zConnected = false;
    bool m_writingResults = false; // a calculation's result may replace an expression
};

EditBrelvonFilter::EditBrelvonFilter(QWidget* parent, const char* name)
    : QDialog(parent), m_ui(new Ui::EditBrelvonFilter)
{
    setObjectName(QString::fromLatin1(name ? name : "EditBrelvonFilter"));
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    connect(m_ui->toolButtonCalculateZ, &QToolButton::clicked, this, &EditBrelvonFilter::calculateZ);
    connect(m_ui->toolButtonCalculateS, &QToolButton::clicked, this, &EditBrelvonFilter::calculateS);
    connect(m_ui->spinnerOrder, &Spinner::changed, this, &EditBrelvonFilter::update_equations);
    connect(m_ui->okButton, &QPushButton::clicked, this, &EditBrelvonFilter::formAccepted);
    connect(m_ui->spinnerDisplayPrecision, &Spinner::textChanged, this,
            &EditBrelvonFilter::displayPrecisionChanged);
    connect(m_ui->spinnerOrder, &Spinner::maxHit, this, &EditBrelvonFilter::orderMaxHit);
    connect(m_ui->spinnerOrder, &Spinner::minHit, this, &EditBrelvonFilter::orderMinHit);
    connect(m_ui->comboBoxTransformMethod, &QComboBox::textActivated,
            this, &EditBrelvonFilter::haveChanges);
    connect(m_ui->spinnerOrder, &Spinner::textChanged, this, &EditBrelvonFilter::haveChanges);
    connect(m_ui->spinnerFSampling, &Spinner::textChanged, this, &EditBrelvonFilter::haveChanges);

    // Only the buttons' state: these never touch a coefficient.
    for (Spinner* spinner : sSpinners())
        connect(spinner, &Spinner::textChanged, this, &EditBrelvonFilter::updateCalculateButtons);
    for (Spinner* spinner : zSpinners())
        connect(spinner, &Spinner::textChanged, this, &EditBrelvonFilter::updateCalculateButtons);
    connect(m_ui->spinnerFSampling, &Spinner::textChanged, this,
            &EditBrelvonFilter::updateCalculateButtons);
    connect(m_ui->spinnerOrder, &Spinner::textChanged, this,
            &EditBrelvonFilter::updateCalculateButtons);
}

EditBrelvonFilter::~EditBrelvonFilter() = default;

void EditBrelvonFilter::loadArguments(UserFunctionInterface* call)
{
    ComboBox* methods = m_ui->comboBoxTransformMethod;
    methods->clear();
    for (const char* m : kMethods)
        methods->insertItem(QString::fromLatin1(m), -1);
    m_ui->toolButtonCalculateS->setIcon(QIcon(QStringLiteral(":/16x16_uparrow_transparent_bg.png")));
    m_ui->toolButtonCalculateZ->setIcon(QIcon(QStringLiteral(":/16x16_downarrow_transparent_bg.png")));
    m_ui->editBoxParamModelName->hide();
    m_ui->editBoxNumerString->hide();
    m_ui->editBoxDenomString->hide();
    m_ui->editBoxLabel->hide();

    m_args = dialogcommon::stringArg(call, 0);
    const int count = m_args.size();

    if (count > 1 && sp_ConvertEngToReal(m_args.at(1), nullptr) == 1.0) {
        m_ui->spinnerD1z->setInElementIndex(kFirstOrderD1z);
        m_ui->spinnerN2z->setInElementIndex(kFirstOrderN2z);
        m_ui->spinnerN1z->setInElementIndex(kFirstOrderN1z);
    }
    if (count > 12) {
        auto number = [this](int i) { return sp_ConvertEngToReal(m_args.at(i), nullptr); };
        m_z.z3 = number(3);
        m_z.z4 = number(4);
        m_z.z5 = number(5);
        m_z.z6 = number(6);
        m_z.z7 = number(7);
        m_s.n2 = number(8);
        m_s.n1 = number(9);
        m_s.n0 = number(10);
        m_s.d1 = number(11);
        m_s.d0 = number(12);
        m_membersLoaded = true;
    }
    if (count > 13) {
        for (int i = 0; i < 3; ++i)
            if (m_args.at(13).compare(QLatin1String(kMethods[i]), Qt::CaseInsensitive) == 0)
                methods->setCurrentIndex(i);
    }
    if (count > 21)
        setPrecision(clampedPrecision(dialogcommon::leadingInt(m_args.at(21))));
}

bool EditBrelvonFilter::isFirstOrder() const
{
    return m_ui->spinnerOrder->value() == 1.0;
}

int EditBrelvonFilter::method() const
{
    return m_ui->comboBoxTransformMethod->currentIndex();
}

double EditBrelvonFilter::samplingFrequency() const
{
    return m_ui->spinnerFSampling->value();
}

std::array<Spinner*, 5> EditBrelvonFilter::sSpinners() const
{
    return {m_ui->spinnerD0s, m_ui->spinnerD1s, m_ui->spinnerN0s, m_ui->spinnerN1s, m_ui->spinnerN2s};
}

std::array<Spinner*, 5> EditBrelvonFilter::zSpinners() const
{
    return {m_ui->spinnerD0z, m_ui->spinnerD1z, m_ui->spinnerN0z, m_ui->spinnerN1z, m_ui->spinnerN2z};
}

QList<Spinner*> EditBrelvonFilter::usedSSpinners() const
{
    if (isFirstOrder())
        return {m_ui->spinnerD0s, m_ui->spinnerN0s, m_ui->spinnerN1s};
    const auto all = sSpinners();
    return {all.begin(), all.end()};
}

QList<Spinner*> EditBrelvonFilter::usedZSpinners() const
{
    if (isFirstOrder())
        return {m_ui->spinnerD1z, m_ui->spinnerN2z, m_ui->spinnerN1z};
    const auto all = zSpinners();
    return {all.begin(), all.end()};
}

bool EditBrelvonFilter::canCalculateFrom(const QList<Spinner*>& sources) const
{
    const double fs = samplingFrequency();
    if (isExpression(m_ui->spinnerFSampling) || !(fs > 0.0) || !std::isfinite(fs))
        return false;
    // An expression is the host's to evaluate; a coefficient that is no
    // finite number would only turn every result into NaN.
    for (const Spinner* spinner : sources)
        if (isExpression(spinner) || !std::isfinite(spinner->value()))
            return false;
    return true;
}

bool EditBrelvonFilter::canCalculateZ() const
{
    return canCalculateFrom(usedSSpinners());
}

bool EditBrelvonFilter::canCalculateS() const
{
    return canCalculateFrom(usedZSpinners());
}

void EditBrelvonFilter::updateCalculateButtons()
{
    m_ui->toolButtonCalculateZ->setEnabled(canCalculateZ());
    m_ui->toolButtonCalculateS->setEnabled(canCalculateS());
}

// One transform from the members into the members; true if it aborted.
bool EditBrelvonFilter::runTransform(bool toZ)
{
    if (toZ ? !canCalculateZ() : !canCalculateS())
        return true;
    const double fs = samplingFrequency();
    double denominator = 0.0;
    const Outcome outcome = toZ ? filtertransforms::zFromS(isFirstOrder(), method(), fs, m_s, &m_z, &denominator)
                                : filtertransforms::sFromZ(isFirstOrder(), method(), fs, m_z, &m_s, &denominator);
    if (outcome == Outcome::DivideByZero) {
        validateDenominator(denominator);
        return true;
    }
    if (outcome == Outcome::NoMethod)
        return true;
    m_writingResults = true;
    if (toZ)
        setZSpinnerValues();
    else
        setSSpinnerValues();
    m_writingResults = false;
    sCoefficientsChanged = false;
    zCoefficientsChanged = false;
    return false;
}

bool EditBrelvonFilter::calculateZ()
{
    return runTransform(true);
}

bool EditBrelvonFilter::calculateS()
{
    return runTransform(false);
}

bool EditBrelvonFilter::validateDenominator(double value)
{
    if (!filtertransforms::denominatorTooSmall(value))
        return false;
    QMessageBox::warning(this, tr("Division by Zero detected!"),
                         tr("Using the coefficients provided, calculation of the new coeficiencts "
                            "will result in a divide by zero.\nThe calculation has been aborted and "
                            "the coefficients have not been altered.\nPlease check your coefficients "
                            "and try again."),
                         QMessageBox::Ok);
    return true;
}

void EditBrelvonFilter::update_equations()
{
    const double order = m_ui->spinnerOrder->value();
    const bool first = order == 1.0;
    if (!first && order != 2.0)
        return;
    m_ui->spinnerD1z->setOutElementIndex(first ? kFirstOrderD1z : kSecondOrderD1z);
    m_ui->spinnerN2z->setOutElementIndex(first ? kFirstOrderN2z : kSecondOrderN2z);
    m_ui->spinnerN1z->setOutElementIndex(first ? kFirstOrderN1z : kSecondOrderN1z);

    m_ui->labelLaplaceNumSPlus->setText(first ? QStringLiteral("s") : QStringLiteral("s +"));
    m_ui->labelLaplaceNumSPlus->setMinimumWidth(0);
    m_ui->spinnerN2s->setVisible(!first);
    m_ui->labelNumSSq->setVisible(!first);

    m_ui->labelLaplaceDenomSSq->setText(first ? QStringLiteral("s") : QStringLiteral("s + s<sup>2</sup>"));
    m_ui->labelLaplaceDenomSSq->setMinimumWidth(first ? 0 : 61);
    m_ui->spinnerD1s->setVisible(!first);

    m_ui->labelNumZMinus2->setVisible(!first);
    m_ui->spinnerN0z->setVisible(!first);
    m_ui->labelZNumZminus1->setText(first ? QStringLiteral("z<sup>-1</sup>")
                                          : QStringLiteral("z<sup>-1</sup> +"));
    m_ui->labelZNumZminus1->setMinimumWidth(first ? 0 : 40);

    m_ui->spinnerD0z->setVisible(!first);
    m_ui->labelDenomZMinus2->setVisible(!first);
    m_ui->labelZDenomZminus1->setText(first ? QStringLiteral("z<sup>-1</sup>")
                                            : QStringLiteral("z<sup>-1</sup> +"));
}

void EditBrelvonFilter::updateSMemberVars()
{
    m_s.d0 = m_ui->spinnerD0s->value();
    m_s.d1 = m_ui->spinnerD1s->value();
    m_s.n0 = m_ui->spinnerN0s->value();
    m_s.n1 = m_ui->spinnerN1s->value();
    m_s.n2 = m_ui->spinnerN2s->value();
    sCoefficientsChanged = true;
}

void EditBrelvonFilter::updateZMemberVars()
{
    if (isFirstOrder()) {
        m_z.z7 = m_ui->spinnerD1z->value();
        m_z.z4 = m_ui->spinnerN2z->value();
        m_z.z5 = m_ui->spinnerN1z->value();
    } else {
        m_z.z7 = m_ui->spinnerD0z->value();
        m_z.z6 = m_ui->spinnerD1z->value();
        m_z.z5 = m_ui->spinnerN0z->value();
        m_z.z4 = m_ui->spinnerN1z->value();
        m_z.z3 = m_ui->spinnerN2z->value();
    }
    zCoefficientsChanged = true;
}

void EditBrelvonFilter::disconnectS()
{
    for (Spinner* spinner : sSpinners())
        disconnect(spinner, &Spinner::textChanged, this, &EditBrelvonFilter::updateSMemberVars);
    m_sConnected = false;
}

void EditBrelvonFilter::disconnectZ()
{
    for (Spinner* spinner : zSpinners())
        disconnect(spinner, &Spinner::textChanged, this, &EditBrelvonFilter::updateZMemberVars);
    m_zConnected = false;
}

void EditBrelvonFilter::reconnectS()
{
    for (Spinner* spinner : sSpinners())
        connect(spinner, &Spinner::textChanged, this, &EditBrelvonFilter::updateSMemberVars,
                Qt::UniqueConnection);
    m_sConnected = true;
}

void EditBrelvonFilter::reconnectZ()
{
    for (Spinner* spinner : zSpinners())
        connect(spinner, &Spinner::textChanged, this, &EditBrelvonFilter::updateZMemberVars,
                Qt::UniqueConnection);
    m_zConnected = true;
}

// A spinner redraws its number at a new precision, which is a text change:
// the connections are dropped meanwhile like for any programmatic write.
void EditBrelvonFilter::setPrecision(int digits)
{
    const bool s = m_sConnected, z = m_zConnected;
    disconnectS();
    disconnectZ();
    for (Spinner* spinner : sSpinners())
        spinner->setPrecision(digits);
    for (Spinner* spinner : zSpinners())
        spinner->setPrecision(digits);
    if (s)
        reconnectS();
    if (z)
        reconnectZ();
}

// An expression the user typed stays until a calculation replaces it.
void EditBrelvonFilter::writeSpinner(Spinner* spinner, double value)
{
    if (isExpression(spinner) && !m_writingResults)
        return;
    spinner->setValue(value);
}

void EditBrelvonFilter::setZSpinnerValues()
{
    const bool wasConnected = m_zConnected;
    disconnectZ();
    if (isFirstOrder()) {
        writeSpinner(m_ui->spinnerD1z, m_z.z7);
        writeSpinner(m_ui->spinnerN2z, m_z.z4);
        writeSpinner(m_ui->spinnerN1z, m_z.z5);
    } else {
        writeSpinner(m_ui->spinnerD0z, m_z.z7);
        writeSpinner(m_ui->spinnerD1z, m_z.z6);
        writeSpinner(m_ui->spinnerN0z, m_z.z5);
        writeSpinner(m_ui->spinnerN1z, m_z.z4);
        writeSpinner(m_ui->spinnerN2z, m_z.z3);
    }
    if (wasConnected)
        reconnectZ();
}

void EditBrelvonFilter::setSSpinnerValues()
{
    const bool wasConnected = m_sConnected;
    disconnectS();
    writeSpinner(m_ui->spinnerD0s, m_s.d0);
    writeSpinner(m_ui->spinnerD1s, m_s.d1);
    writeSpinner(m_ui->spinnerN0s, m_s.n0);
    writeSpinner(m_ui->spinnerN1s, m_s.n1);
    writeSpinner(m_ui->spinnerN2s, m_s.n2);
    if (wasConnected)
        reconnectS();
}

void EditBrelvonFilter::displayPrecisionChanged()
{
    setPrecision(clampedPrecision(m_ui->spinnerDisplayPrecision->value()));
    setSSpinnerValues();
    setZSpinnerValues();
}

void EditBrelvonFilter::orderMaxHit()
{
    QMessageBox::information(this, tr("Maximum Model Order Exceeded!"),
                             tr("This device allows up to 2nd order models.\nTo model a higher order "
                                "filter, you can cascade multiple devices."),
                             QMessageBox::Ok);
}

void EditBrelvonFilter::orderMinHit()
{
    QMessageBox::information(this, tr("Minimum Model Order Exceeded!"),
                             tr("This device allows a minimum of a 1st order model.\nTo model a 0th "
                                "order device, you can use the Zero Order Sample and Hold."),
                             QMessageBox::Ok);
}

void EditBrelvonFilter::haveChanges()
{
    sCoefficientsChanged = true;
    zCoefficientsChanged = true;
}

// The terms of one polynomial joined by " + ": a coefficient of exactly 0
// drops its term, exactly 1 leaves the bare power, an expression stands as
// written. fixedFirst and fixedLast are the terms that are always there.
QString EditBrelvonFilter::terms(const QList<QPair<Spinner*, QString>>& parts,
                                 const QString& fixedFirst, const QString& fixedLast,
                                 int digits) const
{
    QStringList out;
    if (!fixedFirst.isEmpty())
        out << fixedFirst;
    for (const auto& [spinner, powerText] : parts) {
        QString number;
        if (isExpression(spinner)) {
            number = spinner->text().trimmed();
        } else {
            const double v = spinner->value();
            if (v == 0.0)
                continue;
            if (v == 1.0 && !powerText.isEmpty()) {
                out << powerText;
                continue;
            }
            number = toQs(sp_ConvertRealToJSEng(v, digits, false));
        }
        out << (powerText.isEmpty() ? number : number + QLatin1Char(' ') + powerText);
    }
    if (!fixedLast.isEmpty())
        out << fixedLast;
    return out.join(QStringLiteral(" + "));
}

void EditBrelvonFilter::composeNumerDenomString()
{
    const int digits = clampedPrecision(m_ui->spinnerAnnoPrecision->value());
    const bool first = isFirstOrder();
    const QString s = QStringLiteral("s"), s2 = QStringLiteral("s^2");
    const QString z1 = QStringLiteral("z^-1"), z2 = QStringLiteral("z^-2");
    QString numerator, denominator;
    if (m_ui->radioButtonLaplace->isChecked()) {
        if (first) {
            numerator = terms({{m_ui->spinnerN1s, s}, {m_ui->spinnerN0s, {}}}, {}, {}, digits);
            denominator = terms({{m_ui->spinnerD0s, {}}}, s, {}, digits);
        } else {
            numerator = terms({{m_ui->spinnerN2s, s2}, {m_ui->spinnerN1s, s}, {m_ui->spinnerN0s, {}}},
                              {}, {}, digits);
            denominator = terms({{m_ui->spinnerD1s, s}, {m_ui->spinnerD0s, {}}}, s2, {}, digits);
        }
    } else {
        if (first) {
            numerator = terms({{m_ui->spinnerN2z, {}}, {m_ui->spinnerN1z, z1}}, {}, {}, digits);
            denominator = terms({{m_ui->spinnerD1z, z1}}, QStringLiteral("1"), {}, digits);
        } else {
            numerator = terms({{m_ui->spinnerN2z, {}}, {m_ui->spinnerN1z, z1}, {m_ui->spinnerN0z, z2}},
                              {}, {}, digits);
            denominator = terms({{m_ui->spinnerD1z, z1}, {m_ui->spinnerD0z, z2}},
                                QStringLiteral("1"), {}, digits);
        }
    }
    m_ui->editBoxNumerString->setText(numerator);
    m_ui->editBoxDenomString->setText(denominator);
}

void EditBrelvonFilter::composeParamModelName()
{
    const bool laplace = m_ui->radioButtonLaplace->isChecked();
    if (isFirstOrder()) {
        m_ui->editBoxParamModelName->setText(QLatin1String(laplace ? kLaplaceModel1 : kDiscreteModel1));
        m_ui->editBoxLabel->setText(laplace ? QStringLiteral("1ST ORDER CONTINUOUS TIME FILTER")
                                            : QStringLiteral("1ST ORDER DISCRETE TIME FILTER"));
    } else {
        m_ui->editBoxParamModelName->setText(QLatin1String(laplace ? kLaplaceModel2 : kDiscreteModel2));
        m_ui->editBoxLabel->setText(laplace ? QStringLiteral("2ND ORDER CONTINUOUS TIME FILTER")
                                            : QStringLiteral("2ND ORDER DISCRETE TIME FILTER"));
    }
}

void EditBrelvonFilter::formAccepted()
{
    // The question only for the domain the model uses, and only where the
    // calculation could run at all.
    const bool staleZ = sCoefficientsChanged && m_ui->radioButtonZ->isChecked() && canCalculateZ();
    const bool staleS = !staleZ && zCoefficientsChanged && m_ui->radioButtonLaplace->isChecked()
                        && canCalculateS();
    if (staleZ || staleS) {
        const QString title = staleZ ? tr("S Coefficients have changed") : tr("Z Coefficients have changed");
        const QString text = staleZ
            ? tr("It appears that you have changed the S domain coefficients,\nyet haven't "
                 "re-calculated the Z domain coefficients.\nPress \"Calculate Now\" to calculate "
                 "and save, \"Cancel\" to return to BRELVON without calculating.")
            : tr("It appears that you have changed the Z domain coefficients,\nyet haven't "
                 "re-calculated the S domain coefficients.\nPress \"Calculate Now\" to calculate "
                 "and save, \"Cancel\" to return to BRELVON without calculating.");
        QMessageBox box(QMessageBox::Question, title, text, QMessageBox::Ok | QMessageBox::Cancel, this);
        box.setDefaultButton(QMessageBox::Ok);
        box.button(QMessageBox::Ok)->setText(tr("Calculate Now"));
        box.button(QMessageBox::Cancel)->setText(tr("Cancel"));
        if (box.exec() != QMessageBox::Ok)
            return;
        if (staleZ ? calculateZ() : calculateS())
            return;
    }
    composeNumerDenomString();
    composeParamModelName();
    setPrecision(clampedPrecision(m_ui->spinnerModelPrecision->value()));
    setSSpinnerValues();
    setZSpinnerValues();
    accept();
}

void EditBrelvonFilter::showEvent(QShowEvent* event)
{
    const QString model = m_ui->editBoxParamModelName->text();
    Spinner* focus = nullptr;
    if (model == QLatin1String(kDiscreteModel2) || model == QLatin1String(kDiscreteModel1)) {
        m_ui->radioButtonZ->setChecked(true);
        focus = m_ui->spinnerN2z;
    } else {
        m_ui->radioButtonLaplace->setChecked(true);
        focus = m_ui->spinnerN0s;
    }
    focus->lineEdit()->selectAll();
    focus->lineEdit()->setFocus();

    update_equations();
    if (m_membersLoaded) {
        // The spinners show the loaded members at the display precision.
        setSSpinnerValues();
        setZSpinnerValues();
    } else {
        // Without the coefficients in the array the members take what the
        // spinners show, so that a calculation starts from visible numbers.
        updateSMemberVars();
        updateZMemberVars();
        m_membersLoaded = true;
    }
    reconnectS();
    reconnectZ();
    updateCalculateButtons();

    QDialog::showEvent(event);
    if (layout())
        layout()->activate();
    resize(0, 0); // the smallest size of the current order
    sCoefficientsChanged = false;
    zCoefficientsChanged = false;
}

namespace {

QDialog* createEditBrelvonFilter(UserFunctionInterface* call, void* /*unused*/)
{
    auto* dialog = new (std::nothrow) EditBrelvonFilter(nullptr, "EditBrelvonFilter");
    if (!dialog)
        return nullptr;
    dialog->loadArguments(call);
    return dialog;
}

} // namespace

static const FunctionRegistration registerEditBrelvonFilter("EditBrelvonFilter", argLimits(0, 32),
                                                            &createEditBrelvonFilter);

#include "editbrelvonfilter.moc"
