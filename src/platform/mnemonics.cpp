#include "platform/mnemonics.h"

QString withMnemonic(const QString &text, QString &taken) {
    QString shown = text;
    shown.replace(u'&', QStringLiteral("&&"));
    qsizetype first = -1;
    for (qsizetype at = 0; at < shown.size(); ++at) {
        const QChar letter = shown[at].toLower();
        if (!letter.isLetterOrNumber() || (at > 0 && shown[at - 1] == u'&'))
            continue;
        if (first < 0)
            first = at;
        if (!taken.contains(letter)) {
            first = at;
            break;
        }
    }
    if (first < 0)
        return shown;
    taken.append(shown[first].toLower());
    return shown.insert(first, u'&');
}
