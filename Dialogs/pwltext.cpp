#include "pwltext.h"

#include <QRegularExpression>
#include <QVector>

namespace pwltext {

QString write(const QStringList& flat)
{
    const int segments = (flat.size() >> 1) - 1;
    QString text = QStringLiteral("NSEG=") + QString::number(segments);
    for (int i = 0; i <= segments; ++i) {
        const QString index = QString::number(i);
        text += QStringLiteral(" X") + index + QLatin1Char('=') + flat.at(2 * i)
                + QStringLiteral(" Y") + index + QLatin1Char('=') + flat.at(2 * i + 1);
    }
    return text;
}

namespace {

// The value of token when it is key (any case) followed by "=".
bool valueOf(const QStringRef& token, const QString& key, QStringRef* value)
{
    const int n = key.size();
    if (token.size() <= n || token.at(n) != QLatin1Char('=')
        || token.left(n).compare(key, Qt::CaseInsensitive) != 0)
        return false;
    *value = token.mid(n + 1);
    return true;
}

} // namespace

bool parse(const QString& text, QStringList* flat)
{
    const QVector<QStringRef> tokens = text.splitRef(QRegularExpression(QStringLiteral("\\s+")),
                                                      Qt::SkipEmptyParts);
    QStringRef value;
    if (tokens.isEmpty() || !valueOf(tokens.first(), QStringLiteral("NSEG"), &value))
        return false;
    // The count is checked against the tokens there are, never used to
    // size anything: "NSEG=1e18" is just text that doesn't match.
    bool ok = false;
    const qlonglong segments = value.toLongLong(&ok);
    const qlonglong fields = tokens.size() - 1;
    if (!ok || segments < 0 || segments >= fields || (segments + 1) * 2 != fields)
        return false;
    QStringList out;
    out.reserve(int(fields));
    for (int i = 0; i < fields; ++i) {
        const QString key = QLatin1Char(i % 2 ? 'Y' : 'X') + QString::number(i / 2);
        if (!valueOf(tokens.at(i + 1), key, &value))
            return false;
        out << value.toString();
    }
    *flat = out;
    return true;
}

} // namespace pwltext
