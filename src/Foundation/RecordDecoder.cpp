#include "Foundation/RecordDecoder.h"

#include <cmath>

namespace
{
/// The value of a hexadecimal digit, or -1.
int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

std::optional<QUuid> parseUuid(std::string_view text)
{
    if (text.size() != 36)
        return std::nullopt;
    std::array<quint8, 16> bytes{};
    std::size_t digit = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i == 8 || i == 13 || i == 18 || i == 23) {
            if (text[i] != '-')
                return std::nullopt;
            continue;
        }
        const int value = hexValue(text[i]);
        if (value < 0)
            return std::nullopt;
        bytes[digit / 2] = quint8((bytes[digit / 2] << 4) | value);
        ++digit;
    }
    return QUuid::fromRfc4122(QByteArrayView(bytes.data(), qsizetype(bytes.size())));
}

QString toText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}
} // namespace

bool RecordDecoder::read(Element json, bool &out, const DecodeContext &)
{
    return json.get(out) == simdjson::SUCCESS;
}

bool RecordDecoder::read(Element json, qint64 &out, const DecodeContext &)
{
    if (json.type() != simdjson::dom::element_type::DOUBLE) {
        int64_t value = 0;
        if (json.get(value) != simdjson::SUCCESS)
            return false;
        out = value;
        return true;
    }
    const double value = double(json);
    static constexpr double limit = 9223372036854775808.0;
    if (value != std::floor(value) || value < -limit || value >= limit)
        return false;
    out = qint64(value);
    return true;
}

bool RecordDecoder::read(Element json, double &out, const DecodeContext &)
{
    return json.get(out) == simdjson::SUCCESS;
}

bool RecordDecoder::read(Element json, QString &out, const DecodeContext &)
{
    std::string_view text;
    if (json.get(text) != simdjson::SUCCESS)
        return false;
    out = toText(text);
    return true;
}

bool RecordDecoder::read(Element json, QUuid &out, const DecodeContext &)
{
    std::string_view text;
    if (json.get(text) != simdjson::SUCCESS)
        return false;
    const auto id = parseUuid(text);
    out = id.value_or(QUuid());
    return id.has_value();
}

bool RecordDecoder::read(Element json, Timestamp &out, const DecodeContext &)
{
    std::string_view text;
    if (json.get(text) != simdjson::SUCCESS)
        return false;
    const auto moment = parseIsoTimestamp(text);
    out = moment.value_or(Timestamp());
    return moment.has_value();
}

bool RecordDecoder::read(Element json, std::set<QString> &out, const DecodeContext &)
{
    simdjson::dom::array array;
    if (json.get(array) != simdjson::SUCCESS)
        return false;
    out.clear();
    for (const Element element : array) {
        std::string_view text;
        if (element.get(text) != simdjson::SUCCESS)
            return false;
        out.insert(toText(text));
    }
    return true;
}

bool RecordDecoder::read(Element json, QMap<QString, QString> &out, const DecodeContext &)
{
    simdjson::dom::object object;
    if (json.get(object) != simdjson::SUCCESS)
        return false;
    out.clear();
    for (const auto [key, value] : object) {
        std::string_view text;
        if (value.get(text) != simdjson::SUCCESS)
            return false;
        out.insert(toText(key), toText(text));
    }
    return true;
}
