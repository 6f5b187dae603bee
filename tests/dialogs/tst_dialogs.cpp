// Select2Dialog, ListSubsetDialog, TableDialog and TableEditor, called
// through the engine on the built module and answered as a user would.
#include "dialogs.h"
#include "engine.h"
#include "hostsupport.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <limits>

using vtkit::CallResult;
using vtkit::ScriptValue;

namespace {

using Args = QList<QStringList>;

ScriptValue strings(const QStringList& texts)
{
    std::vector<std::string> out;
    for (const QString& text : texts)
        out.push_back(text.toStdString());
    return ScriptValue::fromStrings(out);
}

std::vector<ScriptValue> stringArgs(const Args& args)
{
    std::vector<ScriptValue> out;
    for (const QStringList& arg : args)
        out.push_back(strings(arg));
    return out;
}

QStringList textsOf(const CallResult& result)
{
    QStringList out;
    for (const std::string& s : result.value.strings)
        out << QString::fromStdString(s);
    return out;
}

// Rows of empty cells, as TableDialog returns an untouched table.
QStringList emptyRows(int rows, int columns)
{
    QStringList out;
    for (int row = 0; row < rows; ++row)
        out << QString(columns, QLatin1Char(';'));
    return out;
}

// Looks at the dialog a call opens before the driver answers it. The
// answer script starts with {"wait": "probed"}: the probe sets that title
// once it is done, so its look and the driver's steps never race.
class Probe {
public:
    explicit Probe(std::function<void(QDialog*)> look)
        : m_look(std::move(look))
    {
        m_timer.setInterval(5);
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            m_timer.stop();
            m_ran = true;
            m_look(dialog);
            dialog->setWindowTitle(QStringLiteral("probed"));
        });
        m_timer.start();
    }

    bool ran() const { return m_ran; }

private:
    std::function<void(QDialog*)> m_look;
    QTimer m_timer;
    bool m_ran = false;
};

template <class T>
T* child(QDialog* dialog, const char* name)
{
    return dialog->findChild<T*>(QLatin1String(name));
}

bool shown(QDialog* dialog, const char* name)
{
    const QWidget* w = child<QWidget>(dialog, name);
    return w && w->isVisible();
}

QString widthsOption(const QString& key)
{
    return QStringLiteral("TableDialogDims_") + QString::number(toYs(key).hashValue());
}

} // namespace

Q_DECLARE_METATYPE(Args)

class TestDialogs : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void listSubset_data();
    void listSubset();
    void listSubsetLook_data();
    void listSubsetLook();
    void listSubsetDoubleClick();

    void select2_data();
    void select2();
    void select2Look_data();
    void select2Look();

    void tableDialog_data();
    void tableDialog();
    void tableDialogLook();

    void tableEditor_data();
    void tableEditor();
    void tableEditorLook();
    void tableEditorWidths();

private:
    // Runs the call with the answer steps; false (and a test failure) when
    // the driver could not carry them out.
    bool run(const char* function, const std::vector<ScriptValue>& args, const QByteArray& steps,
             CallResult* result);

    vtkit::Engine m_engine;
    QTemporaryDir m_config;
};

void TestDialogs::initTestCase()
{
    // Never touch the settings of whoever runs the test by hand.
    if (qEnvironmentVariableIsEmpty("VANTRELL_CONFIG_DIR")) {
        QVERIFY(m_config.isValid());
        qputenv("VANTRELL_CONFIG_DIR", m_config.path().toLocal8Bit());
    }
    std::string error;
    QVERIFY2(m_engine.load(VT_MODULE_PATH, &error), error.c_str());
    m_engine.setDialogRunner(&vtkit::runBoundDialog);
}

void TestDialogs::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QWidgetList left = QApplication::topLevelWidgets();
    for (const QWidget* widget : left)
        qWarning() << "left open:" << widget;
    QCOMPARE(left.size(), 0);
}

