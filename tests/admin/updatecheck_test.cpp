#include "admin/updatecheck.h"
#include "admin/updatechecker.h"
#include "support/briskotest.h"
#include "website.h"

#include <QGuiApplication>
#include <QTcpServer>
#include <QTcpSocket>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

// The maker's version file, served on 127.0.0.1 from inside the test; it
// notes whether the wait cursor showed while it was asked.
class VersionServer : public QTcpServer {
public:
    explicit VersionServer(const QByteArray &version) {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this, version] {
            QTcpSocket *client = nextPendingConnection();
            connect(client, &QTcpSocket::readyRead, client, [this, client, version] {
                waitCursorShown = QGuiApplication::overrideCursor() &&
                                  QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor;
                client->write("HTTP/1.1 200 OK\r\nContent-Length: " +
                              QByteArray::number(version.size()) + "\r\n\r\n" + version);
                client->disconnectFromHost();
            });
        });
    }
    QUrl address() const { return QUrl(u"http://127.0.0.1:%1/v.txt"_s.arg(serverPort())); }

    bool waitCursorShown = false;
};

using UpdateCheckTest = BriskoTest;

// The program is 4.2.5, that is 425: the digits run together decide.
TEST_F(UpdateCheckTest, ANewerVersionIsOfferedAndFetchedOnYes) {
    for (const auto &[newest, offered] : {std::pair{"4.2.6\n", true},
                                          {"4.10.0", true},
                                          {"5.0.1", true},
                                          {"4.2.5", false},
                                          {"4.1.9", false},
                                          {"10.0", false}}) {
        SCOPED_TRACE(newest);
        boxes().shown.clear();
        VersionServer server(newest);
        modMain::checkForUpdate(UpdateChecker(server.address()));
        EXPECT_TRUE(server.waitCursorShown);
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(boxes().lines(),
                  QStringList{offered ? u"Update Available | Brisko version %1 is available.  "
                                        "Would you like to download it now? | Question"_s.arg(
                                            QString::fromLatin1(newest).trimmed())
                                      : u"Check for Update | You are already running the most "
                                        "recent version of Brisko | Information"_s});
    }
    const QUrl download(QString::fromUtf8(kWebsite) + u"/files/Brisko/BriskoSetup.zip"_s);
    EXPECT_EQ(process().opened, QList<QUrl>(3, download)) << "the first button is Yes";

    boxes().answers.enqueue(Dialogs::Answer::No);
    VersionServer server("4.3.0");
    modMain::checkForUpdate(UpdateChecker(server.address()));
    EXPECT_EQ(process().opened.size(), 3) << "nothing opens on No";
}

TEST_F(UpdateCheckTest, FailuresPassToTheCaller) {
    VersionServer lettered("4.3.0-beta");
    EXPECT_EQ(
        errorOf([&] { modMain::checkForUpdate(UpdateChecker(lettered.address())); }).description(),
        u"Type mismatch"_s);

    const QUrl nobody = VersionServer("").address();
    EXPECT_TRUE(errorOf([&] { UpdateChecker(nobody).getLatestVersion(); })
                    .description()
                    .startsWith(u"The update service at %1 could not be reached"_s.arg(
                        nobody.toDisplayString())));

    QTcpServer silent;
    silent.listen(QHostAddress::LocalHost);
    const QUrl mute(u"http://127.0.0.1:%1/"_s.arg(silent.serverPort()));
    EXPECT_EQ(errorOf([&] { UpdateChecker(mute, 300ms).getLatestVersion(); }).description(),
              u"The update service at %1 did not answer in time."_s.arg(mute.toDisplayString()));
    EXPECT_TRUE(boxes().shown.isEmpty());
}

} // namespace
