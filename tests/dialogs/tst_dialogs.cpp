// Select2Dialog, ListSubsetDialog, TableDialog and TableEditor, called
// through the engine on the built module and answered as a user would.
#include "dialogtest.h"
#include "dialogs.h"
#include "engine.h"
#include "hostsupport.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QJsonArray>
#include <QListWidget>
#include <QMap>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <limits>

using namespace dialogtest;
Q_DECLARE_METATYPE(Args)

namespace {

// TableDialog's arguments: the counts, then the rows when there are any.
Args tableArgs(std::vector<double> counts, const QStringList& rows = {})
{
    Args out{ScriptValue::fromReals(std::move(counts))};
    if (!rows.isEmpty())
        out.push_back(strings(rows));
    return out;
}

// Rows of empty cells, as TableDialog returns an untouched table.
QStringList emptyRows(int rows, int columns)
{
    return QVector<QString>(rows, QString(columns, QLatin1Char(';'))).toList();
}

// A fact that an inspect line tells: "windowTitle" and "objectName" of the
// dialog, or "child.field" with a field of the line. Gives the object to
// inspect and the field, or false.
bool inspectable(const QString& key, QString* object, QString* field)
{
    static const QStringList fields{QStringLiteral("text"), QStringLiteral("visible"), QStringLiteral("items")};
    if (key == QLatin1String("windowTitle") || key == QLatin1String("objectName")) {
        object->clear();
        *field = key == QLatin1String("windowTitle") ? QStringLiteral("title") : QStringLiteral("objectName");
        return true;
    }
    *object = key.section(QLatin1Char('.'), 0, 0);
    *field = key.section(QLatin1Char('.'), 1);
    return key.contains(QLatin1Char('.')) && fields.contains(*field);
}

// One fact about a shown dialog that no inspect line tells. "help" is its
// context help button,
// "property" one of its properties and "child.property" one of a child's;
// for an item view, "items" lists the first column, "columns" and "rows"
// the headers, and "cellEditable" tells whether the box in cell (0, 0) is.
QString fact(QDialog* dialog, const QString& key)
{
    if (key == QLatin1String("help"))
        return QVariant(bool(dialog->windowFlags() & Qt::WindowContextHelpButtonHint)).toString();
    const QString property = key.section(QLatin1Char('.'), -1);
    QObject* object = dialog;
    if (key.contains(QLatin1Char('.')))
        object = dialog->findChild<QWidget*>(key.section(QLatin1Char('.'), 0, 0));
    if (!object)
        return QStringLiteral("absent");
    if (auto* view = qobject_cast<QAbstractItemView*>(object)) {
        const QAbstractItemModel* model = view->model();
        QStringList out;
        if (property == QLatin1String("items") || property == QLatin1String("rows")) {
            for (int row = 0; row < model->rowCount(); ++row)
                out << (property == QLatin1String("rows") ? model->headerData(row, Qt::Vertical)
                                                          : model->index(row, 0).data()).toString();
            return out.join(QLatin1Char('|'));
        }
        if (property == QLatin1String("columns")) {
            for (int column = 0; column < model->columnCount(); ++column)
                out << model->headerData(column, Qt::Horizontal).toString();
            return out.join(QLatin1Char('|'));
        }
        if (property == QLatin1String("cellEditable")) {
            auto* box = qobject_cast<QComboBox*>(view->indexWidget(model->index(0, 0)));
            return box ? QVariant(box->isEditable()).toString() : QStringLiteral("no box");
        }
    }
    return object->property(property.toLatin1()).toString();
}

QString widthsOption(const QString& key)
{
    return QStringLiteral("TableDialogDims_") + QString::number(toYs(key).hashValue());
}

} // namespace

class TestDialogs : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void listSubset_data();
    void listSubset() { check("ListSubsetDialog"); }
    void listSubsetDoubleClick();
    void select2_data();
    void select2() { check("Select2Dialog"); }
    void tableDialog_data();
    void tableDialog() { check("TableDialog"); }
    void tableEditor_data();
    void tableEditor() { check("TableEditor"); }
    void tableEditorWidths();

private:
    // Every table has these columns; facts ("key=value", see inspectable()
    // and fact()) are taken from the dialog before the steps run.
    static void columns();
    void check(const char* function);

    vtkit::Engine m_engine;
    QTemporaryDir m_config;
};

