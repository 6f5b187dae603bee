#include "designeritems.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLayout>
#include <QRadioButton>
#include <QSpacerItem>
#include <QSpinBox>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QXmlStreamWriter>

namespace {

// Tabs stand only at the top; everything else also in a group or a tab.
const QList<int> kAnywhere{RootItemType, GroupItemType, TabItemType};
const QList<int> kTopOnly{RootItemType};

QString treeText(const char* prefix, const QString& title)
{
    return QCoreApplication::translate("DialogDesigner", prefix).arg(title);
}

void addToLayout(QWidget* parent, QWidget* widget)
{
    if (parent && parent->layout())
        parent->layout()->addWidget(widget);
}

// The preview root above parent (or parent's topmost ancestor).
QWidget* previewRoot(QWidget* parent)
{
    QWidget* w = parent;
    while (w && w->objectName() != QLatin1String(designer::kPreviewName) && w->parentWidget())
        w = w->parentWidget();
    return w;
}

void checkChildren(QTreeWidgetItem* parent, int parentType, QTreeWidget* tree, bool* allInPlace)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        QTreeWidgetItem* child = parent->child(i);
        auto* item = dynamic_cast<DialogItem*>(child);
        const bool inPlace = item && item->mayStandUnder(parentType);
        child->setBackground(0, inPlace ? QBrush(Qt::white) : QBrush(QColor(255, 0, 0, 100)));
        if (!inPlace) {
            *allInPlace = false;
            tree->expandAll();
        }
        checkChildren(child, child->type(), tree, allInPlace);
    }
}

} // namespace

const char designer::kPreviewName[] = "widget_Preview";

// ---------------------------------------------------------------- DialogItem

DialogItem::DialogItem(int itemType, const QString& title, const QList<int>& allowedParents,
                       DialogDesigner* designer)
    : QTreeWidgetItem(itemType)
    , m_title(title)
    , m_allowedParents(allowedParents)
    , m_itemType(itemType)
    , m_designer(designer)
{
}

DialogItem::~DialogItem() = default;

void DialogItem::writeChildren(QXmlStreamWriter& writer)
{
    for (int i = 0; i < childCount(); ++i)
        if (auto* item = dynamic_cast<DialogItem*>(child(i)))
            item->writeXml(writer);
}

void DialogItem::createChildWidgets(QWidget* parent)
{
    for (int i = 0; i < childCount(); ++i)
        if (auto* item = dynamic_cast<DialogItem*>(child(i)))
            item->createWidget(parent);
}

// ----------------------------------------------------------------- GroupItem

GroupItem::GroupItem(const QString& title, DialogDesigner* designer)
    : DialogItem(GroupItemType, title, kAnywhere, designer)
{
    setText(0, treeText(QT_TRANSLATE_NOOP("DialogDesigner", "Group: %1"), title));
}

void GroupItem::createWidget(QWidget* parent)
{
    auto* box = new QGroupBox(title(), parent);
    new QVBoxLayout(box);
    createChildWidgets(box);
    addToLayout(parent, box);
}

void GroupItem::writeXml(QXmlStreamWriter& writer)
{
    writer.writeStartElement(QStringLiteral("Group"));
    writer.writeAttribute(QStringLiteral("title"), title());
    writeChildren(writer);
    writer.writeEndElement();
}

// ----------------------------------------------------------- RadioButtonItem

RadioButtonItem::RadioButtonItem(const QString& title, DialogDesigner* designer)
    : DialogItem(RadioButtonItemType, title, kAnywhere, designer)
{
    setText(0, treeText(QT_TRANSLATE_NOOP("DialogDesigner", "Radio button: %1"), title));
}

void RadioButtonItem::createWidget(QWidget* parent)
{
    addToLayout(parent, new QRadioButton(title(), parent));
}

void RadioButtonItem::writeXml(QXmlStreamWriter& writer)
{
    writer.writeEmptyElement(QStringLiteral("RadioButton"));
    writer.writeAttribute(QStringLiteral("title"), title());
}

// ------------------------------------------------------------------- TabItem

TabItem::TabItem(const QString& title, DialogDesigner* designer)
    : DialogItem(TabItemType, title, kTopOnly, designer)
{
    setText(0, treeText(QT_TRANSLATE_NOOP("DialogDesigner", "Tab: %1"), title));
}

