// Answer scripts and the dialog driver, against small dialogs built here.
#include "answerforms.h"
#include "dialogs.h"
#include "hostsupport.h"
#include "hostwidgets.h"
#include "udf.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTreeWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QThread>
#include <QVBoxLayout>
#include <QtTest>

using namespace answerforms;
using vtkit::AnswerScript;
using vtkit::DialogDriver;

namespace {

QPushButton* button(const QString& text, QWidget* parent, QStringList* log, std::function<QString()> clicked)
{
    auto* b = new QPushButton(text, parent);
    b->setAutoDefault(false);
    QObject::connect(b, &QPushButton::clicked, parent, [log, clicked] { *log << clicked(); });
    return b;
}

class DropLog : public QObject {
public:
    DropLog(QStringList* log, QObject* parent) : QObject(parent), m_log(log) {}
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Drop)
            *m_log << "drop";
        return QObject::eventFilter(watched, event);
    }

private:
    QStringList* m_log;
};

// Forms for the driver, laid out top to bottom. Every form but "buttonbox"
// has an OkButton and a CancelButton; what the user's actions set off goes
// to log.
void buildDrivenForm(const QString& form, QDialog* d, QStringList* log)
{
    if (form == QLatin1String("edit") || form == QLatin1String("nonmodal")) {
        auto* edit = bound(new EditBox(d, "edit"), -1, -1, 0, "start");
        QObject::connect(edit, &QLineEdit::textChanged, d, [log] {
            *log << (QApplication::activeModalWidget() ? "modal" : "not modal");
        });
        QObject::connect(edit, &QLineEdit::textChanged, d, [log](const QString& t) { *log << "textChanged:" + t; });
        QObject::connect(edit, &QLineEdit::editingFinished, d, [log] { *log << "editingFinished"; });
    } else if (form == QLatin1String("buttons")) {
        button("&Apply", d, log, [] { return "clicked:Apply"; });
        (new QPushButton("Off", d))->setEnabled(false);
        (new QLabel("a note", d))->setObjectName("note");
        button("Ask", d, log, [d] {
            const auto answer = QMessageBox::question(d, "Confirm", "Really?");
            return answer == QMessageBox::Yes ? "answer:Yes" : "answer:No";
        });
        button("Help", d, log, [] {
            int local = 0;
            sp_RunHelp(RunHelpContext, "12", &local, nullptr);
            return "help";
        });
    } else if (form == QLatin1String("choices")) {
        auto* combo = bound(new ComboBox(d, "combo"), -1, -1, 0);
        combo->loadStrings("a|b|c");
        QObject::connect(combo, QOverload<int>::of(&QComboBox::activated), d,
                         [log](int i) { *log << QStringLiteral("activated:%1").arg(i); });
        QObject::connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), d,
                         [log](int i) { *log << QStringLiteral("changed:%1").arg(i); });
        auto* list = bound(new ListBox(d, "list"), -1, -1, 1);
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        list->loadStrings("x|y|z");
    } else if (form == QLatin1String("table")) {
        auto* table = new QTableWidget(2, 2, d);
        table->setObjectName("table");
        for (int r = 0; r < 2; ++r)
            for (int c = 0; c < 2; ++c)
                table->setItem(r, c, new QTableWidgetItem(QStringLiteral("%1%2").arg(r).arg(c)));
        auto* inCell = new QComboBox;
        inCell->addItems({"p", "q"});
        table->setCellWidget(1, 1, inCell);
        QObject::connect(inCell, QOverload<int>::of(&QComboBox::activated), d,
                         [log, inCell](int i) { *log << "cellcombo:" + inCell->itemText(i); });
        QObject::connect(table, &QTableWidget::itemChanged, d, [log](QTableWidgetItem* it) {
            *log << QStringLiteral("cell:%1,%2:%3").arg(it->row()).arg(it->column()).arg(it->text());
        });
    } else if (form == QLatin1String("checks")) {
        bound(new CheckBox(d, "check"), -1, -1, 0, "&Enable");
        auto* group = bound(new GroupBox(d, "group"), -1, -1, 1);
        group->setTitle("Options");
        group->setChecked(true);
        addRadios(bound(new RadioGroup(d, "radios"), -1, -1, 2), 3);
        auto* plain = new QGroupBox("Plain", d);
        plain->setObjectName("plain");
        addRadios(plain, 2);
        const auto radios = plain->findChildren<QRadioButton*>();
        for (int i = 0; i < radios.size(); ++i)
            QObject::connect(radios[i], &QRadioButton::clicked, d,
                             [log, i] { *log << QStringLiteral("plain:%1").arg(i); });
    } else if (form == QLatin1String("menu")) {
        auto* list = new QListWidget(d);
        list->setObjectName("items");
        list->addItems({"one", "two"});
        list->setContextMenuPolicy(Qt::CustomContextMenu);
        QObject::connect(list, &QWidget::customContextMenuRequested, d, [list, log](const QPoint& at) {
            QMenu menu(list);
            QAction* remove = menu.addAction("&Remove");
            menu.addSeparator();
            menu.addAction("Rename\tF2");
            QAction* chosen = menu.exec(list->viewport()->mapToGlobal(at));
            *log << (chosen == remove ? "menu:Remove" : chosen ? "menu:" + chosen->text() : "menu:none");
        });
    } else if (form == QLatin1String("buttonbox")) {
        bound(new EditBox(d, "edit"), -1, -1, 0);
        bound(new Spinner(d, "spinner"), -1, -1, 1, "1");
        auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, d);
        QObject::connect(box, &QDialogButtonBox::accepted, d, &QDialog::accept);
        QObject::connect(box, &QDialogButtonBox::rejected, d, &QDialog::reject);
    } else if (form == QLatin1String("pickers")) {
        button("Save as", d, log, [d] {
            return "file:" + QFileDialog::getSaveFileName(d, "Save", {}, {}, nullptr, QFileDialog::DontUseNativeDialog);
        });
        button("Colour", d, log, [d] {
            const QColor c = QColorDialog::getColor(Qt::red, d, "Pick", QColorDialog::DontUseNativeDialog);
            return "color:" + (c.isValid() ? c.name() : "invalid");
        });
    } else if (form == QLatin1String("tabs")) {
        auto* tabs = new QTabWidget(d);
        tabs->setObjectName("tabs");
        for (const char* title : {"First", "&Second", "Third"}) {
            auto* page = new QWidget;
            const QByteArray edit = "edit" + QByteArray::number(tabs->count());
            (new QVBoxLayout(page))->addWidget(bound(new EditBox(page, edit.constData()), -1, -1, tabs->count()));
            tabs->addTab(page, title);
        }
        tabs->setTabEnabled(2, false);
        QObject::connect(tabs, &QTabWidget::currentChanged, d, [log](int i) { *log << QStringLiteral("page:%1").arg(i); });
    } else if (form == QLatin1String("inspect")) {
        bound(new Spinner(d, "spinner"), -1, -1, -1, "4.7k");
        (new Label(d, "label"))->setText("<b>Hi</b>");
        auto* check = bound(new CheckBox(d, "check"), -1, -1, -1, "&Enable");
        check->setChecked(true);
        check->setEnabled(false);
        auto* combo = new ComboBox(d, "combo");
        combo->loadStrings("a|b|c");
        combo->setCurrentIndex(1);
        auto* list = new ListBox(d, "list");
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        list->loadStrings("x|y|z");
        list->item(2)->setSelected(true);
        list->item(0)->setSelected(true);
        auto* radios = new RadioGroup(d, "radios");
        radios->setTitle("Mode");
        addRadios(radios, 2);
        radios->setButton(1);
        auto* text = new TextEdit(d, "text");
        text->setPlainText("two\nlines");
        (new QPushButton("&Hidden", d))->hide();
        auto* stack = new QStackedWidget(d);
        stack->setObjectName("stack");
        stack->addWidget(new QLabel("one"));
        stack->addWidget(new QLabel("two"));
        stack->setCurrentIndex(1);
        auto* tree = new QTreeWidget(d);
        tree->setObjectName("tree");
        tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
        auto* top = new QTreeWidgetItem(tree, {"Page"});
        auto* p1 = new QTreeWidgetItem(new QTreeWidgetItem(top, {"Group"}), {"p1"});
        (new QTreeWidgetItem(tree, {"Other"}))->setSelected(true);
        p1->setSelected(true);
        top->setSelected(true);
        auto* tabs = new QTabWidget(d);
        tabs->setObjectName("tabs");
        tabs->addTab(new QWidget, "&Main");
        auto* second = new QWidget;
        (new QVBoxLayout(second))->addWidget(new EditBox(second, "onPage2"));
        tabs->addTab(second, "Extra");
    } else if (form.startsWith(QLatin1String("ends:"))) {
        // Plain buttons "objectName/Text", in this order in the focus chain;
        // "=a" makes the form accept on it, "=r" reject; a leading "*" makes
        // it the form's default, "-" hides it, "!" disables it. Every click
        // is logged before the form's own handler runs.
        const QStringList specs = form.mid(5).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (QString spec : specs) {
            const QChar mark = spec.at(0);
            if (mark == '*' || mark == '-' || mark == '!')
                spec.remove(0, 1);
            const QString ends = spec.section('=', 1);
            const QString name = spec.section('=', 0, 0).section('/', 0, 0);
            QPushButton* b = button(spec.section('=', 0, 0).section('/', 1), d, log, [name] { return "pressed:" + name; });
            b->setObjectName(name);
            b->setAutoDefault(true);
            b->setDefault(mark == '*');
            b->setHidden(mark == '-');
            b->setEnabled(mark != '!');
            if (ends == "a")
                QObject::connect(b, &QPushButton::clicked, d, &QDialog::accept);
            if (ends == "r")
                QObject::connect(b, &QPushButton::clicked, d, &QDialog::reject);
        }
    } else if (form == QLatin1String("drag")) {
        // A tree that moves its own items, with a leaf that takes no drops,
        // and the drops seen by an event filter on its viewport, as the
        // dialog designer watches its tree; lists that move and that copy.
        auto* tree = new QTreeWidget(d);
        tree->setObjectName("tree");
        tree->setMinimumHeight(300);
        tree->setDragEnabled(true);
        tree->setDragDropMode(QAbstractItemView::InternalMove);
        auto* group = new QTreeWidgetItem(tree, {"Group"});
        new QTreeWidgetItem(group, {"r1"});
        new QTreeWidgetItem(group, {"r2"});
        new QTreeWidgetItem(tree, {"Tab"});
        auto* leaf = new QTreeWidgetItem(tree, {"Leaf"});
        leaf->setFlags(leaf->flags() & ~Qt::ItemIsDropEnabled);
        tree->viewport()->installEventFilter(new DropLog(log, d));
        for (const char* name : {"moves", "copies", "transfers"}) {
            auto* list = new QListWidget(d);
            list->setObjectName(name);
            list->addItems({"p", "q", "r"});
            list->setDragEnabled(true);
            list->setDragDropMode(name[0] == 'm' ? QAbstractItemView::InternalMove : QAbstractItemView::DragDrop);
            if (name[0] == 't')
                list->setDefaultDropAction(Qt::MoveAction);
        }
    } else if (form == QLatin1String("pushbuttons")) {
        // The widget library's PushButton: empty action text accepts only
        // on an ok button's name.
        new PushButton(d, "applyButton");
        new PushButton(d, "okButton1");
        (new PushButton(d, "cancelButton"))->setActionText("reject");
    }
    if (form != QLatin1String("buttonbox") && !form.startsWith(QLatin1String("ends:"))
        && form != QLatin1String("pushbuttons")) {
        new OkButton(d, "okButton");
        new CancelButton(d, "cancelButton");
    }
    auto* layout = new QVBoxLayout(d);
    for (QWidget* w : d->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        layout->addWidget(w);
}

