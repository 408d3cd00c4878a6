#include "Support/Markdown/MarkdownEscapes.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace
{
using MarkdownEscapes::Context;

bool isPunctuation(QChar character)
{
    const char16_t code = character.unicode();
    return code > 0x20 && code < 0x7f && !character.isLetterOrNumber();
}

bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t';
}

qsizetype runLength(QStringView text, qsizetype begin)
{
    qsizetype end = begin;
    while (end < text.size() && text[end] == text[begin])
        ++end;
    return end - begin;
}

/// Where the code that begins here with backticks ends; -1 if they begin none.
qsizetype endOfCode(QStringView text, qsizetype begin)
{
    const qsizetype ticks = runLength(text, begin);
    for (qsizetype at = text.indexOf(u'`', begin + ticks); at >= 0; at = text.indexOf(u'`', at)) {
        const qsizetype length = runLength(text, at);
        at += length;
        if (length == ticks)
            return at;
    }
    return -1;
}

struct Entity {
    QString text;
    qsizetype length = 0;
};

QString namedCharacter(QStringView name)
{
    static const QHash<QStringView, char16_t> characters{
        {u"amp", u'&'},     {u"lt", u'<'},    {u"gt", u'>'},    {u"quot", u'"'},  {u"apos", u'\''},
        {u"nbsp", u'\xa0'}, {u"copy", u'©'},  {u"reg", u'®'},   {u"trade", u'™'}, {u"hellip", u'…'},
        {u"mdash", u'—'},   {u"ndash", u'–'}, {u"lsquo", u'‘'}, {u"rsquo", u'’'}, {u"ldquo", u'“'},
        {u"rdquo", u'”'},   {u"laquo", u'«'}, {u"raquo", u'»'}, {u"bull", u'•'},  {u"middot", u'·'},
        {u"times", u'×'},   {u"deg", u'°'},   {u"rarr", u'→'},  {u"larr", u'←'},  {u"euro", u'€'}};
    const auto found = characters.constFind(name);
    return found == characters.cend() ? QString() : QString(QChar(*found));
}

/// The character that an entity at this place stands for; nothing if there is no such entity.
std::optional<Entity> entityAt(QStringView text, qsizetype begin)
{
    static constexpr qsizetype longest = 12;
    const qsizetype end = text.mid(begin, longest).indexOf(u';');
    if (end < 2)
        return std::nullopt;
    const QStringView name = text.sliced(begin + 1, end - 1);
    if (name[0] != u'#') {
        const QString character = namedCharacter(name);
        return character.isEmpty() ? std::nullopt : std::optional(Entity{character, end + 1});
    }
    const bool isHex = name.size() > 1 && name[1].toLower() == u'x';
    bool isNumber = false;
    const uint code = name.sliced(isHex ? 2 : 1).toUInt(&isNumber, isHex ? 16 : 10);
    const char32_t character = code;
    if (!isNumber || code == 0 || code > QChar::LastValidCodePoint || QChar::isSurrogate(code))
        return std::nullopt;
    return Entity{QString::fromUcs4(&character, 1), end + 1};
}

/// Where a backslash keeps the beginning of a line from being taken for a block; -1 for nowhere.
qsizetype mistakenStart(QStringView line, Context context)
{
    // A list item, a heading, a quote, a fence, a rule or the line below a heading, and HTML.
    static const QRegularExpression start(QStringLiteral(
        "^(?:[-+*](?=[ \\t]|$)|\\d{1,9}(?=[.)](?:[ \\t]|$))|#{1,6}(?=[ \\t]|$)|>|```|~~~"
        "|(?:[-_*][ \\t]*){3,}$|=+[ \\t]*$|-+[ \\t]*$|<(?:[A-Za-z][A-Za-z0-9-]*(?=[ \\t/>]|$)|[/!?]))"));
    static const QRegularExpression check(QStringLiteral("^\\[[ xX]\\](?:[ \\t]|$)"));
    static const QRegularExpression alert(QStringLiteral("^\\[![A-Za-z]+\\]"));
    if (context == Context::listItem && check.match(line).hasMatch())
        return 0;
    if (context == Context::quote && alert.match(line).hasMatch())
        return 0;
    const QRegularExpressionMatch match = start.match(line);
    if (!match.hasMatch())
        return -1;
    return line[0].isDigit() ? match.capturedEnd() : 0;
}