void TestDialogs::initTestCase()
{
    QVERIFY(loadModule(m_engine, &m_config));
}

void TestDialogs::cleanup()
{
    QVERIFY(noTopLevelsLeft());
}

void TestDialogs::columns()
{
    QTest::addColumn<Args>("args");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<bool>("hasResult");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QStringList>("facts");
}

void TestDialogs::check(const char* function)
{
    QFETCH(Args, args);
    QFETCH(QString, steps);
    QFETCH(bool, hasResult);
    QFETCH(QStringList, expected);
    QFETCH(QStringList, facts);

    // Facts an inspect line tells come from inspect steps ahead of the
    // row's own; the others are read from the dialog at the first of them.
    QStringList objects;
    QMap<QString, QString> looked;
    for (const QString& f : facts) {
        QString object, field;
        if (!inspectable(f.section(QLatin1Char('='), 0, 0), &object, &field))
            object.clear();
        if (!objects.contains(object))
            objects << object;
    }
    std::function<void(QDialog*)> look;
    if (!facts.isEmpty()) {
        look = [&](QDialog* dialog) {
            for (const QString& f : facts) {
                const QString key = f.section(QLatin1Char('='), 0, 0);
                QString object, field;
                if (!inspectable(key, &object, &field))
                    looked[key] = fact(dialog, key);
            }
        };
    }
    const Answered a = answer(m_engine, function, args, withInspections(steps.toUtf8(), objects), look);
    QVERIFY2(a.ok, qPrintable(a.failure));
    QStringList seen;
    for (const QString& f : facts) {
        const QString key = f.section(QLatin1Char('='), 0, 0);
        QString object, field;
        const QString value = inspectable(key, &object, &field) ? a.inspectedText(object + '.' + field)
                                                                 : looked.value(key);
        seen << key + QLatin1Char('=') + value;
    }
    QCOMPARE(seen, facts);
    QCOMPARE(a.result.hasResult, hasResult);
    if (hasResult)
        QCOMPARE(textsOf(a.result), expected);
}

// ------------------------------------------------------------ ListSubsetDialog

void TestDialogs::listSubset_data()
{
    columns();
    const QString accept = R"([{"accept": true}])";
    const QString sel = QStringLiteral("[selected]");
    const QString notSel = QStringLiteral("[notselected]");
    const QString extended = QString::number(QAbstractItemView::ExtendedSelection);
    const QStringList none;

    QTest::newRow("titles from arguments 2 and 3")
        << stringArgs({{"a"}, {"b"}, {"Spare parts"}, {"Chosen parts"}}) << accept << true
        << QStringList{sel, "b", notSel, "a"}
        << QStringList{"windowTitle=List Selection", "objectName=ListSubsetDialog", "help=false",
                       "labelAvailable.text=Spare parts", "labelSelected.text=Chosen parts",
                       "listBoxAvailable.selectionMode=" + extended, "listBoxSelected.selectionMode=" + extended};
    QTest::newRow("one empty string each opens empty lists, form titles")
        << stringArgs({{""}, {""}}) << accept << true << QStringList{sel, notSel}
        << QStringList{"labelAvailable.text=Available", "labelSelected.text=Selected"};
    QTest::newRow("empty string among others is an item")
        << stringArgs({{"a", ""}}) << accept << true << QStringList{sel, notSel, "", "a"} << none;
    QTest::newRow("lists come sorted, duplicates stay two items")
        << stringArgs({{"q", "c", "q"}, {"z", "b"}}) << accept << true
        << QStringList{sel, "b", "z", notSel, "c", "q", "q"} << none;
    QTest::newRow("several selected move together")
        << stringArgs({{"d", "c", "b", "a"}, {""}})
        << R"([{"choose": "listBoxAvailable", "texts": ["d", "b"]}, {"click": "addSelectedButton"}, {"accept": true}])"
        << true << QStringList{sel, "b", "d", notSel, "a", "c"} << none;
    QTest::newRow("add all moves duplicates too")
        << stringArgs({{"b", "a", "b"}, {"c"}}) << R"([{"click": "addAllButton"}, {"accept": true}])" << true
        << QStringList{sel, "a", "b", "b", "c", notSel} << none;
    QTest::newRow("remove selected sorts both lists")
        << stringArgs({{"m"}, {"z", "a"}})
        << R"([{"choose": "listBoxSelected", "texts": ["z"]}, {"click": "removeSelectedButton"}, {"accept": true}])"
        << true << QStringList{sel, "a", notSel, "m", "z"} << none;
    QTest::newRow("remove all")
        << stringArgs({{"x"}, {"c", "a"}}) << R"([{"click": "removeAllButton"}, {"accept": true}])" << true
        << QStringList{sel, notSel, "a", "c", "x"} << none;
    QTest::newRow("cancel after moving gives one empty string")
        << stringArgs({{"a"}, {"b"}}) << R"([{"click": "addAllButton"}, {"click": "cancelButton"}])" << true
        << QStringList{""} << none;
}

