#include "pwldialog.h"

#include "hostsupport.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <cmath>
#include <limits>

namespace vtkit {

namespace {

const int kPointLimit = 100000;
const int kDefaultMinSegments = 2;

QStringList textsOf(const ArgRecord* args, int nargs, int index)
{
    QStringList out;
    if (!args || index >= nargs || args[index].kind != ArgKindStrings || !args[index].data)
        return out;
    const auto* data = static_cast<const char* const*>(args[index].data);
    const std::uint32_t count = args[index].count;
    // Two texts a point: what lies beyond the table's limit is never read.
    const std::uint32_t readable = std::min<std::uint32_t>(count, 2u * kPointLimit + 1);
    out.reserve(int(readable));
    for (std::uint32_t i = 0; i < readable; ++i)
        out << QString::fromLatin1(data[i] ? data[i] : "");
    return out;
}

bool isExpression(const QString& text)
{
    return text.startsWith(QLatin1Char('{')) && text.endsWith(QLatin1Char('}'));
}

// The value of a cell that is a whole number in engineering notation.
bool numberOf(const QString& text, double* value)
{
    const QByteArray bytes = text.toLatin1();
    char* end = nullptr;
    *value = sp_ConvertEngToReal(bytes.constData(), &end);
    return end && end != bytes.constData() && *end == '\0' && std::isfinite(*value);
}

// A small picture of the curve: the numeric points joined by lines.
class CurvePreview : public QWidget {
public:
    explicit CurvePreview(QWidget* parent)
        : QWidget(parent)
    {
        setObjectName(QStringLiteral("curvePreview"));
        setMinimumSize(160, 120);
    }

    void setPoints(QVector<QPointF> points)
    {
        m_points = std::move(points);
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter p(this);
        const QRectF area = QRectF(rect()).adjusted(8, 8, -8, -8);
        p.fillRect(rect(), palette().base());
        p.setPen(palette().mid().color());
        p.drawRect(area);
        if (m_points.size() < 2)
            return;
        double x0 = m_points.first().x(), x1 = x0, y0 = m_points.first().y(), y1 = y0;
        for (const QPointF& pt : qAsConst(m_points)) {
            x0 = std::min(x0, pt.x());
            x1 = std::max(x1, pt.x());
            y0 = std::min(y0, pt.y());
            y1 = std::max(y1, pt.y());
        }
        const double w = x1 > x0 ? x1 - x0 : 1.0;
        const double h = y1 > y0 ? y1 - y0 : 1.0;
        QPainterPath path;
        for (int i = 0; i < m_points.size(); ++i) {
            const QPointF at(area.left() + (m_points[i].x() - x0) / w * area.width(),
                             area.bottom() - (m_points[i].y() - y0) / h * area.height());
            if (i == 0)
                path.moveTo(at);
            else
                path.lineTo(at);
        }
        p.setRenderHint(QPainter::Antialiasing, true);
        p.setPen(QPen(QColor(20, 90, 200), 1.5));
        p.drawPath(path);
    }

private:
    QVector<QPointF> m_points;
};

} // namespace

PwlTableOptions pwlTableOptions(const QStringList& options)
{
    PwlTableOptions o;
    auto text = [&](int i, const QString& fallback) {
        return i < options.size() && !options.at(i).isEmpty() ? options.at(i) : fallback;
    };
    o.title = text(0, QApplication::translate("PWLDialog", "Piecewise Linear Curve"));
    o.xHeading = text(1, QStringLiteral("X"));
    o.yHeading = text(2, QStringLiteral("Y"));
    o.prompt = text(3, QString());
    bool ok = false;
    const int most = text(4, QString()).trimmed().toInt(&ok);
    if (ok)
        o.maxPoints = qBound(2, most, kPointLimit);
    const int least = text(5, QString()).trimmed().toInt(&ok);
    o.minSegments = ok ? least : kDefaultMinSegments;
    o.minSegments = qBound(0, o.minSegments, o.maxPoints - 2);
    return o;
}

QString pwlTableProblem(const QStringList& flat, int minSegments)
{
    const int points = flat.size() / 2;
    if (points - 1 <= minSegments)
        return QApplication::translate("PWLDialog", "The curve needs at least %n points.", nullptr,
                                       minSegments + 2);
    double lastX = -std::numeric_limits<double>::infinity();
    for (int i = 0; i < 2 * points; ++i) {
        const QString& cell = flat.at(i);
        double value = 0;
        const bool number = numberOf(cell, &value);
        if (!number && !isExpression(cell))
            return QApplication::translate("PWLDialog",
                                           "Point %1: \"%2\" is neither a number nor an "
                                           "expression in braces.")
                .arg(i / 2 + 1)
                .arg(cell);
        if (i % 2 == 0 && number) {
            if (value <= lastX)
                return QApplication::translate("PWLDialog",
                                               "Point %1: the x values must increase.")
                    .arg(i / 2 + 1);
            lastX = value;
        }
    }
    return QString();
}

struct PwlTableDialog::Private {
    PwlTableOptions options;
    QTableWidget* table = nullptr;
    CurvePreview* preview = nullptr;
};

PwlTableDialog::PwlTableDialog(const QStringList& flat, const PwlTableOptions& options,
                               QWidget* parent)
    : QDialog(parent)
    , d(new Private)
{
    d->options = options;
    setObjectName(QStringLiteral("PWLDialog"));
    setWindowTitle(options.title);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    auto* layout = new QVBoxLayout(this);
    if (!options.prompt.isEmpty()) {
        auto* prompt = new QLabel(options.prompt, this);
        prompt->setObjectName(QStringLiteral("labelPrompt"));
        prompt->setWordWrap(true);
        layout->addWidget(prompt);
    }
    auto* body = new QHBoxLayout;
    layout->addLayout(body, 1);

    const int points = std::min(int(flat.size() / 2), options.maxPoints);
    d->table = new QTableWidget(points, 2, this);
    d->table->setObjectName(QStringLiteral("tablePoints"));
    d->table->setHorizontalHeaderLabels({options.xHeading, options.yHeading});
    d->table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    d->table->setMinimumWidth(240);
    d->table->setUpdatesEnabled(false);
    for (int row = 0; row < points; ++row)
        for (int column = 0; column < 2; ++column)
            d->table->setItem(row, column, new QTableWidgetItem(flat.at(2 * row + column)));
    d->table->setUpdatesEnabled(true);
    body->addWidget(d->table, 1);

    auto* side = new QVBoxLayout;
    d->preview = new CurvePreview(this);
    side->addWidget(d->preview, 1);
    auto* add = new QPushButton(QApplication::translate("PWLDialog", "Add Point"), this);
    add->setObjectName(QStringLiteral("addPointButton"));
    add->setAutoDefault(false);
    auto* remove = new QPushButton(QApplication::translate("PWLDialog", "Remove Point"), this);
    remove->setObjectName(QStringLiteral("removePointButton"));
    remove->setAutoDefault(false);
    side->addWidget(add);
    side->addWidget(remove);
    body->addLayout(side);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("okButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cancelButton"));
    layout->addWidget(buttons);

