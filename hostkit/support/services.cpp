// Help, window geometry, icon, files and clipboard.
#include "kitsupport.h"
#include "support_private.h"

#include <QByteArray>
#include <QClipboard>
#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPointer>
#include <QSettings>
#include <QWidget>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

// --------------------------------------------------------------------- help

namespace {

QStringList& helpLog()
{
    static auto* log = new QStringList();
    return *log;
}

std::function<void(const QString&)>& helpHandler()
{
    static auto* handler = new std::function<void(const QString&)>();
    return *handler;
}

} // namespace

namespace vtkit {

QStringList helpRequests()
{
    return helpLog();
}

void clearHelpRequests()
{
    helpLog().clear();
}

void setHelpHandler(std::function<void(const QString& topic)> handler)
{
    helpHandler() = std::move(handler);
}

} // namespace vtkit

// Records the topic (null as "") and hands it to the handler, by default a
// line "help: TOPIC" on stderr. The mode and the out pointers are not used.
void sp_RunHelp(RunHelpMode, const char* topic, int*, int*)
{
    const QString text = QString::fromLatin1(topic ? topic : "");
    helpLog().append(text);
    const auto& handler = helpHandler();
    if (handler) {
        handler(text);
    } else {
        std::fprintf(stderr, "help: %s\n", topic ? topic : "");
        std::fflush(stderr);
    }
}

// A name of decimal digits only (at most 9) gives its number; any other name
// gives 1000 + hashValue % 100000, so 1000..100999, the same in every run.
int sp_GetHelpContextId(const YString& name)
{
    const char* p = name.c_str();
    const int n = name.length();
    bool decimal = n > 0 && n <= 9;
    for (int i = 0; decimal && i < n; ++i)
        decimal = p[i] >= '0' && p[i] <= '9';
    if (decimal)
        return std::atoi(p);
    return 1000 + static_cast<int>(name.hashValue() % 100000u);
}

// ----------------------------------------------------------- window geometry

namespace {

const char* const kSaverName = "vt_geometry_saver";

// Child of the widget. Keeps the last geometry the widget had while it was
// visible, and writes it to geometry.ini (key: the widget's object name,
// value: base64 of saveGeometry()) when the widget is hidden or closed, and
// when the saver goes with the widget. It never touches the widget while
// the widget is being destroyed.
class GeometrySaver : public QObject {
public:
    GeometrySaver(QWidget* widget) : QObject(widget), m_widget(widget), m_key(widget->objectName())
    {
        setObjectName(QLatin1String(kSaverName));
        widget->installEventFilter(this);
    }
    ~GeometrySaver() override { write(); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_widget) {
            switch (event->type()) {
            case QEvent::Show:
            case QEvent::Move:
            case QEvent::Resize:
                if (m_widget->isVisible())
                    capture();
                break;
            case QEvent::Hide:
            case QEvent::Close:
                capture();
                write();
                break;
            default:
                break;
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void capture()
    {
        if (!m_widget)
            return;
        const QByteArray state = m_widget->saveGeometry().toBase64();
        if (state != m_state) {
            m_state = state;
            m_dirty = true;
        }
    }
    void write()
    {
        if (!m_dirty || m_key.isEmpty() || m_state.isEmpty())
            return;
        if (!vtkit::detail::ensureConfigDir())
            return;
        QSettings s(vtkit::detail::configFile("geometry.ini"), QSettings::IniFormat);
        s.setValue(vtkit::detail::escapeKey(m_key), QString::fromLatin1(m_state));
        s.sync();
        m_dirty = false;
    }

    QPointer<QWidget> m_widget;
    QString m_key;
    QByteArray m_state;
    bool m_dirty = false;
};

} // namespace

// Restores the geometry saved under the widget's object name, then saves it
// whenever the widget is hidden or closed and when it is destroyed. A second
// call on the same widget does nothing; a widget without an object name and
// a null widget are left alone.
void sp_AutoSaveDialogDims(QWidget* widget)
{
    if (!widget || widget->objectName().isEmpty())
        return;
    if (widget->findChild<QObject*>(QLatin1String(kSaverName), Qt::FindDirectChildrenOnly))
        return;
    QSettings s(vtkit::detail::configFile("geometry.ini"), QSettings::IniFormat);
    s.sync();
    const QString key = vtkit::detail::escapeKey(widget->objectName());
    if (s.contains(key)) {
        const QByteArray state = QByteArray::fromBase64(s.value(key).toString().toLatin1());
        if (!state.isEmpty())
            widget->restoreGeometry(state);
    }
    new GeometrySaver(widget);
}

// --------------------------------------------------------------------- icon

namespace {

QImage drawIcon(int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const qreal s = size;
    // Rounded tile with a gentle gradient.
    QLinearGradient gradient(0, 0, 0, s);
    gradient.setColorAt(0, QColor(38, 92, 160));
    gradient.setColorAt(1, QColor(18, 48, 96));
    p.setPen(Qt::NoPen);
    p.setBrush(gradient);
    p.drawRoundedRect(QRectF(0.5, 0.5, s - 1, s - 1), s * 0.18, s * 0.18);
    // A sine wave across the lower half.
    QPainterPath wave;
    const int steps = 48;
    for (int i = 0; i <= steps; ++i) {
        const qreal x = s * (0.1 + 0.8 * i / steps);
        const qreal y = s * (0.72 + 0.1 * std::sin(3.0 * 3.14159265358979323846 * i / steps));
        if (i == 0)
            wave.moveTo(x, y);
        else
            wave.lineTo(x, y);
    }
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(120, 230, 160), qMax<qreal>(1.0, s / 16), Qt::SolidLine, Qt::RoundCap,
                  Qt::RoundJoin));
    p.drawPath(wave);
    // A bold "V" above it.
    QPainterPath v;
    v.moveTo(s * 0.22, s * 0.16);
    v.lineTo(s * 0.5, s * 0.66);
    v.lineTo(s * 0.78, s * 0.16);
    p.setPen(QPen(Qt::white, qMax<qreal>(1.5, s / 8), Qt::SolidLine, Qt::RoundCap,
                  Qt::RoundJoin));
    p.drawPath(v);
    p.end();
    return image;
}

} // namespace

