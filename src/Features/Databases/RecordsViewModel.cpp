#include "Features/Databases/RecordsViewModel.h"

#include "Features/Databases/CellBlock.h"
#include "Features/Databases/DBValue.h"
#include "Store/DatabaseOperations.h"
#include "Support/OVDate.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace
{
/// The property that names a record: the first text, else the first of all.
qsizetype titleOf(const QList<DBProperty> &properties)
{
    const auto text = std::ranges::find(properties, DBPropertyType::text, &DBProperty::type);
    return text == properties.end() ? 0 : text - properties.begin();
}

QList<RecordColumn> columnsOf(QList<DBProperty> properties)
{
    if (!properties.isEmpty())
        properties.move(titleOf(properties), 0);
    QList<RecordColumn> columns;
    for (const DBProperty &property : std::as_const(properties))
        columns.append({property, DBRow::valueKey(property.id), columns.isEmpty()});
    return columns;
}
} // namespace

RecordsViewModel::RecordsViewModel(QObject *parent) : ViewModel(parent)
{
    follow<DatabaseTable, DBRow>();
    followDays();
}

void RecordsViewModel::setTableID(const QUuid &tableID)
{
    if (std::exchange(m_tableID, tableID) == tableID)
        return;
    m_edit = {};
    emit placeChanged();
    requestWholeRefresh();
}

void RecordsViewModel::setViewID(const QUuid &viewID)
{
    if (std::exchange(m_viewID, viewID) == viewID)
        return;
    m_edit = {};
    emit placeChanged();
    requestWholeRefresh();
}

QString RecordsViewModel::countText() const
{
    return m_isFiltered ? tr("%1 of %2 records").arg(m_counts.first).arg(m_counts.second)
                        : tr("%1 records").arg(m_counts.second);
}

RecordCell RecordsViewModel::cell(const RecordValues &values, int column) const
{
    if (column < 0 || column >= m_columns.size())
        return {};
    return RecordCell::of(m_columns.at(column), values, clock().today());
}

int RecordsViewModel::rowOf(const QUuid &recordID) const
{
    const RecordRow *const row = m_rows.find(recordID);
    return row ? int(row - m_rows.rows().constData()) : -1;
}

QUuid RecordsViewModel::recordAt(int row) const
{
    return m_rows.rows().value(row).id;
}

QString RecordsViewModel::describe(int row, int column) const
{
    if (row < 0 || row >= m_rows.rows().size() || column < 0 || column >= m_columns.size())
        return {};
    const RecordValues &values = m_rows.rows().at(row).values;
    const RecordCell shown = cell(values, column);
    const QString text = shown.kind == RecordCell::Kind::check
                             ? (shown.isChecked ? tr("checked") : tr("not checked"))
                         : shown.shown.isEmpty() ? tr("Empty")
                                                 : shown.shown;
    return column == 0 ? tr("%1: %2").arg(shown.name, text)
                       : tr("%1: %2, %3").arg(shown.name, text, cell(values, 0).shown);
}

QString RecordsViewModel::valueOf(const QUuid &recordID, int column) const
{
    const DBRow *const row = store().list<DBRow>().first(recordID);
    return row && column >= 0 && column < m_columns.size() ? row->values.value(m_columns.at(column).key)
                                                           : QString();
}

void RecordsViewModel::beginEdit(const QUuid &recordID, int column)
{
    if (m_edit.record == recordID && m_edit.column == column)
        return;
    // A new record stays in view from its making on to the first edit.
    const bool isNew = m_edit.record == recordID && m_edit.isNew;
    if (m_edit.record != recordID)
        endEdit();
    store().endTyping();
    const DBRow *const row = store().list<DBRow>().first(recordID);
    m_edit = {recordID,
              column,
              valueOf(recordID, column),
              row ? row->values : QMap<QString, QString>(),
              store().history().size(),
              isNew};
}

QString RecordsViewModel::write(const QUuid &recordID, int column, const QString &text)
{
    if (column < 0 || column >= m_columns.size())
        return {};
    const DBProperty &property = m_columns.at(column).property;
    const QString value = DBValue::typed(property.type, text);
    DatabaseOperations::typeValue(store(), value, property.id, recordID);
    return value;
}

