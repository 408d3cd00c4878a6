#pragma once

#include "Models/AppSettings.h"
#include "Store/RecordKinds.h"

/// The records of one kind in a `Snapshot`.
template <typename Record>
struct SnapshotList {
    QList<Record> records;

    bool operator==(const SnapshotList &) const = default;
};

template <typename Kinds>
struct SnapshotLists;
template <typename... Kind>
struct SnapshotLists<std::tuple<Kind...>> : SnapshotList<typename Kind::Record>... {
    bool operator==(const SnapshotLists &) const = default;
};

/// The document on disk: the whole workspace. It is tolerant key by key, so a list with a bad record reads as
/// empty while all others load. Copying one is cheap, since lists share their contents.
struct Snapshot : SnapshotLists<RecordKinds::All> {
    AppSettings settings;

    template <typename Record>
    QList<Record> &list()
    {
        return SnapshotList<Record>::records;
    }
    template <typename Record>
    const QList<Record> &list() const
    {
        return SnapshotList<Record>::records;
    }

    bool operator==(const Snapshot &) const = default;

    static constexpr bool isTolerant = true;
    static constexpr auto fields()
    {
        return std::apply(
            []<typename... Kind>(const Kind &...kind) {
                return std::tuple{Field{"settings", &Snapshot::settings}, listField(kind)...};
            },
            RecordKinds::all);
    }

private:
    template <typename Record>
    static constexpr Field<Snapshot, QList<Record>> listField(const RecordKind<Record> &kind)
    {
        return {kind.key, &SnapshotList<Record>::records};
    }
};
