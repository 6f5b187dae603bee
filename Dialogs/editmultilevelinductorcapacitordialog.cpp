// EditMultiLevelInductorCapacitorDialog: edits a multi-level capacitor or
// lossy inductor, each with a fixed or a piecewise linear value. The model
// level decides which parasitic elements the device has; a second page
// holds the Monte Carlo tolerances. The dialog loads and collects its
// widgets itself, in the element order of the device's values.
#include "dialogcommon.h"
#include "dialogwidgets.h"
#include "hostwidgets.h"
#include "parameterisedlevel.h"
#include "pwltext.h"
#include "registration.h"
#include "shuntresistancecalculatordialog.h"

#include "ui_editmultilevelinductorcapacitordialog.h"

#include <QCoreApplication>
#include <QDialog>
#include <QPushButton>

#include <cstring>
#include <limits>
#include <memory>

namespace {

enum Variant { Capacitor = 0, PwlCapacitor = 1, Inductor = 2, PwlInductor = 3 };

struct VariantText {
    const char* key; // element 0 of argument 3, without regard to case
    const char* objectName;
    const char* title;
    const char* labelTitle;
    int resultSize;
};

// Window titles and headings per variant. The context is the form's, so
// one translation file holds them beside the form's own texts.
const VariantText kVariants[] = {
    {"", "EditMultiLevelCapV8",
     QT_TRANSLATE_NOOP("EditMultiLevelInductorCapacitorDialog", "Edit Multi-Level Capacitor"),
     QT_TRANSLATE_NOOP("EditMultiLevelInductorCapacitorDialog",
                       "Multi-Level Capacitor w/ Levels 0-3 (Version 8.0+)"),
     18},
    {"pwlc", "EditMultiLevelPWLCapV8",
     QT_TRANSLATE_NOOP("EditMultiLevelInductorCapacitorDialog", "Edit Multi-Level PWL Capacitor"),
     QT_TRANSLATE_NOOP("EditMultiLevelInductorCapacitorDialog",
                       "Multi-Level PWL Capacitor w/ Levels 0-3 (Version 8.0+)"),
     18},
    {"l", "EditLossyInductorV8",
     QT_TRANSLATE_NOOP("EditMultiLevelInductorCapacitorDialog", "Edit Multi-Level Lossy Inductor"),
     QT_TRANSLATE_NOOP("EditMultiLevelInductorCapacitorDialog",
                       "Multi-Level Lossy Inductor (Version 8.0+)"),
     12},
    {"pwll", "EditLossyPWLInductorV8",
     QT_TRANSLATE_NOOP("EditMultiLevelInductorCapacitorDialog",
                       "Edit Multi-Level Lossy PWL Inductor"),
     QT_TRANSLATE_NOOP("EditMultiLevelInductorCapacitorDialog",
                       "Multi-Level Lossy PWL Inductor (Version 8.0+)"),
     12},
};

// The curves a PWL device starts from when the script gives too few points.
const char kDefaultCapacitanceCurve[] =
    "NSEG=4 X0=0 Y0=0 X1=0.5 Y1=23.5u X2=2 Y2=90u X3=4 Y3=152u X4=6.3 Y4=196u";
const char kDefaultInductanceCurve[] =
    "NSEG=4 X0=0 Y0=0 X1=1 Y1=1.002u X2=7.5 Y2=7.406u X3=11 Y3=10.54u X4=13 Y4=11.841u";

const int kDefaultThreshold = 2;
const int kThresholdElement = 5;
const int kCapacitorTopLevel = 3;
const int kInductorTopLevel = 1;

using dialogcommon::leadingInt;

bool holdsBraces(const QString& text)
{
    return text.contains(QLatin1Char('{')) || text.contains(QLatin1Char('}'));
}

} // namespace

class EditMultiLevelInductorCapacitorDialog : public QDialog {
    Q_OBJECT

public:
    explicit EditMultiLevelInductorCapacitorDialog(UserFunctionInterface* call);
    ~EditMultiLevelInductorCapacitorDialog() override;

public slots:
    void runHelp();
    void loadDialog();
    void modelLevel_Changed(int level);
    void toolButtonEslShuntCalculate_clicked();
    void toolButtonDefinePWL_clicked();
    void eslTextChanged(const QString& text);
    void accept() override;
    void reject() override;
    void onradiogroupLevelContextMenu(const QPoint& pos);

private:
    bool isCapacitor() const { return m_variant == Capacitor || m_variant == PwlCapacitor; }
    void fillLists();
    void applyVariant();

