#include "kitsupport.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>
#include <memory>

namespace vtkit {

namespace {

// The catalogue <name>_<lang>.qm from dir, or the one for the system
// locale when lang is empty; null when there is none.
std::unique_ptr<QTranslator> loadCatalogue(const QString& name, const QString& lang, const QString& dir)
{
    auto translator = std::make_unique<QTranslator>();
    const bool loaded = lang.isEmpty()
        ? translator->load(QLocale::system(), name, QStringLiteral("_"), dir)
        : translator->load(name + QLatin1Char('_') + lang, dir);
    return loaded ? std::move(translator) : nullptr;
}

// The translator lives as long as the application: texts are looked up
// every time a form retranslates, not once.
bool install(std::unique_ptr<QTranslator> translator)
{
    if (!translator || !QCoreApplication::installTranslator(translator.get()))
        return false;
    translator.release()->setParent(QCoreApplication::instance());
    return true;
}

} // namespace

bool installTranslations(const QString& lang, const QString& dir)
{
    // A language is a name, never a path.
    static const QRegularExpression name(QStringLiteral("^[A-Za-z0-9_-]*$"));
    if (!QCoreApplication::instance() || !name.match(lang).hasMatch())
        return false;
    const QString where = dir.isEmpty()
        ? QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../translations"))
        : dir;
    std::unique_ptr<QTranslator> ours = loadCatalogue(QStringLiteral("vtdialogs"), lang, where);
    if (!ours)
        return false;
    // Qt's own catalogue puts the standard buttons and Qt's file and colour
    // dialogs in the forms' language (Debian: qttranslations5-l10n). Only
    // alongside ours: a form in English with buttons in another language
    // reads worse than one all in English. It goes in first so that ours is
    // asked first, as the pseudo-translation carries Qt's button texts too.
    install(loadCatalogue(QStringLiteral("qtbase"), lang,
                          QLibraryInfo::location(QLibraryInfo::TranslationsPath)));
    return install(std::move(ours));
}

} // namespace vtkit