// Modal while exec starts, non-modal from its first showEvent on, as the
// probe selection of the efficiency calculator is: no modal window exists
// while it runs.
class TurnsNonModal : public QDialog {
protected:
    void showEvent(QShowEvent* event) override
    {
        setModal(false);
        QDialog::showEvent(event);
    }
};

struct Run {
    bool accepted = false;
    QStringList result, log;
    QList<QByteArray> lines;
    QString failure;
    qint64 ms = 0;
};

} // namespace

class TestAnswers : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void parse_data();
    void parse();
    void driver_data();
    void driver();
    void inspect_data();
    void inspect();
    void noDialog_data();
    void noDialog();
    void slowStart();
    void screenshot();

private:
    Run drive(const QByteArray& script, const QString& form);

    QTimer m_watchdog;
    bool m_watchdogFired = false;
};

// The driver is what keeps these tests from hanging; this is the net below
// it, in case the driver itself is broken.
void TestAnswers::initTestCase()
{
    m_watchdog.setSingleShot(true);
    m_watchdog.setInterval(20000);
    connect(&m_watchdog, &QTimer::timeout, this, [this] {
        m_watchdogFired = true;
        for (int i = 0; i < 20; ++i) {
            if (QWidget* popup = QApplication::activePopupWidget())
                popup->close();
            else if (auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                d->reject();
            else
                break;
        }
    });
}

void TestAnswers::init()
{
    m_watchdogFired = false;
    m_watchdog.start();
}

void TestAnswers::cleanup()
{
    m_watchdog.stop();
    QVERIFY2(!m_watchdogFired, "a dialog stayed open until the watchdog closed it");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto tops = QApplication::topLevelWidgets();
    for (QWidget* w : tops) {
        QVERIFY2(!w->isVisible(), qPrintable(QStringLiteral("left visible: ") + w->metaObject()->className()));
        QVERIFY2(!qobject_cast<QDialog*>(w), qPrintable(QStringLiteral("left alive: ") + w->objectName()));
    }
}

// ------------------------------------------------------------------- parse

void TestAnswers::parse_data()
{
    // "accept" and "cancel" are passed as they are, "no file" names a file
    // that isn't there, and any other script is read from a file.
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("error"); // empty: valid

    const auto row = [](const char* name, const char* script, const char* error) {
        QTest::newRow(name) << QByteArray(script) << QString(error);
    };
    row("accept", "accept", "");
    row("cancel", "cancel", "");
    row("every step", R"([
        {"wait": "D"}, {"set": "e", "text": ""}, {"click": "b"}, {"check": "c", "on": false},
        {"check": "c"}, {"choose": "x", "text": "t"}, {"choose": "x", "index": 2},
        {"choose": "x", "texts": ["a", "b"]}, {"radio": "r", "id": 0},
        {"cell": "t", "row": 1, "column": 0, "text": "v"}, {"key": "t", "keys": "Ctrl+A"},
        {"menu": "t", "action": "Remove"}, {"message": "Yes"}, {"file": ""}, {"file": "/tmp/a"},
        {"color": "#102030"}, {"color": null}, {"screenshot": "a.png"}, {"inspect": ""}, {"inspect": "x"},
        {"drag": "t", "item": "a", "onto": ""},
        {"accept": true}, {"cancel": true}])", "");
    row("empty script", "[]", "");
    row("no file", "no file", "cannot read answer script");
    row("not JSON", "[{", "at offset");
    row("not an array", R"({"accept": true})", "JSON array");
    row("step not an object", R"([{"accept": true}, 3])", "step 2: not an object");
    row("unknown key names the step", R"([{"accept": true}, {"click": "a", "txt": "b"}])",
        R"(step 2: unknown key "txt")");
    row("no action", R"([{"text": "b"}])", "step 1: no action");
    row("two actions", R"([{"click": "a", "accept": true}])", "step 1: two actions");
    row("set without text", R"([{"set": "a"}])", R"(step 1: "set" needs "text")");
    row("accept false", R"([{"accept": false}])", R"("accept" must be true)");
    row("choose with two ways", R"([{"choose": "x", "text": "a", "index": 1}])", "needs one of");
    row("choose with none", R"([{"choose": "x"}])", "needs one of");
    row("negative index", R"([{"choose": "x", "index": -1}])", R"("index" must be)");
    row("fractional id", R"([{"radio": "x", "id": 1.5}])", R"("id" must be)");
    row("bad colour", R"([{"color": "nocolour"}])", R"("color" must be)");
    row("empty key sequence", R"([{"key": "x", "keys": ""}])", R"("keys" must be)");
    row("texts not strings", R"([{"choose": "x", "texts": [1]}])", R"("texts" must be)");
    row("empty widget name", R"([{"click": ""}])", R"("click" must be)");
}

