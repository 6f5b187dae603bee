// LoopForgeEditPWMDialog: the parameters of a LoopForge PWM block, in tabs
// built from descriptors, plus the block's symbol description, which comes
// back in the element behind the last parameter position.
#include "ParameterPages.h"
#include "dialogcommon.h"
#include "registration.h"

#include "ui_loopforgeeditpwmdialog.h"

#include <QDialog>
#include <QGridLayout>
#include <QShowEvent>
#include <QSpacerItem>

#include <memory>
#include <new>

namespace {

using parameterpages::ArgTabs;
using parameterpages::ArgGroups;
using parameterpages::ArgParams;
using parameterpages::ArgValues;
using parameterpages::ArgInfo;

enum InfoElement { InfoTitle, InfoHeadline, InfoSymbol, InfoHelp };

} // namespace

class LoopForgeEditPWMDialog : public QDialog {
    Q_OBJECT

public:
    explicit LoopForgeEditPWMDialog(QWidget* parent = nullptr, const char* name = nullptr);
    ~LoopForgeEditPWMDialog() override;

    void loadArguments(UserFunctionInterface* call);

protected:
    void showEvent(QShowEvent* event) override;

public slots:
    void formAccepted();
    void runHelp();

private:
    void buildPages();

    std::unique_ptr<Ui::LoopForgeEditPWMDialog> m_ui;
    parameterpages::PageMaps m_maps;
    // Kept by name as the pages are built; nothing reads them again.
    parameterpages::CaseInsensitiveMap<QWidget*> m_labels;
    parameterpages::CaseInsensitiveMap<QWidget*> m_units;
    parameterpages::CaseInsensitiveMap<QWidget*> m_controls;
    QStringList m_args[parameterpages::TabbedArgumentCount];
    int m_helpTopic = -1;
    bool m_built = false;
};

LoopForgeEditPWMDialog::LoopForgeEditPWMDialog(QWidget* parent, const char* name)
    : QDialog(parent)
    , m_ui(new Ui::LoopForgeEditPWMDialog)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    m_ui->setupUi(this);
}

LoopForgeEditPWMDialog::~LoopForgeEditPWMDialog() = default;

void LoopForgeEditPWMDialog::loadArguments(UserFunctionInterface* call)
{
    parameterpages::readArguments(call, m_args, parameterpages::TabbedArgumentCount);
    const QStringList& info = m_args[ArgInfo];
    m_helpTopic = parameterpages::applyDialogInfo(this, m_ui->labelTitle, m_ui->helpButton, info,
                                                  InfoTitle, InfoHeadline, InfoHelp);
}

void LoopForgeEditPWMDialog::showEvent(QShowEvent* event)
{
    if (!m_built) {
        m_built = true;
        buildPages();
    }
    QDialog::showEvent(event);
}

void LoopForgeEditPWMDialog::formAccepted()
{
    accept();
}

void LoopForgeEditPWMDialog::runHelp()
{
    parameterpages::runHelpTopic(m_helpTopic);
}

void LoopForgeEditPWMDialog::buildPages()
{
    using namespace parameterpages;
    const QStringList& values = m_args[ArgValues];
    const ParameterPageSpec spec(m_args[ArgTabs], m_args[ArgParams], m_args[ArgGroups], values);
    delete m_ui->tW->widget(0);

    // The description follows the last parameter position, counted with
    // labels and plain groups, so a gap may lie before it.
    const int symbolElement = spec.parameterCount();
    if (values.size() > symbolElement) {
        m_ui->editBoxSymDescription->setText(values.at(symbolElement));
        m_ui->editBoxSymDescription->setOutElementIndex(symbolElement);
    }

    makeTabPages(spec, m_maps, m_ui->tW, -1, -1);
    // A spacer below each group keeps the groups at the top of their page.
    placeGroups(spec, m_maps, [](QGridLayout* pageGrid, const GroupDescriptor& g) {
        pageGrid->addItem(new QSpacerItem(20, 0, QSizePolicy::Fixed, QSizePolicy::Expanding), 100,
                          gridIndex(g.firstColumn));
    });

    PlacementRules rules;
    rules.nestedGroupsFirst = false;
    rules.nestedKeyWithTab = false;
    rules.nestedGridSpacer = true;
    rules.separatorPitch = 3;
    rules.fixedSeparatorWidth = 5;
    rules.buttonLayout = m_ui->layoutButtons;
    rules.buttonParent = this;
    rules.placed = [this](const ParameterDescriptor& d, const PlacedParameter& w) {
        if (w.label)
            m_labels[d.name] = w.label;
        if (w.unit)
            m_units[d.name] = w.unit;
        if (w.control)
            m_controls[d.name] = w.control;
    };
    placeParameters(spec, m_maps, rules);
}

namespace {

QDialog* createLoopForgeEditPWMDialog(UserFunctionInterface* call, void* /*unused*/)
{
    auto* dialog = new (std::nothrow) LoopForgeEditPWMDialog(nullptr, "LoopForgeEditPWMDialog");
    if (!dialog)
        return nullptr;
    dialog->loadArguments(call);
    return dialog;
}

} // namespace

static const FunctionRegistration registerLoopForgeEditPWMDialog("LoopForgeEditPWMDialog",
                                                                 argLimits(0, 32),
                                                                 &createLoopForgeEditPWMDialog);

#include "loopforgeeditpwmdialog.moc"
