#include "hostwidgets.h"
#include "ui_widgetform.h"
#include "udf.h"

#include <QApplication>
#include <QButtonGroup>
#include <QDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPixmap>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <cstring>
#include <memory>

namespace {

// A call record with string arguments, as the host builds it.
struct FakeCall {
    UserFunctionInterface call;
    std::vector<std::vector<const char*>> storage;

    FakeCall() { std::memset(&call, 0, sizeof call); }

    void addStrings(std::vector<const char*> elements)
    {
        storage.push_back(std::move(elements));
        ArgRecord& arg = call.args[call.argCount++];
        arg.data = storage.back().data();
        arg.count = static_cast<std::uint32_t>(storage.back().size());
        arg.kind = ArgKindStrings;
    }
};

QString shown(const Spinner& spinner)
{
    return spinner.findChild<QLineEdit*>(QStringLiteral("lineEdit"))->text();
}

void sendWheel(QWidget* target, int delta)
{
    const QPoint at(target->width() / 2, target->height() / 2);
    QWheelEvent wheel(at, target->mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &wheel);
}

} // namespace

class TestWidgets : public QObject {
    Q_OBJECT

private slots:
    void cleanup();

    void bindingDefaults();
    void formBuildsAndPropertiesLand();
    void resourcesRegistered_data();
    void resourcesRegistered();

    void spinnerKeepsText_data();
    void spinnerKeepsText();
    void spinnerDisplay_data();
    void spinnerDisplay();
    void spinnerDisplayFollowsLaterSettings();
    void spinnerStep_data();
    void spinnerStep();
    void spinnerClampsAndReportsLimits();
    void spinnerExpressions();
    void spinnerRestoresInvalidTypedText_data();
    void spinnerRestoresInvalidTypedText();
    void spinnerSignalsOnTyping();
    void spinnerKeysWheelAndButtons();

    void radioGroupIdsInLayoutOrder();
    void radioGroupSetText_data();
    void radioGroupSetText();
    void radioGroupClickedByUser();
    void radioGroupRenumbersAddedButtons();

    void listBoxMultiSelection();
    void listBoxSingleSelection();
    void comboBoxItemsAndValue();
    void comboBoxStripQuotes();
    void initialiseWidget_data();
    void initialiseWidget();

    void pushButtonEndsDialog_data();
    void pushButtonEndsDialog();
    void okButtonBecomesDefault();
};

void TestWidgets::cleanup()
{
    const QWidgetList left = QApplication::topLevelWidgets();
    for (QWidget* widget : left)
        qWarning("left over: %s %s", widget->metaObject()->className(), qPrintable(widget->objectName()));
    QVERIFY(left.isEmpty());
}

// ------------------------------------------------------------ binding, form

void TestWidgets::bindingDefaults()
{
    EditBox edit(nullptr, "editBoxName");
    QCOMPARE(edit.objectName(), QStringLiteral("editBoxName"));
    VT_FunctionDef* def = &edit;
    QCOMPARE(def->argIndex(), -1);
    QCOMPARE(def->inElementIndex(), -1);
    QCOMPARE(def->outElementIndex(), -1);
    QCOMPARE(def->bindingVersion(), 1);
    QCOMPARE(def->isBindable(), true);
    QCOMPARE(def->bindingPriority(), 10);
    QCOMPARE(def->isReadOnlyBinding(), false);
    QCOMPARE(def->initialiseWidget(nullptr), false);
    QCOMPARE(def->collectsItself(), false);

    // Forms set bindings as properties; the mix-in must see them.
    QVERIFY(edit.setProperty("outElementIndex", 7));
    QCOMPARE(def->outElementIndex(), 7);

    Label label;
    QCOMPARE(label.metaObject()->indexOfProperty("outElementIndex"), -1);
    QVERIFY(label.setProperty("argIndex", 2));
    QCOMPARE(static_cast<VT_FunctionDef&>(label).argIndex(), 2);

    GroupBox group;
    QVERIFY(group.isCheckable());

    CheckBox check;
    QCOMPARE(check.property("realValue").toDouble(), 0.0);
    check.setRealValue(0.5);
    QVERIFY(check.isChecked());
    QCOMPARE(check.realValue(), 1.0);
}

