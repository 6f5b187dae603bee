// Every function the module registers has its example for the reference
// (scripts/gallery.sh), the example is a call the function accepts, and a
// dialog's answer script still runs when the dialog is translated.
#include "engine.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestExamples : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void everyFunctionHasAnExample();
    void noExampleWithoutAFunction();
    void answersHoldInAnyLanguage_data();
    void answersHoldInAnyLanguage();

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

namespace {

// An argument as vthost takes it, as scripts/gallery.py passes it: JSON, or
// "@file" for one kept in a file.
QString argumentText(const QJsonValue& arg)
{
    if (arg.isString() && arg.toString().startsWith(QLatin1Char('@')))
        return arg.toString();
    const QJsonDocument doc = arg.isObject() ? QJsonDocument(arg.toObject()) : QJsonDocument(arg.toArray());
    return QString::fromUtf8(doc.toJson(QJsonDocument::Compact));
}

} // namespace

void TestExamples::answersHoldInAnyLanguage_data()
{
    QTest::addColumn<QString>("file");
    const QDir dir(QStringLiteral(VT_EXAMPLES_DIR));
    for (const QString& file : dir.entryList({QStringLiteral("*.json")})) {
        QFile f(dir.filePath(file));
        if (f.open(QIODevice::ReadOnly)
            && QJsonDocument::fromJson(f.readAll()).object().contains(QLatin1String("answer")))
            QTest::newRow(qPrintable(file.chopped(5))) << dir.filePath(file);
    }
}

// Under the pseudo-translation every text a person sees changes, so a step
// that finds its widget, action or row by an English text fails: examples
// name what they use.
void TestExamples::answersHoldInAnyLanguage()
{
    QFETCH(QString, file);
    if (!QFile::exists(QStringLiteral(VT_TRANSLATIONS_DIR "/vtdialogs_xx.qm")))
        QSKIP("the pseudo-translation is not built (no Qt Linguist tools)");
    QFile f(file);
    QVERIFY(f.open(QIODevice::ReadOnly));
    const QJsonObject example = QJsonDocument::fromJson(f.readAll()).object();
    QTemporaryDir temp;
    QVERIFY(temp.isValid());
    QFile steps(temp.filePath(QStringLiteral("steps.json")));
    QVERIFY(steps.open(QIODevice::WriteOnly));
    steps.write(QJsonDocument(example.value(QLatin1String("answer")).toArray()).toJson());
    steps.close();

    QStringList args{QStringLiteral("call"), QFileInfo(file).completeBaseName()};
    for (const QJsonValue& arg : example.value(QLatin1String("call")).toArray())
        args << argumentText(arg);
    args << QStringLiteral("--lang") << QStringLiteral("xx") << QStringLiteral("--answer") << steps.fileName()
         << QStringLiteral("--config-dir") << temp.path();
    QProcess host;
    // Examples name their files relative to the source tree.
    host.setWorkingDirectory(QStringLiteral(VT_SOURCE_DIR));
    host.start(QStringLiteral(VT_VTHOST_PATH), args);
    QVERIFY(host.waitForFinished(60000));
    QVERIFY2(host.exitStatus() == QProcess::NormalExit && host.exitCode() == 0,
             qPrintable(QString::fromUtf8(host.readAllStandardError())));
}

QTEST_GUILESS_MAIN(TestExamples)
#include "tst_examples.moc"