bool TestDialogs::run(const char* function, const std::vector<ScriptValue>& args,
                      const QByteArray& steps, CallResult* result)
{
    vtkit::AnswerScript script;
    QString error;
    if (!vtkit::AnswerScript::fromJson(steps, &script, &error)) {
        qWarning() << "bad answer script:" << error;
        return false;
    }
    vtkit::DialogDriver driver(script);
    *result = driver.call(m_engine, function, args);
    if (driver.failed()) {
        qWarning() << "driver:" << driver.failure();
        return false;
    }
    if (result->status != CallResult::Status::Ok) {
        qWarning() << "call:" << QString::fromStdString(result->error);
        return false;
    }
    return true;
}

// ------------------------------------------------------------ ListSubsetDialog

void TestDialogs::listSubset_data()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QByteArray>("steps");
    QTest::addColumn<QStringList>("expected");

    const QByteArray accept = R"([{"accept": true}])";
    const QString sel = QStringLiteral("[selected]");
    const QString notSel = QStringLiteral("[notselected]");

    QTest::newRow("add selected item")
        << Args{{"b", "a"}, {""}}
        << QByteArray(R"([{"choose": "listBoxAvailable", "texts": ["a"]},
                         {"click": "addSelectedButton"}, {"accept": true}])")
        << QStringList{sel, "a", notSel, "b"};
    QTest::newRow("one empty string each opens empty lists")
        << Args{{""}, {""}} << accept << QStringList{sel, notSel};
    QTest::newRow("empty string among others is an item")
        << Args{{"a", ""}} << accept << QStringList{sel, notSel, "", "a"};
    QTest::newRow("lists come sorted")
        << Args{{"q", "c", "m"}, {"z", "b"}} << accept << QStringList{sel, "b", "z", notSel, "c", "m", "q"};
    QTest::newRow("duplicates stay two items")
        << Args{{"b", "a", "b"}} << accept << QStringList{sel, notSel, "a", "b", "b"};
    QTest::newRow("add all moves duplicates too")
        << Args{{"b", "a", "b"}, {"c"}}
        << QByteArray(R"([{"click": "addAllButton"}, {"accept": true}])")
        << QStringList{sel, "a", "b", "b", "c", notSel};
    QTest::newRow("remove selected sorts both lists")
        << Args{{"m"}, {"z", "a"}}
        << QByteArray(R"([{"choose": "listBoxSelected", "texts": ["z"]},
                         {"click": "removeSelectedButton"}, {"accept": true}])")
        << QStringList{sel, "a", notSel, "m", "z"};
    QTest::newRow("several selected move together")
        << Args{{"d", "c", "b", "a"}}
        << QByteArray(R"([{"choose": "listBoxAvailable", "texts": ["d", "b"]},
                         {"click": "addSelectedButton"}, {"accept": true}])")
        << QStringList{sel, "b", "d", notSel, "a", "c"};
    QTest::newRow("remove all")
        << Args{{"x"}, {"c", "a"}}
        << QByteArray(R"([{"click": "removeAllButton"}, {"accept": true}])")
        << QStringList{sel, notSel, "a", "c", "x"};
    QTest::newRow("cancel gives one empty string")
        << Args{{"a"}, {"b"}} << QByteArray(R"([{"cancel": true}])") << QStringList{""};
    QTest::newRow("cancel after moving gives one empty string")
        << Args{{"a"}, {"b"}}
        << QByteArray(R"([{"click": "addAllButton"}, {"click": "cancelButton"}])")
        << QStringList{""};
}

void TestDialogs::listSubset()
{
    QFETCH(Args, args);
    QFETCH(QByteArray, steps);
    QFETCH(QStringList, expected);

    CallResult result;
    QVERIFY(run("ListSubsetDialog", stringArgs(args), steps, &result));
    QVERIFY(result.hasResult);
    QCOMPARE(textsOf(result), expected);
}