void TestWidgets::formBuildsAndPropertiesLand()
{
    QDialog dialog;
    Ui::WidgetForm form;
    form.setupUi(&dialog);

    QCOMPARE(form.labelTitle->argIndex(), 0);
    QCOMPARE(form.labelTitle->inElementIndex(), 0);
    QCOMPARE(static_cast<VT_FunctionDef*>(form.labelTitle)->outElementIndex(), -1);

    Spinner* spinner = form.spinnerValue;
    QCOMPARE(spinner->argIndex(), 0);
    QCOMPARE(spinner->inElementIndex(), 1);
    QCOMPARE(spinner->outElementIndex(), 2);
    QCOMPARE(spinner->min(), 1.0);
    QCOMPARE(spinner->max(), 100.0);
    QVERIFY(spinner->step125());
    QCOMPARE(spinner->precision(), 4);
    QCOMPARE(spinner->text(), QStringLiteral("5"));
    spinner->pressUp();
    QCOMPARE(spinner->text(), QStringLiteral("10"));

    QCOMPARE(form.comboBoxKind->itemsArgIndex(), 1);
    QCOMPARE(form.comboBoxKind->itemsElementIndex(), 0);
    QCOMPARE(form.listBoxProbes->itemsElementIndex(), 1);
    QCOMPARE(form.listBoxProbes->outElementIndex(), 6);

    // realValue was set before the buttons existed.
    QCOMPARE(form.radioGroupMode->count(), 3);
    QCOMPARE(form.radioGroupMode->selectedId(), 1);
    QVERIFY(form.radioSecond->isChecked());

    QVERIFY(form.cbFlag->isChecked());
    QCOMPARE(form.okButton->actionText(), QString());
    QCOMPARE(form.cancelButton->actionText(), QStringLiteral("reject"));

    // What the host's walker finds: every bound widget through the mix-in.
    int bound = 0;
    for (QObject* child : dialog.findChildren<QObject*>()) {
        if (dynamic_cast<VT_FunctionDef*>(child))
            ++bound;
    }
    QCOMPARE(bound, 10);
}

void TestWidgets::resourcesRegistered_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("size");
    QTest::newRow("up arrow") << ":/16x16_uparrow_transparent_bg.png" << 16;
    QTest::newRow("down arrow") << ":/16x16_downarrow_transparent_bg.png" << 16;
    QTest::newRow("rising edge") << ":/16x16_rising_edge_no_frame.png" << 16;
    QTest::newRow("falling edge") << ":/16x16_falling_edge_no_frame.png" << 16;
    QTest::newRow("shift left") << ":/shift_left_32.png" << 32;
    QTest::newRow("shift right") << ":/shift_right_32.png" << 32;
    QTest::newRow("stop") << ":/stop.png" << 32;
    QTest::newRow("options") << ":/options.png" << 32;
    QTest::newRow("warn") << ":/qmessagebox-warn_transparent_bg.png" << 32;
    QTest::newRow("quest") << ":/qmessagebox-quest_transparent_bg.png" << 32;
    QTest::newRow("info") << ":/qmessagebox-info_transparent_bg.png" << 32;
}

void TestWidgets::resourcesRegistered()
{
    QFETCH(QString, name);
    QFETCH(int, size);
    const QPixmap pixmap(name);
    QVERIFY(!pixmap.isNull());
    QCOMPARE(pixmap.size(), QSize(size, size));
    QVERIFY(pixmap.hasAlpha());
}

// ------------------------------------------------------------------ Spinner

void TestWidgets::spinnerKeepsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("kilo") << "10k" << 1e4;
    QTest::newRow("mega") << "1.5MEG" << 1.5e6;
    QTest::newRow("micro") << "4.7u" << 4.7e-6;
    QTest::newRow("with unit") << "10kOhm" << 1e4;
    QTest::newRow("plain") << "0.25" << 0.25;
    QTest::newRow("no number") << "abc" << 0.0;
    QTest::newRow("empty") << "" << 0.0;
}

void TestWidgets::spinnerKeepsText()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    Spinner spinner;
    spinner.setEngMode(true);
    spinner.setText(text);
    QCOMPARE(spinner.text(), text);
    QCOMPARE(shown(spinner), text);
    QCOMPARE(spinner.value(), value);
}

