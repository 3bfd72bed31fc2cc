#pragma once

#include <QString>

// The lock file beside a shared database ("<share file>.lck") that makes the
// read, add one and write of the receipt counter atomic across machines. Its
// existence is the lock. On a local database the lock counts as held and no
// file is touched.
//
// Construction takes the lock: up to four looks in three seconds, then error
// -10001. release() removes the file once the operation has succeeded. The
// destructor deliberately leaves a taken file behind: an operation that fails
// while holding the lock leaves it for the user to remove by hand, so that no
// machine takes a number from a counter in an unknown state.
class ReceiptNumberLock {
public:
    static constexpr int kGiveUpError = -10001;

    ReceiptNumberLock();
    ~ReceiptNumberLock() = default;
    ReceiptNumberLock(const ReceiptNumberLock &) = delete;
    ReceiptNumberLock &operator=(const ReceiptNumberLock &) = delete;

    void release();

    // The lock file of the session's share file.
    static QString lockFilePath();

private:
    bool tryTake() const;

    QString m_path; // empty on a local database
};
