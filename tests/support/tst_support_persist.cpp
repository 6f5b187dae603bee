// Options, configuration settings and window geometry persisted by
// libvtsupport, across widgets and across processes; icon and clipboard.
//
// The program re-runs itself with "--child" (and VANTRELL_CONFIG_DIR set) to
// write from a second process; the parent uses vtkit::setConfigDir.
#include "kitsupport.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QWidget>
#include <QtTest>

#include <cstdio>
#include <cstring>

// Declared the way the module declares its options: a static object.
static MakeOption declaredOption(__FILE__, __LINE__, "DeclaredTestOption", "declared-default",
                                 true);

namespace {

// Child: writes an option, a flag and settings, and prints what the parent
// wrote, one per line.
int childMain()
{
    std::printf("%s\n", sp_GetStringOption("ParentOption").c_str());
    std::printf("%s\n", qPrintable(vtkit::configDir()));
    sp_WriteOption("ChildOption", "hello from child");
    sp_WriteOption("ChildFlag", true);
    cfgman_WriteConfigSetting("DialogPreferences", "TableDialogDims_12345", "10,20,30");
    cfgman_WriteConfigSetting("DialogPreferences", "Child/Key\\With Slash", "slashed");
    std::fflush(stdout);
    return 0;
}

QByteArray setting(const char* section, const char* key, int* result = nullptr)
{
    char buffer[256];
    std::memset(buffer, 'Z', sizeof buffer);
    const int found = cfgman_GetConfigSetting(section, key, buffer, sizeof buffer - 1, false);
    if (result)
        *result = found;
    return found ? QByteArray(buffer) : QByteArray("<absent>");
}

} // namespace

class TestSupportPersist : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void configDirChoice();
    void options_data();
    void options();
    void optionAbsentAndDeclared();
    void optionKeysWithSlashes();
    void configSettings();
    void configBuffer();
    void acrossProcesses();
    void geometryRestored();
    void geometryOnDestroy();
    void geometryEdgeCases();
    void icon();
    void clipboard();

private:
    QTemporaryDir m_dir;
};

void TestSupportPersist::initTestCase()
{
    QVERIFY(m_dir.isValid());
    // A directory that doesn't exist yet: the first write makes it.
    vtkit::setConfigDir(m_dir.path() + "/config");
}

void TestSupportPersist::configDirChoice()
{
    QCOMPARE(vtkit::configDir(), m_dir.path() + "/config");
    QVERIFY(!QFile::exists(m_dir.path() + "/config"));
}

void TestSupportPersist::options_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<int>("number");
    QTest::newRow("1") << QByteArray("1") << true << 1;
    QTest::newRow("0") << QByteArray("0") << false << 0;
    QTest::newRow("true") << QByteArray("TRUE") << true << 0;
    QTest::newRow("yes") << QByteArray("yes") << true << 0;
    QTest::newRow("on") << QByteArray("On") << true << 0;
    QTest::newRow("false") << QByteArray("false") << false << 0;
    QTest::newRow("number") << QByteArray("42") << false << 42;
    QTest::newRow("negative") << QByteArray("-7x") << false << -7;
    QTest::newRow("text") << QByteArray("a, b = \"c\" ; d") << false << 0;
    QTest::newRow("latin1") << QByteArray("\xB5\xE9") << false << 0;
}

void TestSupportPersist::options()
{
    QFETCH(QByteArray, value);
    QFETCH(bool, flag);
    QFETCH(int, number);
    sp_WriteOption("TestOption", value.constData());
    bool found = false;
    QCOMPARE(QByteArray(sp_GetStringOption("TestOption", &found).c_str()), value);
    QVERIFY(found);
    QCOMPARE(QByteArray(sp_GetStringOption("TestOption").c_str()), value);
    found = false;
    QCOMPARE(sp_GetBoolOption("TestOption", &found), flag);
    QVERIFY(found);
    QCOMPARE(sp_GetBoolOption("TestOption", nullptr), flag);
    QCOMPARE(sp_GetIntOption("TestOption"), number);
    QVERIFY(QFile::exists(m_dir.path() + "/config/options.ini"));

    sp_WriteOption(YString("TestFlag"), true);
    QVERIFY(sp_GetBoolOption("TestFlag", nullptr));
    QCOMPARE(QByteArray(sp_GetStringOption("TestFlag").c_str()), QByteArray("1"));
    sp_WriteOption(YString("TestFlag"), false);
    QVERIFY(!sp_GetBoolOption("TestFlag", nullptr));
    QCOMPARE(QByteArray(sp_GetStringOption("TestFlag").c_str()), QByteArray("0"));
    sp_WriteOption(YString("TestYString"), YString("ys"));
    QCOMPARE(QByteArray(sp_GetStringOption("TestYString").c_str()), QByteArray("ys"));
}

