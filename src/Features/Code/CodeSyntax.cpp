#include "Features/Code/CodeSyntax.h"

#include "Features/Code/CodeLanguages.h"

namespace
{
using CodeSyntax::Open;
using Construct = Open::Construct;

constexpr std::u16string_view commentStart = u"/*", commentEnd = u"*/";

// What a unit can be part of.
enum UnitClass : quint8 { wordStart = 1, upperCase = 2, digit = 4, inNumber = 8 };
constexpr quint8 inWord = wordStart | digit;

constexpr auto unitClasses = [] {
    std::array<quint8, 128> classes{};
    for (char16_t unit = u'a'; unit <= u'z'; ++unit) {
        classes[unit] = wordStart;
        classes[unit - u'a' + u'A'] = wordStart | upperCase;
    }
    classes[u'_'] = classes[u'$'] = wordStart;
    for (char16_t unit = u'0'; unit <= u'9'; ++unit)
        classes[unit] = digit;
    for (const char16_t unit : std::u16string_view(u"0123456789._abcdefABCDEFx"))
        classes[unit] |= inNumber;
    return classes;
}();

constexpr quint8 classOf(char16_t unit)
{
    return unit < unitClasses.size() ? unitClasses[unit] : 0;
}

constexpr bool endsLine(char16_t unit)
{
    return unit == u'\n' || unit == u'\r';
}

class Scanner
{
public:
    Scanner(QStringView text, CodeLanguage language, QList<CodeToken> &found)
        : m_text(text.utf16(), std::size_t(text.size())),
          m_traits(CodeLanguages::traits(language)),
          m_found(found)
    {
        for (const char16_t unit : m_traits.quotes)
            m_opensConstruct[unit] = true;
        if (!m_traits.lineComment.empty())
            m_opensConstruct[m_traits.lineComment.front()] = true;
        if (m_traits.hasBlockComments)
            m_opensConstruct[commentStart.front()] = true;
    }

    /// Scans the text, which begins within `open`, and tells what is open at its end.
    Open scan(Open open)
    {
        if (open.construct != Construct::none)
            scanConstruct(open, 0);
        while (m_at < m_text.size()) {
            const char16_t unit = m_text[m_at];
            const quint8 unitClass = classOf(unit);
            if (unitClass & wordStart)
                scanWord();
            else if (unitClass & digit)
                scanNumber();
            else if (unit >= m_opensConstruct.size() || !m_opensConstruct[unit] || !startConstruct(unit))
                ++m_at;
        }
        return m_open;
    }
    /// Whether the last unit was a backslash that escapes what follows the text.
    bool escapesNext() const { return m_escapesNext; }

private:
    bool startsWith(std::u16string_view what) const { return m_text.substr(m_at).starts_with(what); }

    bool startConstruct(char16_t unit)
    {
        if (!m_traits.lineComment.empty() && startsWith(m_traits.lineComment)) {
            const std::size_t start = m_at;
            while (m_at < m_text.size() && !endsLine(m_text[m_at]))
                ++m_at;
            add(start, CodeTokenKind::comment);
            return true;
        }
        if (m_traits.hasBlockComments && startsWith(commentStart)) {
            scanConstruct({Construct::blockComment}, commentStart.size());
            return true;
        }
        if (m_traits.tripleQuotes.contains(unit) && startsWith(std::u16string(3, unit))) {
            scanConstruct({Construct::tripleQuotes, unit}, 3);
            return true;
        }
        if (m_traits.quotes.contains(unit)) {
            scanConstruct({Construct::quote, unit}, 1);
            return true;
        }
        return false;
    }

    /// From the current place, behind the opening mark of this length, to the end of the construct.
    void scanConstruct(Open open, std::size_t opening)
    {
        const std::size_t start = m_at;
        const bool isComment = open.construct == Construct::blockComment;
        m_at += opening;
        if (open.construct == Construct::quote) {
            scanQuoted(open);
        } else {
            const std::u16string closing =
                isComment ? std::u16string(commentEnd) : std::u16string(3, open.quote);
            const std::size_t end = m_text.find(closing, m_at);
            if (end == m_text.npos)
                m_open = open;
            m_at = end == m_text.npos ? m_text.size() : end + closing.size();
        }
        add(start, isComment ? CodeTokenKind::comment : CodeTokenKind::string);
    }

    void scanQuoted(Open open)
    {
        for (; m_at < m_text.size(); ++m_at) {
            const char16_t unit = m_text[m_at];
            if (unit == u'\\') {
                m_escapesNext = ++m_at == m_text.size();
            } else if (unit == open.quote) {
                ++m_at;
                return;
            } else if (endsLine(unit) && open.quote != u'`') {
                return;
            }
        }
        m_at = m_text.size();
        m_open = open;
    }

    void scanNumber()
    {
        const std::size_t start = m_at;
        while (m_at < m_text.size() && classOf(m_text[m_at]) & inNumber)
            ++m_at;
        add(start, CodeTokenKind::number);
    }

    void scanWord()
    {
        const std::size_t start = m_at;
        while (m_at < m_text.size() && classOf(m_text[m_at]) & inWord)
            ++m_at;
        if (m_traits.keywords.contains(m_text.substr(start, m_at - start)))
            add(start, CodeTokenKind::keyword);
        else if (classOf(m_text[start]) & upperCase)
            add(start, CodeTokenKind::typeName);
    }

    /// A token from `start` to here.
    void add(std::size_t start, CodeTokenKind kind)
    {
        if (m_at > start)
            m_found.append({qsizetype(start), qsizetype(m_at - start), kind});
    }

    std::u16string_view m_text;
    const CodeLanguageTraits &m_traits;
    QList<CodeToken> &m_found;
    std::array<bool, 128> m_opensConstruct{};
    std::size_t m_at = 0;
    Open m_open;
    bool m_escapesNext = false;
};
} // namespace

QList<CodeToken> CodeSyntax::tokens(QStringView text, CodeLanguage language)
{
    QList<CodeToken> found;
    if (language != CodeLanguage::plain)
        Scanner(text, language, found).scan({});
    return found;
}

CodeSyntax::Open CodeSyntax::scanLine(QStringView line, bool endsInLineFeed, Open open, CodeLanguage language,
                                      QList<CodeToken> &found)
{
    if (language == CodeLanguage::plain)
        return {};
    Scanner scanner(line, language, found);
    const Open left = scanner.scan(open);
    // A line feed ends a string, unless it is escaped or the string is one that runs across lines.
    const bool isEnded = left.construct == Construct::quote && left.quote != u'`' && !scanner.escapesNext();
    return isEnded && endsInLineFeed ? Open{} : left;
}

bool CodeSyntax::isQuote(char16_t unit, CodeLanguage language)
{
    return CodeLanguages::traits(language).quotes.contains(unit);
}
