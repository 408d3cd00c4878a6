#pragma once

#include "Models/Book.h"

#include <QObject>

/// A book of the library in the rail.
struct BookRow {
    Q_GADGET
    Q_PROPERTY(QUuid bookID MEMBER id FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString author MEMBER author FINAL)

public:
    QUuid id;
    QString title = {};
    QString author = {};

    bool operator==(const BookRow &) const = default;

    static BookRow of(const Book &book);
};
