// The definition of escape splitting by regular expression, as the split
// functions once computed it: the reference that the hand-written splitter
// is fuzzed against and measured against.
#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <map>
#include <string>
#include <vector>

namespace escapesplit {

inline std::vector<std::string> reference(const std::string& text, const std::string& delimiters,
                                          bool keepEmpty)
{
    QStringList patterns;
    QStringList delims;
    for (const QChar c : QString::fromLatin1(delimiters.data(), int(delimiters.size()))) {
        patterns << QStringLiteral("(?<!\\\\)") + QRegularExpression::escape(QString(c));
        delims << QString(c);
    }
    // Fuzz inputs are short and share few patterns: compiling would cost
    // more than splitting.
    static std::map<std::string, QRegularExpression> compiled;
    if (compiled.size() > 1000)
        compiled.clear();
    auto it = compiled.find(delimiters);
    if (it == compiled.end())
        it = compiled.emplace(delimiters, QRegularExpression(patterns.join(QLatin1Char('|')))).first;
    const QRegularExpression& re = it->second;
    const QStringList parts = QString::fromLatin1(text.data(), int(text.size()))
                                  .split(re, keepEmpty ? Qt::KeepEmptyParts : Qt::SkipEmptyParts);
    std::vector<std::string> out;
    for (QString part : parts) {
        for (const QString& d : qAsConst(delims))
            part.replace(QLatin1Char('\\') + d, d, Qt::CaseSensitive);
        out.push_back(part.toUtf8().toStdString());
    }
    return out;
}

} // namespace escapesplit