void TestDialogs::listSubsetLook_data()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QString>("availableTitle");
    QTest::addColumn<QString>("selectedTitle");

    QTest::newRow("titles from arguments 2 and 3")
        << Args{{"a"}, {"b"}, {"Spare parts"}, {"Chosen parts"}} << "Spare parts" << "Chosen parts";
    QTest::newRow("form titles without them") << Args{{"a"}, {"b"}} << "Available" << "Selected";
}

void TestDialogs::listSubsetLook()
{
    QFETCH(Args, args);
    QFETCH(QString, availableTitle);
    QFETCH(QString, selectedTitle);

    QString title, name, available, selected;
    bool helpHint = true;
    int availableMode = -1, selectedMode = -1;
    Probe probe([&](QDialog* dialog) {
        title = dialog->windowTitle();
        name = dialog->objectName();
        helpHint = dialog->windowFlags() & Qt::WindowContextHelpButtonHint;
        if (auto* label = child<QLabel>(dialog, "labelAvailable"))
            available = label->text();
        if (auto* label = child<QLabel>(dialog, "labelSelected"))
            selected = label->text();
        if (auto* list = child<QListWidget>(dialog, "listBoxAvailable"))
            availableMode = list->selectionMode();
        if (auto* list = child<QListWidget>(dialog, "listBoxSelected"))
            selectedMode = list->selectionMode();
    });
    CallResult result;
    QVERIFY(run("ListSubsetDialog", stringArgs(args), R"([{"wait": "probed"}, {"accept": true}])",
                &result));
    QVERIFY(probe.ran());
    QCOMPARE(title, QStringLiteral("List Selection"));
    QCOMPARE(name, QStringLiteral("ListSubsetDialog"));
    QVERIFY(!helpHint);
    QCOMPARE(available, availableTitle);
    QCOMPARE(selected, selectedTitle);
    QCOMPARE(availableMode, int(QAbstractItemView::ExtendedSelection));
    QCOMPARE(selectedMode, int(QAbstractItemView::ExtendedSelection));
    QCOMPARE(textsOf(result), (QStringList{"[selected]", "b", "[notselected]", "a"}));
}

void TestDialogs::listSubsetDoubleClick()
{
    // A double click moves the clicked item across, either way.
    Probe probe([](QDialog* dialog) {
        for (const char* name : {"listBoxAvailable", "listBoxSelected"}) {
            auto* list = child<QListWidget>(dialog, name);
            QVERIFY(list && list->count() > 0);
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                               list->visualItemRect(list->item(0)).center());
        }
    });
    CallResult result;
    QVERIFY(run("ListSubsetDialog", stringArgs({{"b", "a"}, {"c"}}),
                R"([{"wait": "probed"}, {"accept": true}])", &result));
    QVERIFY(probe.ran());
    // "a" went over, then the selected list's first item ("a" again, sorted
    // before "c") came back.
    QCOMPARE(textsOf(result), (QStringList{"[selected]", "c", "[notselected]", "a", "b"}));
}

// --------------------------------------------------------------- Select2Dialog

void TestDialogs::select2_data()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QByteArray>("steps");
    QTest::addColumn<bool>("hasResult");
    QTest::addColumn<QStringList>("expected");

    const Args lists{{"b", "y", "Top", "Left", "Right"}, {"a|b|c", "x|y"}};
    QTest::newRow("initial selections come back")
        << lists << QByteArray(R"([{"accept": true}])") << true << QStringList{"b", "y"};
    QTest::newRow("choices in both lists")
        << lists
        << QByteArray(R"([{"choose": "listBoxLeft", "text": "c"},
                         {"choose": "listBoxRight", "text": "x"}, {"click": "okButton"}])")
        << true << QStringList{"c", "x"};
    QTest::newRow("selection not among items selects nothing")
        << Args{{"zz", "y"}, {"a|b", "x|y"}} << QByteArray(R"([{"accept": true}])") << true
        << QStringList{"", "y"};
    QTest::newRow("no arguments")
        << Args{} << QByteArray(R"([{"accept": true}])") << true << QStringList{"", ""};
    QTest::newRow("cancel button gives no result")
        << lists << QByteArray(R"([{"choose": "listBoxLeft", "text": "c"},
                                   {"click": "cancelButton"}])")
        << false << QStringList{};
}

