// A dialog with no logic of its own: a generated form on a base class.
// The host loads, runs and collects it through the form's bound widgets.
#pragma once

#include <QString>
#include <Qt>

#include <new>

class QWidget;

template <class Ui, class Base>
class UserDialogClass : public Base {
public:
    // The parent is ignored: the host owns the dialog and gives it none.
    UserDialogClass(QWidget* /*parent*/, int /*unused*/, const char* name)
        : Base(nullptr)
    {
        Base::setObjectName(QString::fromLatin1(name));
        m_ui.setupUi(this);
    }

protected:
    Ui m_ui;
};

// The factory of such a dialog: a new dialog with the object name and no
// question mark in its title bar, or null when there is no memory for one.
template <class Dialog>
Dialog* newUserDialog(const char* name)
{
    auto* dialog = new (std::nothrow) Dialog(nullptr, 0, name);
    if (dialog)
        dialog->setWindowFlags(dialog->windowFlags() & ~Qt::WindowContextHelpButtonHint);
    return dialog;
}