void TestWidgets::spinnerDisplay_data()
{
    QTest::addColumn<bool>("integer");
    QTest::addColumn<bool>("engMode");
    QTest::addColumn<int>("precision");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("eng kilo") << false << true << 6 << 62831.853 << "62.8319k";
    QTest::newRow("eng mega") << false << true << 6 << 1e6 << "1Meg";
    QTest::newRow("eng zero") << false << true << 6 << 0.0 << "0";
    QTest::newRow("plain") << false << false << 6 << 0.1 << "0.1";
    QTest::newRow("plain precision 3") << false << false << 3 << 3.14159 << "3.14";
    QTest::newRow("plain large") << false << false << 6 << 1234567.0 << "1.23457e+06";
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
    Spinner spinner;
    spinner.setInteger(integer);
    spinner.setEngMode(engMode);
    spinner.setPrecision(precision);
    spinner.setValue(value);
    QCOMPARE(spinner.text(), text);
}

void TestWidgets::spinnerDisplayFollowsLaterSettings()
{
    // uic sets properties in file order: value may come before engMode.
    Spinner spinner;
    spinner.setValue(1234.5);
    spinner.setEngMode(true);
    QCOMPARE(spinner.text(), QStringLiteral("1.2345k"));
    spinner.setPrecision(2);
    QCOMPARE(spinner.text(), QStringLiteral("1.2k"));

    // A text given as text stays as it was given.
    spinner.setText("10k");
    spinner.setInteger(true);
    QCOMPARE(spinner.text(), QStringLiteral("10k"));
}

void TestWidgets::spinnerStep_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<double>("start");
    QTest::addColumn<int>("direction");
    QTest::addColumn<double>("expected");

    QTest::newRow("125 1 up") << "125" << 1.0 << 1 << 2.0;
    QTest::newRow("125 2 up") << "125" << 2.0 << 1 << 5.0;
    QTest::newRow("125 5 up") << "125" << 5.0 << 1 << 10.0;
    QTest::newRow("125 500 up") << "125" << 500.0 << 1 << 1000.0;
    QTest::newRow("125 1000 up") << "125" << 1000.0 << 1 << 2000.0;
    QTest::newRow("125 10 down") << "125" << 10.0 << -1 << 5.0;
    QTest::newRow("125 1 down") << "125" << 1.0 << -1 << 0.5;
    QTest::newRow("125 0.5 down") << "125" << 0.5 << -1 << 0.2;
    QTest::newRow("125 0.2 down") << "125" << 0.2 << -1 << 0.1;
    QTest::newRow("125 0.1 down") << "125" << 0.1 << -1 << 0.05;
    QTest::newRow("125 off 3 up") << "125" << 3.0 << 1 << 5.0;
    QTest::newRow("125 off 3 down") << "125" << 3.0 << -1 << 2.0;
    QTest::newRow("125 off 7 up") << "125" << 7.0 << 1 << 10.0;
    QTest::newRow("125 zero up") << "125" << 0.0 << 1 << 1.0;
    QTest::newRow("125 zero down") << "125" << 0.0 << -1 << -1.0;
    QTest::newRow("125 -1 up") << "125" << -1.0 << 1 << -0.5;
    QTest::newRow("125 -2 down") << "125" << -2.0 << -1 << -5.0;
    QTest::newRow("125 integer 1 down") << "125 integer" << 1.0 << -1 << 0.0;
    QTest::newRow("125 integer 0 down") << "125 integer" << 0.0 << -1 << -1.0;
    QTest::newRow("125 integer -1 down") << "125 integer" << -1.0 << -1 << -2.0;
    QTest::newRow("125 integer 2 down") << "125 integer" << 2.0 << -1 << 1.0;

    QTest::newRow("integer up") << "integer" << 3.0 << 1 << 4.0;
    QTest::newRow("integer down") << "integer" << -3.0 << -1 << -4.0;
    QTest::newRow("real 4.7 up") << "real" << 4.7 << 1 << 4.8;
    QTest::newRow("real 4.75 up") << "real" << 4.75 << 1 << 4.8;
    QTest::newRow("real 4.75 down") << "real" << 4.75 << -1 << 4.7;
    QTest::newRow("real 1 down") << "real" << 1.0 << -1 << 0.99;
    QTest::newRow("real 0.99 up") << "real" << 0.99 << 1 << 1.0;
    QTest::newRow("real 250 up") << "real" << 250.0 << 1 << 260.0;
    QTest::newRow("real -1 up") << "real" << -1.0 << 1 << -0.99;
    QTest::newRow("real zero up") << "real" << 0.0 << 1 << 1.0;
    QTest::newRow("fixed up") << "fixed" << 1.0 << 1 << 1.25;
    QTest::newRow("fixed down") << "fixed" << 1.1 << -1 << 0.85;
    QTest::newRow("fixed beats 125") << "fixed 125" << 1.0 << 1 << 1.25;
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
    if (mode.startsWith("fixed"))
        spinner.setStep(0.25);
    spinner.setValue(start);
    if (direction > 0)
        spinner.pressUp();
    else
        spinner.pressDown();
    QVERIFY2(qFuzzyCompare(1.0 + spinner.value(), 1.0 + expected), qPrintable(spinner.text()));
}