void TestDialogs::select2()
{
    QFETCH(Args, args);
    QFETCH(QByteArray, steps);
    QFETCH(bool, hasResult);
    QFETCH(QStringList, expected);

    CallResult result;
    QVERIFY(run("Select2Dialog", stringArgs(args), steps, &result));
    QCOMPARE(result.hasResult, hasResult);
    if (hasResult)
        QCOMPARE(textsOf(result), expected);
}

void TestDialogs::select2Look_data()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QStringList>("left");

    QTest::newRow("from the call")
        << Args{{"b", "y", "Top", "Left", "Right"}, {"a|b|c", "x|y"}}
        << QStringList{"Top", "Left", "Right"} << QStringList{"a", "b", "c"};
    QTest::newRow("form defaults without arguments")
        << Args{} << QStringList{"Message1", "Message2", "Message3"} << QStringList{};
}

void TestDialogs::select2Look()
{
    QFETCH(Args, args);
    QFETCH(QStringList, messages);
    QFETCH(QStringList, left);

    QString title;
    QStringList shown, items;
    bool helpHint = true;
    Probe probe([&](QDialog* dialog) {
        title = dialog->windowTitle();
        helpHint = dialog->windowFlags() & Qt::WindowContextHelpButtonHint;
        for (const char* name : {"labelMessage1", "labelMessage2", "labelMessage3"}) {
            if (auto* label = child<QLabel>(dialog, name))
                shown << label->text();
        }
        if (auto* list = child<QListWidget>(dialog, "listBoxLeft")) {
            for (int row = 0; row < list->count(); ++row)
                items << list->item(row)->text();
        }
    });
    CallResult result;
    QVERIFY(run("Select2Dialog", stringArgs(args), R"([{"wait": "probed"}, {"cancel": true}])",
                &result));
    QVERIFY(probe.ran());
    QVERIFY(!result.hasResult);
    QCOMPARE(title, QStringLiteral("Select Items"));
    QVERIFY(!helpHint);
    QCOMPARE(shown, messages);
    QCOMPARE(items, left);
}

// ----------------------------------------------------------------- TableDialog

