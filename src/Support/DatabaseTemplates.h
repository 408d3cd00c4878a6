#pragma once

#include "Models/DatabaseTable.h"

/// A database to begin with. It carries no rows.
struct DatabaseTemplate {
    QString id;
    QString name;
    QString icon;
    QString details;
    QList<DBProperty> properties;
    QList<DBView> views;

    /// A new database with this id, made at this moment; it keeps the template's property and view ids.
    DatabaseTable table(const QUuid &tableID, Timestamp now) const;
};

namespace DatabaseTemplates
{
/// The built-in templates in the order of menus, made once.
const QList<DatabaseTemplate> &all();
} // namespace DatabaseTemplates
