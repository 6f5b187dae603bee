// The kit installs a translation by language or locale, and the shipped
// pseudo-translation covers the forms' texts and Qt's standard buttons.
#include "kitsupport.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

class TestTranslations : public QObject {
    Q_OBJECT

private slots:
    void install_data();
    void install();
    void standardButtons_data();
    void standardButtons();

private:
    static void removeTranslations();
};

namespace {

bool isPseudo(const QString& shown, const QString& english)
{
    // Longer by about 40%, bracketed so that a clipped end shows.
    return shown.startsWith(QLatin1Char('[')) && shown.endsWith(QLatin1Char(']'))
        && shown.size() >= int(english.size() * 1.4);
}

} // namespace

void TestTranslations::removeTranslations()
{
    for (QTranslator* t : QCoreApplication::instance()->findChildren<QTranslator*>())
        QCoreApplication::removeTranslator(t);
}

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
    if (loaded)
        QVERIFY2(isPseudo(shown, QStringLiteral("Available")), qPrintable(shown));
    // Leave the application untranslated for the next row.
    removeTranslations();
    QCOMPARE(QCoreApplication::translate("ListSubsetDialog", "Available"), QStringLiteral("Available"));
}

// Qt looks its button texts up in its own contexts, not in the forms':
// the pseudo-translation must cover them, or a clipped Ok would not show.
void TestTranslations::standardButtons_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("inMessageBox");
    QTest::addColumn<QString>("english");
    QTest::newRow("button box Ok") << int(QDialogButtonBox::Ok) << false << "OK";
    QTest::newRow("button box Cancel") << int(QDialogButtonBox::Cancel) << false << "Cancel";
    QTest::newRow("button box Help") << int(QDialogButtonBox::Help) << false << "Help";
    QTest::newRow("message box Yes") << int(QMessageBox::Yes) << true << "&Yes";
    QTest::newRow("message box No") << int(QMessageBox::No) << true << "&No";
}

void TestTranslations::standardButtons()
{
    QFETCH(int, button);
    QFETCH(bool, inMessageBox);
    QFETCH(QString, english);
    QVERIFY(vtkit::installTranslations(QStringLiteral("xx"), QStringLiteral(VT_TRANSLATIONS_DIR)));
    QString shown;
    if (inMessageBox) {
        QMessageBox box(QMessageBox::Question, QStringLiteral("t"), QStringLiteral("q"),
                        QMessageBox::StandardButtons(button));
        shown = box.button(QMessageBox::StandardButton(button))->text();
    } else {
        QDialogButtonBox box{QDialogButtonBox::StandardButtons(button)};
        shown = box.button(QDialogButtonBox::StandardButton(button))->text();
    }
    removeTranslations();
    QVERIFY2(isPseudo(shown, english), qPrintable(shown));
    QVERIFY2(shown.contains(QLatin1Char('&')) == english.contains(QLatin1Char('&')), qPrintable(shown));
}

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
