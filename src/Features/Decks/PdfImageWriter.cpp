#include "Features/Decks/PdfImageWriter.h"

#include <cstring>
#include <vector>
#include <zlib.h>

namespace
{
/// The catalogue and the list of pages are written last but named by every page.
constexpr int catalogueObject = 1;
constexpr int pagesObject = 2;
/// In the stream each row begins with the number of its filter; 2 is the difference to the row above.
constexpr uchar upFilter = 2;

/// Packs rows as they are produced.
class Deflater
{
public:
    Deflater() { m_isReady = ::deflateInit2(&m_stream, 1, Z_DEFLATED, 15, 9, Z_RLE) == Z_OK; }
    ~Deflater() { ::deflateEnd(&m_stream); }
    Q_DISABLE_COPY_MOVE(Deflater)

    bool add(const QByteArray &bytes, bool isLast)
    {
        m_stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.constData()));
        m_stream.avail_in = uInt(bytes.size());
        int result = Z_OK;
        do {
            const qsizetype used = m_packed.size();
            m_packed.resize(used + chunk);
            m_stream.next_out = reinterpret_cast<Bytef *>(m_packed.data() + used);
            m_stream.avail_out = uInt(chunk);
            result = m_isReady ? ::deflate(&m_stream, isLast ? Z_FINISH : Z_NO_FLUSH) : Z_STREAM_ERROR;
            m_packed.truncate(used + chunk - qsizetype(m_stream.avail_out));
        } while (result == Z_OK && m_stream.avail_out == 0);
        return isLast ? result == Z_STREAM_END : (result == Z_OK || result == Z_BUF_ERROR);
    }
    QByteArray take() { return std::move(m_packed); }

private:
    static constexpr qsizetype chunk = 256 * 1024;
    z_stream m_stream = {};
    bool m_isReady = false;
    QByteArray m_packed;
};

/// Appends a row of red, green and blue, each as its difference to the row above.
void appendFiltered(QByteArray &rows, const QRgb *row, const QRgb *above, int width)
{
    const qsizetype start = rows.size();
    rows.resize(start + qsizetype(width) * 3 + 1);
    auto *to = reinterpret_cast<uchar *>(rows.data() + start);
    *to++ = upFilter;
    // Most rows of a slide repeat the one above.
    if (std::memcmp(row, above, std::size_t(width) * sizeof(QRgb)) == 0) {
        std::memset(to, 0, std::size_t(width) * 3);
        return;
    }
    for (int x = 0; x < width; ++x) {
        *to++ = uchar(qRed(row[x]) - qRed(above[x]));
        *to++ = uchar(qGreen(row[x]) - qGreen(above[x]));
        *to++ = uchar(qBlue(row[x]) - qBlue(above[x]));
    }
}

std::optional<QByteArray> packedRows(const QImage &picture)
{
    const QImage image = picture.convertToFormat(QImage::Format_RGB32);
    static constexpr int rowsAtOnce = 32;
    // The row above the first counts as black.
    const std::vector<QRgb> black(std::size_t(image.width()), qRgb(0, 0, 0));
    const QRgb *above = black.data();
    Deflater deflater;
    QByteArray rows;
    for (int y = 0; y < image.height(); ++y) {
        const auto *const row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        appendFiltered(rows, row, above, image.width());
        above = row;
        const bool isLast = y + 1 == image.height();
        if (!isLast && (y + 1) % rowsAtOnce != 0)
            continue;
        if (!deflater.add(rows, isLast))
            return std::nullopt;
        rows.resize(0);
    }
    return deflater.take();
}

QByteArray number(double value)
{
    return QByteArray::number(value, 'g', 8);
}
} // namespace

PdfImageWriter::PdfImageWriter(QSizeF pageSize)
    : m_pageSize(pageSize), m_bytes("%PDF-1.4\n%\xe2\xe3\xcf\xd3\n")
{
    m_offsets.resize(2);
}

int PdfImageWriter::beginObject()
{
    m_offsets.append(m_bytes.size());
    const int object = int(m_offsets.size());
    m_bytes += QByteArray::number(object) + " 0 obj\n";
    return object;
}

void PdfImageWriter::writeStream(const QByteArray &entries, const QByteArray &data)
{
    m_bytes += "<< " + entries + " /Length " + QByteArray::number(data.size()) + " >>\nstream\n" + data +
               "\nendstream\nendobj\n";
}

std::optional<PdfImageWriter::Page> PdfImageWriter::packed(const QImage &picture)
{
    const auto rows = packedRows(picture);
    return rows ? std::optional(Page{picture.size(), *rows}) : std::nullopt;
}

void PdfImageWriter::addPage(const Page &page)
{
    const QByteArray width = QByteArray::number(page.size.width());
    const int image = beginObject();
    writeStream(
        "/Type /XObject /Subtype /Image /Width " + width + " /Height " +
            QByteArray::number(page.size.height()) +
            " /ColorSpace /DeviceRGB /BitsPerComponent 8 /Filter /FlateDecode /DecodeParms << /Predictor 15 "
            "/Colors 3 /BitsPerComponent 8 /Columns " +
            width + " >>",
        page.packed);
    const int content = beginObject();
    writeStream({}, "q " + number(m_pageSize.width()) + " 0 0 " + number(m_pageSize.height()) +
                        " 0 0 cm /Slide Do Q");
    m_pages.append(beginObject());
    m_bytes += "<< /Type /Page /Parent " + QByteArray::number(pagesObject) + " 0 R /MediaBox [0 0 " +
               number(m_pageSize.width()) + ' ' + number(m_pageSize.height()) +
               "] /Resources << /XObject << /Slide " + QByteArray::number(image) + " 0 R >> >> /Contents " +
               QByteArray::number(content) + " 0 R >>\nendobj\n";
}

QByteArray PdfImageWriter::finish()
{
    QByteArray kids;
    for (const int page : m_pages)
        kids += QByteArray::number(page) + " 0 R ";
    m_offsets[catalogueObject - 1] = m_bytes.size();
    m_bytes += "1 0 obj\n<< /Type /Catalog /Pages 2 0 R >>\nendobj\n";
    m_offsets[pagesObject - 1] = m_bytes.size();
    m_bytes += "2 0 obj\n<< /Type /Pages /Kids [" + kids + "] /Count " + QByteArray::number(m_pages.size()) +
               " >>\nendobj\n";

    const QByteArray start = QByteArray::number(m_bytes.size());
    const QByteArray size = QByteArray::number(m_offsets.size() + 1);
    m_bytes += "xref\n0 " + size + "\n0000000000 65535 f \n";
    for (const qsizetype offset : m_offsets)
        m_bytes += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
    m_bytes += "trailer\n<< /Size " + size + " /Root 1 0 R >>\nstartxref\n" + start + "\n%%EOF\n";
    return std::move(m_bytes);
}
