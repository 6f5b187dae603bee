#include "graphcapture.h"

#include "hostsupport.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <functional>

namespace vtkit {

namespace {

// Pictures bigger than this are a mistake, not a graph.
const int kMaxImageSide = 8000;
const char* const kMarkNames[] = {"X1", "X2", "Y1", "Y2"};

} // namespace

// Shows the image scaled to fit, the axis marks and the curve; reports
// clicks in the image's own pixels so that the window's size doesn't matter.
class GraphImageView : public QWidget {
public:
    GraphImageView(const QImage& image, QWidget* parent)
        : QWidget(parent)
        , m_image(image)
    {
        setObjectName(QStringLiteral("graphImageView"));
        setMinimumSize(320, 240);
        setCursor(Qt::CrossCursor);
    }

    std::function<void(const QPointF&)> clicked;
    const std::array<QPointF, 4>* axisPoints = nullptr;
    const std::array<bool, 4>* axisMarked = nullptr;
    const QVector<QPointF>* points = nullptr;

    QSize sizeHint() const override
    {
        return m_image.size().scaled(720, 540, Qt::KeepAspectRatio).expandedTo(minimumSize());
    }

    QRectF imageRect() const
    {
        if (m_image.isNull())
            return QRectF();
        const QSizeF size = QSizeF(m_image.size()).scaled(QSizeF(this->size()), Qt::KeepAspectRatio);
        return QRectF(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), size);
    }
    QPointF toImage(const QPointF& p) const
    {
        const QRectF r = imageRect();
        return QPointF((p.x() - r.left()) * m_image.width() / r.width(),
                       (p.y() - r.top()) * m_image.height() / r.height());
    }
    QPointF toView(const QPointF& p) const
    {
        const QRectF r = imageRect();
        return QPointF(r.left() + p.x() * r.width() / m_image.width(),
                       r.top() + p.y() * r.height() / m_image.height());
    }

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton && imageRect().contains(event->localPos()) && clicked)
            clicked(toImage(event->localPos()));
    }

    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().base());
        if (m_image.isNull())
            return;
        painter.drawImage(imageRect(), m_image);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF r = imageRect();
        for (int i = 0; i < 4; ++i) {
            if (!(*axisMarked)[i])
                continue;
            const QPointF p = toView((*axisPoints)[i]);
            painter.setPen(QPen(QColor(0, 120, 215), 1, Qt::DashLine));
            if (i < 2)
                painter.drawLine(QPointF(p.x(), r.top()), QPointF(p.x(), r.bottom()));
            else
                painter.drawLine(QPointF(r.left(), p.y()), QPointF(r.right(), p.y()));
            painter.setPen(QColor(0, 120, 215));
            painter.drawText(p + QPointF(4, -4), QString::fromLatin1(kMarkNames[i]));
        }
        QPolygonF line;
        for (const QPointF& p : *points)
            line << toView(p);
        painter.setPen(QPen(QColor(220, 30, 30), 1.5));
        painter.drawPolyline(line);
        painter.setBrush(QColor(220, 30, 30));
        for (const QPointF& p : line)
            painter.drawEllipse(p, 3, 3);
    }

private:
    QImage m_image;
};

