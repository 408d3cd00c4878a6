#pragma once

#include <QByteArrayView>

#include <functional>
#include <memory>

struct z_stream_s;

/// Unpacks a gzip stream that comes in pieces. Holds no more of it than one buffer.
class GzipReader
{
public:
    GzipReader();
    ~GzipReader();
    Q_DISABLE_COPY_MOVE(GzipReader)

    /// Hands on what the packed bytes unpack to, in pieces of at most 64 KB.
    /// @returns false if the stream is damaged, goes on after its end, or a piece was refused
    bool read(QByteArrayView packed, const std::function<bool(QByteArrayView)> &take);
    /// Whether the stream is complete, its checksum included.
    bool isComplete() const { return m_isComplete; }

private:
    std::unique_ptr<z_stream_s> m_stream;
    bool m_isComplete = false;
};
