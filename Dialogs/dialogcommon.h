// Reading string arguments and writing string results for the direct
// handlers. Texts cross the call record as 8-bit (Latin-1).
#pragma once

#include "hostsupport.h"
#include "udf.h"

#include <QString>
#include <QStringList>

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

// Makes the call's string result from texts; each element a host copy.
inline void setStringResult(UserFunctionInterface* call, const QStringList& texts)
{
    char** out = sp_MakeStringResult(call, texts.size());
    if (!out || !call->DupString)
        return;
    for (int i = 0; i < texts.size(); ++i)
        out[i] = call->DupString(Tocs(texts.at(i)));
}

} // namespace dialogcommon
