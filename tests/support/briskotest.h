#pragma once

#include "app/database.h"
#include "support/scripteddialogs.h"

#include <QApplication>
#include <QDialog>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

// The fixture of every Brisko test: its own settings file and data folder, a
// fresh database file (made current and its company row loaded), scripted
// dialogs and a process control that only takes notes.
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

    // Runs `open`, which shows a modal screen of type Screen; once it shows,
    // `whileOpen` acts on it and is expected to close it.
    template <typename Screen, typename Open, typename Act>
    static void driveModal(Open &&open, Act &&whileOpen);

private:
    QTemporaryDir m_dir;
    QString m_databasePath;
    ScriptedDialogs *m_dialogs = nullptr;
    ScriptedProcessControl *m_process = nullptr;
};

template <typename Screen, typename Open, typename Act>
void BriskoTest::driveModal(Open &&open, Act &&whileOpen) {
    bool acted = false;
    int ticksAfterActing = 0;
    QTimer poll;
    poll.setInterval(5);
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto *modal = qobject_cast<Screen *>(QApplication::activeModalWidget());
        if (!acted) {
            if (modal) {
                acted = true;
                whileOpen(*modal);
            }
            return;
        }
        // A screen left open would hang the test: close it and say so.
        if (modal && ++ticksAfterActing > 400) {
            ADD_FAILURE() << "the modal screen stayed open";
            if (auto *dialog = qobject_cast<QDialog *>(modal))
                dialog->reject();
            else
                modal->close();
        }
    });
    poll.start();
    open();
    poll.stop();
    EXPECT_TRUE(acted) << "no modal screen of the expected type was shown";
}
