#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

#include <expected>

/// Writes archives in which every entry is stored as it is. It reads none.
namespace OVZip
{
struct Entry {
    QString name;
    QByteArray data;
};

/// The time and date fields of an entry.
struct DosDateTime {
    quint16 time = 0;
    quint16 date = 0;

    bool operator==(const DosDateTime &) const = default;
};

/// The archive with the entries in this order, all stamped with this moment. What the format has no room for
/// (65,535 entries, names of 65,535 bytes, sizes and offsets of 4 GiB) is refused with a sentence.
/// @param localMoment a moment in the time zone that the fields are to show
std::expected<QByteArray, QString> pack(const QList<Entry> &entries, const QDateTime &localMoment);

quint32 crc32(const QByteArray &data);
/// Years before 1980 count as 1980; seconds are halved.
DosDateTime dosDateTime(const QDateTime &localMoment);
} // namespace OVZip
