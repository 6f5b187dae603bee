#include "hostwidgets.h"
#include "ui_widgetform.h"
#include "udf.h"

#include <QApplication>
#include <QDialog>
#include <QDirIterator>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPixmap>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <functional>

namespace {

void setArg(ArgRecord& arg, void* data, std::uint32_t count, std::uint32_t kind)
{
    arg.data = data;
    arg.count = count;
    arg.kind = kind;
}

void sendWheel(QWidget* target, int delta)
{
    const QPoint at(target->width() / 2, target->height() / 2);
    QWheelEvent wheel(at, target->mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &wheel);
}

QRadioButton* radio(const char* name, QWidget* parent)
{
    auto* button = new QRadioButton(name, parent);
    button->setObjectName(name);
    return button;
}

} // namespace

class TestWidgets : public QObject {
    Q_OBJECT

private slots:
    void cleanup();
    void formBindsAndOkIsDefault();
    void resourcesRegistered();
    void spinnerKeepsText_data();
    void spinnerKeepsText();
    void spinnerDisplay_data();
    void spinnerDisplay();
    void spinnerStep_data();
    void spinnerStep();
    void spinnerRestoresInvalidTypedText_data();
    void spinnerRestoresInvalidTypedText();
    void spinnerUserInput();
    void radioGroupIdsInLayoutOrder();
    void radioGroupSetText_data();
    void radioGroupSetText();
    void radioGroupClickedByUser();
    void listBoxMultiSelection();
    void listBoxSingleSelection();
    void comboBoxItems();
    void comboBoxStringValue_data();
    void comboBoxStringValue();
    void initialiseWidget_data();
    void initialiseWidget();
    void pushButtonEndsDialog_data();
    void pushButtonEndsDialog();
};

void TestWidgets::cleanup()
{
    const QWidgetList left = QApplication::topLevelWidgets();
    for (QWidget* widget : left)
        qWarning("left over: %s %s", widget->metaObject()->className(), qPrintable(widget->objectName()));
    QVERIFY(left.isEmpty());
}

