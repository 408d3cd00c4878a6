#pragma once

#include <QString>
#include <QUuid>

#include <expected>

/// The folder with the texts of downloaded books: one UTF-8 file a book, `<UUID>.txt`, with the text alone.
/// The book records are its only index.
class BookLibrary
{
public:
    /// @param folder need not exist yet
    explicit BookLibrary(QString folder) : m_folder(std::move(folder)) {}

    /// The folder, made if it is missing. If that fails, so does the first write.
    QString directory() const;

    /// The text of a book; empty if there is none on disk or it is no UTF-8.
    QString text(const QUuid &id) const;
    /// Writes the text as a whole or not at all; on failure gives the system's reason.
    std::expected<void, QString> write(const QUuid &id, const QString &text) const;
    /// A book without a text on disk is no error.
    void deleteText(const QUuid &id) const;
    /// Removes whatever lies in the folder.
    void deleteAll() const;

private:
    QString filePath(const QUuid &id) const;

    QString m_folder;
};