void TestWidgets::spinnerClampsAndReportsLimits()
{
    Spinner spinner;
    spinner.setStep125(true);
    spinner.setMin(0.6);
    spinner.setMax(10);
    QSignalSpy maxSpy(&spinner, &Spinner::maxHit);
    QSignalSpy minSpy(&spinner, &Spinner::minHit);

    spinner.setValue(5);
    spinner.pressUp();
    QCOMPARE(spinner.value(), 10.0);
    QCOMPARE(maxSpy.count(), 0); // landed on the limit, didn't run past it
    spinner.pressUp();
    QCOMPARE(spinner.value(), 10.0);
    QCOMPARE(maxSpy.count(), 1);

    spinner.setValue(1);
    spinner.pressDown();
    QCOMPARE(spinner.value(), 0.6);
    QCOMPARE(minSpy.count(), 1);
    spinner.pressDown();
    QCOMPARE(spinner.value(), 0.6);
    QCOMPARE(minSpy.count(), 2);
    QCOMPARE(maxSpy.count(), 1);
}

void TestWidgets::spinnerExpressions()
{
    Spinner spinner;
    spinner.setAllowExpressions(true);
    spinner.setText("{a*2}");
    QCOMPARE(spinner.text(), QStringLiteral("{a*2}"));
    QCOMPARE(spinner.value(), 0.0);
    QSignalSpy changed(&spinner, &Spinner::changed);
    spinner.pressUp();
    spinner.pressDown();
    QCOMPARE(spinner.text(), QStringLiteral("{a*2}"));
    QCOMPARE(changed.count(), 0);

    spinner.setText("22");
    QCOMPARE(spinner.value(), 22.0);
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
    auto* other = new QLineEdit(&window);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(spinner);
    layout->addWidget(other);
    spinner->setAllowExpressions(expressions);
    spinner->setText("10k");
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    auto* edit = window.findChild<QLineEdit*>("lineEdit");
    QVERIFY(edit);
    spinner->setFocus();
    QVERIFY(edit->hasFocus());
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, typed);
    QCOMPARE(edit->text(), typed);
    // Moving on ends the edit.
    QTest::keyClick(edit, Qt::Key_Tab);
    QVERIFY(!edit->hasFocus());
    QCOMPARE(spinner->text(), result);
}

void TestWidgets::spinnerSignalsOnTyping()
{
    Spinner spinner;
    spinner.show();
    QVERIFY(QTest::qWaitForWindowExposed(&spinner));
    QSignalSpy changed(&spinner, &Spinner::changed);
    QSignalSpy textChanged(&spinner, &Spinner::textChanged);
    spinner.setText("");
    QCOMPARE(changed.count(), 1);

    auto* edit = spinner.findChild<QLineEdit*>("lineEdit");
    QTest::keyClicks(edit, "12");
    QCOMPARE(changed.count(), 3);
    QCOMPARE(textChanged.count(), 3);
    QCOMPARE(changed.last().at(0).toString(), QStringLiteral("12"));
    QCOMPARE(textChanged.last().at(0).toString(), QStringLiteral("12"));

    spinner.setValue(3);
    QCOMPARE(changed.last().at(0).toString(), QStringLiteral("3"));
    spinner.pressUp();
    QCOMPARE(changed.last().at(0).toString(), QStringLiteral("3.1"));
    QCOMPARE(textChanged.count(), changed.count());
}

