// The dialog side of the stand-in host: the walker that loads and collects
// bound widgets, the modal run of a factory's dialog, and answer scripts
// that drive the dialogs a call opens as a user would.
#pragma once

#include "engine.h"

#include <QByteArray>
#include <QJsonArray>
#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QDialog;

namespace vtkit {

// Loads every bound widget under dialog from the call's arguments.
VT_ENGINE_API void loadBoundWidgets(QDialog* dialog, UserFunctionInterface* call);
// The string result of an accepted dialog: as long as the largest
// outElementIndex; where two widgets name one element, the visible one wins.
VT_ENGINE_API std::vector<std::string> collectBoundWidgets(QDialog* dialog);
// The engine's DialogRunner: load, exec, collect on accept, delete.
VT_ENGINE_API bool runBoundDialog(QDialog* dialog, UserFunctionInterface* call,
                                  ScriptValue& result, std::string& error);

// Steps run in order against the dialogs a call opens. "accept" and
// "cancel" are one-step scripts; otherwise a JSON array of step objects.
class VT_ENGINE_API AnswerScript {
public:
    AnswerScript();
    static AnswerScript accept();
    static AnswerScript cancel();
    // Parses "accept", "cancel", or the JSON file at that path.
    static bool fromArgument(const QString& argument, AnswerScript* out, QString* error);
    static bool fromJson(const QByteArray& json, AnswerScript* out, QString* error);

    const QJsonArray& steps() const { return m_steps; }
    bool isEmpty() const { return m_steps.isEmpty(); }

private:
    QJsonArray m_steps;
};

// Answers the dialogs opened during one engine call. Create it before the
// call, on the GUI thread. Each step goes to the topmost dialog the call
// opened, modal or not. It never lets a call hang: a step it can't carry
// out, no dialog to answer for 5 s, or a dialog still open 5 s after the
// last step closes the dialogs and marks the run failed. Steps left over
// when the call returns are a failure only if the call opened a dialog.
class VT_ENGINE_API DialogDriver {
public:
    // Every message box and help request is reported as one JSON line.
    using EventSink = std::function<void(const QByteArray& jsonLine)>;

    explicit DialogDriver(AnswerScript script, EventSink sink = {});
    ~DialogDriver();
    DialogDriver(const DialogDriver&) = delete;
    DialogDriver& operator=(const DialogDriver&) = delete;

    // Without a script: fail at once when a dialog opens (no display).
    void setFailOnDialog(bool on);
    // How long a step may wait, and a dialog stay open after the last step,
    // before the run fails; 5000 ms unless set. The argument fuzzer shortens
    // it so that a dialog that refuses its answer costs little.
    void setWaitMs(int ms);

    // Runs engine.call under the driver; the result's status is Failed with
    // a clear error when the script could not be carried out to the end.
    CallResult call(Engine& engine, const std::string& name, const std::vector<ScriptValue>& args);
    // Runs body, which may open dialogs, under the driver; call() uses it.
    void run(const std::function<void()>& body);

    bool failed() const;
    QString failure() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace vtkit
