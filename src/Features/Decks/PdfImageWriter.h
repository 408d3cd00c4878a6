#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>

#include <future>
#include <optional>

/// Writes a PDF whose pages are one picture each, without loss. A page is packed in the background while the
/// caller draws the next one, so that no more than two pictures are held. The pictures are packed for speed:
/// each row is written as its difference to the one above, which turns flat areas into zeros.
class PdfImageWriter
{
public:
    /// @param pageSize in points
    explicit PdfImageWriter(QSizeF pageSize);

    /// Appends a page that the picture fills.
    void addPage(const QImage &picture);
    /// The whole document, or nothing if a page could not be packed; nothing may be added afterwards.
    std::optional<QByteArray> finish();

private:
    void writePending();
    void writePage(QSize size, const QByteArray &packed);
    int beginObject();
    void writeStream(const QByteArray &entries, const QByteArray &data);

    QSizeF m_pageSize;
    QByteArray m_bytes;
    QList<qsizetype> m_offsets;
    QList<int> m_pages;
    std::future<std::optional<QByteArray>> m_pending;
    QSize m_pendingSize;
    bool m_isWhole = true;
};