// A double click moves the clicked item across, either way.
void TestDialogs::listSubsetDoubleClick()
{
    const auto doubleClick = [](QDialog* dialog) {
        for (const char* name : {"listBoxAvailable", "listBoxSelected"}) {
            auto* list = dialog->findChild<QListWidget*>(QLatin1String(name));
            QVERIFY(list && list->count() > 0);
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                               list->visualItemRect(list->item(0)).center());
        }
    };
    const Answered a = answer(m_engine, "ListSubsetDialog", stringArgs({{"b", "a"}, {"c"}}),
                              R"([{"inspect": ""}, {"accept": true}])", doubleClick);
    QVERIFY2(a.ok, qPrintable(a.failure));
    // "a" went over, then the selected list's first item ("a" again, sorted
    // before "c") came back.
    QCOMPARE(textsOf(a.result), (QStringList{"[selected]", "c", "[notselected]", "a", "b"}));
}

// --------------------------------------------------------------- Select2Dialog

void TestDialogs::select2_data()
{
    columns();
    const QString accept = R"([{"accept": true}])";
    const Args lists = stringArgs({{"b", "y", "Top", "Left", "Right"}, {"a|b|c", "x|y"}});
    const QStringList none;

    QTest::newRow("initial selections and messages from the call")
        << lists << accept << true << QStringList{"b", "y"}
        << QStringList{"windowTitle=Select Items", "help=false", "labelMessage1.text=Top",
                       "labelMessage2.text=Left", "labelMessage3.text=Right", "listBoxLeft.items=a|b|c"};
    QTest::newRow("no arguments: form messages, nothing selected")
        << Args{} << accept << true << QStringList{"", ""}
        << QStringList{"labelMessage1.text=Message1", "labelMessage2.text=Message2",
                       "labelMessage3.text=Message3", "listBoxLeft.items="};
    QTest::newRow("choices in both lists")
        << lists
        << R"([{"choose": "listBoxLeft", "text": "c"}, {"choose": "listBoxRight", "text": "x"}, {"click": "okButton"}])"
        << true << QStringList{"c", "x"} << none;
    QTest::newRow("selection not among items selects nothing")
        << stringArgs({{"zz", "y"}, {"a|b", "x|y"}}) << accept << true << QStringList{"", "y"} << none;
    QTest::newRow("cancel button gives no result")
        << lists << R"([{"choose": "listBoxLeft", "text": "c"}, {"click": "cancelButton"}])" << false << none
        << none;
}

// ----------------------------------------------------------------- TableDialog

