#pragma once

#include "app/currency.h"

#include <QDate>
#include <QDateTime>
#include <QString>
#include <optional>
#include <string>

// The runtime's formatting and conversions, in one place. Numbers are always
// written with '.' as the decimal point and ',' as the thousands separator.
namespace Runtime {

// Numeric patterns such as "#,##0.00", "#,###.00", "0.00", "0.000", "00000":
// '0' is a digit that is always shown (leading zeros padded, a longer number
// simply grows), '#' a digit shown only when significant, ',' between integer
// placeholders asks for thousands grouping, '.' is the decimal point. Text
// before the first and after the last placeholder is copied as it stands.
// Rounding is half away from zero; a negative result gets a leading '-'.
// "#,###.00" shows 0 as ".00"; an empty pattern gives the default text.
QString formatNumber(Currency value, const QString &pattern);
// The double is first reduced to its 15 significant digits, so that
// 3 * (7.5 / 100), held as 0.22499999..., shows as "0.23" with "0.00".
QString formatNumber(double value, const QString &pattern);
// Format("123", "0000") gives "0123"; text that is not numeric comes back
// unchanged.
QString formatNumber(const QString &numericText, const QString &pattern);

// Date patterns: yyyy, yy, mmmm, mmm, mm, m, dddd, ddd, dd, d, in any case.
// '/' is the date separator and stays '/'; every other character is copied.
// "mm/dd/yyyy" of 25 Oct 2013 gives "10/25/2013", "mmyy " gives "1013 ".
QString formatDate(const QDate &date, const QString &pattern);

// The loose numeric test: blanks around the text ignored, an optional sign,
// digits with ',' grouping, at most one '.', an optional exponent, and at
// least one digit. "1,234.50" and " -3 " pass; "", ".", "12a", "7.5%" fail.
bool isNumeric(const QString &text);

// CLng and CInt: loose numeric text rounded half to even (2.5 -> 2, 3.5 -> 4).
// Non-numeric text raises Type mismatch, a value out of range Overflow.
qint32 toInt32(const QString &text);
qint16 toInt16(const QString &text);
// CDbl: loose numeric text as a double; non-numeric raises Type mismatch.
double toDouble(const QString &text);
// CBool: "True"/"False" in any case, or numeric text (non-zero is True).
bool toBoolean(const QString &text);

// Default text of a double: up to 15 significant digits, no trailing zeros,
// no grouping ("12.5", "3"); very large or small values in E notation.
QString defaultText(double value);

// The default date text: the default locale's month-first short date, always
// with a four-digit year ("10/25/2013" under en_US).
QString shortDate(const QDate &date);
// The short date, followed by " h:mm:ss AP" unless the time is midnight.
QString generalDate(const QDateTime &dateTime);
// Reads what shortDate writes, or an ISO yyyy-MM-dd date; QDate() otherwise.
QDate parseShortDate(const QString &text);

// A number held as its decimal digits, so that rounding is exact. The value
// is `digits` with a decimal point `scale` places from the right. Shared by
// the conversions above and by Currency.
struct Decimal {
    bool negative = false;
    std::string digits = "0"; // at least scale + 1 digits, no extra leading zeros
    int scale = 0;

    bool isZero() const;
    std::string integerDigits() const;
    std::string fractionDigits() const;
};

enum class Rounding { HalfAwayFromZero, HalfToEven };

// The loose numeric syntax of isNumeric; nullopt when the text is not numeric.
std::optional<Decimal> parseDecimal(const QString &text);
// A finite double reduced to its 15 significant digits.
Decimal decimalFromDouble(double value);
Decimal rounded(const Decimal &value, int decimals, Rounding rounding);
// The digits read as one integer, the point ignored (so a value rounded to
// four decimals gives ten-thousandths); nullopt when it does not fit.
std::optional<qint64> scaledInteger(const Decimal &value);

} // namespace Runtime