    std::unique_ptr<Ui::EditMultiLevelInductorCapacitorDialog> m_ui;
    UserFunctionInterface* m_call = nullptr;
    QStringList m_args[4];
    int m_variant = Capacitor;
    int m_helpContext = -1;
    bool m_pwl = false;
    QString m_pwlText;
    ParameterisedLevel* m_level = nullptr;
    QList<QWidget*> m_result;
    QList<QWidget*> m_level1;
    QList<QWidget*> m_level2;
    QList<QWidget*> m_level3;
};

EditMultiLevelInductorCapacitorDialog::EditMultiLevelInductorCapacitorDialog(
    UserFunctionInterface* call)
    : QDialog(nullptr)
    , m_ui(new Ui::EditMultiLevelInductorCapacitorDialog)
    , m_call(call)
{
    m_ui->setupUi(this);
    const QString omega(QChar(0x03A9));
    for (QLabel* units : {m_ui->esr_units, m_ui->rlk_units, m_ui->esl_shunt_units,
                          m_ui->esr_units_l, m_ui->esl_shunt_units_l})
        units->setText(omega);
    dialogwidgets::nameBoxButtons(m_ui->buttonBox);

    for (int i = 0; i < 4; ++i)
        m_args[i] = dialogcommon::stringArg(call, i);
    const QString key = dialogcommon::elementOr(m_args[3], 0);
    for (int v = PwlCapacitor; v <= PwlInductor; ++v)
        if (key.compare(QLatin1String(kVariants[v].key), Qt::CaseInsensitive) == 0)
            m_variant = v;
    m_pwl = m_variant == PwlCapacitor || m_variant == PwlInductor;
    if (m_args[3].size() > 3) {
        bool ok = false;
        const int context = m_args[3].at(3).trimmed().toInt(&ok);
        m_helpContext = ok ? context : -1;
    }
    if (m_helpContext < 0)
        m_ui->helpButton->hide();

    // A curve of too few segments is taken for no curve at all. A script
    // sets the bar with element 5 of the editor's options; with a shorter
    // option list (five elements included) the bar is 2.
    const qint64 segments = (qint64(m_args[0].size()) >> 1) - 1;
    int threshold = kDefaultThreshold;
    if (m_args[1].size() > kThresholdElement) {
        bool ok = false;
        const int given = m_args[1].at(kThresholdElement).trimmed().toInt(&ok);
        if (ok)
            threshold = given;
    }
    if (segments > threshold)
        m_pwlText = pwltext::write(m_args[0]);
    else if (m_variant == PwlCapacitor)
        m_pwlText = QString::fromLatin1(kDefaultCapacitanceCurve);
    else if (m_variant == PwlInductor)
        m_pwlText = QString::fromLatin1(kDefaultInductanceCurve);

    ParameterisedLevel::Rules rules;
    rules.topLevel = isCapacitor() ? kCapacitorTopLevel : kInductorTopLevel;
    rules.lockRadios = true;
    m_level = new ParameterisedLevel(m_ui->radiogroupLevel, m_ui->groupBoxParamValue,
                                     m_ui->editboxRadioReturn, rules, this);

    applyVariant();
    fillLists();
    loadDialog();

    const VariantText& names = kVariants[m_variant];
    setObjectName(QLatin1String(names.objectName));
    const QString title = dialogcommon::elementOr(m_args[3], 2);
    setWindowTitle(title.isEmpty() ? tr(names.title) : title);
    if (m_variant != Capacitor)
        m_ui->labelTitle->setText(tr(names.labelTitle));

    const QString levelText = m_ui->editboxRadioReturn->text();
    int level = 0;
    if (isCapacitor()) {
        level = kCapacitorTopLevel;
        for (int l = 0; l < kCapacitorTopLevel; ++l)
            if (levelText == QString::number(l))
                level = l;
    } else {
        level = levelText == QLatin1String("0") ? 0 : kInductorTopLevel;
    }
    m_ui->radiogroupLevel->setButton(level);
    modelLevel_Changed(level);
    eslTextChanged(isCapacitor() ? m_ui->esl->text() : m_ui->l->text());

    connect(m_ui->helpButton, &QPushButton::clicked, this,
            &EditMultiLevelInductorCapacitorDialog::runHelp);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this,
            &EditMultiLevelInductorCapacitorDialog::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this,
            &EditMultiLevelInductorCapacitorDialog::reject);
    connect(m_ui->radiogroupLevel, &RadioGroup::clicked, this,
            &EditMultiLevelInductorCapacitorDialog::modelLevel_Changed);
    connect(m_ui->radiogroupLevel, &QWidget::customContextMenuRequested, this,
            &EditMultiLevelInductorCapacitorDialog::onradiogroupLevelContextMenu);
    connect(m_level, &ParameterisedLevel::levelSelected, this,
            &EditMultiLevelInductorCapacitorDialog::modelLevel_Changed);
    if (isCapacitor()) {
        connect(m_ui->toolButtonDefinePWL, &QToolButton::clicked, this,
                &EditMultiLevelInductorCapacitorDialog::toolButtonDefinePWL_clicked);
        connect(m_ui->toolButtonEslShuntCalculate, &QToolButton::clicked, this,
                &EditMultiLevelInductorCapacitorDialog::toolButtonEslShuntCalculate_clicked);
        connect(m_ui->esl, &Spinner::textChanged, this,
                &EditMultiLevelInductorCapacitorDialog::eslTextChanged);
    } else {
        connect(m_ui->toolButtonDefinePWL_l, &QToolButton::clicked, this,
                &EditMultiLevelInductorCapacitorDialog::toolButtonDefinePWL_clicked);
        connect(m_ui->toolButtonEslShuntCalculate_l, &QToolButton::clicked, this,
                &EditMultiLevelInductorCapacitorDialog::toolButtonEslShuntCalculate_clicked);
        connect(m_ui->l, &Spinner::textChanged, this,
                &EditMultiLevelInductorCapacitorDialog::eslTextChanged);
    }

    // The state at load is the level element's own: an expression there
    // opens parameterised.
    const int levelElement = m_result.size() - 1;
    m_level->setParameterized(
        ParameterisedLevel::isExpression(dialogcommon::elementOr(m_args[2], levelElement)));
    resize(0, 0);
    QCoreApplication::processEvents();
}

