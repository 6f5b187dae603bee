// ParseEscape and ScanEscape: split a text at delimiters, where a delimiter
// behind a backslash belongs to the text and loses its backslash.
#include "callargs.h"
#include "registration.h"

#include "escapesplitter.h"

#include <algorithm>
#include <climits>
#include <string>
#include <string_view>

namespace {

enum class SplitMode { Parse, Scan };

// ScanEscape pads its result to at least this many parts. A script asks
// for a handful so that it can index fields without testing; a count of
// 1e18 is a mistake, not a request for gigabytes of empty strings, and is
// read as this limit.
constexpr int kMaxPadParts = 100000;

// NaN and non-positive counts pad nothing.
int padCount(double value)
{
    if (!(value > 0))
        return 0;
    if (value >= double(kMaxPadParts))
        return kMaxPadParts;
    return static_cast<int>(value);
}

void splitEscaped(UserFunctionInterface* ufi, SplitMode mode)
{
    const char* textBytes = callargs::text(ufi, 0);
    if (!textBytes || !*textBytes)
        return;

    std::string_view delimiters = mode == SplitMode::Parse ? " \t," : ";";
    if (const ArgRecord* delimArg = callargs::present(ufi, 1)) {
        const char* given = static_cast<char* const*>(delimArg->data)[0];
        if (!given || !*given) {
            // Nothing to split at: the text goes back byte for byte.
            char** out = ufi->MakeStringArray(ufi, 1);
            if (out)
                out[0] = ufi->DupString(textBytes);
            return;
        }
        delimiters = given;
    }

    escapesplit::Parts parts;
    escapesplit::Splitter(delimiters).split(textBytes, mode == SplitMode::Scan, &parts);
    std::size_t size = parts.list().size();
    if (mode == SplitMode::Scan) {
        double wanted = 0;
        const int minParts = callargs::real(ufi, 2, &wanted) ? padCount(wanted) : 0;
        size = std::max(size, static_cast<std::size_t>(minParts));
    }
    // More than INT_MAX parts can't come from one 8-bit string argument of
    // the host; bounded all the same.
    size = std::min<std::size_t>(size, INT_MAX);

    char** out = ufi->MakeStringArray(ufi, static_cast<int>(size));
    if (!out)
        return;
    for (std::size_t i = 0; i < size; ++i)
        out[i] = ufi->DupString(i < parts.list().size() ? parts.list()[i] : "");
}

long long parseEscape(UserFunctionInterface* ufi)
{
    splitEscaped(ufi, SplitMode::Parse);
    return 0;
}

long long scanEscape(UserFunctionInterface* ufi)
{
    splitEscaped(ufi, SplitMode::Scan);
    return 0;
}

const FunctionRegistration registerParseEscape("ParseEscape", argLimits(1, 2), &parseEscape,
                                               {ArgStrings, ArgStrings});
const FunctionRegistration registerScanEscape("ScanEscape", argLimits(1, 3), &scanEscape,
                                              {ArgStrings, ArgStrings, ArgReals});

} // namespace
