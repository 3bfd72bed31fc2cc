#include "admin/databasecopy.h"

#include "platform/briskoerror.h"

#include <QCoreApplication>
#include <QFile>
#include <filesystem>
#include <sqlite3.h>

namespace DatabaseCopy {
namespace {

constexpr int kBusyTimeoutMs = 10000;
constexpr int kBusyRetryMs = 50;

QString tr(const char *text) {
    return QCoreApplication::translate("DatabaseCopy", text);
}

std::function<void()> &interruption() {
    static std::function<void()> hook;
    return hook;
}

// One handle on a database file, closed when it goes.
class Handle {
public:
    Handle(const QString &path, int flags) {
        const int result =
            sqlite3_open_v2(QFile::encodeName(path).constData(), &m_handle, flags, nullptr);
        if (result != SQLITE_OK) {
            // A handle that failed to open is still allocated, and the
            // destructor of a half-built object never runs.
            const BriskoError error = errorOf(result);
            sqlite3_close_v2(m_handle);
            throw error;
        }
        sqlite3_busy_timeout(m_handle, kBusyTimeoutMs);
    }
    ~Handle() { sqlite3_close_v2(m_handle); }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

    sqlite3 *get() const { return m_handle; }

    [[noreturn]] void fail(int result) const { throw errorOf(result); }

    BriskoError errorOf(int result) const {
        const char *message = m_handle ? sqlite3_errmsg(m_handle) : sqlite3_errstr(result);
        return BriskoError(result, QString::fromUtf8(message));
    }

    // The first column of every row of `sql`, as text.
    QStringList column(const char *sql) const {
        sqlite3_stmt *statement = nullptr;
        int result = sqlite3_prepare_v2(m_handle, sql, -1, &statement, nullptr);
        if (result != SQLITE_OK)
            fail(result);
        QStringList values;
        while ((result = sqlite3_step(statement)) == SQLITE_ROW) {
            values.append(QString::fromUtf8(
                reinterpret_cast<const char *>(sqlite3_column_text(statement, 0))));
        }
        sqlite3_finalize(statement);
        if (result != SQLITE_DONE)
            fail(result);
        return values;
    }

private:
    sqlite3 *m_handle = nullptr;
};

// Copies every page in one step, so that the source stays read-locked for
// the whole copy and no writer can slip in half-way.
void copyPages(const QString &source, const QString &target) {
    const Handle from(source, SQLITE_OPEN_READONLY);
    const Handle to(target, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    sqlite3_backup *backup = sqlite3_backup_init(to.get(), "main", from.get(), "main");
    if (!backup)
        to.fail(sqlite3_errcode(to.get()));
    int result = SQLITE_OK;
    for (int waited = 0; waited <= kBusyTimeoutMs; waited += kBusyRetryMs) {
        result = sqlite3_backup_step(backup, -1);
        if (result != SQLITE_BUSY && result != SQLITE_LOCKED)
            break;
        sqlite3_sleep(kBusyRetryMs);
    }
    sqlite3_backup_finish(backup);
    if (result != SQLITE_DONE)
        to.fail(result);
}

void checkIntact(const QString &path) {
    if (!isIntact(path)) {
        throw BriskoError(SQLITE_CORRUPT,
                          tr("The copy of the database failed its integrity check."));
    }
}

std::filesystem::path nativePath(const QString &path) {
    return std::filesystem::path(path.toStdWString());
}

// Puts the finished copy in place of `target` in one step.
void replace(const QString &copy, const QString &target) {
    std::error_code error;
    std::filesystem::rename(nativePath(copy), nativePath(target), error);
    if (error)
        throw BriskoError(error.value(), QString::fromStdString(error.message()));
}

} // namespace

void copy(const QString &source, const QString &target) {
    const QString partial = target + QStringLiteral(".part");
    QFile::remove(partial); // left over from a copy that was cut off
    try {
        copyPages(source, partial);
        if (interruption())
            interruption()();
        checkIntact(partial);
        replace(partial, target);
    } catch (...) {
        QFile::remove(partial);
        throw;
    }
}

bool isIntact(const QString &path) {
    try {
        const Handle database(path, SQLITE_OPEN_READONLY);
        return database.column("PRAGMA integrity_check") == QStringList{QStringLiteral("ok")};
    } catch (const BriskoError &) {
        return false;
    }
}

bool isBriskoDatabase(const QString &path) {
    if (!QFile::exists(path) || !isIntact(path))
        return false;
    const Handle database(path, SQLITE_OPEN_READONLY);
    return !database
                .column(
                    "SELECT name FROM sqlite_master WHERE type = 'table' AND name = 'tblSystem'")
                .isEmpty();
}

void setInterruption(std::function<void()> hook) {
    interruption() = std::move(hook);
}

} // namespace DatabaseCopy