void TestDialogs::tableDialog_data()
{
    QTest::addColumn<QVector<double>>("counts");
    QTest::addColumn<QStringList>("rows"); // argument 1; empty: absent
    QTest::addColumn<QByteArray>("steps");
    QTest::addColumn<bool>("hasResult");
    QTest::addColumn<QStringList>("expected");

    const QByteArray accept = R"([{"accept": true}])";
    const double nan = std::numeric_limits<double>::quiet_NaN();

    QTest::newRow("non-positive counts give 10 by 10")
        << QVector<double>{0, -3} << QStringList{} << accept << true << emptyRows(10, 10);
    QTest::newRow("single number sets rows, 10 columns")
        << QVector<double>{2} << QStringList{} << accept << true << emptyRows(2, 10);
    QTest::newRow("counts are truncated")
        << QVector<double>{2.9, 3.7} << QStringList{} << accept << true << emptyRows(2, 3);
    QTest::newRow("fraction below one gives 10")
        << QVector<double>{0.5, 1} << QStringList{} << accept << true << emptyRows(10, 1);
    QTest::newRow("NaN gives 10") << QVector<double>{nan, 1} << QStringList{} << accept << true
                                  << emptyRows(10, 1);
    QTest::newRow("huge count is bounded, not fatal")
        << QVector<double>{1, 1e300} << QStringList{"a"} << accept << true
        << QStringList{"a" + QString(1000, QLatin1Char(';'))};
    QTest::newRow("row with more parts than columns loses the rest")
        << QVector<double>{1, 2} << QStringList{"a;b;c;d"} << accept << true
        << QStringList{"a;b;"};
    QTest::newRow("rows beyond the count are dropped")
        << QVector<double>{1, 2} << QStringList{"a;b", "c;d"} << accept << true
        << QStringList{"a;b;"};
    QTest::newRow("short rows and missing rows are empty cells")
        << QVector<double>{3, 3} << QStringList{"a", ""} << accept << true
        << QStringList{"a;;;", ";;;", ";;;"};
    QTest::newRow("result passes back unchanged")
        << QVector<double>{2, 3} << QStringList{"a;b;;", ";;z;"} << accept << true
        << QStringList{"a;b;;", ";;z;"};
    QTest::newRow("latin-1 text survives")
        << QVector<double>{1, 1} << QStringList{QString::fromLatin1("\xb5V")} << accept << true
        << QStringList{QString::fromLatin1("\xb5V;")};
    QTest::newRow("cell edit")
        << QVector<double>{1, 2} << QStringList{"a;b"}
        << QByteArray(R"([{"cell": "tableWidget", "row": 0, "column": 1, "text": "hi"},
                         {"accept": true}])")
        << true << QStringList{"a;hi;"};
    QTest::newRow("add row")
        << QVector<double>{1, 2} << QStringList{"a;b"}
        << QByteArray(R"([{"click": "addRowButton"}, {"accept": true}])") << true
        << QStringList{"a;b;", ";;"};
    QTest::newRow("add row then remove it")
        << QVector<double>{1, 1} << QStringList{"a"}
        << QByteArray(R"([{"click": "addRowButton"}, {"click": "removeRowButton"},
                         {"accept": true}])")
        << true << QStringList{"a;"};
    QTest::newRow("add column")
        << QVector<double>{1, 1} << QStringList{"a"}
        << QByteArray(R"([{"click": "addColumnButton"}, {"accept": true}])") << true
        << QStringList{"a;;"};
    QTest::newRow("remove column takes the last")
        << QVector<double>{1, 2} << QStringList{"a;b"}
        << QByteArray(R"([{"click": "removeColumnButton"}, {"accept": true}])") << true
        << QStringList{"a;"};
    QTest::newRow("removing every column leaves empty rows")
        << QVector<double>{2, 1} << QStringList{"a", "b"}
        << QByteArray(R"([{"click": "removeColumnButton"}, {"click": "removeColumnButton"},
                         {"accept": true}])")
        << true << QStringList{"", ""};
    QTest::newRow("cancel gives no result")
        << QVector<double>{1, 1} << QStringList{"a"}
        << QByteArray(R"([{"click": "addRowButton"}, {"click": "cancelButton"}])") << false
        << QStringList{};
}

void TestDialogs::tableDialog()
{
    QFETCH(QVector<double>, counts);
    QFETCH(QStringList, rows);
    QFETCH(QByteArray, steps);
    QFETCH(bool, hasResult);
    QFETCH(QStringList, expected);

    std::vector<ScriptValue> args{ScriptValue::fromReals({counts.begin(), counts.end()})};
    if (!rows.isEmpty())
        args.push_back(strings(rows));

    CallResult result;
    QVERIFY(run("TableDialog", args, steps, &result));
    QCOMPARE(result.hasResult, hasResult);
    if (hasResult)
        QCOMPARE(textsOf(result), expected);
}

// ----------------------------------------------------------------- TableEditor

