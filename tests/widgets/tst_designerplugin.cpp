// The Designer plug-in loads as Designer loads it, and each widget it
// offers is the library's own class with its binding properties editable.
#include "hostwidgets.h"

#include <QPluginLoader>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <memory>

class TestDesignerPlugin : public QObject {
    Q_OBJECT

private slots:
    void everyWidgetIsTheRealOne();
};

void TestDesignerPlugin::everyWidgetIsTheRealOne()
{
    QPluginLoader loader(QStringLiteral(VT_DESIGNER_PLUGIN_PATH));
    QObject* root = loader.instance();
    QVERIFY2(root, qPrintable(loader.errorString()));
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(root);
    QVERIFY(collection);

    QStringList names;
    for (QDesignerCustomWidgetInterface* iface : collection->customWidgets()) {
        names << iface->name();
        QCOMPARE(iface->includeFile(), QStringLiteral("hostwidgets.h"));
        QVERIFY2(iface->domXml().contains(iface->name()), qPrintable(iface->name()));
        std::unique_ptr<QWidget> widget(iface->createWidget(nullptr));
        QVERIFY(widget);
        // The class Designer writes into the form is the class it shows.
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), iface->name());
        // Buttons are bound through actions, not elements; a plot draws what
        // its dialog gives it.
        if (!qobject_cast<QPushButton*>(widget.get()) && !qobject_cast<Plotter*>(widget.get()))
            QVERIFY2(widget->metaObject()->indexOfProperty("argIndex") >= 0, qPrintable(iface->name()));
    }
    for (const char* expected : {"Spinner", "EditBox", "TextEdit", "Label", "CheckBox", "GroupBox",
                                 "RadioGroup", "RadioButton", "ComboBox", "ListBox", "PushButton",
                                 "OkButton", "CancelButton", "Plotter"})
        QVERIFY2(names.contains(QLatin1String(expected)), expected);
}

QTEST_MAIN(TestDesignerPlugin)
#include "tst_designerplugin.moc"
