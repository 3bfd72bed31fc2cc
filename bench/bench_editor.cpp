// Times the receipt editor's name matching on the shop of 100,000 customers:
// from a key typed in the name field to the panel of matches filled and
// painted, beside the same prefix query on a plain open connection. The
// target is under 30 ms for each key.
#include "app/company.h"
#include "app/database.h"
#include "editor/frmreceipt.h"
#include "measure.h"
#include "shop.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kRuns = 15;

// A name of the shop, typed letter by letter: its first letter matches some
// five thousand customers, its end a handful.
const QString kTyped = u"Ann O'Brien 1"_s;

const QString kPrefixQuery =
    uR"(SELECT payeeID, payeeName, address1, address2, city, state, zip FROM tblPayee WHERE payeeName LIKE ? ESCAPE '\')"_s;

// One key as a person types it, and whatever it makes the screen paint.
void typeKey(QLineEdit *field, QChar letter) {
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
    QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, QString(letter));
    QCoreApplication::sendEvent(field, &press);
    QCoreApplication::sendEvent(field, &release);
    QCoreApplication::processEvents();
}

int matchesOf(const QString &prefix) {
    return int(db::select(kPrefixQuery, {db::escapeLike(prefix) + u'%'}).size());
}

} // namespace

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    const benchshop::Shop shop = benchshop::openShop();
    company().useAutoComplete = true;

    frmReceipt screen;
    screen.show();
    QCoreApplication::processEvents();
    auto *name = screen.findChild<QLineEdit *>(u"txtPayeeName"_s);
    bench::RawStatement raw(shop.path, kPrefixQuery);

    bench::printHeader();
    const QString first = kTyped.left(1);
    const double firstKey = bench::medianMicroseconds(
        [&] {
            name->clear(); // an empty name only hides the panel
            typeKey(name, kTyped.front());
        },
        kRuns);
    const double firstRaw =
        bench::medianMicroseconds([&] { raw.rows({db::escapeLike(first) + u'%'}); }, kRuns);
    const QByteArray firstCase =
        u"first key '%1' (%2 matches)"_s.arg(first).arg(matchesOf(first)).toUtf8();
    bench::printCase(firstCase.constData(), firstKey, firstRaw);

    const double wholeName = bench::medianMicroseconds(
        [&] {
            name->clear();
            for (const QChar letter : kTyped)
                typeKey(name, letter);
        },
        kRuns);
    const double wholeRaw = bench::medianMicroseconds(
        [&] {
            for (qsizetype length = 1; length <= kTyped.size(); ++length)
                raw.rows({db::escapeLike(kTyped.left(length)) + u'%'});
        },
        kRuns);
    const QByteArray wholeCase = u"'%1' letter by letter, per key"_s.arg(kTyped).toUtf8();
    bench::printCase(wholeCase.constData(), wholeName / kTyped.size(), wholeRaw / kTyped.size());
    return 0;
}
