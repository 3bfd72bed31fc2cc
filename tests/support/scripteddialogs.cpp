#include "support/scripteddialogs.h"

Dialogs::Answer ScriptedDialogs::message(const QString &text, const QString &title, Icon icon,
                                         Buttons buttons)
{
    shown.append({Shown::Kind::Message, text, title, icon, buttons, {}});
    if (!answers.isEmpty())
        return answers.dequeue();
    return buttons == Buttons::YesNo || buttons == Buttons::YesNoCancel ? Answer::Yes : Answer::Ok;
}

QString ScriptedDialogs::input(const QString &prompt, const QString &title, const QString &)
{
    shown.append({Shown::Kind::Input, prompt, title, Icon::None, Buttons::OkCancel, {}});
    return nextText();
}

QString ScriptedDialogs::openFile(const FileRequest &request)
{
    shown.append({Shown::Kind::OpenFile, {}, request.title, Icon::None, Buttons::OkCancel, request});
    return nextText();
}

QString ScriptedDialogs::saveFile(const FileRequest &request)
{
    shown.append({Shown::Kind::SaveFile, {}, request.title, Icon::None, Buttons::OkCancel, request});
    return nextText();
}

QString ScriptedDialogs::chooseFolder(const QString &title)
{
    shown.append({Shown::Kind::Folder, {}, title, Icon::None, Buttons::OkCancel, {}});
    return nextText();
}

QStringList ScriptedDialogs::messages() const
{
    QStringList result;
    for (const Shown &box : shown) {
        if (box.kind == Shown::Kind::Message)
            result.append(box.text);
    }
    return result;
}

QStringList ScriptedDialogs::titles() const
{
    QStringList result;
    for (const Shown &box : shown)
        result.append(box.title);
    return result;
}

QString ScriptedDialogs::nextText()
{
    return texts.isEmpty() ? QString() : texts.dequeue();
}