    connect(buttons, &QDialogButtonBox::accepted, this, &PwlTableDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(add, &QPushButton::clicked, this, [this] { addPoint(); });
    connect(remove, &QPushButton::clicked, this, [this] { removePoint(); });
    connect(d->table, &QTableWidget::itemChanged, this, [this] { updatePlot(); });
    updatePlot();
    resize(520, 360);
}

PwlTableDialog::~PwlTableDialog() = default;

QStringList PwlTableDialog::points() const
{
    QStringList out;
    for (int row = 0; row < d->table->rowCount(); ++row) {
        QString cells[2];
        for (int column = 0; column < 2; ++column)
            if (const QTableWidgetItem* item = d->table->item(row, column))
                cells[column] = item->text().trimmed();
        if (cells[0].isEmpty() && cells[1].isEmpty())
            continue;
        out << cells[0] << cells[1];
    }
    return out;
}

void PwlTableDialog::accept()
{
    const QString problem = pwlTableProblem(points(), d->options.minSegments);
    if (!problem.isEmpty()) {
        QMessageBox::warning(this, QApplication::translate("PWLDialog", "Invalid Curve"), problem);
        return;
    }
    QDialog::accept();
}

// A new row below the current one, or at the end.
void PwlTableDialog::addPoint()
{
    if (d->table->rowCount() >= d->options.maxPoints)
        return;
    const int current = d->table->currentRow();
    const int row = current >= 0 ? current + 1 : d->table->rowCount();
    d->table->insertRow(row);
    d->table->setCurrentCell(row, 0);
}

void PwlTableDialog::removePoint()
{
    const int row = d->table->currentRow();
    if (row >= 0)
        d->table->removeRow(row);
    updatePlot();
}

void PwlTableDialog::updatePlot()
{
    const QStringList flat = points();
    QVector<QPointF> curve;
    for (int i = 0; i + 1 < flat.size(); i += 2) {
        double x = 0, y = 0;
        if (numberOf(flat.at(i), &x) && numberOf(flat.at(i + 1), &y))
            curve << QPointF(x, y);
    }
    d->preview->setPoints(curve);
}

bool pwlDialog(const ArgRecord* args, int nargs, ScriptValue& result, int& error)
{
    error = 0;
    if (!qobject_cast<QApplication*>(QCoreApplication::instance())) {
        error = 1;
        return false;
    }
    PwlTableDialog dialog(textsOf(args, nargs, 0), pwlTableOptions(textsOf(args, nargs, 1)),
                          QApplication::activeModalWidget());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    std::vector<std::string> out;
    for (const QString& text : dialog.points())
        out.push_back(text.toLatin1().toStdString());
    result = ScriptValue::fromStrings(std::move(out));
    return true;
}

} // namespace vtkit
