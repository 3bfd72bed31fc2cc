#include "support/scripteddialogs.h"

Dialogs::Answer ScriptedDialogs::message(const QString &text, const QString &title, Icon icon,
                                         Buttons buttons) {
    shown.append({Shown::Kind::Message, title, text, icon, buttons});
    if (!answers.isEmpty())
        return answers.dequeue();
    return buttons == Buttons::YesNo || buttons == Buttons::YesNoCancel ? Answer::Yes : Answer::Ok;
}

QStringList ScriptedDialogs::lines() const {
    static const char *const iconNames[] = {"", "Critical", "Question", "Exclamation",
                                            "Information"};
    QStringList result;
    for (const Shown &box : shown) {
        result.append(box.title + QStringLiteral(" | ") + box.text);
        if (box.icon != Icon::None)
            result.last() += QStringLiteral(" | ") + QLatin1String(iconNames[int(box.icon)]);
    }
    return result;
}

QStringList ScriptedDialogs::titles() const {
    QStringList result;
    for (const Shown &box : shown)
        result.append(box.title);
    return result;
}

QString ScriptedDialogs::record(const Shown &box) {
    shown.append(box);
    return texts.isEmpty() ? QString() : texts.dequeue();
}
