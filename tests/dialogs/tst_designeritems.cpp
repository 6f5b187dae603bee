// The dialog designer's items on their own: the XML they are written to
// and read from, where an item may stand, and the preview built from them.
#include "designeritems.h"
#include "designertest.h"
#include "designerxml.h"

#include <QElapsedTimer>
#include <QVBoxLayout>
#include <QtTest>

using namespace designertest;

namespace {

// "G[T R] C": a group holding a tab and a radio button, then a check box.
// G group, R radio, T tab, C check box, S spin box, V spacer.
DialogItem* makeItem(QChar code)
{
    switch (code.toLatin1()) {
    case 'G': return new GroupItem(QStringLiteral("G"), nullptr);
    case 'R': return new RadioButtonItem(QStringLiteral("R"), nullptr);
    case 'T': return new TabItem(QStringLiteral("T"), nullptr);
    case 'C': return new CheckBoxItem(QStringLiteral("C"), nullptr);
    case 'S': return new SpinBoxItem(QStringLiteral("S"), QStringLiteral("V"), nullptr);
    case 'V': return new VerticalSpacerItem(nullptr);
    default: return nullptr;
    }
}

void buildTree(QTreeWidget* tree, const QString& shape)
{
    QList<QTreeWidgetItem*> parents{tree->invisibleRootItem()};
    QTreeWidgetItem* last = nullptr;
    for (const QChar c : shape) {
        if (c == QLatin1Char('[')) {
            parents << last;
        } else if (c == QLatin1Char(']')) {
            parents.removeLast();
        } else if (DialogItem* item = makeItem(c)) {
            parents.last()->addChild(item);
            last = item;
        }
    }
}

} // namespace

class TestDesignerItems : public QObject {
    Q_OBJECT

private slots:
    void writeXml();
    void readXml_data();
    void readXml();
    void readXmlHostile_data();
    void readXmlHostile();
    void placement_data();
    void placement();
    void preview();
};

void TestDesignerItems::writeXml()
{
    QTreeWidget tree;
    buildTree(&tree, QStringLiteral("G[S] V"));
    QCOMPARE(designer::writeXml(&tree),
             xmlOf("<Dialog><Group title=\"G\"><SpinBox title=\"S\" unit=\"V\"/></Group>"
                   "<VerticalSpacer/></Dialog>"));

    // Titles with markup characters survive a round trip.
    QTreeWidget odd;
    const QString title = QStringLiteral("a \"b\" & <c> 'd' \u00e9");
    odd.addTopLevelItem(new CheckBoxItem(title, nullptr));
    odd.addTopLevelItem(new SpinBoxItem(QString(), QStringLiteral("\u03a9 & \""), nullptr));
    const QList<DialogItem*> back = designer::readXml(designer::writeXml(&odd), nullptr);
    QCOMPARE(back.size(), 2);
    QCOMPARE(back[0]->title(), title);
    QCOMPARE(static_cast<SpinBoxItem*>(back[1])->unit(), QStringLiteral("\u03a9 & \""));
    qDeleteAll(back);
}

void TestDesignerItems::readXml_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QStringList>("items"); // tree text of each item read, in order

    QTest::newRow("nested tab and group come back flat, in document order")
        << "<Dialog><Tab title=\"t\"><Group title=\"g\"><CheckBox title=\"c\"/></Group></Tab>"
           "<SpinBox title=\"s\" unit=\"mV\"/></Dialog>"
        << QStringList{"Tab: t", "Group: g", "Check box: c", "Spin Box: s"};
    QTest::newRow("no Dialog root, other roots pass")
        << "<Other><RadioButton title=\"r\"/></Other>" << QStringList{"Radio button: r"};
    QTest::newRow("names are case-sensitive; spacers are not read")
        << "<Dialog><checkbox title=\"x\"/><VerticalSpacer/></Dialog>" << QStringList();
    QTest::newRow("absent attributes give empty titles")
        << "<Dialog><Group/><Tab foo=\"1\"/></Dialog>" << QStringList{"Group: ", "Tab: "};
    QTest::newRow("not XML") << "just words, no markup" << QStringList();
    QTest::newRow("empty") << "" << QStringList();
    QTest::newRow("second root is an error after the first")
        << "<Dialog><CheckBox title=\"a\"/></Dialog><Dialog><CheckBox title=\"b\"/></Dialog>"
        << QStringList{"Check box: a"};
}

