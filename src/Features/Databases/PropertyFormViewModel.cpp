#include "Features/Databases/PropertyFormViewModel.h"

#include "Features/Databases/DBValue.h"
#include "Foundation/LineText.h"
#include "Store/DatabaseOperations.h"

#include <QSet>

#include <algorithm>

namespace
{
/// More different values than this are no set of choices.
constexpr qsizetype maxStoredOptions = 100;

auto find(QList<OptionRow> &rows, int id)
{
    return std::ranges::find(rows, id, &OptionRow::id);
}
} // namespace

bool PropertyFormViewModel::load(const QUuid &tableID, const QUuid &propertyID)
{
    const DatabaseTable *const table = store().list<DatabaseTable>().first(tableID);
    if (!table)
        return false;
    const auto found = std::ranges::find(table->properties, propertyID, &DBProperty::id);
    if (found == table->properties.end())
        return false;
    m_tableID = tableID;
    m_property = *found;
    QList<OptionRow> rows;
    for (const QString &option : std::as_const(m_property.options))
        append(rows, option, option);
    m_options.setRows(std::move(rows));
    emit changed();
    return true;
}

void PropertyFormViewModel::append(QList<OptionRow> &rows, const QString &text, const QString &stored)
{
    const auto isKnown = [&text](const OptionRow &row) { return row.text == text; };
    if (!text.isEmpty() && std::ranges::none_of(rows, isKnown))
        rows.append({++m_lastID, text, int(DBValue::tone(text)), stored});
}

void PropertyFormViewModel::setName(const QString &name)
{
    if (m_property.name == name)
        return;
    m_property.name = name;
    emit changed();
}

void PropertyFormViewModel::setType(const QString &type)
{
    const auto value = enumFromRaw<DBPropertyType>(type);
    if (!value || *value == m_property.type)
        return;
    m_property.type = *value;
    if (hasOptions() && m_options.rows().isEmpty()) {
        QList<OptionRow> rows;
        for (const QString &option : storedOptions())
            append(rows, option, option);
        m_options.setRows(std::move(rows));
    }
    emit changed();
}

QStringList PropertyFormViewModel::storedOptions() const
{
    QStringList options;
    QSet<QString> seen;
    for (const DBRow *const row : DatabaseOperations::rows(store(), m_tableID)) {
        const QString value = row->value(m_property);
        const QStringList found = m_property.type == DBPropertyType::multiselect
                                      ? DBValue::options(value)
                                      : QStringList{value.trimmed()};
        for (const QString &option : found)
            if (!option.isEmpty() && !seen.contains(option)) {
                seen.insert(option);
                options.append(option);
            }
        if (options.size() > maxStoredOptions)
            return {};
    }
    return options;
}

void PropertyFormViewModel::addOptions(const QString &text)
{
    QList<OptionRow> rows = m_options.rows();
    for (const QString &option : DBValue::options(LineText::singleLine(text)))
        append(rows, option, {});
    m_options.setRows(std::move(rows));
}

void PropertyFormViewModel::renameOption(int optionID, const QString &text)
{
    // A comma would part the option in two where several are chosen.
    const QString name = LineText::singleLine(text).remove(u',').trimmed();
    m_options.changeRow(optionID, [&name](OptionRow &row) {
        row.text = name.isEmpty() ? row.stored : name;
        row.tone = int(DBValue::tone(row.text));
    });
}

void PropertyFormViewModel::moveOption(int optionID, int places)
{
    QList<OptionRow> rows = m_options.rows();
    const auto row = find(rows, optionID) - rows.begin();
    if (row == rows.size())
        return;
    rows.move(row, std::clamp(row + places, qsizetype(0), rows.size() - 1));
    m_options.setRows(std::move(rows));
}

void PropertyFormViewModel::removeOption(int optionID)
{
    QList<OptionRow> rows = m_options.rows();
    rows.removeIf([optionID](const OptionRow &row) { return row.id == optionID; });
    m_options.setRows(std::move(rows));
}

void PropertyFormViewModel::apply()
{
    if (!canApply())
        return;
    DBProperty property = m_property;
    property.name = LineText::singleLine(property.name.trimmed());
    property.options.clear();
    QHash<QString, QString> renamed;
    if (hasOptions()) {
        for (const OptionRow &row : m_options.rows()) {
            if (!row.text.isEmpty() && !property.options.contains(row.text))
                property.options.append(row.text);
            if (!row.stored.isEmpty() && row.stored != row.text)
                renamed.insert(row.stored, row.text);
        }
    }
    DatabaseOperations::changeProperty(store(), m_tableID, property, renamed);
}
