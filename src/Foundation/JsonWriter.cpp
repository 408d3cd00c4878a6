#include "Foundation/JsonWriter.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace
{
/// Longest a UTF-16 unit can become: `\u001f`.
constexpr qsizetype longestEscape = 6;
/// Text is escaped in pieces of this many units, so that the room asked for in advance stays small.
constexpr qsizetype pieceLength = 4096;

/// Copies the run of plain characters at the start of the text, one byte each, and returns its length.
qsizetype copyPlain(const char16_t *from, qsizetype length, char *to)
{
    qsizetype i = 0;
#if defined(__SSE2__)
    for (; i + 8 <= length; i += 8) {
        const __m128i units = _mm_loadu_si128(reinterpret_cast<const __m128i *>(from + i));
        // Signed comparison: units above 0x7fff are negative and so count as too small, which is right too.
        const __m128i small = _mm_cmplt_epi16(units, _mm_set1_epi16(0x20));
        const __m128i large = _mm_cmpgt_epi16(units, _mm_set1_epi16(0x7f));
        const __m128i quote = _mm_cmpeq_epi16(units, _mm_set1_epi16('"'));
        const __m128i slash = _mm_cmpeq_epi16(units, _mm_set1_epi16('/'));
        const __m128i backslash = _mm_cmpeq_epi16(units, _mm_set1_epi16('\\'));
        const __m128i special =
            _mm_or_si128(_mm_or_si128(small, large), _mm_or_si128(quote, _mm_or_si128(slash, backslash)));
        if (_mm_movemask_epi8(special) != 0)
            break;
        _mm_storel_epi64(reinterpret_cast<__m128i *>(to + i), _mm_packus_epi16(units, units));
    }
#endif
    for (; i < length; ++i) {
        const char16_t unit = from[i];
        if (unit < 0x20 || unit > 0x7f || unit == '"' || unit == '/' || unit == '\\')
            break;
        to[i] = char(unit);
    }
    return i;
}

char *putUtf8(char32_t point, char *to)
{
    if (point < 0x800) {
        *to++ = char(0xc0 | (point >> 6));
    } else if (point < 0x10000) {
        *to++ = char(0xe0 | (point >> 12));
        *to++ = char(0x80 | ((point >> 6) & 0x3f));
    } else {
        *to++ = char(0xf0 | (point >> 18));
        *to++ = char(0x80 | ((point >> 12) & 0x3f));
        *to++ = char(0x80 | ((point >> 6) & 0x3f));
    }
    *to++ = char(0x80 | (point & 0x3f));
    return to;
}

char *putEscape(char16_t unit, char *to)
{
    *to++ = '\\';
    switch (unit) {
    case '\b':
        *to++ = 'b';
        return to;
    case '\f':
        *to++ = 'f';
        return to;
    case '\n':
        *to++ = 'n';
        return to;
    case '\r':
        *to++ = 'r';
        return to;
    case '\t':
        *to++ = 't';
        return to;
    case '"':
    case '/':
    case '\\':
        *to++ = char(unit);
        return to;
    default:
        static constexpr char hex[] = "0123456789abcdef";
        for (const char c : {'u', '0', '0', hex[unit >> 4], hex[unit & 0xf]})
            *to++ = c;
        return to;
    }
}
} // namespace

JsonWriter::JsonWriter(qsizetype expectedSize)
{
    m_bytes.resize(std::max<qsizetype>(expectedSize, 64));
}

void JsonWriter::beginObject()
{
    separate();
    put('{');
    m_needsComma = false;
}

void JsonWriter::endObject()
{
    put('}');
    m_needsComma = true;
}

void JsonWriter::beginArray()
{
    separate();
    put('[');
    m_needsComma = false;
}

void JsonWriter::endArray()
{
    put(']');
    m_needsComma = true;
}

void JsonWriter::fieldName(std::string_view plainName)
{
    char *to = room(qsizetype(plainName.size()) + 4);
    char *const start = to;
    if (m_needsComma)
        *to++ = ',';
    *to++ = '"';
    to = std::copy(plainName.begin(), plainName.end(), to);
    *to++ = '"';
    *to++ = ':';
    m_size += to - start;
    m_needsComma = false;
}

