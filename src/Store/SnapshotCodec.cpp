#include "Store/SnapshotCodec.h"

#include "Foundation/RecordDecoder.h"
#include "Foundation/RecordEncoder.h"

#include <QFile>

#include <charconv>
#include <cstring>
#include <sys/mman.h>

namespace
{
/// The four hexadecimal digits of a `\uXXXX` escape at this place, if it is one.
std::optional<unsigned> unicodeEscape(const char *at, const char *end)
{
    if (end - at < 6 || at[0] != '\\' || at[1] != 'u')
        return std::nullopt;
    unsigned value = 0;
    const auto result = std::from_chars(at + 2, at + 6, value, 16);
    return result.ptr == at + 6 ? std::optional(value) : std::nullopt;
}

/// Turns escapes of half a surrogate pair into U+FFFD, in place since both are six characters long. They are
/// JSON by its grammar, yet no text; without this one of them would cost the whole document.
bool mendLoneSurrogates(char *bytes, std::size_t size)
{
    bool isMended = false;
    const char *const end = bytes + size;
    for (char *at = bytes; at < end;) {
        if (*at != '\\') {
            ++at;
            continue;
        }
        const auto unit = unicodeEscape(at, end);
        if (!unit) {
            at += 2;
            continue;
        }
        const bool isHigh = *unit >= 0xd800 && *unit < 0xdc00;
        const bool isLow = *unit >= 0xdc00 && *unit < 0xe000;
        const auto second = isHigh ? unicodeEscape(at + 6, end) : std::nullopt;
        if (second && *second >= 0xdc00 && *second < 0xe000) {
            at += 12;
            continue;
        }
        if (isHigh || isLow) {
            std::memcpy(at + 2, "fffd", 4);
            isMended = true;
        }
        at += 6;
    }
    return isMended;
}

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

/// @param bytes holds the document and, behind it, the padding that the parser may read
std::expected<Snapshot, QString> decodePadded(simdjson::padded_string &bytes, Timestamp now,
                                              const std::function<QUuid()> &makeId)
{
    simdjson::dom::parser parser;
    auto &memory = parser.doc;
    if (parser.allocate(bytes.size()) == simdjson::SUCCESS &&
        memory.allocate(bytes.size()) == simdjson::SUCCESS) {
        preferLargePages(memory.tape.get(), bytes.size() * sizeof memory.tape[0]);
        preferLargePages(memory.string_buf.get(), bytes.size());
    }
    simdjson::dom::element document;
    auto error = parser.parse(bytes).get(document);
    if (error == simdjson::STRING_ERROR && mendLoneSurrogates(bytes.data(), bytes.size()))
        error = parser.parse(bytes).get(document);
    if (error != simdjson::SUCCESS)
        return std::unexpected(QString::fromLatin1(simdjson::error_message(error)));
    Snapshot snapshot;
    if (!RecordDecoder::read(document, snapshot, DecodeContext{now, makeId}))
        return std::unexpected(QStringLiteral("The top level is not an object."));
    return snapshot;
}
} // namespace

QByteArray SnapshotCodec::encode(const Snapshot &snapshot)
{
    // Most workspaces keep their size from one save to the next.
    static qsizetype lastSize = 64 * 1024;
    JsonWriter json(lastSize + lastSize / 16);
    RecordEncoder::write(json, snapshot);
    QByteArray bytes = json.take();
    lastSize = bytes.size();
    return bytes;
}

std::expected<Snapshot, QString> SnapshotCodec::decode(QByteArrayView json, Timestamp now,
                                                       const std::function<QUuid()> &makeId)
{
    simdjson::padded_string bytes(json.data(), std::size_t(json.size()));
    return decodePadded(bytes, now, makeId);
}

std::expected<Snapshot, QString> SnapshotCodec::decodeFile(const QString &path, Timestamp now,
                                                           const std::function<QUuid()> &makeId)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::unexpected(file.errorString());
    simdjson::padded_string bytes(std::size_t(file.size()));
    preferLargePages(bytes.data(), bytes.size());
    const qint64 size = file.read(bytes.data(), file.size());
    if (size != qint64(bytes.size()))
        return std::unexpected(file.errorString());
    return decodePadded(bytes, now, makeId);
}
