// The receipt editor's kinds and states, new or stored, in view and edit.

#include "admin/systemuser.h"
#include "app/company.h"
#include "app/screenlinks.h"
#include "app/session.h"
#include "editortest.h"
#include "output/reportdelivery.h"
#include "receipts/receipt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList kViews = {u"frameProdView"_s, u"frameServiceView"_s};
const QStringList kTools = {u"ID_Print"_s, u"ID_PrintPreview"_s, u"ID_EditReceipt"_s,
                            u"ID_Void"_s,  u"ID_SaveNew"_s,      u"ID_SaveClose"_s};
const QStringList kFields = {u"txtPayeeName"_s,   u"txtState"_s, u"txtReceiptDate"_s,
                             u"optView0"_s,       u"txtDue"_s,   u"lstProducts"_s,
                             u"lstPaymentType"_s, u"txtRecvd"_s, u"txtCustom1"_s};

QStringList entriesOf(const QComboBox *list) {
    QStringList entries;
    for (int index = 0; index < list->count(); ++index)
        entries.append(list->itemText(index));
    return entries;
}

using ReceiptEditorTest = EditorTest;

TEST_F(ReceiptEditorTest, ANewReceiptOpensInTheDefaultKindWithTheCompanysSettings) {
    company().taxRate = 6.5;
    company().otherFieldName = u"Shipping"_s;
    company().customField2 = u"PO Number"_s;
    db::execute(u"INSERT INTO tblService (shortName, longDesc, defaultCost) "
                "VALUES ('Repair', 'Repair of one bicycle', 12345000)"_s);
    const struct {
        qint16 type;
        QString views, caption;
    } kinds[] = {{0, u"10"_s, u"Service Provided:"_s},
                 {1, u"01"_s, u"Service Provided: | Amount Due: | 0"_s},
                 {2, u"01"_s, u"Comments: | Account Balance: | 0.00"_s}};
    for (const auto &kind : kinds) {
        company().defaultReceiptType = kind.type;
        const QString seen = withEditor(0, [&](frmReceipt &screen) {
            EXPECT_EQ(shown(screen, kViews), kind.views);
            EXPECT_TRUE(control<QRadioButton>(screen, u"optView%1"_s.arg(kind.type))->isChecked());
            return kind.type == 0
                       ? textOf(screen, u"frameServiceView"_s)
                       : textsOf(screen, {u"frameServiceView"_s, u"Label8"_s, u"txtDue"_s});
        });
        EXPECT_EQ(seen, kind.caption);
    }

    withEditor(0, [](frmReceipt &screen) {
        EXPECT_EQ(controlsWithoutAccessibleName(screen), QStringList());
        EXPECT_EQ(screen.windowTitle(), u"New Receipt"_s);
        EXPECT_EQ(enabled(screen, kTools), u"000011"_s);
        EXPECT_EQ(enabled(screen, kFields), u"111111111"_s);
        EXPECT_EQ(shown(screen, {u"txtCustom1"_s, u"txtCustom2"_s, u"cmdSaveNew"_s, u"lblVoid"_s,
                                 u"CustomerPanel"_s, u"lblReqField0"_s, u"lblReqField11"_s}),
                  u"0110000"_s);
        EXPECT_EQ(textsOf(screen, {u"lblTaxTitle"_s, u"lblOther"_s, u"lblCustom2"_s,
                                   u"lstPaymentType"_s, u"Label12"_s, u"txtRecvdBy"_s}),
                  u"Tax (6.500%): | Shipping | PO Number | Cash | Payment Desc: | "_s);
        EXPECT_EQ(control<QDateEdit>(screen, u"txtReceiptDate"_s)->date(), QDate::currentDate());
        auto *payment = control<QComboBox>(screen, u"lstPaymentType"_s);
        EXPECT_EQ(entriesOf(payment), (QStringList{u"Cash"_s, u"Check"_s, u"Credit Card"_s,
                                                   u"Money Order"_s, u"PayPal"_s, u"Other"_s}));
        payment->setCurrentIndex(1);
        EXPECT_EQ(textOf(screen, u"Label12"_s), u"Check #:"_s);
        payment->setCurrentIndex(5);
        EXPECT_EQ(textOf(screen, u"Label12"_s), u"Payment Desc:"_s);
        const QStringList states = entriesOf(control<QComboBox>(screen, u"txtState"_s));
        EXPECT_EQ(states.size(), 69);
        EXPECT_EQ(states.mid(54, 3), (QStringList{u"WY"_s, u""_s, u"Alberta"_s}));

        // A service from the quick pick fills the description and its price.
        control<QRadioButton>(screen, u"optView1"_s)->click();
        auto *services = control<QComboBox>(screen, u"lstServices"_s);
        services->setCurrentIndex(0);
        Q_EMIT services->activated(0);
        EXPECT_EQ(textsOf(screen, {u"txtDesc"_s, u"txtDue"_s, u"lblSubTotal"_s}),
                  u"Repair of one bicycle | 1,234.50 | 1234.50"_s);

        // Tab from the receiver goes on to the first custom field in use.
        QTest::keyClick(control<QLineEdit>(screen, u"txtRecvdBy"_s), Qt::Key_Tab);
        EXPECT_EQ(control<QTabWidget>(screen, u"SSTab1"_s)->currentIndex(), 1);
        EXPECT_EQ(screen.focusWidget(), control<QWidget>(screen, u"txtCustom2"_s));
        return 0;
    });
    EXPECT_TRUE(boxes().shown.isEmpty());
}

