// CreateDiodeDialog: the data sheet values from which a script makes a diode
// model. Everything is bound; the script builds the model from the result.
#include "registration.h"
#include "userdialogclass.h"

#include "ui_creatediodedialog.h"

#include <QDialog>

namespace {

using CreateDiodeDialog = UserDialogClass<Ui::CreateDiodeDialog, QDialog>;

QDialog* createCreateDiodeDialog(UserFunctionInterface* /*call*/, void* /*unused*/)
{
    return newUserDialog<CreateDiodeDialog>("CreateDiodeDialog");
}

} // namespace

static const FunctionRegistration registerCreateDiodeDialog("CreateDiodeDialog", argLimits(0, 32),
                                                            &createCreateDiodeDialog);
