// Finding what a step is meant for: the dialog (the topmost one the call
// opened), a widget in it by name or text, the button a person would press
// to end it; and reading a widget for the inspect step.
#include "answers_p.h"

#include "hostwidgets.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QItemSelectionModel>
#include <QJsonArray>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTextEdit>
#include <QTreeView>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace vtkit {

using namespace answers;

namespace {

QString shownText(const QWidget* w)
{
    if (auto* b = qobject_cast<const QAbstractButton*>(w))
        return plain(b->text());
    if (auto* g = qobject_cast<const QGroupBox*>(w))
        return plain(g->title());
    return {};
}

// The names forms give their cancel buttons, a misspelt one included.
bool isCancelName(const QString& name)
{
    return name.startsWith(QLatin1String("cancelButton")) || name == QLatin1String("cacnelButton");
}

bool boxButtonEnds(QDialogButtonBox* box, QAbstractButton* b, bool accept)
{
    const auto sb = box->standardButton(b);
    if (accept ? (sb == QDialogButtonBox::Ok || sb == QDialogButtonBox::Save || sb == QDialogButtonBox::Yes)
               : (sb == QDialogButtonBox::Cancel || sb == QDialogButtonBox::Close || sb == QDialogButtonBox::No))
        return true;
    if (sb != QDialogButtonBox::NoButton)
        return false;
    const auto role = box->buttonRole(b);
    return accept ? role == QDialogButtonBox::AcceptRole || role == QDialogButtonBox::YesRole
                  : role == QDialogButtonBox::RejectRole || role == QDialogButtonBox::NoRole;
}

// Every row of a tree, depth first, two spaces of indent per level, so
// that a line reads as the tree looks.
void treeItems(const QAbstractItemModel* model, const QModelIndex& parent, int depth,
               QStringList* out)
{
    const int rows = model->rowCount(parent);
    for (int r = 0; r < rows; ++r) {
        const QModelIndex index = model->index(r, 0, parent);
        *out << QString(2 * depth, QLatin1Char(' ')) + index.data(Qt::DisplayRole).toString();
        if (depth < 64)
            treeItems(model, index, depth + 1, out);
    }
}

QJsonValue jsonList(const QStringList& texts)
{
    return QJsonArray::fromStringList(texts);
}

// The texts of the selected rows, top to bottom as the view lists them
// (depth first in a tree).
void selectedRows(const QItemSelectionModel* selection, const QModelIndex& parent, int depth,
                  QStringList* out)
{
    const QAbstractItemModel* model = selection->model();
    const int rows = model->rowCount(parent);
    for (int r = 0; r < rows; ++r) {
        const QModelIndex index = model->index(r, 0, parent);
        // Not rowIntersectsSelection: it gives up at the first range under
        // another parent.
        bool selected = false;
        for (int c = 0; !selected && c < model->columnCount(parent) && c < 64; ++c)
            selected = selection->isSelected(model->index(r, c, parent));
        if (selected)
            *out << index.data(Qt::DisplayRole).toString();
        if (depth < 64)
            selectedRows(selection, index, depth + 1, out);
    }
}

QStringList selectedTexts(const QAbstractItemView* v)
{
    QStringList out;
    if (v->selectionModel() && v->selectionModel()->model())
        selectedRows(v->selectionModel(), v->rootIndex(), 0, &out);
    return out;
}

QJsonValue inspectText(const QWidget* w)
{
    if (auto* s = qobject_cast<const Spinner*>(w))
        return s->text();
    if (auto* le = qobject_cast<const QLineEdit*>(w))
        return le->text();
    if (auto* sb = qobject_cast<const QAbstractSpinBox*>(w))
        return sb->text();
    if (auto* l = qobject_cast<const QLabel*>(w))
        return l->text();
    if (auto* b = qobject_cast<const QAbstractButton*>(w))
        return b->text();
    if (auto* c = qobject_cast<const QComboBox*>(w))
        return c->currentText();
    if (auto* pt = qobject_cast<const QPlainTextEdit*>(w))
        return pt->toPlainText();
    if (auto* te = qobject_cast<const QTextEdit*>(w))
        return te->toPlainText();
    if (auto* g = qobject_cast<const QGroupBox*>(w))
        return g->title();
    return QJsonValue::Null;
}

QJsonValue inspectChecked(const QWidget* w)
{
    if (auto* b = qobject_cast<const QAbstractButton*>(w); b && b->isCheckable())
        return b->isChecked();
    if (auto* g = qobject_cast<const QGroupBox*>(w); g && g->isCheckable())
        return g->isChecked();
    return QJsonValue::Null;
}

QJsonValue inspectCurrent(const QWidget* w)
{
    if (auto* rg = qobject_cast<const RadioGroup*>(w))
        return rg->selectedId();
    if (auto* c = qobject_cast<const QComboBox*>(w))
        return c->currentIndex();
    if (auto* t = qobject_cast<const QTabWidget*>(w))
        return t->currentIndex();
    if (auto* st = qobject_cast<const QStackedWidget*>(w))
        return st->currentIndex();
    return QJsonValue::Null;
}

QJsonValue inspectItems(const QWidget* w)
{
    if (auto* c = qobject_cast<const QComboBox*>(w))
        return jsonList(comboItems(c));
    if (auto* t = qobject_cast<const QTabWidget*>(w)) {
        QStringList titles;
        for (int i = 0; i < t->count(); ++i)
            titles << t->tabText(i);
        return jsonList(titles);
    }
    if (auto* l = qobject_cast<const QListView*>(w))
        return jsonList(viewItems(l));
    if (auto* tree = qobject_cast<const QTreeView*>(w); tree && tree->model()) {
        QStringList rows;
        treeItems(tree->model(), tree->rootIndex(), 0, &rows);
        return jsonList(rows);
    }
    return QJsonValue::Null;
}

QJsonValue inspectSelected(const QWidget* w)
{
    if (qobject_cast<const QListView*>(w) || qobject_cast<const QTreeView*>(w))
        return jsonList(selectedTexts(static_cast<const QAbstractItemView*>(w)));
    return QJsonValue::Null;
}

} // namespace

