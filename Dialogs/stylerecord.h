// How a kind of schematic object is drawn, and the one-line text the
// simulator stores it as. The text is the truth: the style editor parses it
// anew on every read and writes every change back at once, so the parser
// keeps the storage format's quirks (the first occurrence of a key wins, a
// value needs the blank behind it) rather than tidying them.
#pragma once

#include <QFont>
#include <QPen>
#include <QString>
#include <QStringList>

struct StyleRecord {
    int lineColour = 0;    // red + 256 x green + 65536 x blue
    int lineType = 0;      // 0 solid, 1 dash, 2 dot, 3 dash-dot, 4 dash-dot-dot
    int lineThickness = 0; // 0 and 1 both draw at pen width 0
    QString fontFamily = QStringLiteral("arial");
    int fontSize = 9;      // points as stored; fontFor() scales it
    bool fontItalics = false;
    bool fontBold = false;
    int fontColour = 0;
    bool propertyStyle = false;
    bool fontOverline = false;
    bool fontUnderline = false;

    // Every field is read from text; a key that is missing reads whatever
    // stands where the search for it ends up, so "" gives zeros and an
    // empty family, not the defaults above.
    static StyleRecord parse(const QString& text);
    // Keys in the stored order, each value followed by one blank.
    QString toText() const;

    bool operator==(const StyleRecord& other) const;
    bool operator!=(const StyleRecord& other) const { return !(*this == other); }
};

namespace styles {

// "Solid", "Dash", "Dot", "Dashdot" or "Dashdotdot"; "Solid" for any other
// number.
QString lineTypeName(const StyleRecord& record);
// From a line type combo box text, case ignored; an unknown text gives 0.
void setLineType(StyleRecord& record, const QString& text);
// "Solid", "Dash", "Dot", "DashDot", "DashDotDot", exact; else solid.
Qt::PenStyle penStyleFromName(const QString& name);

// A non-cosmetic pen; a thickness of 1 draws as 0, like the simulator.
QPen penFor(int thickness, const QString& lineTypeName, int colour);
// Point size is the stored size x 10 / 12, at least 1.
QFont fontFor(const StyleRecord& record);

// The style entry for name ("name|style text") in entries, or "".
QString findEntry(const QStringList& entries, const QString& name,
                  Qt::CaseSensitivity cs = Qt::CaseSensitive);
// The index of that entry, or -1.
int indexOfEntry(const QStringList& entries, const QString& name,
                 Qt::CaseSensitivity cs = Qt::CaseSensitive);
QString makeEntry(const QString& name, const StyleRecord& record);

} // namespace styles
