// The binding walker and answer scripts, against small dialogs built here.
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
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QtTest>

#include <cstring>
#include <deque>

using vtkit::AnswerScript;
using vtkit::DialogDriver;

namespace {

// A call record with string arguments, as the host builds it. Elements are
// Latin-1, as scripts pass them.
struct FakeCall {
    UserFunctionInterface call;
    std::deque<QByteArray> texts;
    std::deque<std::vector<const char*>> arrays;

    explicit FakeCall(const QList<QStringList>& args)
    {
        std::memset(&call, 0, sizeof call);
        for (const QStringList& arg : args) {
            arrays.emplace_back();
            for (const QString& s : arg) {
                texts.push_back(s.toLatin1());
                arrays.back().push_back(texts.back().constData());
            }
            ArgRecord& rec = call.args[call.argCount++];
            rec.data = arrays.back().data();
            rec.count = static_cast<std::uint32_t>(arrays.back().size());
            rec.kind = ArgKindStrings;
        }
    }
};

template <class W>
W* bound(W* w, int arg, int in, int out)
{
    w->setArgIndex(arg);
    w->setInElementIndex(in);
    w->setOutElementIndex(out);
    return w;
}

void addRadios(QGroupBox* box, int n)
{
    auto* layout = new QVBoxLayout(box);
    for (int i = 0; i < n; ++i)
        layout->addWidget(new QRadioButton(QStringLiteral("r%1").arg(i), box));
}

// Forms for the walker.
void buildWalkerForm(const QString& form, QDialog* d)
{
    auto* layout = new QVBoxLayout(d);
    auto add = [&](QWidget* w) { layout->addWidget(w); };
    if (form == QLatin1String("basic")) {
        auto* sp = bound(new Spinner(d, "spinner"), 0, 0, 0);
        sp->setText(QStringLiteral("1"));
        add(sp);
        auto* eb = bound(new EditBox(d, "edit"), 0, 1, 1);
        eb->setText(QStringLiteral("form"));
        add(eb);
        auto* cb = bound(new CheckBox(d, "check"), 0, 2, 2);
        cb->setChecked(true);
        add(cb);
        auto* gb = bound(new GroupBox(d, "group"), 0, 3, 3);
        gb->setChecked(true);
        add(gb);
        auto* rg = bound(new RadioGroup(d, "radios"), 0, 4, 4);
        addRadios(rg, 3);
        add(rg);
        auto* lb = new Label(d, "label");
        lb->setArgIndex(0);
        lb->setInElementIndex(5);
        lb->setText(QStringLiteral("form label"));
        add(lb);
        auto* te = bound(new TextEdit(d, "text"), 0, 6, 6);
        te->setText(QStringLiteral("form text"));
        add(te);
        // No argument: keeps the form's text however the call looks.
        auto* own = bound(new EditBox(d, "unbound"), -1, 0, 7);
        own->setText(QStringLiteral("mine"));
        add(own);
    } else if (form.startsWith(QLatin1String("pair"))) {
        auto* a = bound(new EditBox(d, "a"), -1, -1, 0);
        auto* b = bound(new EditBox(d, "b"), -1, -1, 0);
        a->setText(QStringLiteral("A"));
        b->setText(QStringLiteral("B"));
        add(a);
        add(b);
        if (form == QLatin1String("pairHiddenSecond") || form == QLatin1String("pairBothHidden"))
            b->hide();
        if (form == QLatin1String("pairHiddenFirst") || form == QLatin1String("pairBothHidden"))
            a->hide();
    } else if (form == QLatin1String("onPages")) {
        auto* stack = new QStackedWidget(d);
        auto* a = bound(new EditBox(stack, "a"), -1, -1, 0);
        auto* b = bound(new EditBox(stack, "b"), -1, -1, 0);
        a->setText(QStringLiteral("A"));
        b->setText(QStringLiteral("B"));
        stack->addWidget(a);
        stack->addWidget(b);
        stack->setCurrentIndex(0);
        add(stack);
    } else if (form == QLatin1String("lists")) {
        auto* combo = bound(new ComboBox(d, "combo"), 0, 0, 0);
        combo->setItemsArgIndex(1);
        combo->setItemsElementIndex(0);
        combo->setStripQuotes(true);
        combo->loadStrings("f1|f2");
        add(combo);
        auto* list = bound(new ListBox(d, "list"), 0, 1, 1);
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        list->setItemsArgIndex(1);
        list->setItemsElementIndex(1);
        add(list);
    } else if (form == QLatin1String("labelOnly")) {
        auto* lb = new Label(d, "label");
        lb->setArgIndex(0);
        lb->setInElementIndex(0);
        add(lb);
    }
}

QStringList latin1(const std::vector<std::string>& strings)
{
    QStringList out;
    for (const std::string& s : strings)
        out << QString::fromLatin1(s.data(), static_cast<int>(s.size()));
    return out;
}

// Forms for the driver. Every form has an OkButton and a CancelButton
// unless it says otherwise; what the user's actions set off goes to log.
void buildDrivenForm(const QString& form, QDialog* d, QStringList* log)
{
    auto* layout = new QVBoxLayout(d);
    auto add = [&](QWidget* w) { layout->addWidget(w); };
    bool okCancel = true;

    if (form == QLatin1String("edit")) {
        auto* eb = bound(new EditBox(d, "edit"), -1, -1, 0);
        eb->setText(QStringLiteral("start"));
        QObject::connect(eb, &QLineEdit::textChanged, d, [log](const QString& t) { *log << QStringLiteral("textChanged:") + t; });
        QObject::connect(eb, &QLineEdit::editingFinished, d, [log] { *log << QStringLiteral("editingFinished"); });
        add(eb);
    } else if (form == QLatin1String("spinner")) {
        auto* sp = bound(new Spinner(d, "spinner"), -1, -1, 0);
        sp->setText(QStringLiteral("1"));
        add(sp);
    } else if (form == QLatin1String("buttons")) {
        auto* apply = new QPushButton(QStringLiteral("&Apply"), d);
        apply->setAutoDefault(false);
        QObject::connect(apply, &QPushButton::clicked, d, [log] { *log << QStringLiteral("clicked:Apply"); });
        add(apply);
        auto* off = new QPushButton(QStringLiteral("Off"), d);
        off->setEnabled(false);
        add(off);
        auto* note = new QLabel(QStringLiteral("a note"), d);
        note->setObjectName(QStringLiteral("note"));
        add(note);
    } else if (form == QLatin1String("combo")) {
        auto* combo = bound(new ComboBox(d, "combo"), -1, -1, 0);
        combo->loadStrings("a|b|c");
        QObject::connect(combo, QOverload<int>::of(&QComboBox::activated), d, [log](int i) { *log << QStringLiteral("activated:%1").arg(i); });
        QObject::connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), d, [log](int i) { *log << QStringLiteral("changed:%1").arg(i); });
        add(combo);
    } else if (form == QLatin1String("list")) {
        auto* list = bound(new ListBox(d, "list"), -1, -1, 0);
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        list->loadStrings("x|y|z");
        add(list);
    } else if (form == QLatin1String("table")) {
        auto* table = new QTableWidget(2, 2, d);
        table->setObjectName(QStringLiteral("table"));
        for (int r = 0; r < 2; ++r)
            for (int c = 0; c < 2; ++c)
                table->setItem(r, c, new QTableWidgetItem(QStringLiteral("%1%2").arg(r).arg(c)));
        auto* inCell = new QComboBox;
        inCell->addItems({QStringLiteral("p"), QStringLiteral("q")});
        table->setCellWidget(1, 1, inCell);
        QObject::connect(inCell, QOverload<int>::of(&QComboBox::activated), d, [log, inCell](int i) { *log << QStringLiteral("cellcombo:") + inCell->itemText(i); });
        QObject::connect(table, &QTableWidget::itemChanged, d, [log](QTableWidgetItem* it) {
            *log << QStringLiteral("cell:%1,%2:%3").arg(it->row()).arg(it->column()).arg(it->text());
        });
        add(table);
    } else if (form == QLatin1String("ask")) {
        auto* ask = new QPushButton(QStringLiteral("Ask"), d);
        ask->setObjectName(QStringLiteral("askButton"));
        ask->setAutoDefault(false);
        QObject::connect(ask, &QPushButton::clicked, d, [d, log] {
            const auto answer = QMessageBox::question(d, QStringLiteral("Confirm"), QStringLiteral("Really?"));
            *log << (answer == QMessageBox::Yes ? QStringLiteral("answer:Yes") : QStringLiteral("answer:No"));
        });
        add(ask);
    } else if (form == QLatin1String("checks")) {
        auto* cb = bound(new CheckBox(d, "check"), -1, -1, 0);
        cb->setText(QStringLiteral("&Enable"));
        add(cb);
        auto* gb = bound(new GroupBox(d, "group"), -1, -1, 1);
        gb->setTitle(QStringLiteral("Options"));
        gb->setChecked(true);
        add(gb);
        auto* rg = bound(new RadioGroup(d, "radios"), -1, -1, 2);
        addRadios(rg, 3);
        add(rg);
        auto* plainGroup = new QGroupBox(QStringLiteral("Plain"), d);
        plainGroup->setObjectName(QStringLiteral("plain"));
        addRadios(plainGroup, 2);
        const auto radios = plainGroup->findChildren<QRadioButton*>();
        for (int i = 0; i < radios.size(); ++i)
            QObject::connect(radios[i], &QRadioButton::clicked, d, [log, i] { *log << QStringLiteral("plain:%1").arg(i); });
        add(plainGroup);
    } else if (form == QLatin1String("menu")) {
        auto* list = new QListWidget(d);
        list->setObjectName(QStringLiteral("items"));
        list->addItems({QStringLiteral("one"), QStringLiteral("two")});
        list->setContextMenuPolicy(Qt::CustomContextMenu);
        QObject::connect(list, &QWidget::customContextMenuRequested, d, [list, log](const QPoint& at) {
            QMenu menu(list);
            QAction* remove = menu.addAction(QStringLiteral("&Remove"));
            menu.addSeparator();
            menu.addAction(QStringLiteral("Rename\tF2"));
            QAction* chosen = menu.exec(list->viewport()->mapToGlobal(at));
            *log << (chosen == remove ? QStringLiteral("menu:Remove")
                                      : chosen ? QStringLiteral("menu:") + chosen->text()
                                               : QStringLiteral("menu:none"));
        });
        add(list);
    } else if (form == QLatin1String("buttonbox")) {
        okCancel = false;
        add(bound(new EditBox(d, "edit"), -1, -1, 0));
        auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, d);
        QObject::connect(box, &QDialogButtonBox::accepted, d, &QDialog::accept);
        QObject::connect(box, &QDialogButtonBox::rejected, d, &QDialog::reject);
        add(box);
    } else if (form == QLatin1String("pickers")) {
        auto* open = new QPushButton(QStringLiteral("Save as"), d);
        open->setAutoDefault(false);
        QObject::connect(open, &QPushButton::clicked, d, [d, log] {
            *log << QStringLiteral("file:") + QFileDialog::getSaveFileName(d, QStringLiteral("Save"), QString(), QString(), nullptr, QFileDialog::DontUseNativeDialog);
        });
        add(open);
        auto* color = new QPushButton(QStringLiteral("Colour"), d);
        color->setAutoDefault(false);
        QObject::connect(color, &QPushButton::clicked, d, [d, log] {
            const QColor c = QColorDialog::getColor(Qt::red, d, QStringLiteral("Pick"), QColorDialog::DontUseNativeDialog);
            *log << QStringLiteral("color:") + (c.isValid() ? c.name() : QStringLiteral("invalid"));
        });
        add(color);
    } else if (form == QLatin1String("help")) {
        auto* help = new QPushButton(QStringLiteral("Help"), d);
        help->setObjectName(QStringLiteral("helpButton"));
        help->setAutoDefault(false);
        QObject::connect(help, &QPushButton::clicked, d, [] {
            int local = 0;
            sp_RunHelp(RunHelpContext, "12", &local, nullptr);
        });
        add(help);
    }
    if (okCancel) {
        add(new OkButton(d, "okButton"));
        add(new CancelButton(d, "cancelButton"));
    }
}

