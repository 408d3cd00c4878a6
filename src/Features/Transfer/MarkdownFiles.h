#pragma once

#include "Models/Page.h"
#include "Support/Markdown/BlockMarkdown.h"

#include <QStringList>

#include <expected>
#include <functional>

/// Pages out of Markdown files.
namespace MarkdownFiles
{
/// A file to read, and the folder that its page belongs in.
struct Source {
    QString path;
    /// Of a folder within a folder both names: "Travel / Norway". Empty for a loose page.
    QString folder;

    bool operator==(const Source &) const = default;
};

struct Listing {
    QList<Source> sources;
    /// Files that are no Markdown, and such as can't be looked into.
    int skipped = 0;
    /// Whether there are more than `mostFiles`.
    bool isCut = false;
};

inline constexpr qsizetype mostFiles = 20'000;
/// A longer file is no text that anybody wrote.
inline constexpr qint64 mostBytes = 16 * 1024 * 1024;

/// Whether the name is that of a Markdown file.
bool isMarkdown(const QString &path);

/// The Markdown files among these files, and in these folders and all within them, by name. Hidden ones and
/// links to folders are left out.
/// @param goOn asked now and then; false ends it
Listing list(const QStringList &places, const std::function<bool()> &goOn);

struct Document {
    /// By its front matter, its first heading or its name.
    QString title;
    /// Never empty.
    QList<Block> blocks;
    BlockMarkdown::Losses losses;
    /// Whether there was more in the front matter than a title.
    bool lostFrontMatter = false;
    /// Whether it was not UTF-8.
    bool wasGuessed = false;
};

/// @param name of the file, without its ending
Document parse(const QByteArray &bytes, const QString &name, const std::function<QUuid()> &makeId);
/// Gives the sentence for the user if the file can't be read.
std::expected<Document, QString> read(const QString &path, const std::function<QUuid()> &makeId);
} // namespace MarkdownFiles
