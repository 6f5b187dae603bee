// Engineering numbers and the binary search of the waveform functions.
#include "hostsupport.h"

#include <QByteArray>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <locale.h>
#include <string>

namespace {

// strtod in the "C" locale whatever the application set (QCoreApplication
// calls setlocale(LC_ALL, "")).
double strtodC(const char* text, char** end)
{
    static locale_t c = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    if (c)
        return strtod_l(text, end, c);
    return std::strtod(text, end);
}

bool startsWithNoCase(const char* p, const char* word)
{
    for (; *word; ++p, ++word)
        if (std::toupper(static_cast<unsigned char>(*p)) != *word)
            return false;
    return true;
}

bool isAsciiLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

} // namespace

// A number as strtod reads it (in the C locale, leading white space skipped),
// then an optional suffix in any case: T G MEG K MIL M U (or the micro sign,
// Latin-1 0xB5 or UTF-8 C2 B5) N P F. Any letters after the number or the
// suffix are ignored: "10kOhm" is 1e4 and *end then points past "Ohm", i.e.
// past the whole alphabetic tail. No number: 0 and *end = text. Null text: 0
// and *end = null.
double sp_ConvertEngToReal(const char* text, char** end)
{
    if (!text) {
        if (end)
            *end = nullptr;
        return 0.0;
    }
    char* stop = nullptr;
    double value = strtodC(text, &stop);
    if (stop == text) {
        if (end)
            *end = const_cast<char*>(text);
        return 0.0;
    }
    const char* p = stop;
    double scale = 1.0;
    int exponent = 0; // the suffix as a power of ten, when it is one
    if (startsWithNoCase(p, "MEG")) {
        exponent = 6;
        p += 3;
    } else if (startsWithNoCase(p, "MIL")) {
        scale = 25.4e-6;
        p += 3;
    } else if (static_cast<unsigned char>(p[0]) == 0xC2 && static_cast<unsigned char>(p[1]) == 0xB5) {
        exponent = -6;
        p += 2;
    } else if (static_cast<unsigned char>(p[0]) == 0xB5) {
        exponent = -6;
        p += 1;
    } else {
        switch (std::toupper(static_cast<unsigned char>(*p))) {
        case 'T': exponent = 12; ++p; break;
        case 'G': exponent = 9; ++p; break;
        case 'K': exponent = 3; ++p; break;
        case 'M': exponent = -3; ++p; break;
        case 'U': exponent = -6; ++p; break;
        case 'N': exponent = -9; ++p; break;
        case 'P': exponent = -12; ++p; break;
        case 'F': exponent = -15; ++p; break;
        default: break;
        }
    }
    while (isAsciiLetter(*p))
        ++p;
    if (end)
        *end = const_cast<char*>(p);
    if (exponent != 0) {
        // "10u" is the double nearest to 1e-5, as "10e-6" reads; 10 times
        // 1e-6 would be one unit off. Only plain decimals take the exponent.
        const std::string digits(text, static_cast<std::size_t>(stop - text));
        if (digits.find_first_not_of("+-.0123456789 \t\n\r\f\v") == std::string::npos)
            return strtodC((digits + 'e' + std::to_string(exponent)).c_str(), nullptr);
        return value * std::pow(10.0, exponent);
    }
    return value * scale;
}

// The text is converted to Latin-1 (U+00B5 becomes byte 0xB5) and parsed as
// above. The bytes are a temporary, so a non-null end receives null.
double sp_ConvertEngToReal(const QString& text, char** end)
{
    const QByteArray bytes = text.toLatin1();
    const double value = sp_ConvertEngToReal(bytes.constData(), nullptr);
    if (end)
        *end = nullptr;
    return value;
}

namespace {

std::string formatG(double value, int digits)
{
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*g", digits, value);
    return buffer;
}

double roundSignificant(double m, int digits)
{
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*e", digits - 1, m);
    return strtodC(buffer, nullptr);
}

} // namespace

// Mantissa in [1, 1000) to at most digits significant digits, trailing zeros
// and point removed, then one of f p n u m (none) k Meg G T. 0 is "0". Values
// whose magnitude is outside 1e-15 .. <1e15 (after rounding), NaN and
// infinities are printed with %g at digits precision. digits < 1 counts as 1
// and digits > 17 as 17.
YString sp_ConvertRealToJSEng(double value, int digits, bool)
{
    digits = std::clamp(digits, 1, 17);
    if (std::isnan(value) || std::isinf(value))
        return YString(formatG(value, digits).c_str());
    if (value == 0.0)
        return YString("0");
    const double a = std::fabs(value);
    if (a < 1e-15 || a >= 1e15)
        return YString(formatG(value, digits).c_str());

    static const char* const suffixes[] = {"f", "p", "n", "u", "m", "", "k", "Meg", "G", "T"};
    static const double scales[] = {1e-15, 1e-12, 1e-9, 1e-6, 1e-3, 1.0, 1e3, 1e6, 1e9, 1e12};
    int k = 0;
    while (k < 9 && a >= scales[k + 1])
        ++k;
    double m = roundSignificant(a / scales[k], digits);
    if (m >= 1000.0) {
        ++k;
        if (k > 9)
            return YString(formatG(value, digits).c_str());
        m = roundSignificant(a / scales[k], digits);
        if (m < 1.0)
            m = 1.0;
    }
    const int intDigits = m < 10.0 ? 1 : m < 100.0 ? 2 : 3;
    const int decimals = std::max(0, digits - intDigits);
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*f", decimals, m);
    std::string text = buffer;
    if (text.find('.') != std::string::npos) {
        while (!text.empty() && text.back() == '0')
            text.pop_back();
        if (!text.empty() && text.back() == '.')
            text.pop_back();
    }
    if (value < 0)
        text.insert(text.begin(), '-');
    text += suffixes[k];
    return YString(text.c_str());
}

// lower/upper = the interval [i, i+1] of the ascending values that holds
// value, the last sample in the last interval (lower = count-2). Below the
// first sample lower is -1, above the last (and for NaN) it is count; with
// one sample, that sample gives 0; an empty array gives -1. upper is always
// lower + 1. O(log n); mode is ignored.
void sp_BinarySearch(const double* values, long long count, double value, long long* lower,
                     long long* upper, int)
{
    long long result;
    if (!values || count <= 0)
        result = -1;
    else if (value < values[0])
        result = -1;
    else if (std::isnan(value) || value > values[count - 1])
        result = count;
    else if (count == 1)
        result = 0;
    else {
        const double* it = std::upper_bound(values, values + count, value);
        result = static_cast<long long>(it - values) - 1;
        if (result > count - 2)
            result = count - 2;
        if (result < 0)
            result = 0;
    }
    if (lower)
        *lower = result;
    if (upper)
        *upper = result + 1;
}
