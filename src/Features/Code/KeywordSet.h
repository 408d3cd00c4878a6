#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

/// A fixed set of words, made while compiling. A lookup compares only words of the same length and makes no
/// copy of the text.
class KeywordSet
{
public:
    static constexpr std::size_t capacity = 80;
    static constexpr std::size_t longest = 15;

    constexpr KeywordSet() = default;

    /// @param list the words, separated by single blanks
    constexpr explicit(false) KeywordSet(const char16_t *list)
    {
        std::u16string_view words(list);
        while (!words.empty()) {
            const std::size_t end = std::min(words.find(u' '), words.size());
            m_words.at(m_count++) = words.substr(0, end);
            words.remove_prefix(std::min(end + 1, words.size()));
        }
        std::sort(m_words.begin(), m_words.begin() + m_count,
                  [](std::u16string_view a, std::u16string_view b) {
                      return a.size() != b.size() ? a.size() < b.size() : a < b;
                  });
        for (const std::u16string_view word : this->words())
            ++m_starts.at(word.size() + 1);
        for (std::size_t length = 1; length < m_starts.size(); ++length)
            m_starts[length] = std::uint8_t(m_starts[length] + m_starts[length - 1]);
    }

    constexpr bool contains(std::u16string_view word) const
    {
        if (word.size() > longest)
            return false;
        for (std::size_t i = m_starts[word.size()]; i < m_starts[word.size() + 1]; ++i)
            if (m_words[i].front() == word.front() && m_words[i] == word)
                return true;
        return false;
    }

    /// All words, by length, then by text.
    constexpr std::span<const std::u16string_view> words() const { return {m_words.data(), m_count}; }

private:
    std::array<std::u16string_view, capacity> m_words = {};
    std::size_t m_count = 0;
    /// Words of length n lie from m_starts[n] to before m_starts[n + 1].
    std::array<std::uint8_t, longest + 2> m_starts = {};
};
