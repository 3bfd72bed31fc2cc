#include "customers/frmcustomerlist.h"
#include "customers/frmcustpop.h"
#include "customers/frmcustprop.h"
#include "mainwin/frmmain.h"
#include "support/briskotest.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QTest>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

namespace {

QTreeView *listOf(const QWidget &screen) {
    return control<QTreeView>(screen, u"lstCustomers"_s);
}

QStringList column(const QAbstractItemView *list, int column, int modelColumn = 0) {
    QStringList texts;
    const QAbstractItemModel *model = list->model();
    for (int row = 0; row < model->rowCount(); ++row)
        texts.append(model->index(row, column + modelColumn).data().toString());
    return texts;
}

void doubleClick(QAbstractItemView *list, int row, int modelColumn = 0) {
    const QPoint position = list->visualRect(list->model()->index(row, modelColumn)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, position);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, position);
}

void search(const frmCustomerList &screen, const QString &option, const QString &text) {
    control<QRadioButton>(screen, option)->setChecked(true);
    control<QLineEdit>(screen, u"txtName"_s)->setText(text);
    click(screen, u"cmdSearch"_s);
}

// Opens a picker as its caller does (the receipt editor sets pickMode first),
// lets `act` drive it and gives back its selectedID once it closed.
template <typename Screen> qint32 pickWith(const std::function<void(Screen &)> &act) {
    return driveModal<Screen>(
        [] {
            Screen picker;
            if constexpr (requires { picker.pickMode; })
                picker.pickMode = true;
            picker.exec();
        },
        [&](Screen &screen) {
            act(screen);
            return screen.selectedID;
        });
}

class CustomerScreensTest : public BriskoTest {
protected:
    static void addShop() {
        for (const QString &name : {u"Zed O'Brien"_s, u"100% Cotton"_s, u"1000 Things"_s,
                                    u"A_B Ltd"_s, u"AxB Ltd"_s, u"apple"_s, u"O'Brien"_s})
            db::execute(u"INSERT INTO tblPayee (payeeName, address1, city, state, phone) "
                        "VALUES (?, '1 Main St', 'Springfield', 'IL', '555-0100')"_s,
                        {name});
    }
};

TEST_F(CustomerScreensTest, SearchOptionsMatchTheTextAsTyped) {
    addShop();
    frmMain window;
    driveModal<frmCustomerList>(
        [&] { window.toolClick(u"ID_CustomerSearch"_s); },
        [&](frmCustomerList &screen) {
            EXPECT_EQ(screen.windowTitle(), u"Customer Search"_s);
            EXPECT_EQ(controlsWithoutAccessibleName(screen), QStringList());
            EXPECT_TRUE(control<QRadioButton>(screen, u"optBegins"_s)->isChecked());
            EXPECT_EQ(listOf(screen)->model()->rowCount(), 0);

            search(screen, u"optBegins"_s, u"o'b"_s);
            EXPECT_EQ(column(listOf(screen), 1), QStringList{u"O'Brien"_s});
            search(screen, u"optAny"_s, u"O'Brien"_s);
            EXPECT_EQ(column(listOf(screen), 1), (QStringList{u"O'Brien"_s, u"Zed O'Brien"_s}));
            search(screen, u"optAny"_s, u"a_b"_s);
            EXPECT_EQ(column(listOf(screen), 1), QStringList{u"A_B Ltd"_s});
            search(screen, u"optBegins"_s, u"100%"_s);
            EXPECT_EQ(column(listOf(screen), 1), QStringList{u"100% Cotton"_s});
            search(screen, u"optEnds"_s, u"LTD"_s);
            EXPECT_EQ(column(listOf(screen), 1), (QStringList{u"A_B Ltd"_s, u"AxB Ltd"_s}));
            for (const QString &option : {u"optBegins"_s, u"optAny"_s, u"optEnds"_s}) {
                search(screen, option, QString());
                EXPECT_EQ(listOf(screen)->model()->rowCount(), 7) << option.toStdString();
            }

            // Enter in the name box searches too; no hits empty the list.
            auto *name = control<QLineEdit>(screen, u"txtName"_s);
            name->setText(u"%nobody"_s);
            QTest::keyClick(name, Qt::Key_Return);
            EXPECT_EQ(listOf(screen)->model()->rowCount(), 0);
            EXPECT_TRUE(screen.isVisible());
            screen.findChild<QAction *>(u"ID_Close"_s)->trigger();
        });
    EXPECT_EQ(boxes().lines(),
              QStringList{
                  u"No Records | No records were found for your search criteria. | Information"_s});
}

