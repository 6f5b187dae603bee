// Parsing of the descriptor text into a ParameterPageSpec. No widgets here,
// so the parse can be tested and fuzzed on its own.
#include "ParameterPages.h"

#include "dialogcommon.h"
#include "hostsupport.h"

#include <algorithm>
#include <climits>

namespace parameterpages {

namespace {

constexpr int kFieldCount = 10;

// Stands in for an escaped colon while the text is split. A plain text
// substitution: the marker must never occur in real text.
const char kColonMarker[] = "1!2@3#4$5%6";

QStringList padded(QStringList fields)
{
    while (fields.size() > kFieldCount)
        fields.removeLast();
    while (fields.size() < kFieldCount)
        fields << QString();
    return fields;
}

QString orDefaultTab(const QString& tab)
{
    return tab.isEmpty() ? defaultTabTitle() : tab;
}

bool isKeyword(const QString& text, const char* keyword)
{
    return text.compare(QLatin1String(keyword), Qt::CaseInsensitive) == 0;
}

double engNumber(const QString& text)
{
    return sp_ConvertEngToReal(text, nullptr);
}

const ParameterDescriptor& emptyParameter()
{
    static const ParameterDescriptor empty;
    return empty;
}

const GroupDescriptor& emptyGroup()
{
    static const GroupDescriptor empty;
    return empty;
}

} // namespace

QString defaultTabTitle()
{
    return QStringLiteral("Parameters");
}

QString buttonsGroupName()
{
    return QStringLiteral("*#!Buttons");
}

QStringList splitDescriptor(const QString& descriptor)
{
    const QString marker = QLatin1String(kColonMarker);
    QString text = descriptor;
    text.replace(QLatin1String("\\:"), marker);
    QStringList fields = text.split(QLatin1Char(':'), Qt::KeepEmptyParts);
    for (QString& field : fields)
        field.replace(marker, QLatin1String(":"));
    return padded(fields);
}

QString replaceUnitPlaceholders(const QString& unit)
{
    QString text = unit;
    text.replace(QLatin1String("__Ohms__"), QString(QChar(0x03A9)));
    text.replace(QLatin1String("__degrees__"), QString(QChar(0x00B0)));
    text.replace(QLatin1String("__micro__"), QString(QChar(0x00B5)));
    text.replace(QLatin1String("__Mho__"), QString(QChar(0x2127)));
    return text;
}

ParameterKind kindOfKeyword(const QString& keyword, bool* groupLike)
{
    ParameterKind kind = ParameterKind::Real;
    if (keyword.isEmpty() || isKeyword(keyword, "real"))
        kind = ParameterKind::Real;
    else if (isKeyword(keyword, "integer") || isKeyword(keyword, "int"))
        kind = ParameterKind::Integer;
    else if (isKeyword(keyword, "string"))
        kind = ParameterKind::String;
    else if (isKeyword(keyword, "list"))
        kind = ParameterKind::List;
    else if (isKeyword(keyword, "bool"))
        kind = ParameterKind::Bool;
    else if (isKeyword(keyword, "label"))
        kind = ParameterKind::StaticLabel;
    else if (isKeyword(keyword, "group"))
        kind = ParameterKind::PlainGroup;
    else if (isKeyword(keyword, "groupcheckable") || isKeyword(keyword, "groupcheck")
             || isKeyword(keyword, "check"))
        kind = ParameterKind::CheckGroup;
    if (groupLike)
        *groupLike = kind == ParameterKind::PlainGroup || kind == ParameterKind::CheckGroup;
    return kind;
}

ParameterPageSpec::ParameterPageSpec(const QStringList& tabs, const QStringList& params,
                                     const QStringList& groups, const QStringList& values)
{
    parseTabs(tabs);
    parseGroups(groups, values);
    parseParameters(params, values);
}

ParameterPageSpec::ParameterPageSpec(const QStringList& params, const QStringList& values)
{
    parseParameters(params, values);
}

const ParameterDescriptor& ParameterPageSpec::parameter(int position) const
{
    if (position < 0 || position >= parameterCount())
        return emptyParameter();
    return m_parameters[static_cast<std::size_t>(position)];
}

const GroupDescriptor& ParameterPageSpec::group(int position) const
{
    if (position < 0 || position >= groupCount())
        return emptyGroup();
    return m_groups[static_cast<std::size_t>(position)];
}

QString ParameterPageSpec::tabTitle(int position) const
{
    return position >= 0 && position < m_tabs.size() ? m_tabs.at(position) : QString();
}

void ParameterPageSpec::parseTabs(const QStringList& tabs)
{
    int start = 0;
    if (tabs.isEmpty() || tabs.first().isEmpty()) {
        m_tabs << defaultTabTitle();
        start = 1;
    }
    int unnamed = 0;
    for (int i = start; i < tabs.size(); ++i) {
        if (!tabs.at(i).isEmpty()) {
            m_tabs << tabs.at(i);
            continue;
        }
        ++unnamed;
        m_tabs << defaultTabTitle() + QLatin1Char(' ')
                      + toQs(sp_ConvertRealToJSEng(unnamed, 6, false));
    }
}

void ParameterPageSpec::parseGroups(const QStringList& groups, const QStringList& values)
{
    m_groups.reserve(static_cast<std::size_t>(groups.size()));
    for (int position = 0; position < groups.size(); ++position) {
        // A group's fields come from the host's own split, which knows no
        // escaped colon: "\\:" in a group descriptor splits like ":".
        YArray<YString> hostFields;
        sp_SplitLine(Tocs(groups.at(position)), ':', &hostFields, kFieldCount);
        QStringList fields;
        for (long long i = 0; i < hostFields.count(); ++i)
            fields << toQs(hostFields[i]);
        fields = padded(fields);

        GroupDescriptor g;
        g.position = position;
        g.tab = orDefaultTab(fields.at(0));
        const QString& kind = fields.at(1);
        const QString& checkField = fields.at(7);
        const int checkIndex = dialogcommon::leadingInt(checkField);
        if (isKeyword(kind, "groupcheck") || isKeyword(kind, "check")) {
            g.checked = true;
            if (!checkField.isEmpty()) {
                g.isPlain = false;
                if (checkIndex >= 0 && checkIndex < values.size())
                    g.checked = dialogcommon::leadingInt(values.at(checkIndex)) != 0;
            }
        }
        g.title = fields.at(2);
        g.firstRow = dialogcommon::leadingInt(fields.at(3));
        g.firstColumn = dialogcommon::leadingInt(fields.at(4));
        g.lastRow = fields.at(5).isEmpty() ? g.firstRow : dialogcommon::leadingInt(fields.at(5));
        g.lastColumn = fields.at(6).isEmpty() ? g.firstColumn : dialogcommon::leadingInt(fields.at(6));
        if (!checkField.isEmpty())
            g.elementIndex = checkIndex >= 0 && checkIndex <= kMaxElementIndex ? checkIndex : -1;
        g.separatedColumns = dialogcommon::leadingInt(fields.at(8)) != 0;
        const int width = dialogcommon::leadingInt(fields.at(9));
        g.separatorWidth = width > 0 ? width : 6;

        m_maxFirstRow = m_groups.empty() ? g.firstRow : qMax(m_maxFirstRow, g.firstRow);
        m_maxFirstColumn = m_groups.empty() ? g.firstColumn : qMax(m_maxFirstColumn, g.firstColumn);
        m_groups.push_back(g);
    }
}

void ParameterPageSpec::parseParameters(const QStringList& params, const QStringList& values)
{
    m_parameters.reserve(static_cast<std::size_t>(params.size()));
    int skipped = 0;
    for (int position = 0; position < params.size(); ++position) {
        const QStringList fields = splitDescriptor(params.at(position));
        ParameterDescriptor p;
        p.position = position;
        p.name = fields.at(2);
        p.unitText = fields.at(5);
        p.tab = orDefaultTab(fields.at(0));
        p.group = fields.at(1);
        p.row = dialogcommon::leadingInt(fields.at(3));
        p.column = dialogcommon::leadingInt(fields.at(4));
        p.toolTip = fields.at(9);
        p.takesFocus = position == 0;
        p.kind = kindOfKeyword(fields.at(6), &p.isGroupLike);
        if (p.kind == ParameterKind::Integer) {
            p.minimum = 0;
            p.maximum = 100;
        }

        const QString& flag = fields.at(8);
        if (!flag.isEmpty()) {
            const bool on = flag == QLatin1String("1");
            if (p.kind == ParameterKind::String || p.kind == ParameterKind::List)
                p.stringFlag = on;
            else if (p.kind == ParameterKind::Real || p.kind == ParameterKind::Integer)
                p.numberFlag = on;
        }

        const QString& range = fields.at(7);
        if (!range.isEmpty()) {
            p.items = range.split(QLatin1Char('|'), Qt::KeepEmptyParts);
            if (p.kind == ParameterKind::Real || p.kind == ParameterKind::Integer) {
                if (p.items.size() > 0)
                    p.minimum = engNumber(p.items.at(0));
                if (p.items.size() > 1)
                    p.maximum = engNumber(p.items.at(1));
                if (p.items.size() > 2)
                    p.step = qMax(0.0, engNumber(p.items.at(2)));
                if (!(p.step >= 0.0)) // NaN
                    p.step = 0.0;
            }
        }

        if (p.kind == ParameterKind::StaticLabel || p.kind == ParameterKind::PlainGroup) {
            ++skipped;
        } else {
            p.elementIndex = position - skipped;
            p.value = p.elementIndex < values.size() ? values.at(p.elementIndex)
                                                     : QStringLiteral("0");
        }
        m_parameters.push_back(p);
    }
}

int descriptorSignature(const QStringList& params, const QStringList& info, int helpElement)
{
    QString signature;
    YArray<YString> fields;
    for (const QString& descriptor : params) {
        sp_SplitLine(Tocs(descriptor), ':', &fields, 3);
        if (fields.count() > 2)
            signature += toQs(fields[2]);
    }
    if (helpElement >= 0 && helpElement < info.size())
        signature += info.at(helpElement);
    return static_cast<int>(toYs(signature).hashValue() % 1001u);
}

int helpTopicOf(const QStringList& info, int index)
{
    return index >= 0 && index < info.size() ? dialogcommon::leadingInt(info.at(index)) : -1;
}

void runHelpTopic(int topic)
{
    dialogcommon::runHelp(topic);
}

int gridIndex(int value)
{
    return std::clamp(value, 0, kMaxGridIndex);
}

int gridSpan(int first, int last)
{
    if (last < 0)
        return -1;
    return std::max(1, gridIndex(last) - gridIndex(first) + 1);
}

bool groupHasSeparatedColumns(const ParameterPageSpec& spec, const QString& title)
{
    for (int g = 0; g < spec.groupCount(); ++g) {
        if (spec.group(g).title.compare(title, Qt::CaseInsensitive) == 0)
            return spec.group(g).separatedColumns;
    }
    return false;
}

int groupSeparatorWidth(const ParameterPageSpec& spec, const QString& title)
{
    for (int g = 0; g < spec.groupCount(); ++g) {
        if (spec.group(g).title.compare(title, Qt::CaseInsensitive) == 0)
            return spec.group(g).separatorWidth;
    }
    return 0;
}

} // namespace parameterpages