void TestWidgets::spinnerKeysWheelAndButtons()
{
    Spinner spinner;
    spinner.setInteger(true);
    spinner.setValue(5);
    spinner.resize(120, 30);
    spinner.show();
    QVERIFY(QTest::qWaitForWindowExposed(&spinner));
    auto* edit = spinner.findChild<QLineEdit*>("lineEdit");
    auto* up = spinner.findChild<QToolButton*>("upButton");
    auto* down = spinner.findChild<QToolButton*>("downButton");
    QVERIFY(edit && up && down);
    QVERIFY(!up->icon().isNull());
    QCOMPARE(spinner.focusProxy(), edit);

    QTest::keyClick(edit, Qt::Key_Up);
    QCOMPARE(spinner.text(), QStringLiteral("6"));
    QTest::keyClick(edit, Qt::Key_Down);
    QTest::keyClick(edit, Qt::Key_Down);
    QCOMPARE(spinner.text(), QStringLiteral("4"));

    sendWheel(edit, 120);
    QCOMPARE(spinner.text(), QStringLiteral("5"));
    sendWheel(edit, -240);
    QCOMPARE(spinner.text(), QStringLiteral("3"));
    // Half notches add up.
    sendWheel(edit, 60);
    QCOMPARE(spinner.text(), QStringLiteral("3"));
    sendWheel(edit, 60);
    QCOMPARE(spinner.text(), QStringLiteral("4"));

    QTest::mouseClick(up, Qt::LeftButton);
    QCOMPARE(spinner.text(), QStringLiteral("5"));
    QTest::mouseClick(down, Qt::LeftButton);
    QTest::mouseClick(down, Qt::LeftButton);
    QCOMPARE(spinner.text(), QStringLiteral("3"));

    // The buttons sit right of the text, up above down.
    QVERIFY(up->geometry().left() >= edit->geometry().right());
    QVERIFY(up->geometry().top() < down->geometry().top());
}

// --------------------------------------------------------------- RadioGroup

void TestWidgets::radioGroupIdsInLayoutOrder()
{
    RadioGroup group(nullptr, "radioGroupTest");
    auto* grid = new QGridLayout(&group);
    // Created in an order unlike the layout's.
    auto* last = new RadioButton(&group);
    last->setObjectName("last");
    auto* second = new QRadioButton("second", &group);
    second->setObjectName("second");
    auto* first = new RadioButton(&group);
    first->setObjectName("first");
    auto* box = new QWidget(&group);
    auto* boxLayout = new QHBoxLayout(box);
    auto* third = new QRadioButton("third", box);
    third->setObjectName("third");
    auto* fourth = new QRadioButton("fourth", box);
    fourth->setObjectName("fourth");
    boxLayout->addWidget(third);
    boxLayout->addWidget(fourth);
    auto* nested = new RadioGroup(&group, "nested");
    auto* nestedLayout = new QVBoxLayout(nested);
    nestedLayout->addWidget(new QRadioButton("not a member", nested));
    auto* loose = new QRadioButton("loose", &group); // in no layout
    loose->setObjectName("loose");

    grid->addWidget(last, 3, 0);
    grid->addWidget(nested, 2, 1);
    grid->addWidget(second, 0, 1);
    grid->addWidget(box, 1, 0, 1, 2);
    grid->addWidget(first, 0, 0);

    QCOMPARE(group.count(), 6);
    const QStringList expected = {"first", "second", "third", "fourth", "last", "loose"};
    for (int id = 0; id < expected.size(); ++id)
        QCOMPARE(group.button(id)->objectName(), expected[id]);
    QCOMPARE(group.button(6), nullptr);
    QCOMPARE(group.button(-1), nullptr);
    QCOMPARE(group.selectedId(), -1);
    QCOMPARE(group.text(), QStringLiteral("-1"));
    QCOMPARE(group.property("stringValue").toString(), QStringLiteral("-1"));

    group.setButton(3);
    QVERIFY(fourth->isChecked());
    // Ids aren't shared with the nested group.
    QCOMPARE(nested->count(), 1);
    QCOMPARE(nested->selectedId(), -1);
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
    QTest::newRow("empty") << "" << 1;
    QTest::newRow("fraction") << "1.5" << 1;
    QTest::newRow("very negative") << "-7" << 1;
}

