// RadioSelectWidgetStackDialog: a radio button per page title and a page of
// descriptor-built controls for the selected one. Result element 0 is the
// selection: the page title, or, once the user parameterizes the choice
// from the context menu, an expression in braces typed in the edit box.
#include "ParameterPages.h"
#include "dialogcommon.h"
#include "hostwidgets.h"
#include "registration.h"

#include "ui_radioselectwidgetstackdialog.h"

#include <QButtonGroup>
#include <QDialog>
#include <QGridLayout>
#include <QIcon>
#include <QMenu>
#include <QMessageBox>
#include <QShowEvent>
#include <QStackedWidget>

#include <memory>
#include <new>

namespace {

using parameterpages::ArgTabs;
using parameterpages::ArgGroups;
using parameterpages::ArgParams;
using parameterpages::ArgValues;
using parameterpages::ArgInfo;

enum InfoElement { InfoTitle, InfoHeadline, InfoHelp };

} // namespace

class RadioSelectWidgetStackDialog : public QDialog {
    Q_OBJECT

public:
    explicit RadioSelectWidgetStackDialog(QWidget* parent = nullptr, const char* name = nullptr);
    ~RadioSelectWidgetStackDialog() override;

    void loadArguments(UserFunctionInterface* call);

public slots:
    void formAccepted();
    void runHelp();
    void destroy();
    void init();
    void updateEditBoxRadioSelect(int id);
    void onradiogroupSelectContextMenu(const QPoint& point);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void buildPages();
    void makeSelection(const parameterpages::ParameterPageSpec& spec);
    QString selectionErrors(const QString& text) const;

    std::unique_ptr<Ui::RadioSelectWidgetStackDialog> m_ui;
    std::unique_ptr<parameterpages::PageMaps> m_maps;
    QStringList m_args[parameterpages::TabbedArgumentCount];
    QStringList m_tabTitles; // raw, in button order
    int m_helpTopic = -1;
    bool m_parameterized = false;
    bool m_built = false;
};

RadioSelectWidgetStackDialog::RadioSelectWidgetStackDialog(QWidget* parent, const char* name)
    : QDialog(parent)
    , m_ui(new Ui::RadioSelectWidgetStackDialog)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    m_ui->setupUi(this);
    init();
}

RadioSelectWidgetStackDialog::~RadioSelectWidgetStackDialog()
{
    destroy();
}

void RadioSelectWidgetStackDialog::init()
{
    m_maps.reset(new parameterpages::PageMaps);
}

void RadioSelectWidgetStackDialog::destroy()
{
    m_maps.reset();
}

void RadioSelectWidgetStackDialog::loadArguments(UserFunctionInterface* call)
{
    parameterpages::readArguments(call, m_args, parameterpages::TabbedArgumentCount);
    const QStringList& info = m_args[ArgInfo];
    m_helpTopic = parameterpages::applyDialogInfo(this, m_ui->labelTitle, m_ui->helpButton, info,
                                                  InfoTitle, InfoHeadline, InfoHelp);
    const int signature = parameterpages::descriptorSignature(m_args[ArgParams], info, InfoHelp);
    setObjectName(QStringLiteral("RadioSelectWidgetStackDialog_") + QString::number(signature));
}

void RadioSelectWidgetStackDialog::showEvent(QShowEvent* event)
{
    if (!m_built) {
        m_built = true;
        buildPages();
    }
    QDialog::showEvent(event);
}

void RadioSelectWidgetStackDialog::buildPages()
{
    using namespace parameterpages;
    const QStringList& values = m_args[ArgValues];
    if (!values.isEmpty())
        m_ui->editboxRadioReturn->setText(values.first());
    m_parameterized = m_ui->editboxRadioReturn->text().startsWith(QLatin1Char('{'));
    if (!m_parameterized)
        m_ui->groupBoxParamValue->hide();

    // Descriptor 0 describes the selection itself; a plain split, no escape.
    const QStringList select = dialogcommon::elementOr(m_args[ArgParams], 0).split(QLatin1Char(':'));
    if (select.size() > 2)
        m_ui->radiogroupSelect->setTitle(select.at(2));
    if (select.size() > 9)
        m_ui->radiogroupSelect->setToolTip(select.at(9));

    const ParameterPageSpec spec(m_args[ArgTabs], m_args[ArgParams], m_args[ArgGroups], values);
    makeSelection(spec);
    placeGroups(spec, *m_maps);
    PlacementRules rules;
    rules.firstDescriptor = 1;
    rules.buttonLayout = m_ui->layoutButtons;
    rules.buttonParent = this;
    placeParameters(spec, *m_maps, rules);
}