namespace answers {

// A button's text as shown: mnemonic marks gone, "&&" as one "&".
QString plain(const QString& text)
{
    QString out;
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('&')) {
            if (i + 1 < text.size() && text[i + 1] == QLatin1Char('&'))
                out += text[++i];
            continue;
        }
        out += text[i];
    }
    return out;
}

QString windowName(const QWidget* w)
{
    if (!w->objectName().isEmpty())
        return w->objectName();
    if (!w->windowTitle().isEmpty())
        return w->windowTitle();
    return QLatin1String(w->metaObject()->className());
}

QString className(const QWidget* w)
{
    return QLatin1String(w->metaObject()->className());
}

QWidget* activeModal()
{
    if (QWidget* w = QApplication::activeModalWidget())
        return w;
    if (QWindow* window = QGuiApplication::modalWindow()) {
        const QList<QWidget*> tops = QApplication::topLevelWidgets();
        for (QWidget* t : tops)
            if (t->windowHandle() == window && t->isVisible())
                return t;
    }
    return nullptr;
}

// The radio buttons of a plain container in layout order (nested layouts
// and containers included, not those of a nested RadioGroup), then any
// outside a layout in child order.
QList<QRadioButton*> radiosOf(QWidget* container)
{
    QList<QRadioButton*> out;
    std::function<void(QLayout*)> walk = [&](QLayout* layout) {
        for (int i = 0; i < layout->count(); ++i) {
            QLayoutItem* item = layout->itemAt(i);
            if (!item)
                continue;
            if (QLayout* inner = item->layout()) {
                walk(inner);
            } else if (QWidget* w = item->widget()) {
                if (auto* rb = qobject_cast<QRadioButton*>(w))
                    out << rb;
                else if (!qobject_cast<RadioGroup*>(w) && w->layout())
                    walk(w->layout());
            }
        }
    };
    if (container->layout())
        walk(container->layout());
    const auto loose = container->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
    for (QRadioButton* rb : loose)
        if (!out.contains(rb))
            out << rb;
    return out;
}

