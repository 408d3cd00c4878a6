#pragma once

#include "Features/Decks/PowerPointWriter.h"

#include <QDateTime>
#include <QList>
#include <QMap>
#include <QtEndian>

/// Reads packages back by the headers of their entries, which are stored as they are.
namespace PackageReader
{
struct Part {
    QString name;
    QByteArray data;
};

inline QList<Part> unpacked(const QByteArray &archive)
{
    QList<Part> parts;
    qsizetype at = 0;
    while (qFromLittleEndian<quint32>(archive.constData() + at) == 0x04034b50) {
        const auto size = qFromLittleEndian<quint32>(archive.constData() + at + 18);
        const auto nameSize = qFromLittleEndian<quint16>(archive.constData() + at + 26);
        parts.append(
            {QString::fromUtf8(archive.mid(at + 30, nameSize)), archive.mid(at + 30 + nameSize, size)});
        at += 30 + nameSize + size;
    }
    return parts;
}

inline QList<Part> partsOf(const Deck &deck)
{
    const QDateTime moment(QDate(2026, 3, 1), QTime(9, 30));
    return unpacked(PowerPointWriter::presentation(deck, moment).value());
}

inline QMap<QString, QByteArray> package(const Deck &deck)
{
    QMap<QString, QByteArray> byName;
    for (const Part &part : partsOf(deck))
        byName.insert(part.name, part.data);
    return byName;
}
} // namespace PackageReader
