#include "Store/SnapshotCodec.h"

#include "Foundation/JsonRepair.h"
#include "Foundation/RecordEncoder.h"

#include <new>
#include <sys/mman.h>

namespace
{
/// Large enough for few system calls, small enough to stay in the processor's cache.
constexpr qsizetype pieceSize = 256 * 1024;

/// Asks for large pages. Of a large workspace's load a quarter of the time goes into touching memory for the
/// first time otherwise.
void preferLargePages(void *memory, std::size_t size)
{
    static constexpr std::uintptr_t page = 4096;
    const auto begin = (reinterpret_cast<std::uintptr_t>(memory) + page - 1) & ~(page - 1);
    const auto end = (reinterpret_cast<std::uintptr_t>(memory) + size) & ~(page - 1);
    if (begin < end)
        ::madvise(reinterpret_cast<void *>(begin), end - begin, MADV_HUGEPAGE);
}

/// @param json lies within a buffer
simdjson::error_code parse(simdjson::dom::parser &parser, QByteArrayView json,
                           simdjson::dom::element &document)
{
    static constexpr std::size_t usualDepth = 1024;
    const auto size = std::size_t(json.size());
    const auto parseAtDepth = [&](std::size_t depth) {
        if (parser.allocate(size, depth) != simdjson::SUCCESS ||
            parser.doc.allocate(size) != simdjson::SUCCESS)
            throw std::bad_alloc();
        preferLargePages(parser.doc.tape.get(), size * sizeof parser.doc.tape[0]);
        preferLargePages(parser.doc.string_buf.get(), size);
        auto &indexes = parser.implementation->structural_indexes;
        preferLargePages(indexes.get(), size * sizeof indexes[0]);
        const auto error = parser.parse(json.data(), size, false).get(document);
        if (error == simdjson::MEMALLOC)
            throw std::bad_alloc();
        return error;
    };
    const auto error = parseAtDepth(usualDepth);
    // The parser keeps no frame for a level, only a few bytes, so any depth that fits the document will do.
    return error == simdjson::DEPTH_ERROR ? parseAtDepth(size) : error;
}

constexpr bool isRepairable(simdjson::error_code error)
{
    return error == simdjson::STRING_ERROR || error == simdjson::NUMBER_ERROR ||
           error == simdjson::UTF8_ERROR;
}

SnapshotCodec::Buffer bufferOf(QByteArrayView bytes)
{
    SnapshotCodec::Buffer buffer(std::size_t(bytes.size()));
    std::ranges::copy(bytes, buffer.data());
    return buffer;
}
} // namespace

QByteArray SnapshotCodec::encode(const Snapshot &snapshot)
{
    JsonWriter json(pieceSize);
    RecordEncoder::write(json, snapshot);
    return json.take();
}

void SnapshotCodec::encode(const Snapshot &snapshot, const JsonWriter::Sink &sink)
{
    JsonWriter json(sink, pieceSize);
    RecordEncoder::write(json, snapshot);
    json.flush();
}

SnapshotCodec::Buffer::Buffer(std::size_t size) : m_bytes(size)
{
    if (!m_bytes.data())
        throw std::bad_alloc();
    preferLargePages(m_bytes.data(), size);
}

std::expected<SnapshotCodec::Decoded, QString> SnapshotCodec::decode(const Buffer &bytes, Timestamp now,
                                                                     const std::function<QUuid()> &makeId)
{
    if (const auto converted = JsonRepair::fromUtf16(bytes.view()))
        return decode(bufferOf(*converted), now, makeId);
    const QByteArrayView json = JsonRepair::trimmed(bytes.view());
    simdjson::dom::parser parser;
    simdjson::dom::element document;
    std::optional<Buffer> repaired;
    auto error = parse(parser, json, document);
    if (isRepairable(error)) {
        repaired = bufferOf(JsonRepair::repaired(json));
        error = parse(parser, repaired->view(), document);
    }
    if (error != simdjson::SUCCESS)
        return std::unexpected(QString::fromLatin1(simdjson::error_message(error)));
    const DecodeContext context{now, makeId};
    Decoded decoded{.isRepaired = repaired.has_value()};
    if (!RecordDecoder::read(document, decoded.snapshot, context))
        return std::unexpected(QStringLiteral("The top level is not an object."));
    decoded.report = std::move(context.report);
    return decoded;
}

std::expected<Snapshot, QString> SnapshotCodec::decode(QByteArrayView json, Timestamp now,
                                                       const std::function<QUuid()> &makeId)
{
    auto decoded = decode(bufferOf(json), now, makeId);
    if (!decoded)
        return std::unexpected(decoded.error());
    return std::move(decoded->snapshot);
}
