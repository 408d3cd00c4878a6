#include "Foundation/RecordDecoder.h"

#include <QStringDecoder>

#include <cmath>
#include <cstring>
#include <map>

namespace
{
/// The value of each character as a hexadecimal digit; of all others a number above 0xff.
constexpr auto hexValues = [] {
    std::array<quint16, 256> values;
    values.fill(0x100);
    for (quint16 digit = 0; digit < 16; ++digit) {
        values[std::size_t("0123456789ABCDEF"[digit])] = digit;
        values[std::size_t("0123456789abcdef"[digit])] = digit;
    }
    return values;
}();

std::optional<QUuid> parseUuid(std::string_view text)
{
    if (text.size() != 36 || text[8] != '-' || text[13] != '-' || text[18] != '-' || text[23] != '-')
        return std::nullopt;
    static constexpr std::array<quint8, 16> places{0, 2, 4, 6, 9, 11, 14, 16, 19, 21, 24, 26, 28, 30, 32, 34};
    std::array<quint8, 16> bytes;
    unsigned seen = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const unsigned byte =
            unsigned(hexValues[quint8(text[places[i]])]) << 4 | hexValues[quint8(text[places[i] + 1U])];
        seen |= byte;
        bytes[i] = quint8(byte);
    }
    if (seen > 0xff)
        return std::nullopt;
    return QUuid::fromRfc4122(QByteArrayView(bytes.data(), qsizetype(bytes.size())));
}
} // namespace

/// Where a text may be known: a number made of its length and ends, which differ in most texts.
std::size_t SharedTexts::slot(std::string_view utf8)
{
    quint64 head = 0, tail = 0;
    if (utf8.size() >= sizeof head) {
        std::memcpy(&head, utf8.data(), sizeof head);
        std::memcpy(&tail, utf8.data() + utf8.size() - sizeof tail, sizeof tail);
    } else {
        for (const char c : utf8)
            head = head << 8 | quint8(c);
    }
    static constexpr quint64 mixer = 0x9e3779b97f4a7c15;
    return ((head ^ tail * mixer ^ utf8.size()) * mixer >> 32) % places;
}

QString SharedTexts::text(std::string_view utf8)
{
    const auto convert = [&] {
        const QByteArrayView bytes(utf8.data(), qsizetype(utf8.size()));
        // At the start of a text U+FEFF belongs to the text, where `fromUtf8` would take it for a mark.
        if (utf8.starts_with("\xef\xbb\xbf"))
            return QString(
                QStringDecoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom)(bytes));
        return QString::fromUtf8(bytes);
    };
    if (utf8.size() > longest)
        return convert();
    Known &known = m_known[slot(utf8)];
    if (std::string_view(known.utf8.data(), known.size) != utf8) {
        known.text = convert();
        known.size = utf8.copy(known.utf8.data(), longest);
    }
    return known.text;
}

void DecodeReport::addUnreadable(std::string_view key)
{
    const QString name = QString::fromUtf8(key.data(), qsizetype(key.size()));
    if (!unreadableKeys.contains(name))
        unreadableKeys.append(name);
}

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

bool RecordDecoder::read(Element json, QString &out, const DecodeContext &context)
{
    std::string_view text;
    if (json.get(text) != simdjson::SUCCESS)
        return false;
    out = context.texts.text(text);
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

bool RecordDecoder::read(Element json, std::set<QString> &out, const DecodeContext &context)
{
    simdjson::dom::array array;
    if (json.get(array) != simdjson::SUCCESS)
        return false;
    out.clear();
    for (const Element element : array) {
        std::string_view text;
        if (element.get(text) != simdjson::SUCCESS)
            return false;
        out.insert(context.texts.text(text));
    }
    return true;
}

bool RecordDecoder::read(Element json, QMap<QString, QString> &out, const DecodeContext &context)
{
    simdjson::dom::object object;
    if (json.get(object) != simdjson::SUCCESS)
        return false;
    std::map<QString, QString> values;
    for (const auto [key, value] : object) {
        std::string_view text;
        if (value.get(text) != simdjson::SUCCESS)
            return false;
        // Keys written by this program are in order.
        values.insert_or_assign(values.end(), context.texts.text(key), context.texts.text(text));
    }
    out = QMap(std::move(values));
    return true;
}
