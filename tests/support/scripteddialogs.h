#pragma once

#include "platform/dialogs.h"
#include "platform/processcontrol.h"
#include "support/testhelpers.h"

#include <QList>
#include <QQueue>
#include <QStringList>
#include <QUrl>

// Dialogs that show nothing: every box is recorded, and answers come from a
// queue the test fills. An unscripted box takes its first button (OK or Yes);
// an unscripted input or chooser gives the empty text, as Cancel does.
class ScriptedDialogs final : public Dialogs {
public:
    struct Shown {
        enum class Kind { Message, Input, OpenFile, SaveFile, Folder };
        Kind kind = Kind::Message;
        QString title;
        QString text; // message text or input prompt
        Icon icon = Icon::None;
        Buttons buttons = Buttons::Ok;
        FileRequest request = {}; // what a chooser was asked
    };

    QList<Shown> shown;
    QQueue<Answer> answers; // for message boxes
    QQueue<QString> texts;  // for input boxes and choosers

    Answer message(const QString &text, const QString &title, Icon icon, Buttons buttons) override;
    QString input(const QString &prompt, const QString &title, const QString &) override {
        return record({Shown::Kind::Input, title, prompt});
    }
    QString openFile(const FileRequest &request) override {
        return record({Shown::Kind::OpenFile, request.title, {}, Icon::None, {}, request});
    }
    QString saveFile(const FileRequest &request) override {
        return record({Shown::Kind::SaveFile, request.title, {}, Icon::None, {}, request});
    }
    QString chooseFolder(const QString &title) override {
        return record({Shown::Kind::Folder, title, {}});
    }

    // Every box shown, in order, as "title | text", and " | icon" when it has one.
    QStringList lines() const;
    // The title of every box shown, in order.
    QStringList titles() const;

private:
    QString record(const Shown &box);
};

// Process control that only notes what was asked of it.
class ScriptedProcessControl final : public ProcessControl {
public:
    int endProgramCalls = 0;
    int endProcessCalls = 0;
    int restartCalls = 0;
    QList<QUrl> opened;

    void endProgram() override { ++endProgramCalls; }
    void endProcess() override { ++endProcessCalls; }
    void restart() override { ++restartCalls; }
    void openExternally(const QUrl &target) override { opened.append(target); }

    bool ended() const { return endProgramCalls + endProcessCalls > 0; }
};
