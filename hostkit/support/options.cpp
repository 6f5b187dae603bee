// Options, configuration settings and the configuration directory.
//
// Everything persists in INI files under vtkit::configDir():
//   options.ini   host options, at top level
//   config.ini    configuration settings, one INI group per section
//   geometry.ini  window geometry by object name (services.cpp)
// Every write is synced at once and every read syncs first, so another
// process's writes are seen. Keys and sections are escaped so that any text
// round-trips: '%', '/' and '\\' (which QSettings would take as group
// separators) become %25, %2F and %5C, and the empty name becomes "%00".
// Values cross as 8-bit text (Latin-1).
#include "kitsupport.h"
#include "support_private.h"

#include <QByteArray>
#include <QDir>
#include <QHash>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>

namespace {

QString*& explicitConfigDir()
{
    static QString* dir = nullptr;
    return dir;
}

// Defaults of options declared with MakeOption, by name.
QHash<QByteArray, QByteArray>& declaredDefaults()
{
    static auto* defaults = new QHash<QByteArray, QByteArray>();
    return *defaults;
}

QString settingsValue(const QVariant& v)
{
    return v.toString();
}

bool readOption(const char* name, QByteArray* value)
{
    if (!name)
        return false;
    QSettings s(vtkit::detail::configFile("options.ini"), QSettings::IniFormat);
    s.sync();
    const QString key = vtkit::detail::escapeKey(QString::fromLatin1(name));
    if (!s.contains(key))
        return false;
    *value = settingsValue(s.value(key)).toLatin1();
    return true;
}

// The written value, else the declared default; found tells whether the
// option was written.
QByteArray optionText(const char* name, bool* found)
{
    QByteArray value;
    const bool present = readOption(name, &value);
    if (found)
        *found = present;
    if (present)
        return value;
    if (name) {
        const auto& defaults = declaredDefaults();
        const auto it = defaults.constFind(QByteArray(name));
        if (it != defaults.constEnd())
            return it.value();
    }
    return QByteArray();
}

} // namespace

namespace vtkit {

void setConfigDir(const QString& dir)
{
    QString*& stored = explicitConfigDir();
    if (!stored)
        stored = new QString();
    *stored = dir;
}

// The explicit directory if set, else $VANTRELL_CONFIG_DIR (looked up on
// every call), else GenericConfigLocation + "/vantrell".
QString configDir()
{
    if (QString* stored = explicitConfigDir(); stored && !stored->isEmpty())
        return *stored;
    const QByteArray env = qgetenv("VANTRELL_CONFIG_DIR");
    if (!env.isEmpty())
        return QString::fromLocal8Bit(env);
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/vantrell");
}

namespace detail {

QString configFile(const char* fileName)
{
    return QDir(configDir()).filePath(QString::fromLatin1(fileName));
}

bool ensureConfigDir()
{
    return QDir().mkpath(configDir());
}

QString escapeKey(const QString& key)
{
    if (key.isEmpty())
        return QStringLiteral("%00");
    QString out;
    out.reserve(key.size());
    for (const QChar c : key) {
        if (c == QLatin1Char('%'))
            out += QLatin1String("%25");
        else if (c == QLatin1Char('/'))
            out += QLatin1String("%2F");
        else if (c == QLatin1Char('\\'))
            out += QLatin1String("%5C");
        else
            out += c;
    }
    return out;
}

} // namespace detail
} // namespace vtkit

// ------------------------------------------------------------------ options

// "1", "true", "yes" and "on" in any case are true; anything else false.
// found reports whether the option was written (a declared default counts as
// the value but not as found).
bool sp_GetBoolOption(const char* name, bool* found)
{
    const QByteArray text = optionText(name, found).trimmed().toLower();
    return text == "1" || text == "true" || text == "yes" || text == "on";
}

YString sp_GetStringOption(const char* name)
{
    return sp_GetStringOption(name, nullptr);
}

YString sp_GetStringOption(const char* name, bool* found)
{
    return YString(optionText(name, found).constData());
}

int sp_GetIntOption(const char* name)
{
    // atoi's reading, but an option edited by hand to a huge number gives
    // the nearest int rather than whatever the overflow leaves.
    const long long v = std::strtoll(optionText(name, nullptr).constData(), nullptr, 10);
    return static_cast<int>(std::clamp<long long>(v, INT_MIN, INT_MAX));
}

void sp_WriteOption(const YString& name, const YString& value)
{
    if (!vtkit::detail::ensureConfigDir())
        return;
    QSettings s(vtkit::detail::configFile("options.ini"), QSettings::IniFormat);
    s.setValue(vtkit::detail::escapeKey(toQs(name)), toQs(value));
    s.sync();
}

// True is "1". False is stored as empty text: options written false mean
// "no value of its own" (a setting left at its factory default, a library
// name that isn't set), so that they read back as false, 0 and "" alike.
void sp_WriteOption(const YString& name, bool value)
{
    sp_WriteOption(name, YString(value ? "1" : ""));
}

void sp_WriteOption(const YString& name, const char* value)
{
    sp_WriteOption(name, YString(value));
}

MakeOption::MakeOption(const char*, int, const YString& name, const YString& defaultValue, bool)
{
    declaredDefaults().insert(QByteArray(name.c_str()), QByteArray(defaultValue.c_str()));
}

// ------------------------------------------------------------ configuration

int cfgman_GetConfigSetting(const char* section, const char* key, char* buffer, int bufferSize,
                            bool)
{
    if (!section || !key)
        return 0;
    QSettings s(vtkit::detail::configFile("config.ini"), QSettings::IniFormat);
    s.sync();
    s.beginGroup(vtkit::detail::escapeKey(QString::fromLatin1(section)));
    const QString k = vtkit::detail::escapeKey(QString::fromLatin1(key));
    if (!s.contains(k))
        return 0;
    if (buffer && bufferSize >= 0) {
        const QByteArray value = settingsValue(s.value(k)).toLatin1();
        std::size_t n = static_cast<std::size_t>(value.size());
        if (n > static_cast<std::size_t>(bufferSize))
            n = static_cast<std::size_t>(bufferSize);
        std::memcpy(buffer, value.constData(), n);
        buffer[n] = '\0';
    }
    return 1;
}

bool cfgman_WriteConfigSetting(const char* section, const char* key, const char* value)
{
    if (!section || !key)
        return false;
    if (!vtkit::detail::ensureConfigDir())
        return false;
    QSettings s(vtkit::detail::configFile("config.ini"), QSettings::IniFormat);
    s.beginGroup(vtkit::detail::escapeKey(QString::fromLatin1(section)));
    s.setValue(vtkit::detail::escapeKey(QString::fromLatin1(key)),
               QString::fromLatin1(value ? value : ""));
    s.endGroup();
    s.sync();
    return s.status() == QSettings::NoError;
}
