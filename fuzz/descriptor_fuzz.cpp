// Feeds arbitrary text to the descriptor parser of parameter pages. The
// input is cut at newlines into the four lists a script passes (tabs,
// groups, parameters, values, by a leading digit 0-3 on each line), parsed,
// and every accessor is read back.
#include "ParameterPages.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = QString::fromLatin1(reinterpret_cast<const char*>(data),
                                              static_cast<int>(qMin<std::size_t>(size, 1 << 16)));
    QStringList lists[4];
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const int which = line.isEmpty() ? 0 : line.at(0).unicode() % 4;
        lists[which] << line.mid(1);
    }
    using namespace parameterpages;
    const ParameterPageSpec spec(lists[0], lists[2], lists[1], lists[3]);
    const ParameterPageSpec flat(lists[2], lists[3]);
    for (int p = -1; p <= spec.parameterCount(); ++p) {
        const ParameterDescriptor& d = spec.parameter(p);
        if (d.elementIndex >= 0 && d.elementIndex > p)
            __builtin_trap(); // an element never runs ahead of its descriptor
        (void)replaceUnitPlaceholders(d.unitText);
        (void)groupHasSeparatedColumns(spec, d.group);
        (void)groupSeparatorWidth(spec, d.group);
        (void)flat.parameterName(p);
    }
    for (int g = -1; g <= spec.groupCount(); ++g) {
        const GroupDescriptor& d = spec.group(g);
        if (d.elementIndex > kMaxElementIndex)
            __builtin_trap(); // the host would allocate a result that long
        (void)gridSpan(d.firstRow, d.lastRow);
        (void)gridSpan(d.firstColumn, d.lastColumn);
    }
    (void)spec.tabTitle(spec.tabCount());
    return 0;
}
