#pragma once

#include "platform/dialogs.h"
#include "platform/processcontrol.h"

#include <QList>
#include <QQueue>
#include <QString>
#include <QUrl>

// Dialogs that show nothing: every box is recorded, and answers come from a
// queue the test fills. An unscripted box takes its first button (OK or Yes);
// an unscripted input or chooser gives the empty text, as Cancel does.
class ScriptedDialogs final : public Dialogs {
public:
    struct Shown {
        enum class Kind { Message, Input, OpenFile, SaveFile, Folder };
        Kind kind = Kind::Message;
        QString text; // message text, input prompt
        QString title;
        Icon icon = Icon::None;
        Buttons buttons = Buttons::Ok;
        FileRequest request; // for the choosers
    };

    QList<Shown> shown;
    QQueue<Answer> answers;   // for message boxes
    QQueue<QString> texts;    // for input boxes and choosers

    Answer message(const QString &text, const QString &title, Icon icon, Buttons buttons) override;
    QString input(const QString &prompt, const QString &title, const QString &defaultText) override;
    QString openFile(const FileRequest &request) override;
    QString saveFile(const FileRequest &request) override;
    QString chooseFolder(const QString &title) override;

    // The texts of the message boxes shown, in order.
    QStringList messages() const;
    // The titles of every box shown, in order.
    QStringList titles() const;

private:
    QString nextText();
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