struct Run {
    bool accepted = false;
    QStringList result;
    QStringList log;
    QList<QByteArray> lines;
    QString failure;
    qint64 ms = 0;
};

} // namespace

class TestAnswers : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void walker_data();
    void walker();
    void runBoundDialog_data();
    void runBoundDialog();

    void parse_data();
    void parse();
    void fromArgument();

    void driver_data();
    void driver();
    void failOnDialog();
    void screenshot();
    void engineCall();

private:
    Run drive(const QByteArray& script, const QString& form, bool failOnDialog = false);

    QTimer m_watchdog;
    bool m_watchdogFired = false;
};

// The driver is what keeps these tests from hanging; this is the net below
// it, in case the driver itself is broken.
void TestAnswers::init()
{
    m_watchdogFired = false;
    m_watchdog.setSingleShot(true);
    m_watchdog.setInterval(20000);
    QObject::disconnect(&m_watchdog, nullptr, this, nullptr);
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

// ------------------------------------------------------------------ walker

void TestAnswers::walker_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QList<QStringList>>("args");
    QTest::addColumn<QStringList>("result");
    QTest::addColumn<QStringList>("probes"); // "objectName=text" after loading

    const QString eacute = QString::fromLatin1("caf\xe9");
    QTest::newRow("spinner keeps 10k, every class loads")
        << "basic" << QList<QStringList>{{"10k", "typed", "1", "1", "2", "from call", "two\nlines"}}
        << QStringList{"10k", "typed", "1", "1", "2", "", "two\nlines", "mine"}
        << QStringList{"label=from call", "unbound=mine"};
    QTest::newRow("element beyond the end keeps the form")
        << "basic" << QList<QStringList>{{"5"}}
        << QStringList{"5", "form", "1", "1", "-1", "", "form text", "mine"}
        << QStringList{"label=form label"};
    QTest::newRow("no arguments at all")
        << "basic" << QList<QStringList>{}
        << QStringList{"1", "form", "1", "1", "-1", "", "form text", "mine"} << QStringList{};
    QTest::newRow("GroupBox 0 is unchecked")
        << "basic" << QList<QStringList>{{"1", "x", "0", "0", "1"}}
        << QStringList{"1", "x", "0", "0", "1", "", "form text", "mine"} << QStringList{};
    QTest::newRow("checked by atoi")
        << "basic" << QList<QStringList>{{"1", "x", "7abc", "abc", "9"}}
        << QStringList{"1", "x", "1", "0", "-1", "", "form text", "mine"} << QStringList{};
    QTest::newRow("8-bit text round trip")
        << "basic" << QList<QStringList>{{"1", eacute}}
        << QStringList{"1", eacute, "1", "1", "-1", "", "form text", "mine"}
        << QStringList{"edit=" + eacute};
    QTest::newRow("visible first wins over hidden")
        << "pairHiddenSecond" << QList<QStringList>{} << QStringList{"A"} << QStringList{};
    QTest::newRow("visible second wins over hidden")
        << "pairHiddenFirst" << QList<QStringList>{} << QStringList{"B"} << QStringList{};
    QTest::newRow("both visible: later wins")
        << "pairBothVisible" << QList<QStringList>{} << QStringList{"B"} << QStringList{};
    QTest::newRow("both hidden: later wins")
        << "pairBothHidden" << QList<QStringList>{} << QStringList{"B"} << QStringList{};
    QTest::newRow("page not shown loses")
        << "onPages" << QList<QStringList>{} << QStringList{"A"} << QStringList{};
    QTest::newRow("combo and list with items from the call")
        << "lists" << QList<QStringList>{{"\"b\"", "x|z"}, {"a|\"b\"|c", "x|y|z"}}
        << QStringList{"b", "x|z"} << QStringList{};
    QTest::newRow("combo element not an item keeps the first")
        << "lists" << QList<QStringList>{{"nope", "y"}, {"a|b", "x|y"}}
        << QStringList{"a", "y"} << QStringList{};
    QTest::newRow("no items argument keeps the form's items")
        << "lists" << QList<QStringList>{{"f2", "x"}} << QStringList{"f2", ""} << QStringList{};
    QTest::newRow("Label reads and writes nothing")
        << "labelOnly" << QList<QStringList>{{"shown"}} << QStringList{} << QStringList{"label=shown"};
}