void TestWidgets::formBindsAndOkIsDefault()
{
    QDialog dialog;
    Ui::WidgetForm form;
    form.setupUi(&dialog);

    Spinner* spinner = form.spinnerValue;
    const QList<int> binding = {spinner->argIndex(), spinner->inElementIndex(),
                                spinner->outElementIndex()};
    QCOMPARE(binding, QList<int>({0, 1, 2}));
    // The value came before step125 and engMode in the file.
    QCOMPARE(spinner->text(), QStringLiteral("5"));
    spinner->pressUp();
    QCOMPARE(spinner->text(), QStringLiteral("10"));
    // realValue was set before the buttons existed.
    QCOMPARE(form.radioGroupMode->selectedId(), 1);
    QVERIFY(form.radioSecond->isChecked());
    QVERIFY(form.cbFlag->isChecked());
    QVERIFY(GroupBox().isCheckable());

    // The host's walker finds every bound widget through the mix-in.
    int bound = 0;
    for (QObject* child : dialog.findChildren<QObject*>())
        bound += dynamic_cast<VT_FunctionDef*>(child) ? 1 : 0;
    QCOMPARE(bound, 10);

    // OK becomes the default although Cancel comes first.
    dialog.open();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(form.okButton->isDefault());
    QVERIFY(!form.cancelButton->isDefault());
    form.comboBoxKind->setFocus();
    QTest::keyClick(form.comboBoxKind, Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

// Every picture a form or a dialog names is in the host's resources.
void TestWidgets::resourcesRegistered()
{
    const QRegularExpression name(QStringLiteral(":/[A-Za-z0-9_.-]+\\.png"));
    QStringList named;
    for (const char* dir : {"forms", "Dialogs"}) {
        QDirIterator files(QStringLiteral(VT_SOURCE_DIR "/") + QLatin1String(dir), QDir::Files);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            for (auto m = name.globalMatch(QString::fromUtf8(file.readAll())); m.hasNext();)
                named << m.next().captured();
        }
    }
    named.removeDuplicates();
    QVERIFY2(named.size() > 40, qPrintable(named.join(' ')));
    for (const QString& image : qAsConst(named))
        QVERIFY2(!QPixmap(image).isNull(), qPrintable(image));
}

void TestWidgets::spinnerKeepsText_data()
{
    QTest::addColumn<bool>("expressions");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("with unit") << false << "10kOhm" << 1e4;
    QTest::newRow("plain") << false << "0.25" << 0.25;
    QTest::newRow("no number") << false << "abc" << 0.0;
    QTest::newRow("empty") << false << "" << 0.0;
    QTest::newRow("braces not allowed") << false << "{a*2}" << 0.0;
    QTest::newRow("expression") << true << "{a*2}" << 0.0;
}

void TestWidgets::spinnerKeepsText()
{
    QFETCH(bool, expressions);
    QFETCH(QString, text);
    QFETCH(double, value);
    Spinner spinner;
    spinner.setAllowExpressions(expressions);
    spinner.setText(text);
    // Format settings made later leave a text given as text alone.
    spinner.setEngMode(true);
    spinner.setInteger(true);
    spinner.setPrecision(2);
    QCOMPARE(spinner.text(), text);
    QCOMPARE(spinner.value(), value);
    // Steps leave an expression alone and move anything else.
    QSignalSpy changed(&spinner, &Spinner::changed);
    spinner.pressUp();
    spinner.pressDown();
    QCOMPARE(changed.isEmpty(), expressions);
}

void TestWidgets::spinnerDisplay_data()
{
    QTest::addColumn<bool>("integer");
    QTest::addColumn<bool>("engMode");
    QTest::addColumn<int>("precision");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("eng kilo") << false << true << 6 << 62831.853 << "62.8319k";
    QTest::newRow("eng precision 2") << false << true << 2 << 1234.5 << "1.2k";
    QTest::newRow("plain precision 3") << false << false << 3 << 3.14159 << "3.14";
    QTest::newRow("integer rounds") << true << false << 6 << 2.6 << "3";
    QTest::newRow("integer no minus zero") << true << false << 6 << -0.2 << "0";
    QTest::newRow("integer wins over eng") << true << true << 6 << 12000.0 << "12000";
}

void TestWidgets::spinnerDisplay()
{
    QFETCH(bool, integer);
    QFETCH(bool, engMode);
    QFETCH(int, precision);
    QFETCH(double, value);
    QFETCH(QString, text);
    // uic sets properties in file order: the value may come before or after
    // the settings that format it.
    Spinner before, after;
    after.setValue(value);
    for (Spinner* spinner : {&before, &after}) {
        spinner->setInteger(integer);
        spinner->setEngMode(engMode);
        spinner->setPrecision(precision);
    }
    before.setValue(value);
    QCOMPARE(before.text(), text);
    QCOMPARE(after.text(), text);
}

void TestWidgets::spinnerStep_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<double>("start");
    QTest::addColumn<int>("direction");
    QTest::addColumn<double>("expected");

    QTest::newRow("125 1 up") << "125" << 1.0 << 1 << 2.0;
    QTest::newRow("125 5 up") << "125" << 5.0 << 1 << 10.0;
    QTest::newRow("125 1000 up") << "125" << 1000.0 << 1 << 2000.0;
    QTest::newRow("125 10 down") << "125" << 10.0 << -1 << 5.0;
    QTest::newRow("125 0.2 down") << "125" << 0.2 << -1 << 0.1;
    QTest::newRow("125 0.1 down") << "125" << 0.1 << -1 << 0.05;
    QTest::newRow("125 off 3 up") << "125" << 3.0 << 1 << 5.0;
    QTest::newRow("125 off 3 down") << "125" << 3.0 << -1 << 2.0;
    QTest::newRow("125 zero up") << "125" << 0.0 << 1 << 1.0;
    QTest::newRow("125 zero down") << "125" << 0.0 << -1 << -1.0;
    QTest::newRow("125 -1 up") << "125" << -1.0 << 1 << -0.5;
    QTest::newRow("125 integer 1 down") << "125 integer" << 1.0 << -1 << 0.0;
    QTest::newRow("125 integer 0 down") << "125 integer" << 0.0 << -1 << -1.0;
    QTest::newRow("125 integer -1 down") << "125 integer" << -1.0 << -1 << -2.0;

    QTest::newRow("integer down") << "integer" << -3.0 << -1 << -4.0;
    QTest::newRow("real 4.7 up") << "real" << 4.7 << 1 << 4.8;
    QTest::newRow("real 4.75 up") << "real" << 4.75 << 1 << 4.8;
    QTest::newRow("real 4.75 down") << "real" << 4.75 << -1 << 4.7;
    QTest::newRow("real 1 down") << "real" << 1.0 << -1 << 0.99;
    QTest::newRow("real 0.99 up") << "real" << 0.99 << 1 << 1.0;
    QTest::newRow("real 250 up") << "real" << 250.0 << 1 << 260.0;
    QTest::newRow("real -1 up") << "real" << -1.0 << 1 << -0.99;
    QTest::newRow("real zero up") << "real" << 0.0 << 1 << 1.0;
    QTest::newRow("fixed down") << "fixed" << 1.1 << -1 << 0.85;
    QTest::newRow("fixed beats 125") << "fixed 125" << 1.0 << 1 << 1.25;

    // Limits 0.6 and 10: a step clamps, and reports running into a limit.
    QTest::newRow("onto max") << "125 limited" << 5.0 << 1 << 10.0;
    QTest::newRow("past max") << "125 limited maxHit" << 10.0 << 1 << 10.0;
    QTest::newRow("past min") << "125 limited minHit" << 1.0 << -1 << 0.6;
    QTest::newRow("at min") << "125 limited minHit" << 0.6 << -1 << 0.6;
}

