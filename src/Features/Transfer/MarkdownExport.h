#pragma once

#include "Models/Folder.h"
#include "Models/Page.h"

#include <expected>
#include <functional>

/// Pages as Markdown files.
namespace MarkdownExport
{
/// A file to write, within the folder of the export.
struct File {
    /// "Travel/Norway.md"
    QString path;
    QString text;
};

/// All pages, each folder a folder, and the notes in one of their own. The names fit every file system.
QList<File> files(const QList<Folder> &folders, const QList<Page> &pages);

/// The page with its title as the first heading.
QString text(const Page &page);

/// Writes the files into a new folder, so that nothing is ever overwritten. What was written is taken away
/// again if it fails or is to end.
/// @param name of the new folder; it gets a number if there is one of that name
/// @param goOn told how much is done, from 0 to 1; false ends it
/// @returns the path of the folder, or the sentence for the user, which is empty if it was to end
std::expected<QString, QString> write(const QList<File> &files, const QString &parentFolder,
                                      const QString &name, const std::function<bool(double)> &goOn);
} // namespace MarkdownExport
