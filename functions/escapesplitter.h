// Splitting a text at delimiters where a delimiter behind a backslash
// belongs to the text. This is the definition, written out by hand for
// speed:
//
//   read the text as Latin-1; split it where the regular expression
//   "(?<!\\)d1|(?<!\\)d2|..." matches, each delimiter di taken literally;
//   in each part, for each delimiter in order, replace every "\di" by "di";
//   give the part as UTF-8.
//
// fuzz/escapesplit_fuzz.cpp checks, on millions of inputs, that the two
// give the same bytes. A split point is a delimiter whose preceding byte in
// the whole text is not a backslash, so a part never ends in the middle of
// an escape.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace escapesplit {

// The parts of one text, each a NUL-terminated UTF-8 string. Most point
// into a copy of the text cut at its split points, so a part costs no copy
// of its own: only parts with bytes above 127 grow and are stored apart.
class Parts {
public:
    const std::vector<const char*>& list() const { return m_list; }

private:
    friend class Splitter;
    std::string m_work;
    std::deque<std::string> m_wide;
    std::vector<const char*> m_list;
};

class Splitter {
public:
    // The delimiter bytes, in order; repeats count (they repeat the
    // replacement pass), and so does a backslash among them.
    explicit Splitter(std::string_view delimiters);

    // With keepEmpty false, empty parts are left out.
    void split(std::string_view text, bool keepEmpty, Parts* out) const;

private:
    // Removes the escapes of a part in place; returns its new length.
    std::size_t unescape(char* part, std::size_t size) const;

    std::string m_delimiters;
    enum : std::uint8_t { Plain = 0, Delimiter = 1, Special = 2 };
    // Delimiter, and Special for a backslash or a byte above 127: a part
    // without Special bytes is already as the result holds it.
    std::array<std::uint8_t, 256> m_class{};
    // Distinct delimiters, none of them a backslash: the replacement passes
    // then never see each other's output, and one pass does them all.
    bool m_onePass = true;
};

} // namespace escapesplit
