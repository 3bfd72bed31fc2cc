#include "platform/briskoerror.h"

#include <QCoreApplication>

BriskoError::BriskoError(int number, QString description)
    : m_number(number)
    , m_description(std::move(description))
    , m_what(m_description.toUtf8()) {}

BriskoError BriskoError::withPrefix(const QString &prefix) const {
    return BriskoError(m_number, prefix + m_description);
}

void raiseOverflow() {
    throw BriskoError(RuntimeError::Overflow, QCoreApplication::translate("Runtime", "Overflow"));
}

void raiseTypeMismatch() {
    throw BriskoError(RuntimeError::TypeMismatch,
                      QCoreApplication::translate("Runtime", "Type mismatch"));
}

void raiseInvalidUseOfNull() {
    throw BriskoError(RuntimeError::InvalidUseOfNull,
                      QCoreApplication::translate("Runtime", "Invalid use of Null"));
}
