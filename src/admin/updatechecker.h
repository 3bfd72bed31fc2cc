#pragma once

#include <QCoreApplication>
#include <QString>
#include <QUrl>
#include <chrono>

// Asks the maker's site for the newest released version: a short text such
// as "4.2.6" at an address fixed by the build.
class UpdateChecker {
    Q_DECLARE_TR_FUNCTIONS(UpdateChecker)

public:
    explicit UpdateChecker(QUrl address = buildAddress(),
                           std::chrono::milliseconds timeLimit = std::chrono::seconds(10));

    // The newest version as the site gives it, trimmed. Throws BriskoError
    // when the site cannot be reached or does not answer within the limit.
    // The window keeps repainting meanwhile; what the user types waits.
    QString getLatestVersion() const;

    static QUrl buildAddress();

private:
    QUrl m_address;
    std::chrono::milliseconds m_timeLimit;
};
