// The binding walker: fills a factory's dialog from the call before it is
// shown, and reads it back into the string result when it is accepted.
#include "dialogs.h"

#include "hostsupport.h"
#include "hostwidgets.h"
#include "kitsupport.h"

#include <QDialog>
#include <QPointer>
#include <QWidget>

#include <cstdlib>

namespace vtkit {

namespace {

// Pre-order, children in creation order: the order findChildren gives, and
// the "walk order" that settles ties between widgets sharing an element.
std::vector<std::pair<QWidget*, VT_FunctionDef*>> boundWidgets(QDialog* dialog)
{
    std::vector<std::pair<QWidget*, VT_FunctionDef*>> out;
    if (!dialog)
        return out;
    const QList<QWidget*> all = dialog->findChildren<QWidget*>();
    for (QWidget* w : all) {
        if (auto* def = dynamic_cast<VT_FunctionDef*>(w))
            out.emplace_back(w, def);
    }
    return out;
}

void load(QWidget* w, const char* e)
{
    const QString text = QString::fromLatin1(e);
    if (auto* s = qobject_cast<Spinner*>(w))
        s->setText(text);
    else if (auto* eb = qobject_cast<EditBox*>(w))
        eb->setText(text);
    else if (auto* te = qobject_cast<TextEdit*>(w))
        te->setText(text);
    else if (auto* l = qobject_cast<Label*>(w))
        l->setText(text);
    else if (auto* cb = qobject_cast<CheckBox*>(w))
        cb->setChecked(std::strtoll(e, nullptr, 10) != 0);
    else if (auto* gb = qobject_cast<GroupBox*>(w))
        gb->setChecked(std::strtoll(e, nullptr, 10) != 0);
    else if (auto* rg = qobject_cast<RadioGroup*>(w))
        rg->setText(text);
    else if (auto* combo = qobject_cast<ComboBox*>(w))
        combo->setStringValue(text);
    else if (auto* list = qobject_cast<ListBox*>(w))
        list->setStringValue(text);
}

// What a widget writes to its result element; false for classes that
// write nothing (Label, buttons).
bool collect(QWidget* w, QString* out)
{
    if (auto* s = qobject_cast<Spinner*>(w))
        *out = s->text();
    else if (auto* eb = qobject_cast<EditBox*>(w))
        *out = eb->text();
    else if (auto* te = qobject_cast<TextEdit*>(w))
        *out = te->text();
    else if (auto* cb = qobject_cast<CheckBox*>(w))
        *out = cb->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
    else if (auto* gb = qobject_cast<GroupBox*>(w))
        *out = gb->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
    else if (auto* rg = qobject_cast<RadioGroup*>(w))
        *out = QString::number(rg->selectedId());
    else if (auto* combo = qobject_cast<ComboBox*>(w))
        *out = combo->stringValue();
    else if (auto* list = qobject_cast<ListBox*>(w))
        *out = list->currentText();
    else
        return false;
    return true;
}

} // namespace

void loadBoundWidgets(QDialog* dialog, UserFunctionInterface* call)
{
    for (const auto& [w, def] : boundWidgets(dialog)) {
        if (def->argIndex() < 0)
            continue;
        // Items first, so that the element can name one of them.
        if (qobject_cast<ComboBox*>(w) || qobject_cast<ListBox*>(w))
            def->initialiseWidget(call);
        if (const char* e = stringElement(call, def->argIndex(), def->inElementIndex()))
            load(w, e);
    }
}

// Where two widgets write one element, the one visible in the dialog wins;
// between two visible (or two hidden) ones, the later in walk order.
std::vector<std::string> collectBoundWidgets(QDialog* dialog)
{
    struct Slot {
        std::string text;
        bool written = false;
        bool visible = false;
    };
    std::vector<Slot> elements;
    for (const auto& [w, def] : boundWidgets(dialog)) {
        const int index = def->outElementIndex();
        QString text;
        if (index < 0 || !collect(w, &text))
            continue;
        const bool visible = w->isVisibleTo(dialog);
        if (static_cast<std::size_t>(index) >= elements.size())
            elements.resize(static_cast<std::size_t>(index) + 1);
        Slot& slot = elements[static_cast<std::size_t>(index)];
        if (slot.written && slot.visible && !visible)
            continue;
        slot.text = text.toLatin1().toStdString();
        slot.written = true;
        slot.visible = visible;
    }
    std::vector<std::string> out;
    out.reserve(elements.size());
    for (Slot& slot : elements)
        out.push_back(std::move(slot.text));
    return out;
}

bool runBoundDialog(QDialog* dialog, UserFunctionInterface* call, ScriptValue& result,
                    std::string& error)
{
    (void)error; // a rejected dialog is no error: the script just gets no result
    if (!dialog)
        return false;
    loadBoundWidgets(dialog, call);
    // The dialog may delete itself (WA_DeleteOnClose) while it runs.
    QPointer<QDialog> guard(dialog);
    const int code = dialog->exec();
    bool accepted = false;
    if (guard && code == QDialog::Accepted) {
        result = ScriptValue::fromStrings(collectBoundWidgets(dialog));
        accepted = true;
    }
    delete guard.data();
    return accepted;
}

} // namespace vtkit
