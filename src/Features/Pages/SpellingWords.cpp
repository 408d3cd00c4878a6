#include "Features/Pages/SpellingWords.h"

#include "Features/Pages/TextLinks.h"

#include <QChar>

#include <algorithm>

namespace
{
using SpellingWords::Word;

constexpr int maxLength = 64;

char32_t codePointAt(QStringView text, qsizetype at)
{
    return text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate()
               ? QChar::surrogateToUcs4(text[at], text[at + 1])
               : char32_t(text[at].unicode());
}

bool belongsToWord(char32_t sign)
{
    return QChar::isLetterOrNumber(sign) || QChar::isMark(sign) || sign == QChar::SoftHyphen;
}

bool isApostrophe(QChar sign)
{
    return sign == u'\'' || sign == u'’';
}

/// The end of the run of letters that begins here, with apostrophes between letters.
int endOfWord(QStringView text, int begin, int end)
{
    int at = begin;
    while (at < end) {
        const char32_t sign = codePointAt(text, at);
        const bool joins = isApostrophe(text[at]) && at > begin && at + 1 < end && text[at + 1].isLetter();
        if (!belongsToWord(sign) && !joins)
            break;
        at += QChar::requiresSurrogates(sign) ? 2 : 1;
    }
    return at;
}

/// Whether letters of both sizes and digits stand as they do in prose.
bool isProse(QStringView word)
{
    const auto letter = [](QChar sign) { return sign.isLetter() || sign.isSurrogate(); };
    if (std::ranges::count_if(word, letter) < 2 || word.size() > maxLength)
        return false;
    if (std::ranges::any_of(word, [](QChar sign) { return sign.isDigit(); }))
        return false;
    const bool isShouted = std::ranges::none_of(word, [](QChar sign) { return sign.isLower(); }) &&
                           std::ranges::any_of(word, [](QChar sign) { return sign.isUpper(); });
    const bool hasHump = std::ranges::adjacent_find(word, [](QChar sign, QChar next) {
                             return sign.isLower() && next.isUpper();
                         }) != word.end();
    return !isShouted && !hasHump;
}

/// Whether the signs around and between the letters are those of prose.
bool isProseToken(QStringView token)
{
    static constexpr QStringView starts = u"#@/~$\\.";
    static constexpr QStringView inner = u"@\\_=<>|{}$%^~";
    if (starts.contains(token.front()) || token.contains(u"//") || token.contains(u"::") ||
        token.count(u'/') > 1 || (token.startsWith(u'-') && token.size() > 1 && token[1] != u' '))
        return false;
    const auto isLetterAt = [&](qsizetype at) {
        return at >= 0 && at < token.size() && token[at].isLetterOrNumber();
    };
    for (qsizetype i = 0; i < token.size(); ++i) {
        const bool isBetween = isLetterAt(i - 1) && isLetterAt(i + 1);
        if (isBetween && (token[i] == u'.' || inner.contains(token[i])))
            return false;
    }
    return true;
}

/// Where the token ends that begins here; code between backquotes is one.
int endOfToken(QStringView text, int begin)
{
    if (text[begin] == u'`')
        if (const qsizetype close = text.indexOf(u'`', begin + 1); close > 0)
            return int(close) + 1;
    int end = begin + 1;
    while (end < text.size() && !text[end].isSpace() && text[end] != u'`')
        ++end;
    return end;
}
} // namespace

QList<Word> SpellingWords::in(const QString &text)
{
    QList<Word> words;
    const QList<TextLinks::Link> links = TextLinks::in(text);
    auto link = links.begin();
    for (int at = 0; at < text.size();) {
        while (link != links.end() && link->end <= at)
            ++link;
        if (link != links.end() && link->begin <= at) {
            at = int(link->end);
            continue;
        }
        if (text[at].isSpace()) {
            ++at;
            continue;
        }
        int end = endOfToken(text, at);
        if (link != links.end() && link->begin < end)
            end = int(link->begin);
        const QStringView token = QStringView(text).sliced(at, end - at);
        const bool isCode = token.front() == u'`' && token.back() == u'`' && token.size() > 1;
        if (!isCode && isProseToken(token)) {
            while (at < end) {
                const int wordEnd = endOfWord(text, at, end);
                if (wordEnd > at && isProse(QStringView(text).sliced(at, wordEnd - at)))
                    words.append({at, wordEnd});
                at = wordEnd > at ? wordEnd : at + 1;
            }
        }
        at = end;
    }
    return words;
}
