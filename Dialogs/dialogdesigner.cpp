// DialogDesigner: sketch a dialog as a tree of groups, tabs and controls,
// see it built from real widgets, and hand it to the script as XML. Drags
// move items freely; a placement that isn't allowed is painted red rather
// than refused, so the user sees the mistake and can move it back.
#include "designeritems.h"
#include "designerxml.h"
#include "dialogcommon.h"
#include "dialogwidgets.h"
#include "hostsupport.h"
#include "registration.h"

#include "ui_dialogdesigner.h"

#include <QAction>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QMenu>
#include <QPushButton>
#include <QTreeWidget>

#include <functional>
#include <memory>

namespace {

// Posted by the dialog to itself after a drop, so that the check runs on
// the tree as the drop left it.
const int kUpdatePreviewEventType = QEvent::registerEventType(-1);

class UpdatePreviewEvent : public QEvent {
public:
    UpdatePreviewEvent()
        : QEvent(static_cast<QEvent::Type>(kUpdatePreviewEventType))
    {
    }
};

} // namespace

class DialogDesigner : public QDialog {
    Q_OBJECT

public:
    DialogDesigner(UserFunctionInterface* call, QWidget* parent, const char* name);
    ~DialogDesigner() override;

    // Replaces the tree by what text holds.
    void readXml(const QString& text);
    QString writeXml() const;

    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;

public slots:
    virtual void onTreeContextMenu(const QPoint& pos);
    virtual void updatePreview();

private:
    void rebuildPreview();

    UserFunctionInterface* m_call;
    std::unique_ptr<Ui::DialogDesigner> m_ui;
};

DialogDesigner::DialogDesigner(UserFunctionInterface* call, QWidget* parent, const char* name)
    : QDialog(parent)
    , m_call(call)
    , m_ui(new Ui::DialogDesigner)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    dialogwidgets::nameBoxButtons(m_ui->buttonBox);

    connect(m_ui->treeWidget_Layout, &QTreeWidget::customContextMenuRequested, this,
            &DialogDesigner::onTreeContextMenu);
    m_ui->treeWidget_Layout->viewport()->installEventFilter(this);
}

DialogDesigner::~DialogDesigner() = default;

void DialogDesigner::readXml(const QString& text)
{
    m_ui->treeWidget_Layout->clear();
    const QList<DialogItem*> items = designer::readXml(text, this);
    for (DialogItem* item : items)
        m_ui->treeWidget_Layout->addTopLevelItem(item);
}

QString DialogDesigner::writeXml() const
{
    return designer::writeXml(m_ui->treeWidget_Layout);
}

void DialogDesigner::onTreeContextMenu(const QPoint& pos)
{
    QTreeWidget* tree = m_ui->treeWidget_Layout;
    QTreeWidgetItem* at = tree->itemAt(pos);
    const QPoint global = tree->viewport()->mapToGlobal(pos);
    QMenu menu;

    using Make = std::function<DialogItem*()>;
    QList<QPair<QAction*, Make>> choices;
    // Named so that answer scripts pick an action in any language.
    auto offer = [&](const char* name, const QString& text, Make make) {
        QAction* action = menu.addAction(text);
        action->setObjectName(QLatin1String(name));
        choices.append({action, std::move(make)});
    };
    const bool container = at && (at->type() == GroupItemType || at->type() == TabItemType);
    if (!at || container) {
        offer("actionAddGroup", tr("Add Group"), [this] { return new GroupItem(tr("Group"), this); });
        offer("actionAddRadioButton", tr("Add Radio Button"), [this] { return new RadioButtonItem(tr("Radio"), this); });
        // A tab stands only at the top, so only the top offers one.
        if (!at)
            offer("actionAddTab", tr("Add Tab"), [this] { return new TabItem(tr("Tab"), this); });
        offer("actionAddSpinBox", tr("Add Spin Box"),
              [this] { return new SpinBoxItem(tr("SpinBox"), QStringLiteral("V"), this); });
        offer("actionAddCheckBox", tr("Add Check Box"), [this] { return new CheckBoxItem(tr("CheckBox"), this); });
        offer("actionAddSpacer", tr("Add Spacer"), [this] { return new VerticalSpacerItem(this); });
    }
    if (choices.isEmpty())
        return;

    QAction* chosen = menu.exec(global);
    for (const auto& choice : choices) {
        if (choice.first != chosen)
            continue;
        DialogItem* item = choice.second();
        if (at)
            at->addChild(item);
        else
            tree->addTopLevelItem(item);
        // What the menu offers is always allowed: no check needed.
        rebuildPreview();
        return;
    }
}

bool DialogDesigner::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Drop && watched) {
        // The viewport sees the drop first; the check is posted, so that it
        // runs once the view has moved the items and sees the tree they leave.
        watched->event(event);
        QCoreApplication::postEvent(this, new UpdatePreviewEvent, Qt::NormalEventPriority);
    }
    return QObject::eventFilter(watched, event);
}

bool DialogDesigner::event(QEvent* event)
{
    if (event->type() == kUpdatePreviewEventType) {
        updatePreview();
        return true;
    }
    return QWidget::event(event);
}

void DialogDesigner::updatePreview()
{
    designer::checkPlacement(m_ui->treeWidget_Layout);
    rebuildPreview();
}

void DialogDesigner::rebuildPreview()
{
    designer::rebuildPreview(m_ui->treeWidget_Layout, m_ui->widget_Preview);
}

namespace {

long long runDialogDesigner(UserFunctionInterface* call)
{
    DialogDesigner dialog(call, nullptr, "Dialog Designer");
    sp_AutoSaveDialogDims(&dialog);
    sp_ApplyVantrellIcon(&dialog);

    dialog.readXml(dialogcommon::stringArg(call, 0).join(QString()));
    dialog.updatePreview();

    if (dialog.exec() == QDialog::Accepted) {
        dialogcommon::setStringResult(call, {dialog.writeXml()});
        return 0;
    }
    // A number, not text: the script tells Cancel from Ok by the type.
    if (call && call->MakeRealVector)
        if (double* value = call->MakeRealVector(call, 1, "PT_None"))
            value[0] = 0.0;
    return 0;
}

} // namespace

static const FunctionRegistration registerDialogDesigner("DialogDesigner", argLimits(0, 1),
                                                         &runDialogDesigner, {ArgStrings});

#include "dialogdesigner.moc"
