#pragma once

#include "Models/Page.h"

/// What pages become as text.
namespace PageText
{
/// The page as Markdown, ending in one line feed. Text is not escaped.
QString markdownExport(const Page &page);
/// Title and block texts, one a line, without empty ones.
QString plainTextExport(const Page &page);
struct Counts {
    qsizetype words = 0;
    /// Unicode characters, blanks included.
    qsizetype characters = 0;

    bool operator==(const Counts &) const = default;
};
Counts countsOf(QStringView text);
Counts countsOf(const QList<Block> &blocks);
/// Words in all blocks, code included; the title doesn't count.
qsizetype wordCount(const Page &page);
/// "2 min read", at 200 words a minute.
QString readingTimeLabel(qsizetype words);
inline QString readingTimeLabel(const Page &page)
{
    return readingTimeLabel(wordCount(page));
}
} // namespace PageText
