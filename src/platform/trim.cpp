#include "platform/trim.h"

namespace Utility {

QString Trim(const QString &text) {
    qsizetype first = 0;
    qsizetype end = text.size();
    while (first < end && text.at(first) == u' ')
        ++first;
    while (end > first && text.at(end - 1) == u' ')
        --end;
    return text.mid(first, end - first);
}

} // namespace Utility
