#include "admin/frmlogin.h"
#include "app/translations.h"
#include "mainwin/frmmain.h"
#include "support/briskotest.h"

#include <QAction>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

class TranslationsTest : public BriskoTest {
protected:
    void TearDown() override {
        Translations::useLanguageOf(QLocale(QLocale::English, QLocale::UnitedStates));
        BriskoTest::TearDown();
    }

    // The menus of the main window and the way out.
    static QStringList menuTexts() {
        const frmMain window;
        QStringList texts;
        for (const QString &id :
             {u"ID_File"_s, u"ID_OpenDatabase"_s, u"ID_Exit"_s, u"ID_Tools"_s, u"ID_Reports"_s,
              u"ID_Help"_s, u"ID_WhatsNew"_s, u"ID_AboutBrisko"_s})
            texts << window.tool(id)->text();
        return texts;
    }

    static QStringList loginTexts() {
        const frmLogin login;
        return {login.windowTitle(), login.findChild<QLabel *>(u"lblUsername"_s)->text(),
                login.findChild<QLabel *>(u"lblPassword"_s)->text(),
                login.findChild<QPushButton *>(u"cmdLogin"_s)->text()};
    }

    // A button Qt itself labels.
    static QString qtCancelButton() {
        QMessageBox box;
        box.setStandardButtons(QMessageBox::Cancel);
        return box.button(QMessageBox::Cancel)->text();
    }
};

TEST_F(TranslationsTest, GermanDesktopGetsGermanMenusLoginAndQtButtons) {
    Translations::useLanguageOf(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(menuTexts(),
              (QStringList{u"&Datei"_s, u"&Datenbank öffnen"_s, u"&Beenden"_s, u"&Extras"_s,
                           u"&Berichte"_s, u"&Hilfe"_s, u"Was ist &neu?"_s, u"Ü&ber Brisko"_s}));
    EXPECT_EQ(loginTexts(), (QStringList{u"Brisko-Anmeldung"_s, u"&Benutzername:"_s,
                                         u"&Kennwort:"_s, u"&Anmelden"_s}));
    EXPECT_EQ(qtCancelButton(), u"Abbrechen"_s);
}

TEST_F(TranslationsTest, EnglishOrUnknownLanguagesKeepTheEnglishTexts) {
    const QStringList menus = {u"&File"_s,        u"&Open Database"_s, u"E&xit"_s,
                               u"&Tools"_s,       u"&Reports"_s,       u"&Help"_s,
                               u"What's &New?"_s, u"&About Brisko"_s};
    const QStringList login = {u"Brisko Login"_s, u"&Username:"_s, u"&Password:"_s, u"&Login"_s};
    for (const QLocale &locale : {QLocale(QLocale::English, QLocale::UnitedKingdom),
                                  QLocale(QLocale::Swahili, QLocale::Kenya)}) {
        Translations::useLanguageOf(QLocale(QLocale::German, QLocale::Austria));
        Translations::useLanguageOf(locale);
        EXPECT_EQ(menuTexts(), menus) << locale.name().toStdString();
        EXPECT_EQ(loginTexts(), login) << locale.name().toStdString();
        EXPECT_EQ(qtCancelButton(), u"Cancel"_s) << locale.name().toStdString();
    }
}

} // namespace
