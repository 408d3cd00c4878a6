#include "Features/Databases/DBValue.h"
#include "Features/Databases/RecordsViewModel.h"
#include "Foundation/Graphemes.h"
#include "Foundation/LineText.h"
#include "Support/OVDate.h"

#include <algorithm>

int RecordsViewModel::columnOf(const QUuid &propertyID) const
{
    const auto column = std::ranges::find(m_columns, propertyID,
                                          [](const RecordColumn &column) { return column.property.id; });
    return column == m_columns.end() ? -1 : int(column - m_columns.begin());
}

const DBProperty *RecordsViewModel::groupProperty() const
{
    const auto found = std::ranges::find_if(m_properties, [this](const DBProperty &property) {
        if (m_view.groupBy)
            return property.id == *m_view.groupBy;
        return property.type == DBPropertyType::select || property.type == DBPropertyType::status;
    });
    return found == m_properties.end() ? nullptr : &*found;
}

QStringList RecordsViewModel::placeKeys() const
{
    QStringList keys;
    for (const DBFilter &filter : m_view.filters)
        keys.append(DBRow::valueKey(filter.propID));
    for (const DBSort &sort : m_view.sorts)
        keys.append(DBRow::valueKey(sort.propID));
    if (m_view.type == DBViewType::board && groupProperty())
        keys.append(DBRow::valueKey(groupProperty()->id));
    if (m_view.type == DBViewType::calendar && dateColumn() >= 0)
        keys.append(m_columns.at(dateColumn()).key);
    return keys;
}

int RecordsViewModel::groupColumn() const
{
    const DBProperty *const property = m_view.type == DBViewType::board ? groupProperty() : nullptr;
    return property ? columnOf(property->id) : -1;
}

int RecordsViewModel::dateColumn() const
{
    const auto date = std::ranges::find(m_properties, DBPropertyType::date, &DBProperty::type);
    return date == m_properties.end() ? -1 : columnOf(date->id);
}

int RecordsViewModel::groupOf(const QUuid &recordID) const
{
    const auto group = m_groupOf.constFind(recordID);
    if (group == m_groupOf.cend())
        return -1;
    return int(std::ranges::find(m_groups.rows(), *group, &RecordGroup::id) - m_groups.rows().begin());
}

int RecordsViewModel::placeInGroup(const QUuid &recordID) const
{
    const RecordGroup *const group = m_groups.find(m_groupOf.value(recordID));
    if (!group)
        return -1;
    const auto record = std::ranges::find(group->records, recordID, &RecordRow::id);
    return record == group->records.end() ? -1 : int(record - group->records.begin());
}

QUuid RecordsViewModel::recordIn(int group, int place) const
{
    return m_groups.rows().value(group).records.value(place).id;
}

QString RecordsViewModel::glyph(const RecordValues &values) const
{
    const QString title = m_columns.isEmpty() ? QString() : values.values.value(m_columns.first().key);
    return LineText::shown(Graphemes::left(title.trimmed(), 1));
}

void RecordsViewModel::sortByDay(DBEngine::Rows &visible) const
{
    const int column = dateColumn();
    if (column < 0)
        return;
    const QString key = m_columns.at(column).key;
    QHash<const DBRow *, QDate> days;
    for (const DBRow *const row : std::as_const(visible))
        if (const auto day = DBValue::date(row->values.value(key)))
            days.insert(row, *day);
    std::ranges::stable_sort(visible, [&days](const DBRow *a, const DBRow *b) {
        const QDate dayA = days.value(a), dayB = days.value(b);
        return dayA.isValid() && (!dayB.isValid() || dayA < dayB);
    });
}

void RecordsViewModel::showRows(const DBEngine::Rows &visible)
{
    const int column = m_view.type == DBViewType::calendar ? dateColumn() : -1;
    QList<RecordRow> rows;
    rows.reserve(visible.size());
    for (const DBRow *const row : visible) {
        rows.append({row->id, {row->values}, {}});
        if (column < 0)
            continue;
        const auto day = DBValue::date(row->values.value(m_columns.at(column).key));
        rows.last().section = day ? OVDate::weekdayLongDay(*day) : tr("NO DATE");
    }
    m_rows.setRows(std::move(rows));
}

void RecordsViewModel::showGroups(const DBEngine::Rows &visible)
{
    QList<RecordGroup> groups;
    QHash<QUuid, QString> groupOf;
    if (m_view.type == DBViewType::board) {
        for (const DBGroup &group : DBEngine::groupRows(visible, groupProperty())) {
            RecordGroup shown{.id = group.label, .records = {}, .tone = int(DBValue::tone(group.label))};
            for (const DBRow *const row : group.rows) {
                shown.records.append({row->id, {row->values}, {}});
                groupOf.insert(row->id, group.label);
            }
            groups.append(std::move(shown));
        }
    }
    m_groupOf = std::move(groupOf);
    m_groups.setRows(std::move(groups));
}

void RecordsViewModel::showValues(const DBRow &record)
{
    const auto show = [&record](RecordRow &row) {
        if (row.id == record.id)
            row.values.values = record.values;
    };
    m_rows.changeRow(record.id, show);
    const auto group = m_groupOf.constFind(record.id);
    if (group != m_groupOf.cend())
        m_groups.changeRow(*group,
                           [&show](RecordGroup &group) { std::ranges::for_each(group.records, show); });
}

bool RecordsViewModel::place(const DBRow &record)
{
    const bool hasGroups = m_view.type == DBViewType::board || m_view.type == DBViewType::calendar;
    if (hasGroups || !m_edit.record.isNull())
        return false;
    const auto &records = store().list<DBRow>();
    QList<RecordRow> rows = m_rows.rows();
    rows.removeIf([&record](const RecordRow &row) { return row.id == record.id; });
    if (!m_place) {
        m_place = std::make_unique<DBPlace>(m_properties, m_view, clock().timeZone());
        for (const RecordRow &row : std::as_const(rows))
            m_place->add(*records.first(row.id));
    }
    const bool isTaken = m_place->takes(record);
    if (isTaken)
        m_place->add(record);
    if (!m_place->isOrder())
        return false;
    if (isTaken) {
        const qsizetype position = records.positionOf(record.id);
        const auto next = std::ranges::partition_point(rows, [&](const RecordRow &row) {
            const DBRow &other = *records.first(row.id);
            return m_place->comesFirst(other, record) ||
                   (!m_place->comesFirst(record, other) && records.positionOf(row.id) < position);
        });
        rows.insert(next, RecordRow{record.id, {record.values}, {}});
    }
    const bool wasEmpty = isEmpty();
    m_rows.setRows(std::move(rows));
    showCounts({m_rows.rows().size(), m_counts.second}, wasEmpty);
    emit laidOut();
    return true;
}
