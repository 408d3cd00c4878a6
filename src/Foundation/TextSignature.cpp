#include "Foundation/TextSignature.h"

#include <algorithm>
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

SignatureQuery::SignatureQuery(QStringView folded)
{
    std::array<std::vector<quint32>, longestRun> bits;
    forEachRun(folded, [&](std::size_t run, quint32 bit) { bits[run].push_back(bit); });
    // What was typed last is what the texts found so far do not have in common.
    for (const quint32 bit : bits | std::views::join | std::views::reverse) {
        const auto word = std::ranges::find(m_words, bit / 64, &Word::index);
        if (word == m_words.end())
            m_words.push_back({bit / 64, maskOf(bit)});
        else
            word->bits |= maskOf(bit);
    }
}

void TextSignature::add(QStringView folded)
{
    forEachRun(folded, [this](std::size_t, quint32 bit) { m_bits[bit / 64] |= maskOf(bit); });
}
