#pragma once

#include "platform/briskoerror.h"

#include <QByteArray>
#include <QFile>
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

// The whole content of a file; empty when it cannot be read.
inline QByteArray fileBytes(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