void TabItem::createWidget(QWidget* parent)
{
    QWidget* root = previewRoot(parent);
    if (!root)
        return;
    auto* tabs = root->findChild<QTabWidget*>();
    if (!tabs) {
        tabs = new QTabWidget(root);
        addToLayout(root, tabs);
    }
    auto* page = new QWidget;
    new QVBoxLayout(page);
    createChildWidgets(page);
    tabs->addTab(page, title());
}

void TabItem::writeXml(QXmlStreamWriter& writer)
{
    writer.writeStartElement(QStringLiteral("Tab"));
    writer.writeAttribute(QStringLiteral("title"), title());
    writeChildren(writer);
    writer.writeEndElement();
}

// -------------------------------------------------------------- CheckBoxItem

CheckBoxItem::CheckBoxItem(const QString& title, DialogDesigner* designer)
    : DialogItem(CheckBoxItemType, title, kAnywhere, designer)
{
    setText(0, treeText(QT_TRANSLATE_NOOP("DialogDesigner", "Check box: %1"), title));
}

void CheckBoxItem::createWidget(QWidget* parent)
{
    addToLayout(parent, new QCheckBox(title(), parent));
}

void CheckBoxItem::writeXml(QXmlStreamWriter& writer)
{
    writer.writeEmptyElement(QStringLiteral("CheckBox"));
    writer.writeAttribute(QStringLiteral("title"), title());
}

// --------------------------------------------------------------- SpinBoxItem

SpinBoxItem::SpinBoxItem(const QString& title, const QString& unit, DialogDesigner* designer)
    : DialogItem(SpinBoxItemType, title, kAnywhere, designer)
    , m_unit(unit)
{
    setText(0, treeText(QT_TRANSLATE_NOOP("DialogDesigner", "Spin Box: %1"), title));
}

void SpinBoxItem::createWidget(QWidget* parent)
{
    auto* row = new QWidget(parent);
    auto* layout = new QHBoxLayout(row);
    layout->addWidget(new QLabel(title(), row));
    layout->addWidget(new QSpinBox(row));
    layout->addWidget(new QLabel(m_unit, row));
    addToLayout(parent, row);
}

void SpinBoxItem::writeXml(QXmlStreamWriter& writer)
{
    writer.writeEmptyElement(QStringLiteral("SpinBox"));
    writer.writeAttribute(QStringLiteral("title"), title());
    writer.writeAttribute(QStringLiteral("unit"), m_unit);
}

// -------------------------------------------------------- VerticalSpacerItem

VerticalSpacerItem::VerticalSpacerItem(DialogDesigner* designer)
    : DialogItem(VerticalSpacerItemType, QString(), kAnywhere, designer)
{
    setText(0, QCoreApplication::translate("DialogDesigner", "Spacer"));
}

void VerticalSpacerItem::createWidget(QWidget* parent)
{
    if (parent && parent->layout())
        parent->layout()->addItem(
            new QSpacerItem(20, 20, QSizePolicy::Minimum, QSizePolicy::Expanding));
}

void VerticalSpacerItem::writeXml(QXmlStreamWriter& writer)
{
    writer.writeEmptyElement(QStringLiteral("VerticalSpacer"));
}

// ------------------------------------------------------------------ the tree

bool designer::checkPlacement(QTreeWidget* tree)
{
    bool allInPlace = true;
    if (tree)
        checkChildren(tree->invisibleRootItem(), RootItemType, tree, &allInPlace);
    return allInPlace;
}

void designer::rebuildPreview(QTreeWidget* tree, QWidget* preview)
{
    if (!tree || !preview)
        return;
    const QList<QWidget*> old = preview->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* widget : old)
        widget->deleteLater();
    // An index that moves on past a removal passes over the item behind a
    // removed spacer; that one goes with the next rebuild.
    if (QLayout* layout = preview->layout()) {
        for (int i = 0; i < layout->count(); ++i) {
            QLayoutItem* item = layout->itemAt(i);
            if (item && item->spacerItem()) {
                layout->removeItem(item);
                delete item;
            }
        }
    }
    // Out of findChild's sight until deleteLater takes them.
    const QList<QTabWidget*> tabs = preview->findChildren<QTabWidget*>();
    for (QTabWidget* tab : tabs)
        tab->setParent(nullptr);
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        if (auto* item = dynamic_cast<DialogItem*>(tree->topLevelItem(i)))
            item->createWidget(preview);
    preview->update();
}