GraphCaptureDialog::GraphCaptureDialog(const QImage& image, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("GraphImageCapture"));
    setWindowTitle(tr("Capture Graph Points"));
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    m_view = new GraphImageView(image, this);
    m_view->axisPoints = &m_axisPoints;
    m_view->axisMarked = &m_axisMarked;
    m_view->points = &m_points;
    m_view->clicked = [this](const QPointF& p) { markAt(p); };

    auto* marks = new QGroupBox(tr("Next click marks"), this);
    auto* marksLayout = new QGridLayout(marks);
    m_marks = new QButtonGroup(this);
    const QStringList defaults{QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("0"),
                               QStringLiteral("1")};
    for (int i = 0; i < 4; ++i) {
        auto* button = new QRadioButton(QString::fromLatin1(kMarkNames[i]), marks);
        button->setObjectName(QStringLiteral("radio") + QLatin1String(kMarkNames[i]));
        m_marks->addButton(button, i);
        m_values[size_t(i)] = new QLineEdit(defaults.at(i), marks);
        m_values[size_t(i)]->setObjectName(QStringLiteral("edit") + QLatin1String(kMarkNames[i]));
        m_values[size_t(i)]->setToolTip(tr("The value of the axis at this mark"));
        marksLayout->addWidget(button, i, 0);
        marksLayout->addWidget(m_values[size_t(i)], i, 1);
    }
    auto* curveButton = new QRadioButton(tr("Curve point"), marks);
    curveButton->setObjectName(QStringLiteral("radioCurve"));
    m_marks->addButton(curveButton, Curve);
    marksLayout->addWidget(curveButton, 4, 0, 1, 2);
    m_marks->button(X1)->setChecked(true);

    m_logX = new QCheckBox(tr("Logarithmic x axis"), this);
    m_logX->setObjectName(QStringLiteral("checkLogX"));
    m_logY = new QCheckBox(tr("Logarithmic y axis"), this);
    m_logY->setObjectName(QStringLiteral("checkLogY"));
    auto* undo = new QPushButton(tr("Undo Point"), this);
    undo->setObjectName(QStringLiteral("undoButton"));
    auto* clear = new QPushButton(tr("Clear Points"), this);
    clear->setObjectName(QStringLiteral("clearButton"));
    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("statusLabel"));
    m_status->setWordWrap(true);
    m_status->setMinimumWidth(200);

    auto* side = new QVBoxLayout;
    side->addWidget(marks);
    side->addWidget(m_logX);
    side->addWidget(m_logY);
    side->addWidget(undo);
    side->addWidget(clear);
    side->addWidget(m_status);
    side->addStretch(1);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("okButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &GraphCaptureDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(undo, &QPushButton::clicked, this, &GraphCaptureDialog::undoPoint);
    connect(clear, &QPushButton::clicked, this, &GraphCaptureDialog::clearPoints);
    connect(m_marks, &QButtonGroup::idClicked, this, [this] { updateStatus(); });

    auto* top = new QHBoxLayout;
    top->addLayout(side);
    top->addWidget(m_view, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top, 1);
    layout->addWidget(buttons);
    updateStatus();
    // The picture's own size, not the share of a small screen that a
    // dialog takes by default.
    resize(sizeHint());
}

GraphCaptureDialog::~GraphCaptureDialog() = default;

void GraphCaptureDialog::markAt(const QPointF& imagePoint)
{
    const int mark = m_marks->checkedId();
    if (mark >= X1 && mark <= Y2) {
        m_axisPoints[size_t(mark)] = imagePoint;
        m_axisMarked[size_t(mark)] = true;
        // Move on to the next axis mark still missing, then to the curve.
        int next = Curve;
        for (int i = mark + 1; i <= Y2; ++i)
            if (!m_axisMarked[size_t(i)]) {
                next = i;
                break;
            }
        m_marks->button(next)->setChecked(true);
    } else {
        m_points << imagePoint;
    }
    updateStatus();
    m_view->update();
}

void GraphCaptureDialog::setAxisValues(double x1, double x2, double y1, double y2)
{
    const double values[] = {x1, x2, y1, y2};
    for (int i = 0; i < 4; ++i)
        m_values[size_t(i)]->setText(QString::number(values[i], 'g', 12));
}

void GraphCaptureDialog::setLogarithmic(bool x, bool y)
{
    m_logX->setChecked(x);
    m_logY->setChecked(y);
}

void GraphCaptureDialog::undoPoint()
{
    if (!m_points.isEmpty())
        m_points.removeLast();
    updateStatus();
    m_view->update();
}

void GraphCaptureDialog::clearPoints()
{
    m_points.clear();
    m_axisMarked = {};
    m_marks->button(X1)->setChecked(true);
    updateStatus();
    m_view->update();
}

