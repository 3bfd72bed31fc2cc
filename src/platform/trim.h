#pragma once

#include <QString>

namespace Utility {

// The runtime's Trim: removes spaces at both ends and nothing else, so that a
// tab or a line break that belongs to the text stays.
QString Trim(const QString &text);

} // namespace Utility
