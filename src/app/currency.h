#pragma once

#include <QString>
#include <QtGlobal>
#include <compare>

// Money: a 64-bit signed fixed-point number with four decimals. Sums,
// differences and multiples by a quantity are exact; every operation that
// leaves the range raises the runtime's Overflow error.
class Currency {
public:
    static constexpr qint64 kScale = 10000;

    constexpr Currency() = default;

    static constexpr Currency fromUnits(qint64 tenThousandths) { return Currency(tenThousandths); }
    static Currency fromInt(qint64 whole);
    // Rounds half away from zero to four decimals, after reducing the double
    // to its 15 significant digits as the runtime does.
    static Currency fromDouble(double value);
    // Loose numeric text ("1,234.50", "-3", " 12.5 "), rounded half away from
    // zero to four decimals. Text that is not numeric raises Type mismatch.
    static Currency fromText(const QString &text);

    constexpr qint64 units() const { return m_units; }
    double toDouble() const;
    // Default text: no grouping, trailing zeros dropped ("12.5", "3", "-0.25").
    QString toString() const;

    Currency operator+(Currency other) const;
    Currency operator-(Currency other) const;
    Currency operator-() const;
    Currency &operator+=(Currency other);
    Currency &operator-=(Currency other);
    Currency operator*(qint64 quantity) const;

    auto operator<=>(const Currency &) const = default;
    bool operator==(const Currency &) const = default;

private:
    constexpr explicit Currency(qint64 units)
        : m_units(units) {}

    qint64 m_units = 0;
};
