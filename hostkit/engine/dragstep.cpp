// The drag step: a row of a tree or list dropped on another, with the
// drag events a person's drag would send.
#include "answers_p.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDragEnterEvent>
#include <QListWidget>
#include <QMimeData>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

#include <algorithm>
#include <memory>
#include <utility>

namespace vtkit {

using namespace answers;

namespace {

// A drag event proposing the action that a drag started by the view
// would: the view's default drop action, else a copy where it may copy
// (not in a view that only moves its rows), else a move.
template <class Event>
class Proposed : public Event {
public:
    template <class... A>
    explicit Proposed(Qt::DropAction action, A&&... a) : Event(std::forward<A>(a)...)
    {
        this->default_action = action;
        this->drop_action = action;
    }
};

Qt::DropAction dragAction(const QAbstractItemView* view, Qt::DropActions actions)
{
    if (view->defaultDropAction() != Qt::IgnoreAction && (actions & view->defaultDropAction()))
        return view->defaultDropAction();
    if ((actions & Qt::CopyAction) && view->dragDropMode() != QAbstractItemView::InternalMove)
        return Qt::CopyAction;
    return (actions & Qt::MoveAction) ? Qt::MoveAction : Qt::CopyAction;
}

// Takes in every drag that enters the widget it filters.
class DragAdmitter : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::DragEnter)
            return false;
        static_cast<QDragEnterEvent*>(event)->acceptProposedAction();
        return true;
    }
};

// The first row, depth first, whose first column reads text.
QModelIndex findRow(const QAbstractItemModel* model, const QModelIndex& parent, const QString& text,
                    int depth = 0)
{
    const int rows = model->rowCount(parent);
    for (int r = 0; r < rows; ++r) {
        const QModelIndex index = model->index(r, 0, parent);
        if (index.data(Qt::DisplayRole).toString() == text)
            return index;
        if (depth < 64) {
            const QModelIndex inner = findRow(model, index, text, depth + 1);
            if (inner.isValid())
                return inner;
        }
    }
    return {};
}

// QTreeWidget keeps itemFromIndex to itself; the path of rows leads there.
QTreeWidgetItem* treeItem(const QTreeWidget* tree, const QModelIndex& index)
{
    if (!index.isValid())
        return nullptr;
    QTreeWidgetItem* parent = treeItem(tree, index.parent());
    return parent ? parent->child(index.row()) : index.parent().isValid() ? nullptr : tree->topLevelItem(index.row());
}

// Takes the row at from and puts it under parent at row (-1: last), as
// the item widgets move their own items on a drop from themselves: the
// item objects move, so that items of a subclass stay what they are.
bool moveRow(QAbstractItemView* view, const QPersistentModelIndex& from, const QPersistentModelIndex& parent,
             int row)
{
    QAbstractItemModel* model = view->model();
    // Where the row lands, held across the removal, which may shift it.
    const QPersistentModelIndex at = row >= 0 ? model->index(row, 0, parent) : QModelIndex();
    const auto landing = [&](int count) {
        const int r = row < 0 ? count : at.isValid() ? at.row() : row;
        return std::min(r, count);
    };
    if (auto* tree = qobject_cast<QTreeWidget*>(view)) {
        QTreeWidgetItem* item = treeItem(tree, from);
        QTreeWidgetItem* target = treeItem(tree, parent);
        if (!item)
            return false;
        if (QTreeWidgetItem* old = item->parent())
            old->takeChild(old->indexOfChild(item));
        else
            tree->takeTopLevelItem(tree->indexOfTopLevelItem(item));
        if (target)
            target->insertChild(landing(target->childCount()), item);
        else
            tree->insertTopLevelItem(landing(tree->topLevelItemCount()), item);
        return true;
    }
    // Other models move the row themselves, which keeps the selection.
    const int count = model->rowCount(parent);
    if (model->moveRow(from.parent(), from.row(), parent, row < 0 ? count : row))
        return true;
    if (auto* list = qobject_cast<QListWidget*>(view)) {
        QListWidgetItem* item = list->takeItem(from.row());
        if (!item)
            return false;
        list->insertItem(landing(list->count()), item);
        return true;
    }
    return false;
}

} // namespace