void TestAnswers::parse()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, error);

    QTemporaryDir dir;
    const bool keyword = script == "accept" || script == "cancel";
    const QString argument = keyword ? QString::fromLatin1(script) : dir.filePath("answers.json");
    QFile file(argument);
    if (!keyword && script != "no file") {
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(script);
        file.close();
    }
    AnswerScript parsed;
    QString why;
    const bool ok = AnswerScript::fromArgument(argument, &parsed, &why);
    if (error.isEmpty()) {
        QVERIFY2(ok, qPrintable(why));
        QCOMPARE(parsed.steps(), script == "accept"   ? AnswerScript::accept().steps()
                                 : script == "cancel" ? AnswerScript::cancel().steps()
                                                      : QJsonDocument::fromJson(script).array());
    } else {
        QVERIFY(!ok);
        QVERIFY2(why.contains(error) && why.contains(argument), qPrintable(why));
        QVERIFY(parsed.isEmpty()); // untouched on error
    }
}

// ------------------------------------------------------------------ driver

// Fail-on-dialog is always on: it only acts when the script is empty.
Run TestAnswers::drive(const QByteArray& script, const QString& form)
{
    Run run;
    AnswerScript answers;
    if (!AnswerScript::fromJson(script, &answers, &run.failure))
        return run;
    DialogDriver driver(answers, [&run](const QByteArray& line) { run.lines << line; });
    driver.setFailOnDialog(true);
    QElapsedTimer clock;
    clock.start();
    driver.run([&] {
        QDialog* dialog = form == QLatin1String("nonmodal") ? new TurnsNonModal : new QDialog;
        dialog->setObjectName(QStringLiteral("TestDialog"));
        dialog->setWindowTitle(QStringLiteral("Answers"));
        buildDrivenForm(form, dialog, &run.log);
        run.accepted = dialog->exec() == QDialog::Accepted;
        if (run.accepted)
            run.result = latin1(vtkit::collectBoundWidgets(dialog));
        delete dialog;
    });
    run.ms = clock.elapsed();
    run.failure = driver.failure();
    return run;
}

