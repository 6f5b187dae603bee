// Engineering numbers: sp_ConvertEngToReal reads any text without reading
// past it, leaves its end inside it and agrees with its QString form; and
// what sp_ConvertRealToJSEng prints, for a parsed value and for any bit
// pattern of a double, reads back whole as the same number to the digits
// it was printed with.
#include "hostsupport.h"

#include <QString>

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace {

[[noreturn]] void fail(const char* why, const std::string& text, double value, int digits)
{
    std::fprintf(stderr, "engnumber: %s\ntext [%s] value %.17g digits %d\n", why, text.c_str(),
                 value, digits);
    std::abort();
}

void roundTrip(double value, int digits)
{
    const YString printed = sp_ConvertRealToJSEng(value, digits, false);
    const std::string text = printed.c_str() ? printed.c_str() : "";
    char* end = nullptr;
    const double back = sp_ConvertEngToReal(text.c_str(), &end);
    if (end != text.c_str() + text.size())
        fail("the printed number does not read back whole", text, value, digits);
    if (std::isnan(value)) {
        if (!std::isnan(back))
            fail("NaN reads back as a number", text, value, digits);
        return;
    }
    if (std::isinf(back) && !std::isinf(value)) {
        // Rounding to few digits may step past the largest double.
        if (std::fabs(value) * (1 + std::pow(10.0, 1 - digits)) <= DBL_MAX)
            fail("a finite number reads back as infinity", text, value, digits);
        return;
    }
    if (std::isinf(value)) {
        if (back != value)
            fail("infinity does not read back", text, value, digits);
        return;
    }
    // Half a unit in the last printed digit, the scale's own rounding, and
    // the coarse steps of subnormal numbers.
    const double allowed = std::fabs(value) * (0.5 * std::pow(10.0, 1 - digits) + 1e-15) + DBL_MIN;
    if (!(std::fabs(back - value) <= allowed))
        fail("the printed number reads back as another", text, value, digits);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    std::string text(reinterpret_cast<const char*>(data), size);
    text = text.substr(0, text.find('\0'));

    // An exact copy on the heap: a read past its end is a sanitizer report.
    std::unique_ptr<char[]> bytes(new char[text.size() + 1]);
    std::memcpy(bytes.get(), text.c_str(), text.size() + 1);
    char* end = nullptr;
    const double value = sp_ConvertEngToReal(bytes.get(), &end);
    if (end < bytes.get() || end > bytes.get() + text.size())
        fail("end points outside the text", text, value, 0);
    if (end == bytes.get() && value != 0)
        fail("no number read, yet not 0", text, value, 0);
    const double viaQString = sp_ConvertEngToReal(QString::fromLatin1(text.c_str()), nullptr);
    if (!(viaQString == value || (std::isnan(viaQString) && std::isnan(value))))
        fail("the QString form reads another number", text, value, 0);

    const int digits = size > 0 ? 1 + data[0] % 17 : 6;
    roundTrip(value, digits);
    if (size >= 9) {
        double raw = 0;
        std::memcpy(&raw, data + 1, sizeof raw);
        roundTrip(raw, digits);
    }
    return 0;
}
