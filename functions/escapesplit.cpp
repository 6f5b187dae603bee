// ParseEscape and ScanEscape: split a text at delimiters, where a delimiter
// behind a backslash belongs to the text and loses its backslash.
#include "callargs.h"
#include "registration.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace {

enum class SplitMode { Parse, Scan };

// ScanEscape pads its result to at least this many parts. A script asks
// for a handful so that it can index fields without testing; a count of
// 1e18 is a mistake, not a request for gigabytes of empty strings, and is
// read as this limit.
constexpr int kMaxPadParts = 100000;

// NaN and non-positive counts pad nothing.
int padCount(double value)
{
    if (!(value > 0))
        return 0;
    if (value >= double(kMaxPadParts))
        return kMaxPadParts;
    return static_cast<int>(value);
}

void splitEscaped(UserFunctionInterface* ufi, SplitMode mode)
{
    const ArgRecord* textArg = callargs::present(ufi, 0);
    if (!textArg)
        return;
    const char* textBytes = static_cast<char* const*>(textArg->data)[0];
    const QString text = QString::fromLatin1(textBytes);
    if (text.isEmpty())
        return;

    QString pattern = mode == SplitMode::Parse ? QStringLiteral("(?<!\\\\) |(?<!\\\\)\\t|(?<!\\\\),")
                                               : QStringLiteral("(?<!\\\\);");
    QStringList delimiters = mode == SplitMode::Parse
                                 ? QStringList{QStringLiteral(" "), QStringLiteral("\t"),
                                               QStringLiteral(",")}
                                 : QStringList{QStringLiteral(";")};

    if (const ArgRecord* delimArg = callargs::present(ufi, 1)) {
        const QString given = QString::fromLatin1(static_cast<char* const*>(delimArg->data)[0]);
        if (given.isEmpty()) {
            // Nothing to split at: the text goes back byte for byte.
            char** out = ufi->MakeStringArray(ufi, 1);
            if (out)
                out[0] = ufi->DupString(textBytes);
            return;
        }
        QStringList patterns;
        delimiters.clear();
        for (const QChar c : given) {
            patterns << QStringLiteral("(?<!\\\\)") + QRegularExpression::escape(QString(c));
            delimiters << QString(c);
        }
        pattern = patterns.join(QLatin1Char('|'));
    }

    const QRegularExpression re(pattern);
    QStringList parts = text.split(re, mode == SplitMode::Parse ? Qt::SkipEmptyParts
                                                                : Qt::KeepEmptyParts);

    if (mode == SplitMode::Scan) {
        double wanted = 0;
        const int minParts = callargs::real(ufi, 2, &wanted) ? padCount(wanted) : 0;
        while (parts.size() < minParts)
            parts << QString();
    }

    char** out = ufi->MakeStringArray(ufi, parts.size());
    if (!out)
        return;
    for (int i = 0; i < parts.size(); ++i) {
        QString part = parts.at(i);
        for (const QString& delimiter : qAsConst(delimiters))
            part.replace(QLatin1Char('\\') + delimiter, delimiter, Qt::CaseSensitive);
        out[i] = ufi->DupString(part.toUtf8().constData());
    }
}

long long parseEscape(UserFunctionInterface* ufi)
{
    splitEscaped(ufi, SplitMode::Parse);
    return 0;
}

long long scanEscape(UserFunctionInterface* ufi)
{
    splitEscaped(ufi, SplitMode::Scan);
    return 0;
}

const FunctionRegistration registerParseEscape("ParseEscape", argLimits(1, 2), &parseEscape,
                                               {ArgStrings, ArgStrings});
const FunctionRegistration registerScanEscape("ScanEscape", argLimits(1, 3), &scanEscape,
                                              {ArgStrings, ArgStrings, ArgReals});

} // namespace
