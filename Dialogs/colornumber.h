// The colour number that probes, styles and bus probes store: one 32-bit
// integer with red in bits 0 to 7, green in 8 to 15 and blue in 16 to 23.
// "-1" as text stands for the default colour; the number itself is what
// scripts keep in their files, so both directions live here only.
#pragma once

#include <QColor>

#include <cstdint>

namespace colornumber {

// An invalid colour for anything above 0xFFFFFF, which includes -1 read as
// an unsigned 32-bit number.
inline QColor toColor(std::int64_t value)
{
    const auto bits = static_cast<std::uint32_t>(value);
    if (value < 0 || bits > 0xFFFFFFu)
        return QColor();
    return QColor(int(bits & 255u), int((bits >> 8) & 255u), int((bits >> 16) & 255u), 255);
}

inline int fromColor(const QColor& color)
{
    return color.red() + (color.blue() * 256 + color.green()) * 256;
}

} // namespace colornumber
