#include "Foundation/TextMatches.h"

#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace
{
using TextMatches::Range;

/// A text in lower case that knows which character each of its units comes from.
struct FoldedText {
    QString text;
    QList<Range> origins;

    explicit FoldedText(const QString &original)
    {
        for (qsizetype start = 0; start < original.size();) {
            const bool isPair = original[start].isHighSurrogate() && start + 1 < original.size() &&
                                original[start + 1].isLowSurrogate();
            const Range character{start, isPair ? 2 : 1};
            const QString folded = original.mid(character.start, character.length).toLower();
            text += folded;
            origins.append(QList<Range>(folded.size(), character));
            start += character.length;
        }
    }
};

/// For each place in the text whether the letters on its two sides are written joined, as in Arabic.
QList<bool> joinedPlaces(const QString &text)
{
    QList<bool> joined(text.size() + 1, false);
    bool joinsOn = false;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar::JoiningType type = text[at].joiningType();
        // A mark stands with the letter before it, and so does a sign that makes letters join.
        const bool extends = at > 0 && (text[at].isMark() || text[at] == QChar(0x200D));
        if (type == QChar::Joining_Transparent) {
            joined[at] = joinsOn || extends;
            continue;
        }
        const bool joinsBoth = type == QChar::Joining_Dual || type == QChar::Joining_Causing;
        joined[at] = extends || (joinsOn && (joinsBoth || type == QChar::Joining_Right));
        joinsOn = joinsBoth || type == QChar::Joining_Left;
    }
    return joined;
}

Range wholeCharacters(QTextBoundaryFinder &finder, qsizetype start, qsizetype end)
{
    finder.setPosition(start);
    if (!finder.isAtBoundary())
        start = std::max<qsizetype>(0, finder.toPreviousBoundary());
    finder.setPosition(end);
    if (!finder.isAtBoundary()) {
        const qsizetype next = finder.toNextBoundary();
        end = next < 0 ? finder.string().size() : next;
    }
    return {start, end - start};
}

/// Signs of all kinds of white space as blanks; a blank that follows a blank is one that doesn't merge with
/// it.
QString withFirmBlanks(QString text)
{
    bool followsBlank = true;
    for (QChar &character : text) {
        const bool isBlank = character.isSpace() || character.category() == QChar::Other_Control;
        if (isBlank)
            character = followsBlank ? QChar(QChar::Nbsp) : u' ';
        followsBlank = isBlank;
    }
    return text;
}

QString escaped(QStringView text)
{
    return text.toString().toHtmlEscaped().replace(QChar(QChar::Nbsp), u"&nbsp;"_s);
}
} // namespace

QList<Range> TextMatches::find(const QString &text, const QString &query)
{
    QList<Range> found;
    const QString wanted = query.toLower();
    if (wanted.isEmpty())
        return found;
    const FoldedText folded(text);
    const QList<bool> joined = joinedPlaces(text);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype at = folded.text.indexOf(wanted); at >= 0;
         at = folded.text.indexOf(wanted, at + wanted.size())) {
        const Range last = folded.origins[at + wanted.size() - 1];
        Range next = wholeCharacters(finder, folded.origins[at].start, last.start + last.length);
        for (; joined[next.start]; ++next.length)
            --next.start;
        while (joined[next.start + next.length])
            ++next.length;
        next = wholeCharacters(finder, next.start, next.start + next.length);
        if (!found.isEmpty() && next.start <= found.last().start + found.last().length)
            found.last().length = next.start + next.length - found.last().start;
        else
            found.append(next);
    }
    return found;
}

QString TextMatches::emphasized(const QString &text, const QList<Range> &parts)
{
    const QString line = withFirmBlanks(text);
    QString styled;
    qsizetype shown = 0;
    for (const Range &part : parts) {
        styled += escaped(QStringView(line).mid(shown, part.start - shown)) + u"<b>"_s +
                  escaped(QStringView(line).mid(part.start, part.length)) + u"</b>"_s;
        shown = part.start + part.length;
    }
    return styled + escaped(QStringView(line).mid(shown));
}
