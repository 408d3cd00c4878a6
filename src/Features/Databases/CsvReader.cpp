#include "Features/Databases/CsvReader.h"

#include "Features/Databases/CsvWriter.h"

#include <QCoreApplication>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <csv.h>
#include <memory>
#include <optional>
#include <simdjson.h>

namespace
{
struct CsvText {
    Q_DECLARE_TR_FUNCTIONS(CsvReader)
};

/// Bytes handed to the parser at a time, after which progress is told.
constexpr qsizetype pieceSize = 256 * 1024;
/// More than this is no table that a user works with, but a file that would fill the memory.
constexpr qsizetype maxColumns = 500;
constexpr qsizetype maxCells = 20'000'000;

/// Windows-1252 differs from Latin-1 in these characters, from 0x80 on.
constexpr std::array<char16_t, 32> windowsCharacters{
    0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021, 0x2C6,  0x2030, 0x160,
    0x2039, 0x152,  0x8D,   0x17D,  0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};

QString fromWindows1252(const QByteArray &file)
{
    QString text = QString::fromLatin1(file);
    for (QChar &character : text) {
        if (character.unicode() >= 0x80 && character.unicode() < 0xA0)
            character = QChar(windowsCharacters.at(character.unicode() - 0x80));
    }
    return text;
}

/// The encoding that the file's mark tells, or its first letter in UTF-16 without a mark.
std::optional<QStringConverter::Encoding> encodingOf(const QByteArray &file)
{
    const auto marked = QStringConverter::encodingForData(file);
    if (marked || file.size() < 2 || (file[0] == 0) == (file[1] == 0))
        return marked;
    return file[0] == 0 ? QStringConverter::Utf16BE : QStringConverter::Utf16LE;
}

/// Shares the text with the file where that is possible, and holds as long as it.
QByteArray toUtf8(const QByteArray &file)
{
    if (const auto encoding = encodingOf(file); encoding && *encoding != QStringConverter::Utf8)
        return QString(QStringDecoder(*encoding).decode(file)).toUtf8();
    constexpr qsizetype markSize = 3;
    const QByteArray text = file.startsWith("\xEF\xBB\xBF")
                                ? QByteArray::fromRawData(file.constData() + markSize, file.size() - markSize)
                                : file;
    const bool isUtf8 = simdjson::validate_utf8(text.constData(), std::size_t(text.size()));
    return isUtf8 ? text : fromWindows1252(text).toUtf8();
}

/// Gathers what the parser finds.
class Gatherer
{
public:
    explicit Gatherer(qsizetype bytes) { m_table.reserve(bytes); }

    static void cell(void *text, std::size_t length, void *self)
    {
        const QByteArrayView cell(static_cast<const char *>(text), qsizetype(length));
        static_cast<Gatherer *>(self)->add(CsvWriter::unguarded(cell));
    }
    static void row(int, void *self) { static_cast<Gatherer *>(self)->endRow(); }

    bool isTooLarge() const { return m_isTooLarge; }
    CsvTable take() { return std::move(m_table); }

private:
    void add(QByteArrayView cell)
    {
        if (!m_hasNames)
            m_table.names.append(QString::fromUtf8(cell));
        else if (!m_isTooLarge)
            m_table.appendCell(cell);
    }
    void endRow()
    {
        if (!m_hasNames) {
            m_hasNames = true;
            m_isTooLarge = m_table.columnCount() > maxColumns;
        } else if (!m_isTooLarge) {
            m_table.endRow();
            m_isTooLarge = m_table.rowCount() * m_table.columnCount() > maxCells;
        }
    }

    CsvTable m_table;
    bool m_hasNames = false;
    bool m_isTooLarge = false;
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
    bool hasText = false;
    for (const char character : text) {
        if (character == '"')
            isQuoted = !isQuoted;
        if (isQuoted)
            continue;
        if (character == '\n' || character == '\r') {
            // The parser passes over blank lines as well.
            if (hasText)
                break;
            continue;
        }
        hasText = true;
        for (std::size_t i = 0; i < separators.size(); ++i)
            counts[i] += character == separators[i];
    }
    return separators[std::size_t(std::ranges::max_element(counts) - counts.begin())];
}

std::expected<CsvTable, QString> CsvReader::read(const QByteArray &file, const Progress &progress)
{
    const QByteArray text = toUtf8(file);
    const auto tooLarge = [] {
        return std::unexpected(CsvText::tr("The file has too many columns or cells."));
    };
    if (text.size() > CsvTable::maxBytes)
        return tooLarge();
    csv_parser parser;
    if (csv_init(&parser, 0) != 0)
        return std::unexpected(CsvText::tr("There is not enough memory to read the file."));
    const std::unique_ptr<csv_parser, decltype(&csv_free)> cleanup(&parser, &csv_free);
    csv_set_delim(&parser, static_cast<unsigned char>(separatorOf(text)));
    csv_set_space_func(&parser, &noSpace);
    Gatherer gatherer(text.size());
    for (qsizetype from = 0; from < text.size(); from += pieceSize) {
        if (!progress(double(from) / double(text.size())))
            return std::unexpected(QString());
        const auto size = std::size_t(std::min(pieceSize, text.size() - from));
        if (csv_parse(&parser, text.constData() + from, size, &Gatherer::cell, &Gatherer::row, &gatherer) !=
            size)
            return std::unexpected(CsvText::tr("The file could not be read: %1.")
                                       .arg(QString::fromUtf8(csv_strerror(csv_error(&parser)))));
        if (gatherer.isTooLarge())
            break;
    }
    csv_fini(&parser, &Gatherer::cell, &Gatherer::row, &gatherer);
    if (gatherer.isTooLarge())
        return tooLarge();
    CsvTable table = gatherer.take();
    if (table.names.isEmpty())
        return std::unexpected(CsvText::tr("The file is empty."));
    return table;
}
