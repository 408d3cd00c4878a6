#pragma once

#include "Foundation/FieldList.h"
#include "Foundation/Timestamp.h"

#include <QStringList>
#include <QUuid>

/// One public-domain book in the reader.
struct Book {
    QUuid id;
    /// Number in the catalogue; the workspace holds at most one book per number.
    qint64 gutenbergID = 0;
    QString title;
    /// Authors joined with ";".
    QString author;
    /// Language code.
    QString language = QStringLiteral("en");
    QStringList subjects;
    QString downloadURL;
    /// Share read, from 0 to 1.
    double progress = 0;
    /// Position to resume at.
    qint64 lastLocation = 0;
    Timestamp createdDate;
    Timestamp updatedDate;

    bool operator==(const Book &) const = default;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &Book::id},
                          Field{"gutenbergID", &Book::gutenbergID},
                          Field{"title", &Book::title},
                          Field{"author", &Book::author},
                          Field{"language", &Book::language},
                          Field{"subjects", &Book::subjects},
                          Field{"downloadURL", &Book::downloadURL},
                          Field{"progress", &Book::progress},
                          Field{"lastLocation", &Book::lastLocation},
                          Field{"createdDate", &Book::createdDate},
                          Field{"updatedDate", &Book::updatedDate}};
    }
};