void RecordsViewModel::endEditOf(const QUuid &recordID, int column)
{
    if (m_edit.record == recordID && m_edit.column == column)
        endEdit();
}

void RecordsViewModel::endEdit()
{
    const Edit edit = std::exchange(m_edit, {});
    if (edit.record.isNull())
        return;
    store().endTyping();
    const DBRow *const row = store().list<DBRow>().first(edit.record);
    flush();
    if (row && (edit.isNew || mayMove(edit.values, row->values)) && !place(*row)) {
        requestLayout();
        flush();
    }
}

void RecordsViewModel::cancelEdit()
{
    const Edit edit = m_edit;
    if (!edit.record.isNull() && valueOf(edit.record, edit.column) != edit.before) {
        // All that was typed is one step, as long as the history still holds it.
        const UndoStep *const step = store().history().undoStep();
        if (store().history().size() > edit.steps && step && step->isWholeEdit && step->text &&
            step->text->record == edit.record)
            store().undo();
        else
            write(edit.record, edit.column, edit.before);
    }
    endEdit();
}

void RecordsViewModel::setValue(const QUuid &recordID, int column, const QString &value)
{
    if (column >= 0 && column < m_columns.size() && valueOf(recordID, column) != value)
        DatabaseOperations::setValue(store(), value, m_columns.at(column).property.id, recordID);
}

void RecordsViewModel::toggleCheck(const QUuid &recordID, int column)
{
    const bool isChecked = DBValue::isChecked(valueOf(recordID, column));
    setValue(recordID, column, isChecked ? QString() : QStringLiteral("true"));
}

void RecordsViewModel::toggleOption(const QUuid &recordID, int column, const QString &option)
{
    setValue(recordID, column, DBValue::toggled(valueOf(recordID, column), option));
}

void RecordsViewModel::setDay(const QUuid &recordID, int column, const QDateTime &day)
{
    if (day.isValid())
        setValue(recordID, column, OVDate::dayKey(day.date()));
}

void RecordsViewModel::copy(const QUuid &recordID, int column) const
{
    QGuiApplication::clipboard()->setText(CellBlock::format({{valueOf(recordID, column)}}));
}

void RecordsViewModel::paste(const QUuid &recordID, int column)
{
    const QList<QStringList> block = CellBlock::parse(QGuiApplication::clipboard()->text());
    const int first = rowOf(recordID);
    if (block.isEmpty() || first < 0)
        return;
    const Action action(store(), ActionText::tr("Paste"));
    for (qsizetype i = 0; i < block.size(); ++i) {
        QMap<QString, QString> values;
        for (qsizetype j = 0; j < block.at(i).size() && column + j < m_columns.size(); ++j) {
            const RecordColumn &target = m_columns.at(column + j);
            values.insert(target.key, DBValue::pasted(target.property, block.at(i).at(j)));
        }
        if (first + i < m_rows.rows().size())
            DatabaseOperations::setValues(store(), values, m_rows.rows().at(first + i).id);
        else
            DatabaseOperations::addRow(store(), m_tableID, values);
    }
}

QUuid RecordsViewModel::addRecord(const QString &group)
{
    endEdit();
    QMap<QString, QString> values;
    const DBProperty *const property = groupProperty();
    if (property && !group.isEmpty() && group != DBEngine::noValue())
        values.insert(DBRow::valueKey(property->id), group);
    const auto row = DatabaseOperations::addRow(store(), m_tableID, values);
    if (!row)
        return {};
    m_edit = {.record = row->id, .values = values, .steps = store().history().size(), .isNew = true};
    flush();
    return row->id;
}

void RecordsViewModel::duplicate(const QUuid &recordID)
{
    DatabaseOperations::duplicateRow(store(), recordID);
    flush();
}

void RecordsViewModel::remove(const QUuid &recordID)
{
    DatabaseOperations::removeRow(store(), recordID);
    flush();
}

void RecordsViewModel::refresh(const ChangeSet &changes)
{
    const RecordChanges &records = changes.of<DBRow>();
    bool needsLayout = std::exchange(m_needsLayout, false);
    if (changes.of<DatabaseTable>().contains(m_tableID))
        needsLayout = showTable() || needsLayout;
    needsLayout = needsLayout || !records.isReplacedOnly() || !updateRows(records.replaced);
    if (needsLayout)
        layOut();
}