void TestWidgets::radioGroupSetText()
{
    QFETCH(QString, text);
    QFETCH(int, selected);
    RadioGroup group;
    auto* layout = new QVBoxLayout(&group);
    for (int i = 0; i < 3; ++i)
        layout->addWidget(new RadioButton(&group));
    group.setValue(1.0);
    QCOMPARE(group.selectedId(), 1);
    group.setText(text);
    QCOMPARE(group.selectedId(), selected);
    QCOMPARE(group.text(), QString::number(selected));
    QCOMPARE(group.value(), double(selected));
}

void TestWidgets::radioGroupClickedByUser()
{
    RadioGroup group;
    auto* layout = new QVBoxLayout(&group);
    QList<QRadioButton*> buttons;
    for (int i = 0; i < 3; ++i) {
        buttons.append(new QRadioButton(QStringLiteral("choice %1").arg(i), &group));
        layout->addWidget(buttons.last());
    }
    group.show();
    QVERIFY(QTest::qWaitForWindowExposed(&group));
    QSignalSpy clicked(&group, &RadioGroup::clicked);

    QTest::mouseClick(buttons[1], Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.last().at(0).toInt(), 1);
    QCOMPARE(group.selectedId(), 1);

    buttons[2]->setFocus();
    QTest::keyClick(buttons[2], Qt::Key_Space);
    QCOMPARE(clicked.count(), 2);
    QCOMPARE(clicked.last().at(0).toInt(), 2);
    QVERIFY(!buttons[1]->isChecked());

    // Set from code: no click.
    group.setButton(0);
    QCOMPARE(clicked.count(), 2);
}

void TestWidgets::radioGroupRenumbersAddedButtons()
{
    RadioGroup group;
    auto* layout = new QVBoxLayout(&group);
    auto* a = new RadioButton(&group);
    layout->addWidget(a);
    group.assignIds();
    QCOMPARE(group.count(), 1);
    auto* b = new RadioButton(&group);
    layout->insertWidget(0, b);
    QCOMPARE(group.count(), 2);
    QCOMPARE(group.button(0), b);
    QCOMPARE(group.button(1), a);
    delete b;
    QCOMPARE(group.count(), 1);
    QCOMPARE(group.button(0), a);
}

// ---------------------------------------------------------- ComboBox, ListBox

void TestWidgets::listBoxMultiSelection()
{
    ListBox list(nullptr, "listBoxMulti");
    list.loadStrings("alpha|beta|gamma|delta");
    QCOMPARE(list.count(), 4);
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
    QCOMPARE(list.currentText(), QStringLiteral("beta|delta"));
    QCOMPARE(list.property("stringValue").toString(), QStringLiteral("beta|delta"));
    QCOMPARE(list.selectedItem(), list.item(1));

    list.setStringValue("gamma|alpha");
    QCOMPARE(list.currentText(), QStringLiteral("alpha|gamma"));
    list.setStringValue("");
    QCOMPARE(list.currentText(), QString());
    QCOMPARE(list.selectedItem(), nullptr);

    // Other list operations, with out-of-range and foreign arguments.
    QListWidgetItem* gamma = list.findItem("gamma", Qt::MatchExactly);
    QVERIFY(gamma);
    QCOMPARE(list.findItem("GAMMA", Qt::MatchExactly), nullptr);
    QCOMPARE(list.findItem("al", Qt::MatchStartsWith), list.item(0));
    QCOMPARE(list.index(gamma), 2);
    QCOMPARE(list.index(nullptr), -1);
    QListWidgetItem stranger("stranger");
    QCOMPARE(list.index(&stranger), -1);
    list.setSelected(&stranger, true);
    list.setSelected(nullptr, true);
    list.setSelected(gamma, true);
    QCOMPARE(list.currentText(), QStringLiteral("gamma"));
    list.removeItem(-1);
    list.removeItem(4);
    list.removeItem(2);
    QCOMPARE(list.count(), 3);
    QCOMPARE(list.currentText(), QString());
}

