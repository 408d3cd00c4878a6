#pragma once

#include <QString>

/// Texts that stand on one line.
namespace LineText
{
/// Length in UTF-16 code units of what titles, tooltips and the window's title show of a text at most. Far
/// more than fits, and little enough to lay out and to hand to the desktop at once.
inline constexpr qsizetype maxShownLength = 500;

/// The text with every line break, wherever it was pasted from, turned into a blank.
inline QString singleLine(QString text)
{
    for (QChar &character : text)
        if (character == u'\n' || character == u'\r' || character == QChar::LineSeparator ||
            character == QChar::ParagraphSeparator)
            character = u' ';
    return text;
}

/// What is shown of a text of the user's on one line: control characters become blanks, a text that is too
/// long ends in "…", and of the marks that a text may stack on one letter without end a few remain.
QString shown(QStringView text, qsizetype maxLength = maxShownLength);

/// The same for a title, with "Untitled" in place of one that is blank.
QString shownTitle(QStringView title);

/// The text with a line feed for every line break, wherever it was pasted from.
inline QString withLineFeeds(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (QChar &character : text)
        if (character == u'\r' || character == QChar::LineSeparator || character == QChar::ParagraphSeparator)
            character = u'\n';
    return text;
}
} // namespace LineText
