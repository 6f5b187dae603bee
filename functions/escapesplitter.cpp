#include "escapesplitter.h"

namespace escapesplit {

namespace {

// Latin-1 to UTF-8: a byte above 127 becomes two.
void appendUtf8(std::string_view latin1, std::string* out)
{
    for (const char c : latin1) {
        const auto b = static_cast<unsigned char>(c);
        if (b < 0x80) {
            out->push_back(c);
        } else {
            out->push_back(static_cast<char>(0xC0 | (b >> 6)));
            out->push_back(static_cast<char>(0x80 | (b & 0x3F)));
        }
    }
}

} // namespace

Splitter::Splitter(std::string_view delimiters) : m_delimiters(delimiters)
{
    for (const char c : delimiters) {
        bool& seen = m_isDelimiter[static_cast<unsigned char>(c)];
        if (seen || c == '\\')
            m_onePass = false;
        seen = true;
    }
}

void Splitter::unescape(std::string_view part, std::string* out) const
{
    out->clear();
    if (m_onePass) {
        // A backslash goes when a delimiter follows it. Its delimiter is in
        // this part: an escaped delimiter is no split point.
        std::size_t kept = 0;
        for (std::size_t i = 0; i + 1 < part.size(); ++i) {
            if (part[i] == '\\' && m_isDelimiter[static_cast<unsigned char>(part[i + 1])]) {
                appendUtf8(part.substr(kept, i - kept), out);
                kept = i + 1;
                ++i;
            }
        }
        appendUtf8(part.substr(kept), out);
        return;
    }
    // One left-to-right pass per delimiter, each over the last one's output,
    // as the definition has it.
    std::string text(part);
    std::string next;
    for (const char d : m_delimiters) {
        next.clear();
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] == '\\' && i + 1 < text.size() && text[i + 1] == d) {
                next.push_back(d);
                ++i;
            } else {
                next.push_back(text[i]);
            }
        }
        text.swap(next);
    }
    appendUtf8(text, out);
}

} // namespace escapesplit
