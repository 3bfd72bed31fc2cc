#pragma once

#include <QString>

// A caption that comes from the user's own data (a custom field's name, a
// report's question) with an Alt+letter: its first letter or digit not yet in
// `taken`, or else its first one. A & the text already holds shows as itself.
// The chosen letter joins `taken`.
QString withMnemonic(const QString &text, QString &taken);
