#pragma once

#include "Foundation/FieldList.h"
#include "Foundation/Timestamp.h"

#include <QString>
#include <QUuid>

/// One line of a project's history.
struct Activity {
    QUuid id;
    QUuid projectID;
    QString text;
    /// A free word such as "status" or "note".
    QString kind;
    Timestamp date;

    bool operator==(const Activity &) const = default;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &Activity::id}, Field{"projectID", &Activity::projectID},
                          Field{"text", &Activity::text}, Field{"kind", &Activity::kind},
                          Field{"date", &Activity::date}};
    }
};
