#include "editortest.h"

#include "admin/systemuser.h"
#include "app/session.h"
#include "customers/payee.h"
#include "receipts/receipt.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

void EditorTest::SetUp() {
    BriskoTest::SetUp();
    session().currentUser = userWith(u"ann"_s, 1, 1);
}

std::shared_ptr<SystemUser> EditorTest::userWith(const QString &name, qint16 canEdit,
                                                 qint16 canVoid) {
    auto user = std::make_shared<SystemUser>();
    user->username = name;
    user->canEdit = canEdit;
    user->canVoid = canVoid;
    return user;
}

qint32 EditorTest::addCustomer(const QString &name, const QString &city, const QString &state) {
    Payee customer;
    customer.payeeName = name;
    customer.address1 = u"1 Main St"_s;
    customer.address2 = u"Suite 2"_s;
    customer.city = city;
    customer.State = state;
    customer.zip = u"62701"_s;
    customer.phone = u"555-0100"_s;
    customer.email = u"shop@example.com"_s;
    customer.WritePayee();
    return customer.payeeID;
}

qint32 EditorTest::addProduct(const QString &sku, const char *cost) {
    return qint32(db::insertReturningKey(
        u"INSERT INTO tblProduct (productName, productSKU, cost, productStatus, productDesc) "
        "VALUES (?, ?, ?, 1, '') RETURNING productID"_s,
        {sku, sku, Currency::fromText(QString::fromLatin1(cost))}));
}

qint32 EditorTest::addReceipt(qint32 payeeID, const std::function<void(Receipt &)> &fill,
                              const QList<Line> &lines) {
    Receipt receipt;
    receipt.payeeID = payeeID;
    receipt.receiptDate = QDateTime(QDate(2026, 3, 14), QTime(0, 0));
    receipt.status = Receipt::Issued;
    fill(receipt);
    receipt.writeReceipt();
    for (const Line &line : lines)
        receipt.writeReceiptProducts(receipt.receiptID, line.productID, line.quantity,
                                     Currency::fromText(QString::fromLatin1(line.cost)), line.desc,
                                     line.extDesc);
    return receipt.receiptID;
}

QString EditorTest::textOf(const QWidget &screen, const QString &name) {
    const QWidget *widget = control<QWidget>(screen, name);
    if (const auto *line = qobject_cast<const QLineEdit *>(widget))
        return line->text();
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (const auto *list = qobject_cast<const QComboBox *>(widget))
        return list->currentText();
    if (const auto *text = qobject_cast<const QPlainTextEdit *>(widget))
        return text->toPlainText();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text();
    return widget->property("title").toString();
}

QString EditorTest::textsOf(const QWidget &screen, const QStringList &names) {
    QStringList texts;
    for (const QString &name : names)
        texts.append(textOf(screen, name));
    return texts.join(u" | "_s);
}

QString EditorTest::shown(const QWidget &screen, const QStringList &names) {
    QString states;
    for (const QString &name : names)
        states += control<QWidget>(screen, name)->isHidden() ? u'0' : u'1';
    return states;
}

QString EditorTest::enabled(const QWidget &screen, const QStringList &names) {
    QString states;
    for (const QString &name : names) {
        const QAction *tool = screen.findChild<QAction *>(name);
        states +=
            (tool ? tool->isEnabled() : control<QWidget>(screen, name)->isEnabled()) ? u'1' : u'0';
    }
    return states;
}

QStringList EditorTest::rowsOf(const QWidget &screen, const QString &name) {
    const QAbstractItemModel &model = *control<QTreeView>(screen, name)->model();
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells.append(model.index(row, column).data().toString());
        rows.append(cells.join(u" | "_s));
    }
    return rows;
}
