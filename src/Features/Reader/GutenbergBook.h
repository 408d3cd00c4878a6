#pragma once

#include "Foundation/FieldList.h"
#include "Models/Book.h"

#include <QList>
#include <QMap>
#include <QStringList>
#include <QUrl>

#include <optional>

/// A book as the catalogue describes it.
struct GutenbergBook {
    struct Author {
        QString name;

        bool operator==(const Author &) const = default;

        static constexpr auto fields() { return std::tuple{Field{"name", &Author::name}}; }
    };

    /// The catalogue's number.
    qint64 id = 0;
    QString title;
    QList<Author> authors;
    QStringList subjects;
    /// Language codes.
    QStringList languages;
    /// Addresses of the book's files by MIME type.
    QMap<QString, QString> formats;

    bool operator==(const GutenbergBook &) const = default;

    /// The authors in one line.
    QString authorLine() const;
    /// Where the book lies as plain text, over a secure connection; nothing if it exists in other forms only.
    std::optional<QUrl> plainTextURL() const;
    /// A fresh record of the book, not begun yet.
    Book makeBook(const QUuid &bookID, Timestamp now) const;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &GutenbergBook::id},
                          Field{"title", &GutenbergBook::title},
                          Field{"authors", &GutenbergBook::authors},
                          Field{"subjects", &GutenbergBook::subjects},
                          Field{"languages", &GutenbergBook::languages},
                          Field{"formats", &GutenbergBook::formats}};
    }
};

/// The catalogue's answer to a search: the first page of what it found.
struct GutendexResponse {
    /// How many books match in all.
    qint64 count = 0;
    QList<GutenbergBook> results;

    static constexpr auto fields()
    {
        return std::tuple{Field{"count", &GutendexResponse::count},
                          Field{"results", &GutendexResponse::results}};
    }
};
