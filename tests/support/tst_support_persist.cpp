// Options, configuration settings and window geometry persisted by
// libvtsupport, across widgets and across processes; icon and clipboard. The
// program re-runs itself with "--child" to write from a second process.
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

// Child: prints what the parent wrote and where it looks, then writes.
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

QByteArray option(const char* name, bool* found = nullptr)
{
    return QByteArray(sp_GetStringOption(name, found).c_str());
}

QByteArray setting(const char* section, const char* key)
{
    char buffer[256];
    std::memset(buffer, 'Z', sizeof buffer);
    const int found = cfgman_GetConfigSetting(section, key, buffer, sizeof buffer - 1, false);
    return found ? QByteArray(buffer) : QByteArray("<absent>");
}

// The size a new widget of this name is given back.
QSize restoredSize(const char* name)
{
    QWidget widget;
    widget.setObjectName(name);
    widget.resize(150, 160);
    sp_AutoSaveDialogDims(&widget);
    return widget.size();
}

void showAndResize(QWidget* widget, const QSize& size)
{
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget));
    widget->resize(size);
    QTRY_COMPARE(widget->size(), size);
}

} // namespace

class TestSupportPersist : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void options_data();
    void options();
    void optionAbsentDeclaredAndFlags();
    void optionKeysWithSlashes();
    void configSettings();
    void configBuffer();
    void acrossProcesses();
    void geometry();
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
    QCOMPARE(vtkit::configDir(), m_dir.path() + "/config");
    QVERIFY(!QFile::exists(m_dir.path() + "/config"));
}

void TestSupportPersist::options_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<int>("number");
    QTest::newRow("1") << QByteArray("1") << true << 1;
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
    QCOMPARE(option("TestOption", &found), value);
    QVERIFY(found);
    found = false;
    QCOMPARE(sp_GetBoolOption("TestOption", &found), flag);
    QVERIFY(found);
    QCOMPARE(sp_GetIntOption("TestOption"), number);
    QVERIFY(QFile::exists(m_dir.path() + "/config/options.ini"));
}

void TestSupportPersist::optionAbsentDeclaredAndFlags()
{
    bool found = true;
    QVERIFY(!sp_GetBoolOption("NeverWritten", &found));
    QVERIFY(!found);
    found = true;
    QCOMPARE(option("NeverWritten", &found), QByteArray());
    QVERIFY(!found);
    QCOMPARE(sp_GetIntOption("NeverWritten"), 0);
    QCOMPARE(option(nullptr), QByteArray());

    // A declared default is the value until written, but isn't "found".
    QCOMPARE(option("DeclaredTestOption", &found), QByteArray("declared-default"));
    QVERIFY(!found);
    MakeOption later("here", 1, "DeclaredLater", "7", true);
    QCOMPARE(sp_GetIntOption("DeclaredLater"), 7);
    sp_WriteOption("DeclaredTestOption", "written");
    QCOMPARE(option("DeclaredTestOption"), QByteArray("written"));

    sp_WriteOption(YString("TestFlag"), true);
    QCOMPARE(option("TestFlag"), QByteArray("1"));
    sp_WriteOption(YString("TestFlag"), false);
    QCOMPARE(option("TestFlag", &found), QByteArray());
    QVERIFY(found);
    QVERIFY(!sp_GetBoolOption("TestFlag", nullptr));
}

void TestSupportPersist::optionKeysWithSlashes()
{
    const char* names[] = {"a/b", "a\\b", "a", "/", "%2F", "per%cent", "with space", "",
                           "TableDialogDims_12345", "[section]", "x=y;z"};
    for (const char* name : names)
        sp_WriteOption(name, YString(name).concat("!"));
    for (const char* name : names)
        QCOMPARE(option(name), QByteArray(name) + "!");
    QSettings s(m_dir.path() + "/config/options.ini", QSettings::IniFormat);
    QVERIFY(s.childGroups().isEmpty() || s.childGroups() == QStringList{"General"});
}

