#include "kitsupport.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

namespace vtkit {

bool installTranslations(const QString& lang, const QString& dir)
{
    auto* app = QCoreApplication::instance();
    // A language is a name, never a path.
    static const QRegularExpression name(QStringLiteral("^[A-Za-z0-9_-]*$"));
    if (!app || !name.match(lang).hasMatch())
        return false;
    const QString where = dir.isEmpty()
        ? QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../translations"))
        : dir;
    // The translator lives as long as the application: texts are looked up
    // every time a form retranslates, not once.
    auto* translator = new QTranslator(app);
    const bool loaded = lang.isEmpty()
        ? translator->load(QLocale::system(), QStringLiteral("vtdialogs"), QStringLiteral("_"), where)
        : translator->load(QStringLiteral("vtdialogs_") + lang, where);
    if (!loaded || !QCoreApplication::installTranslator(translator)) {
        delete translator;
        return false;
    }
    return true;
}

} // namespace vtkit
