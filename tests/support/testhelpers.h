#pragma once

#include "app/briskoerror.h"

#include <QString>
#include <ostream>

// Failure messages show a QString as its text.
inline void PrintTo(const QString &text, std::ostream *out) {
    *out << '"' << text.toStdString() << '"';
}

// The error `call` raised, or error 0 with an empty description when it raised none.
template <typename Call> BriskoError errorOf(Call &&call) {
    try {
        call();
    } catch (const BriskoError &error) {
        return error;
    }
    return BriskoError(0, QString());
}
