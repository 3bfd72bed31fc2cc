// Every screen works from the keyboard: its controls have names a screen
// reader can say, its buttons and labelled fields an Alt+letter that reaches
// them, and no letter means two things in one window.

#include "admin/frmlogin.h"
#include "admin/frmmultiuser.h"
#include "admin/frmnewcompany.h"
#include "admin/frmoptions.h"
#include "admin/frmuser.h"
#include "catalogue/frmpaymethod.h"
#include "catalogue/frmproductmanagement.h"
#include "catalogue/frmservice.h"
#include "customers/frmcustomerlist.h"
#include "customers/frmcustpop.h"
#include "customers/frmcustprop.h"
#include "mainwin/frmabout.h"
#include "mainwin/frmcustomsearchprop.h"
#include "mainwin/frmjournal.h"
#include "mainwin/frmmain.h"
#include "mainwin/frmreprint.h"
#include "mainwin/frmvoid.h"
#include "output/frmprintoption.h"
#include "output/frmreports.h"
#include "output/reportparameterdialog.h"
#include "output/reportpreview.h"
#include "support/briskotest.h"

#include <QAbstractButton>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolBar>
#include <functional>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

using ScreenMaker = std::function<std::unique_ptr<QWidget>()>;

template <typename Screen> std::pair<QString, ScreenMaker> screen() {
    return {QString::fromLatin1(Screen::staticMetaObject.className()),
            [] { return std::make_unique<Screen>(); }};
}

QList<std::pair<QString, ScreenMaker>> everyScreen() {
    const QList<ReportParameter> questions = {
        {u"StartDate"_s, u"Start Date"_s, ReportParameter::Kind::Date, u"monthStart"_s},
        {u"EndDate"_s, u"End Date"_s, ReportParameter::Kind::Date, u"today"_s},
        {u"Customer"_s, u"Customer"_s, ReportParameter::Kind::Text, {}}};
    return {screen<frmLogin>(),
            screen<frmUser>(),
            screen<frmAbout>(),
            screen<frmMain>(),
            screen<frmMultiUser>(),
            screen<frmOptions>(),
            screen<frmNewCompany>(),
            screen<frmCustomerList>(),
            screen<frmCustPop>(),
            screen<frmCustProp>(),
            screen<frmProductManagement>(),
            screen<frmService>(),
            screen<frmPayMethod>(),
            screen<frmPrintOption>(),
            screen<frmReports>(),
            screen<frmJournal>(),
            screen<frmCustomSearchProp>(),
            screen<frmVoid>(),
            screen<frmReprint>(),
            {u"ReportParameterDialog"_s,
             [questions] {
                 return std::make_unique<ReportParameterDialog>(u"Ledger"_s, questions,
                                                                QHash<QString, QVariant>{});
             }},
            {u"ReportPreview"_s, [] {
                 return std::make_unique<ReportPreview>(
                     RenderedReport{u"Ledger"_s, {ReportPage{QSizeF(210, 297), {}}}});
             }}};
}

// The letter after the single & of `text`, or nothing.
QChar mnemonicOf(const QString &text) {
    for (qsizetype at = 0; at + 1 < text.size(); ++at) {
        if (text[at] != u'&')
            continue;
        if (text[at + 1] != u'&')
            return text[at + 1].toLower();
        ++at;
    }
    return {};
}

// The part of a window a mnemonic must be unique in: the page of a tab or
// stack it sits on, or the window itself.
const QWidget *mnemonicScope(const QWidget *widget) {
    for (const QWidget *at = widget; at->parentWidget(); at = at->parentWidget()) {
        if (qobject_cast<const QStackedWidget *>(at->parentWidget()))
            return at;
    }
    return widget->window();
}

struct Mnemonic {
    QString owner;
    const QWidget *scope;
    QChar letter;
};

QList<Mnemonic> mnemonicsOf(const QWidget &window) {
    QList<Mnemonic> found;
    const auto note = [&](const QWidget *owner, const QString &text) {
        if (const QChar letter = mnemonicOf(text); !letter.isNull())
            found.append({owner->objectName(), mnemonicScope(owner), letter});
    };
    for (const QAbstractButton *button : window.findChildren<QAbstractButton *>())
        note(button, button->text());
    for (const QLabel *label : window.findChildren<QLabel *>())
        note(label, label->text());
    for (const QGroupBox *group : window.findChildren<QGroupBox *>())
        note(group, group->title());
    for (const QTabWidget *tabs : window.findChildren<QTabWidget *>()) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            note(tabs, tabs->tabText(tab));
    }
    if (const QMenuBar *bar = window.findChild<QMenuBar *>()) {
        for (const QAction *entry : bar->actions())
            if (const QChar letter = mnemonicOf(entry->text()); !letter.isNull())
                found.append({entry->objectName(), &window, letter});
    }
    return found;
}

// "owner & other: x" for each letter two controls of one scope share.
QStringList sharedMnemonics(const QWidget &window) {
    const QList<Mnemonic> all = mnemonicsOf(window);
    QStringList shared;
    for (qsizetype first = 0; first < all.size(); ++first) {
        for (qsizetype second = first + 1; second < all.size(); ++second) {
            if (all[first].letter == all[second].letter &&
                (all[first].scope == all[second].scope || all[first].scope == &window ||
                 all[second].scope == &window))
                shared.append(all[first].owner + u" & "_s + all[second].owner + u": "_s +
                              all[first].letter);
        }
    }
    return shared;
}

// Buttons with a caption but no Alt+letter, other than the one Enter
// presses, and labels whose letter leads nowhere.
QStringList unreachableByLetter(const QWidget &window) {
    QStringList unreachable;
    for (const QPushButton *button : window.findChildren<QPushButton *>()) {
        if (!button->text().isEmpty() && mnemonicOf(button->text()).isNull() &&
            !button->isDefault() && !button->objectName().startsWith(u"qt_"))
            unreachable.append(button->objectName());
    }
    for (const QLabel *label : window.findChildren<QLabel *>()) {
        if (!mnemonicOf(label->text()).isNull() && !label->buddy())
            unreachable.append(label->objectName());
    }
    return unreachable;
}

// The tools on a dialog's tool bar that no key reaches: a tool bar takes no
// focus, and Escape closes.
QStringList toolsWithoutKeys(const QWidget &window) {
    QStringList unreachable;
    if (qobject_cast<const QMainWindow *>(&window))
        return unreachable; // its tools are in the menus too
    for (const QToolBar *bar : window.findChildren<QToolBar *>()) {
        for (const QAction *tool : bar->actions()) {
            if (!tool->isSeparator() && tool->shortcut().isEmpty() &&
                tool->objectName() != u"ID_Close"_s)
                unreachable.append(tool->objectName());
        }
    }
    return unreachable;
}

} // namespace

class ScreenKeysTest : public BriskoTest {};

TEST_F(ScreenKeysTest, EveryControlHasANameAndEveryCaptionALetterOfItsOwn) {
    for (const auto &[name, make] : everyScreen()) {
        SCOPED_TRACE(name.toStdString());
        const std::unique_ptr<QWidget> window = make();
        window->show(); // a screen names some of its fields as it loads
        EXPECT_EQ(controlsWithoutAccessibleName(*window), QStringList());
        EXPECT_EQ(unreachableByLetter(*window), QStringList());
        EXPECT_EQ(sharedMnemonics(*window), QStringList());
        EXPECT_EQ(toolsWithoutKeys(*window), QStringList());
    }
}