void TestSupportPersist::optionAbsentAndDeclared()
{
    bool found = true;
    QVERIFY(!sp_GetBoolOption("NeverWritten", &found));
    QVERIFY(!found);
    found = true;
    QVERIFY(sp_GetStringOption("NeverWritten", &found).isEmpty());
    QVERIFY(!found);
    QCOMPARE(sp_GetIntOption("NeverWritten"), 0);
    QVERIFY(sp_GetStringOption(nullptr).isEmpty());

    QCOMPARE(QByteArray(sp_GetStringOption("DeclaredTestOption").c_str()),
             QByteArray("declared-default"));
    MakeOption later("here", 1, "DeclaredLater", "7", true);
    QCOMPARE(sp_GetIntOption("DeclaredLater"), 7);
    sp_WriteOption("DeclaredTestOption", "written");
    QCOMPARE(QByteArray(sp_GetStringOption("DeclaredTestOption").c_str()), QByteArray("written"));
}

void TestSupportPersist::optionKeysWithSlashes()
{
    const char* names[] = {"a/b", "a\\b", "a", "with space", "per%cent", "%2F", "",
                           "TableDialogDims_12345", "[section]", "x=y;z"};
    for (const char* name : names)
        sp_WriteOption(name, YString(name).concat("!"));
    for (const char* name : names)
        QCOMPARE(QByteArray(sp_GetStringOption(name).c_str()), QByteArray(name) + "!");
    QSettings s(m_dir.path() + "/config/options.ini", QSettings::IniFormat);
    QVERIFY(s.childGroups().isEmpty() || s.childGroups() == QStringList{"General"});
}

void TestSupportPersist::configSettings()
{
    int found = -1;
    QCOMPARE(setting("DialogPreferences", "Missing", &found), QByteArray("<absent>"));
    QCOMPARE(found, 0);
    QVERIFY(cfgman_WriteConfigSetting("DialogPreferences", "Key", "value 1"));
    QVERIFY(cfgman_WriteConfigSetting("Other Section", "Key", "value 2"));
    QVERIFY(cfgman_WriteConfigSetting("DialogPreferences", "a/b", "slash"));
    QVERIFY(cfgman_WriteConfigSetting("DialogPreferences", "a\\b", "backslash"));
    QVERIFY(cfgman_WriteConfigSetting("DialogPreferences", "a", "plain"));
    QVERIFY(cfgman_WriteConfigSetting("Sec/tion", "k", "section slash"));
    QVERIFY(cfgman_WriteConfigSetting("DialogPreferences", "Empty", ""));
    QCOMPARE(setting("DialogPreferences", "Key", &found), QByteArray("value 1"));
    QVERIFY(found != 0);
    QCOMPARE(setting("Other Section", "Key"), QByteArray("value 2"));
    QCOMPARE(setting("DialogPreferences", "a/b"), QByteArray("slash"));
    QCOMPARE(setting("DialogPreferences", "a\\b"), QByteArray("backslash"));
    QCOMPARE(setting("DialogPreferences", "a"), QByteArray("plain"));
    QCOMPARE(setting("Sec/tion", "k"), QByteArray("section slash"));
    QCOMPARE(setting("Sec", "tion/k"), QByteArray("<absent>"));
    QCOMPARE(setting("DialogPreferences", "Empty", &found), QByteArray(""));
    QVERIFY(found != 0);
    // Sections are separate from options.
    QVERIFY(sp_GetStringOption("Key").isEmpty());
    QVERIFY(QFile::exists(m_dir.path() + "/config/config.ini"));
}

void TestSupportPersist::configBuffer()
{
    QVERIFY(cfgman_WriteConfigSetting("DialogPreferences", "Long", "abcdef"));
    char buffer[8];
    std::memset(buffer, 'Z', sizeof buffer);
    QVERIFY(cfgman_GetConfigSetting("DialogPreferences", "Long", buffer, 3, false));
    QCOMPARE(QByteArray(buffer), QByteArray("abc"));
    QCOMPARE(buffer[4], 'Z');
    QVERIFY(cfgman_GetConfigSetting("DialogPreferences", "Long", buffer, 0, false));
    QCOMPARE(buffer[0], '\0');
    QVERIFY(cfgman_GetConfigSetting("DialogPreferences", "Long", nullptr, 10, false));
    std::memset(buffer, 'Z', sizeof buffer);
    QVERIFY(cfgman_GetConfigSetting("DialogPreferences", "Long", buffer, -1, false));
    QCOMPARE(buffer[0], 'Z');
    QVERIFY(!cfgman_GetConfigSetting("DialogPreferences", "NotThere", nullptr, 0, false));
}

