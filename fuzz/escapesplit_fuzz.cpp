// The hand-written escape splitter against its definition by regular
// expression: for any text and delimiters, both must give the same parts,
// byte for byte.
//
// Input: byte 0 chooses empty parts kept (bit 0) and the default
// delimiters (bit 1); the rest is the delimiters, a NUL, then the text.
#include "escapesplit_reference.h"
#include "escapesplitter.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

void show(const char* what, const std::vector<std::string>& parts)
{
    std::fprintf(stderr, "%s (%zu):", what, parts.size());
    for (const std::string& p : parts)
        std::fprintf(stderr, " [%s]", p.c_str());
    std::fprintf(stderr, "\n");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    const bool keepEmpty = data[0] & 1;
    const std::string rest(reinterpret_cast<const char*>(data + 1), size - 1);
    const std::size_t nul = rest.find('\0');
    std::string delimiters = rest.substr(0, nul);
    std::string text = nul == std::string::npos ? std::string() : rest.substr(nul + 1);
    text = text.substr(0, text.find('\0')); // a C string
    // The functions never split at an empty delimiter string.
    if ((data[0] & 2) || delimiters.empty())
        delimiters = keepEmpty ? ";" : " \t,";

    escapesplit::Parts parts;
    escapesplit::Splitter(delimiters).split(text, keepEmpty, &parts);
    const std::vector<std::string> got(parts.list().begin(), parts.list().end());
    const std::vector<std::string> want = escapesplit::reference(text, delimiters, keepEmpty);
    if (got != want) {
        std::fprintf(stderr, "escapesplit: the splitter and its definition differ\n"
                             "text [%s] delimiters [%s] keepEmpty %d\n",
                     text.c_str(), delimiters.c_str(), int(keepEmpty));
        show("splitter  ", got);
        show("definition", want);
        std::abort();
    }
    return 0;
}
