#include "Features/Databases/CsvWriter.h"

#include "Features/Databases/DBValue.h"

namespace
{
bool beginsFormula(QStringView text)
{
    return !text.isEmpty() && QStringView(u"=+-@\t\r").contains(text.front());
}

/// Whether the text is "'" once or more before what would be a formula.
bool isGuarded(QStringView text)
{
    qsizetype marks = 0;
    while (marks < text.size() && text[marks] == u'\'')
        ++marks;
    return marks > 0 && beginsFormula(text.mid(marks));
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
    const bool runs = beginsFormula(text) && !DBValue::number(text);
    return runs || isGuarded(text) ? u'\'' + text : text;
}

QString CsvWriter::unguarded(QString text)
{
    if (isGuarded(text))
        text.remove(0, 1);
    return text;
}

QByteArray CsvWriter::write(const QStringList &names, const QList<QStringList> &rows)
{
    QByteArray file("\xEF\xBB\xBF");
    append(file, names);
    for (const QStringList &row : rows)
        append(file, row);
    return file;
}
