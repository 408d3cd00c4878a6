#pragma once

#include "Foundation/JsonWriter.h"
#include "Foundation/RecordDecoder.h"
#include "Store/Snapshot.h"

#include <QByteArray>

#include <expected>
#include <functional>

/// Turns a workspace into the bytes of its file and back, without a tree of variants in between.
namespace SnapshotCodec
{
/// Compact JSON as UTF-8.
QByteArray encode(const Snapshot &snapshot);
/// The same in pieces, as they are made.
void encode(const Snapshot &snapshot, const JsonWriter::Sink &sink);

struct Decoded {
    Snapshot snapshot;
    DecodeReport report;
    /// Whether bytes had to be replaced before the text could be read.
    bool isRepaired = false;

    /// Whether writing the snapshot back loses something that the text holds.
    bool isLossy() const { return isRepaired || report.hasUnknownKeys || !report.unreadableKeys.isEmpty(); }
};

/// Memory for a document, with the room behind it that the parser may read. It is made for `size` bytes,
/// which the caller fills.
/// @throws std::bad_alloc
class Buffer
{
public:
    explicit Buffer(std::size_t size);
    char *data() { return m_bytes.data(); }
    std::size_t size() const { return m_bytes.size(); }
    QByteArrayView view() const { return QByteArrayView(m_bytes.data(), qsizetype(m_bytes.size())); }

private:
    simdjson::padded_string m_bytes;
};

/// Larger documents are beyond what the parser can address.
inline constexpr qint64 maxBytes = 0xffff0000;

/// Reads a document, after small damages have been repaired as told in `JsonRepair`. It fails only if the
/// text is no JSON even then, or its top level is no object.
/// @param now and makeId fill up tolerant records that lack a date or an id
/// @throws std::bad_alloc
std::expected<Decoded, QString> decode(const Buffer &json, Timestamp now,
                                       const std::function<QUuid()> &makeId);
/// The workspace alone.
std::expected<Snapshot, QString> decode(QByteArrayView json, Timestamp now,
                                        const std::function<QUuid()> &makeId);
} // namespace SnapshotCodec
