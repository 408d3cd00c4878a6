#include "Foundation/JsonWriter.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
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
/// How far `copyPlain` writes beyond what it keeps.
constexpr qsizetype overwritten = 16;

constexpr bool isPlain(char16_t unit)
{
    return unit >= 0x20 && unit < 0x80 && unit != '"' && unit != '/' && unit != '\\';
}

#if defined(__SSE2__)
/// One bit for each of sixteen bytes that is not a plain character.
unsigned specials(__m128i bytes)
{
    // The comparison is signed, so bytes above 0x7f count as too small, which is right too.
    const __m128i isSmall = _mm_cmplt_epi8(bytes, _mm_set1_epi8(0x20));
    const __m128i isQuote = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('"'));
    const __m128i isSlash = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('/'));
    const __m128i isBackslash = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\\'));
    return unsigned(
        _mm_movemask_epi8(_mm_or_si128(_mm_or_si128(isSmall, isQuote), _mm_or_si128(isSlash, isBackslash))));
}

__m128i loadUnits(const char16_t *from)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i *>(from));
}
#endif

/// Copies the run of plain characters at the start of the text, one byte each, and returns its length. Up to
/// `overwritten` bytes behind the run lose what they held.
qsizetype copyPlain(const char16_t *from, qsizetype length, char *to)
{
    qsizetype i = 0;
#if defined(__SSE2__)
    // Packing turns units above 0xff into 0 or 0xff, none of which is plain.
    for (; i + 16 <= length; i += 16) {
        const __m128i bytes = _mm_packus_epi16(loadUnits(from + i), loadUnits(from + i + 8));
        _mm_storeu_si128(reinterpret_cast<__m128i *>(to + i), bytes);
        if (const unsigned found = specials(bytes))
            return i + std::countr_zero(found);
    }
    if (i + 8 <= length) {
        const __m128i units = loadUnits(from + i);
        const __m128i bytes = _mm_packus_epi16(units, units);
        _mm_storel_epi64(reinterpret_cast<__m128i *>(to + i), bytes);
        if (const unsigned found = specials(bytes))
            return i + std::countr_zero(found);
        i += 8;
    }
#endif
    for (; i < length && isPlain(from[i]); ++i)
        to[i] = char(from[i]);
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
    grow(std::max<qsizetype>(expectedSize, 64));
}

JsonWriter::JsonWriter(Sink sink, qsizetype pieceSize) : JsonWriter(pieceSize)
{
    m_sink = std::move(sink);
}

void JsonWriter::beginObject()
{
    open('{');
}

void JsonWriter::endObject()
{
    close('}');
}

void JsonWriter::beginArray()
{
    open('[');
}

void JsonWriter::endArray()
{
    close(']');
}

void JsonWriter::fieldName(std::string_view plainName)
{
    char *to = startValue(qsizetype(plainName.size()) + 3);
    *to++ = '"';
    std::memcpy(to, plainName.data(), plainName.size());
    to += plainName.size();
    *to++ = '"';
    *to++ = ':';
    m_at = to;
    m_needsComma = false;
}

void JsonWriter::key(QStringView name)
{
    text(name);
    *room(1) = ':';
    ++m_at;
    m_needsComma = false;
}

void JsonWriter::text(QStringView value)
{
    char *const to = startValue(1);
    *to = '"';
    m_at = to + 1;
    escaped(value);
    *room(1) = '"';
    ++m_at;
}

void JsonWriter::plainText(std::string_view value)
{
    char *to = startValue(qsizetype(value.size()) + 2);
    *to++ = '"';
    std::memcpy(to, value.data(), value.size());
    to += value.size();
    *to++ = '"';
    m_at = to;
}

void JsonWriter::boolean(bool value)
{
    const std::string_view word = value ? "true" : "false";
    char *const to = startValue(5);
    m_at = to + word.copy(to, word.size());
}

void JsonWriter::integer(qint64 value)
{
    char *const to = startValue(24);
    m_at = std::to_chars(to, to + 24, value).ptr;
}

void JsonWriter::number(double value)
{
    // Readers take digits without an exponent for an integer, and refuse one that 64 bits can't hold.
    static constexpr double integerLimit = 9223372036854775808.0;
    char *const to = startValue(32);
    const double finite = std::isfinite(value) ? value : 0.0;
    const bool needsExponent = std::abs(finite) >= integerLimit;
    const auto end = needsExponent ? std::to_chars(to, to + 32, finite, std::chars_format::scientific)
                                   : std::to_chars(to, to + 32, finite);
    m_at = end.ptr;
}

void JsonWriter::uuid(const QUuid &value)
{
    static constexpr char hex[] = "0123456789ABCDEF";
    char *to = startValue(38);
    const auto putBytes = [&to](quint64 bits, int bytes) {
        for (int shift = bytes * 8 - 4; shift >= 0; shift -= 4)
            *to++ = hex[(bits >> shift) & 0xf];
    };
    *to++ = '"';
    putBytes(value.data1, 4);
    *to++ = '-';
    putBytes(value.data2, 2);
    *to++ = '-';
    putBytes(value.data3, 2);
    *to++ = '-';
    const quint64 rest = qFromBigEndian<quint64>(value.data4);
    putBytes(rest >> 48, 2);
    *to++ = '-';
    putBytes(rest, 6);
    *to++ = '"';
    m_at = to;
}

void JsonWriter::timestamp(Timestamp value)
{
    const auto text = isoTimestamp(value);
    plainText({text.data(), text.size()});
}

QByteArray JsonWriter::take()
{
    m_bytes.truncate(used());
    m_at = m_end = nullptr;
    m_needsComma = false;
    return std::exchange(m_bytes, QByteArray());
}

void JsonWriter::flush()
{
    m_sink(QByteArrayView(m_bytes.constData(), used()));
    m_at = m_bytes.data();
}

void JsonWriter::grow(qsizetype bytes)
{
    if (m_sink && used() > 0) {
        flush();
        if (m_end - m_at >= bytes)
            return;
    }
    const qsizetype size = used();
    m_bytes.resize(std::max(m_bytes.size() * 2, size + bytes));
    m_at = m_bytes.data() + size;
    m_end = m_bytes.data() + m_bytes.size();
}

void JsonWriter::open(char bracket)
{
    char *const to = startValue(1);
    *to = bracket;
    m_at = to + 1;
    m_needsComma = false;
}

void JsonWriter::close(char bracket)
{
    *room(1) = bracket;
    ++m_at;
    m_needsComma = true;
}

void JsonWriter::escaped(QStringView value)
{
    const char16_t *from = value.utf16();
    const char16_t *const end = from + value.size();
    while (from < end) {
        char *to = room(std::min<qsizetype>(pieceLength + 1, end - from) * longestEscape + overwritten);
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
        m_at = to;
    }
}
