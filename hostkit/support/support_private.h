// Helpers shared by the sources of the support library; not installed.
#pragma once

#include <QString>

namespace vtkit {
namespace detail {

// Path of a file in the configuration directory.
QString configFile(const char* fileName);
// Creates the configuration directory; false if it can't be made.
bool ensureConfigDir();
// A settings key or group name that QSettings stores as it is.
QString escapeKey(const QString& key);

} // namespace detail
} // namespace vtkit
