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
#include <cstddef>
#include <string>
#include <string_view>

namespace escapesplit {

class Splitter {
public:
    // The delimiter bytes, in order; repeats count (they repeat the
    // replacement pass), and so does a backslash among them.
    explicit Splitter(std::string_view delimiters);

    // Calls part(const std::string& utf8) for each part, in order; with
    // keepEmpty false, empty parts are left out.
    template <class Part>
    void split(std::string_view text, bool keepEmpty, Part&& part) const
    {
        std::string buffer;
        std::size_t start = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (!m_isDelimiter[static_cast<unsigned char>(text[i])]
                || (i > 0 && text[i - 1] == '\\'))
                continue;
            if (keepEmpty || i > start) {
                unescape(text.substr(start, i - start), &buffer);
                part(static_cast<const std::string&>(buffer));
            }
            start = i + 1;
        }
        if (keepEmpty || text.size() > start) {
            unescape(text.substr(start), &buffer);
            part(static_cast<const std::string&>(buffer));
        }
    }

    // How many parts split() gives, found without making them.
    std::size_t count(std::string_view text, bool keepEmpty) const
    {
        std::size_t parts = 0;
        std::size_t start = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (!m_isDelimiter[static_cast<unsigned char>(text[i])]
                || (i > 0 && text[i - 1] == '\\'))
                continue;
            parts += keepEmpty || i > start;
            start = i + 1;
        }
        return parts + (keepEmpty || text.size() > start);
    }

    // One part as the result holds it, into *out.
    void unescape(std::string_view part, std::string* out) const;

private:
    std::string m_delimiters;
    std::array<bool, 256> m_isDelimiter{};
    // Distinct delimiters, none of them a backslash: the replacement passes
    // then never see each other's output, and one pass does them all.
    bool m_onePass = true;
};

} // namespace escapesplit
