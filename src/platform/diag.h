#pragma once

#include <QString>

// A small append-only log. Entries are written only when logging is enabled;
// each one opens, appends a line and closes, so several processes can share
// the file.
class Diag {
public:
    QString logFilePath;
    bool loggingEnabled = false;

    void WriteLogEntry(const QString &message) const;
};