void TestAnswers::walker()
{
    QFETCH(QString, form);
    QFETCH(QList<QStringList>, args);
    QFETCH(QStringList, result);
    QFETCH(QStringList, probes);

    FakeCall call(args);
    QDialog dialog;
    buildWalkerForm(form, &dialog);
    vtkit::loadBoundWidgets(&dialog, &call.call);
    for (const QString& probe : probes) {
        const QString name = probe.section(QLatin1Char('='), 0, 0);
        auto* w = dialog.findChild<QWidget*>(name);
        QVERIFY2(w, qPrintable(name));
        QCOMPARE(w->property("text").toString(), probe.section(QLatin1Char('='), 1));
    }
    QCOMPARE(latin1(vtkit::collectBoundWidgets(&dialog)), result);
}

// -------------------------------------------------------- runBoundDialog

void TestAnswers::runBoundDialog_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QStringList>("result");

    QTest::newRow("accept collects what was loaded")
        << QByteArray(R"([{"accept": true}])") << true << QStringList{"loaded"};
    QTest::newRow("accept after typing")
        << QByteArray(R"([{"set": "edit", "text": "new"}, {"accept": true}])") << true << QStringList{"new"};
    QTest::newRow("cancel gives nothing")
        << QByteArray(R"([{"cancel": true}])") << false << QStringList{"untouched"};
}

