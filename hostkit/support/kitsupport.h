// What the stand-in host adds to the support library for itself and for
// tests. The module never includes this header.
#pragma once

#include "hostsupport.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace vtkit {

// Where options, "DialogPreferences" settings and window geometry live.
// Chosen once: an explicit directory (vthost --config-dir), else
// $VANTRELL_CONFIG_DIR, else the user's configuration location.
VT_SUPPORT_API void setConfigDir(const QString& dir);
VT_SUPPORT_API QString configDir();

// Element index of string argument argIndex of a call, or null when the
// argument or the element is absent. Never reads outside the argument.
VT_SUPPORT_API const char* stringElement(UserFunctionInterface* call, int argIndex, int index);

// Every topic passed to sp_RunHelp since the last clear, oldest first.
VT_SUPPORT_API QStringList helpRequests();
VT_SUPPORT_API void clearHelpRequests();
// Called for each help request besides recording it; the default prints
// "help: TOPIC" on stderr. An empty function restores the default.
VT_SUPPORT_API void setHelpHandler(std::function<void(const QString& topic)> handler);

// Installs the translation of the module and the kit for lang ("de",
// "de_DE", "xx" for the pseudo-translation), else for the system locale
// when lang is empty. Looks in dir, else in ../translations beside the
// running program. False when there is none to load (English needs none).
VT_SUPPORT_API bool installTranslations(const QString& lang, const QString& dir = QString());

} // namespace vtkit