void JsonWriter::key(QStringView name)
{
    text(name);
    put(':');
    m_needsComma = false;
}

void JsonWriter::text(QStringView value)
{
    separate();
    put('"');
    escaped(value);
    put('"');
    m_needsComma = true;
}

void JsonWriter::plainText(std::string_view value)
{
    separate();
    put('"');
    put(value);
    put('"');
    m_needsComma = true;
}

void JsonWriter::boolean(bool value)
{
    separate();
    put(value ? std::string_view("true") : std::string_view("false"));
    m_needsComma = true;
}

void JsonWriter::integer(qint64 value)
{
    separate();
    char *const to = room(24);
    m_size += std::to_chars(to, to + 24, value).ptr - to;
    m_needsComma = true;
}

void JsonWriter::number(double value)
{
    // Readers take digits without an exponent for an integer, and refuse one that 64 bits can't hold.
    static constexpr double integerLimit = 9223372036854775808.0;
    separate();
    char *const to = room(32);
    const double finite = std::isfinite(value) ? value : 0.0;
    const bool needsExponent = std::abs(finite) >= integerLimit;
    const auto end = needsExponent ? std::to_chars(to, to + 32, finite, std::chars_format::scientific)
                                   : std::to_chars(to, to + 32, finite);
    m_size += end.ptr - to;
    m_needsComma = true;
}

void JsonWriter::uuid(const QUuid &value)
{
    static constexpr char hex[] = "0123456789ABCDEF";
    std::array<char, 36> text;
    char *to = text.data();
    const auto putBytes = [&to](quint64 bits, int bytes) {
        for (int shift = bytes * 8 - 4; shift >= 0; shift -= 4)
            *to++ = hex[(bits >> shift) & 0xf];
    };
    putBytes(value.data1, 4);
    *to++ = '-';
    putBytes(value.data2, 2);
    *to++ = '-';
    putBytes(value.data3, 2);
    *to++ = '-';
    putBytes(value.data4[0], 1);
    putBytes(value.data4[1], 1);
    *to++ = '-';
    for (int i = 2; i < 8; ++i)
        putBytes(value.data4[i], 1);
    plainText({text.data(), text.size()});
}

void JsonWriter::timestamp(Timestamp value)
{
    const auto text = isoTimestamp(value);
    plainText({text.data(), text.size()});
}

QByteArray JsonWriter::take()
{
    m_bytes.truncate(m_size);
    m_size = 0;
    m_needsComma = false;
    return std::exchange(m_bytes, QByteArray());
}

void JsonWriter::separate()
{
    if (m_needsComma)
        put(',');
}

char *JsonWriter::room(qsizetype bytes)
{
    if (m_size + bytes > m_bytes.size())
        m_bytes.resize(std::max(m_bytes.size() * 2, m_size + bytes));
    return m_bytes.data() + m_size;
}

void JsonWriter::put(char c)
{
    *room(1) = c;
    ++m_size;
}

void JsonWriter::put(std::string_view bytes)
{
    std::memcpy(room(qsizetype(bytes.size())), bytes.data(), bytes.size());
    m_size += qsizetype(bytes.size());
}

void JsonWriter::escaped(QStringView value)
{
    const char16_t *from = value.utf16();
    const char16_t *const end = from + value.size();
    while (from < end) {
        char *to = room((pieceLength + 1) * longestEscape);
        char *const start = to;
        const char16_t *const pieceEnd = from + std::min<qsizetype>(pieceLength, end - from);
        while (from < pieceEnd) {
            const qsizetype plain = copyPlain(from, pieceEnd - from, to);
            from += plain;
            to += plain;
            if (from == pieceEnd)
                break;
            const char16_t unit = *from++;
            if (unit < 0x80) {
                to = putEscape(unit, to);
            } else if (!QChar::isSurrogate(unit)) {
                to = putUtf8(unit, to);
            } else if (QChar::isHighSurrogate(unit) && from < end && QChar::isLowSurrogate(*from)) {
                to = putUtf8(QChar::surrogateToUcs4(unit, *from++), to);
            } else {
                to = putUtf8(QChar::ReplacementCharacter, to);
            }
        }
        m_size += to - start;
    }
}