TEST_F(ReceiptEditorTest, WithLoginsOnTheReceiverIsTheLoggedInUser) {
    company().restrictAccess = true;
    company().defaultPaymentType = 2;
    const QString seen = withEditor(0, [](frmReceipt &screen) {
        return textsOf(screen, {u"txtRecvdBy"_s, u"lstPaymentType"_s, u"Label12"_s}) +
               enabled(screen, {u"txtRecvdBy"_s});
    });
    EXPECT_EQ(seen, u"ann | Check | Check #:0"_s);
}

// A stored receipt shows its stored balance, closed for typing; the tax is
// worked out anew. Edit and void follow the user's rights.
TEST_F(ReceiptEditorTest, AStoredProductReceiptShowsItsLinesAndOpensForEditingByRight) {
    company().taxRate = 10;
    company().customField1 = u"PO Number"_s;
    const qint32 customer = addCustomer(u"Ann O'Brien"_s);
    const qint32 bolt = addProduct(u"BOLT-1"_s, "0.25");
    const qint32 saw = addProduct(u"SAW"_s, "19.99");
    const qint32 id =
        addReceipt(customer,
                   [](Receipt &receipt) {
                       receipt.receiptNumber = u"R-0042"_s;
                       receipt.receiptType = Receipt::ProductReceipt;
                       receipt.paymentType = 2;
                       receipt.checkNumber = u"1001"_s;
                       receipt.amountTax = Currency::fromText(u"3"_s);
                       receipt.amountReceived = Currency::fromText(u"30"_s);
                       receipt.receivedBy = u"bob"_s;
                       receipt.accountBalance = Currency::fromText(u"1234.5"_s);
                       receipt.customField1 = u"PO-7"_s;
                   },
                   {{bolt, 12, "0.25", u"Bolts"_s, u"zinc"_s}, {saw, 1, "19.99", u"Saw, sharp"_s}});

    const auto view = [&](frmReceipt &screen) {
        EXPECT_EQ(rowsOf(screen, u"lstProducts"_s),
                  (QStringList{u"12 | BOLT-1 | Bolts | 0.25 | 3.00 | zinc"_s,
                               u"1 | SAW | Saw, sharp | 19.99 | 19.99 | "_s}));
        EXPECT_EQ(shown(screen, kViews), u"10"_s);
        EXPECT_FALSE(control<QCheckBox>(screen, u"chkTaxExempt"_s)->isChecked());
        return screen.windowTitle() + u" | "_s +
               textsOf(screen, {u"txtPayeeName"_s, u"txtCity"_s, u"txtState"_s, u"lblID"_s,
                                u"lblAcctBal"_s, u"lstPaymentType"_s, u"Label12"_s,
                                u"txtCheckNum"_s, u"txtRecvdBy"_s, u"txtCustom1"_s,
                                u"lblSubTotal"_s, u"lblTax"_s, u"lblTotal"_s, u"lblBalance"_s}) +
               u" | "_s + enabled(screen, kTools) + enabled(screen, kFields);
    };
    EXPECT_EQ(withEditor(id, view),
              u"Receipt R-0042 | Ann O'Brien | Springfield | IL | %1 | 1,234.50 | Check | "
              "Check #: | 1001 | bob | PO-7 | 22.99 | 2.30 | 25.29 | -4.71 | 111100"
              "000000000"_s.arg(customer));

    session().currentUser = userWith(u"cy"_s, 0, 1);
    EXPECT_EQ(withEditor(id, [](frmReceipt &screen) { return enabled(screen, kTools); }),
              u"110100"_s);
    session().currentUser = userWith(u"di"_s, 1, 0);
    const QString edited = withEditor(id, [](frmReceipt &screen) {
        const QString before = enabled(screen, kTools);
        screen.findChild<QAction *>(u"ID_EditReceipt"_s)->trigger();
        return before + u' ' + enabled(screen, kTools) + enabled(screen, kFields);
    });
    EXPECT_EQ(edited, u"111000 111001111111111"_s);
    EXPECT_TRUE(boxes().shown.isEmpty());

    // The caller may ask for the edit state, with both saves; the link
    // discards the screen unsaved.
    session().currentUser = userWith(u"ann"_s, 1, 1);
    const QString begun =
        driveModal<frmReceipt>([id] { EXPECT_FALSE(ScreenLinks::openReceipt(nullptr, id)); },
                               [](frmReceipt &screen) {
                                   screen.beginEdit();
                                   const QString states =
                                       enabled(screen, kTools) + enabled(screen, kFields);
                                   screen.reject();
                                   return states;
                               });
    EXPECT_EQ(begun, u"111111111111111"_s);
}

