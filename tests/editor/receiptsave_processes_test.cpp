#include "app/session.h"
#include "savetest.h"

#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QSet>
#include <QThread>
#include <memory>
#include <vector>

namespace {

std::unique_ptr<QProcess> startSaver(const QString &database, int count) {
    auto saver = std::make_unique<QProcess>();
    saver->start(QString::fromUtf8(BRISKO_RECEIPTSAVER), {database, QString::number(count)});
    return saver;
}

} // namespace

class ReceiptSaveProcessesTest : public SaveTest {
protected:
    void SetUp() override {
        SaveTest::SetUp();
        // The savers run on the share file with its lock.
        session().useSharedFile = true;
        session().shareFileLocation = databasePath();
        db::closeConnection();
    }

    // Every receipt whole: its customer there, its three lines, its number
    // one of 1..n; the counter at n; the file sound.
    void expectWholeReceipts() {
        const int receipts = count(u"tblReceipt"_s);
        EXPECT_EQ(count(u"tblPayee"_s), receipts);
        EXPECT_EQ(count(u"tblReceipt_Product"_s), 3 * receipts);
        EXPECT_EQ(db::readFirst(u"SELECT COUNT(*) AS n FROM tblReceipt r "
                                "JOIN tblPayee p ON p.payeeID = r.payeeID "
                                "AND p.payeeName = r.customField1 "
                                "WHERE (SELECT COUNT(*) FROM tblReceipt_Product l "
                                "WHERE l.receiptID = r.receiptID) = 3"_s)
                      ->int32(u"n"_s),
                  receipts);
        EXPECT_EQ(db::readFirst(u"SELECT COUNT(DISTINCT receiptNumber) AS n FROM tblReceipt"_s)
                      ->int32(u"n"_s),
                  receipts);
        const db::Row range = *db::readFirst(
            u"SELECT COALESCE(MIN(CAST(receiptNumber AS INTEGER)), 1) AS low, "
            "COALESCE(MAX(CAST(receiptNumber AS INTEGER)), 0) AS high FROM tblReceipt"_s);
        EXPECT_EQ(range.int32(u"low"_s), 1);
        EXPECT_EQ(range.int32(u"high"_s), receipts) << "no number lost";
        EXPECT_EQ(lastNumberUsed(), receipts);
        EXPECT_TRUE(integrityOk());
    }
};

// Four machines save at once: each gets its own numbers, none is lost.
TEST_F(ReceiptSaveProcessesTest, SaversAtTheSameMomentEachGetTheirOwnNumbers) {
    constexpr int kSavers = 4;
    constexpr int kEach = 10;
    std::vector<std::unique_ptr<QProcess>> savers;
    for (int index = 0; index < kSavers; ++index)
        savers.push_back(startSaver(databasePath(), kEach));

    QStringList numbers;
    for (auto &saver : savers) {
        ASSERT_TRUE(saver->waitForFinished(60000));
        EXPECT_EQ(saver->exitCode(), 0) << saver->readAllStandardError().toStdString();
        numbers +=
            QString::fromUtf8(saver->readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    }
    EXPECT_EQ(numbers.size(), kSavers * kEach);
    EXPECT_EQ(QSet<QString>(numbers.begin(), numbers.end()).size(), kSavers * kEach);
    EXPECT_EQ(count(u"tblReceipt"_s), kSavers * kEach);
    expectWholeReceipts();
    EXPECT_FALSE(QFile::exists(databasePath() + u".lck"_s));
}

// A machine that dies in the middle of a save leaves no half receipt: the
// next one to open the file rolls the unfinished save back.
TEST_F(ReceiptSaveProcessesTest, ASaverKilledAtAnyMomentLeavesOnlyWholeReceipts) {
    constexpr int kRounds = 30;
    QRandomGenerator random(20131025);
    int killedInASave = 0;
    for (int round = 0; round < kRounds; ++round) {
        auto saver = startSaver(databasePath(), 1000);
        // Once it saves, a saver spends nearly all its time inside a save.
        ASSERT_TRUE(saver->waitForReadyRead(30000)) << saver->readAllStandardError().toStdString();
        QThread::msleep(random.bounded(0, 30));
        saver->kill();
        ASSERT_TRUE(saver->waitForFinished());
        if (QFile::exists(databasePath() + u"-journal"_s))
            ++killedInASave;
        // A lock taken at the moment of death stays for a person to remove,
        // as the multi-user screen's button does.
        QFile::remove(databasePath() + u".lck"_s);
    }
    db::closeConnection();
    expectWholeReceipts();
    EXPECT_GT(count(u"tblReceipt"_s), 0);
    EXPECT_GT(killedInASave, 0) << "some deaths left a save to roll back";
}
