#include "Features/Databases/CsvWriter.h"

#include "Features/Databases/DBValue.h"

namespace
{
char16_t unitOf(QChar character)
{
    return character.unicode();
}
char16_t unitOf(char byte)
{
    return static_cast<unsigned char>(byte);
}

template <typename View>
bool beginsFormula(View text)
{
    return !text.isEmpty() && QStringView(u"=+-@\t\r").contains(QChar(unitOf(text.front())));
}

/// Whether the text is "'" once or more before what would be a formula.
template <typename View>
bool isGuarded(View text)
{
    qsizetype marks = 0;
    while (marks < text.size() && unitOf(text[marks]) == u'\'')
        ++marks;
    return marks > 0 && beginsFormula(text.sliced(marks));
}
} // namespace

void CsvWriter::append(QByteArray &file, const QStringList &row)
{
    for (qsizetype i = 0; i < row.size(); ++i) {
        QString cell = CsvWriter::guarded(row.at(i));
        // A row of one empty cell would be a blank line, which readers pass over.
        const bool isQuoted = cell.contains(u',') || cell.contains(u'"') || cell.contains(u'\n') ||
                              cell.contains(u'\r') || (row.size() == 1 && cell.isEmpty());
        if (isQuoted)
            cell = u'"' + cell.replace(u'"', QStringLiteral("\"\"")) + u'"';
        if (i > 0)
            file.append(',');
        file.append(cell.toUtf8());
    }
    file.append("\r\n");
}

QString CsvWriter::guarded(const QString &text)
{
    const bool runs = beginsFormula(QStringView(text)) && !DBValue::number(text);
    return runs || isGuarded(QStringView(text)) ? u'\'' + text : text;
}

QByteArrayView CsvWriter::unguarded(QByteArrayView text)
{
    return isGuarded(text) ? text.sliced(1) : text;
}

QByteArray CsvWriter::write(const QStringList &names, const QList<QStringList> &rows)
{
    QByteArray file("\xEF\xBB\xBF");
    append(file, names);
    for (const QStringList &row : rows)
        append(file, row);
    return file;
}