void TestDialogs::tableDialog_data()
{
    columns();
    const QString accept = R"([{"accept": true}])";
    const QStringList none;
    const double nan = std::numeric_limits<double>::quiet_NaN();

    QTest::newRow("non-positive counts give 10 by 10")
        << tableArgs({0, -3}) << accept << true << emptyRows(10, 10) << none;
    QTest::newRow("one count sets the rows, 10 columns")
        << tableArgs({2}) << accept << true << emptyRows(2, 10) << none;
    QTest::newRow("counts are truncated; below one gives 10")
        << tableArgs({0.5, 3.7}) << accept << true << emptyRows(10, 3) << none;
    QTest::newRow("NaN gives 10") << tableArgs({nan, 1}) << accept << true << emptyRows(10, 1) << none;
    QTest::newRow("huge column count is capped at 100")
        << tableArgs({1, 1e300}, {"a"}) << accept << true << QStringList{"a" + QString(100, QLatin1Char(';'))}
        << none;
    QTest::newRow("huge row count is capped at 1000")
        << tableArgs({1e300, -5}) << accept << true << emptyRows(1000, 10) << none;
    QTest::newRow("parts beyond the columns and rows beyond the count are dropped")
        << tableArgs({1, 2}, {"a;b;c;d", "c;d"}) << accept << true << QStringList{"a;b;"} << none;
    QTest::newRow("short rows and missing rows are empty cells")
        << tableArgs({3, 3}, {"a", ""}) << accept << true << QStringList{"a;;;", ";;;", ";;;"} << none;
    const QString micro = QString::fromLatin1("\xb5V;b;;");
    QTest::newRow("result passes back unchanged, latin-1 too")
        << tableArgs({2, 3}, {micro, ";;z;"}) << accept << true << QStringList{micro, ";;z;"}
        << QStringList{"windowTitle=Table Dialog", "objectName=TableDialog", "help=false",
                       "messageLabel.visible=false"};
    QTest::newRow("cell edit")
        << tableArgs({1, 2}, {"a;b"})
        << R"([{"cell": "tableWidget", "row": 0, "column": 1, "text": "hi"}, {"accept": true}])" << true
        << QStringList{"a;hi;"} << none;
    QTest::newRow("add row")
        << tableArgs({1, 2}, {"a;b"}) << R"([{"click": "addRowButton"}, {"accept": true}])" << true
        << QStringList{"a;b;", ";;"} << none;
    QTest::newRow("add row then remove it")
        << tableArgs({1, 1}, {"a"})
        << R"([{"click": "addRowButton"}, {"click": "removeRowButton"}, {"accept": true}])" << true
        << QStringList{"a;"} << none;
    QTest::newRow("add column")
        << tableArgs({1, 1}, {"a"}) << R"([{"click": "addColumnButton"}, {"accept": true}])" << true
        << QStringList{"a;;"} << none;
    QTest::newRow("remove column takes the last")
        << tableArgs({1, 2}, {"a;b"}) << R"([{"click": "removeColumnButton"}, {"accept": true}])" << true
        << QStringList{"a;"} << none;
    QTest::newRow("removing every column leaves empty rows")
        << tableArgs({2, 1}, {"a", "b"})
        << R"([{"click": "removeColumnButton"}, {"click": "removeColumnButton"}, {"accept": true}])" << true
        << QStringList{"", ""} << none;
    QTest::newRow("cancel gives no result")
        << tableArgs({1, 1}, {"a"}) << R"([{"click": "addRowButton"}, {"click": "cancelButton"}])" << false
        << none << none;
}

// ----------------------------------------------------------------- TableEditor

