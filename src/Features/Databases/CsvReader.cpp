#include "Features/Databases/CsvReader.h"

#include "Features/Databases/CsvWriter.h"

#include <QCoreApplication>
#include <QStringDecoder>

#include <algorithm>
#include <csv.h>
#include <memory>

namespace
{
struct CsvText {
    Q_DECLARE_TR_FUNCTIONS(CsvReader)
};

/// Bytes handed to the parser at a time, after which progress is told.
constexpr qsizetype pieceSize = 256 * 1024;

QByteArray toUtf8(const QByteArray &file)
{
    if (const auto encoding = QStringConverter::encodingForData(file);
        encoding && *encoding != QStringConverter::Utf8)
        return QString(QStringDecoder(*encoding).decode(file)).toUtf8();
    if (file.startsWith("\xEF\xBB\xBF"))
        return file.mid(3);
    QStringDecoder decoder(QStringConverter::Utf8);
    const qsizetype sample = std::min<qsizetype>(file.size(), 4 * pieceSize);
    const QString decoded = decoder.decode(QByteArrayView(file).first(sample));
    return decoder.hasError() ? QString::fromLatin1(file).toUtf8() : file;
}

/// Gathers what the parser finds.
class Gatherer
{
public:
    static void cell(void *text, std::size_t length, void *self)
    {
        auto &gatherer = *static_cast<Gatherer *>(self);
        gatherer.m_row.append(
            CsvWriter::unguarded(QString::fromUtf8(static_cast<const char *>(text), qsizetype(length))));
    }
    static void row(int, void *self)
    {
        auto &gatherer = *static_cast<Gatherer *>(self);
        gatherer.endRow();
    }

    CsvTable take() { return std::move(m_table); }

private:
    void endRow()
    {
        QStringList row = std::exchange(m_row, {});
        if (!m_hasNames) {
            m_hasNames = true;
            m_table.names = std::move(row);
            return;
        }
        const qsizetype width = m_table.names.size();
        m_row.reserve(width);
        if (row.size() != width) {
            ++m_table.ragged;
            while (row.size() > width)
                row.removeLast();
            while (row.size() < width)
                row.append(QString());
        }
        m_table.rows.append(std::move(row));
    }

    CsvTable m_table;
    QStringList m_row;
    bool m_hasNames = false;
};

int noSpace(unsigned char)
{
    return 0;
}
} // namespace

char CsvReader::separatorOf(QByteArrayView text)
{
    static constexpr std::array separators{',', ';', '\t'};
    std::array<qsizetype, separators.size()> counts{};
    bool isQuoted = false;
    for (const char character : text) {
        if (character == '"')
            isQuoted = !isQuoted;
        if (isQuoted)
            continue;
        if (character == '\n' || character == '\r')
            break;
        for (std::size_t i = 0; i < separators.size(); ++i)
            counts[i] += character == separators[i];
    }
    return separators[std::size_t(std::ranges::max_element(counts) - counts.begin())];
}

std::expected<CsvTable, QString> CsvReader::read(const QByteArray &file, const Progress &progress)
{
    const QByteArray text = toUtf8(file);
    csv_parser parser;
    if (csv_init(&parser, CSV_APPEND_NULL) != 0)
        return std::unexpected(CsvText::tr("There is not enough memory to read the file."));
    const std::unique_ptr<csv_parser, decltype(&csv_free)> cleanup(&parser, &csv_free);
    csv_set_delim(&parser, static_cast<unsigned char>(separatorOf(text)));
    csv_set_space_func(&parser, &noSpace);
    Gatherer gatherer;
    for (qsizetype from = 0; from < text.size(); from += pieceSize) {
        if (!progress(double(from) / double(text.size())))
            return std::unexpected(QString());
        const auto size = std::size_t(std::min(pieceSize, text.size() - from));
        if (csv_parse(&parser, text.constData() + from, size, &Gatherer::cell, &Gatherer::row, &gatherer) !=
            size)
            return std::unexpected(CsvText::tr("The file could not be read: %1.")
                                       .arg(QString::fromUtf8(csv_strerror(csv_error(&parser)))));
    }
    csv_fini(&parser, &Gatherer::cell, &Gatherer::row, &gatherer);
    CsvTable table = gatherer.take();
    if (table.names.isEmpty())
        return std::unexpected(CsvText::tr("The file is empty."));
    return table;
}