void GraphCaptureDialog::updateStatus()
{
    const int mark = m_marks->checkedId();
    m_status->setText(mark == Curve
                          ? tr("Click points along the curve: %n marked.", nullptr, m_points.size())
                          : tr("Click the point of %1 on the %2 axis.")
                                .arg(QLatin1String(kMarkNames[mark]),
                                     mark < Y1 ? QStringLiteral("x") : QStringLiteral("y")));
}

QVector<QPointF> GraphCaptureDialog::curve(QString* problem) const
{
    auto fail = [problem](const QString& why) {
        if (problem)
            *problem = why;
        return QVector<QPointF>();
    };
    for (bool marked : m_axisMarked)
        if (!marked)
            return fail(tr("Mark X1, X2, Y1 and Y2 on the axes first."));
    double v[4];
    for (int i = 0; i < 4; ++i) {
        v[i] = sp_ConvertEngToReal(m_values[size_t(i)]->text(), nullptr);
        if (!std::isfinite(v[i]))
            return fail(tr("The value of %1 is not a number.").arg(QLatin1String(kMarkNames[i])));
    }
    const bool logX = m_logX->isChecked();
    const bool logY = m_logY->isChecked();
    if ((logX && (v[0] <= 0 || v[1] <= 0)) || (logY && (v[2] <= 0 || v[3] <= 0)))
        return fail(tr("A logarithmic axis needs values above zero."));
    const double px1 = m_axisPoints[0].x(), px2 = m_axisPoints[1].x();
    const double py1 = m_axisPoints[2].y(), py2 = m_axisPoints[3].y();
    if (px1 == px2 || py1 == py2 || v[0] == v[1] || v[2] == v[3])
        return fail(tr("The two marks of an axis must differ in place and value."));

    // Interpolate in the axis's own scale: linear, or linear in log10.
    auto map = [](double p, double p1, double p2, double a, double b, bool log) {
        const double t = (p - p1) / (p2 - p1);
        return log ? std::pow(10.0, std::log10(a) + t * (std::log10(b) - std::log10(a)))
                   : a + t * (b - a);
    };
    QVector<QPointF> out;
    out.reserve(m_points.size());
    for (const QPointF& p : m_points)
        out << QPointF(map(p.x(), px1, px2, v[0], v[1], logX), map(p.y(), py1, py2, v[2], v[3], logY));
    std::stable_sort(out.begin(), out.end(),
                     [](const QPointF& a, const QPointF& b) { return a.x() < b.x(); });
    return out;
}

void GraphCaptureDialog::accept()
{
    QString problem;
    const QVector<QPointF> points = curve(&problem);
    if (!problem.isEmpty()) {
        QMessageBox::warning(this, tr("Graph Capture"), problem);
        return;
    }
    if (points.isEmpty()) {
        QMessageBox::warning(this, tr("Graph Capture"), tr("Click at least one point on the curve."));
        return;
    }
    QDialog::accept();
}

bool graphImageCapture(const ArgRecord* /*args*/, int /*nargs*/, ScriptValue& result, int& error)
{
    error = 1;
    const QString path = QFileDialog::getOpenFileName(
        nullptr, QObject::tr("Open Graph Image"), QString(),
        QObject::tr("Images (*.png *.jpg *.jpeg *.bmp);;All files (*)"), nullptr,
        QFileDialog::DontUseNativeDialog);
    if (path.isEmpty())
        return false;
    QImageReader reader(path);
    const QSize size = reader.size();
    if (size.width() > kMaxImageSide || size.height() > kMaxImageSide)
        return false;
    const QImage image = reader.read();
    if (image.isNull()) {
        QMessageBox::warning(nullptr, QObject::tr("Graph Capture"),
                             QObject::tr("The file is not an image that can be read."));
        return false;
    }
    GraphCaptureDialog dialog(image);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    const QVector<QPointF> points = dialog.curve();
    std::vector<double> values;
    values.reserve(size_t(1 + 2 * points.size()));
    values.push_back(points.size());
    for (const QPointF& p : points)
        values.push_back(p.x());
    for (const QPointF& p : points)
        values.push_back(p.y());
    result = ScriptValue::fromReals(std::move(values));
    error = 0;
    return true;
}

} // namespace vtkit