// Sets the window icon, drawn once at 16, 32 and 64 pixels and cached.
void sp_ApplyVantrellIcon(QWidget* widget)
{
    if (!widget || !qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return;
    static QIcon* icon = nullptr;
    if (!icon) {
        icon = new QIcon();
        for (int size : {16, 32, 64})
            icon->addPixmap(QPixmap::fromImage(drawIcon(size)));
    }
    widget->setWindowIcon(*icon);
}

// -------------------------------------------------------------------- files

YString sp_GetCwd()
{
    return toYs(QDir::currentPath());
}

// True for an existing file, through links. A directory is no file: a
// tool asking for its input file wants something it can open and read.
bool sp_ExistFile(const char* path)
{
    if (!path || !*path)
        return false;
    return QFileInfo(QString::fromLocal8Bit(path)).isFile();
}

namespace {

// The document kinds of the simulator and the extensions of their files,
// the default first. Extensions in the list carry their dot; the default
// extension is given without it, as file filters write "*." before it.
struct KindExtensions {
    const char* kind;
    const char* extensions[6]; // null-terminated
};

const KindExtensions kKinds[] = {
    {"Schematic", {".sxsch", ".sch", nullptr}},
    {"Component", {".sxcmp", nullptr}},
    {"Symbol", {".sxsym", ".sym", nullptr}},
    {"Model", {".lib", ".mod", ".model", ".sub", nullptr}},
    {"Netlist", {".net", ".cir", ".sp", ".spi", nullptr}},
    {"Graph", {".sxgph", nullptr}},
    {"Script", {".sxscr", ".txt", nullptr}},
    {"VerilogA", {".va", ".vams", nullptr}},
    {"VerilogHDL", {".v", ".vh", ".sv", nullptr}},
    {"Data", {".dat", ".csv", ".txt", nullptr}},
    {"Text", {".txt", nullptr}},
    {"AsciiFileEditor", {".txt", ".log", ".out", ".net", ".cir", nullptr}},
    {"LogicDef", {".ldf", nullptr}},
    {"Init", {".ini", nullptr}},
};

const KindExtensions* findKind(const char* kind)
{
    if (!kind)
        return nullptr;
    for (const auto& k : kKinds)
        if (std::strcmp(k.kind, kind) == 0)
            return &k;
    return nullptr;
}

} // namespace

// The default extension of a kind without its dot ("Schematic": "sxsch");
// "" for an unknown kind.
YString sp_GetVantrellDefaultExtension(const char* kind)
{
    const KindExtensions* k = findKind(kind);
    return YString(k ? k->extensions[0] + 1 : "");
}

// All extensions of a kind with their dots, the default first. The list is
// emptied first; false (and an empty list) for an unknown kind.
bool sp_GetVantrellFileExtension(const char* kind, YList<YString>* out)
{
    if (out)
        out->clear();
    const KindExtensions* k = findKind(kind);
    if (!k)
        return false;
    if (out)
        for (int i = 0; k->extensions[i]; ++i)
            out->add(YString(k->extensions[i]));
    return true;
}

// The clipboard's text as Latin-1. False, and text unchanged, when there is
// no QGuiApplication or the clipboard holds no text.
bool sp_PasteTextFromClipboard(YString* text)
{
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return false;
    QClipboard* clipboard = QGuiApplication::clipboard();
    if (!clipboard)
        return false;
    const QString value = clipboard->text();
    if (value.isEmpty())
        return false;
    if (text)
        *text = toYs(value);
    return true;
}