// A void receipt says so in its title and reason and cannot be edited or
// voided again; an account payment and an opening balance show the
// service view, the latter with no kind selected.
TEST_F(ReceiptEditorTest, VoidPaymentsAndOpeningBalancesShowWhatTheyAre) {
    const qint32 customer = addCustomer(u"Bo Diddley"_s);
    const auto serviceReceipt = [](qint16 type, qint16 status, qint16 paymentType) {
        return [=](Receipt &receipt) {
            receipt.receiptNumber = u"S-%1"_s.arg(type);
            receipt.receiptType = type;
            receipt.status = status;
            receipt.paymentType = paymentType;
            receipt.otherPaymentDesc = u"barter"_s;
            receipt.checkNumber = u"not shown"_s;
            receipt.receiptDesc = u"Tuned the piano"_s;
            receipt.amountDue = Currency::fromText(u"1500"_s);
            receipt.amountReceived = Currency::fromText(u"1500"_s);
            receipt.voidReason = u"Typed twice"_s;
        };
    };
    const qint32 voided =
        addReceipt(customer, serviceReceipt(Receipt::ServiceReceipt, Receipt::Void, 0));
    const QString seenVoid = withEditor(voided, [](frmReceipt &screen) {
        return screen.windowTitle() + u" | "_s +
               textsOf(screen,
                       {u"frameServiceView"_s, u"txtDesc"_s, u"txtDue"_s, u"lstPaymentType"_s,
                        u"txtCheckNum"_s, u"lblVoidReason"_s, u"lblTotal"_s}) +
               u" | "_s + shown(screen, kViews + QStringList{u"lblVoid"_s, u"lblVoidReason"_s}) +
               enabled(screen, kTools) +
               (control<QCheckBox>(screen, u"chkTaxExempt"_s)->isChecked() ? u"x"_s : u""_s);
    });
    EXPECT_EQ(seenVoid, u"Receipt S-1 VOID - VOID - VOID | Service Provided: | Tuned the piano | "
                        "1500.00 | Other | barter | Typed twice | 1500.00 | 0111110000x"_s);

    const qint32 payment = addReceipt(customer, serviceReceipt(Receipt::AccountPayment, 1, 1));
    const qint32 opening = addReceipt(customer, serviceReceipt(Receipt::OpeningBalance, 1, 1));
    for (const qint32 id : {payment, opening}) {
        const QString seen = withEditor(id, [](frmReceipt &screen) {
            QString options;
            for (int index = 0; index < 3; ++index)
                options += control<QRadioButton>(screen, u"optView%1"_s.arg(index))->isChecked()
                               ? u'1'
                               : u'0';
            return options + u' ' + textsOf(screen, {u"frameServiceView"_s, u"txtDue"_s}) + u' ' +
                   shown(screen, kViews);
        });
        EXPECT_EQ(seen, id == payment ? u"001 Comments: | 1500.00 01"_s
                                      : u"000 Service Provided: | 1500.00 01"_s);
    }

    // A receipt that is gone leaves an empty screen.
    EXPECT_EQ(withEditor(9999,
                         [](frmReceipt &screen) {
                             return screen.windowTitle() + u'|' + textOf(screen, u"lblID"_s);
                         }),
              u"Receipt |0"_s);
    EXPECT_TRUE(boxes().shown.isEmpty());
}

class Recording final : public ReportDelivery {
public:
    QStringList delivered;
    bool askParameters(const QString &, const QList<ReportParameter> &,
                       QHash<QString, QVariant> &) override {
        return true;
    }
    void toPrinter(const RenderedReport &) override { delivered.append(u"printer"_s); }
    void toScreen(const RenderedReport &) override { delivered.append(u"screen"_s); }
    void toMail(const MailMessage &) override { delivered.append(u"mail"_s); }
};

TEST_F(ReceiptEditorTest, PrintAndPreviewSendTheShownReceipt) {
    auto owned = std::make_unique<Recording>();
    Recording &recording = *owned;
    std::unique_ptr<ReportDelivery> previous = installReportDelivery(std::move(owned));
    const qint32 id = addReceipt(addCustomer(u"Di"_s), [](Receipt &receipt) {
        receipt.receiptNumber = u"P-9"_s;
        receipt.receiptType = Receipt::ServiceReceipt;
    });
    for (const qint32 receiptID : {id, 0})
        withEditor(receiptID, [](frmReceipt &screen) {
            screen.findChild<QAction *>(u"ID_Print"_s)->trigger();
            screen.findChild<QAction *>(u"ID_PrintPreview"_s)->trigger();
            if (screen.receiptID)
                screen.previewReceipt();
            return 0;
        });
    const QStringList delivered = recording.delivered;
    installReportDelivery(std::move(previous));
    EXPECT_EQ(delivered, (QStringList{u"printer"_s, u"screen"_s, u"screen"_s}))
        << boxes().lines().join(u'\n').toStdString();
}

} // namespace