EditMultiLevelInductorCapacitorDialog::~EditMultiLevelInductorCapacitorDialog() = default;

// Pages, level buttons and rows that the variant has no use for.
void EditMultiLevelInductorCapacitorDialog::applyVariant()
{
    QTabWidget* tabs = m_ui->tW;
    const QList<QWidget*> dropped =
        isCapacitor() ? QList<QWidget*>{m_ui->inductor_params, m_ui->inductor_params_mc}
                      : QList<QWidget*>{m_ui->capacitor_params, m_ui->capacitor_params_mc};
    for (QWidget* page : dropped)
        tabs->removeTab(tabs->indexOf(page));
    tabs->setCurrentIndex(0);

    if (!isCapacitor()) {
        m_ui->radiobutton2->hide();
        m_ui->radiobutton3->hide();
        const QString tip =
            tr("<b>Level 0</b> is an inductor with a parallel shunt resistance.<br/>"
               "<b>Level 1</b> is an inductor with a parallel shunt resistance and equivalent "
               "series resistance (ESR).<p>To enter an expression containing parameter names "
               "enclosed in {}, right-click and select the Parameterize context menu option.</p>");
        for (QWidget* w : {static_cast<QWidget*>(m_ui->radiogroupLevel),
                           static_cast<QWidget*>(m_ui->radiobutton0),
                           static_cast<QWidget*>(m_ui->radiobutton1)})
            w->setToolTip(tip);
    }

    QList<QWidget*> hidden;
    switch (m_variant) {
    case Capacitor:
        hidden = {m_ui->pwl_label, m_ui->toolButtonDefinePWL};
        break;
    case PwlCapacitor:
        hidden = {m_ui->c_label, m_ui->c_units, m_ui->c};
        break;
    case Inductor:
        hidden = {m_ui->toolButtonDefinePWL_l, m_ui->pwl_label_l};
        break;
    default:
        hidden = {m_ui->l, m_ui->l_label, m_ui->l_units};
        break;
    }
    for (QWidget* w : hidden)
        w->hide();
}