void TestAnswers::runBoundDialog()
{
    QFETCH(QByteArray, script);
    QFETCH(bool, accepted);
    QFETCH(QStringList, result);

    AnswerScript answers;
    QString error;
    QVERIFY2(AnswerScript::fromJson(script, &answers, &error), qPrintable(error));
    FakeCall call({{"loaded"}});
    auto* dialog = new QDialog;
    dialog->setObjectName(QStringLiteral("Bound"));
    QStringList log;
    buildDrivenForm(QStringLiteral("edit"), dialog, &log);
    dialog->findChild<EditBox*>(QStringLiteral("edit"))->setArgIndex(0);
    dialog->findChild<EditBox*>(QStringLiteral("edit"))->setInElementIndex(0);
    QPointer<QDialog> guard(dialog);

    vtkit::ScriptValue value = vtkit::ScriptValue::fromStrings({"untouched"});
    std::string why;
    bool ran = false;
    DialogDriver driver(answers, [](const QByteArray&) {});
    driver.run([&] { ran = vtkit::runBoundDialog(dialog, &call.call, value, why); });

    QVERIFY2(!driver.failed(), qPrintable(driver.failure()));
    QCOMPARE(ran, accepted);
    QVERIFY(why.empty());
    QCOMPARE(latin1(value.strings), result);
    QVERIFY2(guard.isNull(), "the dialog must be deleted");
}

