#pragma once

#include <QString>

/// The backslashes and entities that keep Markdown from taking a text for something else.
namespace MarkdownEscapes
{
/// What stands before the text on its line, in which more can be mistaken.
enum class Context { paragraph, heading, listItem, quote };

/// The text as one line that is read as just this text. Line breaks in it become entities.
QString escaped(QStringView text, Context context);
/// The text that a line stands for; the opposite of `escaped`.
QString unescaped(QStringView line);
/// Whether a backslash at the end of the line breaks it.
bool endsInBreak(QStringView line);
} // namespace MarkdownEscapes
