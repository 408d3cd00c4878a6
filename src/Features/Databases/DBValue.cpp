#include "Features/Databases/DBValue.h"

#include "Support/OVDate.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <vector>

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

BadgeTone DBValue::tone(const QString &text)
{
    struct Words {
        BadgeTone tone;
        std::vector<QLatin1String> words;
    };
    static const std::array<Words, 4> table{
        Words{BadgeTone::success,
              {QLatin1String("done"), QLatin1String("complete"), QLatin1String("finished")}},
        Words{BadgeTone::info, {QLatin1String("progress"), QLatin1String("doing"), QLatin1String("reading")}},
        Words{BadgeTone::danger, {QLatin1String("block"), QLatin1String("hold"), QLatin1String("high")}},
        Words{BadgeTone::warning, {QLatin1String("plan"), QLatin1String("wait")}}};
    const QString lower = text.toLower();
    for (const Words &entry : table)
        if (std::ranges::any_of(entry.words, [&lower](QLatin1String word) { return lower.contains(word); }))
            return entry.tone;
    return BadgeTone::neutral;
}

QString DBValue::typed(DBPropertyType type, const QString &text)
{
    const bool isNumber = type == DBPropertyType::number;
    if (!isNumber && type != DBPropertyType::progress)
        return text;
    QList<uint> kept = text.toUcs4();
    kept.removeIf([isNumber](uint scalar) {
        return !QChar::isNumber(scalar) && !(isNumber && (scalar == '.' || scalar == '-'));
    });
    return QString::fromUcs4(reinterpret_cast<const char32_t *>(kept.constData()), kept.size());
}

QString DBValue::pasted(const DBProperty &property, const QString &text)
{
    const auto option = [&property](const QString &piece) {
        const auto known = std::ranges::find_if(property.options, [&piece](const QString &option) {
            return option.compare(piece, Qt::CaseInsensitive) == 0;
        });
        return known == property.options.end() ? piece : *known;
    };
    switch (property.type) {
    case DBPropertyType::select:
    case DBPropertyType::status:
        return option(text.trimmed());
    case DBPropertyType::multiselect: {
        QStringList chosen;
        for (const QString &piece : options(text))
            chosen.append(option(piece));
        return chosen.join(u',');
    }
    case DBPropertyType::checkbox:
        return isChecked(text.trimmed()) ? QStringLiteral("true") : QString();
    // What is a number as a whole keeps its value; of any other text the digits are kept, as in typing.
    case DBPropertyType::number:
        return number(text.trimmed()) ? text.trimmed() : typed(property.type, text);
    case DBPropertyType::progress: {
        QString share = text.trimmed();
        if (share.endsWith(u'%'))
            share = share.chopped(1).trimmed();
        const auto value = number(share);
        return value ? QString::number(qRound64(std::clamp(*value, 0.0, 1e6))) : typed(property.type, text);
    }
    default:
        return typed(property.type, text);
    }
}

QString DBValue::toggled(const QString &value, const QString &option)
{
    QStringList chosen = options(value);
    if (chosen.removeAll(option) == 0)
        chosen.append(option);
    return chosen.join(u',');
}

namespace
{
constexpr qsizetype longestNumber = 400;

bool isPartOfNumber(char16_t unit)
{
    return (unit >= '0' && unit <= '9') || unit == '.' || unit == '-' || unit == '+' || unit == 'e' ||
           unit == 'E';
}
} // namespace

std::optional<double> DBValue::number(const QString &value)
{
    std::array<char, longestNumber> digits{};
    if (value.size() > longestNumber)
        return std::nullopt;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const char16_t unit = value.at(i).unicode();
        if (!isPartOfNumber(unit))
            return std::nullopt;
        digits[std::size_t(i)] = char(unit);
    }
    return number(QByteArrayView(digits.data(), value.size()));
}

std::optional<double> DBValue::number(QByteArrayView value)
{
    if (value.isEmpty() || value.size() > longestNumber)
        return std::nullopt;
    if (!std::ranges::all_of(value,
                             [](char byte) { return isPartOfNumber(static_cast<unsigned char>(byte)); }))
        return std::nullopt;
    const bool hasPlus = value.front() == '+';
    if (hasPlus && value.size() > 1 && (value[1] == '-' || value[1] == '+'))
        return std::nullopt;
    double number = 0;
    const auto result = std::from_chars(value.begin() + (hasPlus ? 1 : 0), value.end(), number);
    if (result.ec == std::errc() && result.ptr == value.end())
        return number;
    return std::nullopt;
}
