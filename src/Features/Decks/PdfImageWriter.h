#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>

#include <optional>

/// Writes a PDF whose pages are one picture each, without loss. The pictures are packed for speed: each row
/// is written as its difference to the one above, which turns flat areas into zeros.
class PdfImageWriter
{
public:
    /// A picture as it stands in the file.
    struct Page {
        QSize size;
        QByteArray packed;
    };
    /// Packs a picture, which takes most of the time and may be done on any thread. Nothing if it fails.
    static std::optional<Page> packed(const QImage &picture);

    /// @param pageSize in points
    explicit PdfImageWriter(QSizeF pageSize);

    /// Appends a page that the picture fills.
    void addPage(const Page &page);
    /// The whole document; nothing may be added afterwards.
    QByteArray finish();

private:
    int beginObject();
    void writeStream(const QByteArray &entries, const QByteArray &data);

    QSizeF m_pageSize;
    QByteArray m_bytes;
    QList<qsizetype> m_offsets;
    QList<int> m_pages;
};