QString itemList(const QStringList& items)
{
    QStringList shown;
    for (int i = 0; i < items.size() && i < 8; ++i)
        shown << quoted(items[i]);
    if (items.size() > 8)
        shown << QStringLiteral("...");
    return shown.isEmpty() ? QStringLiteral("none") : shown.join(QStringLiteral(", "));
}

QStringList comboItems(const QComboBox* c)
{
    QStringList items;
    for (int i = 0; i < c->count(); ++i)
        items << c->itemText(i);
    return items;
}

QModelIndex listIndex(const QAbstractItemView* v, int row)
{
    const int column = qobject_cast<const QListView*>(v)
                           ? static_cast<const QListView*>(v)->modelColumn() : 0;
    return v->model() ? v->model()->index(row, column, v->rootIndex()) : QModelIndex();
}

QStringList viewItems(const QAbstractItemView* v)
{
    QStringList items;
    const int rows = v->model() ? v->model()->rowCount(v->rootIndex()) : 0;
    for (int r = 0; r < rows; ++r)
        items << listIndex(v, r).data(Qt::DisplayRole).toString();
    return items;
}

// The button a person presses for Ok (or Cancel), by the first rule that
// finds a visible one: the form's own ok button by name, the form's
// default button, the one button reading "Ok", a button box's Ok. hiddenOnly tells
// that some rule found buttons, all hidden. Buttons of other windows (a
// message box parented to the dialog) don't count.
QAbstractButton* endButton(QWidget* dialog, bool accept, const std::function<bool(QPushButton*)>& isDefault,
                           bool* hiddenOnly)
{
    QList<QAbstractButton*> own;
    const auto all = dialog->findChildren<QAbstractButton*>();
    for (QAbstractButton* b : all)
        if (b->window() == dialog)
            own << b;
    const bool messageBox = qobject_cast<QMessageBox*>(dialog) != nullptr;
    *hiddenOnly = false;
    auto firstVisible = [&](const std::function<bool(QAbstractButton*)>& rule, bool single) {
        QList<QAbstractButton*> hits;
        for (QAbstractButton* b : own)
            if (rule(b))
                hits << b;
        QList<QAbstractButton*> shown;
        for (QAbstractButton* b : hits)
            if (b->isVisible())
                shown << b;
        if (shown.isEmpty() && !hits.isEmpty())
            *hiddenOnly = true;
        return shown.isEmpty() || (single && shown.size() > 1) ? nullptr : shown.first();
    };
    QAbstractButton* hit = nullptr;
    if (accept) {
        static const char* const okNames[] = {"okButton", "okButton1", "okButton2", "okbutton"};
        for (const char* okName : okNames)
            if (!hit)
                hit = firstVisible([okName](QAbstractButton* b) { return b->objectName() == QLatin1String(okName); }, false);
    } else {
        hit = firstVisible([](QAbstractButton* b) { return isCancelName(b->objectName()); }, false);
    }
    if (!hit && accept && !messageBox)
        hit = firstVisible([&isDefault](QAbstractButton* b) {
            auto* pb = qobject_cast<QPushButton*>(b);
            return pb && isDefault(pb);
        }, false);
    if (!hit && !messageBox)
        hit = firstVisible([accept](QAbstractButton* b) {
            const QString t = plain(b->text());
            return accept ? t == QLatin1String("Ok") || t == QLatin1String("OK") : t == QLatin1String("Cancel");
        }, true);
    if (!hit)
        hit = firstVisible([accept](QAbstractButton* b) {
            auto* box = qobject_cast<QDialogButtonBox*>(b->parentWidget());
            return box && boxButtonEnds(box, b, accept);
        }, false);
    return hit;
}

