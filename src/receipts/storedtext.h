#pragma once

#include <QString>

namespace receipts {

// A field that was never set holds a null QString, which would be bound as
// NULL; a receipt's text columns store the empty text instead, so that they
// read back as they were written.
inline QString storedText(const QString &text) {
    return text.isNull() ? QStringLiteral("") : text;
}

} // namespace receipts
