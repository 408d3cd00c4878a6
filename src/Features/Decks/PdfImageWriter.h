#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>

/// Writes a PDF whose pages are one picture each, without loss, page by page so that no more than one picture
/// has to be held. The pictures are packed for speed: each row is written as its difference to the one above,
/// which turns flat areas into zeros.
class PdfImageWriter
{
public:
    /// @param pageSize in points
    explicit PdfImageWriter(QSizeF pageSize);

    /// Appends a page that the picture fills; false if it could not be packed.
    bool addPage(const QImage &picture);
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
