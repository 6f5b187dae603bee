// libFuzzer target: style text. Whatever the text, parsing and writing
// stay inside it, and a written text reads back to the same record, so
// writing it again gives the same text. The one exception is the storage
// format's own: a family that holds a key of a later field shadows that
// field, since the first occurrence of a key wins.
#include "stylerecord.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <cstdlib>

namespace {

bool familyShadowsAKey(const QString& family)
{
    return family.contains(QLatin1Char(':'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text =
        QString::fromLatin1(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const StyleRecord record = StyleRecord::parse(text);
    const QString once = record.toText();
    const StyleRecord again = StyleRecord::parse(once);
    if (!familyShadowsAKey(record.fontFamily) && (again != record || again.toText() != once))
        std::abort();

    styles::lineTypeName(record);
    StyleRecord typed = record;
    styles::setLineType(typed, text.left(16));
    styles::penStyleFromName(text.left(16));
    styles::penFor(record.lineThickness, styles::lineTypeName(record), record.lineColour);
    styles::fontFor(record);

    // The text as a list of style entries, looked up by its first name.
    const QStringList entries = text.split(QLatin1Char('\n'));
    const QString name = entries.first().section(QLatin1Char('|'), 0, 0);
    const QString entry = styles::findEntry(entries, name, Qt::CaseInsensitive);
    if (!entry.isEmpty() && !entry.startsWith(name + QLatin1Char('|'), Qt::CaseInsensitive))
        std::abort();
    return 0;
}
