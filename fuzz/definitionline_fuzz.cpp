// libFuzzer target: measurement definition lines of both formats. Every
// line splits without reading past it, a seven-field line writes back to
// six fields that read back to the same definition, and the set of names
// finds what it was given.
#include "measuredefinitions.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString input =
        QString::fromLatin1(reinterpret_cast<const char*>(data), static_cast<int>(size));
    measuredefs::NameSet names;
    // Lines reach the dialogs as C strings: a NUL ends one like a newline.
    const QStringList lines = QString(input).replace(QChar(0), QLatin1Char('\n')).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        measuredefs::Choice choice;
        if (measuredefs::parseChoice(line, &choice) == line.isEmpty())
            std::abort();

        const measuredefs::Definition d = measuredefs::Definition::parse(line);
        const QString written = d.toLine();
        // Fields come from splitting at ";", so none holds one.
        const measuredefs::Definition back = measuredefs::Definition::parse(written);
        if (written.count(QLatin1Char(';')) != 5 || back.toLine() != written
            || !back.sameContent(d) || back.name != d.name || back.factory)
            std::abort();
        names.insert(d.name);
        if (!names.contains(d.name))
            std::abort();
    }
    return 0;
}
