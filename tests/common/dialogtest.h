// Shared by the dialog tests: script values from Qt strings, and one call
// through the engine answered by a step script, with every event line the
// driver reports (message boxes, help requests, inspected widgets) kept for
// the test to look at.
#pragma once

#include "dialogs.h"
#include "engine.h"

#include <QApplication>
#include <QDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace dialogtest {

using vtkit::CallResult;
using vtkit::ScriptValue;
using Args = std::vector<ScriptValue>;

inline ScriptValue strings(const QStringList& texts)
{
    std::vector<std::string> out;
    out.reserve(static_cast<size_t>(texts.size()));
    for (const QString& text : texts)
        out.push_back(text.toStdString());
    return ScriptValue::fromStrings(out);
}

inline Args stringArgs(const QList<QStringList>& args)
{
    Args out;
    for (const QStringList& arg : args)
        out.push_back(strings(arg));
    return out;
}

inline QStringList textsOf(const CallResult& result)
{
    QStringList out;
    for (const std::string& s : result.value.strings)
        out << QString::fromStdString(s);
    return out;
}

// A field of an inspect line as a table row writes it: a list joined by
// "|", a flag as "true" or "false", a number in decimal, null as "null".
inline QString fieldText(const QJsonValue& v)
{
    if (v.isArray()) {
        QStringList parts;
        for (const QJsonValue& part : v.toArray())
            parts << part.toString();
        return parts.join(QLatin1Char('|'));
    }
    if (v.isBool())
        return v.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    if (v.isDouble())
        return QString::number(v.toDouble());
    return v.isString() ? v.toString() : QStringLiteral("null");
}

// What one answered call gave.
struct Answered {
    bool ok = false;           // the driver carried out every step and the call ran
    QString failure;           // why not, for the test's message
    CallResult result;
    QList<QJsonObject> events; // each line the driver reported, in order

    // The event lines whose first key is kind ("messageBox", "help", "inspect").
    QList<QJsonObject> eventsOf(const QString& kind) const
    {
        QList<QJsonObject> out;
        for (const QJsonObject& e : events)
            if (e.contains(kind))
                out << e;
        return out;
    }
    // The last inspect line for that object name ("" for the dialog), or {}.
    QJsonObject inspected(const QString& object) const
    {
        QJsonObject found;
        for (const QJsonObject& e : events)
            if (e.value(QLatin1String("inspect")).toString(QStringLiteral("\x01")) == object)
                found = e;
        return found;
    }
    // "object.field" of the last inspect line of object ("" the dialog),
    // as fieldText writes it.
    QString inspectedText(const QString& key) const
    {
        return fieldText(inspected(key.section(QLatin1Char('.'), 0, -2)).value(key.section(QLatin1Char('.'), -1)));
    }
    // Each message box as "title|text", in order.
    QStringList messages() const
    {
        QStringList out;
        for (const QJsonObject& e : eventsOf(QStringLiteral("messageBox"))) {
            const QJsonObject box = e.value(QLatin1String("messageBox")).toObject();
            out << box.value(QLatin1String("title")).toString() + QLatin1Char('|')
                       + box.value(QLatin1String("text")).toString();
        }
        return out;
    }
    // The topic of each help request, in order.
    QStringList helpTopics() const
    {
        QStringList out;
        for (const QJsonObject& e : eventsOf(QStringLiteral("help")))
            out << e.value(QLatin1String("help")).toVariant().toString();
        return out;
    }
};

// The dialog the driver is answering: the last visible top-level dialog.
inline QDialog* shownDialog()
{
    QDialog* found = nullptr;
    const QWidgetList tops = QApplication::topLevelWidgets();
    for (QWidget* w : tops)
        if (auto* d = qobject_cast<QDialog*>(w); d && d->isVisible())
            found = d;
    return found;
}

// Runs function through engine, answering its dialogs with the JSON steps.
// look, if given, sees the dialog once, as the driver reports the first
// inspect step (so the steps must have one); a look that never came fails
// the call.
inline Answered answer(vtkit::Engine& engine, const char* function, const Args& args,
                       const QByteArray& steps, const std::function<void(QDialog*)>& look = {})
{
    Answered out;
    vtkit::AnswerScript script;
    QString error;
    if (!vtkit::AnswerScript::fromJson(steps, &script, &error)) {
        out.failure = QStringLiteral("bad answer script: ") + error;
        return out;
    }
    bool looked = false;
    vtkit::DialogDriver driver(script, [&](const QByteArray& line) {
        out.events << QJsonDocument::fromJson(line).object();
        if (look && !looked && out.events.last().contains(QLatin1String("inspect"))) {
            looked = true;
            if (QDialog* dialog = shownDialog())
                look(dialog);
        }
    });
    out.result = driver.call(engine, function, args);
    out.ok = !driver.failed() && out.result.status == CallResult::Status::Ok && (looked || !look);
    if (!out.ok)
        out.failure = (look && !looked ? QStringLiteral("the dialog was never looked at; ") : QString())
                      + driver.failure() + QStringLiteral(" / call: ") + QString::fromStdString(out.result.error);
    return out;
}

