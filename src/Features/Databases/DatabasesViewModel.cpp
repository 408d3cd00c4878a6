#include "Features/Databases/DatabasesViewModel.h"

#include "Features/Databases/DBEngine.h"
#include "Foundation/LineText.h"
#include "Store/DatabaseOperations.h"
#include "Support/DatabaseTemplates.h"

#include <algorithm>
#include <utility>

DatabasesViewModel::DatabasesViewModel(QObject *parent) : ViewModel(parent)
{
    follow<DatabaseTable>();
}

QList<QString> DatabasesViewModel::icons()
{
    return {QStringLiteral("🗂️"), QStringLiteral("📚"), QStringLiteral("🔬"), QStringLiteral("📖"),
            QStringLiteral("📊"), QStringLiteral("🗃️"), QStringLiteral("📇"), QStringLiteral("🧾"),
            QStringLiteral("💼"), QStringLiteral("🎬"), QStringLiteral("🎧"), QStringLiteral("🍲"),
            QStringLiteral("🌱"), QStringLiteral("✈️"),  QStringLiteral("🏷️"), QStringLiteral("👥")};
}

QList<Choice> DatabasesViewModel::templates()
{
    QList<Choice> choices;
    for (const DatabaseTemplate &entry : DatabaseTemplates::all())
        choices.append({.raw = entry.id, .label = entry.icon + u' ' + entry.name});
    return choices;
}

const DBView *DatabasesViewModel::view() const
{
    const auto wanted = std::ranges::find(m_table.views, m_wantedView, &DBView::id);
    if (wanted != m_table.views.end())
        return &*wanted;
    return m_table.views.isEmpty() ? nullptr : &m_table.views.first();
}

QVariant DatabasesViewModel::viewVariant() const
{
    const DBView *const current = view();
    return current ? current->id : QUuid();
}

int DatabasesViewModel::viewRow() const
{
    const DBView *const current = view();
    return current ? int(current - m_table.views.constData()) : -1;
}

QString DatabasesViewModel::footnote() const
{
    const DBView *const current = view();
    return current ? tr("“%1” is a lens on the same data  -  nothing is duplicated.").arg(current->name)
                   : QString();
}

void DatabasesViewModel::select(const QUuid &tableID)
{
    if (m_table.id == tableID)
        return;
    m_table.id = tableID;
    m_wantedView = {};
    showTable();
    showSelectedRow();
    emit selectionChanged();
}

void DatabasesViewModel::selectBy(int rows)
{
    const int last = int(m_databases.rows().size()) - 1;
    if (last < 0)
        return;
    select(m_databases.rows().at(m_selectedRow < 0 ? 0 : std::clamp(m_selectedRow + rows, 0, last)).id);
}

void DatabasesViewModel::open(const DatabaseTable &table)
{
    DatabaseOperations::create(store(), table);
    flush();
    select(table.id);
}

void DatabasesViewModel::newDatabase()
{
    DatabaseTable table;
    table.id = store().makeId();
    table.properties = DBEngine::defaultProperties();
    table.views = {DBView{.id = store().makeId()}};
    table.createdDate = table.updatedDate = store().now();
    table.sortOrder = secondsSince1970(table.createdDate);
    open(table);
}

void DatabasesViewModel::newFromTemplate(const QString &templateID)
{
    const auto &templates = DatabaseTemplates::all();
    const auto found = std::ranges::find(templates, templateID, &DatabaseTemplate::id);
    if (found != templates.end())
        open(found->table(store().makeId(), store().now()));
}

void DatabasesViewModel::remove(const QUuid &tableID)
{
    if (m_table.id == tableID)
        select({});
    DatabaseOperations::remove(store(), tableID);
    flush();
}

void DatabasesViewModel::change(const QString &name, const std::function<void(DatabaseTable &)> &edit,
                                const QString &message)
{
    {
        const Action action(store(), name);
        action.setMessage(message);
        DatabaseOperations::change(store(), m_table.id, {}, edit);
    }
    flush();
}

void DatabasesViewModel::setName(const QString &name)
{
    DatabaseOperations::typeName(store(), m_table.id, LineText::singleLine(name));
}

void DatabasesViewModel::setDetails(const QString &details)
{
    DatabaseOperations::typeDetails(store(), m_table.id, LineText::singleLine(details));
}

void DatabasesViewModel::setIcon(const QString &icon)
{
    change(ActionText::tr("Change Icon"), [&](DatabaseTable &table) { table.icon = icon; });
}

