#include "Features/Databases/DBValue.h"

#include "Support/OVDate.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

bool DBValue::isEmpty(const QString &value)
{
    return value == QLatin1String("false") ||
           std::ranges::all_of(value, [](QChar character) { return character.isSpace(); });
}

bool DBValue::isChecked(const QString &value)
{
    const QString lower = value.toLower();
    return lower == QLatin1String("true") || lower == QLatin1String("1") || lower == QLatin1String("yes") ||
           lower == QStringLiteral("✓");
}

QStringList DBValue::options(const QString &value)
{
    QStringList options;
    for (const QString &piece : value.split(u',', Qt::SkipEmptyParts))
        if (const QString option = piece.trimmed(); !option.isEmpty())
            options.append(option);
    return options;
}

std::optional<QDate> DBValue::date(const QString &value)
{
    return OVDate::parseDayKey(value);
}

std::optional<Timestamp> DBValue::moment(const QString &value)
{
    static const QRegularExpression pattern(
        QStringLiteral("^(\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d)(?:Z|([+-])(\\d\\d):?([0-5]\\d))$"));
    const auto parts = pattern.match(value.toUpper());
    if (!parts.hasMatch())
        return std::nullopt;
    const auto local = parseIsoTimestamp((parts.captured(1) + u'Z').toStdString());
    const auto offset = std::chrono::hours(parts.capturedView(3).toInt()) +
                        std::chrono::minutes(parts.capturedView(4).toInt());
    if (!local || offset >= std::chrono::days(1))
        return std::nullopt;
    return parts.capturedView(2) == u"-" ? *local + offset : *local - offset;
}

double DBValue::progress(const QString &value)
{
    return std::clamp(number(value).value_or(0) / 100, 0.0, 1.0);
}

std::optional<double> DBValue::number(const QString &value)
{
    static constexpr qsizetype longest = 400;
    if (value.isEmpty() || value.size() > longest)
        return std::nullopt;
    std::array<char, longest> digits{};
    qsizetype size = 0;
    for (const QChar character : value) {
        const char16_t unit = character.unicode();
        const bool isDigit = unit >= '0' && unit <= '9';
        if (!isDigit && unit != '.' && unit != '-' && unit != '+' && unit != 'e' && unit != 'E')
            return std::nullopt;
        digits[std::size_t(size++)] = char(unit);
    }
    const bool hasPlus = digits[0] == '+';
    if (hasPlus && size > 1 && (digits[1] == '-' || digits[1] == '+'))
        return std::nullopt;
    const char *const end = digits.data() + size;
    double number = 0;
    const auto result = std::from_chars(digits.data() + (hasPlus ? 1 : 0), end, number);
    if (result.ec == std::errc() && result.ptr == end)
        return number;
    return std::nullopt;
}
