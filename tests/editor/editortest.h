#pragma once

#include "app/currency.h"
#include "editor/frmreceipt.h"
#include "support/briskotest.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <functional>

// A shop with customers, services, products and receipts, and the receipt
// editor opened on it as the main window opens it.
class EditorTest : public BriskoTest {
protected:
    // The session's user is "ann", who may edit and void.
    void SetUp() override;

    static std::shared_ptr<class SystemUser> userWith(const QString &name, qint16 canEdit,
                                                      qint16 canVoid);

    struct Line {
        qint32 productID;
        qint16 quantity;
        const char *cost;
        QString desc;
        QString extDesc = {};
    };

    // A customer with a full address; gives the key.
    static qint32 addCustomer(const QString &name,
                              const QString &city = QStringLiteral("Springfield"),
                              const QString &state = QStringLiteral("IL"));
    static qint32 addService(const QString &shortName, const QString &longDesc, const char *cost);
    static qint32 addProduct(const QString &sku, const char *cost);
    // A receipt as the editor saves one; `fill` sets what the case needs.
    static qint32 addReceipt(qint32 payeeID, const std::function<void(class Receipt &)> &fill,
                             const QList<Line> &lines = {});

    // Opens receipt `receiptID` (0 for a new one) in the editor, lets `act`
    // read and drive it, then closes it without the question of a new
    // receipt; gives what `act` gave.
    template <typename Act> auto withEditor(qint32 receiptID, Act &&act) {
        return driveModal<frmReceipt>(
            [receiptID] {
                frmReceipt screen;
                screen.receiptID = receiptID;
                screen.exec();
            },
            [&](frmReceipt &screen) {
                auto result = act(screen);
                if (screen.isVisible())
                    screen.done(QDialog::Rejected);
                return result;
            });
    }

    // The text of a line edit, label or combo box of the screen.
    static QString textOf(const QWidget &screen, const QString &name);
    // The texts of several controls, joined by " | ".
    static QString textsOf(const QWidget &screen, const QStringList &names);
    // 1 for each shown control of `names`, 0 for each hidden one (as the
    // screen sets them, whether or not the screen itself shows).
    static QString shown(const QWidget &screen, const QStringList &names);
    // 1 for each enabled control or tool of `names`, 0 for each disabled one.
    static QString enabled(const QWidget &screen, const QStringList &names);
    // The texts of every row of the tree `name`, cells joined by " | ".
    static QStringList rowsOf(const QWidget &screen, const QString &name);
};
