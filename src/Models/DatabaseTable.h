#pragma once

#include "Foundation/Timestamp.h"
#include "Models/DBView.h"

#include <QStringList>

enum class DBPropertyType { text, select, status, multiselect, date, number, checkbox, url, progress };

template <>
struct EnumTable<DBPropertyType> {
    static constexpr auto cases = std::to_array<EnumCase<DBPropertyType>>({
        {DBPropertyType::text, "text", QT_TRANSLATE_NOOP("EnumLabel", "Text"), "textformat"},
        {DBPropertyType::select, "select", QT_TRANSLATE_NOOP("EnumLabel", "Select"), "chevron.down.circle"},
        {DBPropertyType::status, "status", QT_TRANSLATE_NOOP("EnumLabel", "Status"), "circle.dotted"},
        {DBPropertyType::multiselect, "multiselect", QT_TRANSLATE_NOOP("EnumLabel", "Multi-select"),
         "list.bullet"},
        {DBPropertyType::date, "date", QT_TRANSLATE_NOOP("EnumLabel", "Date"), "calendar"},
        {DBPropertyType::number, "number", QT_TRANSLATE_NOOP("EnumLabel", "Number"), "number"},
        {DBPropertyType::checkbox, "checkbox", QT_TRANSLATE_NOOP("EnumLabel", "Checkbox"),
         "checkmark.square"},
        {DBPropertyType::url, "url", QT_TRANSLATE_NOOP("EnumLabel", "URL"), "link"},
        {DBPropertyType::progress, "progress", QT_TRANSLATE_NOOP("EnumLabel", "Progress"), "chart.bar"},
    });
};

/// Whether a property of this type is a choice among its options.
constexpr bool supportsOptions(DBPropertyType type)
{
    return type == DBPropertyType::select || type == DBPropertyType::status ||
           type == DBPropertyType::multiselect;
}

/// A typed column.
struct DBProperty {
    QUuid id;
    QString name;
    DBPropertyType type = DBPropertyType::text;
    /// The choices in display order; empty for types without options.
    QStringList options;

    bool operator==(const DBProperty &) const = default;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &DBProperty::id}, Field{"name", &DBProperty::name},
                          Field{"type", &DBProperty::type}, Field{"options", &DBProperty::options}};
    }
};

/// A table that the user defines: columns and saved views. Its rows are stored apart.
struct DatabaseTable {
    QUuid id;
    QString name = QStringLiteral("Untitled database");
    QString icon = QStringLiteral("🗂️");
    QString details;
    QList<DBProperty> properties;
    QList<DBView> views;
    /// The user's star on the database.
    bool isTemplate = false;
    double sortOrder = 0;
    Timestamp createdDate;
    Timestamp updatedDate;

    bool operator==(const DatabaseTable &) const = default;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &DatabaseTable::id},
                          Field{"name", &DatabaseTable::name},
                          Field{"icon", &DatabaseTable::icon},
                          Field{"details", &DatabaseTable::details},
                          Field{"properties", &DatabaseTable::properties},
                          Field{"views", &DatabaseTable::views},
                          Field{"isTemplate", &DatabaseTable::isTemplate},
                          Field{"sortOrder", &DatabaseTable::sortOrder},
                          Field{"createdDate", &DatabaseTable::createdDate},
                          Field{"updatedDate", &DatabaseTable::updatedDate}};
    }
};
