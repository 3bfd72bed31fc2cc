#include "app/runtimeformat.h"

#include "platform/briskoerror.h"

#include <QLocale>
#include <QRegularExpression>
#include <QtNumeric>
#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

namespace Runtime {

// --- Exact decimal digits ---------------------------------------------------

namespace {

// Keeps at least one integer digit, drops surplus leading zeros and the sign
// of zero, so that a value rounded to nothing never shows as "-0.00".
void normalize(Decimal &value) {
    const auto needed = static_cast<std::size_t>(value.scale) + 1;
    if (value.digits.size() < needed)
        value.digits.insert(0, needed - value.digits.size(), '0');
    const std::size_t integerLength = value.digits.size() - value.scale;
    std::size_t surplus = 0;
    while (surplus + 1 < integerLength && value.digits[surplus] == '0')
        ++surplus;
    value.digits.erase(0, surplus);
    if (value.isZero())
        value.negative = false;
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

// An exponent far beyond any range the conversions accept is clamped, so
// that "1e999999" overflows instead of building a million digits.
constexpr int kExponentLimit = 1000;

// Reads "e", an optional sign and digits at `pos`; nullopt when malformed.
std::optional<int> readExponent(const QString &text, qsizetype &pos) {
    ++pos;
    bool negative = false;
    if (pos < text.size() && (text[pos] == u'+' || text[pos] == u'-'))
        negative = text[pos++] == u'-';
    if (pos >= text.size() || !isDigit(text[pos]))
        return std::nullopt;
    int exponent = 0;
    for (; pos < text.size() && isDigit(text[pos]); ++pos)
        exponent = qMin(exponent * 10 + (text[pos].unicode() - u'0'), kExponentLimit);
    return negative ? -exponent : exponent;
}

bool roundsUp(char lastKept, std::string_view dropped, Rounding rounding) {
    if (dropped.front() != '5')
        return dropped.front() > '5';
    if (rounding == Rounding::HalfAwayFromZero)
        return true;
    const bool exactHalf = dropped.find_first_not_of('0', 1) == std::string_view::npos;
    return !exactHalf || (lastKept - '0') % 2 == 1;
}

void increment(std::string &digits) {
    for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
        if (*it != '9') {
            ++*it;
            return;
        }
        *it = '0';
    }
    digits.insert(0, 1, '1');
}

Decimal decimalFromCurrency(Currency value) {
    const qint64 units = value.units();
    const quint64 magnitude = units < 0 ? 0 - static_cast<quint64>(units) : units;
    Decimal result{units < 0, std::to_string(magnitude), 4};
    normalize(result);
    return result;
}

} // namespace

bool Decimal::isZero() const {
    return digits.find_first_not_of('0') == std::string::npos;
}

std::string Decimal::integerDigits() const {
    return digits.substr(0, digits.size() - scale);
}

std::string Decimal::fractionDigits() const {
    return digits.substr(digits.size() - scale);
}

std::optional<Decimal> parseDecimal(const QString &text) {
    const QString trimmed = text.trimmed();
    qsizetype pos = 0;
    Decimal value;
    if (pos < trimmed.size() && (trimmed[pos] == u'+' || trimmed[pos] == u'-'))
        value.negative = trimmed[pos++] == u'-';

    value.digits.clear();
    bool seenPoint = false;
    for (; pos < trimmed.size(); ++pos) {
        const QChar c = trimmed[pos];
        if (isDigit(c)) {
            value.digits += static_cast<char>(c.unicode());
            value.scale += seenPoint ? 1 : 0;
        } else if (c == u',' && !seenPoint && !value.digits.empty()) {
            continue; // grouping, anywhere in the integer part
        } else if (c == u'.' && !seenPoint) {
            seenPoint = true;
        } else {
            break;
        }
    }
    if (value.digits.empty())
        return std::nullopt;

    if (pos < trimmed.size() && (trimmed[pos] == u'e' || trimmed[pos] == u'E')) {
        const auto exponent = readExponent(trimmed, pos);
        if (!exponent)
            return std::nullopt;
        value.scale -= *exponent;
        if (value.scale < 0) {
            value.digits.append(-value.scale, '0');
            value.scale = 0;
        }
    }
    if (pos != trimmed.size())
        return std::nullopt;
    normalize(value);
    return value;
}

Decimal decimalFromDouble(double value) {
    Q_ASSERT(std::isfinite(value));
    // Scientific notation with 14 decimals is exactly 15 significant digits.
    return *parseDecimal(QString::number(value, 'e', 14));
}

Decimal rounded(const Decimal &value, int decimals, Rounding rounding) {
    Decimal result = value;
    if (value.scale <= decimals) {
        result.digits.append(decimals - value.scale, '0');
        result.scale = decimals;
        return result;
    }
    const std::size_t keep = value.digits.size() - (value.scale - decimals);
    result.digits = value.digits.substr(0, keep);
    result.scale = decimals;
    if (roundsUp(result.digits.back(), std::string_view(value.digits).substr(keep), rounding))
        increment(result.digits);
    normalize(result);
    return result;
}

std::optional<qint64> scaledInteger(const Decimal &value) {
    qint64 result = 0;
    for (const char c : value.digits) {
        const qint64 digit = c - '0';
        if (qMulOverflow(result, qint64(10), &result))
            return std::nullopt;
        const bool overflow = value.negative ? qSubOverflow(result, digit, &result)
                                             : qAddOverflow(result, digit, &result);
        if (overflow)
            return std::nullopt;
    }
    return result;
}

// --- Numeric patterns -------------------------------------------------------

namespace {

struct NumberPattern {
    QString prefix;
    QString suffix;
    int minIntegerDigits = 0;
    bool grouping = false;
    bool hasPoint = false;
    int minDecimals = 0;
    int maxDecimals = 0;
};

bool isPlaceholder(QChar c) {
    return c == u'0' || c == u'#';
}

bool hasGroupingComma(const QString &integerPart) {
    const qsizetype comma = integerPart.indexOf(u',');
    if (comma <= 0)
        return false;
    return std::any_of(integerPart.begin() + comma, integerPart.end(), isPlaceholder);
}

void readFractionPart(const QString &fraction, NumberPattern &pattern) {
    for (const QChar c : fraction) {
        if (!isPlaceholder(c))
            continue;
        ++pattern.maxDecimals;
        if (c == u'0')
            pattern.minDecimals = pattern.maxDecimals;
    }
}

// The digit section runs from the first to the last placeholder (taking a
// '.' just before the first one along); characters in it other than the
// placeholders, ',' and '.' are ignored. Nullopt when there is no placeholder.
std::optional<NumberPattern> parseNumberPattern(const QString &text) {
    const auto first = std::find_if(text.begin(), text.end(), isPlaceholder) - text.begin();
    if (first == text.size())
        return std::nullopt;
    const auto last = text.crend() - std::find_if(text.crbegin(), text.crend(), isPlaceholder) - 1;
    const qsizetype start = first > 0 && text[first - 1] == u'.' ? first - 1 : first;

    NumberPattern pattern;
    pattern.prefix = text.left(start);
    pattern.suffix = text.mid(last + 1);
    const QString body = text.mid(start, last - start + 1);
    const qsizetype point = body.indexOf(u'.');
    const QString integerPart = point < 0 ? body : body.left(point);
    pattern.hasPoint = point >= 0;
    pattern.minIntegerDigits = integerPart.count(u'0');
    pattern.grouping = hasGroupingComma(integerPart);
    if (pattern.hasPoint)
        readFractionPart(body.mid(point + 1), pattern);
    return pattern;
}

QString grouped(const QString &digits) {
    QString result = digits;
    for (qsizetype pos = result.size() - 3; pos > 0; pos -= 3)
        result.insert(pos, u',');
    return result;
}

QString render(const Decimal &value, const NumberPattern &pattern) {
    const Decimal shown = rounded(value, pattern.maxDecimals, Rounding::HalfAwayFromZero);
    std::string integerDigits = shown.integerDigits();
    if (integerDigits == "0")
        integerDigits.clear(); // a '0' placeholder brings it back
    QString text =
        QString::fromStdString(integerDigits).rightJustified(pattern.minIntegerDigits, u'0');
    if (pattern.grouping)
        text = grouped(text);
    if (pattern.hasPoint) {
        QString fraction = QString::fromStdString(shown.fractionDigits());
        while (fraction.size() > pattern.minDecimals && fraction.endsWith(u'0'))
            fraction.chop(1);
        text += u'.' + fraction;
    }
    text = pattern.prefix + text + pattern.suffix;
    return shown.negative ? u'-' + text : text;
}

QString formatDecimal(const Decimal &value, const QString &patternText) {
    const auto pattern = parseNumberPattern(patternText);
    return pattern ? render(value, *pattern) : patternText;
}

} // namespace

QString formatNumber(Currency value, const QString &pattern) {
    if (pattern.isEmpty())
        return value.toString();
    return formatDecimal(decimalFromCurrency(value), pattern);
}

QString formatNumber(double value, const QString &pattern) {
    if (pattern.isEmpty() || !std::isfinite(value))
        return defaultText(value);
    return formatDecimal(decimalFromDouble(value), pattern);
}

QString formatNumber(const QString &numericText, const QString &pattern) {
    const auto value = parseDecimal(numericText);
    if (!value || pattern.isEmpty())
        return numericText;
    return formatDecimal(*value, pattern);
}

// --- Date patterns ----------------------------------------------------------

namespace {

QString twoDigits(int number) {
    return QString::number(number).rightJustified(2, u'0');
}

// One field of `width` letters (1 to 4) of 'm' or 'd'.
QString monthOrDayField(const QDate &date, QChar letter, qsizetype width) {
    const QLocale locale;
    const auto nameFormat = width == 4 ? QLocale::LongFormat : QLocale::ShortFormat;
    const bool month = letter == u'm';
    const int number = month ? date.month() : date.day();
    if (width >= 3)
        return month ? locale.monthName(number, nameFormat)
                     : locale.dayName(date.dayOfWeek(), nameFormat);
    return width == 2 ? twoDigits(number) : QString::number(number);
}

// A run of equal letters, such as "yyyy" or "mm", rendered field by field.
QString dateRun(const QDate &date, QChar letter, const QString &run) {
    QString result;
    qsizetype left = run.size();
    while (left > 0) {
        if (letter == u'y' && left >= 4) {
            result += QString::number(date.year()).rightJustified(4, u'0');
            left -= 4;
        } else if (letter == u'y' && left >= 2) {
            result += twoDigits(date.year() % 100);
            left -= 2;
        } else if (letter == u'y') {
            result += run.right(left); // a lone 'y' has no meaning here
            left = 0;
        } else {
            const qsizetype width = qMin<qsizetype>(left, 4);
            result += monthOrDayField(date, letter, width);
            left -= width;
        }
    }
    return result;
}

} // namespace

QString formatDate(const QDate &date, const QString &pattern) {
    QString result;
    for (qsizetype pos = 0; pos < pattern.size();) {
        const QChar letter = pattern[pos].toLower();
        qsizetype length = 1;
        while (pos + length < pattern.size() && pattern[pos + length].toLower() == letter)
            ++length;
        const QString run = pattern.mid(pos, length);
        const bool isField = letter == u'y' || letter == u'm' || letter == u'd';
        result += isField ? dateRun(date, letter, run) : run;
        pos += length;
    }
    return result;
}

// --- Conversions ------------------------------------------------------------

bool isNumeric(const QString &text) {
    return parseDecimal(text).has_value();
}

namespace {

template <typename Int> Int toInteger(const QString &text) {
    const auto value = parseDecimal(text);
    if (!value)
        raiseTypeMismatch();
    const auto whole = scaledInteger(rounded(*value, 0, Rounding::HalfToEven));
    if (!whole || *whole < std::numeric_limits<Int>::min() ||
        *whole > std::numeric_limits<Int>::max())
        raiseOverflow();
    return static_cast<Int>(*whole);
}

} // namespace

qint32 toInt32(const QString &text) {
    return toInteger<qint32>(text);
}

qint16 toInt16(const QString &text) {
    return toInteger<qint16>(text);
}

double toDouble(const QString &text) {
    const auto value = parseDecimal(text);
    if (!value)
        raiseTypeMismatch();
    const QString plain = QString::fromStdString(value->integerDigits()) + u'.' +
                          QString::fromStdString(value->fractionDigits()) + u'0';
    const double magnitude = plain.toDouble();
    if (!std::isfinite(magnitude))
        raiseOverflow();
    return value->negative ? -magnitude : magnitude;
}

bool toBoolean(const QString &text) {
    const QString trimmed = text.trimmed();
    if (trimmed.compare(u"true", Qt::CaseInsensitive) == 0)
        return true;
    if (trimmed.compare(u"false", Qt::CaseInsensitive) == 0)
        return false;
    const auto value = parseDecimal(trimmed);
    if (!value)
        raiseTypeMismatch();
    return !value->isZero();
}

QString defaultText(double value) {
    if (value == 0)
        return QStringLiteral("0"); // also for -0.0
    return QString::number(value, 'g', 15).toUpper();
}

// --- Default date text ------------------------------------------------------

namespace {

QString shortDateFormat() {
    const QLocale locale;
    if (locale.language() == QLocale::C)
        return QStringLiteral("MM/dd/yyyy");
    static const QRegularExpression yearLetters(QStringLiteral("y+"));
    return locale.dateFormat(QLocale::ShortFormat).replace(yearLetters, QStringLiteral("yyyy"));
}

} // namespace

QString shortDate(const QDate &date) {
    return QLocale().toString(date, shortDateFormat());
}

QString generalDate(const QDateTime &dateTime) {
    const QString date = shortDate(dateTime.date());
    const QTime time = dateTime.time();
    if (time == QTime(0, 0))
        return date;
    return date + u' ' + time.toString(QStringLiteral("h:mm:ss AP"));
}

QDate parseShortDate(const QString &text) {
    const QString trimmed = text.trimmed();
    const QDate date = QLocale().toDate(trimmed, shortDateFormat());
    if (date.isValid())
        return date;
    return QDate::fromString(trimmed, QStringLiteral("yyyy-MM-dd"));
}

} // namespace Runtime
