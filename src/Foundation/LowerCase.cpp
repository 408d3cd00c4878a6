#include "Foundation/LowerCase.h"

#include <algorithm>

namespace
{
constexpr qsizetype blockSize = 32;

constexpr char16_t lowerAscii(char16_t unit)
{
    return char16_t(unit - u'A') < 26 ? char16_t(unit | 0x20) : unit;
}

bool isAsciiBlock(const char16_t *units)
{
    char16_t all = 0;
    for (qsizetype i = 0; i < blockSize; ++i)
        all |= units[i];
    return all < 0x80;
}

/// Lower-cases the character at the start, whose lower case must be as long as itself.
/// @returns its length, or 0 if this character has to be left to the toolkit
qsizetype lowerCharacter(const char16_t *units, qsizetype size, char16_t *lower)
{
    static constexpr char16_t dottedCapitalI = 0x130; // two characters in lower case
    const char16_t unit = units[0];
    if (unit < 0x80) {
        *lower = lowerAscii(unit);
        return 1;
    }
    if (!QChar::isHighSurrogate(unit) || size < 2 || !QChar::isLowSurrogate(units[1])) {
        *lower = char16_t(QChar::toLower(char32_t(unit)));
        return unit == dottedCapitalI ? 0 : 1;
    }
    const char32_t character = QChar::toLower(QChar::surrogateToUcs4(unit, units[1]));
    lower[0] = QChar::highSurrogate(character);
    lower[1] = QChar::lowSurrogate(character);
    return 2;
}
} // namespace

void LowerCase::append(QString &to, QStringView text)
{
    const qsizetype start = to.size();
    const qsizetype size = text.size();
    to.resize(start + size);
    const char16_t *const units = text.utf16();
    char16_t *const lower = reinterpret_cast<char16_t *>(to.data()) + start;
    for (qsizetype i = 0; i < size;) {
        if (size - i >= blockSize && isAsciiBlock(units + i)) {
            std::transform(units + i, units + i + blockSize, lower + i, lowerAscii);
            i += blockSize;
            continue;
        }
        for (const qsizetype end = std::min(i + blockSize, size); i < end;) {
            const qsizetype length = lowerCharacter(units + i, size - i, lower + i);
            if (length == 0) {
                to.resize(start + i);
                to += text.sliced(i).toString().toLower();
                return;
            }
            i += length;
        }
    }
}