void TestAnswers::driver_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QStringList>("result");
    QTest::addColumn<QStringList>("seen");  // each in the log, or in some sink line
    QTest::addColumn<QString>("failure"); // empty: none; else contained

    const auto ok = [](const char* name, const char* form, const QByteArray& script, bool accepted,
                       const QStringList& result, const QStringList& seen = {}, const QString& failure = {}) {
        QTest::newRow(name) << QString(form) << script << accepted << result << seen << failure;
    };
    const auto fails = [&ok](const char* name, const char* form, const QByteArray& script, const QString& failure,
                             const QStringList& seen = {}) { ok(name, form, script, false, {}, seen, failure); };

    ok("set an EditBox, then an empty text to it by class name", "edit",
       R"([{"set": "edit", "text": "typed"}, {"set": "QLineEdit:0", "text": ""}, {"accept": true}])", true, {""},
       {"textChanged:t", "textChanged:typed", "editingFinished", "textChanged:"});
    ok("set a Spinner, accept through a button box", "buttonbox",
       R"([{"set": "edit", "text": "v"}, {"set": "spinner", "text": "4.7k"}, {"accept": true}])", true, {"v", "4.7k"});
    fails("set on a label fails", "buttons", R"([{"set": "note", "text": "x"}])",
          R"(step 1 {"set": "note", "text": "x"}: "note" (QLabel) takes no typed text)");
    ok("click buttons by their text, help goes to the sink", "buttons",
       R"([{"click": "Apply"}, {"click": "Help"}, {"accept": true}])", true, {}, {"clicked:Apply", R"({"help":"12"})"});
    fails("click a disabled button fails", "buttons", R"([{"click": "Off"}])", R"("Off" is disabled)");
    ok("choose: the current item still activates, by text, several texts", "choices",
       R"([{"choose": "combo", "index": 0}, {"choose": "combo", "text": "b"}, {"choose": "list", "texts": ["x", "z"]},
           {"accept": true}])",
       true, {"b", "x|z"}, {"activated:0", "changed:1", "activated:1"});
    fails("choose a missing item fails", "choices", R"([{"choose": "combo", "text": "zz"}])",
          R"(no item "zz" in "combo" (items: "a", "b", "c"))");
    ok("edit a table cell and pick in the combo box of one", "table",
       R"([{"cell": "table", "row": 1, "column": 0, "text": "new"},
           {"cell": "table", "row": 1, "column": 1, "text": "q"}, {"accept": true}])",
       true, {}, {"cell:1,0:new", "cellcombo:q"});
    fails("cell outside the table fails", "table", R"([{"cell": "table", "row": 2, "column": 0, "text": "x"}])",
          R"(no cell (2, 0) in "table" (2 rows, 2 columns))");
    ok("answer a message box", "buttons", R"([{"click": "Ask"}, {"message": "No"}, {"accept": true}])", true, {},
       {"answer:No", R"("title":"Confirm")", R"("text":"Really?")", R"("button":"No")"});
    fails("failure closes nested dialogs", "buttons", R"([{"click": "Ask"}, {"click": "Nope"}])",
          R"(step 2 {"click": "Nope"}: no widget "Nope" in dialog)", {"answer:No", R"("button":null)"});
    ok("checks, group box and radios", "checks", R"([{"check": "Enable", "on": true}, {"check": "group", "on": false},
         {"radio": "radios", "id": 2}, {"radio": "plain", "id": 1}, {"accept": true}])",
       true, {"1", "0", "2"}, {"plain:1"});
    ok("check leaves what is already so; clicking a group box toggles it", "checks",
       R"([{"check": "check", "on": false}, {"check": "Options"}, {"click": "Options"}, {"accept": true}])", true,
       {"0", "0", "-1"});
    fails("radio id out of range fails", "checks", R"([{"radio": "radios", "id": 3}])",
          R"(no radio button 3 in "radios" (it has 3))");
    ok("key sequences", "edit",
       R"([{"key": "edit", "keys": "Ctrl+A"}, {"key": "edit", "keys": "Delete"}, {"accept": true}])", true, {""});
    ok("Escape on the dialog itself rejects it", "edit", R"([{"key": "TestDialog", "keys": "Escape"}])", false, {});
    ok("context menu action", "menu", R"([{"menu": "items", "action": "Remove"}, {"accept": true}])", true, {},
       {"menu:Remove"});
    fails("context menu without the action fails", "menu", R"([{"menu": "items", "action": "Nope"}])",
          R"(no action "Nope" in the context menu (it has "Remove", "Rename"))", {"menu:none"});
    ok("cancel rejects", "edit", R"([{"cancel": true}])", false, {});
    ok("cancel through a button box", "buttonbox", R"([{"cancel": true}])", false, {});
    const QString saveAs = QDir::tempPath() + QStringLiteral("/vt-answers-%1.txt").arg(qApp->applicationPid());
    const QJsonObject save{{"click", "Save as"}};
    ok("file dialog takes a path; an empty one cancels it", "pickers",
       QJsonDocument(QJsonArray{save, QJsonObject{{"file", saveAs}}, save, QJsonObject{{"file", ""}},
                                QJsonObject{{"accept", true}}}).toJson(),
       true, {}, {"file:" + saveAs, "file:"});
    ok("colour dialog; null cancels it", "pickers",
       R"([{"click": "Colour"}, {"color": "#102030"}, {"click": "Colour"}, {"color": null}, {"accept": true}])", true,
       {}, {"color:#102030", "color:invalid"});
    ok("choose a tab by its title or index, as a click on it", "tabs",
       R"([{"choose": "tabs", "text": "Second"}, {"set": "edit1", "text": "v"}, {"choose": "tabs", "index": 0},
           {"accept": true}])", true, {"", "v", ""}, {"page:1", "page:0"});
    fails("a field on a page not current is hidden", "tabs", R"([{"set": "edit1", "text": "v"}])",
          R"("edit1" is hidden)");
    fails("a disabled tab can't be chosen", "tabs", R"([{"choose": "tabs", "text": "Third"}])",
          R"(tab "Third" of "tabs" is disabled)");
    fails("no such tab", "tabs", R"([{"choose": "tabs", "index": 3}])",
          R"(no tab 3 in "tabs" (tabs: "First", "&Second", "Third"))");

    // {"accept": true} and {"cancel": true} press what a person would.
    const QByteArray accept = R"([{"accept": true}])";
    const QByteArray cancel = R"([{"cancel": true}])";
    ok("accept presses the form's ok button, not the default", "ends:*applyButton/Apply pushButtonOk/Ok=a okButton2/O&K=a",
       accept, true, {}, {"pressed:okButton2"});
    ok("ok buttons by name in order, a hidden one passed over", "ends:-okButton/Ok=a okbutton/Ok=a okButton1/Ok=a",
       accept, true, {}, {"pressed:okButton1"});
    ok("then the form's default button", "ends:helpButton/Help *goButton/Go=a pushButtonOk/Ok=a", accept, true, {},
       {"pressed:goButton"});
    ok("then the one button reading Ok, whatever Qt made the default", "ends:helpButton/Help pushButtonOk/&Ok=a",
       accept, true, {}, {"pressed:pushButtonOk"});
    ok("the form's default stays so while another button has the focus", "ends:applyButton/Apply *goButton/Go=a",
       R"([{"click": "Apply"}, {"accept": true}])", true, {}, {"pressed:applyButton", "pressed:goButton"});
    ok("with none of these, accept ends the dialog itself", "ends:applyButton/Apply", accept, true, {});
    fails("a disabled ok button is not passed over", "ends:!okButton/Ok=a", accept, R"("Ok" is disabled)");
    fails("a hidden ok button and nothing else", "ends:-okButton/Ok=a", accept,
          R"(the ok button of "TestDialog" is hidden)");
    ok("cancel presses a numbered cancel button", "ends:okButton/Ok=a cancelButton2/Close=r", cancel, false, {},
       {"pressed:cancelButton2"});
    ok("cancel presses the misspelt one", "ends:okButton/Ok=a cacnelButton/Cancel=r", cancel, false, {},
       {"pressed:cacnelButton"});
    ok("cancel presses the button reading Cancel", "ends:okButton/Ok=a quitButton/&Cancel=r", cancel, false, {},
       {"pressed:quitButton"});
    ok("a hidden cancel button: rejected as by Escape", "ends:okButton/Ok=a -cancelButton/Cancel=r", cancel, false, {});
    ok("a PushButton without action text ends the dialog only as an ok button", "pushbuttons",
       R"([{"click": "applyButton"}, {"inspect": ""}, {"click": "okButton1"}])", true, {}, {R"("visible":true)"});

    fails("inspect of an unknown widget fails", "edit", R"([{"inspect": "Foo"}])",
          R"(step 1 {"inspect": "Foo"}: no widget "Foo" in dialog "TestDialog")");
    ok("a dialog that turns non-modal as it shows is answered", "nonmodal",
       R"([{"set": "edit", "text": "x"}, {"accept": true}])", true, {"x"}, {"not modal"});
    fails("a failed step closes a non-modal dialog too", "nonmodal", R"([{"click": "nothing"}])",
          R"(no widget "nothing")");
    ok("drag into a tree item, below one that takes no drops, below all", "drag",
       R"([{"drag": "tree", "item": "Tab", "onto": "Group"}, {"inspect": "tree"},
           {"drag": "tree", "item": "r1", "onto": "Leaf"}, {"inspect": "tree"},
           {"drag": "tree", "item": "Group", "onto": ""}, {"inspect": "tree"}, {"accept": true}])",
       true, {},
       {"drop", R"("items":["Group","  r1","  r2","  Tab","Leaf"])", R"("items":["Group","  r2","  Tab","Leaf","r1"])",
        R"("items":["Leaf","r1","Group","  r2","  Tab"])"});
    // A plain drag in a view that also takes drags from elsewhere copies,
    // as Qt's own drag does there.
    ok("drag in a list that moves its rows, one that copies and one that moves by default", "drag",
       R"([{"drag": "moves", "item": "p", "onto": "q"}, {"inspect": "moves"},
           {"drag": "copies", "item": "p", "onto": "r"}, {"inspect": "copies"},
           {"drag": "transfers", "item": "p", "onto": "r"}, {"inspect": "transfers"}, {"accept": true}])",
       true, {},
       {R"("items":["q","p","r"],"selected":["p"])", R"("items":["p","q","r","p"])",
        R"("inspect":"transfers")", R"("items":["q","r","p"])"});
    fails("an item can't go into itself", "drag", R"([{"drag": "tree", "item": "Group", "onto": "r2"}])",
          R"("Group" can't go into itself)");
    fails("drag of an unknown item", "drag", R"([{"drag": "tree", "item": "zz", "onto": ""}])",
          R"(no item "zz" in "tree")");
    fails("a list that doesn't drag", "choices", R"([{"drag": "list", "item": "x", "onto": "y"}])",
          R"("list" does not drag its items)");

    fails("unknown widget fails at once", "edit", R"([{"click": "Foo"}])",
          R"(step 1 {"click": "Foo"}: no widget "Foo" in dialog "TestDialog")");
    ok("a step too many", "edit", R"([{"accept": true}, {"click": "okButton"}])", true, {"start"}, {},
       R"(the call ended before step 2 {"click": "okButton"})");
    fails("still open after the last step", "edit", R"([{"wait": "TestDialog"}])",
          R"(dialog "TestDialog" still open 5 s after the last step)");
    fails("waiting for another dialog times out", "edit", R"([{"wait": "Other"}])",
          R"(step 1 {"wait": "Other"}: waited 5 s for dialog "Other")");
    fails("no script fails on the dialog at once", "edit", "[]",
          "a dialog opened and no answer script was given (use --answer)");
}

