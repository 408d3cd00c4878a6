#pragma once

#include <QStringView>

#include <array>
#include <memory>
#include <vector>

/// A small set of the runs of one to three characters that occur in a text.
class TextSignature
{
public:
    static constexpr std::size_t bitCount = 4096;

    /// Adds the runs of this text. Case counts: fold both the text and the query first, the same way.
    void add(QStringView folded);
    void clear() { m_bits = {}; }

private:
    friend class TextSignatures;
    std::array<quint64, bitCount / 64> m_bits{};
};

/// What signatures are asked for: the runs of one to three characters of a query, those first that the
/// fewest texts hold.
class SignatureQuery
{
public:
    explicit SignatureQuery(QStringView folded);

private:
    friend class TextSignatures;
    std::vector<quint32> m_bits;
};

/// The signatures of many texts, each with a number. They tell for certain that a text does not hold a query,
/// and so spare looking into most texts at all; where they cannot tell, the text itself has to be searched.
///
/// One bit of 64 signatures lies in one word, so that a query costs a few words for 64 texts.
class TextSignatures
{
public:
    static constexpr std::size_t blockSize = 64;

    /// @param bitCount kept of each signature, a power of two: the longer the texts, the more
    explicit TextSignatures(std::size_t bitCount) : m_bitCount(bitCount) {}

    /// A number that was never set, or has been cleared.
    void set(std::size_t number, const TextSignature &signature);
    void clear(std::size_t number);

    std::size_t blockCount() const { return m_blocks.size(); }
    /// One bit for each text of a block, the lowest for the first: clear if the text cannot hold the query.
    quint64 mayHold(std::size_t block, const SignatureQuery &query) const;

private:
    std::size_t m_bitCount;
    std::vector<std::unique_ptr<quint64[]>> m_blocks;
};