void TestDesignerItems::readXml()
{
    QFETCH(QString, xml);
    QFETCH(QStringList, items);
    const QList<DialogItem*> read = designer::readXml(xml, nullptr);
    QStringList texts;
    for (const DialogItem* item : read)
        texts << item->text(0);
    qDeleteAll(read);
    QCOMPARE(texts, items);
}

void TestDesignerItems::readXmlHostile_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("count");

    const int deep = 10000;
    QTest::newRow("10,000 groups deep")
        << QStringLiteral("<Group title=\"g\">").repeated(deep) + QStringLiteral("</Group>").repeated(deep)
        << designer::kMaxReadItems;
    QTest::newRow("one title of 10 MB")
        << QStringLiteral("<Dialog><Tab title=\"") + QString(10 << 20, QLatin1Char('t'))
               + QStringLiteral("\"/></Dialog>")
        << 1;
    QTest::newRow("unterminated attribute") << QStringLiteral("<Dialog><Tab title=\"abc") << 0;
}

void TestDesignerItems::readXmlHostile()
{
    QFETCH(QString, xml);
    QFETCH(int, count);
    QElapsedTimer clock;
    clock.start();
    const QList<DialogItem*> read = designer::readXml(xml, nullptr);
    const int size = read.size();
    qDeleteAll(read);
    QCOMPARE(size, count);
    QVERIFY2(clock.elapsed() < 10000, "reading took too long");
}

// ---------------------------------------------------- placement and preview

void TestDesignerItems::placement_data()
{
    QTest::addColumn<QString>("shape");
    QTest::addColumn<QString>("painted"); // "!" marks a red item
    QTest::addColumn<bool>("expanded");

    QTest::newRow("all in place")
        << "G[R S V G[C]] T[G[R] C] V" << "Group: G{Radio button: R, Spin Box: S, Spacer, "
                                          "Group: G{Check box: C}}, Tab: T{Group: G{Radio button: R}, "
                                          "Check box: C}, Spacer"
        << false;
    QTest::newRow("tab in a group") << "G[T]" << "Group: G{Tab: T!}" << true;
    QTest::newRow("tab in a tab") << "T[T[C]]" << "Tab: T{Tab: T!{Check box: C}}" << true;
    QTest::newRow("anything under a leaf")
        << "R[C] S[V] C[G] V[R]"
        << "Radio button: R{Check box: C!}, Spin Box: S{Spacer!}, Check box: C{Group: G!}, "
           "Spacer{Radio button: R!}"
        << true;
}

void TestDesignerItems::placement()
{
    QFETCH(QString, shape);
    QFETCH(QString, painted);
    QFETCH(bool, expanded);
    QTreeWidget tree;
    buildTree(&tree, shape);
    QCOMPARE(designer::checkPlacement(&tree), !painted.contains(QLatin1Char('!')));
    QCOMPARE(describeTree(tree.invisibleRootItem()), painted);
    QCOMPARE(allExpanded(tree.invisibleRootItem()), expanded || !painted.contains(QLatin1Char('{')));
    for (QTreeWidgetItemIterator it(&tree); *it; ++it)
        if (!(*it)->text(0).isEmpty() && !painted.contains((*it)->text(0) + QLatin1Char('!')))
            QCOMPARE((*it)->background(0).color(), QColor(Qt::white));
}

// The preview follows the tree; every tab, wherever it stands, is a page of
// one tab widget; spacers of an earlier build go.
void TestDesignerItems::preview()
{
    QTreeWidget tree;
    QWidget preview;
    preview.setObjectName(QLatin1String(designer::kPreviewName));
    new QVBoxLayout(&preview);
    buildTree(&tree, QStringLiteral("T[C] G[T[R] S] V"));
    designer::rebuildPreview(&tree, &preview);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(describeLayout(preview.layout()),
             QStringLiteral("Tabs{T{CheckBox(C)}, T{RadioButton(R)}}, Group(G){Spin(S|V)}, spacer"));
    QCOMPARE(preview.findChildren<QTabWidget*>().size(), 1);

    tree.clear();
    buildTree(&tree, QStringLiteral("C"));
    designer::rebuildPreview(&tree, &preview);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(describeLayout(preview.layout()), QStringLiteral("CheckBox(C)"));
    QVERIFY(preview.findChildren<QTabWidget*>().isEmpty());
}

QTEST_MAIN(TestDesignerItems)
#include "tst_designeritems.moc"
