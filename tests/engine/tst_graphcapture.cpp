// The host's graph digitiser: axis marks and clicked points become values.
#include "graphcapture.h"

#include <QAbstractButton>
#include <QImage>
#include <QLineEdit>
#include <QtTest>

using vtkit::GraphCaptureDialog;

class TestGraphCapture : public QObject {
    Q_OBJECT

private slots:
    void curve_data();
    void curve();
    void clicksOnTheScaledImage();
};

void TestGraphCapture::curve_data()
{
    QTest::addColumn<bool>("logX");
    QTest::addColumn<bool>("logY");
    QTest::addColumn<QStringList>("values"); // X1 X2 Y1 Y2
    QTest::addColumn<int>("marks");          // how many axis marks are made
    QTest::addColumn<QString>("expected");   // "x,y x,y" or the start of the problem

    // Marks: X1 at pixel x 50, X2 at 350, Y1 at pixel y 250, Y2 at 50.
    // Clicked: (200, 150) then (50, 250).
    QTest::newRow("linear axes") << false << false << QStringList{"0", "10", "0", "100"} << 4
                                 << "0,0 5,50";
    QTest::newRow("engineering values") << false << false << QStringList{"0", "10m", "0", "1u"} << 4
                                        << "0,0 0.005,5e-07";
    QTest::newRow("log x: the middle is the geometric mean")
        << true << false << QStringList{"1", "100", "0", "100"} << 4 << "1,0 10,50";
    QTest::newRow("a missing mark") << false << false << QStringList{"0", "10", "0", "100"} << 3
                                    << "Mark X1, X2, Y1 and Y2";
    QTest::newRow("log axis through zero") << false << true << QStringList{"0", "10", "0", "100"} << 4
                                           << "A logarithmic axis";
    QTest::newRow("two marks with one value") << false << false << QStringList{"5", "5", "0", "100"} << 4
                                              << "The two marks";
}

void TestGraphCapture::curve()
{
    QFETCH(bool, logX);
    QFETCH(bool, logY);
    QFETCH(QStringList, values);
    QFETCH(int, marks);
    QFETCH(QString, expected);

    QImage image(400, 300, QImage::Format_RGB32);
    image.fill(Qt::white);
    GraphCaptureDialog dialog(image);
    dialog.setLogarithmic(logX, logY);
    const QPointF axis[] = {{50, 250}, {350, 250}, {50, 250}, {50, 50}};
    for (int i = 0; i < marks; ++i)
        dialog.markAt(axis[i]);
    if (marks < 4) // the next click would still be an axis mark: skip it
        dialog.findChild<QAbstractButton*>(QStringLiteral("radioCurve"))->click();
    for (int i = 0; i < 4; ++i)
        dialog.findChild<QLineEdit*>(QStringLiteral("edit") + QStringList{"X1", "X2", "Y1", "Y2"}[i])
            ->setText(values[i]);
    dialog.markAt({200, 150});
    dialog.markAt({50, 250});

    QString problem;
    const QVector<QPointF> points = dialog.curve(&problem);
    if (!problem.isEmpty()) {
        QVERIFY2(problem.startsWith(expected), qPrintable(problem));
        return;
    }
    QStringList shown;
    for (const QPointF& p : points)
        shown << QString::number(p.x(), 'g', 6) + QLatin1Char(',') + QString::number(p.y(), 'g', 6);
    QCOMPARE(shown.join(QLatin1Char(' ')), expected);
}

// A click lands in image pixels wherever the window puts the picture.
void TestGraphCapture::clicksOnTheScaledImage()
{
    QImage image(200, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    GraphCaptureDialog dialog(image);
    dialog.resize(900, 500);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto* view = dialog.findChild<QWidget*>(QStringLiteral("graphImageView"));
    QVERIFY(view);
    // The image keeps its 2:1 shape, centred in the view.
    const double scale = std::min(view->width() / 200.0, view->height() / 100.0);
    const QPointF origin((view->width() - 200 * scale) / 2, (view->height() - 100 * scale) / 2);
    auto at = [&](double x, double y) { return (origin + QPointF(x, y) * scale).toPoint(); };
    dialog.setAxisValues(0, 100, 0, 1);
    for (const QPoint& p : {at(0, 100), at(200, 100), at(0, 100), at(0, 0), at(100, 50)})
        QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, p);
    const QVector<QPointF> points = dialog.curve();
    QCOMPARE(points.size(), 1);
    QVERIFY(qAbs(points.first().x() - 50) < 1.0);
    QVERIFY(qAbs(points.first().y() - 0.5) < 0.02);
}

QTEST_MAIN(TestGraphCapture)
#include "tst_graphcapture.moc"