void TestAnswers::driver()
{
    QFETCH(QString, form);
    QFETCH(QByteArray, script);
    QFETCH(bool, accepted);
    QFETCH(QStringList, result);
    QFETCH(QStringList, seen);
    QFETCH(QString, failure);

    const Run run = drive(script, form);
    if (failure.isEmpty())
        QVERIFY2(run.failure.isEmpty(), qPrintable(run.failure));
    else
        QVERIFY2(run.failure.contains(failure), qPrintable(run.failure));
    QCOMPARE(run.accepted, accepted);
    if (accepted)
        QCOMPARE(run.result, result);
    for (const QString& entry : seen) {
        bool found = run.log.contains(entry);
        for (const QByteArray& line : run.lines)
            found = found || QString::fromUtf8(line).contains(entry);
        QVERIFY2(found, qPrintable(entry + QStringLiteral(" not in ") + run.log.join(QLatin1Char(' '))));
    }
    // Waits are bounded by 5 s; everything else is answered at once.
    const bool waits = failure.contains(QLatin1String("5 s"));
    QVERIFY2(run.ms < (waits ? 8000 : 3000), qPrintable(QString::number(run.ms)));
    if (waits)
        QVERIFY(run.ms >= 5000);
}

void TestAnswers::inspect_data()
{
    QTest::addColumn<QString>("object");
    QTest::addColumn<QJsonObject>("fields"); // each must be in the line as given

    const QJsonValue null;
    const auto row = [](const char* name, const char* object, const QJsonObject& fields) {
        QTest::newRow(name) << QString(object) << fields;
    };
    row("the dialog", "", {{"class", "QDialog"}, {"objectName", "TestDialog"}, {"hidden", false}, {"visible", true},
                           {"enabled", true}, {"text", "TestDialog"}, {"title", "Answers"}, {"checked", null},
                           {"current", null}, {"items", null}, {"selected", null}});
    row("spinner", "spinner", {{"class", "Spinner"}, {"text", "4.7k"}, {"checked", null}, {"title", null}});
    row("label keeps its markup", "label", {{"text", "<b>Hi</b>"}, {"items", null}});
    row("disabled check box by its text", "Enable",
        {{"objectName", "check"}, {"text", "&Enable"}, {"checked", true}, {"enabled", false}});
    row("combo box", "combo", {{"text", "b"}, {"current", 1}, {"items", QJsonArray{"a", "b", "c"}}, {"selected", null}});
    row("list selection in row order", "list",
        {{"text", null}, {"items", QJsonArray{"x", "y", "z"}}, {"selected", QJsonArray{"x", "z"}}});
    row("radio group", "radios", {{"text", "Mode"}, {"current", 1}, {"checked", null}});
    row("text edit", "text", {{"text", "two\nlines"}});
    row("hidden button", "Hidden", {{"class", "QPushButton"}, {"hidden", true}, {"visible", false}, {"checked", null}});
    row("stacked widget", "stack", {{"current", 1}, {"items", null}});
    row("tree, indented by level, selection top to bottom", "tree",
        {{"items", QJsonArray{"Page", "  Group", "    p1", "Other"}}, {"selected", QJsonArray{"Page", "p1", "Other"}}});
    row("tab widget", "tabs", {{"current", 0}, {"items", QJsonArray{"&Main", "Extra"}}, {"text", null}});
    row("field on a page not current: not hidden, not visible", "onPage2",
        {{"hidden", false}, {"visible", false}, {"text", ""}});
}