void TestWidgets::spinnerStep()
{
    QFETCH(QString, mode);
    QFETCH(double, start);
    QFETCH(int, direction);
    QFETCH(double, expected);
    Spinner spinner;
    spinner.setStep125(mode.contains("125"));
    spinner.setInteger(mode.contains("integer"));
    spinner.setStep(mode.startsWith("fixed") ? 0.25 : 0.0);
    if (mode.contains("limited")) {
        spinner.setMin(0.6);
        spinner.setMax(10);
    }
    spinner.setValue(start);
    QSignalSpy maxHit(&spinner, &Spinner::maxHit);
    QSignalSpy minHit(&spinner, &Spinner::minHit);
    if (direction > 0)
        spinner.pressUp();
    else
        spinner.pressDown();
    QVERIFY2(qFuzzyCompare(1.0 + spinner.value(), 1.0 + expected), qPrintable(spinner.text()));
    QCOMPARE(maxHit.count(), mode.contains("maxHit") ? 1 : 0);
    QCOMPARE(minHit.count(), mode.contains("minHit") ? 1 : 0);
}

void TestWidgets::spinnerRestoresInvalidTypedText_data()
{
    QTest::addColumn<bool>("expressions");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("result");
    QTest::newRow("letters") << false << "abc" << "10k";
    QTest::newRow("empty") << false << "" << "10k";
    QTest::newRow("number") << false << "4.7u" << "4.7u";
    QTest::newRow("expression not allowed") << false << "{x}" << "10k";
    QTest::newRow("expression allowed") << true << "{x}" << "{x}";
    QTest::newRow("unclosed expression") << true << "{x" << "10k";
}

void TestWidgets::spinnerRestoresInvalidTypedText()
{
    QFETCH(bool, expressions);
    QFETCH(QString, typed);
    QFETCH(QString, result);
    QWidget window;
    auto* spinner = new Spinner(&window, "spinnerTyped");
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(spinner);
    layout->addWidget(new QLineEdit(&window));
    spinner->setAllowExpressions(expressions);
    spinner->setText("10k");
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    QLineEdit* edit = spinner->lineEdit();
    spinner->setFocus();
    QVERIFY(edit->hasFocus());
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, typed);
    QCOMPARE(edit->text(), typed);
    QTest::keyClick(edit, Qt::Key_Tab);
    QVERIFY(!edit->hasFocus());
    QCOMPARE(spinner->text(), result);
}

void TestWidgets::spinnerUserInput()
{
    Spinner spinner;
    spinner.setInteger(true);
    spinner.resize(120, 30);
    spinner.show();
    QVERIFY(QTest::qWaitForWindowExposed(&spinner));
    auto* edit = spinner.findChild<QLineEdit*>("lineEdit");
    auto* up = spinner.findChild<QToolButton*>("upButton");
    auto* down = spinner.findChild<QToolButton*>("downButton");
    QVERIFY(edit && up && down);
    QCOMPARE(spinner.focusProxy(), edit);
    QVERIFY(up->geometry().left() >= edit->geometry().right());
    QVERIFY(up->geometry().top() < down->geometry().top());

    QSignalSpy changed(&spinner, &Spinner::changed);
    QSignalSpy textChanged(&spinner, &Spinner::textChanged);
    spinner.setText("");
    QTest::keyClicks(edit, "5");
    QCOMPARE(changed.count(), 2);
    QCOMPARE(textChanged.last().at(0).toString(), QStringLiteral("5"));

    const std::pair<std::function<void()>, QString> steps[] = {
        {[edit] { QTest::keyClick(edit, Qt::Key_Up); }, "6"},
        {[edit] { QTest::keyClick(edit, Qt::Key_Down); }, "5"},
        {[edit] { sendWheel(edit, -240); }, "3"},
        {[edit] { sendWheel(edit, 60); }, "3"}, // half notches add up
        {[edit] { sendWheel(edit, 60); }, "4"},
        {[up] { QTest::mouseClick(up, Qt::LeftButton); }, "5"},
        {[down] { QTest::mouseClick(down, Qt::LeftButton); }, "4"},
    };
    for (const auto& [act, text] : steps) {
        act();
        QCOMPARE(spinner.text(), text);
    }
    QCOMPARE(changed.last().at(0).toString(), QStringLiteral("4"));
    QCOMPARE(textChanged.count(), changed.count());
}