// One line, the keys in the order a reader looks for them (a QJsonObject
// would sort them).
QByteArray inspectLine(const QString& object, const QWidget* w, bool isDialog)
{
    const std::pair<const char*, QJsonValue> fields[] = {
        {"inspect", object},
        {"class", className(w)},
        {"objectName", w->objectName()},
        {"hidden", w->isHidden()},
        {"visible", w->isVisible()},
        {"enabled", w->isEnabled()},
        {"text", isDialog ? QJsonValue(w->objectName()) : inspectText(w)},
        {"checked", isDialog ? QJsonValue() : inspectChecked(w)},
        {"current", isDialog ? QJsonValue() : inspectCurrent(w)},
        {"items", isDialog ? QJsonValue() : inspectItems(w)},
        {"selected", isDialog ? QJsonValue() : inspectSelected(w)},
        {"title", isDialog ? QJsonValue(w->windowTitle()) : QJsonValue()},
    };
    QStringList parts;
    for (const auto& [key, value] : fields)
        parts << quoted(QLatin1String(key)) + QLatin1Char(':') + jsonText(value);
    return (QLatin1Char('{') + parts.join(QLatin1Char(',')) + QLatin1Char('}')).toUtf8();
}

// The windows that show while a call runs, and the default button each
// form chose for itself.
bool WindowWatch::eventFilter(QObject* object, QEvent* event)
{
    const QEvent::Type type = event->type();
    if ((type != QEvent::Show && type != QEvent::ShowToParent) || !object->isWidgetType())
        return false;
    auto* w = static_cast<QWidget*>(object);
    if (!isDialogWindow(w))
        return false;
    if (type == QEvent::Show) {
        shown.removeAll(w);
        shown.removeAll(nullptr);
        shown << w;
        ++opened;
        return false;
    }
    if (snapped.contains(w))
        return false; // later shows find Qt's choice in place
    snapped << w;
    const auto buttons = w->findChildren<QPushButton*>();
    for (QPushButton* b : buttons)
        if (b->window() == w && b->isDefault() && !formDefaults.contains(b))
            formDefaults << b;
    formDefaults.removeAll(nullptr);
    return false;
}

} // namespace answers

// By object name; else by shown text of a button or group box; else the
// dialog itself by its name; else by class name, "Class:N" being the N-th (from 0) of that class in
// findChildren order, hidden widgets counted. Visible widgets go first
// among several of one name or text.
QWidget* DialogDriver::Private::find(QWidget* dialog, const QString& name, QString* why) const
{
    const QList<QWidget*> all = dialog->findChildren<QWidget*>();
    auto pick = [](const QList<QWidget*>& hits) -> QWidget* {
        for (QWidget* w : hits)
            if (w->isVisible())
                return w;
        return hits.isEmpty() ? nullptr : hits.first();
    };
    QList<QWidget*> hits;
    for (QWidget* w : all)
        if (w->objectName() == name)
            hits << w;
    if (hits.isEmpty())
        for (QWidget* w : all)
            if (shownText(w) == name)
                hits << w;
    if (QWidget* w = pick(hits))
        return w;
    if (dialog->objectName() == name)
        return dialog;

    QString cls = name;
    int n = 0;
    const int colon = name.lastIndexOf(QLatin1Char(':'));
    if (colon > 0) {
        bool ok = false;
        const int v = name.mid(colon + 1).toInt(&ok);
        if (ok && v >= 0) {
            cls = name.left(colon);
            n = v;
        }
    }
    const QByteArray c = cls.toLatin1();
    for (QWidget* w : all)
        if (w->inherits(c.constData()) && n-- == 0)
            return w;
    *why = QStringLiteral("no widget %1 in dialog %2").arg(quoted(name), quoted(windowName(dialog)));
    return nullptr;
}

Outcome DialogDriver::Private::usable(QWidget* w, const QString& name) const
{
    if (!w->isVisible())
        return stepFailed(quoted(name) + QStringLiteral(" is hidden"));
    if (!w->isEnabled())
        return stepFailed(quoted(name) + QStringLiteral(" is disabled"));
    return stepDone();
}

} // namespace vtkit