/// Where the signs that would close a heading begin; -1 if there are none.
qsizetype closingSigns(QStringView line)
{
    qsizetype begin = line.size();
    while (begin > 0 && line[begin - 1] == u'#')
        --begin;
    const bool closes = begin < line.size() && (begin == 0 || isBlank(line[begin - 1]));
    return closes ? begin : -1;
}

QString entity(QChar character)
{
    return QStringLiteral("&#%1;").arg(character.unicode());
}

bool isLineBreak(QChar character)
{
    return character == u'\n' || character == u'\r';
}

/// Writes the backticks that stand here, with the code that they begin. Returns where the text goes on.
qsizetype appendTicks(QString &result, QStringView line, qsizetype begin)
{
    const qsizetype ticks = runLength(line, begin);
    const qsizetype codeEnd = endOfCode(line, begin);
    const QStringView code = line.sliced(begin, std::max(codeEnd - begin, ticks));
    // Nothing can be escaped in code, so that what has to be must not become code.
    if (std::ranges::any_of(code, isLineBreak)) {
        for (qsizetype i = 0; i < ticks; ++i)
            result += QStringLiteral("\\`");
        return begin + ticks;
    }
    result += code;
    return begin + code.size();
}

/// Whether a character can only be written as an entity.
bool needsEntity(QStringView line, qsizetype at)
{
    const bool isAtEdge = at == 0 || at == line.size() - 1;
    return isLineBreak(line[at]) ||
           (isAtEdge && (isBlank(line[at]) || line[at] == u'\f' || line[at] == u'\v'));
}
} // namespace

QString MarkdownEscapes::escaped(QStringView line, Context context)
{
    if (line == u"&nbsp;")
        return QStringLiteral("\\&nbsp;");
    const qsizetype start = mistakenStart(line, context);
    const qsizetype closing = context == Context::heading ? closingSigns(line) : -1;
    QString result;
    result.reserve(line.size() + 2);
    qsizetype i = 0;
    while (i < line.size()) {
        if (i == start || i == closing) {
            result += u'\\';
            result += line[i++];
            continue;
        }
        if (line[i] == u'`') {
            i = appendTicks(result, line, i);
            continue;
        }
        const bool isLast = i + 1 == line.size();
        if (needsEntity(line, i))
            result += entity(line[i]);
        else if (line[i] == u'\\' && (isLast || isPunctuation(line[i + 1]) || needsEntity(line, i + 1)))
            result += QStringLiteral("\\\\");
        else if (line[i] == u'&' && entityAt(line, i))
            result += QStringLiteral("\\&");
        else
            result += line[i];
        ++i;
    }
    return result;
}

QString MarkdownEscapes::unescaped(QStringView line)
{
    QString result;
    result.reserve(line.size());
    qsizetype i = 0;
    while (i < line.size()) {
        if (line[i] == u'\\' && i + 1 < line.size() && isPunctuation(line[i + 1])) {
            result += line[i + 1];
            i += 2;
        } else if (line[i] == u'`') {
            const qsizetype codeEnd = endOfCode(line, i);
            const qsizetype end = codeEnd >= 0 ? codeEnd : i + runLength(line, i);
            result += line.sliced(i, end - i);
            i = end;
        } else if (const auto entity = line[i] == u'&' ? entityAt(line, i) : std::nullopt) {
            result += entity->text;
            i += entity->length;
        } else {
            result += line[i++];
        }
    }
    return result;
}

bool MarkdownEscapes::endsInBreak(QStringView line)
{
    qsizetype begin = line.size();
    while (begin > 0 && line[begin - 1] == u'\\')
        --begin;
    return (line.size() - begin) % 2 == 1;
}
