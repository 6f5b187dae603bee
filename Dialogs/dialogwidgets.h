// Small helpers for the dialogs' own widgets, beside the argument reading
// of dialogcommon.h.
#pragma once

#include <QDialogButtonBox>
#include <QPushButton>

namespace dialogwidgets {

// Names a button box's Ok and Cancel as the forms name their own buttons,
// "okButton" and "cancelButton", so that scripts and tests find them.
inline void nameBoxButtons(QDialogButtonBox* box)
{
    if (!box)
        return;
    if (QPushButton* ok = box->button(QDialogButtonBox::Ok))
        ok->setObjectName(QStringLiteral("okButton"));
    if (QPushButton* cancel = box->button(QDialogButtonBox::Cancel))
        cancel->setObjectName(QStringLiteral("cancelButton"));
}

} // namespace dialogwidgets
