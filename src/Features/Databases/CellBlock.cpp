#include "Features/Databases/CellBlock.h"

#include "Foundation/LineText.h"

namespace
{
/// Reads the quoted cell that begins here; -1 if it is not quoted to its end.
qsizetype readQuoted(const QString &text, qsizetype from, QString &cell)
{
    QString read;
    for (qsizetype i = from + 1; i < text.size(); ++i) {
        if (text[i] != u'"') {
            read.append(text[i]);
        } else if (i + 1 < text.size() && text[i + 1] == u'"') {
            read.append(text[++i]);
        } else {
            const bool isWhole = i + 1 == text.size() || text[i + 1] == u'\t' || text[i + 1] == u'\n';
            if (isWhole)
                cell = read;
            return isWhole ? i + 1 : -1;
        }
    }
    return -1;
}
} // namespace

QList<QStringList> CellBlock::parse(const QString &clipboard)
{
    const QString text = LineText::withLineFeeds(clipboard);
    QList<QStringList> rows;
    QStringList row;
    qsizetype at = 0;
    while (at < text.size()) {
        QString cell;
        qsizetype end = text[at] == u'"' ? readQuoted(text, at, cell) : -1;
        if (end < 0) {
            end = at;
            while (end < text.size() && text[end] != u'\t' && text[end] != u'\n')
                ++end;
            cell = text.mid(at, end - at);
        }
        row.append(cell);
        const bool endsRow = end >= text.size() || text[end] == u'\n';
        if (!endsRow && end + 1 == text.size())
            row.append(QString());
        if (endsRow || end + 1 == text.size())
            rows.append(std::exchange(row, {}));
        at = end + 1;
    }
    return rows;
}

QString CellBlock::format(const QList<QStringList> &rows)
{
    QStringList lines;
    for (const QStringList &row : rows) {
        QStringList cells;
        for (QString cell : row) {
            const bool isQuoted = cell.contains(u'\t') || cell.contains(u'\n') || cell.startsWith(u'"');
            if (isQuoted)
                cell = u'"' + cell.replace(u'"', QStringLiteral("\"\"")) + u'"';
            cells.append(cell);
        }
        lines.append(cells.join(u'\t'));
    }
    return lines.join(u'\n');
}
