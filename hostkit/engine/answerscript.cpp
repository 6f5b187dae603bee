// Answer scripts: the steps a script may hold, checked before any call runs.
#include "answers_p.h"

#include <QColor>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QKeySequence>

#include <cstring>

namespace vtkit {

using namespace answers;

namespace {

constexpr StepRule kRules[] = {
    {"wait", 'n', {}},
    {"inspect", 's', {}},
    {"set", 'n', {{"text", 's', true}}},
    {"click", 'n', {}},
    {"check", 'n', {{"on", 'b', false}}},
    {"choose", 'n', {{"text", 's', false}, {"index", 'i', false}, {"texts", 'a', false}}},
    {"radio", 'n', {{"id", 'i', true}}},
    {"cell", 'n', {{"row", 'i', true}, {"column", 'i', true}, {"text", 's', true}}},
    {"key", 'n', {{"keys", 'k', true}}},
    {"menu", 'n', {{"action", 's', true}}},
    {"drag", 'n', {{"item", 's', true}, {"onto", 's', true}}},
    {"message", 'n', {}},
    {"file", 's', {}},
    {"color", 'c', {}},
    {"screenshot", 'n', {}},
    {"accept", 't', {}},
    {"cancel", 't', {}},
};

bool valueFits(const QJsonValue& v, char type)
{
    switch (type) {
    case 'n': return v.isString() && !v.toString().isEmpty();
    case 's': return v.isString();
    case 'b': return v.isBool();
    case 'i': return v.isDouble() && v.toDouble() >= 0 && v.toDouble() == v.toInt();
    case 't': return v.isBool() && v.toBool();
    case 'k': return v.isString() && !QKeySequence::fromString(v.toString()).isEmpty();
    case 'c': return v.isNull() || (v.isString() && QColor::isValidColor(v.toString()));
    case 'a': {
        const QJsonArray a = v.toArray();
        if (!v.isArray() || a.isEmpty())
            return false;
        for (const QJsonValue& e : a)
            if (!e.isString())
                return false;
        return true;
    }
    }
    return false;
}

const char* typeWords(char type)
{
    switch (type) {
    case 'n': return "a non-empty string";
    case 's': return "a string";
    case 'b': return "true or false";
    case 'i': return "a whole number >= 0";
    case 't': return "true";
    case 'k': return "a key sequence such as \"Ctrl+A\"";
    case 'c': return "a colour \"#rrggbb\" or null";
    case 'a': return "a non-empty array of strings";
    }
    return "?";
}

QString checkStep(const QJsonValue& value, int number)
{
    const QString at = QStringLiteral("step %1: ").arg(number);
    if (!value.isObject())
        return at + QStringLiteral("not an object");
    const QJsonObject step = value.toObject();
    const StepRule* rule = nullptr;
    for (const StepRule& r : kRules) {
        if (!step.contains(QLatin1String(r.action)))
            continue;
        if (rule)
            return at + QStringLiteral("two actions, \"%1\" and \"%2\"").arg(rule->action, r.action);
        rule = &r;
    }
    if (!rule) {
        QStringList names;
        for (const StepRule& r : kRules)
            names << QLatin1String(r.action);
        return at + QStringLiteral("no action (one of %1)").arg(names.join(QStringLiteral(", ")));
    }
    if (!valueFits(step.value(QLatin1String(rule->action)), rule->type))
        return at + QStringLiteral("\"%1\" must be %2").arg(rule->action, typeWords(rule->type));
    for (auto it = step.begin(); it != step.end(); ++it) {
        if (it.key() == QLatin1String(rule->action))
            continue;
        const FieldRule* field = nullptr;
        for (const FieldRule& f : rule->fields)
            if (f.key && it.key() == QLatin1String(f.key))
                field = &f;
        if (!field)
            return at + QStringLiteral("unknown key \"%1\" for \"%2\"").arg(it.key(), rule->action);
        if (!valueFits(it.value(), field->type))
            return at + QStringLiteral("\"%1\" must be %2").arg(field->key, typeWords(field->type));
    }
    for (const FieldRule& f : rule->fields)
        if (f.key && f.required && !step.contains(QLatin1String(f.key)))
            return at + QStringLiteral("\"%1\" needs \"%2\"").arg(rule->action, f.key);
    if (std::strcmp(rule->action, "choose") == 0) {
        const int given = int(step.contains(QLatin1String("text")))
                          + int(step.contains(QLatin1String("index")))
                          + int(step.contains(QLatin1String("texts")));
        if (given != 1)
            return at + QStringLiteral("\"choose\" needs one of \"text\", \"index\" or \"texts\"");
    }
    return {};
}

} // namespace

namespace answers {

QString quoted(const QString& s)
{
    return QLatin1Char('"') + s + QLatin1Char('"');
}

const StepRule* ruleOf(const QJsonObject& step)
{
    for (const StepRule& r : kRules)
        if (step.contains(QLatin1String(r.action)))
            return &r;
    return nullptr;
}

QString jsonText(const QJsonValue& v)
{
    const QByteArray a = QJsonDocument(QJsonArray{v}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(a.mid(1, a.size() - 2));
}

// {"click": "Foo"}: the action first, as it was most likely written.
QString stepText(const QJsonObject& step)
{
    const StepRule* rule = ruleOf(step);
    QStringList parts;
    if (rule)
        parts << quoted(QLatin1String(rule->action)) + QStringLiteral(": ")
                     + jsonText(step.value(QLatin1String(rule->action)));
    for (auto it = step.begin(); it != step.end(); ++it)
        if (!rule || it.key() != QLatin1String(rule->action))
            parts << quoted(it.key()) + QStringLiteral(": ") + jsonText(it.value());
    return QLatin1Char('{') + parts.join(QStringLiteral(", ")) + QLatin1Char('}');
}

} // namespace answers

AnswerScript::AnswerScript() = default;

AnswerScript AnswerScript::accept()
{
    AnswerScript s;
    s.m_steps.append(QJsonObject{{QStringLiteral("accept"), true}});
    return s;
}

AnswerScript AnswerScript::cancel()
{
    AnswerScript s;
    s.m_steps.append(QJsonObject{{QStringLiteral("cancel"), true}});
    return s;
}

bool AnswerScript::fromArgument(const QString& argument, AnswerScript* out, QString* error)
{
    if (argument == QLatin1String("accept") || argument == QLatin1String("cancel")) {
        if (out)
            *out = argument == QLatin1String("accept") ? accept() : cancel();
        return true;
    }
    QFile file(argument);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = QStringLiteral("cannot read answer script %1: %2").arg(quoted(argument), file.errorString());
        return false;
    }
    if (!fromJson(file.readAll(), out, error)) {
        if (error)
            *error = argument + QStringLiteral(": ") + *error;
        return false;
    }
    return true;
}

bool AnswerScript::fromJson(const QByteArray& json, AnswerScript* out, QString* error)
{
    QJsonParseError parseError;
    const QJsonDocument doc = QJsonDocument::fromJson(json, &parseError);
    QString why;
    if (parseError.error != QJsonParseError::NoError)
        why = QStringLiteral("%1 at offset %2").arg(parseError.errorString()).arg(parseError.offset);
    else if (!doc.isArray())
        why = QStringLiteral("an answer script is a JSON array of steps");
    const QJsonArray steps = doc.array();
    for (int i = 0; why.isEmpty() && i < steps.size(); ++i)
        why = checkStep(steps[i], i + 1);
    if (!why.isEmpty()) {
        if (error)
            *error = why;
        return false;
    }
    if (out)
        out->m_steps = steps;
    return true;
}

} // namespace vtkit