void TestSupportPersist::configSettings()
{
    QCOMPARE(setting("DialogPreferences", "Missing"), QByteArray("<absent>"));
    QVERIFY(cfgman_WriteConfigSetting("DialogPreferences", "Key", "value 1"));
    QVERIFY(cfgman_WriteConfigSetting("Other Section", "Key", "value 2"));
    QVERIFY(cfgman_WriteConfigSetting("Sec/tion", "k", "section slash"));
    QVERIFY(cfgman_WriteConfigSetting("DialogPreferences", "Empty", ""));
    QCOMPARE(setting("DialogPreferences", "Key"), QByteArray("value 1"));
    QCOMPARE(setting("Other Section", "Key"), QByteArray("value 2"));
    QCOMPARE(setting("Sec/tion", "k"), QByteArray("section slash"));
    QCOMPARE(setting("Sec", "tion/k"), QByteArray("<absent>"));
    QCOMPARE(setting("DialogPreferences", "Empty"), QByteArray(""));
    // Sections are separate from options.
    QVERIFY(sp_GetStringOption("Key").isEmpty());
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
    QCOMPARE(option("ChildOption", &found), QByteArray("hello from child"));
    QVERIFY(found);
    QVERIFY(sp_GetBoolOption("ChildFlag", nullptr));
    QCOMPARE(setting("DialogPreferences", "TableDialogDims_12345"), QByteArray("10,20,30"));
    QCOMPARE(setting("DialogPreferences", "Child/Key\\With Slash"), QByteArray("slashed"));
    // Values written before the child ran are still there.
    QCOMPARE(setting("DialogPreferences", "Key"), QByteArray("value 1"));
}

void TestSupportPersist::geometry()
{
    {
        QWidget w;
        w.setObjectName("GeometryTestDialog");
        sp_AutoSaveDialogDims(&w);
        sp_AutoSaveDialogDims(&w); // a second call adds nothing
        QCOMPARE(w.findChildren<QObject*>("vt_geometry_saver").size(), 1);
        w.setGeometry(60, 70, 321, 234);
        showAndResize(&w, QSize(333, 222));
        w.hide();
        QVERIFY(QFile::exists(m_dir.path() + "/config/geometry.ini"));
        QCOMPARE(restoredSize("GeometryTestDialog"), QSize(333, 222));
    }
    QCOMPARE(restoredSize("OtherDialog"), QSize(150, 160)); // nothing saved under this name

    auto* w = new QWidget;
    w->setObjectName("Geometry/Destroyed Dialog");
    sp_AutoSaveDialogDims(w);
    w->resize(300, 200);
    showAndResize(w, QSize(277, 188));
    delete w; // destroyed while visible
    QCOMPARE(restoredSize("Geometry/Destroyed Dialog"), QSize(277, 188));

    sp_AutoSaveDialogDims(nullptr);
    QWidget unnamed;
    sp_AutoSaveDialogDims(&unnamed);
    QVERIFY(unnamed.findChildren<QObject*>("vt_geometry_saver").isEmpty());
}

void TestSupportPersist::icon()
{
    sp_ApplyVantrellIcon(nullptr);
    QWidget w, w2;
    sp_ApplyVantrellIcon(&w);
    const QList<QSize> sizes = w.windowIcon().availableSizes();
    QVERIFY(sizes.contains(QSize(16, 16)));
    QVERIFY(sizes.contains(QSize(32, 32)));
    QVERIFY(sizes.contains(QSize(64, 64)));
    sp_ApplyVantrellIcon(&w2);
    QCOMPARE(w2.windowIcon().cacheKey(), w.windowIcon().cacheKey()); // built once
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
    if (clipboard->text().isEmpty()) {
        QVERIFY(!sp_PasteTextFromClipboard(&text));
        QCOMPARE(QByteArray(text.c_str()), QByteArray("clip \xB5 text"));
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
