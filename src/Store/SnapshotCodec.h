#pragma once

#include "Store/Snapshot.h"

#include <QByteArray>

#include <expected>
#include <functional>

/// Turns a workspace into the bytes of its file and back, without a tree of variants in between.
namespace SnapshotCodec
{
/// Compact JSON as UTF-8.
QByteArray encode(const Snapshot &snapshot);

/// Reads a document. It fails only if the text is no JSON (UTF-8 included) or its top level is no object.
/// An escaped half of a surrogate pair that stands alone reads as U+FFFD.
/// @param now and makeId fill up tolerant records that lack a date or an id
std::expected<Snapshot, QString> decode(QByteArrayView json, Timestamp now,
                                        const std::function<QUuid()> &makeId);

/// Reads the file and decodes it; the bytes are read straight into the parser's buffer.
std::expected<Snapshot, QString> decodeFile(const QString &path, Timestamp now,
                                            const std::function<QUuid()> &makeId);
} // namespace SnapshotCodec