void TestSupportPersist::acrossProcesses()
{
    sp_WriteOption("ParentOption", "from parent");
    // Read before the child writes, so that a cached state would show.
    QVERIFY(sp_GetStringOption("ChildOption").isEmpty());
    QCOMPARE(setting("DialogPreferences", "TableDialogDims_12345"), QByteArray("<absent>"));

    QProcess child;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("VANTRELL_CONFIG_DIR", m_dir.path() + "/config");
    child.setProcessEnvironment(env);
    child.start(QCoreApplication::applicationFilePath(), {"--child"});
    QVERIFY(child.waitForFinished(60000));
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), 0);
    const QList<QByteArray> lines = child.readAllStandardOutput().split('\n');
    QVERIFY(lines.size() >= 2);
    QCOMPARE(lines[0], QByteArray("from parent"));
    QCOMPARE(QString::fromLocal8Bit(lines[1]), m_dir.path() + "/config");

    bool found = false;
    QCOMPARE(QByteArray(sp_GetStringOption("ChildOption", &found).c_str()),
             QByteArray("hello from child"));
    QVERIFY(found);
    QVERIFY(sp_GetBoolOption("ChildFlag", nullptr));
    QCOMPARE(setting("DialogPreferences", "TableDialogDims_12345"), QByteArray("10,20,30"));
    QCOMPARE(setting("DialogPreferences", "Child/Key\\With Slash"), QByteArray("slashed"));
    // Values written before the child ran are still there.
    QCOMPARE(setting("DialogPreferences", "Key"), QByteArray("value 1"));
}

void TestSupportPersist::geometryRestored()
{
    {
        QWidget w;
        w.setObjectName("GeometryTestDialog");
        sp_AutoSaveDialogDims(&w);
        sp_AutoSaveDialogDims(&w); // idempotent
        QCOMPARE(w.findChildren<QObject*>("vt_geometry_saver").size(), 1);
        w.setGeometry(60, 70, 321, 234);
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        w.resize(333, 222);
        QTRY_COMPARE(w.size(), QSize(333, 222));
        w.hide();
    }
    QVERIFY(QFile::exists(m_dir.path() + "/config/geometry.ini"));
    QWidget again;
    again.setObjectName("GeometryTestDialog");
    sp_AutoSaveDialogDims(&again);
    QCOMPARE(again.size(), QSize(333, 222));

    QWidget other;
    other.setObjectName("OtherDialog");
    other.resize(150, 160);
    sp_AutoSaveDialogDims(&other);
    QCOMPARE(other.size(), QSize(150, 160)); // nothing saved under this name
}

void TestSupportPersist::geometryOnDestroy()
{
    auto* w = new QWidget;
    w->setObjectName("Geometry/Destroyed Dialog");
    sp_AutoSaveDialogDims(w);
    w->resize(300, 200);
    w->show();
    QVERIFY(QTest::qWaitForWindowExposed(w));
    w->resize(277, 188);
    QTRY_COMPARE(w->size(), QSize(277, 188));
    delete w; // destroyed while visible

    QWidget again;
    again.setObjectName("Geometry/Destroyed Dialog");
    sp_AutoSaveDialogDims(&again);
    QCOMPARE(again.size(), QSize(277, 188));
}

void TestSupportPersist::geometryEdgeCases()
{
    sp_AutoSaveDialogDims(nullptr);
    QWidget unnamed;
    sp_AutoSaveDialogDims(&unnamed);
    QVERIFY(unnamed.findChildren<QObject*>("vt_geometry_saver").isEmpty());
}

void TestSupportPersist::icon()
{
    sp_ApplyVantrellIcon(nullptr);
    QWidget w;
    QVERIFY(w.windowIcon().cacheKey() == QApplication::windowIcon().cacheKey() ||
            w.windowIcon().isNull());
    sp_ApplyVantrellIcon(&w);
    const QIcon icon = w.windowIcon();
    QVERIFY(!icon.isNull());
    const QList<QSize> sizes = icon.availableSizes();
    QVERIFY(sizes.contains(QSize(16, 16)));
    QVERIFY(sizes.contains(QSize(32, 32)));
    QVERIFY(sizes.contains(QSize(64, 64)));
    QWidget w2;
    sp_ApplyVantrellIcon(&w2);
    QCOMPARE(w2.windowIcon().cacheKey(), icon.cacheKey()); // built once
}

void TestSupportPersist::clipboard()
{
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->setText(QStringLiteral("clip \u00b5 text"));
    if (clipboard->text() != QStringLiteral("clip \u00b5 text"))
        QSKIP("the platform has no working clipboard");
    YString text;
    QVERIFY(sp_PasteTextFromClipboard(&text));
    QCOMPARE(QByteArray(text.c_str()), QByteArray("clip \xB5 text"));
    clipboard->clear();
    YString kept("kept");
    if (clipboard->text().isEmpty()) {
        QVERIFY(!sp_PasteTextFromClipboard(&kept));
        QCOMPARE(QByteArray(kept.c_str()), QByteArray("kept"));
    }
}

int main(int argc, char** argv)
{
    if (argc >= 2 && std::strcmp(argv[1], "--child") == 0)
        return childMain();
    QApplication app(argc, argv);
    TestSupportPersist test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_support_persist.moc"
