// The steps of an answer script, carried out with real key and mouse
// events where a person would use them, so that the dialogs' own slots run
// as they would for a person.
#include "answers_p.h"

#include "hostwidgets.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTextEdit>

namespace vtkit {

using namespace answers;

namespace {

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

// The item reading exactly text, -1 for none.
int exactIndex(const QComboBox* c, const QString& text)
{
    return c->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

// A step's action that clicks b, or picks item index of c, once the step is
// done; the widget may be gone by then.
Outcome clickLater(QAbstractButton* b)
{
    QPointer<QAbstractButton> p(b);
    return stepDone([p] {
        if (p)
            clickButton(p);
    });
}

Outcome pickLater(QComboBox* c, int index)
{
    QPointer<QComboBox> p(c);
    return stepDone([p, index] {
        if (p)
            pickInCombo(p, index);
    });
}

} // namespace

namespace answers {

// Key events go where the focus would be; offscreen, only an active window
// gives its widgets focus.
void activate(QWidget* dialog)
{
    QWidget* window = dialog->window();
    window->activateWindow();
    QApplication::setActiveWindow(window);
}

} // namespace answers

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
        return stepWaiting(QStringLiteral("for dialog %1; the active one is %2").arg(quoted(name), dialogName));
    }
    if (action == QLatin1String("message"))
        return stepMessage(dialog, value.toString());
    if (action == QLatin1String("file")) {
        QPointer<QFileDialog> fd = qobject_cast<QFileDialog*>(dialog);
        if (!fd)
            return stepWaiting(QStringLiteral("for a file dialog; the active one is %1").arg(dialogName));
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
            return stepWaiting(QStringLiteral("for a colour dialog; the active one is %1").arg(dialogName));
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
        return clickLater(b);
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
            index = exactIndex(c, texts.first());
        if (index < 0 || index >= c->count())
            return stepFailed(QStringLiteral("no item %1 in %2 (items: %3)")
                              .arg(texts.isEmpty() ? QString::number(index) : quoted(texts.first()),
                                   quoted(name), itemList(comboItems(c))));
        return pickLater(c, index);
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
    return clickLater(button);
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
            const int index = exactIndex(c, text);
            if (index < 0)
                return stepFailed(QStringLiteral("no item %1 in the combo box of %2 (items: %3)")
                                  .arg(quoted(text), cell, itemList(comboItems(c))));
            return pickLater(c, index);
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
            const int index = exactIndex(c, text);
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
        // By the text shown, or by the action's object name, which stays
        // the same in every language.
        if (text != menuAction && a->objectName() != menuAction)
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
        return stepWaiting(QStringLiteral("for a message box; the active window is %1").arg(quoted(windowName(dialog))));
    QStringList texts;
    const QList<QAbstractButton*> buttons = box->buttons();
    for (QAbstractButton* b : buttons) {
        texts << plain(b->text());
        if (plain(b->text()) != button)
            continue;
        reportBox(box, button);
        return clickLater(b);
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
        return clickLater(button);
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

} // namespace vtkit
