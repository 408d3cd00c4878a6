#include "Features/Decks/OVZip.h"

#include <QtEndian>

#include <algorithm>
#include <limits>
#include <zlib.h>

namespace
{
constexpr quint16 versionNeeded = 20;
constexpr quint16 namesAreUtf8 = 0x0800;
constexpr qsizetype mostBytes = std::numeric_limits<quint32>::max();
constexpr qsizetype mostEntries = std::numeric_limits<quint16>::max();

template <typename Number>
void put(QByteArray &bytes, Number value)
{
    const Number little = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char *>(&little), sizeof little);
}

/// The fields that local headers and directory records share, from the version needed to the name's length.
QByteArray sharedFields(const QByteArray &name, const QByteArray &data, OVZip::DosDateTime stamp)
{
    QByteArray fields;
    put<quint16>(fields, versionNeeded);
    put<quint16>(fields, namesAreUtf8);
    put<quint16>(fields, 0);
    put<quint16>(fields, stamp.time);
    put<quint16>(fields, stamp.date);
    put<quint32>(fields, OVZip::crc32(data));
    put<quint32>(fields, quint32(data.size()));
    put<quint32>(fields, quint32(data.size()));
    put<quint16>(fields, quint16(name.size()));
    put<quint16>(fields, 0);
    return fields;
}

void putDirectoryRecord(QByteArray &directory, const QByteArray &fields, const QByteArray &name,
                        quint32 offset)
{
    put<quint32>(directory, 0x02014b50);
    put<quint16>(directory, versionNeeded);
    directory += fields;
    put<quint16>(directory, 0);
    put<quint16>(directory, 0);
    put<quint16>(directory, 0);
    put<quint32>(directory, 0);
    put<quint32>(directory, offset);
    directory += name;
}

std::unexpected<QString> refusal(const QString &what)
{
    return std::unexpected(QStringLiteral("The archive can't hold %1.").arg(what));
}
} // namespace

std::expected<QByteArray, QString> OVZip::pack(const QList<Entry> &entries, const QDateTime &localMoment)
{
    if (entries.size() > mostEntries)
        return refusal(QStringLiteral("more than 65,535 entries"));
    const DosDateTime stamp = dosDateTime(localMoment);
    QByteArray archive, directory;
    for (const Entry &entry : entries) {
        const QByteArray name = entry.name.toUtf8();
        if (name.size() > std::numeric_limits<quint16>::max())
            return refusal(QStringLiteral("a name of more than 65,535 bytes"));
        if (entry.data.size() > mostBytes - archive.size())
            return refusal(QStringLiteral("more than 4 GB"));
        const quint32 offset = quint32(archive.size());
        const QByteArray fields = sharedFields(name, entry.data, stamp);
        put<quint32>(archive, 0x04034b50);
        archive += fields + name + entry.data;
        putDirectoryRecord(directory, fields, name, offset);
    }
    if (archive.size() > mostBytes || directory.size() > mostBytes)
        return refusal(QStringLiteral("more than 4 GB"));

    const quint32 directoryOffset = quint32(archive.size());
    archive += directory;
    put<quint32>(archive, 0x06054b50);
    put<quint16>(archive, 0);
    put<quint16>(archive, 0);
    put<quint16>(archive, quint16(entries.size()));
    put<quint16>(archive, quint16(entries.size()));
    put<quint32>(archive, quint32(directory.size()));
    put<quint32>(archive, directoryOffset);
    put<quint16>(archive, 0);
    return archive;
}

quint32 OVZip::crc32(const QByteArray &data)
{
    return quint32(::crc32_z(0, reinterpret_cast<const Bytef *>(data.constData()), std::size_t(data.size())));
}

OVZip::DosDateTime OVZip::dosDateTime(const QDateTime &localMoment)
{
    const QDate date = localMoment.date();
    const QTime time = localMoment.time();
    const int year = std::clamp(date.year(), 1980, 1980 + 127);
    return {quint16(time.hour() * 2048 + time.minute() * 32 + time.second() / 2),
            quint16((year - 1980) * 512 + date.month() * 32 + date.day())};
}
