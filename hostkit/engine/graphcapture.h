// The host's "GraphImageCapture": digitises a curve from a picture of a
// graph, such as a data sheet's inductance over current.
//
// The user opens an image, marks two points on each axis and types their
// values (X1, X2 on the x axis, Y1, Y2 on the y axis; either axis may be
// logarithmic), then clicks points along the curve. Clicks go to the mark
// chosen on the left, which moves on by itself from X1 to X2, Y1, Y2 and
// then stays on "Curve point". Ok returns a real vector: the number of
// points N, then the N x values, then the N y values, in ascending x.
#pragma once

#include "engine.h"

#include <QDialog>
#include <QImage>
#include <QPointF>
#include <QVector>

#include <array>
#include <memory>

class QButtonGroup;
class QCheckBox;
class QLabel;
class QLineEdit;

namespace vtkit {

class GraphImageView;

class VT_ENGINE_API GraphCaptureDialog : public QDialog {
    Q_OBJECT

public:
    enum Mark { X1, X2, Y1, Y2, Curve };

    explicit GraphCaptureDialog(const QImage& image, QWidget* parent = nullptr);
    ~GraphCaptureDialog() override;

    // A click on the image at this point of the image's own pixels.
    void markAt(const QPointF& imagePoint);
    void setAxisValues(double x1, double x2, double y1, double y2);
    void setLogarithmic(bool x, bool y);

    // The curve points in graph units, ascending in x; empty with a reason
    // when the axes aren't marked well enough to convert.
    QVector<QPointF> curve(QString* problem = nullptr) const;

public slots:
    void accept() override;
    void undoPoint();
    void clearPoints();

private:
    void updateStatus();

    GraphImageView* m_view = nullptr;
    QButtonGroup* m_marks = nullptr;
    std::array<QLineEdit*, 4> m_values{};
    QCheckBox* m_logX = nullptr;
    QCheckBox* m_logY = nullptr;
    QLabel* m_status = nullptr;
    std::array<QPointF, 4> m_axisPoints{};
    std::array<bool, 4> m_axisMarked{};
    QVector<QPointF> m_points; // image pixels
};

// The host function: asks for an image file, then runs the dialog.
VT_ENGINE_API bool graphImageCapture(const ArgRecord* args, int nargs, ScriptValue& result,
                                     int& error);

} // namespace vtkit
