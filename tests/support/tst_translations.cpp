// The kit installs a translation by language or locale, and the shipped
// pseudo-translation covers the forms' texts.
#include "kitsupport.h"

#include <QCoreApplication>
#include <QtTest>

class TestTranslations : public QObject {
    Q_OBJECT

private slots:
    void install_data();
    void install();
};

void TestTranslations::install_data()
{
    QTest::addColumn<QString>("lang");
    QTest::addColumn<bool>("loaded");
    QTest::newRow("pseudo") << "xx" << true;
    QTest::newRow("no such language") << "zz" << false;
    QTest::newRow("path tricks find nothing") << "../xx" << false;
}

void TestTranslations::install()
{
    QFETCH(QString, lang);
    QFETCH(bool, loaded);
    QCOMPARE(vtkit::installTranslations(lang, QStringLiteral(VT_TRANSLATIONS_DIR)), loaded);
    const QString shown = QCoreApplication::translate("ListSubsetDialog", "Available");
    if (loaded) {
        // Longer by about 40%, bracketed so that a clipped end shows.
        QVERIFY2(shown.startsWith(QLatin1Char('[')) && shown.endsWith(QLatin1Char(']')), qPrintable(shown));
        QVERIFY(shown.size() >= int(QStringLiteral("Available").size() * 1.4));
    }
    // Leave the application untranslated for the next row.
    for (QTranslator* t : QCoreApplication::instance()->findChildren<QTranslator*>())
        QCoreApplication::removeTranslator(t);
    QCOMPARE(QCoreApplication::translate("ListSubsetDialog", "Available"), QStringLiteral("Available"));
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
