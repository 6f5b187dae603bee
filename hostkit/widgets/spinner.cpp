#include "hostwidgets.h"

#include "hostsupport.h"

#include <QBoxLayout>
#include <QEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QToolButton>
#include <QWheelEvent>

#include <cmath>

namespace {

// A text is a number when the converter takes at least one character of it;
// what follows the number is the converter's business ("10kOhm").
bool parseNumber(const QString& text, double* value)
{
    const QByteArray bytes = text.toLatin1();
    char* end = nullptr;
    const double v = sp_ConvertEngToReal(bytes.constData(), &end);
    if (!end || end == bytes.constData())
        return false;
    if (value)
        *value = v;
    return true;
}

// Relative slack so that 0.30000000000000004 counts as being on 0.3.
constexpr double kSlack = 1e-9;

double decadeOf(double magnitude)
{
    return std::pow(10.0, std::floor(std::log10(magnitude)));
}

// Next value of the 1-2-5 sequence above (up) or below a positive magnitude.
double next125(double magnitude, bool up)
{
    const double decade = decadeOf(magnitude);
    if (up) {
        // The decade can come out one too low near exact powers of ten.
        for (double m : {1.0, 2.0, 5.0, 10.0, 20.0, 50.0}) {
            if (m * decade > magnitude * (1.0 + kSlack))
                return m * decade;
        }
        return 100.0 * decade;
    }
    for (double m : {10.0, 5.0, 2.0, 1.0, 0.5, 0.2, 0.1}) {
        if (m * decade < magnitude * (1.0 - kSlack))
            return m * decade;
    }
    return 0.05 * decade;
}

} // namespace

Spinner::Spinner(QWidget* parent, const char* name)
    : QWidget(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));

    m_edit = new QLineEdit(this);
    m_edit->setObjectName(QStringLiteral("lineEdit"));
    m_up = new QToolButton(this);
    m_up->setObjectName(QStringLiteral("upButton"));
    m_up->setIcon(QIcon(QStringLiteral(":/16x16_uparrow_transparent_bg.png")));
    m_up->setToolTip(tr("Step up"));
    m_down = new QToolButton(this);
    m_down->setObjectName(QStringLiteral("downButton"));
    m_down->setIcon(QIcon(QStringLiteral(":/16x16_downarrow_transparent_bg.png")));
    m_down->setToolTip(tr("Step down"));
    for (QToolButton* button : {m_up, m_down}) {
        button->setAutoRepeat(true);
        // Clicking a button must not end the edit and restore the text.
        button->setFocusPolicy(Qt::NoFocus);
        button->setIconSize(QSize(8, 8));
        button->setFixedWidth(16);
        // Half the line edit's height each, not their own size hint.
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
        button->setMinimumHeight(1);
    }

    auto* buttons = new QVBoxLayout;
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(0);
    buttons->addWidget(m_up);
    buttons->addWidget(m_down);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_edit);
    row->addLayout(buttons);

    setFocusProxy(m_edit);
    setFocusPolicy(m_edit->focusPolicy());
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_edit->installEventFilter(this);

    showValue(0.0);

    connect(m_edit, &QLineEdit::textChanged, this, &Spinner::editTextChanged);
    connect(m_edit, &QLineEdit::editingFinished, this, &Spinner::editingFinished);
    connect(m_up, &QToolButton::clicked, this, &Spinner::pressUp);
    connect(m_down, &QToolButton::clicked, this, &Spinner::pressDown);
}

Spinner::~Spinner()
{
    // The line edit outlives this part of the object and still reports its
    // focus out and text as it goes.
    m_edit->removeEventFilter(this);
    disconnect(m_edit, nullptr, this, nullptr);
}

double Spinner::value() const
{
    const QString current = m_edit->text();
    double v = 0.0;
    if (isExpression(current) || !parseNumber(current, &v))
        return 0.0;
    return v;
}

void Spinner::setValue(double v)
{
    if (!std::isfinite(v))
        return;
    showValue(v);
}

QString Spinner::text() const
{
    return m_edit->text();
}

void Spinner::setText(const QString& text)
{
    m_lastGood = text;
    m_formatted = false;
    m_settingText = true;
    m_edit->setText(text);
    m_settingText = false;
}

void Spinner::setMin(double min)
{
    m_min = min;
}

void Spinner::setMax(double max)
{
    m_max = max;
}

void Spinner::setInteger(bool integer)
{
    m_integer = integer;
    refreshFormat();
}

void Spinner::setEngMode(bool on)
{
    m_engMode = on;
    refreshFormat();
}

void Spinner::setPrecision(int digits)
{
    m_precision = qBound(1, digits, 17);
    refreshFormat();
}

void Spinner::setStep(double step)
{
    m_step = std::isfinite(step) && step > 0.0 ? step : 0.0;
}

