#pragma once

#include <QString>
#include <memory>

class QWidget;

// Every message box, input box and file or folder chooser of Brisko goes
// through here, so that tests can script the answers and read what was shown.
class Dialogs {
public:
    enum class Icon { None, Critical, Question, Exclamation, Information };
    enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
    enum class Answer { Ok, Cancel, Yes, No };

    struct FileRequest {
        QString title;
        QString folder;   // where the chooser starts
        QString fileName; // preset name
        QString filter;   // Qt filter text: "Database Files (*.db)"
    };

    virtual ~Dialogs() = default;

    virtual Answer message(const QString &text, const QString &title, Icon icon,
                           Buttons buttons = Buttons::Ok) = 0;
    // The typed text, or the empty text on Cancel.
    virtual QString input(const QString &prompt, const QString &title,
                          const QString &defaultText = {}) = 0;
    // The chosen path, or the empty text on Cancel.
    virtual QString openFile(const FileRequest &request) = 0;
    virtual QString saveFile(const FileRequest &request) = 0;
    virtual QString chooseFolder(const QString &title) = 0;
};

Dialogs &dialogs();

// Replaces the dialogs in use; gives back the ones that were in use.
std::unique_ptr<Dialogs> installDialogs(std::unique_ptr<Dialogs> replacement);

// The real dialogs, shown over the active window.
class WidgetDialogs final : public Dialogs {
public:
    Answer message(const QString &text, const QString &title, Icon icon, Buttons buttons) override;
    QString input(const QString &prompt, const QString &title, const QString &defaultText) override;
    QString openFile(const FileRequest &request) override;
    QString saveFile(const FileRequest &request) override;
    QString chooseFolder(const QString &title) override;
};
