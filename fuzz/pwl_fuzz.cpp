// libFuzzer target of the PWL text form. Two properties:
// - any text parse() accepts writes back to a text that parses to the same
//   points and writes the same again;
// - any list of texts (the input split at NUL bytes) writes without harm,
//   and where the written text parses, write, parse, write is stable.
#include "pwltext.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    const QString text = QString::fromLatin1(bytes);

    QStringList points;
    if (pwltext::parse(text, &points)) {
        const QString written = pwltext::write(points);
        QStringList again;
        require(pwltext::parse(written, &again));
        require(again == points);
        require(pwltext::write(again) == written);
    }

    const QStringList flat = text.split(QChar(0));
    const QString written = pwltext::write(flat);
    QStringList back;
    if (pwltext::parse(written, &back)) {
        const QString rewritten = pwltext::write(back);
        QStringList third;
        require(pwltext::parse(rewritten, &third) && third == back);
        require(pwltext::write(third) == rewritten);
    }
    return 0;
}