TEST_F(CustomerScreensTest, RetrieveAllListsEveryCustomerByNameWithItsColumns) {
    addShop();
    frmCustomerList screen;
    screen.show();
    click(screen, u"Command2"_s);
    QTreeView *list = listOf(screen);
    EXPECT_EQ(column(list, 1),
              (QStringList{u"100% Cotton"_s, u"1000 Things"_s, u"A_B Ltd"_s, u"apple"_s,
                           u"AxB Ltd"_s, u"O'Brien"_s, u"Zed O'Brien"_s}));
    QStringList headers, first;
    for (int section = 0; section < list->model()->columnCount(); ++section) {
        headers.append(list->model()->headerData(section, Qt::Horizontal).toString());
        first.append(list->model()->index(0, section).data().toString());
    }
    EXPECT_EQ(headers, (QStringList{u"Account ID"_s, u"Name"_s, u"Address"_s, u"City"_s, u"State"_s,
                                    u"Phone"_s}));
    EXPECT_EQ(first, (QStringList{u"2"_s, u"100% Cotton"_s, u"1 Main St"_s, u"Springfield"_s,
                                  u"IL"_s, u"555-0100"_s}));
    EXPECT_EQ(list->model()->index(0, 0).data(Qt::UserRole).toInt(), 2);

    // A header click sorts; the next search is in name order again.
    list->sortByColumn(0, Qt::DescendingOrder);
    EXPECT_EQ(column(list, 0).first(), u"7"_s);
    click(screen, u"Command2"_s);
    EXPECT_EQ(column(list, 1).first(), u"100% Cotton"_s);
    EXPECT_EQ(list->header()->sortIndicatorSection(), 1);
    EXPECT_TRUE(boxes().shown.isEmpty());

    // A Null city fails the filling at that row: the rows before it stay.
    db::execute(u"UPDATE tblPayee SET city = NULL WHERE payeeName = 'A_B Ltd'"_s);
    click(screen, u"Command2"_s);
    EXPECT_EQ(column(list, 1), (QStringList{u"100% Cotton"_s, u"1000 Things"_s}));
    EXPECT_EQ(boxes().lines(),
              QStringList{u"Error | An error has occured:  Invalid use of Null | Critical"_s});
}

TEST_F(CustomerScreensTest, BothPickersHandBackTheChosenCustomerOrNothing) {
    addShop();
    EXPECT_EQ(pickWith<frmCustomerList>([](frmCustomerList &screen) {
                  search(screen, u"optBegins"_s, u"o'"_s);
                  doubleClick(listOf(screen), 0);
                  EXPECT_FALSE(screen.isVisible());
              }),
              7);
    EXPECT_EQ(pickWith<frmCustomerList>([](frmCustomerList &screen) {
                  screen.findChild<QAction *>(u"ID_Close"_s)->trigger();
              }),
              0);

    EXPECT_EQ(pickWith<frmCustPop>([](frmCustPop &screen) {
                  EXPECT_EQ(screen.windowTitle(), u"Select Customer"_s);
                  EXPECT_EQ(controlsWithoutAccessibleName(screen), QStringList());
                  auto *list = control<QListView>(screen, u"lstCustomers"_s);
                  EXPECT_EQ(column(list, 0, 1).first(), u"100% Cotton"_s);
                  click(screen, u"cmdOK"_s);
                  EXPECT_TRUE(screen.isVisible()) << "nothing selected, nothing picked";
                  doubleClick(list, 5, 1);
                  EXPECT_TRUE(screen.isVisible()) << "a double click does nothing";
                  click(screen, u"cmdOK"_s);
              }),
              7);
    EXPECT_EQ(pickWith<frmCustPop>([](frmCustPop &screen) {
                  doubleClick(control<QListView>(screen, u"lstCustomers"_s), 2, 1);
                  click(screen, u"cmdCancel"_s);
              }),
              0);

    db::execute(u"DELETE FROM tblPayee"_s);
    frmCustPop empty;
    EXPECT_EQ(empty.exec(), QDialog::Rejected);
    EXPECT_EQ(boxes().lines(),
              QStringList{u"No Records | No customer records found. | Information"_s});
}

// Once the sheet closes the search runs again with the text and option in force.
TEST_F(CustomerScreensTest, TheSheetOpensFromTheListAndTheSearchRunsAgain) {
    addShop();
    frmCustomerList browser;
    browser.show();
    control<QLineEdit>(browser, u"txtName"_s)->setText(u"a"_s);
    click(browser, u"Command2"_s);
    const qint32 shown =
        driveModal<frmCustProp>([&] { doubleClick(listOf(browser), 3); },
                                [](frmCustProp &sheet) {
                                    sheet.findChild<QAction *>(u"ID_Close"_s)->trigger();
                                    return sheet.payeeID;
                                });
    EXPECT_EQ(shown, 6);
    EXPECT_TRUE(browser.isVisible());
    EXPECT_EQ(browser.selectedID, 0);
    EXPECT_EQ(column(listOf(browser), 1), (QStringList{u"A_B Ltd"_s, u"apple"_s, u"AxB Ltd"_s}));
}

} // namespace
