#include "Store/SnapshotCodec.h"

#include <cstdint>
#include <cstdlib>

namespace
{
constexpr Timestamp now = Timestamp(std::chrono::milliseconds(1773394200000));

QUuid freshId()
{
    return QUuid(0xabcdef00u, 0x1234, 0x4abc, 0x8d, 0xef, 0, 0, 0, 0, 0, 1);
}
} // namespace

/// Whatever is read from any bytes can be written, and reads back as the same workspace.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView input(data, qsizetype(size));
    const auto read = SnapshotCodec::decode(input, now, &freshId);
    if (!read)
        return 0;
    const QByteArray written = SnapshotCodec::encode(*read);
    const auto again = SnapshotCodec::decode(written, now, &freshId);
    if (!again || *again != *read || SnapshotCodec::encode(*again) != written)
        std::abort();
    return 0;
}
