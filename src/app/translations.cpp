#include "app/translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace Translations {
namespace {

// Brisko's catalogues are compiled into the program; Qt's come with Qt.
const QString kBriskoCatalogues = u":/i18n"_s;

struct Catalogues {
    QTranslator brisko;
    QTranslator qt;
};

std::unique_ptr<Catalogues> &installed() {
    static std::unique_ptr<Catalogues> catalogues;
    return catalogues;
}

void removeInstalled() {
    if (const auto &catalogues = installed()) {
        QCoreApplication::removeTranslator(&catalogues->brisko);
        QCoreApplication::removeTranslator(&catalogues->qt);
    }
    installed().reset();
}

// Brisko's catalogue for `language`; nullptr when Brisko does not speak it.
// "de_AT" finds brisko_de when there is no brisko_de_AT.
std::unique_ptr<Catalogues> cataloguesFor(const QLocale &language) {
    auto catalogues = std::make_unique<Catalogues>();
    if (!catalogues->brisko.load(u"brisko_"_s + language.name(), kBriskoCatalogues))
        return nullptr;
    return catalogues;
}

} // namespace

void useLanguageOf(const QLocale &locale) {
    removeInstalled();
    for (const QString &name : locale.uiLanguages()) {
        const QLocale language(name);
        if (language.language() == QLocale::English)
            return;
        if (auto catalogues = cataloguesFor(language)) {
            QCoreApplication::installTranslator(&catalogues->brisko);
            // Without Qt's own catalogue its buttons stay English; Brisko goes on.
            if (catalogues->qt.load(u"qtbase_"_s + language.name(),
                                    QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
                QCoreApplication::installTranslator(&catalogues->qt);
            installed() = std::move(catalogues);
            return;
        }
    }
}

} // namespace Translations