void EditMultiLevelInductorCapacitorDialog::fillLists()
{
    Ui::EditMultiLevelInductorCapacitorDialog& u = *m_ui;
    if (isCapacitor()) {
        m_result = {u.c,       u.c_tol,     u.c_dist,    u.rlk,    u.rlk_tol, u.rlk_dist,
                    u.esr,     u.esr_tol,   u.esr_dist,  u.esl,    u.esl_tol, u.esl_dist,
                    u.esl_shunt, u.use_ic,  u.ic,        u.use_qty, u.qty,    u.editboxRadioReturn};
        m_level1 = {u.rlk_label, u.rlk, u.rlk_units, u.rlk_tol, u.rlk_label_mc, u.rlk_tol_units,
                    u.rlk_dist};
        m_level2 = {u.esr_label, u.esr, u.esr_units, u.esr_tol, u.esr_label_mc, u.esr_tol_units,
                    u.esr_dist};
        m_level3 = {u.esl_label,   u.esl,          u.esl_units,     u.esl_tol,
                    u.esl_label_mc, u.esl_tol_units, u.esl_dist,     u.esl_shunt_label,
                    u.esl_shunt,   u.esl_shunt_units, u.toolButtonEslShuntCalculate};
    } else {
        m_result = {u.l,           u.l_tol,  u.l_dist,  u.esr_l,   u.esr_tol_l, u.esr_dist_l,
                    u.esl_shunt_l, u.use_ic_l, u.ic_l,  u.use_qty_l, u.qty_l,   u.editboxRadioReturn};
        // esr_tol_units_l stays out: the "%" of the tolerance column stays
        // readable at level 0.
        m_level1 = {u.esr_l, u.esr_label_l, u.esr_units_l, u.esr_tol_l, u.esr_dist_l,
                    u.esr_label_mc_l};
    }
}

// Every distribution box gets the script's list, also where the values
// end early, so that a short value list still offers the distributions.
void EditMultiLevelInductorCapacitorDialog::loadDialog()
{
    const QByteArray distributions = dialogcommon::elementOr(m_args[3], 1).toLatin1();
    for (QWidget* w : qAsConst(m_result))
        if (auto* combo = qobject_cast<ComboBox*>(w))
            combo->loadStrings(distributions.constData());

    const QStringList& values = m_args[2];
    const int end = qMin(values.size(), m_result.size());
    for (int i = m_pwl ? 1 : 0; i < end; ++i) {
        QWidget* w = m_result.at(i);
        const QString& e = values.at(i);
        if (auto* combo = qobject_cast<ComboBox*>(w))
            combo->setCurrentText(e);
        else if (auto* spinner = qobject_cast<Spinner*>(w))
            spinner->setText(e);
        else if (auto* group = qobject_cast<RadioGroup*>(w))
            group->setText(e);
        else if (auto* box = qobject_cast<GroupBox*>(w))
            box->setChecked(leadingInt(e) != 0);
        else if (auto* edit = qobject_cast<EditBox*>(w))
            edit->setText(e);
    }
}

void EditMultiLevelInductorCapacitorDialog::runHelp()
{
    dialogcommon::runHelp(m_helpContext);
}

// Widgets of a higher level are disabled, not hidden, and their values go
// out all the same.
void EditMultiLevelInductorCapacitorDialog::modelLevel_Changed(int level)
{
    m_level->showLevel(level);
    for (QWidget* w : qAsConst(m_level1))
        w->setEnabled(level >= 1);
    if (!isCapacitor())
        return;
    for (QWidget* w : qAsConst(m_level2))
        w->setEnabled(level >= 2);
    for (QWidget* w : qAsConst(m_level3))
        w->setEnabled(level >= 3);
    eslTextChanged(m_ui->esl->text());
}

