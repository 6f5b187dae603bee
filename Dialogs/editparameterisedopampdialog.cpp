// EditParameterisedOpampDialog: edits a behavioural operational amplifier
// for either simulation engine. The two engines want different parameter
// sets, so the form holds both on two pages and drops one at load. For the
// BRELVON engine the model has two levels, and the level may be an
// expression. The form's bindings load and collect the values.
#include "dialogcommon.h"
#include "dialogwidgets.h"
#include "hostwidgets.h"
#include "parameterisedlevel.h"
#include "registration.h"

#include "ui_editparameterisedopampdialog.h"

#include <QCoreApplication>
#include <QDialog>
#include <QMessageBox>
#include <QShowEvent>

#include <cmath>
#include <new>

namespace {

const int kLevel1 = 1;
const int kLevel2 = 2;
// Above any resistance a user types; the AC resistance is then bounded by
// nothing but the expression the output resistance stands for.
const double kNoLimit = 1e100;

bool holdsBrace(const QString& text)
{
    return text.contains(QLatin1Char('{'));
}

// Both resistances are plain numbers the rule can compare ("1e999" isn't).
bool comparable(const Spinner* rout, const Spinner* roAc)
{
    return !holdsBrace(rout->text()) && !holdsBrace(roAc->text()) && std::isfinite(rout->value())
           && std::isfinite(roAc->value());
}

} // namespace

class EditParameterisedOpampDialog : public QDialog {
    Q_OBJECT

public:
    EditParameterisedOpampDialog(QWidget* parent, const char* name);
    ~EditParameterisedOpampDialog() override;

    // Chooses the engine's page from the call and drops the other.
    void load(UserFunctionInterface* call);

public slots:
    void runHelp();
    void modelLevel_Changed(int level);
    void rout_Changed();
    void routAc_MaxHit();
    void onradiogroupLevelContextMenu(const QPoint& pos);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void loadBrelvon(const QStringList& values);
    void loadVantrell();
    // The AC resistance's limit from the output resistance, without
    // touching the AC resistance's own value.
    void limitAcResistance();

    std::unique_ptr<Ui::EditParameterisedOpampDialog> m_ui;
    ParameterisedLevel* m_level = nullptr;
    int m_helpContext = -1;
    int m_loadedLevel = kLevel2;
    bool m_brelvon = false;
    bool m_shown = false;
};

EditParameterisedOpampDialog::EditParameterisedOpampDialog(QWidget* /*parent*/, const char* name)
    : QDialog(nullptr)
    , m_ui(new Ui::EditParameterisedOpampDialog)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    m_ui->setupUi(this);
    const QString omega(QChar(0x03A9));
    for (QLabel* units : {m_ui->rin_units, m_ui->rout_units, m_ui->ro_ac_units,
                          m_ui->vantrell_rin_units, m_ui->vantrell_rout_units})
        units->setText(omega);
    dialogwidgets::nameBoxButtons(m_ui->buttonBox);

    ParameterisedLevel::Rules rules; // the text stays as it is either way
    m_level = new ParameterisedLevel(m_ui->radiogroupLevel, m_ui->groupBoxParamValue,
                                     m_ui->editboxRadioReturn, rules, this);
    // The level 2 values take part in any expression's model.
    connect(m_level, &ParameterisedLevel::parameterizationChanged, this, [this](bool on) {
        if (on)
            m_ui->groupBoxLevel2->setEnabled(true);
    });

    connect(m_ui->helpButton, &QPushButton::clicked, this, &EditParameterisedOpampDialog::runHelp);
    connect(m_ui->radiogroupLevel, &RadioGroup::clicked, this,
            &EditParameterisedOpampDialog::modelLevel_Changed);
    connect(m_ui->ro_ac, &Spinner::maxHit, this, &EditParameterisedOpampDialog::routAc_MaxHit);
    connect(m_ui->radiogroupLevel, &QWidget::customContextMenuRequested, this,
            &EditParameterisedOpampDialog::onradiogroupLevelContextMenu);
}

EditParameterisedOpampDialog::~EditParameterisedOpampDialog() = default;

void EditParameterisedOpampDialog::load(UserFunctionInterface* call)
{
    const QStringList engine = dialogcommon::stringArg(call, 1);
    m_brelvon = dialogcommon::elementOr(engine, 0).compare(QLatin1String("BRELVON"),
                                                           Qt::CaseInsensitive) == 0;
    if (m_brelvon)
        loadBrelvon(dialogcommon::stringArg(call, 0));
    else
        loadVantrell();
    resize(0, 0);
    QCoreApplication::processEvents();
}