void TestWidgets::radioGroupIdsInLayoutOrder()
{
    RadioGroup group(nullptr, "radioGroupTest");
    auto* grid = new QGridLayout(&group);
    // Added in an order unlike the grid's.
    grid->addWidget(radio("last", &group), 3, 0);
    auto* nested = new RadioGroup(&group, "nested");
    (new QVBoxLayout(nested))->addWidget(radio("not a member", nested));
    grid->addWidget(nested, 2, 1);
    grid->addWidget(radio("second", &group), 0, 1);
    auto* box = new QWidget(&group);
    auto* boxLayout = new QHBoxLayout(box);
    boxLayout->addWidget(radio("third", box));
    QRadioButton* fourth = radio("fourth", box);
    boxLayout->addWidget(fourth);
    grid->addWidget(box, 1, 0, 1, 2);
    grid->addWidget(radio("first", &group), 0, 0);
    radio("loose", &group); // in no layout

    auto names = [&group] {
        QStringList list;
        for (int id = 0; id < group.count(); ++id)
            list << group.button(id)->objectName();
        return list;
    };
    QCOMPARE(names(), (QStringList{"first", "second", "third", "fourth", "last", "loose"}));
    QCOMPARE(group.button(6), nullptr);
    QCOMPARE(group.button(-1), nullptr);
    QCOMPARE(group.property("stringValue").toString(), QStringLiteral("-1"));

    group.setButton(3);
    QVERIFY(fourth->isChecked());
    // Ids aren't shared with the nested group.
    QCOMPARE(nested->count(), 1);
    QCOMPARE(nested->selectedId(), -1);

    // A button added after first use renumbers; the selection stays on its button.
    grid->addWidget(radio("added", &group), 0, 2);
    QCOMPARE(names(),
             (QStringList{"first", "second", "added", "third", "fourth", "last", "loose"}));
    QCOMPARE(group.selectedId(), 4);
    delete group.button(2);
    QCOMPARE(group.count(), 6);
    QCOMPARE(group.selectedId(), 3);
}

void TestWidgets::radioGroupSetText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("selected");
    QTest::newRow("id") << "2" << 2;
    QTest::newRow("id with spaces") << " 0 " << 0;
    QTest::newRow("none") << "-1" << -1;
    QTest::newRow("beyond") << "3" << 1;
    QTest::newRow("not a number") << "two" << 1;
    QTest::newRow("fraction") << "1.5" << 1;
    QTest::newRow("very negative") << "-7" << 1;
}

void TestWidgets::radioGroupSetText()
{
    QFETCH(QString, text);
    QFETCH(int, selected);
    RadioGroup group;
    auto* layout = new QVBoxLayout(&group);
    for (const char* name : {"a", "b", "c"})
        layout->addWidget(radio(name, &group));
    group.setValue(1.0);
    QCOMPARE(group.selectedId(), 1);
    group.setText(text);
    QCOMPARE(group.text(), QString::number(selected));
    QCOMPARE(group.value(), double(selected));
}

