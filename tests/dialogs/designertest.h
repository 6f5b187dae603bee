// How the dialog designer's tests read its tree and its preview as text.
#pragma once

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QTabWidget>
#include <QTreeWidget>

namespace designertest {

// "G{R, T!}": each item's text, "!" behind one painted red, its children
// in braces.
inline QString describeTree(const QTreeWidgetItem* parent)
{
    QStringList parts;
    for (int i = 0; i < parent->childCount(); ++i) {
        const QTreeWidgetItem* item = parent->child(i);
        QString text = item->text(0);
        if (item->background(0).color() == QColor(255, 0, 0, 100))
            text += QLatin1Char('!');
        if (item->childCount())
            text += QLatin1Char('{') + describeTree(item) + QLatin1Char('}');
        parts << text;
    }
    return parts.join(QStringLiteral(", "));
}

inline bool allExpanded(const QTreeWidgetItem* parent)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        const QTreeWidgetItem* item = parent->child(i);
        if ((item->childCount() && !item->isExpanded()) || !allExpanded(item))
            return false;
    }
    return true;
}

// A preview as its layout holds it: "Group(G){Radio(a)}, Tabs{Tab(T){}}, spacer".
inline QString describeLayout(const QLayout* layout);

inline QString describeWidget(const QWidget* w)
{
    if (auto* box = qobject_cast<const QGroupBox*>(w))
        return QStringLiteral("Group(%1){%2}").arg(box->title(), describeLayout(box->layout()));
    if (auto* button = qobject_cast<const QAbstractButton*>(w))
        return QStringLiteral("%1(%2)").arg(QString::fromLatin1(w->metaObject()->className()).mid(1),
                                            button->text());
    if (auto* tabs = qobject_cast<const QTabWidget*>(w)) {
        QStringList pages;
        for (int i = 0; i < tabs->count(); ++i)
            pages << QStringLiteral("%1{%2}").arg(tabs->tabText(i),
                                                  describeLayout(tabs->widget(i)->layout()));
        return QStringLiteral("Tabs{%1}").arg(pages.join(QStringLiteral(", ")));
    }
    const QList<QLabel*> labels = w->findChildren<QLabel*>();
    if (labels.size() == 2) // a spin box row: title, box, unit
        return QStringLiteral("Spin(%1|%2)").arg(labels[0]->text(), labels[1]->text());
    return QLatin1String(w->metaObject()->className());
}

inline QString describeLayout(const QLayout* layout)
{
    QStringList parts;
    for (int i = 0; layout && i < layout->count(); ++i) {
        QLayoutItem* item = layout->itemAt(i);
        if (item->spacerItem())
            parts << QStringLiteral("spacer");
        else if (item->widget())
            parts << describeWidget(item->widget());
    }
    return parts.join(QStringLiteral(", "));
}

inline QString xmlOf(const QString& body)
{
    return QStringLiteral("<?xml version=\"1.0\"?>") + body + QLatin1Char('\n');
}

} // namespace designertest