void TestWidgets::listBoxSingleSelection()
{
    ListBox list;
    list.loadStrings("one|two|two|three");
    list.setStringValue("two");
    QCOMPARE(list.currentRow(), 1);
    QCOMPARE(list.currentText(), QStringLiteral("two"));
    list.setStringValue("missing");
    QCOMPARE(list.currentRow(), 1);
    list.setStringValue("three");
    QCOMPARE(list.currentText(), QStringLiteral("three"));
    QCOMPARE(list.selectedItems().size(), 1);
    list.clearSelection();
    QCOMPARE(list.currentText(), QString());

    list.loadStrings(nullptr);
    QCOMPARE(list.count(), 0);
    QCOMPARE(list.currentText(), QString());
    list.loadStrings("a||b");
    QCOMPARE(list.count(), 3);
    QCOMPARE(list.item(1)->text(), QString());
}

void TestWidgets::comboBoxItemsAndValue()
{
    ComboBox combo(nullptr, "comboBoxTest");
    combo.loadStrings("one|two|three");
    QCOMPARE(combo.count(), 3);
    QCOMPARE(combo.text(2), QStringLiteral("three"));
    QCOMPARE(combo.text(3), QString());
    QCOMPARE(combo.text(-1), QString());

    combo.setStringValue("two");
    QCOMPARE(combo.currentIndex(), 1);
    combo.setStringValue("TWO");
    QCOMPARE(combo.currentIndex(), 1);
    combo.setStringValue("zzz");
    QCOMPARE(combo.currentIndex(), 1);
    combo.setValue(2);
    QCOMPARE(combo.currentText(), QStringLiteral("three"));
    combo.setValue(3);
    combo.setValue(-1);
    QCOMPARE(combo.currentIndex(), 2);

    combo.insertItem("last", -1);
    combo.insertItem("first", 0);
    combo.insertItem("far", 99);
    QCOMPARE(combo.text(0), QStringLiteral("first"));
    QCOMPARE(combo.text(4), QStringLiteral("last"));
    QCOMPARE(combo.text(5), QStringLiteral("far"));

    combo.setEditable(true);
    combo.setStringValue("typed");
    QCOMPARE(combo.currentText(), QStringLiteral("typed"));
    QCOMPARE(combo.property("stringValue").toString(), QStringLiteral("typed"));

    combo.loadStrings("");
    QCOMPARE(combo.count(), 0);
    combo.loadStrings(nullptr);
    QCOMPARE(combo.count(), 0);
}

void TestWidgets::comboBoxStripQuotes()
{
    ComboBox combo;
    combo.loadStrings("\"abc\"|'0_TO_1'|plain|\"odd'|\"");
    combo.setStringValue("\"abc\"");
    QCOMPARE(combo.stringValue(), QStringLiteral("\"abc\""));
    combo.setStripQuotes(true);
    QVERIFY(combo.stripQuotes());
    QCOMPARE(combo.stringValue(), QStringLiteral("abc"));
    QCOMPARE(combo.currentText(), QStringLiteral("\"abc\""));

    // A value collected without quotes loads back onto its item.
    combo.setStringValue("0_TO_1");
    QCOMPARE(combo.currentIndex(), 1);
    QCOMPARE(combo.stringValue(), QStringLiteral("0_TO_1"));
    combo.setValue(2);
    QCOMPARE(combo.stringValue(), QStringLiteral("plain"));
    combo.setValue(3);
    QCOMPARE(combo.stringValue(), QStringLiteral("\"odd'"));
    combo.setValue(4);
    QCOMPARE(combo.stringValue(), QStringLiteral("\""));
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
    QTest::newRow("argument beyond argCount") << 3 << 0 << false << 1;
    QTest::newRow("argument beyond record") << 40 << 0 << false << 1;
    QTest::newRow("real argument") << 2 << 0 << false << 1;
    QTest::newRow("null element") << 0 << 1 << false << 1;
}