void TestAnswers::inspect()
{
    QFETCH(QString, object);
    QFETCH(QJsonObject, fields);

    const QJsonArray steps{QJsonObject{{"inspect", object}}, QJsonObject{{"cancel", true}}};
    const Run run = drive(QJsonDocument(steps).toJson(), "inspect");
    QVERIFY2(run.failure.isEmpty(), qPrintable(run.failure));
    QCOMPARE(run.lines.size(), 1);
    // The step's own key first, as a reader looks for it.
    QVERIFY2(run.lines[0].startsWith("{\"inspect\":"), run.lines[0].constData());
    const QJsonObject line = QJsonDocument::fromJson(run.lines[0]).object();
    QCOMPARE(line.value("inspect").toString(), object);
    QCOMPARE(line.size(), 12);
    for (auto it = fields.begin(); it != fields.end(); ++it)
        QVERIFY2(line.value(it.key()) == it.value(), qPrintable(it.key() + ": " + run.lines[0]));
}

// A call that keeps running with nothing shown must not wait for ever.
void TestAnswers::noDialog_data()
{
    QTest::addColumn<bool>("dialogFirst");
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("failure");
    QTest::newRow("no dialog comes") << false << QByteArray(R"([{"click": "x"}])")
                                     << R"(step 1 {"click": "x"}: waited 5 s for a dialog; none is open)";
    QTest::newRow("no dialog after the last step")
        << true << QByteArray(R"([{"accept": true}])")
        << "no dialog open for 5 s after the last step, and the call has not returned";
}

