// Guarded reads of the call record for the computation functions, which
// read args directly. An argument is present only below argCount, with a
// non-zero count and data; anything else reads as absent.
#pragma once

#include "udf.h"

#include <strings.h>

namespace callargs {

inline const ArgRecord* present(const UserFunctionInterface* ufi, int index)
{
    if (!ufi || index < 0 || index >= ufi->argCount || index >= udf::kMaxArgs)
        return nullptr;
    const ArgRecord& arg = ufi->args[index];
    return arg.count > 0 && arg.data ? &arg : nullptr;
}

// Element 0 of a string argument, or null.
inline const char* text(const UserFunctionInterface* ufi, int index)
{
    const ArgRecord* arg = present(ufi, index);
    return arg ? static_cast<char* const*>(arg->data)[0] : nullptr;
}

// Element 0 of a real argument into *value; false when absent.
inline bool real(const UserFunctionInterface* ufi, int index, double* value)
{
    const ArgRecord* arg = present(ufi, index);
    if (!arg)
        return false;
    *value = static_cast<const double*>(arg->data)[0];
    return true;
}

// ASCII comparison without regard to case; null equals nothing.
inline bool sameNoCase(const char* a, const char* b)
{
    return a && b && strcasecmp(a, b) == 0;
}

inline const char* orEmpty(const char* text)
{
    return text ? text : "";
}

} // namespace callargs