// A person presses on the item, drags it and lets go over the target.
// Offscreen there is no drag session: the drag enter, move and drop events
// go to the viewport as a drag would send them, so that event filters and
// the view see them. A view that takes the drop as one from elsewhere does
// so, and the row leaves its old place as after a moving drag; a view that
// only moves its own rows (which it can't tell without a session) gets the
// move it would make: onto an item that takes drops the row becomes its last
// child, onto another item it goes just below it, onto "" last.
Outcome DialogDriver::Private::stepDrag(QWidget* dialog, QWidget* w, const QString& name,
                                        const QString& item, const QString& onto)
{
    auto* view = qobject_cast<QAbstractItemView*>(w);
    if (!view || !view->model())
        return stepFailed(QStringLiteral("%1 (%2) is not a list or tree").arg(quoted(name), className(w)));
    if (!view->dragEnabled() || view->dragDropMode() == QAbstractItemView::NoDragDrop
        || view->dragDropMode() == QAbstractItemView::DropOnly)
        return stepFailed(quoted(name) + QStringLiteral(" does not drag its items"));
    if (view->dragDropMode() == QAbstractItemView::DragOnly)
        return stepFailed(quoted(name) + QStringLiteral(" takes no drops"));
    QAbstractItemModel* model = view->model();
    const QModelIndex from = findRow(model, view->rootIndex(), item);
    if (!from.isValid())
        return stepFailed(QStringLiteral("no item %1 in %2").arg(quoted(item), quoted(name)));
    if (!(model->flags(from) & Qt::ItemIsDragEnabled))
        return stepFailed(QStringLiteral("item %1 of %2 can't be dragged").arg(quoted(item), quoted(name)));
    QModelIndex target;
    if (!onto.isEmpty()) {
        target = findRow(model, view->rootIndex(), onto);
        if (!target.isValid())
            return stepFailed(QStringLiteral("no item %1 in %2").arg(quoted(onto), quoted(name)));
        for (QModelIndex up = target; up.isValid(); up = up.parent())
            if (up == from)
                return stepFailed(QStringLiteral("%1 can't go into itself").arg(quoted(item)));
    }
    // Into the item when it takes drops, else below it; "" appends.
    QModelIndex parent = view->rootIndex();
    int row = -1;
    if (target.isValid() && !(model->flags(target) & Qt::ItemIsDropEnabled)) {
        parent = target.parent();
        row = target.row() + 1;
    } else if (target.isValid()) {
        parent = target;
    }
    const bool rootTakes = parent != view->rootIndex() || (model->flags(parent) & Qt::ItemIsDropEnabled);
    if (!rootTakes)
        return stepFailed(QStringLiteral("%1 takes no drop there").arg(quoted(name)));

    QPointer<QAbstractItemView> p(view);
    QPointer<QWidget> d(dialog);
    return stepDone([this, p, d, from = QPersistentModelIndex(from), target = QPersistentModelIndex(target),
                     parent = QPersistentModelIndex(parent), row, item, onto] {
        if (!p || !d || !from.isValid())
            return;
        activate(d);
        // The press that starts a drag selects the row.
        p->scrollTo(from);
        const QRect start = p->visualRect(from);
        if (start.isValid())
            QTest::mouseClick(p->viewport(), Qt::LeftButton, Qt::NoModifier, start.center());
        if (!p || !from.isValid())
            return;
        QPoint at;
        if (target.isValid()) {
            p->scrollTo(target);
            at = p->visualRect(target).center();
        } else {
            // The empty space below the last row.
            QModelIndex last = p->model()->index(p->model()->rowCount(p->rootIndex()) - 1, 0, p->rootIndex());
            auto* tree = qobject_cast<QTreeView*>(p.data());
            while (tree && last.isValid() && tree->isExpanded(last) && p->model()->rowCount(last) > 0)
                last = p->model()->index(p->model()->rowCount(last) - 1, 0, last);
            if (last.isValid())
                p->scrollTo(last);
            const int below = last.isValid() ? p->visualRect(last).bottom() + 4 : 4;
            if (below >= p->viewport()->height()) {
                fail(QStringLiteral("no empty space below the items of %1 to drop %2 on")
                         .arg(quoted(p->objectName()), quoted(item)));
                return;
            }
            at = QPoint(p->viewport()->width() / 2, below);
        }
        const QModelIndexList rows{QModelIndex(from)};
        std::unique_ptr<QMimeData> mime(p->model()->mimeData(rows));
        if (!mime)
            mime = std::make_unique<QMimeData>();
        const Qt::DropActions actions = p->model()->supportedDragActions();
        const Qt::DropAction proposed = dragAction(p, actions);
        Proposed<QDragEnterEvent> enter(proposed, at, actions, mime.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(p->viewport(), &enter);
        if (!enter.isAccepted() && p) {
            // A view that moves only its own rows turns away a drag from
            // elsewhere, and Qt then routes no drop to it at all; let the
            // drag in, so that the drop reaches its filters and the view.
            DragAdmitter admit;
            p->viewport()->installEventFilter(&admit);
            Proposed<QDragEnterEvent> again(proposed, at, actions, mime.get(), Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(p->viewport(), &again);
        }
        Proposed<QDragMoveEvent> move(proposed, at, actions, mime.get(), Qt::LeftButton, Qt::NoModifier);
        if (p)
            QApplication::sendEvent(p->viewport(), &move);
        Proposed<QDropEvent> drop(proposed, at, actions, mime.get(), Qt::LeftButton, Qt::NoModifier);
        if (p)
            QApplication::sendEvent(p->viewport(), &drop);
        if (!p || !from.isValid())
            return;
        const bool taken = drop.isAccepted() && drop.dropAction() != Qt::IgnoreAction;
        if (taken) {
            if (drop.dropAction() == Qt::MoveAction)
                p->model()->removeRow(from.row(), from.parent());
            return;
        }
        if (!moveRow(p, from, parent, row))
            fail(QStringLiteral("%1 did not move %2 onto %3").arg(quoted(p->objectName()), quoted(item), quoted(onto)));
    });
}

} // namespace vtkit
