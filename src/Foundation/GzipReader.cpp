#include "Foundation/GzipReader.h"

#include <QByteArray>

#include <zlib.h>

namespace
{
constexpr qsizetype bufferSize = 64 * 1024;
/// Tells the library to expect gzip alone.
constexpr int gzipWindowBits = MAX_WBITS + 16;
} // namespace

GzipReader::GzipReader() : m_stream(std::make_unique<z_stream>())
{
    // A failure shows at the first read.
    inflateInit2(m_stream.get(), gzipWindowBits);
}

GzipReader::~GzipReader()
{
    inflateEnd(m_stream.get());
}

bool GzipReader::read(QByteArrayView packed, const std::function<bool(QByteArrayView)> &take)
{
    QByteArray buffer(bufferSize, Qt::Uninitialized);
    auto *const bytes = reinterpret_cast<const Bytef *>(packed.data());
    m_stream->next_in = const_cast<Bytef *>(bytes);
    m_stream->avail_in = uInt(packed.size());
    bool isBufferFull = true;
    while (!m_isComplete && (m_stream->avail_in > 0 || isBufferFull)) {
        m_stream->next_out = reinterpret_cast<Bytef *>(buffer.data());
        m_stream->avail_out = uInt(buffer.size());
        const int status = inflate(m_stream.get(), Z_NO_FLUSH);
        // No progress is possible only when all input was used.
        if (status != Z_OK && status != Z_STREAM_END && status != Z_BUF_ERROR)
            return false;
        m_isComplete = status == Z_STREAM_END;
        isBufferFull = m_stream->avail_out == 0;
        const qsizetype size = buffer.size() - qsizetype(m_stream->avail_out);
        if (size > 0 && !take(QByteArrayView(buffer.constData(), size)))
            return false;
    }
    return m_stream->avail_in == 0;
}
