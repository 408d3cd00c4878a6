#include "Features/Databases/CsvRecords.h"

#include "Features/Databases/CsvColumns.h"

#include <algorithm>
#include <memory>

namespace
{
/// Records that are made at a time, after which progress is told.
constexpr qsizetype pieceSize = 1000;

/// A column of the file and where its values go.
struct Target {
    qsizetype column;
    QString key;
    std::unique_ptr<CsvColumns::Converter> converter;
};

/// By the keys of their properties, so that the values of a record are made in the order in which they stand.
std::vector<Target> targetsOf(const CsvTable &file, const CsvRecords::Plan &plan)
{
    std::vector<Target> targets;
    for (qsizetype i = 0; i < plan.propertyOf.size(); ++i) {
        if (plan.propertyOf.at(i) < 0)
            continue;
        const DBProperty &property = plan.table.properties.at(plan.propertyOf.at(i));
        targets.push_back({i, DBRow::valueKey(property.id),
                           std::make_unique<CsvColumns::Converter>(property, file, i, plan.locale)});
    }
    std::ranges::sort(targets, {}, &Target::key);
    return targets;
}
} // namespace

std::optional<QList<DBRow>> CsvRecords::make(const CsvTable &file, const Plan &plan,
                                             const CsvReader::Progress &progress)
{
    const std::vector<Target> targets = targetsOf(file, plan);
    QList<DBRow> records;
    records.reserve(file.rowCount());
    for (qsizetype row = 0; row < file.rowCount(); ++row) {
        if (row % pieceSize == 0 && !progress(double(row) / double(file.rowCount())))
            return std::nullopt;
        QMap<QString, QString> values;
        for (const Target &target : targets)
            if (const QString value = target.converter->value(file.cell(row, target.column));
                !value.isEmpty())
                values.insert(values.constEnd(), target.key, value);
        records.append({.id = QUuid(),
                        .tableID = plan.table.id,
                        .values = std::move(values),
                        .sortOrder = secondsSince1970(plan.now),
                        .createdDate = plan.now,
                        .updatedDate = plan.now});
    }
    return records;
}
