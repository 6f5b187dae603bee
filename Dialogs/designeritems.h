// The items of the dialog designer's layout tree. Each knows where it may
// stand, how it looks in the preview and how it is written as XML.
#pragma once

#include <QList>
#include <QString>
#include <QTreeWidgetItem>

class DialogDesigner;
class QWidget;
class QXmlStreamWriter;

// Item types; the same numbers are the QTreeWidgetItem types. The root of
// the tree, which has no item of its own, counts as RootItemType.
enum DesignerItemType {
    RootItemType = 1000,
    GroupItemType = 1001,
    RadioButtonItemType = 1002,
    TabItemType = 1003,
    CheckBoxItemType = 1004,
    SpinBoxItemType = 1005,
    VerticalSpacerItemType = 1006
};

class DialogItem : public QTreeWidgetItem {
public:
    ~DialogItem() override;

    // Adds the item's preview to parent's layout.
    virtual void createWidget(QWidget* parent) = 0;
    virtual void writeXml(QXmlStreamWriter& writer) = 0;

    QString title() const { return m_title; }
    int itemType() const { return m_itemType; }
    const QList<int>& allowedParents() const { return m_allowedParents; }
    bool mayStandUnder(int parentType) const { return m_allowedParents.contains(parentType); }
    DialogDesigner* designer() const { return m_designer; }

protected:
    DialogItem(int itemType, const QString& title, const QList<int>& allowedParents,
               DialogDesigner* designer);
    // Writes each child in tree order.
    void writeChildren(QXmlStreamWriter& writer);
    // Builds each child's preview into parent.
    void createChildWidgets(QWidget* parent);

private:
    QString m_title;
    QList<int> m_allowedParents;
    int m_itemType;
    DialogDesigner* m_designer;
};

class GroupItem : public DialogItem {
public:
    GroupItem(const QString& title, DialogDesigner* designer);
    void createWidget(QWidget* parent) override;
    void writeXml(QXmlStreamWriter& writer) override;
};

class RadioButtonItem : public DialogItem {
public:
    RadioButtonItem(const QString& title, DialogDesigner* designer);
    void createWidget(QWidget* parent) override;
    void writeXml(QXmlStreamWriter& writer) override;
};

class TabItem : public DialogItem {
public:
    TabItem(const QString& title, DialogDesigner* designer);
    // Every tab of the tree is a page of the preview's one tab widget,
    // wherever the tab stands.
    void createWidget(QWidget* parent) override;
    void writeXml(QXmlStreamWriter& writer) override;
};

class CheckBoxItem : public DialogItem {
public:
    CheckBoxItem(const QString& title, DialogDesigner* designer);
    void createWidget(QWidget* parent) override;
    void writeXml(QXmlStreamWriter& writer) override;
};

class SpinBoxItem : public DialogItem {
public:
    SpinBoxItem(const QString& title, const QString& unit, DialogDesigner* designer);
    void createWidget(QWidget* parent) override;
    void writeXml(QXmlStreamWriter& writer) override;
    QString unit() const { return m_unit; }

private:
    QString m_unit;
};

class VerticalSpacerItem : public DialogItem {
public:
    explicit VerticalSpacerItem(DialogDesigner* designer);
    void createWidget(QWidget* parent) override;
    void writeXml(QXmlStreamWriter& writer) override;
};

namespace designer {

// Object name of the widget that holds the preview; a tab's page looks for
// the tab widget below it.
extern const char kPreviewName[];

// Paints each item white where it may stand and red where it may not, and
// expands the tree when anything is red. True when all is in place.
bool checkPlacement(QTreeWidget* tree);

// Empties preview and builds it anew from the tree's top-level items.
void rebuildPreview(QTreeWidget* tree, QWidget* preview);

} // namespace designer
