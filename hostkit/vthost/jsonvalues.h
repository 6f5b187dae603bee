// Script values as vthost reads and prints them: JSON arrays of strings or
// numbers, and {"values", "x", "units", "xUnits"} objects for waveforms.
#pragma once

#include "engine.h"

#include <QByteArray>
#include <QJsonValue>
#include <QString>

#include <string>

namespace vtkit {

// Reads one argument; on failure returns false and says why.
bool valueFromJson(const QJsonValue& json, ScriptValue* out, QString* error);
// Reads text (or the file after '@') as one argument.
bool valueFromArgument(const QString& arg, ScriptValue* out, QString* error);

// One JSON line: null when there is no result.
QByteArray resultToJson(const CallResult& result);

// Shortest text that reads back to the same double; null when not finite.
std::string numberToJson(double value);
// Strings are 8-bit from the module: UTF-8 where valid, else Latin-1.
std::string stringToJson(const std::string& bytes);

} // namespace vtkit
