// Driving one call: a timer ticks while the call runs its dialogs, and each
// tick hands the next step to the topmost dialog the call opened, waits a
// bounded time for what isn't there yet, and closes everything when a step
// fails, so that no call hangs.
#include "answers_p.h"

#include "kitsupport.h"

#include <QApplication>
#include <QDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMessageBox>
#include <QTimer>

#include <cstdio>

namespace vtkit {

using namespace answers;

namespace {

void defaultSink(const QByteArray& line)
{
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
    std::fputc('\n', stderr);
    std::fflush(stderr);
}

} // namespace

void DialogDriver::Private::emitLine(const QJsonObject& object)
{
    emitLine(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

void DialogDriver::Private::emitLine(const QByteArray& line)
{
    if (sink)
        sink(line);
    else
        defaultSink(line);
}

void DialogDriver::Private::reportBox(QMessageBox* box, const QJsonValue& button)
{
    emitLine(QJsonObject{{QStringLiteral("messageBox"),
                          QJsonObject{{QStringLiteral("title"), box->windowTitle()},
                                      {QStringLiteral("text"), box->text()},
                                      {QStringLiteral("button"), button}}}});
}

void DialogDriver::Private::fail(const QString& why)
{
    if (failure.isEmpty())
        failure = why;
    closing = true;
    closeAll();
}

// Innermost first; a window that refuses to close is hidden, which ends
// its exec all the same.
void DialogDriver::Private::closeAll()
{
    for (int i = 0; i < 100; ++i) {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
            continue;
        }
        QPointer<QWidget> w = target();
        if (!w)
            w = activeModal();
        if (!w)
            break;
        if (auto* box = qobject_cast<QMessageBox*>(w.data()))
            reportBox(box, QJsonValue::Null);
        if (auto* dialog = qobject_cast<QDialog*>(w.data()))
            dialog->reject();
        if (w && w->isVisible())
            w->close();
        if (w && w->isVisible())
            w->hide();
    }
}

void DialogDriver::Private::tick()
{
    if (!context)
        return;
    // Armed first: the step below may block in a nested event loop, where
    // the next tick must still come.
    QTimer::singleShot(kTickMs, context, [this] { tick(); });
    if (closing) {
        closeAll();
        return;
    }
    if (menuPending) {
        answerMenu();
        return;
    }
    const QJsonArray& steps = script.steps();
    QWidget* dialog = target();
    if (!dialog) {
        // The call runs an event loop with nothing shown to answer: a dialog
        // on its way, or one that will never come.
        seen = nullptr;
        if (!absent) {
            absent = true;
            absentWait.restart();
        } else if (absentWait.exhausted()) {
            if (next < steps.size())
                fail(QStringLiteral("step %1 %2: waited %3 s for a dialog; none is open")
                         .arg(next + 1)
                         .arg(stepText(steps[next].toObject()))
                         .arg(double(absentWait.wait()) / 1000));
            else
                fail(QStringLiteral("no dialog open for %1 s after the last step, and the call has not returned")
                         .arg(double(absentWait.wait()) / 1000));
        }
        return;
    }
    absent = false;
    if (dialog != seen) {
        // One tick for what a dialog posts to itself as it shows.
        seen = dialog;
        idleWait.restart();
        return;
    }
    if (steps.isEmpty() && failOnDialog) {
        fail(QStringLiteral("a dialog opened and no answer script was given (use --answer)"));
        return;
    }
    if (next >= steps.size()) {
        if (idleWait.exhausted())
            fail(QStringLiteral("dialog %1 still open %2 s after the last step")
                     .arg(quoted(windowName(dialog)))
                     .arg(double(idleWait.wait()) / 1000));
        return;
    }
    const QJsonObject step = steps[next].toObject();
    // Made only for a failure: a waiting step is tried on every tick.
    const auto label = [&] { return QStringLiteral("step %1 %2: ").arg(next + 1).arg(stepText(step)); };
    Outcome o = perform(step, dialog);
    if (o.kind == Outcome::NotYet) {
        // The step says what it waits for; how long is the wait's own.
        if (stepWait.exhausted())
            fail(label() + QStringLiteral("waited %1 s ").arg(double(stepWait.wait()) / 1000) + o.why);
        return;
    }
    if (o.kind == Outcome::Failed) {
        fail(label() + o.why);
        return;
    }
    ++next;
    stepWait.restart();
    idleWait.restart();
    if (o.action)
        o.action();
}

DialogDriver::DialogDriver(AnswerScript script, EventSink sink) : d(new Private)
{
    d->script = std::move(script);
    d->sink = std::move(sink);
}

DialogDriver::~DialogDriver()
{
    delete d->context;
}

void DialogDriver::setFailOnDialog(bool on)
{
    d->failOnDialog = on;
}

void DialogDriver::setWaitMs(int ms)
{
    const qint64 wait = ms > 0 ? ms : answers::kWaitMs;
    for (answers::Patience* p : {&d->stepWait, &d->idleWait, &d->absentWait, &d->menuWait})
        p->setWait(wait);
}

bool DialogDriver::failed() const
{
    return !d->failure.isEmpty();
}

QString DialogDriver::failure() const
{
    return d->failure;
}

void DialogDriver::run(const std::function<void()>& body)
{
    Private* p = d.get();
    delete p->context;
    p->context = new QObject;
    p->watch = new WindowWatch;
    p->watch->setParent(p->context);
    qApp->installEventFilter(p->watch);
    p->next = 0;
    p->failure.clear();
    p->closing = false;
    p->menuPending = false;
    p->seen = nullptr;
    p->absent = false;
    p->stepWait.restart();
    p->idleWait.restart();
    setHelpHandler([p](const QString& topic) {
        p->emitLine(QJsonObject{{QStringLiteral("help"), topic}});
    });
    QTimer::singleShot(kTickMs, p->context, [p] { p->tick(); });

    struct Restore {
        Private* p;
        ~Restore()
        {
            delete p->context;
            p->context = nullptr;
            p->watch = nullptr;
            setHelpHandler({});
        }
    } restore{p};
    if (body)
        body();

    const QJsonArray& steps = p->script.steps();
    if (p->failure.isEmpty() && p->menuPending)
        p->failure = p->menuStep + QStringLiteral("no context menu opened");
    else if (p->failure.isEmpty() && p->next < steps.size() && p->watch->opened > 0)
        p->failure = QStringLiteral("the call ended before step %1 %2")
                         .arg(p->next + 1)
                         .arg(stepText(steps[p->next].toObject()));
}

CallResult DialogDriver::call(Engine& engine, const std::string& name,
                              const std::vector<ScriptValue>& args)
{
    CallResult result;
    run([&] { result = engine.call(name, args); });
    // A call refused for its arguments opened nothing; its own message
    // tells the script what is wrong.
    const bool refused = result.status == CallResult::Status::UnknownFunction
                         || result.status == CallResult::Status::BadArgCount
                         || result.status == CallResult::Status::BadArgKind;
    if (failed() && !refused) {
        result.status = CallResult::Status::Failed;
        result.error = failure().toStdString();
        result.hasResult = false;
        result.value = ScriptValue();
    }
    return result;
}

} // namespace vtkit
