#include "receipttestbase.h"

#include <QProcess>
#include <QSet>
#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;

using ReceiptNumberingProcessesTest = ReceiptTest;

// Four machines on one share take numbers at the same time: each number is
// taken once, none is lost, and the counter ends at the total.
TEST_F(ReceiptNumberingProcessesTest, ConcurrentTakersNeverShareANumber) {
    constexpr int kTakers = 4;
    constexpr int kEach = 15;
    Receipt().createReceiptYear(u"13"_s, u"1"_s);

    std::vector<std::unique_ptr<QProcess>> takers;
    for (int index = 0; index < kTakers; ++index) {
        auto taker = std::make_unique<QProcess>();
        taker->start(QString::fromUtf8(BRISKO_NUMBERTAKER),
                     {databasePath(), u"13"_s, QString::number(kEach)});
        takers.push_back(std::move(taker));
    }

    QList<int> numbers;
    for (auto &taker : takers) {
        ASSERT_TRUE(taker->waitForFinished(120000));
        EXPECT_EQ(taker->exitCode(), 0) << taker->readAllStandardError().toStdString();
        const QStringList lines =
            QString::fromUtf8(taker->readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
        EXPECT_EQ(lines.size(), kEach);
        for (const QString &line : lines)
            numbers.append(line.toInt());
    }

    std::sort(numbers.begin(), numbers.end());
    QList<int> expected;
    for (int number = 1; number <= kTakers * kEach; ++number)
        expected.append(number);
    EXPECT_EQ(numbers, expected);
    EXPECT_EQ(lastNumberUsed(u"13"_s), kTakers * kEach);
    EXPECT_FALSE(QFile::exists(lockFile()));
}
