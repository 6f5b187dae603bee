// Inside the answer engine: what the script files, the widget lookup, the
// steps and the driver share. Not part of the engine's interface.
#pragma once

#include "dialogs.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QPointer>
#include <QPushButton>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>

class QAbstractButton;
class QAbstractItemView;
class QComboBox;
class QMessageBox;
class QModelIndex;
class QRadioButton;
class QTabBar;

namespace vtkit {
namespace answers {

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
        return m_clock.isValid() && m_clock.elapsed() > m_waitMs && m_ticks > m_waitMs / kTickMs / 2;
    }
    void setWait(qint64 ms) { m_waitMs = ms; }
    qint64 wait() const { return m_waitMs; }

private:
    QElapsedTimer m_clock;
    qint64 m_waitMs = kWaitMs;
    int m_ticks = 0;
};

// ------------------------------------------------------------ script rules
// answerscript.cpp

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

QString quoted(const QString& s);
const StepRule* ruleOf(const QJsonObject& step);
QString jsonText(const QJsonValue& v);
QString stepText(const QJsonObject& step);

// ----------------------------------------------------------------- widgets
// widgetlookup.cpp

QString plain(const QString& text);
QString windowName(const QWidget* w);
QString className(const QWidget* w);
QWidget* activeModal();
QList<QRadioButton*> radiosOf(QWidget* container);
// Up to eight items, quoted, for a message.
QString itemList(const QStringList& items);
QStringList comboItems(const QComboBox* c);
QModelIndex listIndex(const QAbstractItemView* v, int row);
QStringList viewItems(const QAbstractItemView* v);
// The button a person presses for Ok (or Cancel); see widgetlookup.cpp.
QAbstractButton* endButton(QWidget* dialog, bool accept, const std::function<bool(QPushButton*)>& isDefault,
                           bool* hiddenOnly);
// The one JSON line of {"inspect": object} for w.
QByteArray inspectLine(const QString& object, const QWidget* w, bool isDialog);

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

    bool eventFilter(QObject* object, QEvent* event) override;
};

// ------------------------------------------------------------------- steps
// answersteps.cpp

void activate(QWidget* dialog);

// What a step came to: carried out (with the part that may block in a
// nested event loop left to run once the step is counted), to be tried
// again on the next tick, or failed.
struct Outcome {
    enum Kind { Done, NotYet, Failed };
    Kind kind = Done;
    QString why;
    std::function<void()> action;
};

inline Outcome stepDone(std::function<void()> action = {})
{
    return {Outcome::Done, {}, std::move(action)};
}

inline Outcome stepWaiting(const QString& why)
{
    return {Outcome::NotYet, why, {}};
}

inline Outcome stepFailed(const QString& why)
{
    return {Outcome::Failed, why, {}};
}

} // namespace answers

struct DialogDriver::Private {
    AnswerScript script;
    EventSink sink;
    bool failOnDialog = false;

    int next = 0;
    QString failure;
    bool closing = false;
    QObject* context = nullptr;            // owns the tick timers of one run
    answers::WindowWatch* watch = nullptr; // a child of context
    answers::Patience stepWait;            // since the next step became next
    answers::Patience idleWait;            // since the last step, or since a dialog came
    answers::Patience absentWait;          // since no dialog was open
    bool absent = false;
    QPointer<QWidget> seen; // the dialog of the last tick

    QWidget* target() const { return watch ? watch->topmost() : nullptr; }

    // A context menu asked for and not yet answered.
    bool menuPending = false;
    QString menuAction;
    QString menuStep;
    answers::Patience menuWait;

    // answerdriver.cpp
    void emitLine(const QJsonObject& object);
    void emitLine(const QByteArray& line);
    void reportBox(QMessageBox* box, const QJsonValue& button);
    void fail(const QString& why);
    void closeAll();
    void tick();

    // widgetlookup.cpp
    QWidget* find(QWidget* dialog, const QString& name, QString* why) const;
    answers::Outcome usable(QWidget* w, const QString& name) const;

    // answersteps.cpp
    answers::Outcome perform(const QJsonObject& step, QWidget* dialog);
    answers::Outcome stepSet(QWidget* dialog, QWidget* w, const QString& name, const QString& text);
    answers::Outcome stepClick(QWidget* w, const QString& name);
    answers::Outcome stepCheck(QWidget* w, const QString& name, bool on);
    answers::Outcome stepChoose(QWidget* w, const QString& name, const QJsonObject& step);
    answers::Outcome chooseTab(QTabBar* bar, const QString& name, const QStringList& texts, int index);
    answers::Outcome selectRows(QAbstractItemView* v, const QString& name, const QStringList& texts);
    answers::Outcome stepRadio(QWidget* w, const QString& name, int id);
    answers::Outcome stepCell(QWidget* dialog, QWidget* w, const QString& name, int row, int column,
                              const QString& text);
    answers::Outcome stepKey(QWidget* dialog, QWidget* w, const QString& keys);
    answers::Outcome stepMenu(QWidget* w, const QString& action);
    void answerMenu();
    answers::Outcome stepMessage(QWidget* dialog, const QString& button);
    answers::Outcome stepEnd(QWidget* dialog, bool accept);

    // dragstep.cpp
    answers::Outcome stepDrag(QWidget* dialog, QWidget* w, const QString& name, const QString& item,
                              const QString& onto);
};

} // namespace vtkit