// The calculator needs a number to work from. In a capacitor it is also a
// widget of level 3, so it stays off below that level whatever the text.
void EditMultiLevelInductorCapacitorDialog::eslTextChanged(const QString& text)
{
    const bool usable = !text.isEmpty() && !holdsBraces(text);
    if (isCapacitor())
        m_ui->toolButtonEslShuntCalculate->setEnabled(usable && m_ui->esl->isEnabled());
    else
        m_ui->toolButtonEslShuntCalculate_l->setEnabled(usable);
}

// The PWL inductor has no inductance of its own to offer, so the user
// types one into the calculator.
void EditMultiLevelInductorCapacitorDialog::toolButtonEslShuntCalculate_clicked()
{
    QString inductance;
    bool editable = false;
    switch (m_variant) {
    case Capacitor:
    case PwlCapacitor:
        inductance = m_ui->esl->text();
        break;
    case Inductor:
        inductance = m_ui->l->text();
        break;
    default:
        inductance = QStringLiteral("1u");
        editable = true;
        break;
    }
    ShuntResistanceCalculatorDialog calculator(this, "test", inductance, editable);
    if (calculator.exec() != QDialog::Accepted)
        return;
    Spinner* shunt = isCapacitor() ? m_ui->esl_shunt : m_ui->esl_shunt_l;
    shunt->setText(calculator.resultText());
}

// The point table is the host's own editor. What it returns replaces the
// call's curve argument too, so that the next "Define..." opens on it.
void EditMultiLevelInductorCapacitorDialog::toolButtonDefinePWL_clicked()
{
    if (!m_call || !m_call->CallScriptFunction)
        return;
    ArgRecord args[2];
    std::memcpy(args, m_call->args, sizeof args);
    ArgRecord result;
    std::memset(&result, 0, sizeof result);
    int error = 0;
    if (!m_call->CallScriptFunction(m_call, "PWLDialog", args, 2, &result, &error))
        return;
    if (result.count == 0 || !result.data || result.kind != ArgKindStrings)
        return;
    m_call->args[0] = result;
    m_pwlText = pwltext::write(dialogcommon::stringArg(m_call, 0));
}

void EditMultiLevelInductorCapacitorDialog::accept()
{
    if (m_call && m_call->DupString) {
        const int size = kVariants[m_variant].resultSize;
        char** out = sp_MakeStringResult(m_call, size);
        if (out) {
            int first = 0;
            if (m_pwl) {
                out[0] = m_call->DupString(Tocs(m_pwlText));
                first = 1;
            }
            for (int i = first; i < size && i < m_result.size(); ++i) {
                QWidget* w = m_result.at(i);
                QString text;
                if (auto* combo = qobject_cast<ComboBox*>(w))
                    text = combo->currentText();
                else if (auto* spinner = qobject_cast<Spinner*>(w))
                    text = spinner->text();
                else if (auto* group = qobject_cast<RadioGroup*>(w))
                    text = QString::number(group->selectedId());
                else if (auto* box = qobject_cast<GroupBox*>(w))
                    text = box->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
                else if (auto* edit = qobject_cast<EditBox*>(w))
                    text = edit->text();
                out[i] = m_call->DupString(Tocs(text));
            }
        }
    }
    QDialog::accept();
}

void EditMultiLevelInductorCapacitorDialog::reject()
{
    QDialog::reject();
}

void EditMultiLevelInductorCapacitorDialog::onradiogroupLevelContextMenu(const QPoint& pos)
{
    m_level->contextMenu(pos);
}

namespace {

long long runEditMultiLevelInductorCapacitorDialog(UserFunctionInterface* call)
{
    EditMultiLevelInductorCapacitorDialog dialog(call);
    sp_AutoSaveDialogDims(&dialog);
    sp_ApplyVantrellIcon(&dialog);
    dialog.exec();
    return 0;
}

} // namespace

static const FunctionRegistration registerEditMultiLevelInductorCapacitorDialog(
    "EditMultiLevelInductorCapacitorDialog", argLimits(4, 4),
    &runEditMultiLevelInductorCapacitorDialog, {ArgStrings, ArgStrings, ArgStrings, ArgStrings});

#include "editmultilevelinductorcapacitordialog.moc"