bool RecordsViewModel::showTable()
{
    const DatabaseTable *const table = store().list<DatabaseTable>().first(m_tableID);
    DBView view;
    QList<DBProperty> properties;
    if (table) {
        properties = table->properties;
        const auto found = std::ranges::find(table->views, m_viewID, &DBView::id);
        if (found != table->views.end())
            view = *found;
    }
    const QList<DBProperty> known = std::exchange(m_properties, properties);
    const bool hasOtherColumns = known != properties;
    const bool isSameTable = std::exchange(m_shownTable, m_tableID) == m_tableID;
    if (hasOtherColumns) {
        m_columns = columnsOf(properties);
        ++m_columnsRevision;
        emit columnsChanged();
        if (isSameTable && properties.size() == known.size() + 1)
            emit columnAdded(columnOf(properties.last().id));
    }
    const DBView before = std::exchange(m_view, view);
    m_placeKeys = placeKeys();
    if (before.type != view.type || before.id.isNull() != view.id.isNull())
        emit layoutChanged();
    return hasOtherColumns || before != view;
}

bool RecordsViewModel::updateRows(const QSet<QUuid> &changed)
{
    bool isComplete = true;
    for (const QUuid &id : changed) {
        const DBRow *const record = store().list<DBRow>().first(id);
        if (!record || record->tableID != m_tableID)
            continue;
        const RecordRow *const shown = m_rows.find(id);
        const bool moves = id != m_edit.record && (shown ? mayMove(shown->values.values, record->values)
                                                         : !m_view.filters.isEmpty());
        showValues(*record);
        if (moves)
            isComplete = isComplete && changed.size() == 1 && place(*record);
    }
    return isComplete;
}

bool RecordsViewModel::mayMove(const QMap<QString, QString> &before,
                               const QMap<QString, QString> &after) const
{
    return std::ranges::any_of(m_placeKeys,
                               [&](const QString &key) { return before.value(key) != after.value(key); });
}

void RecordsViewModel::requestLayout()
{
    m_needsLayout = true;
    requestRefresh();
}

DBEngine::Rows RecordsViewModel::allRows() const
{
    const auto &records = store().list<DBRow>();
    if (m_counts.second <= records.size() / 8)
        return DatabaseOperations::rows(store(), m_tableID);
    // Most of the list is found faster by walking it than record by record.
    DBEngine::Rows rows;
    rows.reserve(m_counts.second);
    for (const DBRow &record : records)
        if (record.tableID == m_tableID)
            rows.append(&record);
    return rows;
}

void RecordsViewModel::layOut()
{
    const DBEngine::Rows all = allRows();
    DBEngine::Rows visible = DBEngine::applyView(all, m_properties, m_view, clock().timeZone());
    const std::pair<qsizetype, qsizetype> counts{visible.size(), all.size()};
    if (m_view.type == DBViewType::calendar)
        sortByDay(visible);
    keepHeldRow(visible);
    const bool wasEmpty = isEmpty();
    showRows(visible);
    showGroups(visible);
    m_place.reset();
    showCounts(counts, wasEmpty);
    emit laidOut();
}

void RecordsViewModel::showCounts(std::pair<qsizetype, qsizetype> counts, bool wasEmpty)
{
    const bool wasFiltered = std::exchange(m_isFiltered, !m_view.filters.isEmpty());
    if (std::exchange(m_counts, counts) != counts || wasFiltered != m_isFiltered || wasEmpty != isEmpty())
        emit countsChanged();
}

void RecordsViewModel::keepHeldRow(DBEngine::Rows &visible) const
{
    const DBRow *const held = store().list<DBRow>().first(m_edit.record);
    if (!held || held->tableID != m_tableID)
        return;
    visible.removeOne(held);
    const int row = rowOf(held->id);
    visible.insert(row < 0 ? visible.size() : std::min(qsizetype(row), visible.size()), held);
}

bool RecordsViewModel::reveal(const UndoPlace &place)
{
    const QUuid record = place.textRecord.isNull() ? place.record : place.textRecord;
    const int row = rowOf(record);
    if (row < 0)
        return false;
    const auto column = std::ranges::find(m_columns, place.textField, &RecordColumn::key);
    emit revealed(row, column == m_columns.end() ? -1 : int(column - m_columns.begin()));
    return true;
}