void TestWidgets::radioGroupClickedByUser()
{
    RadioGroup group;
    auto* layout = new QVBoxLayout(&group);
    const QList<QRadioButton*> buttons = {radio("a", &group), radio("b", &group),
                                          radio("c", &group)};
    for (QRadioButton* button : buttons)
        layout->addWidget(button);
    group.show();
    QVERIFY(QTest::qWaitForWindowExposed(&group));
    QSignalSpy clicked(&group, &RadioGroup::clicked);

    QTest::mouseClick(buttons[1], Qt::LeftButton);
    QCOMPARE(group.selectedId(), 1);
    buttons[2]->setFocus();
    QTest::keyClick(buttons[2], Qt::Key_Space);
    QVERIFY(!buttons[1]->isChecked());
    group.setButton(0); // from code: no click
    QCOMPARE(clicked.count(), 2);
    QCOMPARE(clicked[0].at(0).toInt(), 1);
    QCOMPARE(clicked[1].at(0).toInt(), 2);
}

void TestWidgets::listBoxMultiSelection()
{
    ListBox list;
    list.loadStrings("alpha|beta|gamma|delta");
    list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    QCOMPARE(list.currentText(), QString());

    // The user picks delta, then beta with Ctrl: row order, not pick order.
    auto clickRow = [&list](int row, Qt::KeyboardModifiers modifiers) {
        const QRect rect = list.visualItemRect(list.item(row));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, rect.center());
    };
    clickRow(3, Qt::NoModifier);
    clickRow(1, Qt::ControlModifier);
    QCOMPARE(list.property("stringValue").toString(), QStringLiteral("beta|delta"));
    QCOMPARE(list.selectedItem(), list.item(1));

    list.setStringValue("gamma|alpha");
    QCOMPARE(list.currentText(), QStringLiteral("alpha|gamma"));
    list.setStringValue("");
    QCOMPARE(list.selectedItem(), nullptr);

    list.setSelected(list.findItem("ga", Qt::MatchStartsWith), true);
    QCOMPARE(list.currentText(), QStringLiteral("gamma"));
}

void TestWidgets::listBoxSingleSelection()
{
    ListBox list;
    list.loadStrings("one|two|two|three");
    list.setStringValue("two");
    QCOMPARE(list.currentRow(), 1);
    list.setStringValue("missing");
    QCOMPARE(list.currentRow(), 1);
    list.setStringValue("three");
    QCOMPARE(list.currentText(), QStringLiteral("three"));
    QCOMPARE(list.selectedItems().size(), 1);
    list.clearSelection();
    QCOMPARE(list.currentText(), QString());

    list.loadStrings(nullptr);
    QCOMPARE(list.count(), 0);
    list.loadStrings("a||b");
    QCOMPARE(list.count(), 3);
    QCOMPARE(list.item(1)->text(), QString());
}

void TestWidgets::comboBoxItems()
{
    ComboBox combo;
    combo.loadStrings("one|two|three");
    combo.setValue(2);
    combo.setValue(3);
    combo.setValue(-1);
    QCOMPARE(combo.currentText(), QStringLiteral("three"));
    combo.insertItem("last", -1);
    combo.insertItem("first", 0);
    QCOMPARE(combo.text(0), QStringLiteral("first"));
    QCOMPARE(combo.text(4), QStringLiteral("last"));
    combo.loadStrings("");
    QCOMPARE(combo.count(), 0);
}

void TestWidgets::comboBoxStringValue_data()
{
    QTest::addColumn<bool>("stripQuotes");
    QTest::addColumn<bool>("editable");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("value");
    QTest::newRow("exact") << false << false << "two" << 1 << "two";
    QTest::newRow("case matters") << false << false << "TWO" << 0 << "one";
    QTest::newRow("editable takes text") << false << true << "zzz" << 0 << "zzz";
    QTest::newRow("quotes kept") << false << false << "\"abc\"" << 2 << "\"abc\"";
    QTest::newRow("bare needs stripQuotes") << false << false << "abc" << 0 << "one";
    QTest::newRow("quotes stripped") << true << false << "\"abc\"" << 2 << "abc";
    QTest::newRow("bare finds quoted") << true << false << "0_TO_1" << 3 << "0_TO_1";
    QTest::newRow("mixed quotes kept") << true << false << "\"odd'" << 4 << "\"odd'";
    QTest::newRow("lone quote kept") << true << false << "\"" << 5 << "\"";
}

void TestWidgets::comboBoxStringValue()
{
    QFETCH(bool, stripQuotes);
    QFETCH(bool, editable);
    QFETCH(QString, text);
    QFETCH(int, index);
    QFETCH(QString, value);
    ComboBox combo;
    combo.setEditable(editable);
    combo.setStripQuotes(stripQuotes);
    combo.loadStrings("one|two|\"abc\"|'0_TO_1'|\"odd'|\"");
    combo.setStringValue(text);
    QCOMPARE(combo.currentIndex(), index);
    QCOMPARE(combo.property("stringValue").toString(), value);
}

