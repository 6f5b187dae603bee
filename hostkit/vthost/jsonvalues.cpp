#include "jsonvalues.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextCodec>

#include <charconv>
#include <cmath>

namespace vtkit {

namespace {

bool realsFrom(const QJsonValue& json, const char* what, std::vector<double>* out, QString* error)
{
    if (!json.isArray()) {
        *error = QStringLiteral("\"%1\" must be an array of numbers").arg(QLatin1String(what));
        return false;
    }
    for (const QJsonValue& v : json.toArray()) {
        if (!v.isDouble()) {
            *error = QStringLiteral("\"%1\" must hold only numbers").arg(QLatin1String(what));
            return false;
        }
        out->push_back(v.toDouble());
    }
    return true;
}

bool validUtf8(const std::string& bytes)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForMib(106)->toUnicode(bytes.data(), int(bytes.size()), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

} // namespace

bool valueFromJson(const QJsonValue& json, ScriptValue* out, QString* error)
{
    *out = ScriptValue();
    if (json.isArray()) {
        const QJsonArray array = json.toArray();
        if (array.isEmpty()) {
            out->untyped = true;
            return true;
        }
        if (array.first().isString()) {
            for (const QJsonValue& v : array) {
                if (!v.isString()) {
                    *error = QStringLiteral("an array must hold only strings or only numbers");
                    return false;
                }
                out->strings.push_back(v.toString().toUtf8().toStdString());
            }
            out->kind = ScriptValue::Kind::Strings;
            return true;
        }
        out->kind = ScriptValue::Kind::Reals;
        if (!realsFrom(json, "array", &out->values, error)) {
            *error = QStringLiteral("an array must hold only strings or only numbers");
            return false;
        }
        return true;
    }
    if (json.isObject()) {
        const QJsonObject o = json.toObject();
        for (auto it = o.begin(); it != o.end(); ++it) {
            static const QStringList known = {"values", "x", "units", "xUnits"};
            if (!known.contains(it.key())) {
                *error = QStringLiteral("unknown key \"%1\" in a waveform").arg(it.key());
                return false;
            }
        }
        out->kind = ScriptValue::Kind::Reals;
        if (!realsFrom(o.value("values"), "values", &out->values, error))
            return false;
        if (o.contains("x")) {
            if (!realsFrom(o.value("x"), "x", &out->x, error))
                return false;
            if (out->x.size() != out->values.size()) {
                *error = QStringLiteral("\"x\" and \"values\" must have the same length");
                return false;
            }
            out->hasX = true;
        }
        out->units = o.value("units").toString().toUtf8().toStdString();
        out->xUnits = o.value("xUnits").toString().toUtf8().toStdString();
        return true;
    }
    *error = QStringLiteral("an argument must be a JSON array or a waveform object");
    return false;
}

bool valueFromArgument(const QString& arg, ScriptValue* out, QString* error)
{
    QByteArray text = arg.toUtf8();
    if (arg.startsWith('@')) {
        QFile file(arg.mid(1));
        if (!file.open(QIODevice::ReadOnly)) {
            *error = QStringLiteral("cannot read %1: %2").arg(arg.mid(1), file.errorString());
            return false;
        }
        text = file.readAll();
    }
    // Wrapped in an array so that any JSON value parses, not just documents.
    QJsonParseError parseError;
    const QJsonDocument doc = QJsonDocument::fromJson("[" + text + "]", &parseError);
    if (parseError.error != QJsonParseError::NoError || doc.array().size() != 1) {
        *error = QStringLiteral("not valid JSON: %1").arg(arg.left(80));
        return false;
    }
    return valueFromJson(doc.array().first(), out, error);
}

std::string numberToJson(double value)
{
    if (!std::isfinite(value))
        return "null";
    char buffer[64];
    const auto r = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, r.ptr);
}

std::string stringToJson(const std::string& bytes)
{
    const QString text = validUtf8(bytes) ? QString::fromUtf8(bytes.data(), int(bytes.size()))
                                          : QString::fromLatin1(bytes.data(), int(bytes.size()));
    const QByteArray json = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return json.mid(1, json.size() - 2).toStdString();
}

QByteArray resultToJson(const CallResult& result)
{
    if (!result.hasResult)
        return "null";
    const ScriptValue& v = result.value;
    std::string out;
    auto numbers = [&out](const std::vector<double>& values) {
        out += '[';
        for (std::size_t i = 0; i < values.size(); ++i) {
            if (i)
                out += ',';
            out += numberToJson(values[i]);
        }
        out += ']';
    };
    if (v.kind == ScriptValue::Kind::Strings) {
        out += '[';
        for (std::size_t i = 0; i < v.strings.size(); ++i) {
            if (i)
                out += ',';
            out += stringToJson(v.strings[i]);
        }
        out += ']';
    } else {
        out += "{\"values\":";
        numbers(v.values);
        out += ",\"units\":" + stringToJson(v.units);
        if (v.hasX) {
            out += ",\"x\":";
            numbers(v.x);
            out += ",\"xUnits\":" + stringToJson(v.xUnits);
        }
        out += '}';
    }
    return QByteArray::fromStdString(out);
}

} // namespace vtkit
