#include "app/installcheck.h"
#include "platform/paths.h"
#include "shippedfiles.h"
#include "support/briskotest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

class InstallCheckTest : public BriskoTest {
protected:
    void TearDown() override {
        Paths::useResourceFolder({});
        BriskoTest::TearDown();
    }
};

TEST_F(InstallCheckTest, AMissingShippedFileIsNamedAndBriskoDoesNotStart) {
    if (kShippedFiles.isEmpty())
        GTEST_SKIP() << "this build ships no templates or manual";
    const QString folder = tempPath(u"share"_s);
    Paths::useResourceFolder(folder);
    for (const QString &file : kShippedFiles.sliced(1)) {
        QDir().mkpath(QFileInfo(folder + u'/' + file).path());
        QFile(folder + u'/' + file).open(QIODevice::WriteOnly);
    }

    EXPECT_FALSE(Installation::confirmShippedFilesPresent());
    ASSERT_EQ(boxes().titles(), QStringList{u"Missing Files"_s});
    const QString text = boxes().shown.first().text;
    EXPECT_TRUE(
        text.startsWith(u"Brisko cannot start because some of its files are missing:\n\n"_s +
                        kShippedFiles.first() + u"\n\nIt looked for them in:\n"_s))
        << text.toStdString();

    QFile(folder + u'/' + kShippedFiles.first()).open(QIODevice::WriteOnly);
    EXPECT_TRUE(Installation::confirmShippedFilesPresent());
    EXPECT_EQ(boxes().shown.size(), 1);
}

} // namespace
