#pragma once

#include <QUuid>

/// What has happened to the records of one kind.
struct RecordChange {
    enum class Kind {
        inserted,
        replaced,
        removed,
        /// The whole list is another one; there is no id.
        reloaded
    };

    Kind kind = Kind::reloaded;
    QUuid id;

    bool operator==(const RecordChange &) const = default;
};
