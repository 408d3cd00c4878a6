#pragma once

#include <QStringView>

#include <array>
#include <vector>

/// What signatures are asked for: the runs of one to three characters of a query, those first that the
/// fewest texts hold.
class SignatureQuery
{
public:
    explicit SignatureQuery(QStringView folded);

private:
    friend class TextSignature;
    struct Word {
        std::size_t index;
        quint64 bits;
    };
    std::vector<Word> m_words;
};

/// A small set of the runs of one to three characters that occur in a text. It tells for certain that a text
/// does not hold a query, and so spares looking into most texts at all; where it cannot tell, the text itself
/// has to be searched.
class TextSignature
{
public:
    /// Adds the runs of this text. Case counts: fold both the text and the query first, the same way.
    void add(QStringView folded);

    /// False only if no text added so far can hold the query.
    bool mayHold(const SignatureQuery &query) const
    {
        for (const SignatureQuery::Word &word : query.m_words)
            if ((word.bits & ~m_bits[word.index]) != 0)
                return false;
        return true;
    }

    /// Has the machine fetch from memory what `mayHold` looks at first.
    void prefetch(const SignatureQuery &query) const
    {
        // Most texts fail one of the first.
        for (std::size_t i = 0; i < query.m_words.size() && i < 3; ++i)
            __builtin_prefetch(&m_bits[query.m_words[i].index]);
    }

private:
    static constexpr std::size_t bitCount = 4096;

    std::array<quint64, bitCount / 64> m_bits{};
};
