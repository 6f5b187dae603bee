// Answer scripts: steps that drive the dialogs of a call headlessly, with
// real key and mouse events where a user would use them, so that the
// dialogs' own slots run as they would for a person.
#include "dialogs.h"

#include "hostwidgets.h"
#include "kitsupport.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeySequence>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QMessageBox>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStackedWidget>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTreeView>
#include <QTreeWidget>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <utility>

namespace vtkit {

namespace {

constexpr int kTickMs = 20;
constexpr qint64 kWaitMs = 5000;

// A wait of 5 s that also needs half its ticks to have come: on a loaded
// machine the process may sleep for seconds between two ticks, and a wait
// measured by the clock alone would give up on a dialog that never had
// the time to answer.
class Patience {
public:
    void restart()
    {
        m_clock.start();
        m_ticks = 0;
    }
    // Counts one more tick spent waiting; true once the wait is over.
    bool exhausted()
    {
        ++m_ticks;
        return m_clock.isValid() && m_clock.elapsed() > kWaitMs && m_ticks > kWaitMs / kTickMs / 2;
    }

private:
    QElapsedTimer m_clock;
    int m_ticks = 0;
};

// ------------------------------------------------------------ script rules

// Value types: 'n' non-empty string, 's' any string, 'b' bool, 'i' integer
// >= 0, 'a' non-empty array of strings, 'k' key sequence, 'c' colour or
// null, 't' the literal true.
struct FieldRule {
    const char* key;
    char type;
    bool required;
};

struct StepRule {
    const char* action;
    char type;
    FieldRule fields[3];
};

constexpr StepRule kRules[] = {
    {"wait", 'n', {}},
    {"inspect", 's', {}},
    {"set", 'n', {{"text", 's', true}}},
    {"click", 'n', {}},
    {"check", 'n', {{"on", 'b', false}}},
    {"choose", 'n', {{"text", 's', false}, {"index", 'i', false}, {"texts", 'a', false}}},
    {"radio", 'n', {{"id", 'i', true}}},
    {"cell", 'n', {{"row", 'i', true}, {"column", 'i', true}, {"text", 's', true}}},
    {"key", 'n', {{"keys", 'k', true}}},
    {"menu", 'n', {{"action", 's', true}}},
    {"drag", 'n', {{"item", 's', true}, {"onto", 's', true}}},
    {"message", 'n', {}},
    {"file", 's', {}},
    {"color", 'c', {}},
    {"screenshot", 'n', {}},
    {"accept", 't', {}},
    {"cancel", 't', {}},
};

QString quoted(const QString& s)
{
    return QLatin1Char('"') + s + QLatin1Char('"');
}

const StepRule* ruleOf(const QJsonObject& step)
{
    for (const StepRule& r : kRules)
        if (step.contains(QLatin1String(r.action)))
            return &r;
    return nullptr;
}

bool valueFits(const QJsonValue& v, char type)
{
    switch (type) {
    case 'n': return v.isString() && !v.toString().isEmpty();
    case 's': return v.isString();
    case 'b': return v.isBool();
    case 'i': return v.isDouble() && v.toDouble() >= 0 && v.toDouble() == v.toInt();
    case 't': return v.isBool() && v.toBool();
    case 'k': return v.isString() && !QKeySequence::fromString(v.toString()).isEmpty();
    case 'c': return v.isNull() || (v.isString() && QColor::isValidColor(v.toString()));
    case 'a': {
        const QJsonArray a = v.toArray();
        if (!v.isArray() || a.isEmpty())
            return false;
        for (const QJsonValue& e : a)
            if (!e.isString())
                return false;
        return true;
    }
    }
    return false;
}

const char* typeWords(char type)
{
    switch (type) {
    case 'n': return "a non-empty string";
    case 's': return "a string";
    case 'b': return "true or false";
    case 'i': return "a whole number >= 0";
    case 't': return "true";
    case 'k': return "a key sequence such as \"Ctrl+A\"";
    case 'c': return "a colour \"#rrggbb\" or null";
    case 'a': return "a non-empty array of strings";
    }
    return "?";
}

QString checkStep(const QJsonValue& value, int number)
{
    const QString at = QStringLiteral("step %1: ").arg(number);
    if (!value.isObject())
        return at + QStringLiteral("not an object");
    const QJsonObject step = value.toObject();
    const StepRule* rule = nullptr;
    for (const StepRule& r : kRules) {
        if (!step.contains(QLatin1String(r.action)))
            continue;
        if (rule)
            return at + QStringLiteral("two actions, \"%1\" and \"%2\"").arg(rule->action, r.action);
        rule = &r;
    }
    if (!rule) {
        QStringList names;
        for (const StepRule& r : kRules)
            names << QLatin1String(r.action);
        return at + QStringLiteral("no action (one of %1)").arg(names.join(QStringLiteral(", ")));
    }
    if (!valueFits(step.value(QLatin1String(rule->action)), rule->type))
        return at + QStringLiteral("\"%1\" must be %2").arg(rule->action, typeWords(rule->type));
    for (auto it = step.begin(); it != step.end(); ++it) {
        if (it.key() == QLatin1String(rule->action))
            continue;
        const FieldRule* field = nullptr;
        for (const FieldRule& f : rule->fields)
            if (f.key && it.key() == QLatin1String(f.key))
                field = &f;
        if (!field)
            return at + QStringLiteral("unknown key \"%1\" for \"%2\"").arg(it.key(), rule->action);
        if (!valueFits(it.value(), field->type))
            return at + QStringLiteral("\"%1\" must be %2").arg(field->key, typeWords(field->type));
    }
    for (const FieldRule& f : rule->fields)
        if (f.key && f.required && !step.contains(QLatin1String(f.key)))
            return at + QStringLiteral("\"%1\" needs \"%2\"").arg(rule->action, f.key);
    if (std::strcmp(rule->action, "choose") == 0) {
        const int given = int(step.contains(QLatin1String("text")))
                          + int(step.contains(QLatin1String("index")))
                          + int(step.contains(QLatin1String("texts")));
        if (given != 1)
            return at + QStringLiteral("\"choose\" needs one of \"text\", \"index\" or \"texts\"");
    }
    return {};
}

QString jsonText(const QJsonValue& v)
{
    const QByteArray a = QJsonDocument(QJsonArray{v}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(a.mid(1, a.size() - 2));
}

// {"click": "Foo"}: the action first, as it was most likely written.
QString stepText(const QJsonObject& step)
{
    const StepRule* rule = ruleOf(step);
    QStringList parts;
    if (rule)
        parts << quoted(QLatin1String(rule->action)) + QStringLiteral(": ")
                     + jsonText(step.value(QLatin1String(rule->action)));
    for (auto it = step.begin(); it != step.end(); ++it)
        if (!rule || it.key() != QLatin1String(rule->action))
            parts << quoted(it.key()) + QStringLiteral(": ") + jsonText(it.value());
    return QLatin1Char('{') + parts.join(QStringLiteral(", ")) + QLatin1Char('}');
}

// -------------------------------------------------------------- widgets

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

QString shownText(const QWidget* w)
{
    if (auto* b = qobject_cast<const QAbstractButton*>(w))
        return plain(b->text());
    if (auto* g = qobject_cast<const QGroupBox*>(w))
        return plain(g->title());
    return {};
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

// Key events go where the focus would be; offscreen, only an active window
// gives its widgets focus.
void activate(QWidget* dialog)
{
    QWidget* window = dialog->window();
    window->activateWindow();
    QApplication::setActiveWindow(window);
}

// Ends an edit as a user does by moving elsewhere, so editingFinished and
// item delegates see the focus go.
void leaveField()
{
    if (QWidget* focus = QApplication::focusWidget())
        focus->clearFocus();
}

// Check boxes and radio buttons only take clicks on their indicator and
// label, which needn't reach the widget's centre.
QPoint clickPoint(QAbstractButton* b)
{
    const bool check = qobject_cast<QCheckBox*>(b) != nullptr;
    if (check || qobject_cast<QRadioButton*>(b)) {
        QStyleOptionButton opt;
        opt.initFrom(b);
        opt.text = b->text();
        const QRect r = b->style()->subElementRect(
            check ? QStyle::SE_CheckBoxIndicator : QStyle::SE_RadioButtonIndicator, &opt, b);
        if (r.isValid())
            return r.center();
    }
    return b->rect().center();
}

void clickButton(QAbstractButton* b)
{
    QTest::mouseClick(b, Qt::LeftButton, Qt::NoModifier, clickPoint(b));
}

// Space on a checkable group box toggles it as a click on its check box.
void toggleGroup(QGroupBox* g)
{
    QTest::keyClick(g, Qt::Key_Space);
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

// The widget that takes typed text for w, or null.
QWidget* textTarget(QWidget* w, bool* oneLine)
{
    *oneLine = true;
    if (auto* s = qobject_cast<Spinner*>(w))
        return s->lineEdit();
    if (qobject_cast<QLineEdit*>(w) || qobject_cast<QAbstractSpinBox*>(w))
        return w;
    if (auto* c = qobject_cast<QComboBox*>(w))
        return c->isEditable() ? c->lineEdit() : nullptr;
    *oneLine = false;
    if (qobject_cast<QPlainTextEdit*>(w) || qobject_cast<QTextEdit*>(w))
        return w;
    *oneLine = true;
    return w->findChild<QLineEdit*>(QStringLiteral("lineEdit"), Qt::FindDirectChildrenOnly);
}

void selectAllIn(QWidget* target)
{
    if (auto* le = qobject_cast<QLineEdit*>(target))
        le->selectAll();
    else if (auto* sb = qobject_cast<QAbstractSpinBox*>(target))
        sb->selectAll();
    else if (auto* pt = qobject_cast<QPlainTextEdit*>(target))
        pt->selectAll();
    else if (auto* te = qobject_cast<QTextEdit*>(target))
        te->selectAll();
}

void typeInto(QWidget* dialog, QWidget* target, const QString& text)
{
    activate(dialog);
    target->setFocus(Qt::TabFocusReason);
    selectAllIn(target);
    if (text.isEmpty())
        QTest::keyClick(target, Qt::Key_Delete);
    else
        QTest::keyClicks(target, text);
}

// A pick from the popup: the index becomes current, then activated.
void pickInCombo(QComboBox* c, int index)
{
    if (index != c->currentIndex())
        c->setCurrentIndex(index);
    const QString text = c->itemText(index);
    QMetaObject::invokeMethod(c, "activated", Qt::DirectConnection, Q_ARG(int, index));
    const QMetaObject* mo = c->metaObject();
    if (mo->indexOfSignal("activated(QString)") >= 0)
        QMetaObject::invokeMethod(c, "activated", Qt::DirectConnection, Q_ARG(QString, text));
    if (mo->indexOfSignal("textActivated(QString)") >= 0)
        QMetaObject::invokeMethod(c, "textActivated", Qt::DirectConnection, Q_ARG(QString, text));
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

// The names forms give their ok and cancel buttons, typo included.
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

// The texts of the selected rows in model order.
QStringList selectedTexts(const QAbstractItemView* v)
{
    QStringList out;
    if (!v->selectionModel())
        return out;
    QModelIndexList rows = v->selectionModel()->selectedIndexes();
    std::sort(rows.begin(), rows.end());
    QList<QPersistentModelIndex> seen;
    for (const QModelIndex& index : rows) {
        const QModelIndex first = index.siblingAtColumn(0);
        if (seen.contains(first))
            continue;
        seen << first;
        out << index.data(Qt::DisplayRole).toString();
    }
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

// What a step came to: carried out (with the part that may block in a
// nested event loop left to run once the step is counted), to be tried
// again on the next tick, or failed.
struct Outcome {
    enum Kind { Done, NotYet, Failed };
    Kind kind = Done;
    QString why;
    std::function<void()> action;
};

Outcome stepDone(std::function<void()> action = {})
{
    return {Outcome::Done, {}, std::move(action)};
}

Outcome stepWaiting(const QString& why)
{
    return {Outcome::NotYet, why, {}};
}

Outcome stepFailed(const QString& why)
{
    return {Outcome::Failed, why, {}};
}

void defaultSink(const QByteArray& line)
{
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
    std::fputc('\n', stderr);
    std::fflush(stderr);
}

} // namespace

// ---------------------------------------------------------------- script

AnswerScript::AnswerScript() = default;

AnswerScript AnswerScript::accept()
{
    AnswerScript s;
    s.m_steps.append(QJsonObject{{QStringLiteral("accept"), true}});
    return s;
}

AnswerScript AnswerScript::cancel()
{
    AnswerScript s;
    s.m_steps.append(QJsonObject{{QStringLiteral("cancel"), true}});
    return s;
}

bool AnswerScript::fromArgument(const QString& argument, AnswerScript* out, QString* error)
{
    if (argument == QLatin1String("accept") || argument == QLatin1String("cancel")) {
        if (out)
            *out = argument == QLatin1String("accept") ? accept() : cancel();
        return true;
    }
    QFile file(argument);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = QStringLiteral("cannot read answer script %1: %2").arg(quoted(argument), file.errorString());
        return false;
    }
    if (!fromJson(file.readAll(), out, error)) {
        if (error)
            *error = argument + QStringLiteral(": ") + *error;
        return false;
    }
    return true;
}

bool AnswerScript::fromJson(const QByteArray& json, AnswerScript* out, QString* error)
{
    QJsonParseError parseError;
    const QJsonDocument doc = QJsonDocument::fromJson(json, &parseError);
    QString why;
    if (parseError.error != QJsonParseError::NoError)
        why = QStringLiteral("%1 at offset %2").arg(parseError.errorString()).arg(parseError.offset);
    else if (!doc.isArray())
        why = QStringLiteral("an answer script is a JSON array of steps");
    const QJsonArray steps = doc.array();
    for (int i = 0; why.isEmpty() && i < steps.size(); ++i)
        why = checkStep(steps[i], i + 1);
    if (!why.isEmpty()) {
        if (error)
            *error = why;
        return false;
    }
    if (out)
        out->m_steps = steps;
    return true;
}

// ---------------------------------------------------------------- driver

namespace {

// Sees every window that shows while a call runs. A shown QDialog makes the
// first auto-default button of its focus chain the default when the form
// chose none, and a focused button borrows the default; the form's own
// choice is taken just before that, once the window's showEvent is over.
class WindowWatch : public QObject {
public:
    // Dialogs and plain windows; not menus, combo box lists or tool tips.
    static bool isDialogWindow(const QWidget* w)
    {
        const Qt::WindowType type = w->windowType();
        return w->isWindow() && (qobject_cast<const QDialog*>(w) || type == Qt::Dialog || type == Qt::Window);
    }

    // The window a step is meant for: of those the call opened and that are
    // still shown, the last to show. Modal or not, as a dialog may turn
    // non-modal in its showEvent while its exec still runs.
    QWidget* topmost() const
    {
        for (int i = static_cast<int>(shown.size()) - 1; i >= 0; --i)
            if (QWidget* w = shown[i]; w && w->isVisible())
                return w;
        return nullptr;
    }

    QList<QPointer<QWidget>> shown;             // in the order they showed
    int opened = 0;                             // shows seen, ever
    QList<QPointer<QPushButton>> formDefaults; // of every window shown
    QList<QPointer<QWidget>> snapped;          // windows whose defaults are taken

    bool eventFilter(QObject* object, QEvent* event) override
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
};

} // namespace

struct DialogDriver::Private {
    AnswerScript script;
    EventSink sink;
    bool failOnDialog = false;

    int next = 0;
    QString failure;
    bool closing = false;
    QObject* context = nullptr; // owns the tick timers of one run
    WindowWatch* watch = nullptr; // a child of context
    Patience stepWait;          // since the next step became next
    Patience idleWait;          // since the last step, or since a dialog came
    Patience absentWait;        // since no dialog was open
    bool absent = false;
    QPointer<QWidget> seen;     // the dialog of the last tick

    QWidget* target() const { return watch ? watch->topmost() : nullptr; }

    // A context menu asked for and not yet answered.
    bool menuPending = false;
    QString menuAction;
    QString menuStep;
    Patience menuWait;

    void emitLine(const QJsonObject& object)
    {
        emitLine(QJsonDocument(object).toJson(QJsonDocument::Compact));
    }

    void emitLine(const QByteArray& line)
    {
        if (sink)
            sink(line);
        else
            defaultSink(line);
    }

    void reportBox(QMessageBox* box, const QJsonValue& button)
    {
        emitLine(QJsonObject{{QStringLiteral("messageBox"),
                              QJsonObject{{QStringLiteral("title"), box->windowTitle()},
                                          {QStringLiteral("text"), box->text()},
                                          {QStringLiteral("button"), button}}}});
    }

    void fail(const QString& why)
    {
        if (failure.isEmpty())
            failure = why;
        closing = true;
        closeAll();
    }

    // Innermost first; a window that refuses to close is hidden, which ends
    // its exec all the same.
    void closeAll()
    {
        for (int i = 0; i < 100; ++i) {
            if (QWidget* popup = QApplication::activePopupWidget()) {
                popup->close();
                continue;
            }
            QPointer<QWidget> w = target();
            if (!w)
                w = activeModal();
            if (!w)
                break;
            if (auto* box = qobject_cast<QMessageBox*>(w.data()))
                reportBox(box, QJsonValue::Null);
            if (auto* dialog = qobject_cast<QDialog*>(w.data()))
                dialog->reject();
            if (w && w->isVisible())
                w->close();
            if (w && w->isVisible())
                w->hide();
        }
    }

    void tick();
    void answerMenu();
    Outcome perform(const QJsonObject& step, QWidget* dialog);
    QWidget* find(QWidget* dialog, const QString& name, QString* why) const;
    Outcome usable(QWidget* w, const QString& name) const;

    Outcome stepSet(QWidget* dialog, QWidget* w, const QString& name, const QString& text);
    Outcome stepClick(QWidget* w, const QString& name);
    Outcome stepCheck(QWidget* w, const QString& name, bool on);
    Outcome stepChoose(QWidget* w, const QString& name, const QJsonObject& step);
    Outcome stepRadio(QWidget* w, const QString& name, int id);
    Outcome stepCell(QWidget* dialog, QWidget* w, const QString& name, int row, int column,
                     const QString& text);
    Outcome stepKey(QWidget* dialog, QWidget* w, const QString& keys);
    Outcome stepMenu(QWidget* w, const QString& action);
    Outcome stepMessage(QWidget* dialog, const QString& button);
    Outcome stepEnd(QWidget* dialog, bool accept);
    Outcome selectRows(QAbstractItemView* v, const QString& name, const QStringList& texts);
    Outcome chooseTab(QTabBar* bar, const QString& name, const QStringList& texts, int index);
    Outcome stepDrag(QWidget* dialog, QWidget* w, const QString& name, const QString& item,
                     const QString& onto);
};

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

void DialogDriver::Private::tick()
{
    if (!context)
        return;
    // Armed first: the step below may block in a nested event loop, where
    // the next tick must still come.
    QTimer::singleShot(kTickMs, context, [this] { tick(); });
    if (closing) {
        closeAll();
        return;
    }
    if (menuPending) {
        answerMenu();
        return;
    }
    const QJsonArray& steps = script.steps();
    QWidget* dialog = target();
    if (!dialog) {
        // The call runs an event loop with nothing shown to answer: a dialog
        // on its way, or one that will never come.
        seen = nullptr;
        if (!absent) {
            absent = true;
            absentWait.restart();
        } else if (absentWait.exhausted()) {
            if (next < steps.size())
                fail(QStringLiteral("step %1 %2: waited 5 s for a dialog; none is open")
                         .arg(next + 1).arg(stepText(steps[next].toObject())));
            else
                fail(QStringLiteral("no dialog open for 5 s after the last step, and the call has not returned"));
        }
        return;
    }
    absent = false;
    if (dialog != seen) {
        // One tick for what a dialog posts to itself as it shows.
        seen = dialog;
        idleWait.restart();
        return;
    }
    if (steps.isEmpty() && failOnDialog) {
        fail(QStringLiteral("a dialog opened and no answer script was given (use --answer)"));
        return;
    }
    if (next >= steps.size()) {
        if (idleWait.exhausted())
            fail(QStringLiteral("dialog %1 still open 5 s after the last step").arg(quoted(windowName(dialog))));
        return;
    }
    const QJsonObject step = steps[next].toObject();
    const QString label = QStringLiteral("step %1 %2: ").arg(next + 1).arg(stepText(step));
    Outcome o = perform(step, dialog);
    if (o.kind == Outcome::NotYet) {
        if (stepWait.exhausted())
            fail(label + o.why);
        return;
    }
    if (o.kind == Outcome::Failed) {
        fail(label + o.why);
        return;
    }
    ++next;
    stepWait.restart();
    idleWait.restart();
    if (o.action)
        o.action();
}

Outcome DialogDriver::Private::perform(const QJsonObject& step, QWidget* dialog)
{
    const StepRule* rule = ruleOf(step);
    if (!rule)
        return stepFailed(QStringLiteral("not a step"));
    const QString action = QLatin1String(rule->action);
    const QJsonValue value = step.value(action);
    const QString dialogName = quoted(windowName(dialog));

    if (action == QLatin1String("wait")) {
        const QString name = value.toString();
        if (dialog->objectName() == name || dialog->windowTitle() == name)
            return stepDone();
        return stepWaiting(QStringLiteral("waited 5 s for dialog %1; the active one is %2").arg(quoted(name), dialogName));
    }
    if (action == QLatin1String("message"))
        return stepMessage(dialog, value.toString());
    if (action == QLatin1String("file")) {
        QPointer<QFileDialog> fd = qobject_cast<QFileDialog*>(dialog);
        if (!fd)
            return stepWaiting(QStringLiteral("waited 5 s for a file dialog; the active one is %1").arg(dialogName));
        const QString path = value.toString();
        return stepDone([fd, path] {
            if (!fd)
                return;
            if (path.isEmpty()) {
                fd->reject();
                return;
            }
            // selectFile leaves a focused name field alone; type the path
            // there as a user would.
            if (auto* edit = fd->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
                edit->setText(path);
            else
                fd->selectFile(path);
            static_cast<QDialog*>(fd.data())->accept();
        });
    }
    if (action == QLatin1String("color")) {
        QPointer<QColorDialog> cd = qobject_cast<QColorDialog*>(dialog);
        if (!cd)
            return stepWaiting(QStringLiteral("waited 5 s for a colour dialog; the active one is %1").arg(dialogName));
        const QString color = value.toString();
        const bool cancel = value.isNull();
        return stepDone([cd, color, cancel] {
            if (!cd)
                return;
            if (cancel) {
                cd->reject();
                return;
            }
            cd->setCurrentColor(QColor(color));
            static_cast<QDialog*>(cd.data())->accept();
        });
    }
    if (action == QLatin1String("screenshot")) {
        const QString file = value.toString();
        QDir().mkpath(QFileInfo(file).absolutePath());
        if (!dialog->window()->grab().save(file, "PNG"))
            return stepFailed(QStringLiteral("cannot write %1").arg(quoted(file)));
        return stepDone();
    }
    if (action == QLatin1String("accept") || action == QLatin1String("cancel"))
        return stepEnd(dialog, action == QLatin1String("accept"));

    const QString name = value.toString();
    QString why;
    if (action == QLatin1String("inspect")) {
        QWidget* w = name.isEmpty() ? dialog : find(dialog, name, &why);
        if (!w)
            return stepFailed(why);
        emitLine(inspectLine(name, w, w == dialog));
        return stepDone();
    }
    QWidget* w = find(dialog, name, &why);
    if (!w)
        return stepFailed(why);
    const Outcome u = usable(w, name);
    if (u.kind == Outcome::Failed)
        return u;
    const QString text = step.value(QLatin1String("text")).toString();
    if (action == QLatin1String("set"))
        return stepSet(dialog, w, name, text);
    if (action == QLatin1String("click"))
        return stepClick(w, name);
    if (action == QLatin1String("check"))
        return stepCheck(w, name, step.value(QLatin1String("on")).toBool(true));
    if (action == QLatin1String("choose"))
        return stepChoose(w, name, step);
    if (action == QLatin1String("radio"))
        return stepRadio(w, name, step.value(QLatin1String("id")).toInt());
    if (action == QLatin1String("cell"))
        return stepCell(dialog, w, name, step.value(QLatin1String("row")).toInt(),
                        step.value(QLatin1String("column")).toInt(), text);
    if (action == QLatin1String("key"))
        return stepKey(dialog, w, step.value(QLatin1String("keys")).toString());
    if (action == QLatin1String("menu"))
        return stepMenu(w, step.value(QLatin1String("action")).toString());
    if (action == QLatin1String("drag"))
        return stepDrag(dialog, w, name, step.value(QLatin1String("item")).toString(),
                        step.value(QLatin1String("onto")).toString());
    return stepFailed(QStringLiteral("not a step"));
}

Outcome DialogDriver::Private::stepSet(QWidget* dialog, QWidget* w, const QString& name,
                                       const QString& text)
{
    bool oneLine = true;
    QPointer<QWidget> target = textTarget(w, &oneLine);
    if (!target)
        return stepFailed(QStringLiteral("%1 (%2) takes no typed text").arg(quoted(name), className(w)));
    if (oneLine && (text.contains(QLatin1Char('\n')) || text.contains(QLatin1Char('\r'))))
        return stepFailed(quoted(name) + QStringLiteral(" is one line; the text has a line break"));
    QPointer<QWidget> d(dialog);
    return stepDone([d, target, text] {
        if (!d || !target)
            return;
        typeInto(d, target, text);
        leaveField();
    });
}

Outcome DialogDriver::Private::stepClick(QWidget* w, const QString& name)
{
    if (auto* b = qobject_cast<QAbstractButton*>(w)) {
        QPointer<QAbstractButton> p(b);
        return stepDone([p] {
            if (p)
                clickButton(p);
        });
    }
    auto* g = qobject_cast<QGroupBox*>(w);
    if (g && g->isCheckable()) {
        QPointer<QGroupBox> p(g);
        return stepDone([p] {
            if (p)
                toggleGroup(p);
        });
    }
    return stepFailed(QStringLiteral("%1 (%2) is not a button").arg(quoted(name), className(w)));
}

Outcome DialogDriver::Private::stepCheck(QWidget* w, const QString& name, bool on)
{
    auto* b = qobject_cast<QAbstractButton*>(w);
    auto* g = qobject_cast<QGroupBox*>(w);
    const bool checkable = b ? b->isCheckable() : g && g->isCheckable();
    if (!checkable)
        return stepFailed(QStringLiteral("%1 (%2) can't be checked").arg(quoted(name), className(w)));
    const bool checked = b ? b->isChecked() : g->isChecked();
    if (checked == on)
        return stepDone();
    return stepClick(w, name);
}

Outcome DialogDriver::Private::stepChoose(QWidget* w, const QString& name, const QJsonObject& step)
{
    QStringList texts;
    int index = -1;
    if (step.contains(QLatin1String("texts"))) {
        for (const QJsonValue& v : step.value(QLatin1String("texts")).toArray())
            if (!texts.contains(v.toString()))
                texts << v.toString();
    } else if (step.contains(QLatin1String("text"))) {
        texts << step.value(QLatin1String("text")).toString();
    } else {
        index = step.value(QLatin1String("index")).toInt();
    }

    auto* tabs = qobject_cast<QTabWidget*>(w);
    if (QTabBar* bar = tabs ? tabs->tabBar() : qobject_cast<QTabBar*>(w))
        return chooseTab(bar, name, texts, index);
    if (auto* c = qobject_cast<QComboBox*>(w)) {
        if (texts.size() > 1)
            return stepFailed(quoted(name) + QStringLiteral(" is a combo box and takes one item"));
        if (!texts.isEmpty())
            index = c->findText(texts.first(), Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (index < 0 || index >= c->count())
            return stepFailed(QStringLiteral("no item %1 in %2 (items: %3)")
                              .arg(texts.isEmpty() ? QString::number(index) : quoted(texts.first()),
                                   quoted(name), itemList(comboItems(c))));
        QPointer<QComboBox> p(c);
        return stepDone([p, index] {
            if (p)
                pickInCombo(p, index);
        });
    }
    if (auto* v = qobject_cast<QAbstractItemView*>(w)) {
        if (index >= 0) {
            const QStringList items = viewItems(v);
            if (index >= items.size())
                return stepFailed(QStringLiteral("no row %1 in %2 (%3 rows)").arg(index).arg(quoted(name)).arg(items.size()));
            texts << items[index];
        }
        return selectRows(v, name, texts);
    }
    return stepFailed(QStringLiteral("%1 (%2) is not a combo box, list or tab widget").arg(quoted(name), className(w)));
}

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

// A click on the tab, as a person switches pages; a tab scrolled out of
// sight is made current as the scroll buttons and a click would.
Outcome DialogDriver::Private::chooseTab(QTabBar* bar, const QString& name, const QStringList& texts,
                                         int index)
{
    QStringList titles;
    for (int i = 0; i < bar->count(); ++i)
        titles << bar->tabText(i);
    if (texts.size() > 1)
        return stepFailed(quoted(name) + QStringLiteral(" shows one page at a time"));
    for (int i = 0; !texts.isEmpty() && index < 0 && i < titles.size(); ++i)
        if (titles[i] == texts.first() || plain(titles[i]) == texts.first())
            index = i;
    if (index < 0 || index >= bar->count())
        return stepFailed(QStringLiteral("no tab %1 in %2 (tabs: %3)")
                          .arg(texts.isEmpty() ? QString::number(index) : quoted(texts.first()),
                               quoted(name), itemList(titles)));
    const QString tab = QStringLiteral("tab %1 of %2").arg(quoted(plain(titles[index])), quoted(name));
    if (!bar->isTabVisible(index))
        return stepFailed(tab + QStringLiteral(" is hidden"));
    if (!bar->isTabEnabled(index))
        return stepFailed(tab + QStringLiteral(" is disabled"));
    QPointer<QTabBar> p(bar);
    return stepDone([p, index] {
        if (!p)
            return;
        const QRect r = p->tabRect(index);
        if (r.isValid() && p->rect().contains(r.center()))
            QTest::mouseClick(p, Qt::LeftButton, Qt::NoModifier, r.center());
        if (p && p->currentIndex() != index)
            p->setCurrentIndex(index);
    });
}

// As clicks would: the first row plainly, more with Ctrl; in multi
// selection, where a plain click toggles, only the rows that must change.
Outcome DialogDriver::Private::selectRows(QAbstractItemView* v, const QString& name,
                                         const QStringList& texts)
{
    const QAbstractItemView::SelectionMode mode = v->selectionMode();
    if (mode == QAbstractItemView::NoSelection)
        return stepFailed(quoted(name) + QStringLiteral(" selects nothing"));
    if (texts.size() > 1 && mode == QAbstractItemView::SingleSelection)
        return stepFailed(quoted(name) + QStringLiteral(" selects one row only"));
    const QStringList items = viewItems(v);
    QList<int> rows;
    for (const QString& t : texts) {
        const int row = static_cast<int>(items.indexOf(t));
        if (row < 0)
            return stepFailed(QStringLiteral("no item %1 in %2 (items: %3)").arg(quoted(t), quoted(name), itemList(items)));
        rows << row;
    }
    QPointer<QAbstractItemView> p(v);
    return stepDone([this, p, rows, name] {
        if (!p)
            return;
        const bool toggles = p->selectionMode() == QAbstractItemView::MultiSelection;
        const int count = p->model() ? p->model()->rowCount(p->rootIndex()) : 0;
        auto clickRow = [&](int row, Qt::KeyboardModifiers mods) {
            const QModelIndex idx = listIndex(p, row);
            p->scrollTo(idx);
            const QRect r = p->visualRect(idx);
            if (r.isValid())
                QTest::mouseClick(p->viewport(), Qt::LeftButton, mods, r.center());
        };
        bool first = true;
        for (int row = 0; toggles && p && row < count; ++row) {
            const bool selected = p->selectionModel() && p->selectionModel()->isSelected(listIndex(p, row));
            if (selected != rows.contains(row))
                clickRow(row, Qt::NoModifier);
        }
        for (int i = 0; !toggles && p && i < rows.size(); ++i) {
            clickRow(rows[i], first ? Qt::NoModifier : Qt::ControlModifier);
            first = false;
        }
        for (int row = 0; p && p->selectionModel() && row < count; ++row) {
            if (p->selectionModel()->isSelected(listIndex(p, row)) != rows.contains(row)) {
                fail(QStringLiteral("clicks on %1 did not give the selection asked for").arg(quoted(name)));
                return;
            }
        }
    });
}

Outcome DialogDriver::Private::stepRadio(QWidget* w, const QString& name, int id)
{
    QAbstractButton* button = nullptr;
    int count = 0;
    if (auto* rg = qobject_cast<RadioGroup*>(w)) {
        button = rg->button(id);
        count = rg->count();
    } else {
        const QList<QRadioButton*> radios = radiosOf(w);
        count = static_cast<int>(radios.size());
        if (id < count)
            button = radios[id];
    }
    if (!button)
        return stepFailed(QStringLiteral("no radio button %1 in %2 (it has %3)").arg(id).arg(quoted(name)).arg(count));
    const Outcome u = usable(button, name + QStringLiteral(" button ") + QString::number(id));
    if (u.kind == Outcome::Failed)
        return u;
    QPointer<QAbstractButton> p(button);
    return stepDone([p] {
        if (p)
            clickButton(p);
    });
}

Outcome DialogDriver::Private::stepCell(QWidget* dialog, QWidget* w, const QString& name, int row,
                                        int column, const QString& text)
{
    auto* view = qobject_cast<QTableView*>(w);
    if (!view || !view->model())
        return stepFailed(QStringLiteral("%1 (%2) is not a table").arg(quoted(name), className(w)));
    const QModelIndex idx = view->model()->index(row, column, view->rootIndex());
    if (!idx.isValid())
        return stepFailed(QStringLiteral("no cell (%1, %2) in %3 (%4 rows, %5 columns)")
                          .arg(row).arg(column).arg(quoted(name))
                          .arg(view->model()->rowCount(view->rootIndex()))
                          .arg(view->model()->columnCount(view->rootIndex())));
    const QString cell = QStringLiteral("cell (%1, %2) of %3").arg(row).arg(column).arg(quoted(name));

    // A widget standing in the cell is used directly, as a user would.
    if (QWidget* inCell = view->indexWidget(idx)) {
        QComboBox* c = qobject_cast<QComboBox*>(inCell);
        if (!c)
            c = inCell->findChild<QComboBox*>();
        if (c) {
            const int index = c->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
            if (index < 0)
                return stepFailed(QStringLiteral("no item %1 in the combo box of %2 (items: %3)")
                                  .arg(quoted(text), cell, itemList(comboItems(c))));
            QPointer<QComboBox> p(c);
            return stepDone([p, index] {
                if (p)
                    pickInCombo(p, index);
            });
        }
        return stepSet(dialog, inCell, cell, text);
    }
    if (!(view->model()->flags(idx) & Qt::ItemIsEditable))
        return stepFailed(cell + QStringLiteral(" can't be edited"));

    QPointer<QTableView> p(view);
    QPointer<QWidget> d(dialog);
    return stepDone([this, p, d, idx = QPersistentModelIndex(idx), text, cell] {
        if (!p || !d || !idx.isValid())
            return;
        activate(d);
        p->scrollTo(idx);
        const auto before = p->viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        auto newEditor = [&]() -> QWidget* {
            const auto now = p->viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
            for (QWidget* e : now)
                if (!before.contains(e) && e->isVisible())
                    return e;
            return nullptr;
        };
        const QRect r = p->visualRect(idx);
        if (r.isValid())
            QTest::mouseDClick(p->viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
        if (!p)
            return;
        QPointer<QWidget> editor = newEditor();
        if (!editor) {
            p->edit(idx);
            editor = newEditor();
        }
        if (!editor) {
            fail(QStringLiteral("no editor opened on ") + cell);
            return;
        }
        bool oneLine = true;
        if (auto* c = qobject_cast<QComboBox*>(editor.data()); c && !c->isEditable()) {
            const int index = c->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
            if (index < 0) {
                fail(QStringLiteral("no item %1 in the editor of %2").arg(quoted(text), cell));
                return;
            }
            pickInCombo(c, index);
        } else if (QWidget* target = textTarget(editor, &oneLine)) {
            typeInto(d, target, text);
        } else {
            fail(QStringLiteral("the editor of %1 (%2) takes no typed text").arg(cell, className(editor)));
            return;
        }
        // Return would reach the dialog's default button; leaving the
        // editor commits it as a click elsewhere does.
        leaveField();
        if (editor && editor->isVisible() && p) {
            QAbstractItemDelegate* delegate = p->itemDelegate(idx);
            emit delegate->commitData(editor);
            emit delegate->closeEditor(editor, QAbstractItemDelegate::NoHint);
        }
    });
}

Outcome DialogDriver::Private::stepKey(QWidget* dialog, QWidget* w, const QString& keys)
{
    const QKeySequence seq = QKeySequence::fromString(keys);
    QWidget* receiver = w->focusProxy() ? w->focusProxy() : w;
    if (auto* s = qobject_cast<Spinner*>(w))
        receiver = s->lineEdit();
    QPointer<QWidget> target = receiver;
    QPointer<QWidget> d(dialog);
    return stepDone([d, target, seq] {
        if (!d || !target)
            return;
        activate(d);
        target->setFocus(Qt::OtherFocusReason);
        for (int i = 0; i < seq.count() && target; ++i) {
            const int k = seq[static_cast<uint>(i)];
            QTest::keyClick(target, Qt::Key(k & ~Qt::KeyboardModifierMask),
                            Qt::KeyboardModifiers(k & Qt::KeyboardModifierMask));
        }
    });
}

Outcome DialogDriver::Private::stepMenu(QWidget* w, const QString& action)
{
    QWidget* target = w;
    QPoint at = w->rect().center();
    if (auto* area = qobject_cast<QAbstractScrollArea*>(w)) {
        target = area->viewport();
        at = target->rect().center();
    }
    if (auto* v = qobject_cast<QAbstractItemView*>(w); v && v->currentIndex().isValid()) {
        const QRect r = v->visualRect(v->currentIndex());
        if (r.isValid())
            at = r.center();
    }
    QPointer<QWidget> p(target);
    const QString label = QStringLiteral("step %1 %2: ").arg(next + 1).arg(stepText(script.steps()[next].toObject()));
    return stepDone([this, p, at, action, label] {
        if (!p)
            return;
        menuPending = true;
        menuAction = action;
        menuStep = label;
        menuWait.restart();
        // May not return until the menu closes: the menu is answered from
        // the ticks of its own event loop.
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, p->mapToGlobal(at));
        QApplication::sendEvent(p, &event);
    });
}

void DialogDriver::Private::answerMenu()
{
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) {
        if (menuWait.exhausted()) {
            menuPending = false;
            fail(menuStep + QStringLiteral("no context menu opened"));
        }
        return;
    }
    menuPending = false;
    QStringList texts;
    const QList<QAction*> actions = menu->actions();
    for (QAction* a : actions) {
        if (a->isSeparator())
            continue;
        const QString text = plain(a->text().section(QLatin1Char('\t'), 0, 0));
        texts << text;
        if (text != menuAction)
            continue;
        if (!a->isEnabled()) {
            fail(menuStep + QStringLiteral("%1 is disabled in the context menu").arg(quoted(menuAction)));
            return;
        }
        menu->setActiveAction(a);
        QTest::keyClick(menu, Qt::Key_Return);
        return;
    }
    fail(menuStep + QStringLiteral("no action %1 in the context menu (it has %2)").arg(quoted(menuAction), itemList(texts)));
}

Outcome DialogDriver::Private::stepMessage(QWidget* dialog, const QString& button)
{
    auto* box = qobject_cast<QMessageBox*>(dialog);
    if (!box)
        return stepWaiting(QStringLiteral("waited 5 s for a message box; the active window is %1").arg(quoted(windowName(dialog))));
    QStringList texts;
    const QList<QAbstractButton*> buttons = box->buttons();
    for (QAbstractButton* b : buttons) {
        texts << plain(b->text());
        if (plain(b->text()) != button)
            continue;
        reportBox(box, button);
        QPointer<QAbstractButton> p(b);
        return stepDone([p] {
            if (p)
                clickButton(p);
        });
    }
    return stepFailed(QStringLiteral("no button %1 in the message box %2: %3 (it has %4)")
                      .arg(quoted(button), quoted(box->windowTitle()), quoted(box->text()), itemList(texts)));
}

Outcome DialogDriver::Private::stepEnd(QWidget* dialog, bool accept)
{
    const bool seenShown = watch && watch->shown.contains(dialog);
    const auto isDefault = [this, seenShown](QPushButton* b) {
        return seenShown ? watch->formDefaults.contains(b) : b->isDefault();
    };
    bool hiddenOnly = false;
    QAbstractButton* button = endButton(dialog, accept, isDefault, &hiddenOnly);
    const QString role = accept ? QStringLiteral("ok button") : QStringLiteral("cancel button");
    if (button) {
        const QString shown = plain(button->text());
        const Outcome u = usable(button, shown.isEmpty() ? button->objectName() : shown);
        if (u.kind == Outcome::Failed)
            return u;
        if (auto* box = qobject_cast<QMessageBox*>(dialog))
            reportBox(box, shown);
        QPointer<QAbstractButton> p(button);
        return stepDone([p] {
            if (p)
                clickButton(p);
        });
    }
    // Nobody can press a hidden Ok; a dialog without a visible Cancel is
    // still closed by Escape or its title bar, which reject it.
    if (accept && hiddenOnly)
        return stepFailed(QStringLiteral("the %1 of %2 is hidden").arg(role, quoted(windowName(dialog))));
    QPointer<QDialog> d = qobject_cast<QDialog*>(dialog);
    if (!d)
        return stepFailed(QStringLiteral("%1 is not a dialog and has no %2").arg(quoted(windowName(dialog)), role));
    return stepDone([d, accept] {
        if (d && accept)
            d->accept();
        else if (d)
            d->reject();
    });
}

// ---------------------------------------------------------------- public

DialogDriver::DialogDriver(AnswerScript script, EventSink sink) : d(new Private)
{
    d->script = std::move(script);
    d->sink = std::move(sink);
}

DialogDriver::~DialogDriver()
{
    delete d->context;
}

void DialogDriver::setFailOnDialog(bool on)
{
    d->failOnDialog = on;
}

bool DialogDriver::failed() const
{
    return !d->failure.isEmpty();
}

QString DialogDriver::failure() const
{
    return d->failure;
}

void DialogDriver::run(const std::function<void()>& body)
{
    Private* p = d.get();
    delete p->context;
    p->context = new QObject;
    p->watch = new WindowWatch;
    p->watch->setParent(p->context);
    qApp->installEventFilter(p->watch);
    p->next = 0;
    p->failure.clear();
    p->closing = false;
    p->menuPending = false;
    p->seen = nullptr;
    p->absent = false;
    p->stepWait.restart();
    p->idleWait.restart();
    setHelpHandler([p](const QString& topic) {
        p->emitLine(QJsonObject{{QStringLiteral("help"), topic}});
    });
    QTimer::singleShot(kTickMs, p->context, [p] { p->tick(); });

    struct Restore {
        Private* p;
        ~Restore()
        {
            delete p->context;
            p->context = nullptr;
            p->watch = nullptr;
            setHelpHandler({});
        }
    } restore{p};
    if (body)
        body();

    const QJsonArray& steps = p->script.steps();
    if (p->failure.isEmpty() && p->menuPending)
        p->failure = p->menuStep + QStringLiteral("no context menu opened");
    else if (p->failure.isEmpty() && p->next < steps.size() && p->watch->opened > 0)
        p->failure = QStringLiteral("the call ended before step %1 %2")
                         .arg(p->next + 1)
                         .arg(stepText(steps[p->next].toObject()));
}

CallResult DialogDriver::call(Engine& engine, const std::string& name,
                              const std::vector<ScriptValue>& args)
{
    CallResult result;
    run([&] { result = engine.call(name, args); });
    // A call refused for its arguments opened nothing; its own message
    // tells the script what is wrong.
    const bool refused = result.status == CallResult::Status::UnknownFunction
                         || result.status == CallResult::Status::BadArgCount
                         || result.status == CallResult::Status::BadArgKind;
    if (failed() && !refused) {
        result.status = CallResult::Status::Failed;
        result.error = failure().toStdString();
        result.hasResult = false;
        result.value = ScriptValue();
    }
    return result;
}

} // namespace vtkit