void Spinner::setAllowExpressions(bool allow)
{
    m_allowExpressions = allow;
}

void Spinner::pressUp()
{
    stepBy(1);
}

void Spinner::pressDown()
{
    stepBy(-1);
}

bool Spinner::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_edit) {
        if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Up || key == Qt::Key_Down) {
                if (!m_edit->isReadOnly())
                    stepBy(key == Qt::Key_Up ? 1 : -1);
                return true;
            }
        } else if (event->type() == QEvent::Wheel) {
            wheelEvent(static_cast<QWheelEvent*>(event));
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void Spinner::wheelEvent(QWheelEvent* event)
{
    event->accept();
    if (m_edit->isReadOnly())
        return;
    // Fine-grained wheels send fractions of a notch: step on whole notches.
    m_wheelRest += event->angleDelta().y();
    const int notches = m_wheelRest / 120;
    m_wheelRest -= notches * 120;
    const int steps = qBound(-10, notches, 10);
    for (int i = 0; i < std::abs(steps); ++i)
        stepBy(steps > 0 ? 1 : -1);
}

void Spinner::stepBy(int direction)
{
    const QString current = m_edit->text();
    if (isExpression(current))
        return;
    double v = 0.0;
    if (!parseNumber(current, &v)) {
        // Half-typed nonsense: step from what was last good.
        if (isExpression(m_lastGood))
            return;
        if (!parseNumber(m_lastGood, &v))
            v = 0.0;
    }
    double next = stepFrom(v, direction);
    if (!std::isfinite(next))
        return;
    bool hitMax = false;
    bool hitMin = false;
    if (direction > 0 && next > m_max) {
        next = m_max;
        hitMax = true;
    } else if (direction < 0 && next < m_min) {
        next = m_min;
        hitMin = true;
    }
    showValue(next);
    if (hitMax)
        emit maxHit();
    if (hitMin)
        emit minHit();
}

double Spinner::stepFrom(double v, int direction) const
{
    const bool up = direction > 0;
    if (m_step > 0.0)
        return up ? v + m_step : v - m_step;

    if (m_step125) {
        // Whole numbers go 1, 0, -1 where reals go 1, 0.5, 0.2 ...
        if (m_integer && std::fabs(v) <= 1.0 + kSlack) {
            const double next = std::round(v) + (up ? 1.0 : -1.0);
            if (std::fabs(next) <= 1.0)
                return next;
        }
        if (v == 0.0)
            return up ? 1.0 : -1.0;
        if (v > 0.0)
            return next125(v, up);
        return -next125(-v, !up);
    }

    double step = 1.0;
    if (!m_integer) {
        const double magnitude = std::fabs(v);
        if (magnitude > 0.0) {
            double decade = decadeOf(magnitude);
            // Toward zero from a power of ten the finer grid of the decade
            // below applies, so that 1 steps down to 0.99 and back.
            const bool towardZero = (v > 0.0) != up;
            if (towardZero && magnitude <= decade * (1.0 + kSlack))
                decade /= 10.0;
            step = decade / 10.0;
        }
        if (!(step > 0.0) || !std::isfinite(step))
            step = 1.0;
    }
    // The next grid point in the direction of the step.
    const double position = v / step;
    const double n = up ? std::floor(position + kSlack) + 1.0 : std::ceil(position - kSlack) - 1.0;
    return n * step;
}

bool Spinner::isExpression(const QString& text) const
{
    if (!m_allowExpressions)
        return false;
    const QString trimmed = text.trimmed();
    return trimmed.startsWith(QLatin1Char('{')) && trimmed.endsWith(QLatin1Char('}'));
}

bool Spinner::isGood(const QString& text) const
{
    return isExpression(text) || parseNumber(text, nullptr);
}

QString Spinner::format(double v) const
{
    if (m_integer) {
        double whole = std::round(v);
        if (whole == 0.0)
            whole = 0.0; // no "-0"
        return QString::number(whole, 'f', 0);
    }
    if (m_engMode)
        return toQs(sp_ConvertRealToJSEng(v, m_precision, false));
    return QString::number(v, 'g', m_precision);
}

void Spinner::showValue(double v)
{
    const QString shown = format(v);
    m_shownValue = v;
    m_lastGood = shown;
    m_settingText = true;
    m_edit->setText(shown);
    m_settingText = false;
    m_formatted = true;
}

void Spinner::refreshFormat()
{
    if (m_formatted)
        showValue(m_shownValue);
}

void Spinner::editTextChanged(const QString& text)
{
    if (!m_settingText) {
        m_formatted = false;
        if (isGood(text))
            m_lastGood = text;
    }
    emit changed(text);
    emit textChanged(text);
}

void Spinner::editingFinished()
{
    if (isGood(m_edit->text()))
        return;
    m_formatted = false;
    m_settingText = true;
    m_edit->setText(m_lastGood);
    m_settingText = false;
}