// ------------------------------------------------------------------- parse

void TestAnswers::parse_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error"); // empty: valid

    QTest::newRow("every step") << QByteArray(R"([
        {"wait": "D"}, {"set": "e", "text": ""}, {"click": "b"}, {"check": "c", "on": false},
        {"check": "c"}, {"choose": "x", "text": "t"}, {"choose": "x", "index": 2},
        {"choose": "x", "texts": ["a", "b"]}, {"radio": "r", "id": 0},
        {"cell": "t", "row": 1, "column": 0, "text": "v"}, {"key": "t", "keys": "Ctrl+A"},
        {"menu": "t", "action": "Remove"}, {"message": "Yes"}, {"file": ""}, {"file": "/tmp/a"},
        {"color": "#102030"}, {"color": null}, {"screenshot": "a.png"},
        {"accept": true}, {"cancel": true}])") << QString();
    QTest::newRow("empty script") << QByteArray("[]") << QString();
    QTest::newRow("not JSON") << QByteArray("[{") << QStringLiteral("at offset");
    QTest::newRow("not an array") << QByteArray(R"({"accept": true})") << QStringLiteral("JSON array");
    QTest::newRow("step not an object") << QByteArray(R"([{"accept": true}, 3])") << QStringLiteral("step 2: not an object");
    QTest::newRow("unknown key names the step") << QByteArray(R"([{"accept": true}, {"click": "a", "txt": "b"}])")
                                                << QStringLiteral("step 2: unknown key \"txt\"");
    QTest::newRow("no action") << QByteArray(R"([{"text": "b"}])") << QStringLiteral("step 1: no action");
    QTest::newRow("two actions") << QByteArray(R"([{"click": "a", "accept": true}])") << QStringLiteral("step 1: two actions");
    QTest::newRow("set without text") << QByteArray(R"([{"set": "a"}])") << QStringLiteral("step 1: \"set\" needs \"text\"");
    QTest::newRow("accept false") << QByteArray(R"([{"accept": false}])") << QStringLiteral("\"accept\" must be true");
    QTest::newRow("choose with two ways") << QByteArray(R"([{"choose": "x", "text": "a", "index": 1}])")
                                          << QStringLiteral("needs one of");
    QTest::newRow("choose with none") << QByteArray(R"([{"choose": "x"}])") << QStringLiteral("needs one of");
    QTest::newRow("negative index") << QByteArray(R"([{"choose": "x", "index": -1}])") << QStringLiteral("\"index\" must be");
    QTest::newRow("fractional id") << QByteArray(R"([{"radio": "x", "id": 1.5}])") << QStringLiteral("\"id\" must be");
    QTest::newRow("bad colour") << QByteArray(R"([{"color": "nocolour"}])") << QStringLiteral("\"color\" must be");
    QTest::newRow("empty key sequence") << QByteArray(R"([{"key": "x", "keys": ""}])") << QStringLiteral("\"keys\" must be");
    QTest::newRow("texts not strings") << QByteArray(R"([{"choose": "x", "texts": [1]}])") << QStringLiteral("\"texts\" must be");
    QTest::newRow("empty widget name") << QByteArray(R"([{"click": ""}])") << QStringLiteral("\"click\" must be");
}

void TestAnswers::parse()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);

    AnswerScript script = AnswerScript::accept();
    QString why;
    const bool ok = AnswerScript::fromJson(json, &script, &why);
    if (error.isEmpty()) {
        QVERIFY2(ok, qPrintable(why));
        QCOMPARE(script.steps(), QJsonDocument::fromJson(json).array());
    } else {
        QVERIFY(!ok);
        QVERIFY2(why.contains(error), qPrintable(why));
        QCOMPARE(script.steps().size(), 1); // untouched on error
    }
}

void TestAnswers::fromArgument()
{
    AnswerScript script;
    QString error;
    QVERIFY(AnswerScript::fromArgument(QStringLiteral("accept"), &script, &error));
    QCOMPARE(script.steps(), AnswerScript::accept().steps());
    QVERIFY(AnswerScript::fromArgument(QStringLiteral("cancel"), &script, &error));
    QCOMPARE(script.steps(), AnswerScript::cancel().steps());

    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("answers.json"));
    QVERIFY(!AnswerScript::fromArgument(path, &script, &error));
    QVERIFY2(error.contains(path), qPrintable(error));

    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"([{"click": "b"}, {"bogus": 1}])");
    file.close();
    QVERIFY(!AnswerScript::fromArgument(path, &script, &error));
    QVERIFY2(error.contains(QLatin1String("step 2")), qPrintable(error));
}