void TestDialogs::tableEditor_data()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QByteArray>("steps");
    QTest::addColumn<bool>("hasResult");
    QTest::addColumn<QStringList>("expected");

    const QByteArray accept = R"([{"accept": true}])";
    const QStringList texts{"A|B", "", ""};

    QTest::newRow("values kept per column")
        << Args{{"on|off", "l|m|h"}, {"off|on", "h|l"}, texts} << accept << true
        << QStringList{"off|on", "h|l"};
    QTest::newRow("value not among choices takes the first")
        << Args{{"on|off"}, {"zz|off"}, texts} << accept << true << QStringList{"on|off"};
    QTest::newRow("match is exact")
        << Args{{"On|on"}, {"on|ON|o"}, texts} << accept << true << QStringList{"on|On|On"};
    QTest::newRow("empty choice is a choice")
        << Args{{"x|"}, {"|x"}, texts} << accept << true << QStringList{"|x"};
    QTest::newRow("column without element gets no cells")
        << Args{{"a|b", "x|y"}, {"b"}, texts} << accept << true << QStringList{"b", ""};
    QTest::newRow("elements beyond the columns are ignored")
        << Args{{"a|b"}, {"b", "zz|zz"}, texts} << accept << true << QStringList{"b"};
    QTest::newRow("short column skips rows without a box")
        << Args{{"a|b", "x|y"}, {"b|a|b", "y"}, texts} << accept << true
        << QStringList{"b|a|b", "y"};
    QTest::newRow("added row takes first choices everywhere")
        << Args{{"a|b", "x|y"}, {"b"}, texts}
        << QByteArray(R"([{"click": "addRowButton"}, {"accept": true}])") << true
        << QStringList{"b|a", "x"};
    QTest::newRow("pick in a cell")
        << Args{{"a|b|c"}, {"a|a"}, texts}
        << QByteArray(R"([{"cell": "tableWidget", "row": 1, "column": 0, "text": "c"},
                         {"accept": true}])")
        << true << QStringList{"a|c"};
    QTest::newRow("deleting all rows leaves one empty string per column")
        << Args{{"a|b", "x|y"}, {"b|a", "y"}, texts}
        << QByteArray(R"([{"click": "addRowButton"}, {"click": "removeRowButton"},
                         {"click": "removeRowButton"}, {"click": "removeRowButton"},
                         {"accept": true}])")
        << true << QStringList{"", ""};
    QTest::newRow("cancel gives no result")
        << Args{{"a|b"}, {"b"}, texts}
        << QByteArray(R"([{"click": "addRowButton"}, {"click": "cancelButton"}])") << false
        << QStringList{};
}

void TestDialogs::tableEditor()
{
    QFETCH(Args, args);
    QFETCH(QByteArray, steps);
    QFETCH(bool, hasResult);
    QFETCH(QStringList, expected);

    CallResult result;
    QVERIFY(run("TableEditor", stringArgs(args), steps, &result));
    QCOMPARE(result.hasResult, hasResult);
    if (hasResult)
        QCOMPARE(textsOf(result), expected);
}

void TestDialogs::tableEditorLook()
{
    QString title, message, addRow, removeRow;
    QStringList columnHeaders, rowHeaders;
    bool columnButtonsShown = true, editable = true;
    int selectionMode = -1, selectionBehavior = -1;
    Probe probe([&](QDialog* dialog) {
        title = dialog->windowTitle();
        if (auto* label = child<QLabel>(dialog, "messageLabel"))
            message = label->text();
        if (auto* button = child<QPushButton>(dialog, "addRowButton"))
            addRow = button->text();
        if (auto* button = child<QPushButton>(dialog, "removeRowButton"))
            removeRow = button->text();
        columnButtonsShown =
            shown(dialog, "addColumnButton") || shown(dialog, "removeColumnButton");
        auto* table = child<QTableWidget>(dialog, "tableWidget");
        QVERIFY(table);
        selectionMode = table->selectionMode();
        selectionBehavior = table->selectionBehavior();
        for (int column = 0; column < table->columnCount(); ++column)
            columnHeaders << table->model()->headerData(column, Qt::Horizontal).toString();
        for (int row = 0; row < table->rowCount(); ++row)
            rowHeaders << table->model()->headerData(row, Qt::Vertical).toString();
        auto* box = qobject_cast<QComboBox*>(table->cellWidget(0, 0));
        QVERIFY(box);
        editable = box->isEditable();
    });
    CallResult result;
    QVERIFY(run("TableEditor",
                stringArgs({{"a|b", "x|y"},
                            {"a|b", "y"},
                            {"Gate|Level", "First", "New Gate|Drop Gate"},
                            {"Gates", "Pick one per row"}}),
                R"([{"wait": "probed"}, {"click": "New Gate"}, {"accept": true}])", &result));
    QVERIFY(probe.ran());
    QCOMPARE(title, QStringLiteral("Gates"));
    QCOMPARE(message, QStringLiteral("Pick one per row"));
    QCOMPARE(addRow, QStringLiteral("New Gate"));
    QCOMPARE(removeRow, QStringLiteral("Drop Gate"));
    QVERIFY(!columnButtonsShown);
    QVERIFY(!editable);
    QCOMPARE(selectionMode, int(QAbstractItemView::SingleSelection));
    QCOMPARE(selectionBehavior, int(QAbstractItemView::SelectRows));
    QCOMPARE(columnHeaders, (QStringList{"Gate", "Level"}));
    QCOMPARE(rowHeaders, (QStringList{"First", "2"}));
    QCOMPARE(textsOf(result), (QStringList{"a|b|a", "y|x"}));
}

