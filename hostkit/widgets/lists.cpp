#include "hostwidgets.h"

#include "hostsupport.h"
#include "kitsupport.h"
#include "udf.h"

#include <QLineEdit>
#include <QStringList>

#include <cmath>

namespace {

// "" is no item at all, not one empty item; "a||b" keeps its empty middle.
QStringList splitItems(const char* items)
{
    if (!items || !*items)
        return {};
    return QString::fromLatin1(items).split(QLatin1Char('|'), Qt::KeepEmptyParts);
}

// Replaces the items of a combo or list box with those of the element that
// its items binding names; false when that element is absent.
template <typename Box>
bool loadItemsFromCall(Box* box, UserFunctionInterface* call, int argIndex, int elementIndex)
{
    const char* items = vtkit::stringElement(call, argIndex, elementIndex);
    if (!items)
        return false;
    box->loadStrings(items);
    return true;
}

QString withoutQuotes(const QString& text)
{
    if (text.size() >= 2) {
        const QChar first = text.front();
        if ((first == QLatin1Char('"') || first == QLatin1Char('\'')) && text.back() == first)
            return text.mid(1, text.size() - 2);
    }
    return text;
}

} // namespace

// --------------------------------------------------------------- ComboBox

ComboBox::ComboBox(QWidget* parent, const char* name)
    : QComboBox(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

ComboBox::~ComboBox() = default;

bool ComboBox::initialiseWidget(UserFunctionInterface* call)
{
    return loadItemsFromCall(this, call, m_itemsArgIndex, m_itemsElementIndex);
}

void ComboBox::loadStrings(const char* items)
{
    clear();
    addItems(splitItems(items));
}

void ComboBox::insertItem(const QString& text, int index)
{
    if (index < 0 || index > count())
        index = count();
    QComboBox::insertItem(index, text);
}

QString ComboBox::text(int index) const
{
    return itemText(index);
}

void ComboBox::setValue(double index)
{
    if (!std::isfinite(index) || index < 0.0 || index >= count())
        return;
    setCurrentIndex(static_cast<int>(index));
}

QString ComboBox::stringValue() const
{
    const QString current = currentText();
    return m_stripQuotes ? withoutQuotes(current) : current;
}

void ComboBox::setStringValue(const QString& text)
{
    int found = findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    // What stringValue gave without quotes must find its quoted item again.
    for (int i = 0; found < 0 && m_stripQuotes && i < count(); ++i) {
        if (withoutQuotes(itemText(i)) == text)
            found = i;
    }
    if (found >= 0)
        setCurrentIndex(found);
    else if (isEditable())
        setEditText(text);
}

// ---------------------------------------------------------------- ListBox

ListBox::ListBox(QWidget* parent, const char* name)
    : QListWidget(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

ListBox::~ListBox() = default;

bool ListBox::initialiseWidget(UserFunctionInterface* call)
{
    return loadItemsFromCall(this, call, m_itemsArgIndex, m_itemsElementIndex);
}

void ListBox::loadStrings(const char* items)
{
    clear();
    addItems(splitItems(items));
}

QString ListBox::currentText() const
{
    if (selectionMode() == QAbstractItemView::NoSelection) {
        const QListWidgetItem* current = currentItem();
        return current ? current->text() : QString();
    }
    QStringList texts;
    for (int row = 0; row < count(); ++row) {
        const QListWidgetItem* it = item(row);
        if (it && it->isSelected())
            texts.append(it->text());
    }
    return texts.join(QLatin1Char('|'));
}

QListWidgetItem* ListBox::selectedItem() const
{
    for (int row = 0; row < count(); ++row) {
        QListWidgetItem* it = item(row);
        if (it && it->isSelected())
            return it;
    }
    return nullptr;
}

QListWidgetItem* ListBox::findItem(const QString& text, Qt::MatchFlag flag) const
{
    const QList<QListWidgetItem*> hits = findItems(text, flag);
    QListWidgetItem* first = nullptr;
    for (QListWidgetItem* hit : hits) {
        if (!first || row(hit) < row(first))
            first = hit;
    }
    return first;
}

int ListBox::index(QListWidgetItem* item) const
{
    if (!item || item->listWidget() != this)
        return -1;
    return row(item);
}

void ListBox::setSelected(QListWidgetItem* item, bool selected) const
{
    if (item && item->listWidget() == this)
        item->setSelected(selected);
}

void ListBox::removeItem(int row)
{
    if (row < 0 || row >= count())
        return;
    delete takeItem(row);
}

void ListBox::setStringValue(const QString& text)
{
    const QAbstractItemView::SelectionMode mode = selectionMode();
    if (mode == QAbstractItemView::SingleSelection || mode == QAbstractItemView::NoSelection) {
        if (QListWidgetItem* hit = findItem(text, Qt::MatchExactly)) {
            setCurrentItem(hit);
            hit->setSelected(mode != QAbstractItemView::NoSelection);
            scrollToItem(hit);
        }
        return;
    }
    clearSelection();
    if (text.isEmpty())
        return;
    QListWidgetItem* first = nullptr;
    const QStringList parts = text.split(QLatin1Char('|'), Qt::KeepEmptyParts);
    for (const QString& part : parts) {
        // A repeated text takes the next item with that text.
        for (int row = 0; row < count(); ++row) {
            QListWidgetItem* it = item(row);
            if (it && !it->isSelected() && it->text() == part) {
                it->setSelected(true);
                if (!first)
                    first = it;
                break;
            }
        }
    }
    if (first) {
        setCurrentItem(first, QItemSelectionModel::NoUpdate);
        scrollToItem(first);
    }
}
