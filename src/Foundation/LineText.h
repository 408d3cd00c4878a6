#pragma once

#include <QString>

/// Texts that stand on one line.
namespace LineText
{
/// The text with every line break, wherever it was pasted from, turned into a blank.
inline QString singleLine(QString text)
{
    for (QChar &character : text)
        if (character == u'\n' || character == u'\r' || character == QChar::LineSeparator ||
            character == QChar::ParagraphSeparator)
            character = u' ';
    return text;
}
} // namespace LineText
