#include "escapesplitter.h"

#include <cstring>

namespace escapesplit {

namespace {

bool hasHighBytes(const char* text, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i)
        if (static_cast<unsigned char>(text[i]) >= 0x80)
            return true;
    return false;
}

// Latin-1 to UTF-8: a byte above 127 becomes two.
std::string toUtf8(const char* latin1, std::size_t size)
{
    std::string out;
    out.reserve(size * 2);
    for (std::size_t i = 0; i < size; ++i) {
        const auto b = static_cast<unsigned char>(latin1[i]);
        if (b < 0x80) {
            out.push_back(latin1[i]);
        } else {
            out.push_back(static_cast<char>(0xC0 | (b >> 6)));
            out.push_back(static_cast<char>(0x80 | (b & 0x3F)));
        }
    }
    return out;
}

} // namespace

Splitter::Splitter(std::string_view delimiters) : m_delimiters(delimiters)
{
    for (int b = 0x80; b < 0x100; ++b)
        m_class[b] = Special;
    m_class['\\'] = Special;
    for (const char c : delimiters) {
        std::uint8_t& k = m_class[static_cast<unsigned char>(c)];
        if ((k & Delimiter) || c == '\\')
            m_onePass = false;
        k |= Delimiter;
    }
}

void Splitter::split(std::string_view text, bool keepEmpty, Parts* out) const
{
    out->m_work.assign(text.data(), text.size()); // keeps a NUL after its end
    out->m_wide.clear();
    out->m_list.clear();
    char* work = out->m_work.data();

    auto finish = [&](std::size_t start, std::size_t end, bool special) {
        work[end] = '\0';
        if (!keepEmpty && end == start)
            return;
        char* part = work + start;
        if (special) {
            const std::size_t size = unescape(part, end - start);
            part[size] = '\0';
            if (hasHighBytes(part, size)) {
                out->m_wide.push_back(toUtf8(part, size));
                out->m_list.push_back(out->m_wide.back().c_str());
                return;
            }
        }
        out->m_list.push_back(part);
    };

    std::size_t start = 0;
    bool special = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::uint8_t k = m_class[static_cast<unsigned char>(text[i])];
        if (k == Plain)
            continue;
        if ((k & Delimiter) && (i == 0 || text[i - 1] != '\\')) {
            finish(start, i, special);
            start = i + 1;
            special = false;
        } else if (k & Special) {
            special = true;
        }
    }
    finish(start, text.size(), special);
}

std::size_t Splitter::unescape(char* part, std::size_t size) const
{
    if (m_onePass) {
        // A backslash goes when a delimiter follows it; that delimiter is
        // in this part, since an escaped delimiter is no split point, and
        // it escapes nothing itself.
        std::size_t to = 0;
        for (std::size_t from = 0; from < size; ++from) {
            if (part[from] == '\\' && from + 1 < size
                && (m_class[static_cast<unsigned char>(part[from + 1])] & Delimiter))
                ++from;
            part[to++] = part[from];
        }
        return to;
    }
    // One left-to-right pass per delimiter, each over the last one's
    // output, as the definition has it. Each pass only shortens the part.
    for (const char d : m_delimiters) {
        std::size_t to = 0;
        for (std::size_t from = 0; from < size; ++from) {
            if (part[from] == '\\' && from + 1 < size && part[from + 1] == d)
                ++from;
            part[to++] = part[from];
        }
        size = to;
    }
    return size;
}

} // namespace escapesplit
