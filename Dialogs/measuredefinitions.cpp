#include "measuredefinitions.h"

#include "hostsupport.h"

namespace measuredefs {

namespace {

QString field(const QStringList& fields, int i)
{
    return i < fields.size() ? fields.at(i) : QString();
}

} // namespace

QStringList splitLine(const QString& line)
{
    const QByteArray bytes = line.toLatin1(); // lines cross the call record as 8-bit
    YArray<YString> parts;
    sp_SplitLine(bytes.constData(), ';', &parts, 0);
    QStringList fields;
    fields.reserve(int(parts.count()));
    for (long long i = 0; i < parts.count(); ++i)
        fields << QString::fromLatin1(parts[i].c_str());
    return fields;
}

bool isFlagSet(const QString& field)
{
    return field.compare(QLatin1String("1"), Qt::CaseInsensitive) == 0;
}

bool parseChoice(const QString& line, Choice* out)
{
    const QStringList fields = splitLine(line);
    if (fields.isEmpty())
        return false;
    out->name = fields.at(0);
    out->description = fields.size() > 1 ? fields.at(1) : out->name;
    out->requiresCursors = isFlagSet(field(fields, 2));
    out->factory = isFlagSet(field(fields, 3));
    return true;
}

Definition Definition::parse(const QString& line)
{
    const QStringList fields = splitLine(line);
    Definition d;
    d.name = field(fields, 0);
    d.expression = field(fields, 1);
    d.format = field(fields, 2);
    d.label = field(fields, 3);
    d.fullDescription = field(fields, 4);
    d.requiresCursors = isFlagSet(field(fields, 5));
    d.factory = isFlagSet(field(fields, 6));
    return d;
}

QString Definition::toLine() const
{
    const QChar sep = QLatin1Char(';');
    return name + sep + expression + sep + format + sep + label + sep + fullDescription + sep
           + (requiresCursors ? QStringLiteral("1") : QString());
}

bool Definition::sameContent(const Definition& o) const
{
    auto same = [](const QString& a, const QString& b) {
        return a.compare(b, Qt::CaseInsensitive) == 0;
    };
    return same(expression, o.expression) && same(format, o.format) && same(label, o.label)
           && same(fullDescription, o.fullDescription) && requiresCursors == o.requiresCursors;
}

int NameSet::bucketOf(const QString& name)
{
    return int(YString(name.toLatin1().constData()).hashValue() % 101u);
}

bool NameSet::contains(const QString& name) const
{
    for (const QString& known : m_buckets.at(bucketOf(name)))
        if (known.compare(name, Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

void NameSet::insert(const QString& name)
{
    if (!contains(name))
        m_buckets[bucketOf(name)] << name;
}

} // namespace measuredefs
