#include "Features/Databases/CsvExport.h"

#include "Features/Databases/CsvWriter.h"
#include "Features/Databases/DBEngine.h"

#include <QCoreApplication>
#include <QSaveFile>

namespace
{
struct CsvText {
    Q_DECLARE_TR_FUNCTIONS(CsvExport)
};

/// Records that are written at a time, after which progress is told.
constexpr qsizetype pieceSize = 1000;

DBEngine::Rows visibleRows(const CsvExport::Source &source)
{
    DBEngine::Rows rows;
    for (const DBRow &record : source.records)
        if (record.tableID == source.tableID)
            rows.append(&record);
    return DBEngine::applyView(rows, source.properties, source.view, source.zone, source.locale);
}
} // namespace

std::expected<void, QString> CsvExport::write(const Source &source, const QString &path,
                                              const Progress &progress)
{
    QSaveFile file(path);
    const auto failed = [&] {
        return std::unexpected(CsvText::tr("“%1” could not be written: %2.").arg(path, file.errorString()));
    };
    if (!file.open(QIODevice::WriteOnly))
        return failed();
    const DBEngine::Rows rows = visibleRows(source);
    QStringList names;
    QStringList keys;
    for (const DBProperty &property : source.properties) {
        names.append(property.name);
        keys.append(DBRow::valueKey(property.id));
    }
    QByteArray piece = CsvWriter::write(names, {});
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (i % pieceSize == 0) {
            if (!progress(double(i) / double(rows.size())))
                return std::unexpected(QString());
            if (file.write(piece) < 0)
                return failed();
            piece.clear();
        }
        QStringList cells;
        for (const QString &key : std::as_const(keys))
            cells.append(rows.at(i)->values.value(key));
        CsvWriter::append(piece, cells);
    }
    if (file.write(piece) < 0 || !file.commit())
        return failed();
    return {};
}