void TestWidgets::initialiseWidget()
{
    QFETCH(int, itemsArg);
    QFETCH(int, itemsElement);
    QFETCH(bool, loaded);
    QFETCH(int, count);

    FakeCall fake;
    fake.addStrings({"title", nullptr});
    fake.addStrings({"x|y", "a|b|c", ""});
    double reals[] = {1.0, 2.0};
    ArgRecord& real = fake.call.args[fake.call.argCount++];
    real.data = reals;
    real.count = 2;
    real.kind = ArgKindReal;

    ComboBox combo;
    combo.addItem("form item");
    combo.setItemsArgIndex(itemsArg);
    combo.setItemsElementIndex(itemsElement);
    VT_FunctionDef* comboDef = &combo;
    QCOMPARE(comboDef->initialiseWidget(&fake.call), loaded);
    QCOMPARE(combo.count(), count);
    QCOMPARE(comboDef->initialiseWidget(nullptr), false);

    ListBox list;
    list.addItem("form item");
    list.setItemsArgIndex(itemsArg);
    list.setItemsElementIndex(itemsElement);
    VT_FunctionDef* listDef = &list;
    QCOMPARE(listDef->initialiseWidget(&fake.call), loaded);
    QCOMPARE(list.count(), count);
}

// ----------------------------------------------------------------- buttons

void TestWidgets::pushButtonEndsDialog_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("action");
    QTest::addColumn<bool>("ownSlot");
    QTest::addColumn<bool>("ends");
    QTest::addColumn<int>("result");
    QTest::newRow("reject action") << "PushButton" << "cancelButton" << "reject" << false << true
                                   << int(QDialog::Rejected);
    QTest::newRow("ok by name") << "PushButton" << "okButton" << "" << false << true
                                << int(QDialog::Accepted);
    QTest::newRow("ok with own check") << "PushButton" << "okButton" << "" << true << false
                                       << int(QDialog::Rejected);
    QTest::newRow("other button") << "PushButton" << "applyButton" << "" << false << false
                                  << int(QDialog::Rejected);
    QTest::newRow("unknown action") << "PushButton" << "okButton" << "apply" << false << false
                                    << int(QDialog::Rejected);
    QTest::newRow("OkButton") << "OkButton" << "anyName" << "" << true << true
                              << int(QDialog::Accepted);
    QTest::newRow("CancelButton") << "CancelButton" << "okButton" << "" << false << true
                                  << int(QDialog::Rejected);
}

void TestWidgets::pushButtonEndsDialog()
{
    QFETCH(QString, kind);
    QFETCH(QString, name);
    QFETCH(QString, action);
    QFETCH(bool, ownSlot);
    QFETCH(bool, ends);
    QFETCH(int, result);

    QDialog dialog;
    auto* layout = new QVBoxLayout(&dialog);
    PushButton* button = nullptr;
    const QByteArray objectName = name.toLatin1();
    if (kind == "OkButton")
        button = new OkButton(&dialog, objectName.constData());
    else if (kind == "CancelButton")
        button = new CancelButton(&dialog, objectName.constData());
    else
        button = new PushButton(&dialog, objectName.constData());
    button->setText("Press");
    button->setActionText(action);
    layout->addWidget(button);
    int ownCalls = 0;
    if (ownSlot)
        connect(button, &QPushButton::clicked, &dialog, [&ownCalls] { ++ownCalls; });

    dialog.open();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto* found = dialog.findChild<PushButton*>(name);
    QCOMPARE(found, button);
    QTest::mouseClick(found, Qt::LeftButton);
    QCOMPARE(dialog.isVisible(), !ends);
    QCOMPARE(dialog.result(), result);
    QCOMPARE(ownCalls, ownSlot ? 1 : 0);
    dialog.close();
}

void TestWidgets::okButtonBecomesDefault()
{
    QDialog dialog;
    Ui::WidgetForm form;
    form.setupUi(&dialog);
    dialog.open();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(form.okButton->isDefault());
    QVERIFY(!form.cancelButton->isDefault());

    // Return in a field presses the default button.
    form.comboBoxKind->setFocus();
    QTest::keyClick(form.comboBoxKind, Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

QTEST_MAIN(TestWidgets)
#include "tst_widgets.moc"
