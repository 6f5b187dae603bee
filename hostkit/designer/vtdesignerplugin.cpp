// Qt Designer plug-in of the host widget library: the bound widgets appear
// in Designer's widget box as themselves, with argIndex, inElementIndex,
// outElementIndex and their other properties in the property editor, so a
// form shows what the running dialog will show.
#include "hostwidgets.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QIcon>
#include <QList>
#include <QObject>
#include <QString>
#include <QWidget>

#include <functional>

namespace {

const char* const kGroup = "Vantrell host widgets";

struct WidgetInfo {
    QString className;
    QString toolTip;
    bool container;
    std::function<QWidget*(QWidget*)> create;
};

class BoundWidgetInterface : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    BoundWidgetInterface(WidgetInfo info, QObject* parent)
        : QObject(parent)
        , m_info(std::move(info))
    {
    }

    QString name() const override { return m_info.className; }
    QString group() const override { return QLatin1String(kGroup); }
    QString toolTip() const override { return m_info.toolTip; }
    QString whatsThis() const override { return m_info.toolTip; }
    QString includeFile() const override { return QStringLiteral("hostwidgets.h"); }
    QIcon icon() const override { return QIcon(); }
    bool isContainer() const override { return m_info.container; }
    QWidget* createWidget(QWidget* parent) override { return m_info.create(parent); }
    bool isInitialized() const override { return m_initialized; }
    void initialize(QDesignerFormEditorInterface*) override { m_initialized = true; }

    // A new widget gets a name of its class, as Designer names its own.
    QString domXml() const override
    {
        QString objectName = m_info.className;
        objectName[0] = objectName[0].toLower();
        return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\"/></ui>")
            .arg(m_info.className, objectName);
    }

private:
    WidgetInfo m_info;
    bool m_initialized = false;
};

template <class W>
std::function<QWidget*(QWidget*)> maker()
{
    return [](QWidget* parent) -> QWidget* { return new W(parent); };
}

} // namespace

class VtDesignerPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit VtDesignerPlugin(QObject* parent = nullptr)
        : QObject(parent)
    {
        const QList<WidgetInfo> widgets{
            {QStringLiteral("Spinner"), tr("Number entry with steps, kept as text"), false, maker<Spinner>()},
            {QStringLiteral("EditBox"), tr("Line of text bound to an element"), false, maker<EditBox>()},
            {QStringLiteral("TextEdit"), tr("Plain text bound to an element"), false, maker<TextEdit>()},
            {QStringLiteral("Label"), tr("Text taken from the call"), false, maker<Label>()},
            {QStringLiteral("CheckBox"), tr("Check box, 1 or 0"), false, maker<CheckBox>()},
            {QStringLiteral("GroupBox"), tr("Checkable group, 1 or 0"), true, maker<GroupBox>()},
            {QStringLiteral("RadioGroup"), tr("Radio buttons; the selected id"), true, maker<RadioGroup>()},
            {QStringLiteral("RadioButton"), tr("Radio button bound to an element"), false, maker<RadioButton>()},
            {QStringLiteral("ComboBox"), tr("Choice from items separated by |"), false, maker<ComboBox>()},
            {QStringLiteral("ListBox"), tr("List with selection"), false, maker<ListBox>()},
            {QStringLiteral("PushButton"), tr("Button with an action text"), false, maker<PushButton>()},
            {QStringLiteral("OkButton"), tr("Accepts the dialog"), false, maker<OkButton>()},
            {QStringLiteral("CancelButton"), tr("Rejects the dialog"), false, maker<CancelButton>()},
            {QStringLiteral("Plotter"), tr("Curves over linear or logarithmic axes"), false, maker<Plotter>()},
        };
        for (const WidgetInfo& info : widgets)
            m_widgets << new BoundWidgetInterface(info, this);
    }

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return m_widgets; }

private:
    QList<QDesignerCustomWidgetInterface*> m_widgets;
};

#include "vtdesignerplugin.moc"
