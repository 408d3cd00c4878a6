#pragma once

#include "Models/DatabaseTable.h"

#include <QMap>

/// One row of one database; the rows of all databases stand in one list.
struct DBRow {
    QUuid id;
    QUuid tableID;
    /// Values by the property's id in its upper-case text. An absent value and an empty one are the same.
    QMap<QString, QString> values;
    double sortOrder = 0;
    Timestamp createdDate;
    Timestamp updatedDate;

    bool operator==(const DBRow &) const = default;

    /// The stored value of this property, or the empty text.
    QString value(const DBProperty &property) const;
    /// The key of a property's value.
    static QString valueKey(const QUuid &propertyID);

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &DBRow::id},
                          Field{"tableID", &DBRow::tableID},
                          Field{"values", &DBRow::values},
                          Field{"sortOrder", &DBRow::sortOrder},
                          Field{"createdDate", &DBRow::createdDate},
                          Field{"updatedDate", &DBRow::updatedDate}};
    }
};
