#pragma once

#include "app/database.h"
#include "support/screens.h"
#include "support/scripteddialogs.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

// The fixture of every Brisko test: its own settings file and data folder, a
// fresh database file (made current and its company row loaded), scripted
// dialogs, a process control that only takes notes, and no keychain. Screens
// are driven with the helpers of support/screens.h.
class BriskoTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    QString tempPath(const QString &name) const { return m_dir.filePath(name); }
    const QString &databasePath() const { return m_databasePath; }
    ScriptedDialogs &boxes() { return *m_dialogs; }
    ScriptedProcessControl &process() { return *m_process; }

    // A customer row with only its name; gives its key.
    static qint32 addPayee(const QString &name);

private:
    QTemporaryDir m_dir;
    QString m_databasePath;
    ScriptedDialogs *m_dialogs = nullptr;
    ScriptedProcessControl *m_process = nullptr;
};
