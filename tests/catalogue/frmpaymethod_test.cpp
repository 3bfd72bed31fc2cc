#include "catalogue/frmpaymethod.h"
#include "catalogue/paymenttypelist.h"
#include "cataloguetest.h"
#include "receipts/receipt.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTreeView>

namespace {

const QStringList panel = {u"cmdNew"_s, u"cmdDelete"_s, u"cmdEdit"_s, u"cmdOK"_s,
                           u"cmdCan"_s, u"Frame2"_s,    u"txtName"_s};

// The drop-down of the receipt editor and the options: "name=id" each.
QStringList paymentTypes(qint16 defaultPaymentType, int *selected) {
    QComboBox list;
    Catalogue::loadPaymentTypes(&list, defaultPaymentType);
    QStringList entries;
    for (int at = 0; at < list.count(); ++at)
        entries.append(list.itemText(at) + u'=' + list.itemData(at).toString());
    *selected = list.currentIndex();
    return entries;
}

class PayMethodTest : public CatalogueTest {
protected:
    template <typename Act> void openPayMethods(Act &&act) {
        driveModal<frmPayMethod>([this] { mainWindow().toolClick(u"ID_PaymentMethods"_s); },
                                 [&](frmPayMethod &screen) {
                                     act(screen,
                                         control<QTreeView>(screen, u"lstPaymentMethods"_s));
                                     screen.findChild<QAction *>(u"ID_Close"_s)->trigger();
                                 });
    }
};

TEST_F(PayMethodTest, AMethodInUseGoesInactiveAndOneNotInUseIsDeleted) {
    Receipt paidByCheck;
    paidByCheck.paymentType = 2; // "Check"
    paidByCheck.writeReceipt();

    openPayMethods([&](frmPayMethod &screen, QTreeView *list) {
        EXPECT_EQ(screen.windowTitle(), u"Payment Method Admin"_s);
        EXPECT_EQ(controlsWithoutAccessibleName(screen), QStringList());
        EXPECT_EQ(rowsOf(list),
                  (QStringList{u"Cash | Active"_s, u"Check | Active"_s, u"Credit Card | Active"_s,
                               u"Money Order | Active"_s, u"PayPal | Active"_s}));
        EXPECT_EQ(enabled(screen, panel), u"1100000"_s);

        click(screen, u"cmdNew"_s);
        EXPECT_EQ(enabled(screen, panel), u"1101111"_s);
        type(screen, u"txtName"_s, u"Tab'n_%"_s);
        click(screen, u"cmdOK"_s);
        EXPECT_EQ(enabled(screen, panel), u"1100000"_s);
        EXPECT_EQ(rowsOf(list).last(), u"Tab'n_% | Active"_s);

        // Check is on a receipt: refused, then set inactive instead.
        list->setCurrentIndex(list->model()->index(1, 0));
        boxes().answers << Dialogs::Answer::Yes;
        click(screen, u"cmdDelete"_s);
        EXPECT_EQ(rowsOf(list)[1], u"Check | Active"_s);
        clickRow(list, 1, true);
        EXPECT_EQ(enabled(screen, panel), u"1110110"_s);
        click(screen, u"cmdEdit"_s);
        click(screen, u"optStatus0"_s);
        click(screen, u"cmdOK"_s);
        EXPECT_EQ(rowsOf(list)[1], u"Check | Inactive"_s);

        // Money Order is on none.
        list->setCurrentIndex(list->model()->index(3, 0));
        boxes().answers << Dialogs::Answer::Yes;
        click(screen, u"cmdDelete"_s);
        EXPECT_EQ(rowsOf(list).size(), 5);
    });
    EXPECT_EQ(boxes().lines(),
              (QStringList{u"Confirm Delete | Are you sure you want to delete payment method "
                           "type 'Check'? | Question"_s,
                           u"In Use | This payment method type is used by one or more receipts.  "
                           "You can not delete this payment type. | Exclamation"_s,
                           u"Confirm Delete | Are you sure you want to delete payment method "
                           "type 'Money Order'? | Question"_s}));

    // The receipt editor's list: active methods only, "Other" last as 0.
    int selected = -2;
    EXPECT_EQ(paymentTypes(4, &selected),
              (QStringList{u"Cash=1"_s, u"Credit Card=3"_s, u"PayPal=4"_s, u"Tab'n_%=6"_s,
                           u"Other=0"_s}));
    EXPECT_EQ(selected, 2);
    paymentTypes(Receipt::OtherPaymentType, &selected);
    EXPECT_EQ(selected, -1) << "\"Other\" is never preselected";
}

} // namespace
