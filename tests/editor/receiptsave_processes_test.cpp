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

// The savers stand in for other machines on the share file with its lock.
class ReceiptSaveProcessesTest : public SaveTest {
protected:
    void SetUp() override {
        SaveTest::SetUp();
        session().useSharedFile = true;
        session().shareFileLocation = databasePath();
        db::closeConnection();
    }

    // Every receipt whole (its own customer, three lines), numbered 1..n with
    // none twice, the counter at n and the file sound.
    void expectWholeReceipts() {
        const int n = count(u"tblReceipt"_s);
        EXPECT_EQ(tally(), u"%1 %1 %2 %1"_s.arg(n).arg(3 * n));
        const db::Row row = *db::readFirst(
            u"SELECT (SELECT COUNT(*) FROM tblReceipt r JOIN tblPayee p ON p.payeeID = r.payeeID "
            "AND p.payeeName = r.customField1 WHERE (SELECT COUNT(*) FROM tblReceipt_Product l "
            "WHERE l.receiptID = r.receiptID) = 3) AS whole, "
            "COUNT(DISTINCT receiptNumber) AS numbers, "
            "COALESCE(MIN(CAST(receiptNumber AS INTEGER)), 1) AS low, "
            "COALESCE(MAX(CAST(receiptNumber AS INTEGER)), 0) AS high FROM tblReceipt"_s);
        EXPECT_EQ(u"%1 %2 %3 %4"_s.arg(row.int32(u"whole"_s))
                      .arg(row.int32(u"numbers"_s))
                      .arg(row.int32(u"low"_s))
                      .arg(row.int32(u"high"_s)),
                  u"%1 %1 1 %1"_s.arg(n));
        EXPECT_TRUE(integrityOk());
    }
};

TEST_F(ReceiptSaveProcessesTest, SaversAtTheSameMomentEachGetTheirOwnNumbers) {
    constexpr int kSavers = 4, kEach = 10;
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
    EXPECT_EQ(QSet<QString>(numbers.begin(), numbers.end()).size(), kSavers * kEach);
    EXPECT_EQ(count(u"tblReceipt"_s), kSavers * kEach);
    expectWholeReceipts();
    EXPECT_FALSE(QFile::exists(databasePath() + u".lck"_s));
}

// A saver killed in the middle of a save leaves no half receipt: the next one
// to open the file rolls the unfinished save back.
TEST_F(ReceiptSaveProcessesTest, ASaverKilledAtAnyMomentLeavesOnlyWholeReceipts) {
    QRandomGenerator random(20131025);
    int killedInASave = 0;
    for (int round = 0; round < 30; ++round) {
        auto saver = startSaver(databasePath(), 1000);
        // Once it saves, a saver spends nearly all its time inside a save.
        ASSERT_TRUE(saver->waitForReadyRead(30000)) << saver->readAllStandardError().toStdString();
        QThread::msleep(random.bounded(0, 30));
        saver->kill();
        ASSERT_TRUE(saver->waitForFinished());
        if (QFile::exists(databasePath() + u"-journal"_s))
            ++killedInASave;
        // A lock left by a dead saver is for a person to remove.
        QFile::remove(databasePath() + u".lck"_s);
    }
    db::closeConnection();
    expectWholeReceipts();
    EXPECT_GT(count(u"tblReceipt"_s), 0);
    EXPECT_GT(killedInASave, 0) << "some deaths left a save to roll back";
}

} // namespace