void EditParameterisedOpampDialog::loadBrelvon(const QStringList& values)
{
    m_ui->tW->removeWidget(m_ui->vantrell_params);
    const QString title =
        QCoreApplication::translate("EditParameterisedOpampDialog",
                                    "Edit Multi-Level Parameterized Opamp (Version 8.0+)");
    m_ui->labelTitle->setText(title);
    modelLevel_Changed(m_ui->radiogroupLevel->selectedId());
    m_helpContext = sp_GetHelpContextId(YString("Parameterised_Opamp_BRELVON"));
    setWindowTitle(title);

    bool parameterized = false;
    if (!values.isEmpty()) {
        const QString first = values.first();
        parameterized = ParameterisedLevel::isExpression(first);
        if (parameterized) {
            m_ui->groupBoxLevel2->setEnabled(true);
            m_ui->radiobutton2->setChecked(true);
        }
        // Any text but "1", an expression or a bare "3" included, opens
        // as level 2.
        const bool one = first.compare(QLatin1String("1"), Qt::CaseInsensitive) == 0;
        if (one)
            m_ui->radiobutton1->setChecked(true);
        else if (first.compare(QLatin1String("2"), Qt::CaseInsensitive) == 0)
            m_ui->radiobutton2->setChecked(true);
        m_loadedLevel = one ? kLevel1 : kLevel2;
        modelLevel_Changed(m_loadedLevel);
    } else {
        m_loadedLevel = m_ui->radiogroupLevel->selectedId();
    }
    m_level->setParameterized(parameterized);
    setObjectName(QStringLiteral("EditParameterisedOpampDialog_BRELVON"));

    // The dropped page gives nothing back.
    const QList<Spinner*> dropped = m_ui->vantrell_params->findChildren<Spinner*>();
    for (Spinner* spinner : dropped)
        spinner->setOutElementIndex(-1);
}

// Neither levels nor parameterisation exist for this engine.
void EditParameterisedOpampDialog::loadVantrell()
{
    m_ui->tW->removeWidget(m_ui->brelvon_params);
    m_ui->radiogroupLevel->hide();
    m_ui->groupBoxParamValue->hide();
    m_helpContext = sp_GetHelpContextId(YString("Parameterised_Opamp_Vantrell"));
    setObjectName(QStringLiteral("EditParameterisedOpampDialog_Vantrell"));

    Ui::EditParameterisedOpampDialog& u = *m_ui;
    const QList<VT_FunctionDef*> dropped = {
        u.a0,  u.cmrr, u.gbw,   u.ib,     u.ibos,   u.io_snk_max,    u.io_src_max, u.iq,        u.psrr,
        u.rin, u.rout, u.ro_ac, u.sr_neg, u.sr_pos, u.use_back_anno, u.vdiff_neg,  u.vdiff_pos, u.vos};
    for (VT_FunctionDef* w : dropped)
        w->setOutElementIndex(-1);
}

// The values are loaded once the factory has returned; only now can the
// level's text be settled and the resistance rule take over.
void EditParameterisedOpampDialog::showEvent(QShowEvent* event)
{
    if (!m_shown) {
        m_shown = true;
        if (m_brelvon) {
            m_level->showLevel(m_loadedLevel);
            limitAcResistance();
            connect(m_ui->rout, &Spinner::textChanged, this,
                    &EditParameterisedOpampDialog::rout_Changed);
        }
        Spinner* first = m_brelvon ? m_ui->a0 : m_ui->vantrell_vos;
        first->lineEdit()->selectAll();
        first->setFocus();
    }
    QDialog::showEvent(event);
}

void EditParameterisedOpampDialog::runHelp()
{
    dialogcommon::runHelp(m_helpContext);
}

// A disabled group's values still go out.
void EditParameterisedOpampDialog::modelLevel_Changed(int level)
{
    m_level->showLevel(level);
    m_ui->groupBoxLevel2->setEnabled(level == kLevel2);
}

void EditParameterisedOpampDialog::limitAcResistance()
{
    if (comparable(m_ui->rout, m_ui->ro_ac))
        m_ui->ro_ac->setMax(m_ui->rout->value());
    else if (holdsBrace(m_ui->rout->text()))
        m_ui->ro_ac->setMax(kNoLimit);
}

// The AC output resistance must stay below the output resistance, so its
// value and its limit follow the output resistance.
void EditParameterisedOpampDialog::rout_Changed()
{
    if (comparable(m_ui->rout, m_ui->ro_ac)) {
        const double rout = m_ui->rout->value();
        if (m_ui->ro_ac->value() >= rout)
            m_ui->ro_ac->setValue(rout - 1.0);
    }
    limitAcResistance();
}

void EditParameterisedOpampDialog::routAc_MaxHit()
{
    if (holdsBrace(m_ui->rout->text()) || holdsBrace(m_ui->ro_ac->text()))
        return;
    QMessageBox::warning(this, tr("Maximum Output AC Resistance Hit"),
                         tr("The maximum value of the <b>Output AC Resistance</b> must be less "
                            "than the <b>Output Resistance</b> value."),
                         QMessageBox::Ok);
}

void EditParameterisedOpampDialog::onradiogroupLevelContextMenu(const QPoint& pos)
{
    m_level->contextMenu(pos);
}

namespace {

QDialog* createEditParameterisedOpampDialog(UserFunctionInterface* call, void* /*unused*/)
{
    auto* dialog =
        new (std::nothrow) EditParameterisedOpampDialog(nullptr, "EditParameterisedOpampDialog");
    if (!dialog)
        return nullptr;
    dialog->load(call);
    return dialog;
}

} // namespace

static const FunctionRegistration registerEditParameterisedOpampDialog(
    "EditParameterisedOpampDialog", argLimits(0, 32), &createEditParameterisedOpampDialog);

#include "editparameterisedopampdialog.moc"
