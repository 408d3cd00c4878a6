#pragma once

#include <QStringView>

#include <array>

/// A small set of the runs of one to three characters that occur in a text. It tells for certain that a text
/// does not hold a query, and so spares looking into most texts at all; where it cannot tell, the text itself
/// has to be searched.
class TextSignature
{
public:
    /// Adds the runs of this text. Case counts: fold both the text and the query first, the same way.
    void add(QStringView folded);

    /// False only if no text added so far can hold the query.
    bool mayHold(const TextSignature &query) const
    {
        for (std::size_t i = 0; i < m_bits.size(); ++i)
            if ((query.m_bits[i] & ~m_bits[i]) != 0)
                return false;
        return true;
    }

private:
    static constexpr std::size_t bitCount = 4096;

    void insert(quint32 run);

    std::array<quint64, bitCount / 64> m_bits{};
};
