#include "Foundation/TextSignature.h"

#include <algorithm>
#include <bit>
#include <ranges>

namespace
{
constexpr std::size_t longestRun = 3;

quint64 maskOf(quint32 bit)
{
    return quint64(1) << (bit % 64);
}

/// Hands on the bit of each run, with the run's length less one.
template <typename Take>
void forEachRun(QStringView folded, Take take)
{
    const auto bitOf = [](quint32 run) { return (run ^ run >> 15) >> 20; };
    // Each run is mixed with its length, so that "a", "aa" and "aaa" are different.
    quint32 before = 0, first = 0;
    const qsizetype size = folded.size();
    for (qsizetype i = 0; i < size; ++i) {
        const quint32 unit = folded[i].unicode();
        take(0, bitOf(unit * 0x9e3779b1U + 1));
        if (i > 0)
            take(1, bitOf((before * 0x85ebca6bU ^ unit) * 0x9e3779b1U + 2));
        if (i > 1)
            take(2, bitOf(((first * 0xc2b2ae35U ^ before) * 0x85ebca6bU ^ unit) * 0x9e3779b1U + 3));
        first = before;
        before = unit;
    }
}
} // namespace

void TextSignature::add(QStringView folded)
{
    forEachRun(folded, [this](std::size_t, quint32 bit) { m_bits[bit / 64] |= maskOf(bit); });
}

SignatureQuery::SignatureQuery(QStringView folded)
{
    std::array<std::vector<quint32>, longestRun> bits;
    forEachRun(folded, [&](std::size_t run, quint32 bit) { bits[run].push_back(bit); });
    // What was typed last is what the texts found so far do not have in common.
    for (const quint32 bit : bits | std::views::join | std::views::reverse)
        if (std::ranges::find(m_bits, bit) == m_bits.end())
            m_bits.push_back(bit);
}

void TextSignatures::set(std::size_t number, const TextSignature &signature)
{
    const std::size_t block = number / blockSize;
    while (m_blocks.size() <= block)
        m_blocks.push_back(std::make_unique<quint64[]>(m_bitCount));
    quint64 *const words = m_blocks[block].get();
    const quint64 mask = maskOf(quint32(number));
    for (std::size_t i = 0; i < signature.m_bits.size(); ++i)
        for (quint64 rest = signature.m_bits[i]; rest != 0; rest &= rest - 1)
            words[(i * 64 + std::size_t(std::countr_zero(rest))) & (m_bitCount - 1)] |= mask;
}

void TextSignatures::clear(std::size_t number)
{
    quint64 *const words = m_blocks[number / blockSize].get();
    const quint64 mask = maskOf(quint32(number));
    for (std::size_t i = 0; i < m_bitCount; ++i)
        words[i] &= ~mask;
}

quint64 TextSignatures::mayHold(std::size_t block, const SignatureQuery &query) const
{
    const quint64 *const words = m_blocks[block].get();
    quint64 texts = ~quint64(0);
    for (const quint32 bit : query.m_bits) {
        texts &= words[bit & (m_bitCount - 1)];
        if (texts == 0)
            break;
    }
    return texts;
}