void TestDialogs::tableEditor_data()
{
    columns();
    const QString accept = R"([{"accept": true}])";
    const QStringList texts{"A|B", "", ""};
    const QStringList none;

    QTest::newRow("values kept per column")
        << stringArgs({{"on|off", "l|m|h"}, {"off|on", "h|l"}, texts}) << accept << true
        << QStringList{"off|on", "h|l"} << none;
    QTest::newRow("value not exactly a choice takes the first")
        << stringArgs({{"On|on"}, {"on|ON|o"}, texts}) << accept << true << QStringList{"on|On|On"} << none;
    QTest::newRow("empty choice is a choice")
        << stringArgs({{"x|"}, {"|x"}, texts}) << accept << true << QStringList{"|x"} << none;
    QTest::newRow("column without element gets no cells")
        << stringArgs({{"a|b", "x|y"}, {"b"}, texts}) << accept << true << QStringList{"b", ""} << none;
    QTest::newRow("elements beyond the columns are ignored")
        << stringArgs({{"a|b"}, {"b", "zz|zz"}, texts}) << accept << true << QStringList{"b"} << none;
    QTest::newRow("short column skips rows without a box")
        << stringArgs({{"a|b", "x|y"}, {"b|a|b", "y"}, texts}) << accept << true << QStringList{"b|a|b", "y"}
        << none;
    QTest::newRow("added row takes first choices everywhere, with the look from the call")
        << stringArgs({{"a|b", "x|y"}, {"a|b", "y"}, {"Gate|Level", "First", "New Gate|Drop Gate"},
                       {"Gates", "Pick one per row"}})
        << R"([{"click": "New Gate"}, {"accept": true}])" << true << QStringList{"a|b|a", "y|x"}
        << QStringList{"windowTitle=Gates", "messageLabel.text=Pick one per row", "addRowButton.text=New Gate",
                       "removeRowButton.text=Drop Gate", "addColumnButton.visible=false",
                       "removeColumnButton.visible=false",
                       "tableWidget.selectionMode=" + QString::number(QAbstractItemView::SingleSelection),
                       "tableWidget.selectionBehavior=" + QString::number(QAbstractItemView::SelectRows),
                       "tableWidget.columns=Gate|Level", "tableWidget.rows=First|2", "tableWidget.cellEditable=false"};
    QTest::newRow("rows are capped at 1000")
        << stringArgs({{"a|b"}, {QString("b|").repeated(5000)}, texts}) << accept << true
        << QStringList{QStringList(QVector<QString>(1000, "b").toList()).join('|')} << none;
    QTest::newRow("rows are capped by the choices they show")
        << stringArgs({{QString("b|").repeated(5000)}, {QString("b|").repeated(5000)}, texts}) << accept
        << true << QStringList{QStringList(QVector<QString>(200, "b").toList()).join('|')} << none;
    QTest::newRow("pick in a cell")
        << stringArgs({{"a|b|c"}, {"a|a"}, texts})
        << R"([{"cell": "tableWidget", "row": 1, "column": 0, "text": "c"}, {"accept": true}])" << true
        << QStringList{"a|c"} << none;
    QTest::newRow("deleting all rows leaves one empty string per column")
        << stringArgs({{"a|b", "x|y"}, {"b|a", "y"}, texts})
        << R"([{"click": "addRowButton"}, {"click": "removeRowButton"}, {"click": "removeRowButton"},
              {"click": "removeRowButton"}, {"accept": true}])"
        << true << QStringList{"", ""} << none;
    QTest::newRow("cancel gives no result")
        << stringArgs({{"a|b"}, {"b"}, texts}) << R"([{"click": "addRowButton"}, {"click": "cancelButton"}])"
        << false << none << none;
}

// Column widths are kept per title, saved on Cancel as well.
void TestDialogs::tableEditorWidths()
{
    const auto args = [](const char* title) {
        return stringArgs({{"a|b", "x|y"}, {"a", "x"}, {"Left|Right", "", ""}, {title}});
    };
    const QString option = widthsOption(QStringLiteral("WidthsLeftRight"));
    const QByteArray name = option.toLatin1();
    const auto widths = [&name] { return toQs(sp_GetStringOption(name.constData())).split('|'); };

    const auto run = [this, &args](const char* title, const QByteArray& steps) {
        return answer(m_engine, "TableEditor", args(title), steps);
    };
    const Answered cancelled = run("Widths", R"([{"cancel": true}])");
    QVERIFY2(cancelled.ok && !cancelled.result.hasResult, qPrintable(cancelled.failure));
    QCOMPARE(widths().size(), 2);
    for (const QString& width : widths())
        QVERIFY2(width.toInt() > 0, qPrintable(width));

    // A remembered width wider than the contents is kept; a narrower one
    // gives way to the contents.
    sp_WriteOption(toYs(option), YString("300|3"));
    const Answered kept = run("Widths", R"([{"accept": true}])");
    QVERIFY2(kept.ok, qPrintable(kept.failure));
    QCOMPARE(textsOf(kept.result), (QStringList{"a", "x"}));
    QCOMPARE(widths().size(), 2);
    QCOMPARE(widths().at(0), QStringLiteral("300"));
    QVERIFY2(widths().at(1).toInt() > 3, qPrintable(widths().at(1)));

    QVERIFY(run("Other", R"([{"accept": true}])").ok);
    bool found = false;
    sp_GetStringOption(widthsOption(QStringLiteral("OtherLeftRight")).toLatin1().constData(), &found);
    QVERIFY(found);
    QCOMPARE(widths().at(0), QStringLiteral("300"));
}

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
