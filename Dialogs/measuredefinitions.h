// Measurement definition lines. A script keeps its library of measurements
// as lines of seven fields, which the definition manager edits, and derives
// from them the four-field lines that the selection dialog lists. Both
// formats are split here and nowhere else, so a field can't drift by one in
// one dialog only. Fields are separated by ";" and there is no escape for
// it: a ";" typed into a field becomes a separator when the line is read
// back, which is the script's format, not ours to change.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace measuredefs {

// The fields of a line as the host's splitter gives them: "" gives none, n
// separators give n+1 fields.
QStringList splitLine(const QString& line);

// True for "1", the one value that sets a flag field.
bool isFlagSet(const QString& field);

// A line of the selection list: name;description;requiresCursors;factory.
struct Choice {
    QString name;
    QString description; // the name when the line has no second field
    bool requiresCursors = false;
    bool factory = false;
};
// False for a line with no field at all, which the list skips.
bool parseChoice(const QString& line, Choice* out);

// A line of the library: name;expression;format;label;fullDescription;
// requiresCursors;factory. Missing fields read as "".
struct Definition {
    QString name;
    QString expression;
    QString format;
    QString label;
    QString fullDescription;
    bool requiresCursors = false;
    bool factory = false; // read on input, never written

    static Definition parse(const QString& line);
    // Six fields and five semicolons, the flag as "1" or "", no factory mark.
    QString toLine() const;
    // The five editable fields match, texts without regard to case; the
    // name and the factory mark don't take part.
    bool sameContent(const Definition& other) const;
};

// The names a dialog has listed, compared without regard to case but kept
// in 101 buckets by the host's case-sensitive string hash, the way the
// simulator has always done it. So two names that differ only in case are
// the same name only when their buckets meet; the dialogs then merge them,
// otherwise each stays an item of its own.
class NameSet {
public:
    bool contains(const QString& name) const;
    void insert(const QString& name);

private:
    static int bucketOf(const QString& name);
    QVector<QStringList> m_buckets = QVector<QStringList>(101);
};

} // namespace measuredefs
