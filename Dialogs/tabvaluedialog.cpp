// TabValueDialog: tabs of device parameters, all described by the script's
// descriptors, whose values go back as one result array through the
// controls' bindings.
#include "ParameterPages.h"
#include "dialogcommon.h"
#include "registration.h"

#include "ui_tabvaluedialog.h"

#include <QDialog>
#include <QShowEvent>

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

class TabValueDialog : public QDialog {
    Q_OBJECT

public:
    explicit TabValueDialog(QWidget* parent = nullptr, const char* name = nullptr);
    ~TabValueDialog() override;

    void loadArguments(UserFunctionInterface* call);

public slots:
    void formAccepted();
    void runHelp();
    void destroy();
    void init();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void buildPages();

    std::unique_ptr<Ui::TabValueDialog> m_ui;
    std::unique_ptr<parameterpages::PageMaps> m_maps;
    QStringList m_args[parameterpages::TabbedArgumentCount];
    int m_helpTopic = -1;
    bool m_built = false;
};

TabValueDialog::TabValueDialog(QWidget* parent, const char* name)
    : QDialog(parent)
    , m_ui(new Ui::TabValueDialog)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    init();
}

TabValueDialog::~TabValueDialog()
{
    destroy();
}

void TabValueDialog::init()
{
    m_maps.reset(new parameterpages::PageMaps);
}

void TabValueDialog::destroy()
{
    m_maps.reset();
}

void TabValueDialog::loadArguments(UserFunctionInterface* call)
{
    parameterpages::readArguments(call, m_args, parameterpages::TabbedArgumentCount);
    const QStringList& info = m_args[ArgInfo];
    m_helpTopic = parameterpages::applyDialogInfo(this, m_ui->labelTitle, m_ui->helpButton, info,
                                                  InfoTitle, InfoHeadline, InfoHelp);
    const int signature = parameterpages::descriptorSignature(m_args[ArgParams], info, InfoHelp);
    setObjectName(QStringLiteral("TabValueDialog_") + QString::number(signature));
}

void TabValueDialog::formAccepted()
{
    accept();
}

void TabValueDialog::runHelp()
{
    parameterpages::runHelpTopic(m_helpTopic);
}

void TabValueDialog::showEvent(QShowEvent* event)
{
    if (!m_built) {
        m_built = true;
        buildPages();
    }
    QDialog::showEvent(event);
}

void TabValueDialog::buildPages()
{
    using namespace parameterpages;
    const ParameterPageSpec spec(m_args[ArgTabs], m_args[ArgParams], m_args[ArgGroups],
                                 m_args[ArgValues]);
    delete m_ui->tW->widget(0);
    makeTabPages(spec, *m_maps, m_ui->tW, 11, 6);
    placeGroups(spec, *m_maps);
    PlacementRules rules;
    rules.buttonLayout = m_ui->layoutButtons;
    rules.buttonParent = this;
    placeParameters(spec, *m_maps, rules);
}

namespace {

QDialog* createTabValueDialog(UserFunctionInterface* call, void* /*unused*/)
{
    auto* dialog = new (std::nothrow) TabValueDialog(nullptr, "TabValueDialog");
    if (!dialog)
        return nullptr;
    dialog->loadArguments(call);
    return dialog;
}

} // namespace

static const FunctionRegistration registerTabValueDialog("TabValueDialog", argLimits(0, 32),
                                                         &createTabValueDialog);

#include "tabvaluedialog.moc"
