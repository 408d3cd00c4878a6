#pragma once

#include "Support/Destination.h"

#include <QCoreApplication>

/// A number of the dashboard, which leads to where it comes from.
struct DashboardTile {
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(DashboardTile)
    Q_PROPERTY(QString title READ title FINAL)
    Q_PROPERTY(QString symbol READ symbol FINAL)
    Q_PROPERTY(QString number READ number FINAL)
    /// A `Destination::text()`.
    Q_PROPERTY(QString place READ place FINAL)

public:
    enum class Kind { openTasks, dueToday, eventsToday, habitsDone };

    Kind id = Kind::openTasks;
    qsizetype count = 0;

    bool operator==(const DashboardTile &) const = default;

    QString title() const;
    QString symbol() const;
    QString number() const { return QString::number(count); }
    QString place() const;
};
