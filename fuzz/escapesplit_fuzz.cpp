// The hand-written escape splitter against its definition by regular
// expression: for any text and delimiters, both must give the same parts,
// byte for byte, and count() must know their number.
//
// Input: byte 0 chooses empty parts kept (bit 0) and the default
// delimiters (bit 1); the rest is the delimiters, a NUL, then the text.
#include "escapesplitter.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

// The definition, computed as the functions once did it.
std::vector<std::string> reference(const std::string& text, const std::string& delimiters,
                                   bool keepEmpty)
{
    QStringList patterns;
    QStringList delims;
    for (const QChar c : QString::fromLatin1(delimiters.data(), int(delimiters.size()))) {
        patterns << QStringLiteral("(?<!\\\\)") + QRegularExpression::escape(QString(c));
        delims << QString(c);
    }
    const QRegularExpression re(patterns.join(QLatin1Char('|')));
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

void show(const char* what, const std::vector<std::string>& parts)
{
    std::fprintf(stderr, "%s (%zu):", what, parts.size());
    for (const std::string& p : parts)
        std::fprintf(stderr, " [%s]", p.c_str());
    std::fprintf(stderr, "\n");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    const bool keepEmpty = data[0] & 1;
    const std::string rest(reinterpret_cast<const char*>(data + 1), size - 1);
    const std::size_t nul = rest.find('\0');
    std::string delimiters = rest.substr(0, nul);
    std::string text = nul == std::string::npos ? std::string() : rest.substr(nul + 1);
    text = text.substr(0, text.find('\0')); // a C string
    // The functions never split at an empty delimiter string.
    if ((data[0] & 2) || delimiters.empty())
        delimiters = keepEmpty ? ";" : " \t,";

    const escapesplit::Splitter splitter(delimiters);
    std::vector<std::string> got;
    splitter.split(text, keepEmpty, [&got](const std::string& part) { got.push_back(part); });
    const std::vector<std::string> want = reference(text, delimiters, keepEmpty);
    const std::size_t counted = splitter.count(text, keepEmpty);
    if (got != want || counted != got.size()) {
        std::fprintf(stderr, "escapesplit: the splitter and its definition differ\n"
                             "text [%s] delimiters [%s] keepEmpty %d counted %zu\n",
                     text.c_str(), delimiters.c_str(), int(keepEmpty), counted);
        show("splitter  ", got);
        show("definition", want);
        std::abort();
    }
    return 0;
}
