// Select2Dialog: one choice from each of two lists that the script gives.
// The form's bindings do all the work; the factory only builds it.
#include "registration.h"
#include "userdialogclass.h"

#include "ui_select2dialog.h"

#include <QDialog>

namespace {

using Select2Dialog = UserDialogClass<Ui::Select2Dialog, QDialog>;

QDialog* createSelect2Dialog(UserFunctionInterface* /*call*/, void* /*unused*/)
{
    return newUserDialog<Select2Dialog>("Select2Dialog");
}

} // namespace

static const FunctionRegistration registerSelect2Dialog("Select2Dialog", argLimits(0, 32),
                                                        &createSelect2Dialog);
