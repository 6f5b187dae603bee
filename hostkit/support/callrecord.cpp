// Reading arguments of the call record and making the string result.
#include "hostsupport.h"
#include "kitsupport.h"
#include "udf.h"

namespace {

const ArgRecord* presentArg(UserFunctionInterface* call, int argIndex)
{
    if (!call || argIndex < 0 || argIndex >= call->argCount || argIndex >= udf::kMaxArgs)
        return nullptr;
    const ArgRecord& arg = call->args[argIndex];
    return arg.count > 0 ? &arg : nullptr;
}

} // namespace

// Argument argIndex if present (index below argCount, count > 0) and a string
// array (kind != 0); else null and 0. Null out pointers are skipped.
void sp_GetStringIfVector(UserFunctionInterface* call, int argIndex, const char* const** dataOut,
                          unsigned* countOut)
{
    const ArgRecord* arg = presentArg(call, argIndex);
    if (arg && arg->kind == ArgKindReal)
        arg = nullptr;
    if (dataOut)
        *dataOut = arg ? static_cast<const char* const*>(arg->data) : nullptr;
    if (countOut)
        *countOut = arg ? arg->count : 0;
}

// The same for real data (kind 0).
void sp_GetRealIfVector(UserFunctionInterface* call, int argIndex, const double** dataOut,
                        unsigned* countOut)
{
    const ArgRecord* arg = presentArg(call, argIndex);
    if (arg && arg->kind != ArgKindReal)
        arg = nullptr;
    if (dataOut)
        *dataOut = arg ? static_cast<const double*>(arg->data) : nullptr;
    if (countOut)
        *countOut = arg ? arg->count : 0;
}

char** sp_MakeStringResult(UserFunctionInterface* call, int n)
{
    if (!call || !call->MakeStringArray)
        return nullptr;
    return call->MakeStringArray(call, n);
}

const char* vtkit::stringElement(UserFunctionInterface* call, int argIndex, int index)
{
    if (!call || argIndex < 0 || index < 0)
        return nullptr;
    const char* const* data = nullptr;
    unsigned count = 0;
    sp_GetStringIfVector(call, argIndex, &data, &count);
    if (!data || static_cast<unsigned>(index) >= count)
        return nullptr;
    return data[index];
}
