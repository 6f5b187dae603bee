#include "hostwidgets.h"

EditBox::EditBox(QWidget* parent, const char* name)
    : QLineEdit(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

EditBox::~EditBox() = default;

TextEdit::TextEdit(QWidget* parent, const char* name)
    : QPlainTextEdit(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

TextEdit::~TextEdit() = default;

Label::Label(QWidget* parent, const char* name)
    : QLabel(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

Label::~Label() = default;
