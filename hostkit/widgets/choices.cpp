#include "hostwidgets.h"

#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QLayout>

#include <algorithm>
#include <climits>
#include <cmath>
#include <vector>

CheckBox::CheckBox(QWidget* parent, const char* name)
    : QCheckBox(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

CheckBox::~CheckBox() = default;

GroupBox::GroupBox(QWidget* parent, const char* name)
    : QGroupBox(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    setCheckable(true);
}

GroupBox::~GroupBox() = default;

RadioButton::RadioButton(QWidget* parent)
    : QRadioButton(parent)
{
}

RadioButton::~RadioButton() = default;

// ------------------------------------------------------------- RadioGroup

namespace {

void collectInWidget(QWidget* container, QList<QRadioButton*>* out);

void visitWidget(QWidget* widget, QList<QRadioButton*>* out)
{
    if (!widget || widget->isWindow())
        return;
    if (auto* button = qobject_cast<QRadioButton*>(widget)) {
        if (!out->contains(button))
            out->append(button);
        return;
    }
    // A nested group owns its own buttons.
    if (qobject_cast<RadioGroup*>(widget))
        return;
    collectInWidget(widget, out);
}

void collectInLayout(QLayout* layout, QList<QRadioButton*>* out)
{
    const int n = layout->count();
    std::vector<int> order(static_cast<std::size_t>(std::max(n, 0)));
    for (int i = 0; i < n; ++i)
        order[static_cast<std::size_t>(i)] = i;
    // A grid is read row by row, whatever order its items were added in.
    if (auto* grid = qobject_cast<QGridLayout*>(layout)) {
        auto cell = [grid](int index) {
            int row = 0, column = 0, rowSpan = 0, columnSpan = 0;
            grid->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
            return std::make_pair(row, column);
        };
        std::stable_sort(order.begin(), order.end(),
                         [&cell](int a, int b) { return cell(a) < cell(b); });
    }
    for (int index : order) {
        QLayoutItem* item = layout->itemAt(index);
        if (!item)
            continue;
        if (QWidget* widget = item->widget())
            visitWidget(widget, out);
        else if (QLayout* inner = item->layout())
            collectInLayout(inner, out);
    }
}

void collectInWidget(QWidget* container, QList<QRadioButton*>* out)
{
    if (QLayout* layout = container->layout())
        collectInLayout(layout, out);
    // Whatever no layout holds follows in child order.
    for (QObject* child : container->children())
        visitWidget(qobject_cast<QWidget*>(child), out);
}

} // namespace

RadioGroup::RadioGroup(QWidget* parent, const char* name)
    : QGroupBox(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    m_group = new QButtonGroup(this);
    m_group->setExclusive(true);
    connect(m_group, &QButtonGroup::idClicked, this, &RadioGroup::clicked);
}

RadioGroup::~RadioGroup() = default;

void RadioGroup::assignIds()
{
    QList<QRadioButton*> members;
    collectInWidget(this, &members);
    const QList<QAbstractButton*> old = m_group->buttons();
    for (QAbstractButton* button : old)
        m_group->removeButton(button);
    for (int id = 0; id < members.size(); ++id)
        m_group->addButton(members[id], id);
    applyPending();
}

void RadioGroup::ensureIds() const
{
    QList<QRadioButton*> members;
    collectInWidget(const_cast<RadioGroup*>(this), &members);
    bool same = members.size() == m_group->buttons().size();
    for (int id = 0; same && id < members.size(); ++id)
        same = m_group->button(id) == members[id];
    if (!same)
        const_cast<RadioGroup*>(this)->assignIds();
}

void RadioGroup::applyPending()
{
    if (m_pendingId < 0)
        return;
    if (QAbstractButton* button = m_group->button(m_pendingId)) {
        button->setChecked(true);
        m_pendingId = -1;
    }
}

int RadioGroup::selectedId() const
{
    ensureIds();
    return m_group->checkedId();
}

int RadioGroup::count() const
{
    ensureIds();
    return m_group->buttons().size();
}

QRadioButton* RadioGroup::button(int id) const
{
    ensureIds();
    return qobject_cast<QRadioButton*>(m_group->button(id));
}

void RadioGroup::setButton(int id)
{
    ensureIds();
    if (id == -1) {
        m_pendingId = -1;
        if (QAbstractButton* checked = m_group->checkedButton()) {
            // An exclusive group won't let its last checked button go.
            m_group->setExclusive(false);
            checked->setChecked(false);
            m_group->setExclusive(true);
        }
        return;
    }
    if (id < -1)
        return;
    if (QAbstractButton* target = m_group->button(id)) {
        m_pendingId = -1;
        target->setChecked(true);
    } else {
        m_pendingId = id;
    }
}

void RadioGroup::setValue(double value)
{
    if (!std::isfinite(value) || value < INT_MIN || value > INT_MAX)
        return;
    setButton(static_cast<int>(std::lround(value)));
}

QString RadioGroup::text() const
{
    return QString::number(selectedId());
}

void RadioGroup::setText(const QString& text)
{
    bool ok = false;
    const double id = text.trimmed().toDouble(&ok);
    if (ok && id == std::floor(id))
        setValue(id);
}

bool RadioGroup::event(QEvent* event)
{
    const QEvent::Type type = event->type();
    if ((type == QEvent::ChildPolished || type == QEvent::LayoutRequest
         || type == QEvent::ChildRemoved)
        && isVisible())
        ensureIds();
    return QGroupBox::event(event);
}

void RadioGroup::showEvent(QShowEvent* event)
{
    ensureIds();
    QGroupBox::showEvent(event);
}
