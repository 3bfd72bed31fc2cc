#pragma once

class QLocale;

namespace Translations {

// Speaks the first of the locale's interface languages that Brisko knows, in
// its own texts and in Qt's (the buttons and choosers Qt draws). English,
// the language the texts are written in, needs no catalogue; a language
// Brisko does not know falls back to it. Replaces the language set before;
// windows made afterwards speak the new one.
void useLanguageOf(const QLocale &locale);

} // namespace Translations