// Loads the built module into engine, with the dialog runner of the host.
// With settings, a run by hand (CTest gives each test a directory of its
// own) keeps away from its user's settings.
inline bool loadModule(vtkit::Engine& engine, const QTemporaryDir* settings = nullptr)
{
    if (settings && qEnvironmentVariableIsEmpty("VANTRELL_CONFIG_DIR")) {
        if (!settings->isValid())
            return false;
        qputenv("VANTRELL_CONFIG_DIR", settings->path().toLocal8Bit());
    }
    std::string error;
    if (!engine.load(VT_MODULE_PATH, &error)) {
        qWarning("cannot load the module: %s", error.c_str());
        return false;
    }
    engine.setDialogRunner(&vtkit::runBoundDialog);
    return true;
}

// Looks at the dialog a call opens before the driver answers it. The
// answer script starts with {"wait": "probed"}: the probe sets that title
// once it is done, so its look and the driver's steps never race, and a
// probe that never looked fails the wait.
class ShownDialogProbe {
public:
    explicit ShownDialogProbe(std::function<void(QDialog*)> look)
        : m_look(std::move(look))
    {
        m_timer.setInterval(5);
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            m_timer.stop();
            m_look(dialog);
            dialog->setWindowTitle(QStringLiteral("probed"));
        });
        m_timer.start();
    }

private:
    std::function<void(QDialog*)> m_look;
    QTimer m_timer;
};

// What an answered call shows of each fact, written as the fact is, for a
// QCOMPARE with facts: "none" (no result), "count=13" (the result's
// length), "3=Gain" (result element 3), "help=12" (the last help topic
// asked for) and "object.field=value" (that field of the object's last
// inspect line, "" the dialog).
inline QStringList factsSeen(const Answered& a, const QStringList& facts)
{
    const QStringList result = textsOf(a.result);
    QStringList out;
    for (const QString& fact : facts) {
        const QString key = fact.section(QLatin1Char('='), 0, 0);
        if (fact == QLatin1String("none")) {
            out << (a.result.hasResult ? QStringLiteral("result ") + result.join(QLatin1Char(';')) : fact);
            continue;
        }
        QString got;
        if (key == QLatin1String("help"))
            got = a.helpTopics().value(a.helpTopics().size() - 1, QStringLiteral("(no help request)"));
        else if (key == QLatin1String("count"))
            got = QString::number(result.size());
        else if (!key.contains(QLatin1Char('.')))
            got = result.value(key.toInt(), QStringLiteral("(absent)"));
        else if (a.inspected(key.section(QLatin1Char('.'), 0, -2)).isEmpty())
            got = QStringLiteral("(not inspected)");
        else
            got = a.inspectedText(key);
        out << key + QLatin1Char('=') + got;
    }
    return out;
}

// steps with the wait for a ShownDialogProbe put in front.
inline QByteArray probed(const QByteArray& steps)
{
    QByteArray rest = steps.trimmed().mid(1); // after "["
    return "[{\"wait\": \"probed\"}" + QByteArray(rest.trimmed().startsWith(']') ? "" : ", ") + rest;
}

// steps with an inspect step for each object put in front (what the
// dialog shows as it opens) or, with last, just before the last step
// (what the steps made of it before the step that ends the dialog).
enum class InspectAt { Start, BeforeLast };
inline QByteArray withInspections(const QByteArray& steps, const QStringList& objects,
                                  InspectAt at = InspectAt::Start)
{
    QJsonArray array = QJsonDocument::fromJson(steps).array();
    const int where = at == InspectAt::Start ? 0 : std::max(0, int(array.size()) - 1);
    for (int i = objects.size() - 1; i >= 0; --i)
        array.insert(where, QJsonObject{{QStringLiteral("inspect"), objects[i]}});
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

// The objects that "object.field=value" facts name, each once, in order.
inline QStringList objectsOf(const QStringList& facts)
{
    QStringList out;
    for (const QString& fact : facts) {
        const QString object = fact.section(QLatin1Char('='), 0, 0).section(QLatin1Char('.'), 0, -2);
        if (!out.contains(object))
            out << object;
    }
    return out;
}

// For each test's cleanup(): no dialog may outlive its test.
inline bool noTopLevelsLeft()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QWidgetList left = QApplication::topLevelWidgets();
    for (const QWidget* widget : left)
        qWarning() << "left open:" << widget;
    return left.isEmpty();
}

} // namespace dialogtest
