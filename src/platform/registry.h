#pragma once

#include <QString>

// The four machine values of Brisko (useSharedFile, shareFileLocation, lastDB,
// firstRun), kept as text in the settings store.
namespace Utility {

// The value's text trimmed of blanks, or the empty text when it is missing or
// is not text.
QString RegGetString(const QString &valueName);
void RegSetString(const QString &valueName, const QString &value);

} // namespace Utility
