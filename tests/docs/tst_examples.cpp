// Every function the module registers has its example for the reference
// (scripts/gallery.sh), and the example is a call the function accepts.
#include "engine.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class TestExamples : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void everyFunctionHasAnExample();
    void noExampleWithoutAFunction();

private:
    vtkit::Engine m_engine;
};

void TestExamples::initTestCase()
{
    std::string error;
    QVERIFY2(m_engine.load(VT_MODULE_PATH, &error), error.c_str());
}

void TestExamples::everyFunctionHasAnExample()
{
    QStringList problems;
    for (const FunctionDecl* decl : m_engine.functions()) {
        const QString name = QString::fromLatin1(decl->name);
        QFile file(QDir(QStringLiteral(VT_EXAMPLES_DIR)).filePath(name + QStringLiteral(".json")));
        if (!file.open(QIODevice::ReadOnly)) {
            problems << name + QStringLiteral(": no example");
            continue;
        }
        QJsonParseError parse;
        const QJsonObject example = QJsonDocument::fromJson(file.readAll(), &parse).object();
        if (parse.error != QJsonParseError::NoError) {
            problems << name + QStringLiteral(": ") + parse.errorString();
            continue;
        }
        for (const char* key : {"about", "arguments", "ok", "call"})
            if (!example.contains(QLatin1String(key)))
                problems << name + QStringLiteral(": no \"") + QLatin1String(key) + QLatin1Char('"');
        // A dialog's reference says what Cancel gives.
        if (example.contains(QLatin1String("answer")) && !example.contains(QLatin1String("cancel")))
            problems << name + QStringLiteral(": an answer but no \"cancel\"");
        const int count = example.value(QLatin1String("call")).toArray().size();
        if (count < decl->minArgs || count > decl->maxArgs)
            problems << name + QStringLiteral(": the example passes %1 arguments").arg(count);
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
}

// A renamed or removed function leaves no stale page behind.
void TestExamples::noExampleWithoutAFunction()
{
    QStringList names;
    for (const FunctionDecl* decl : m_engine.functions())
        names << QString::fromLatin1(decl->name);
    const QStringList files = QDir(QStringLiteral(VT_EXAMPLES_DIR)).entryList({QStringLiteral("*.json")});
    for (const QString& file : files)
        QVERIFY2(names.contains(file.chopped(5)), qPrintable(file));
}

QTEST_GUILESS_MAIN(TestExamples)
#include "tst_examples.moc"
