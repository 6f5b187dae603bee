// BRELVONSearchIdx: the indices at which a string array holds a value.
#include "callargs.h"
#include "hostsupport.h"
#include "registration.h"

#include <cstring>

namespace {

void searchIndex(UserFunctionInterface* ufi)
{
    const bool caseSensitive = callargs::sameNoCase(callargs::text(ufi, 2), "casesensitive");
    const char* value = callargs::text(ufi, 1);

    const ArgRecord* haystack = callargs::present(ufi, 0);
    const long long count = haystack ? haystack->count : 0;
    char* const* items = haystack ? static_cast<char* const*>(haystack->data) : nullptr;

    // Sized for the worst case so the result is made once the hits are known.
    YVector<double> hits(count);
    long long found = 0;
    for (long long i = 0; i < count; ++i) {
        const char* item = items[i];
        if (!item || !value)
            continue;
        const bool equal = caseSensitive ? std::strcmp(item, value) == 0
                                         : callargs::sameNoCase(item, value);
        if (equal)
            hits[found++] = static_cast<double>(i);
    }

    const char* units = callargs::orEmpty(ufi->args[0].units);
    if (found > 0) {
        double* out = ufi->MakeRealVector(ufi, static_cast<int>(found), units);
        if (!out)
            return;
        for (long long i = 0; i < found; ++i)
            out[i] = hits[i];
    } else {
        double* out = ufi->MakeRealVector(ufi, 1, units);
        if (out)
            out[0] = -1;
    }
}

long long searchIndexHandler(UserFunctionInterface* ufi)
{
    searchIndex(ufi);
    return 0;
}

const FunctionRegistration registerSearchIndex("BRELVONSearchIdx", argLimits(2, 3),
                                               &searchIndexHandler,
                                               {ArgStrings, ArgStrings, ArgStrings});

} // namespace
