// The binding walker: loading a call's arguments into a form's bound
// widgets and collecting the result from them, on small forms built here.
#include "answerforms.h"
#include "dialogs.h"
#include "udf.h"

#include <QDialog>
#include <QtTest>

#include <cstring>
#include <deque>

using namespace answerforms;

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

// Forms for the walker.
void buildWalkerForm(const QString& form, QDialog* d)
{
    if (form == QLatin1String("basic")) {
        bound(new Spinner(d, "spinner"), 0, 0, 0, "1");
        bound(new EditBox(d, "edit"), 0, 1, 1, "form");
        bound(new CheckBox(d, "check"), 0, 2, 2);
        bound(new GroupBox(d, "group"), 0, 3, 3)->setChecked(true);
        addRadios(bound(new RadioGroup(d, "radios"), 0, 4, 4), 3);
        auto* label = new Label(d, "label");
        label->setArgIndex(0);
        label->setInElementIndex(5);
        label->setText("form label");
        bound(new TextEdit(d, "text"), 0, 6, 6, "form text");
        // No argument: keeps the form's text however the call looks.
        bound(new EditBox(d, "unbound"), -1, 0, 7, "mine");
    } else if (form == QLatin1String("shared")) {
        // Pairs writing one element each: first shown, second shown, both
        // shown, both hidden.
        for (int element = 0; element < 4; ++element) {
            bound(new EditBox(d, "a"), -1, -1, element, "A")->setHidden(element == 1 || element == 3);
            bound(new EditBox(d, "b"), -1, -1, element, "B")->setHidden(element == 0 || element == 3);
        }
    } else if (form == QLatin1String("lists")) {
        auto* combo = bound(new ComboBox(d, "combo"), 0, 0, 0);
        combo->setItemsArgIndex(1);
        combo->setItemsElementIndex(0);
        combo->setStripQuotes(true);
        combo->loadStrings("f1|f2");
        auto* list = bound(new ListBox(d, "list"), 0, 1, 1);
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        list->setItemsArgIndex(1);
        list->setItemsElementIndex(1);
    }
}

} // namespace

class TestBindings : public QObject {
    Q_OBJECT

private slots:
    void walker_data();
    void walker();
};

void TestBindings::walker_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QList<QStringList>>("args");
    QTest::addColumn<QStringList>("result");
    QTest::addColumn<QStringList>("probes"); // "objectName=text" after loading

    using Calls = QList<QStringList>;
    const QString eacute = QString::fromLatin1("caf\xe9");
    QTest::newRow("every class loads, spinner keeps 10k, 8-bit text, Label writes nothing")
        << "basic" << Calls{{"10k", eacute, "1", "1", "2", "from call", "two\nlines"}}
        << QStringList{"10k", eacute, "1", "1", "2", "", "two\nlines", "mine"}
        << QStringList{"label=from call", "edit=" + eacute};
    QTest::newRow("element beyond the end keeps the form")
        << "basic" << Calls{{"5"}} << QStringList{"5", "form", "0", "1", "-1", "", "form text", "mine"}
        << QStringList{"label=form label"};
    QTest::newRow("checked by atoi, GroupBox 0 is unchecked")
        << "basic" << Calls{{"1", "x", "7abc", "0", "1"}}
        << QStringList{"1", "x", "1", "0", "1", "", "form text", "mine"} << QStringList{};
    QTest::newRow("a number past int is still not 0")
        << "basic" << Calls{{"1", "x", "4294967296", "-99999999999999999999"}}
        << QStringList{"1", "x", "1", "1", "-1", "", "form text", "mine"} << QStringList{};
    QTest::newRow("visible widget wins on a shared element, else the later")
        << "shared" << Calls{} << QStringList{"A", "B", "B", "B"} << QStringList{};
    QTest::newRow("combo and list with items from the call")
        << "lists" << Calls{{"\"b\"", "x|z"}, {"a|\"b\"|c", "x|y|z"}} << QStringList{"b", "x|z"} << QStringList{};
    QTest::newRow("combo element not an item keeps the first")
        << "lists" << Calls{{"nope", "y"}, {"a|b", "x|y"}} << QStringList{"a", "y"} << QStringList{};
    QTest::newRow("no items argument keeps the form's items")
        << "lists" << Calls{{"f2", "x"}} << QStringList{"f2", ""} << QStringList{};
}

void TestBindings::walker()
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
        auto* w = dialog.findChild<QWidget*>(probe.section(QLatin1Char('='), 0, 0));
        QVERIFY2(w, qPrintable(probe));
        QCOMPARE(w->property("text").toString(), probe.section(QLatin1Char('='), 1));
    }
    QCOMPARE(latin1(vtkit::collectBoundWidgets(&dialog)), result);
}

QTEST_MAIN(TestBindings)
#include "tst_bindings.moc"
