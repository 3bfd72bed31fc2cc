#pragma once

#include "platform/settingsstore.h"

#include <QString>

// The four machine values of Brisko (SettingsKey::useSharedFile,
// shareFileLocation, lastDB and firstRun), kept as text in the settings store.
namespace Utility {

// The value's text with the spaces at its ends removed, or the empty text when it is missing or
// is not text.
QString RegGetString(const QString &valueName);
void RegSetString(const QString &valueName, const QString &value);

} // namespace Utility