// One stack page and one radio button per title; the button of the title
// that values[0] names is checked, else the first.
void RadioSelectWidgetStackDialog::makeSelection(const parameterpages::ParameterPageSpec& spec)
{
    const QString selected = dialogcommon::elementOr(m_args[ArgValues], 0);
    int current = 0;
    // The buttons also join a group of their own under their page position,
    // where code that looks a selection button up by id finds it.
    auto* group = new QButtonGroup(this);
    group->setObjectName(QStringLiteral("buttonGroup"));
    for (int i = 0; i < spec.tabCount(); ++i) {
        const QString title = spec.tabTitle(i);
        m_ui->wStack->addWidget(parameterpages::makePage(*m_maps, title, 0, 0));

        auto* button = new RadioButton(m_ui->radiogroupSelect);
        button->setObjectName(QStringLiteral("radioButtonSelect") + QString::number(i));
        m_tabTitles << title;
        QString text = title;
        text.replace(QLatin1String("\\s"), QLatin1String(" "), Qt::CaseInsensitive);
        button->setText(text);
        group->addButton(button, i);
        if (title.compare(selected, Qt::CaseInsensitive) == 0)
            current = i;
        m_ui->layoutRS->addWidget(button);
    }
    m_ui->radiogroupSelect->assignIds();
    m_ui->radiogroupSelect->setButton(current);
    m_ui->wStack->setCurrentIndex(current);
}

void RadioSelectWidgetStackDialog::updateEditBoxRadioSelect(int id)
{
    if (id >= 0 && id < m_tabTitles.size() && !m_parameterized)
        m_ui->editboxRadioReturn->setText(m_tabTitles.at(id));
}

QString RadioSelectWidgetStackDialog::selectionErrors(const QString& text) const
{
    QString errors;
    if (!text.startsWith(QLatin1Char('{')))
        errors += tr("<br/><nobr>The Parameter value doesn't begin with an opening curly brace "
                     "\"{\"</nobr>");
    if (!text.endsWith(QLatin1Char('}')))
        errors += tr("<br/><nobr>The Parameter value doesn't end with a closing curly brace "
                     "\"}\"</nobr>");
    if (text.contains(QLatin1Char(' ')))
        errors += tr("<br/>The Parameter value contains spaces");
    return errors;
}

void RadioSelectWidgetStackDialog::formAccepted()
{
    updateEditBoxRadioSelect(m_ui->radiogroupSelect->selectedId());
    if (!m_parameterized) {
        accept();
        return;
    }
    const QString text = m_ui->editboxRadioReturn->text().trimmed();
    for (const QString& title : qAsConst(m_tabTitles)) {
        if (title.compare(text, Qt::CaseInsensitive) == 0) {
            accept();
            return;
        }
    }
    const QString errors = selectionErrors(text);
    if (errors.isEmpty()) {
        accept();
        return;
    }
    QMessageBox::warning(this, tr("Error: Incorrect parameter name"),
                         tr("Parameter values must meet three requirements:<ol><li>Begin with the "
                            "opening curly brace \"{\",</li><li>End with the closing curly brace "
                            "\"}\",</li><li>And not contain spaces.</li></ol>The errors are:")
                             + errors);
}

void RadioSelectWidgetStackDialog::onradiogroupSelectContextMenu(const QPoint& point)
{
    QMenu menu(this);
    QAction* action = nullptr;
    if (m_parameterized)
        action = menu.addAction(QIcon(QStringLiteral(":/stop.png")), tr("Remove Parameterization"));
    else
        action = menu.addAction(QIcon(QStringLiteral(":/options.png")),
                                tr("Parameterize ") + m_ui->radiogroupSelect->title());
    if (menu.exec(m_ui->radiogroupSelect->mapToGlobal(point)) != action)
        return;
    if (m_parameterized) {
        m_ui->groupBoxParamValue->hide();
        m_parameterized = false;
        return;
    }
    m_parameterized = true;
    const int id = m_ui->radiogroupSelect->selectedId();
    if (!m_ui->editboxRadioReturn->text().startsWith(QLatin1Char('{')) && id >= 0
        && id < m_tabTitles.size())
        m_ui->editboxRadioReturn->setText(m_tabTitles.at(id));
    m_ui->groupBoxParamValue->show();
}

void RadioSelectWidgetStackDialog::runHelp()
{
    parameterpages::runHelpTopic(m_helpTopic);
}

namespace {

QDialog* createRadioSelectWidgetStackDialog(UserFunctionInterface* call, void* /*unused*/)
{
    auto* dialog = new (std::nothrow)
        RadioSelectWidgetStackDialog(nullptr, "RadioSelectWidgetStackDialog");
    if (!dialog)
        return nullptr;
    dialog->loadArguments(call);
    return dialog;
}

} // namespace

static const FunctionRegistration registerRadioSelectWidgetStackDialog(
    "RadioSelectWidgetStackDialog", argLimits(0, 32), &createRadioSelectWidgetStackDialog);

#include "radioselectwidgetstackdialog.moc"