void TestAnswers::noDialog()
{
    QFETCH(bool, dialogFirst);
    QFETCH(QByteArray, script);
    QFETCH(QString, failure);

    AnswerScript answers;
    QVERIFY(AnswerScript::fromJson(script, &answers, nullptr));
    DialogDriver driver(answers, [](const QByteArray&) {});
    QElapsedTimer clock;
    driver.run([&] {
        if (dialogFirst) {
            QDialog dialog;
            QStringList log;
            buildDrivenForm("edit", &dialog, &log);
            dialog.exec();
        }
        clock.start();
        // An event loop that only a failed driver ends, or the watchdog.
        QEventLoop loop;
        QTimer poll;
        connect(&poll, &QTimer::timeout, &loop, [&] {
            if (driver.failed() || m_watchdogFired)
                loop.quit();
        });
        poll.start(10);
        loop.exec();
    });
    QVERIFY2(driver.failure() == failure, qPrintable(driver.failure()));
    QVERIFY2(clock.elapsed() >= 5000 && clock.elapsed() < 8000, qPrintable(QString::number(clock.elapsed())));
}

// A call that takes longer than a wait to open its dialog (a machine
// under load, a slow start) still gets the whole wait for its first step.
void TestAnswers::slowStart()
{
    AnswerScript answers;
    QVERIFY(AnswerScript::fromJson(R"([{"message": "OK"}, {"accept": true}])", &answers, nullptr));
    QStringList events;
    DialogDriver driver(answers, [&events](const QByteArray& line) { events << QString::fromUtf8(line); });
    bool accepted = false;
    driver.run([&] {
        QThread::msleep(5500); // no event loop, no tick
        QDialog dialog;
        QStringList log;
        buildDrivenForm("edit", &dialog, &log);
        QTimer::singleShot(300, &dialog, [&dialog] { QMessageBox::information(&dialog, "Later", "A note"); });
        accepted = dialog.exec() == QDialog::Accepted;
    });
    QVERIFY2(!driver.failed(), qPrintable(driver.failure()));
    QVERIFY(accepted);
    QCOMPARE(events.size(), 1);
    QVERIFY2(events[0].contains(R"("title":"Later")"), qPrintable(events[0]));
}

void TestAnswers::screenshot()
{
    QTemporaryDir dir;
    const QString file = dir.filePath("sub/dir/shot.png");
    const QJsonArray script{QJsonObject{{"screenshot", file}}, QJsonObject{{"cancel", true}}};
    const Run run = drive(QJsonDocument(script).toJson(), "checks");
    QVERIFY2(run.failure.isEmpty(), qPrintable(run.failure));
    const QImage image(file, "PNG");
    QVERIFY(image.width() > 10 && image.height() > 10);
}

QTEST_MAIN(TestAnswers)
#include "tst_answers.moc"
