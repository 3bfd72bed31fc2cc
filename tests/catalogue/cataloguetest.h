#pragma once

#include "catalogue/product.h"
#include "catalogue/service.h"
#include "mainwin/frmmain.h"
#include "support/briskotest.h"

#include <QAbstractItemView>
#include <QTest>
#include <memory>

using namespace Qt::Literals::StringLiterals;

// The catalogue on a fresh database and the main window that opens its screens.
class CatalogueTest : public BriskoTest {
protected:
    void TearDown() override {
        window.reset();
        BriskoTest::TearDown();
    }

    frmMain &mainWindow() {
        if (!window) {
            window = std::make_unique<frmMain>();
            window->show();
        }
        return *window;
    }

    static qint32 addProduct(const QString &sku, const QString &name,
                             qint16 status = Product::Active, const QString &cost = u"1.5"_s) {
        Product product;
        product.productSKU = sku;
        product.productName = name;
        product.description = name + u" each"_s;
        product.cost = Currency::fromText(cost);
        product.productStatus = status;
        product.writeProduct();
        return product.productID;
    }

    static qint32 addService(const QString &shortName, const QString &longDesc,
                             const QString &cost) {
        Service service;
        service.shortName = shortName;
        service.longDesc = longDesc;
        service.defaultCost = Currency::fromText(cost);
        service.WriteService();
        return service.serviceID;
    }

    // A line of some receipt that names the product.
    static void useOnReceipt(qint32 productID) {
        db::execute(u"INSERT INTO tblReceipt_Product (receiptID, productID, quantity) "
                    "VALUES (1, ?, 1)"_s,
                    {productID});
    }

    // "1" for each enabled control of `names`, "0" for each disabled one.
    static QString enabled(const QWidget &screen, const QStringList &names) {
        QString states;
        for (const QString &name : names)
            states += control<QWidget>(screen, name)->isEnabled() ? u'1' : u'0';
        return states;
    }

    // Each row's texts joined by " | ", "(red)" behind an inactive one.
    static QStringList rowsOf(const QAbstractItemView *list) {
        const QAbstractItemModel *model = list->model();
        QStringList rows;
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList texts;
            for (int column = 0; column < model->columnCount(); ++column)
                texts.append(model->index(row, column).data().toString());
            if (model->index(row, 0).data(Qt::ForegroundRole).value<QBrush>().color() == Qt::red)
                texts.last() += u" (red)"_s;
            rows.append(texts.join(u" | "_s));
        }
        return rows;
    }

    // The events of a real click, or double click, on `row`.
    static void clickRow(QAbstractItemView *list, int row, bool twice = false) {
        const QPoint position = list->visualRect(list->model()->index(row, 0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, position);
        if (twice)
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, position);
    }

    static void type(const QWidget &screen, const QString &name, const QString &text) {
        auto *box = control<QWidget>(screen, name);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(box, Qt::Key_Delete);
        QTest::keyClicks(box, text);
    }

private:
    std::unique_ptr<frmMain> window;
};