void TestDialogs::tableDialogLook()
{
    QString title, name;
    bool messageShown = true, helpHint = true;
    Probe probe([&](QDialog* dialog) {
        title = dialog->windowTitle();
        name = dialog->objectName();
        helpHint = dialog->windowFlags() & Qt::WindowContextHelpButtonHint;
        const QLabel* label = child<QLabel>(dialog, "messageLabel");
        messageShown = !label || (label->isVisible() && !label->text().isEmpty());
    });
    CallResult result;
    QVERIFY(run("TableDialog", {ScriptValue::fromReals({1, 1})},
                R"([{"wait": "probed"}, {"accept": true}])", &result));
    QVERIFY(probe.ran());
    QCOMPARE(title, QStringLiteral("Table Dialog"));
    QCOMPARE(name, QStringLiteral("TableDialog"));
    QVERIFY(!helpHint);
    QVERIFY(!messageShown);
    QCOMPARE(textsOf(result), QStringList{";"});
}

void TestDialogs::tableEditorWidths()
{
    const Args args{{"a|b", "x|y"}, {"a", "x"}, {"Left|Right", "", ""}, {"Widths"}};
    const QString option = widthsOption(QStringLiteral("WidthsLeftRight"));
    const QByteArray name = option.toLatin1();

    // Saved on Cancel as well, one width per column.
    CallResult result;
    QVERIFY(run("TableEditor", stringArgs(args), R"([{"cancel": true}])", &result));
    QVERIFY(!result.hasResult);
    bool found = false;
    const QStringList first = toQs(sp_GetStringOption(name.constData(), &found)).split('|');
    QVERIFY2(found, name.constData());
    QCOMPARE(first.size(), 2);
    for (const QString& width : first)
        QVERIFY2(width.toInt() > 0, qPrintable(width));

    // A remembered width wider than the contents is kept; a narrower one
    // gives way to the contents.
    sp_WriteOption(toYs(option), YString("300|3"));
    QVERIFY(run("TableEditor", stringArgs(args), R"([{"accept": true}])", &result));
    QCOMPARE(textsOf(result), (QStringList{"a", "x"}));
    const QStringList second = toQs(sp_GetStringOption(name.constData())).split('|');
    QCOMPARE(second.size(), 2);
    QCOMPARE(second.at(0), QStringLiteral("300"));
    QVERIFY2(second.at(1).toInt() > 3, qPrintable(second.at(1)));

    // Another title is another table.
    const QString other = widthsOption(QStringLiteral("OtherLeftRight"));
    QVERIFY(run("TableEditor",
                stringArgs({{"a|b", "x|y"}, {"a", "x"}, {"Left|Right", "", ""}, {"Other"}}),
                R"([{"accept": true}])", &result));
    QVERIFY(sp_GetStringOption(other.toLatin1().constData(), &found).length() > 0 && found);
    QCOMPARE(toQs(sp_GetStringOption(name.constData())).split('|').at(0), QStringLiteral("300"));
}

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
