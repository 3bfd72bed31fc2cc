#include "app/currency.h"

#include "app/runtimeformat.h"
#include "platform/briskoerror.h"

#include <QtNumeric>
#include <cmath>

namespace {

constexpr int kDecimals = 4;

Currency fromDecimal(const Runtime::Decimal &value) {
    const auto units = Runtime::scaledInteger(
        Runtime::rounded(value, kDecimals, Runtime::Rounding::HalfAwayFromZero));
    if (!units)
        raiseOverflow();
    return Currency::fromUnits(*units);
}

// Applies one of Qt's overflow-checked operations, raising Overflow on failure.
template <typename Operation> Currency checked(Operation operation, qint64 left, qint64 right) {
    qint64 units = 0;
    if (operation(left, right, &units))
        raiseOverflow();
    return Currency::fromUnits(units);
}

} // namespace

Currency Currency::fromInt(qint64 whole) {
    return checked(qMulOverflow<qint64>, whole, kScale);
}

Currency Currency::fromDouble(double value) {
    if (!std::isfinite(value))
        raiseOverflow();
    return fromDecimal(Runtime::decimalFromDouble(value));
}

Currency Currency::fromText(const QString &text) {
    const auto value = Runtime::parseDecimal(text);
    if (!value)
        raiseTypeMismatch();
    return fromDecimal(*value);
}

double Currency::toDouble() const {
    return static_cast<double>(m_units) / kScale;
}

QString Currency::toString() const {
    // Work on the unsigned magnitude so that the most negative value has one.
    const quint64 magnitude = m_units < 0 ? 0 - static_cast<quint64>(m_units) : m_units;
    QString text = QString::number(magnitude / kScale);
    const quint64 fraction = magnitude % kScale;
    if (fraction != 0) {
        QString decimals = QString::number(fraction).rightJustified(kDecimals, u'0');
        while (decimals.endsWith(u'0'))
            decimals.chop(1);
        text += u'.' + decimals;
    }
    return m_units < 0 ? u'-' + text : text;
}

Currency Currency::operator+(Currency other) const {
    return checked(qAddOverflow<qint64>, m_units, other.m_units);
}

Currency Currency::operator-(Currency other) const {
    return checked(qSubOverflow<qint64>, m_units, other.m_units);
}

Currency Currency::operator-() const {
    return Currency() - *this;
}

Currency &Currency::operator+=(Currency other) {
    return *this = *this + other;
}

Currency &Currency::operator-=(Currency other) {
    return *this = *this - other;
}

Currency Currency::operator*(qint64 quantity) const {
    return checked(qMulOverflow<qint64>, m_units, quantity);
}
