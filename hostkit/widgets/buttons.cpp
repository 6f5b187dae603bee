#include "hostwidgets.h"

#include <QDialog>

PushButton::PushButton(QWidget* parent, const char* name)
    : PushButton(parent, name, Ending::ByActionText)
{
}

PushButton::PushButton(QWidget* parent, const char* name, Ending ending)
    : QPushButton(parent)
    , m_ending(ending)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    connect(this, &QPushButton::clicked, this, &PushButton::endDialog);
}

PushButton::~PushButton() = default;

namespace {

// The names forms give an ok button. Every other PushButton with no action
// text is an ordinary button that only reports its click.
bool isOkButtonName(const QString& name)
{
    return name == QLatin1String("okButton") || name == QLatin1String("okButton1")
        || name == QLatin1String("okButton2") || name == QLatin1String("okbutton");
}

} // namespace

bool PushButton::acceptsDialog() const
{
    return m_ending == Ending::Accept
        || (m_ending == Ending::ByActionText && m_actionText.isEmpty() && isOkButtonName(objectName()));
}

void PushButton::endDialog()
{
    auto* dialog = qobject_cast<QDialog*>(window());
    if (!dialog)
        return;
    // A dialog that connected the ok button itself checks its form first
    // and accepts when it is content; the button's own connection is one.
    const bool dialogDecides = receivers(SIGNAL(clicked(bool))) > 1;
    switch (m_ending) {
    case Ending::Accept:
        if (!dialogDecides)
            dialog->accept();
        return;
    case Ending::Reject:
        dialog->reject();
        return;
    case Ending::ByActionText:
        break;
    }
    if (m_actionText == QLatin1String("reject")) {
        dialog->reject();
    } else if (acceptsDialog() && !dialogDecides) {
        dialog->accept();
    }
}

void PushButton::showEvent(QShowEvent* event)
{
    QPushButton::showEvent(event);
    if (!acceptsDialog() || isDefault())
        return;
    QWidget* top = window();
    if (!qobject_cast<QDialog*>(top))
        return;
    const QList<QPushButton*> buttons = top->findChildren<QPushButton*>();
    for (const QPushButton* button : buttons) {
        if (button->isDefault())
            return; // the form chose its own
    }
    setAutoDefault(true);
    setDefault(true);
}

OkButton::OkButton(QWidget* parent, const char* name)
    : PushButton(parent, name, Ending::Accept)
{
}

OkButton::~OkButton() = default;

CancelButton::CancelButton(QWidget* parent, const char* name)
    : PushButton(parent, name, Ending::Reject)
{
}

CancelButton::~CancelButton() = default;
