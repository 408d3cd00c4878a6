#include "Foundation/JsonRepair.h"

#include <QString>
#include <QStringDecoder>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace
{
constexpr std::string_view utf8Mark = "\xef\xbb\xbf";
constexpr std::string_view littleEndianMark = "\xff\xfe";
constexpr std::string_view bigEndianMark = "\xfe\xff";

constexpr bool isFiller(char c)
{
    return c == '\0' || c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

constexpr bool isNumeric(char c)
{
    return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.' || c == 'e' || c == 'E';
}

/// The four hexadecimal digits of a `\uXXXX` escape at this place, if it is one.
std::optional<unsigned> unicodeEscape(const char *at, const char *end)
{
    if (end - at < 6 || at[0] != '\\' || at[1] != 'u')
        return std::nullopt;
    unsigned value = 0;
    const auto result = std::from_chars(at + 2, at + 6, value, 16);
    return result.ptr == at + 6 ? std::optional(value) : std::nullopt;
}

/// In a wider range than that of a double, infinite beyond it; 0 for what is no number.
long double toNumber(QByteArrayView digits)
{
    long double value = 0;
    const auto result = std::from_chars(digits.begin(), digits.end(), value);
    if (result.ec != std::errc::result_out_of_range)
        return value;
    const bool isTiny =
        digits.contains("e-") || digits.contains("E-") || digits.startsWith("0.") || digits.startsWith("-0.");
    const auto infinity = std::numeric_limits<long double>::infinity();
    return isTiny ? 0 : digits.startsWith('-') ? -infinity : infinity;
}

class Repair
{
public:
    explicit Repair(QByteArrayView json) : m_at(json.begin()), m_end(json.end())
    {
        m_out.reserve(json.size());
    }

    QByteArray run()
    {
        while (m_at < m_end) {
            if (*m_at == '"')
                text();
            else if (isNumeric(*m_at))
                number();
            else
                copy(1);
        }
        return m_out;
    }

private:
    void copy(qsizetype bytes)
    {
        const qsizetype length = std::min<qsizetype>(bytes, m_end - m_at);
        m_out.append(m_at, length);
        m_at += length;
    }

    void text()
    {
        copy(1);
        while (m_at < m_end && *m_at != '"') {
            if (*m_at == '\\')
                escape();
            else
                copy(std::find_if(m_at, m_end, [](char c) { return c == '"' || c == '\\'; }) - m_at);
        }
        copy(1);
    }

    void escape()
    {
        const auto isLow = [](std::optional<unsigned> unit) {
            return unit && *unit >= 0xdc00 && *unit < 0xe000;
        };
        const auto unit = unicodeEscape(m_at, m_end);
        if (!unit)
            return copy(2);
        const bool isHigh = *unit >= 0xd800 && *unit < 0xdc00;
        if (isHigh && isLow(unicodeEscape(m_at + 6, m_end)))
            return copy(12);
        if (!isHigh && !isLow(unit))
            return copy(6);
        m_out.append("\\ufffd");
        m_at += 6;
    }

    void number()
    {
        const QByteArrayView digits(m_at, std::find_if_not(m_at, m_end, isNumeric));
        m_at = digits.end();
        const auto value = toNumber(digits);
        if (std::abs(value) > std::numeric_limits<double>::max()) {
            m_out.append(value < 0 ? "-1.7976931348623157e308" : "1.7976931348623157e308");
            return;
        }
        m_out.append(digits);
        const bool isInteger =
            std::ranges::all_of(digits, [](char c) { return c == '-' || (c >= '0' && c <= '9'); });
        static constexpr long double limit = 9223372036854775808.0L;
        if (isInteger && (value > limit || value <= -limit))
            m_out.append("e0");
    }

    const char *m_at, *m_end;
    QByteArray m_out;
};
} // namespace

QByteArrayView JsonRepair::trimmed(QByteArrayView bytes)
{
    if (bytes.startsWith(utf8Mark))
        bytes = bytes.sliced(utf8Mark.size());
    while (!bytes.isEmpty() && isFiller(bytes.back()))
        bytes.chop(1);
    while (!bytes.isEmpty() && isFiller(bytes.front()))
        bytes = bytes.sliced(1);
    return bytes;
}

std::optional<QByteArray> JsonRepair::fromUtf16(QByteArrayView bytes)
{
    if (!bytes.startsWith(littleEndianMark) && !bytes.startsWith(bigEndianMark))
        return std::nullopt;
    const QString text = QStringDecoder(QStringDecoder::Utf16)(bytes);
    return text.toUtf8();
}

QByteArray JsonRepair::repaired(QByteArrayView json)
{
    if (json.isValidUtf8())
        return Repair(json).run();
    return Repair(QString::fromUtf8(json).toUtf8()).run();
}
