#pragma once

#include "app/currency.h"
#include "editor/frmreceipt.h"
#include "support/briskotest.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <functional>

// A shop with customers, services, products and receipts for the editor.
class EditorTest : public BriskoTest {
protected:
    void SetUp() override; // the user is "ann", who may edit and void

    static std::shared_ptr<class SystemUser> userWith(const QString &name, qint16 canEdit,
                                                      qint16 canVoid);

    struct Line {
        qint32 productID;
        qint16 quantity;
        const char *cost;
        QString desc;
        QString extDesc = {};
    };

    static qint32 addCustomer(const QString &name,
                              const QString &city = QStringLiteral("Springfield"),
                              const QString &state = QStringLiteral("IL"));
    static qint32 addProduct(const QString &sku, const char *cost);
    static qint32 addReceipt(qint32 payeeID, const std::function<void(class Receipt &)> &fill,
                             const QList<Line> &lines = {});

    // Opens the receipt (0: a new one) for `act`, then closes it unasked.
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

    static QString textOf(const QWidget &screen, const QString &name);
    // The texts of several controls, joined by " | ".
    static QString textsOf(const QWidget &screen, const QStringList &names);
    // "1" for each control not hidden, "0" for each hidden one.
    static QString shown(const QWidget &screen, const QStringList &names);
    // "1" for each enabled control or tool, "0" for each disabled one.
    static QString enabled(const QWidget &screen, const QStringList &names);
    // Every row of the tree, cells joined by " | ".
    static QStringList rowsOf(const QWidget &screen, const QString &name);
};