// ------------------------------------------------------------------ driver

Run TestAnswers::drive(const QByteArray& script, const QString& form, bool failOnDialog)
{
    Run run;
    AnswerScript answers;
    QString error;
    if (!AnswerScript::fromJson(script, &answers, &error)) {
        run.failure = QStringLiteral("bad script: ") + error;
        return run;
    }
    DialogDriver driver(answers, [&run](const QByteArray& line) { run.lines << line; });
    driver.setFailOnDialog(failOnDialog);
    QElapsedTimer clock;
    clock.start();
    driver.run([&] {
        auto* dialog = new QDialog;
        dialog->setObjectName(QStringLiteral("TestDialog"));
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
    QTest::addColumn<QString>("failure"); // empty: none; else contained
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QStringList>("result");
    QTest::addColumn<QStringList>("log");   // each in the log
    QTest::addColumn<QStringList>("lines"); // each in some sink line

    const QStringList none;
    QTest::newRow("set and accept an EditBox")
        << "edit" << QByteArray(R"([{"set": "edit", "text": "typed"}, {"accept": true}])") << QString()
        << true << QStringList{"typed"} << QStringList{"textChanged:t", "textChanged:typed", "editingFinished"} << none;
    QTest::newRow("set an empty text")
        << "edit" << QByteArray(R"([{"set": "edit", "text": ""}, {"accept": true}])") << QString()
        << true << QStringList{""} << QStringList{"textChanged:"} << none;
    QTest::newRow("set by class name")
        << "edit" << QByteArray(R"([{"set": "QLineEdit:0", "text": "c"}, {"accept": true}])") << QString()
        << true << QStringList{"c"} << none << none;
    QTest::newRow("set a Spinner")
        << "spinner" << QByteArray(R"([{"set": "spinner", "text": "4.7k"}, {"accept": true}])") << QString()
        << true << QStringList{"4.7k"} << none << none;
    QTest::newRow("set on a label fails")
        << "buttons" << QByteArray(R"([{"set": "note", "text": "x"}])")
        << QStringLiteral("step 1 {\"set\": \"note\", \"text\": \"x\"}: \"note\" (QLabel) takes no typed text")
        << false << none << none << none;
    QTest::newRow("click a button by its text")
        << "buttons" << QByteArray(R"([{"click": "Apply"}, {"accept": true}])") << QString()
        << true << none << QStringList{"clicked:Apply"} << none;
    QTest::newRow("click a disabled button fails")
        << "buttons" << QByteArray(R"([{"click": "Off"}])") << QStringLiteral("\"Off\" is disabled")
        << false << none << none << none;
    QTest::newRow("choose in a combo box fires activated")
        << "combo" << QByteArray(R"([{"choose": "combo", "text": "b"}, {"accept": true}])") << QString()
        << true << QStringList{"b"} << QStringList{"changed:1", "activated:1"} << none;
    QTest::newRow("choose by index")
        << "combo" << QByteArray(R"([{"choose": "combo", "index": 2}, {"accept": true}])") << QString()
        << true << QStringList{"c"} << QStringList{"activated:2"} << none;
    QTest::newRow("choose the current item still activates")
        << "combo" << QByteArray(R"([{"choose": "combo", "index": 0}, {"accept": true}])") << QString()
        << true << QStringList{"a"} << QStringList{"activated:0"} << none;
    QTest::newRow("choose a missing item fails")
        << "combo" << QByteArray(R"([{"choose": "combo", "text": "zz"}])")
        << QStringLiteral("no item \"zz\" in \"combo\" (items: \"a\", \"b\", \"c\")") << false << none << none << none;
    QTest::newRow("texts select several rows")
        << "list" << QByteArray(R"([{"choose": "list", "texts": ["x", "z"]}, {"accept": true}])") << QString()
        << true << QStringList{"x|z"} << none << none;
    QTest::newRow("edit a table cell")
        << "table" << QByteArray(R"([{"cell": "table", "row": 1, "column": 0, "text": "new"}, {"accept": true}])")
        << QString() << true << none << QStringList{"cell:1,0:new"} << none;
    QTest::newRow("pick in the combo box of a cell")
        << "table" << QByteArray(R"([{"cell": "table", "row": 1, "column": 1, "text": "q"}, {"accept": true}])")
        << QString() << true << none << QStringList{"cellcombo:q"} << none;
    QTest::newRow("cell outside the table fails")
        << "table" << QByteArray(R"([{"cell": "table", "row": 2, "column": 0, "text": "x"}])")
        << QStringLiteral("no cell (2, 0) in \"table\" (2 rows, 2 columns)") << false << none << none << none;
    QTest::newRow("answer a message box")
        << "ask" << QByteArray(R"([{"click": "askButton"}, {"message": "No"}, {"accept": true}])") << QString()
        << true << none << QStringList{"answer:No"}
        << QStringList{"\"title\":\"Confirm\"", "\"text\":\"Really?\"", "\"button\":\"No\""};
    QTest::newRow("failure closes nested dialogs")
        << "ask" << QByteArray(R"([{"click": "askButton"}, {"click": "Nope"}])")
        << QStringLiteral("step 2 {\"click\": \"Nope\"}: no widget \"Nope\" in dialog") << false << none
        << QStringList{"answer:No"} << QStringList{"\"button\":null"};
    QTest::newRow("checks, group box and radios")
        << "checks"
        << QByteArray(R"([{"check": "Enable", "on": true}, {"check": "group", "on": false},
                          {"radio": "radios", "id": 2}, {"radio": "plain", "id": 1}, {"accept": true}])")
        << QString() << true << QStringList{"1", "0", "2"} << QStringList{"plain:1"} << none;
    QTest::newRow("check in its state already")
        << "checks" << QByteArray(R"([{"check": "check", "on": false}, {"check": "Options"}, {"accept": true}])")
        << QString() << true << QStringList{"0", "1", "-1"} << none << none;
    QTest::newRow("click a group box toggles it")
        << "checks" << QByteArray(R"([{"click": "Options"}, {"accept": true}])")
        << QString() << true << QStringList{"0", "0", "-1"} << none << none;
    QTest::newRow("radio id out of range fails")
        << "checks" << QByteArray(R"([{"radio": "radios", "id": 3}])")
        << QStringLiteral("no radio button 3 in \"radios\" (it has 3)") << false << none << none << none;
    QTest::newRow("key sequences")
        << "edit" << QByteArray(R"([{"key": "edit", "keys": "Ctrl+A"}, {"key": "edit", "keys": "Delete"}, {"accept": true}])")
        << QString() << true << QStringList{""} << none << none;
    QTest::newRow("Escape on the dialog itself rejects it")
        << "edit" << QByteArray(R"([{"key": "TestDialog", "keys": "Escape"}])") << QString()
        << false << none << none << none;
    QTest::newRow("context menu action")
        << "menu" << QByteArray(R"([{"menu": "items", "action": "Remove"}, {"accept": true}])") << QString()
        << true << none << QStringList{"menu:Remove"} << none;
    QTest::newRow("context menu without the action fails")
        << "menu" << QByteArray(R"([{"menu": "items", "action": "Nope"}])")
        << QStringLiteral("no action \"Nope\" in the context menu (it has \"Remove\", \"Rename\")")
        << false << none << QStringList{"menu:none"} << none;
    QTest::newRow("cancel rejects")
        << "edit" << QByteArray(R"([{"cancel": true}])") << QString() << false << none << none << none;
    QTest::newRow("accept through a button box")
        << "buttonbox" << QByteArray(R"([{"set": "edit", "text": "v"}, {"accept": true}])") << QString()
        << true << QStringList{"v"} << none << none;
    QTest::newRow("cancel through a button box")
        << "buttonbox" << QByteArray(R"([{"cancel": true}])") << QString() << false << none << none << none;
    const QString saveAs = QDir::tempPath() + QStringLiteral("/vt-answers-%1.txt").arg(QCoreApplication::applicationPid());
    QTest::newRow("file dialog takes a path")
        << "pickers" << QJsonDocument(QJsonArray{QJsonObject{{"click", "Save as"}}, QJsonObject{{"file", saveAs}},
                                                 QJsonObject{{"accept", true}}}).toJson()
        << QString() << true << none << QStringList{"file:" + saveAs} << none;
    QTest::newRow("empty path cancels the file dialog")
        << "pickers" << QByteArray(R"([{"click": "Save as"}, {"file": ""}, {"accept": true}])")
        << QString() << true << none << QStringList{"file:"} << none;
    QTest::newRow("colour dialog")
        << "pickers" << QByteArray(R"([{"click": "Colour"}, {"color": "#102030"}, {"accept": true}])")
        << QString() << true << none << QStringList{"color:#102030"} << none;
    QTest::newRow("null cancels the colour dialog")
        << "pickers" << QByteArray(R"([{"click": "Colour"}, {"color": null}, {"accept": true}])")
        << QString() << true << none << QStringList{"color:invalid"} << none;
    QTest::newRow("help request goes to the sink")
        << "help" << QByteArray(R"([{"click": "helpButton"}, {"accept": true}])") << QString()
        << true << none << none << QStringList{"{\"help\":\"12\"}"};
    QTest::newRow("unknown widget fails at once")
        << "edit" << QByteArray(R"([{"click": "Foo"}])")
        << QStringLiteral("step 1 {\"click\": \"Foo\"}: no widget \"Foo\" in dialog \"TestDialog\"")
        << false << none << none << none;
    QTest::newRow("a step too many")
        << "edit" << QByteArray(R"([{"accept": true}, {"click": "okButton"}])")
        << QStringLiteral("the call ended before step 2 {\"click\": \"okButton\"}")
        << true << QStringList{"start"} << none << none;
    QTest::newRow("still open after the last step")
        << "edit" << QByteArray(R"([{"wait": "TestDialog"}])")
        << QStringLiteral("dialog \"TestDialog\" still open 5 s after the last step") << false << none << none << none;
    QTest::newRow("waiting for another dialog times out")
        << "edit" << QByteArray(R"([{"wait": "Other"}])")
        << QStringLiteral("step 1 {\"wait\": \"Other\"}: waited 5 s for dialog \"Other\"") << false << none << none << none;
}

void TestAnswers::driver()
{
    QFETCH(QString, form);
    QFETCH(QByteArray, script);
    QFETCH(QString, failure);
    QFETCH(bool, accepted);
    QFETCH(QStringList, result);
    QFETCH(QStringList, log);
    QFETCH(QStringList, lines);

    const Run run = drive(script, form);
    if (failure.isEmpty())
        QVERIFY2(run.failure.isEmpty(), qPrintable(run.failure));
    else
        QVERIFY2(run.failure.contains(failure), qPrintable(run.failure));
    QCOMPARE(run.accepted, accepted);
    if (accepted)
        QCOMPARE(run.result, result);
    for (const QString& entry : log)
        QVERIFY2(run.log.contains(entry), qPrintable(entry + QStringLiteral(" not in ") + run.log.join(QLatin1Char(' '))));
    for (const QString& part : lines) {
        bool found = false;
        for (const QByteArray& line : run.lines)
            found = found || QString::fromUtf8(line).contains(part);
        QVERIFY2(found, qPrintable(part));
    }
    // Waits are bounded by 5 s; everything else is answered at once.
    const bool waits = failure.contains(QLatin1String("5 s"));
    QVERIFY2(run.ms < (waits ? 8000 : 3000), qPrintable(QString::number(run.ms)));
    if (waits)
        QVERIFY(run.ms >= 5000);
}

void TestAnswers::failOnDialog()
{
    const Run run = drive("[]", QStringLiteral("edit"), true);
    QCOMPARE(run.failure, QStringLiteral("a dialog opened and no answer script was given (use --answer)"));
    QVERIFY(!run.accepted);
    QVERIFY(run.ms < 3000);
}

void TestAnswers::screenshot()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString file = dir.filePath(QStringLiteral("sub/dir/shot.png"));
    const QByteArray script = QJsonDocument(QJsonArray{QJsonObject{{"screenshot", file}},
                                                       QJsonObject{{"cancel", true}}})
                                  .toJson();
    const Run run = drive(script, QStringLiteral("checks"));
    QVERIFY2(run.failure.isEmpty(), qPrintable(run.failure));
    QVERIFY(QFileInfo(file).size() > 0);
    QImage image(file, "PNG");
    QVERIFY(!image.isNull());
    QVERIFY(image.width() > 10 && image.height() > 10);
}

// Through the engine: a factory's dialog answered by the driver.
void TestAnswers::engineCall()
{
    vtkit::Engine engine;
    std::string error;
    if (!engine.load(VT_MODULE_PATH, &error) || !engine.find("Select2Dialog"))
        QSKIP("the module or its Select2Dialog is not available");
    engine.setDialogRunner(&vtkit::runBoundDialog);

    DialogDriver cancel(AnswerScript::cancel(), [](const QByteArray&) {});
    const vtkit::CallResult cancelled = cancel.call(engine, "Select2Dialog", {});
    QVERIFY2(!cancel.failed(), qPrintable(cancel.failure()));
    QCOMPARE(cancelled.status, vtkit::CallResult::Status::Ok);
    QVERIFY(!cancelled.hasResult);

    AnswerScript broken;
    QVERIFY(AnswerScript::fromJson(R"([{"click": "noSuchWidget"}])", &broken, nullptr));
    DialogDriver failing(broken, [](const QByteArray&) {});
    const vtkit::CallResult failedCall = failing.call(engine, "Select2Dialog", {});
    QCOMPARE(failedCall.status, vtkit::CallResult::Status::Failed);
    QVERIFY(!failedCall.hasResult);
    QVERIFY2(QString::fromStdString(failedCall.error).contains(QLatin1String("no widget \"noSuchWidget\"")),
             failedCall.error.c_str());
}

QTEST_MAIN(TestAnswers)
#include "tst_answers.moc"