void DatabasesViewModel::toggleStar()
{
    change(m_table.isTemplate ? ActionText::tr("Remove Star") : ActionText::tr("Add Star"),
           [](DatabaseTable &table) { table.isTemplate = !table.isTemplate; });
}

void DatabasesViewModel::selectView(const QUuid &viewID)
{
    if (viewVariant().toUuid() == viewID)
        return;
    m_wantedView = viewID;
    emit viewChanged();
}

void DatabasesViewModel::selectViewBy(int tabs)
{
    const int row = viewRow() + tabs;
    if (row >= 0 && row < m_table.views.size())
        selectView(m_table.views.at(row).id);
}

void DatabasesViewModel::addView(const QString &type)
{
    const auto value = enumFromRaw<DBViewType>(type);
    if (!value)
        return;
    const DBView view{.id = store().makeId(), .name = enumLabel(*value), .type = *value};
    change(ActionText::tr("New View"), [&](DatabaseTable &table) { table.views.append(view); });
    selectView(view.id);
}

void DatabasesViewModel::renameView(const QUuid &viewID, const QString &name)
{
    const QString text = LineText::singleLine(name.trimmed());
    if (text.isEmpty())
        return;
    DatabaseOperations::changeView(store(), m_table.id, viewID, ActionText::tr("Rename View"),
                                   [&](DBView &view) { view.name = text; });
    flush();
}

void DatabasesViewModel::removeView(const QUuid &viewID)
{
    if (m_table.views.size() < 2)
        return;
    change(
        ActionText::tr("Delete View"),
        [&](DatabaseTable &table) {
            table.views.removeIf([&](const DBView &view) { return view.id == viewID; });
        },
        ActionText::tr("View deleted"));
}

bool DatabasesViewModel::supportsOptions(const QString &type)
{
    const auto value = enumFromRaw<DBPropertyType>(type);
    return value && ::supportsOptions(*value);
}

void DatabasesViewModel::addProperty(const QString &name, const QString &type, const QString &options)
{
    const auto value = enumFromRaw<DBPropertyType>(type);
    if (!value || !isName(name))
        return;
    DBProperty property{store().makeId(), LineText::singleLine(name.trimmed()), *value, {}};
    if (::supportsOptions(*value))
        for (const QString &piece : options.split(u','))
            if (!piece.trimmed().isEmpty())
                property.options.append(piece.trimmed());
    change(ActionText::tr("New Property"), [&](DatabaseTable &table) { table.properties.append(property); });
}

void DatabasesViewModel::refresh(const ChangeSet &changes)
{
    const RecordChanges &tables = changes.of<DatabaseTable>();
    if (tables.isEmpty())
        return;
    layOutRail();
    if (hasSelection() && !store().list<DatabaseTable>().contains(m_table.id))
        select({});
    else if (tables.contains(m_table.id))
        showTable();
    showSelectedRow();
}

void DatabasesViewModel::layOutRail()
{
    QList<const DatabaseTable *> tables;
    for (const DatabaseTable &table : store().list<DatabaseTable>())
        tables.append(&table);
    std::ranges::stable_sort(tables, std::less(), &DatabaseTable::sortOrder);
    QList<DatabaseRailRow> rows;
    for (const DatabaseTable *const table : tables)
        rows.append({table->id, table->icon, LineText::shownTitle(table->name), table->isTemplate});
    m_databases.setRows(std::move(rows));
}

void DatabasesViewModel::showSelectedRow()
{
    const auto &rows = m_databases.rows();
    const auto row = int(std::ranges::find(rows, m_table.id, &DatabaseRailRow::id) - rows.begin());
    const int shown = row < rows.size() ? row : -1;
    if (std::exchange(m_selectedRow, shown) != shown)
        emit selectedRowChanged();
}

void DatabasesViewModel::showTable()
{
    DatabaseTable none;
    none.name.clear();
    none.icon.clear();
    const DatabaseTable *const found = store().list<DatabaseTable>().first(m_table.id);
    m_table = found ? *found : none;
    QList<ViewTabRow> tabs;
    for (const DBView &view : std::as_const(m_table.views))
        tabs.append({view.id, LineText::shownTitle(view.name), enumSymbol(view.type)});
    m_views.setRows(std::move(tabs));
    emit headerChanged();
    emit viewChanged();
}

bool DatabasesViewModel::reveal(const UndoPlace &place)
{
    const QUuid record = place.textRecord.isNull() ? place.record : place.textRecord;
    if (const DBRow *const row = store().list<DBRow>().first(record)) {
        select(row->tableID);
        return false;
    }
    if (!store().list<DatabaseTable>().contains(record))
        return false;
    select(record);
    return true;
}
