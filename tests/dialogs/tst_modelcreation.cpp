// The model creation dialogs, called through the engine on the built module
// and answered as a script's user would.
#include "dialogtest.h"
#include "hostsupport.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace dialogtest;
Q_DECLARE_METATYPE(Args)

class TestModelCreation : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void createDiode_data();
    void createDiode();

private:
    vtkit::Engine m_engine;
    QTemporaryDir m_config;
};

void TestModelCreation::initTestCase()
{
    if (qEnvironmentVariableIsEmpty("VANTRELL_CONFIG_DIR")) {
        QVERIFY(m_config.isValid());
        qputenv("VANTRELL_CONFIG_DIR", m_config.path().toLocal8Bit());
    }
    QVERIFY(loadModule(m_engine));
}

void TestModelCreation::cleanup()
{
    QVERIFY(noTopLevelsLeft());
}

// ----------------------------------------------------------- CreateDiodeDialog

void TestModelCreation::createDiode_data()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<bool>("hasResult");
    QTest::addColumn<QStringList>("expected");

    const QStringList sheet{"10", "1", "100M", "50n", "0.7", "1", "0.9", "10", "100p", "1", "D1N4148"};
    QTest::newRow("every element comes back where it went in")
        << stringArgs({sheet}) << R"([{"accept": true}])" << true << sheet;
    QTest::newRow("no arguments: zero fields, saved to the schematic symbol")
        << Args{} << R"([{"accept": true}])" << true
        << QStringList{"0", "0", "0", "0", "0", "0", "0", "0", "0", "0", ""};
    QTest::newRow("a short array fills what it has")
        << stringArgs({{"2", "3"}}) << R"([{"accept": true}])" << true
        << QStringList{"2", "3", "0", "0", "0", "0", "0", "0", "0", "0", ""};
    QTest::newRow("edits and the library choice")
        << stringArgs({sheet})
        << R"([{"set": "spinner9", "text": "47p"}, {"click": "radioButton5"}, {"set": "editBox1", "text": "MURS120"}, {"click": "okButton"}])"
        << true
        << QStringList{"10", "1", "100M", "50n", "0.7", "1", "0.9", "10", "47p", "0", "MURS120"};
    QTest::newRow("the misspelt cancel button still cancels")
        << stringArgs({sheet}) << R"([{"click": "cacnelButton"}])" << false << QStringList{};
}

void TestModelCreation::createDiode()
{
    QFETCH(Args, args);
    QFETCH(QString, steps);
    QFETCH(bool, hasResult);
    QFETCH(QStringList, expected);

    const Answered run = answer(m_engine, "CreateDiodeDialog", args, steps.toUtf8());
    QVERIFY2(run.ok, qPrintable(run.failure));
    QCOMPARE(run.result.hasResult, hasResult);
    if (hasResult)
        QCOMPARE(textsOf(run.result), expected);
}

QTEST_MAIN(TestModelCreation)
#include "tst_modelcreation.moc"
