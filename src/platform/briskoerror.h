#pragma once

#include <QByteArray>
#include <QString>
#include <exception>
#include <utility>

// The one error type of Brisko: a number and a description. Record classes
// re-raise it with their own prefix in front of the description; a screen's
// command catches it and shows its box. It never crosses a Qt slot.
class BriskoError : public std::exception {
public:
    BriskoError(int number, QString description);

    int number() const noexcept { return m_number; }
    const QString &description() const noexcept { return m_description; }
    const char *what() const noexcept override { return m_what.constData(); }

    // The same error with `prefix` in front of its description.
    BriskoError withPrefix(const QString &prefix) const;

private:
    int m_number;
    QString m_description;
    QByteArray m_what;
};

// Error numbers the runtime gives and the program relies on.
namespace RuntimeError {
constexpr int Overflow = 6;
constexpr int TypeMismatch = 13;
constexpr int FileAlreadyExists = 58;
constexpr int InvalidUseOfNull = 94;
constexpr int NoSuchColumn = 3265; // a programming error: a misspelt column name
constexpr int DatabaseError = -2147467259;
} // namespace RuntimeError

[[noreturn]] void raiseOverflow();
[[noreturn]] void raiseTypeMismatch();
[[noreturn]] void raiseInvalidUseOfNull();

// Runs `body`; a BriskoError out of it is raised again with `prefix` in
// front of its description. Every class method states its prefix this way.
template <typename Body> decltype(auto) reraiseWithPrefix(const QString &prefix, Body &&body) {
    try {
        return std::forward<Body>(body)();
    } catch (const BriskoError &error) {
        throw error.withPrefix(prefix);
    }
}
