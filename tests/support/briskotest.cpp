#include "support/briskotest.h"

#include "app/company.h"
#include "app/schema.h"
#include "app/session.h"
#include "platform/keychain.h"
#include "platform/paths.h"
#include "platform/settingsstore.h"

#include <QDate>
#include <QDir>

using namespace Qt::Literals::StringLiterals;

void BriskoTest::SetUp() {
    ASSERT_TRUE(m_dir.isValid());
    resetSession();
    resetCompany();
    SettingsStore::useFile(m_dir.filePath(u"settings.ini"_s));
    Paths::useDataFolder(m_dir.filePath(u"userdata"_s));
    // A test machine may have no keychain; the tests that want one bring it.
    installKeychain(std::make_unique<NoKeychain>());

    auto dialogs = std::make_unique<ScriptedDialogs>();
    m_dialogs = dialogs.get();
    installDialogs(std::move(dialogs));
    auto process = std::make_unique<ScriptedProcessControl>();
    m_process = process.get();
    installProcessControl(std::move(process));

    m_databasePath = m_dir.filePath(u"test.db"_s);
    Schema::createDatabase(m_databasePath);
    session().dbPath = m_databasePath;
    setConnectionString(m_databasePath);
    session().year2 = QString::number(QDate::currentDate().year()).right(2);
    modMain::loadCompanyInfo();
}

void BriskoTest::TearDown() {
    for (QWidget *widget : QApplication::topLevelWidgets())
        widget->close();
    db::closeConnection();
    SettingsStore::useFile({});
    Paths::useDataFolder({});
}

qint32 BriskoTest::addPayee(const QString &name) {
    return qint32(db::insertReturningKey(
        u"INSERT INTO tblPayee (payeeName) VALUES (?) RETURNING payeeID"_s, {name}));
}