void TestWidgets::initialiseWidget_data()
{
    QTest::addColumn<int>("itemsArg");
    QTest::addColumn<int>("itemsElement");
    QTest::addColumn<bool>("loaded");
    QTest::addColumn<int>("count");
    QTest::newRow("element 1") << 1 << 1 << true << 3;
    QTest::newRow("element 0") << 1 << 0 << true << 2;
    QTest::newRow("empty element") << 1 << 2 << true << 0;
    QTest::newRow("element beyond count") << 1 << 3 << false << 1;
    QTest::newRow("negative element") << 1 << -1 << false << 1;
    QTest::newRow("no items argument") << -1 << 0 << false << 1;
    QTest::newRow("null element") << 0 << 1 << false << 1;
}

void TestWidgets::initialiseWidget()
{
    QFETCH(int, itemsArg);
    QFETCH(int, itemsElement);
    QFETCH(bool, loaded);
    QFETCH(int, count);
    const char* title[] = {"title", nullptr};
    const char* items[] = {"x|y", "a|b|c", ""};
    UserFunctionInterface call{};
    setArg(call.args[0], title, 2, ArgKindStrings);
    setArg(call.args[1], items, 3, ArgKindStrings);
    call.argCount = 2;

    ComboBox combo;
    ListBox list;
    combo.addItem("form item");
    list.addItem("form item");
    for (QObject* widget : {static_cast<QObject*>(&combo), static_cast<QObject*>(&list)}) {
        QVERIFY(widget->setProperty("itemsArgIndex", itemsArg));
        QVERIFY(widget->setProperty("itemsElementIndex", itemsElement));
        QCOMPARE(dynamic_cast<VT_FunctionDef*>(widget)->initialiseWidget(&call), loaded);
    }
    QCOMPARE(combo.count(), count);
    QCOMPARE(list.count(), count);
}

void TestWidgets::pushButtonEndsDialog_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("action");
    QTest::addColumn<bool>("ownSlot");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("reject") << "PushButton" << "cancelButton" << "reject" << false << "reject";
    QTest::newRow("ok by name") << "PushButton" << "okButton" << "" << false << "accept";
    QTest::newRow("ok with own check") << "PushButton" << "okButton" << "" << true << "open";
    QTest::newRow("ok by numbered name") << "PushButton" << "okButton2" << "" << false << "accept";
    QTest::newRow("ok by lower-case name") << "PushButton" << "okbutton" << "" << false << "accept";
    QTest::newRow("other button") << "PushButton" << "applyButton" << "" << false << "open";
    QTest::newRow("Ok-like name is not enough") << "PushButton" << "pushButtonOk" << "" << false << "open";
    QTest::newRow("unknown action") << "PushButton" << "okButton" << "apply" << false << "open";
    QTest::newRow("OkButton") << "OkButton" << "anyName" << "" << false << "accept";
    // A form that checks its fields first decides itself, as with PushButton.
    QTest::newRow("OkButton with own check") << "OkButton" << "anyName" << "" << true << "open";
    QTest::newRow("CancelButton") << "CancelButton" << "okButton" << "" << false << "reject";
}

void TestWidgets::pushButtonEndsDialog()
{
    QFETCH(QString, kind);
    QFETCH(QString, name);
    QFETCH(QString, action);
    QFETCH(bool, ownSlot);
    QFETCH(QString, outcome);
    QDialog dialog;
    const QByteArray objectName = name.toLatin1();
    PushButton* button = kind == "OkButton"
        ? new OkButton(&dialog, objectName.constData())
        : kind == "CancelButton" ? new CancelButton(&dialog, objectName.constData())
                                 : new PushButton(&dialog, objectName.constData());
    button->setText("Press");
    button->setActionText(action);
    (new QVBoxLayout(&dialog))->addWidget(button);
    int ownCalls = 0;
    if (ownSlot)
        connect(button, &QPushButton::clicked, &dialog, [&ownCalls] { ++ownCalls; });

    dialog.open();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(dialog.isVisible(), outcome == "open");
    QCOMPARE(dialog.result(), int(outcome == "accept" ? QDialog::Accepted : QDialog::Rejected));
    QCOMPARE(ownCalls, ownSlot ? 1 : 0);
}

QTEST_MAIN(TestWidgets)
#include "tst_widgets.moc"
