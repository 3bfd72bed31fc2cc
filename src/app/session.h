#pragma once

#include <QString>
#include <memory>

class SystemUser;

// The program-wide state of one run, set on the main thread.
struct Session {
    QString dbPath;             // full path of the open database file
    QString connectionString;   // the file every database operation opens
    bool useSharedFile = false; // the database is the multi-user share file
    QString shareFileLocation;  // full path of the share file; its lock is this + ".lck"
    QString year2;              // last two digits of the year at start-up, never refreshed
    bool firstRunFlag = false;  // the first-run wizard is due
    bool mainStarted = false;   // the one-time part of the main window's load has run
    std::shared_ptr<SystemUser> currentUser; // empty until login or the anonymous user
    bool restoreCompleted = false;
    bool shuttingDown = false;
    int lastReceiptID = 0; // key of the last receipt saved in this run
    // The file's version as the upgrade chain learnt it; never cleared.
    QString dbVersionFound;
};

Session &session();

// The rights of the session's user as the screens test them: each one that
// is exactly 1. Without a user nothing is granted. Defined beside SystemUser,
// so that screens below the administration read rights without its class.
struct UserRights {
    bool canEdit = false;
    bool canDelete = false;
    bool canVoid = false;
    bool isAdmin = false;
};
UserRights currentUserRights();

// Back to the state of a fresh process.
void resetSession();

// Points every later database operation at `path`.
void setConnectionString(const QString &path);

namespace modMain {

// Ends the program at once, from anywhere, without questions.
void EndProgram();

} // namespace modMain
