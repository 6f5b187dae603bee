#include "stylerecord.h"

#include "colornumber.h"
#include "hostsupport.h"

#include <algorithm>
#include <cmath>

namespace {

const QLatin1String kLineColour("lineColour:");
const QLatin1String kLineType("lineType:");
const QLatin1String kLineThickness("lineThickness:");
const QLatin1String kFontFamily("fontFamily:\"");
const QLatin1String kFontItalics("fontItalics:");
const QLatin1String kFontBold("fontBold:");
const QLatin1String kFontColour("fontColour:");
const QLatin1String kFontSize("fontSize:");
const QLatin1String kPropertyStyle("propertyStyle:");
const QLatin1String kFontOverline("fontOverline:");
const QLatin1String kFontUnderline("fontUnderline:");

// The value behind key up to terminator. A missing key is not an error:
// the search then starts just before where the key's length would end, and
// the value is whatever stands there, as the simulator has always read it.
// A value with no terminator behind it reads as "".
QString extract(const QString& text, const QLatin1String& key, const QLatin1String& terminator)
{
    const int at = text.indexOf(key, 0, Qt::CaseSensitive);
    const int start = at + key.size();
    const int found = text.indexOf(terminator, start, Qt::CaseSensitive);
    const int end = found + terminator.size() - 1;
    if (end <= start)
        return QString();
    return text.mid(start, end - start);
}

int number(const QString& text, const QLatin1String& key)
{
    return extract(text, key, QLatin1String(" ")).toInt(nullptr, 10); // failure gives 0
}

bool flag(const QString& text, const QLatin1String& key)
{
    return number(text, key) != 0;
}

struct LineTypeNames {
    const char* fromNumber; // what the number shows as, and what a combo text matches
    const char* penName;    // the spelling penStyleFromName takes
    Qt::PenStyle pen;
};

constexpr LineTypeNames kLineTypes[] = {
    {"Solid", "Solid", Qt::SolidLine},
    {"Dash", "Dash", Qt::DashLine},
    {"Dot", "Dot", Qt::DotLine},
    {"Dashdot", "DashDot", Qt::DashDotLine},
    {"Dashdotdot", "DashDotDot", Qt::DashDotDotLine},
};
// Beyond anything a schematic shows; what a script passes is cut to it.
constexpr int kMaxPenWidth = 100;
constexpr int kMaxPointSize = 1000;

constexpr int kLineTypeCount = int(sizeof kLineTypes / sizeof kLineTypes[0]);

} // namespace

StyleRecord StyleRecord::parse(const QString& text)
{
    StyleRecord r;
    r.lineColour = number(text, kLineColour);
    r.lineType = number(text, kLineType);
    r.lineThickness = number(text, kLineThickness);
    r.fontFamily = extract(text, kFontFamily, QLatin1String("\""));
    r.fontItalics = flag(text, kFontItalics);
    r.fontBold = flag(text, kFontBold);
    r.fontColour = number(text, kFontColour);
    r.fontSize = number(text, kFontSize);
    r.propertyStyle = flag(text, kPropertyStyle);
    r.fontOverline = flag(text, kFontOverline);
    r.fontUnderline = flag(text, kFontUnderline);
    return r;
}

QString StyleRecord::toText() const
{
    auto n = [](int v) { return QString::number(v, 10); };
    auto b = [](bool v) { return QLatin1String(v ? "1" : "0"); };
    return kLineColour + n(lineColour) + QLatin1Char(' ') + kLineType + n(lineType)
           + QLatin1Char(' ') + kLineThickness + n(lineThickness) + QLatin1Char(' ')
           + kFontFamily + fontFamily + QLatin1String("\" ") + kFontItalics + b(fontItalics)
           + QLatin1Char(' ') + kFontBold + b(fontBold) + QLatin1Char(' ') + kFontColour
           + n(fontColour) + QLatin1Char(' ') + kFontSize + n(fontSize) + QLatin1Char(' ')
           + kPropertyStyle + b(propertyStyle) + QLatin1Char(' ') + kFontOverline
           + b(fontOverline) + QLatin1Char(' ') + kFontUnderline + b(fontUnderline)
           + QLatin1Char(' ');
}

bool StyleRecord::operator==(const StyleRecord& o) const
{
    return lineColour == o.lineColour && lineType == o.lineType
           && lineThickness == o.lineThickness && fontFamily == o.fontFamily
           && fontSize == o.fontSize && fontItalics == o.fontItalics && fontBold == o.fontBold
           && fontColour == o.fontColour && propertyStyle == o.propertyStyle
           && fontOverline == o.fontOverline && fontUnderline == o.fontUnderline;
}

namespace styles {

QString lineTypeName(const StyleRecord& record)
{
    if (record.lineType < 0 || record.lineType >= kLineTypeCount)
        return QStringLiteral("Solid");
    return QLatin1String(kLineTypes[record.lineType].fromNumber);
}

void setLineType(StyleRecord& record, const QString& text)
{
    record.lineType = 0;
    for (int i = 0; i < kLineTypeCount; ++i) {
        if (text.compare(QLatin1String(kLineTypes[i].fromNumber), Qt::CaseInsensitive) == 0) {
            record.lineType = i;
            return;
        }
    }
}

Qt::PenStyle penStyleFromName(const QString& name)
{
    for (const LineTypeNames& t : kLineTypes)
        if (equals(name, QLatin1String(t.penName)))
            return t.pen;
    return Qt::SolidLine;
}

QPen penFor(int thickness, const QString& lineTypeName, int colour)
{
    QPen pen;
    // Clamped: a width from a script is no reason to stroke for minutes.
    pen.setWidth(thickness == 1 ? 0 : std::clamp(thickness, 0, kMaxPenWidth));
    pen.setStyle(penStyleFromName(lineTypeName));
    pen.setColor(colornumber::toColor(colour));
    pen.setCosmetic(false);
    return pen;
}

QFont fontFor(const StyleRecord& record)
{
    QFont font;
    font.setWeight(record.fontBold ? 75 : 50);
    font.setItalic(record.fontItalics);
    font.setFamily(record.fontFamily);
    font.setUnderline(record.fontUnderline);
    font.setOverline(record.fontOverline);
    // In double: a stored size near INT_MAX must not overflow on the way.
    const double points = std::trunc(double(record.fontSize) / 12.0 * 10.0);
    font.setPointSize(int(std::clamp(points, 1.0, double(kMaxPointSize))));
    return font;
}

int indexOfEntry(const QStringList& entries, const QString& name, Qt::CaseSensitivity cs)
{
    const QString prefix = name + QLatin1Char('|');
    for (int i = 0; i < entries.size(); ++i)
        if (entries.at(i).startsWith(prefix, cs))
            return i;
    return -1;
}

QString findEntry(const QStringList& entries, const QString& name, Qt::CaseSensitivity cs)
{
    const int i = indexOfEntry(entries, name, cs);
    return i < 0 ? QString() : entries.at(i);
}

QString makeEntry(const QString& name, const StyleRecord& record)
{
    return name + QLatin1Char('|') + record.toText();
}

} // namespace styles
