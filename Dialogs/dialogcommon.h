// Reading string arguments and writing string results for the direct
// handlers. Texts cross the call record as 8-bit (Latin-1).
#pragma once

#include "hostsupport.h"
#include "udf.h"

#include <QString>
#include <QStringList>

#include <climits>
#include <cstdlib>

namespace dialogcommon {

// The elements of string argument index; empty and *present false when the
// argument is absent or not a string array.
inline QStringList stringArg(UserFunctionInterface* call, int index, bool* present = nullptr)
{
    const char* const* data = nullptr;
    unsigned count = 0;
    sp_GetStringIfVector(call, index, &data, &count);
    QStringList texts;
    if (data) {
        texts.reserve(static_cast<int>(count));
        for (unsigned i = 0; i < count; ++i)
            texts << QString::fromLatin1(data[i]); // a null element reads as ""
    }
    if (present)
        *present = data != nullptr;
    return texts;
}

// Element i of texts, or "" beyond its end.
inline QString elementOr(const QStringList& texts, int i)
{
    return i >= 0 && i < texts.size() ? texts.at(i) : QString();
}

// The number at the start of text as atoi reads it (blanks, sign, digits;
// 0 for none), clamped to the range of int instead of overflowing.
inline int leadingInt(const QString& text)
{
    const QByteArray bytes = text.toLatin1();
    const long long v = std::strtoll(bytes.constData(), nullptr, 10);
    if (v > INT_MAX)
        return INT_MAX;
    if (v < INT_MIN)
        return INT_MIN;
    return static_cast<int>(v);
}

// Makes the call's string result from texts; each element a host copy.
inline void setStringResult(UserFunctionInterface* call, const QStringList& texts)
{
    char** out = sp_MakeStringResult(call, texts.size());
    if (!out || !call->DupString)
        return;
    for (int i = 0; i < texts.size(); ++i)
        out[i] = call->DupString(Tocs(texts.at(i)));
}

// Opens the host's help at a topic: its text, or a number in decimal.
inline void runHelp(const QString& topic)
{
    int unused = 0;
    sp_RunHelp(RunHelpContext, Tocs(topic), &unused, nullptr);
}

inline void runHelp(int topic)
{
    runHelp(QString::number(topic));
}

} // namespace dialogcommon
