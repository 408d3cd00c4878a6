#pragma once

#include <QObject>
#include <QUuid>

/// A database in the rail.
struct DatabaseRailRow {
    Q_GADGET
    Q_PROPERTY(QUuid tableID MEMBER id FINAL)
    Q_PROPERTY(QString icon MEMBER icon FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(bool isStarred MEMBER isStarred FINAL)

public:
    QUuid id;
    QString icon;
    QString name;
    bool isStarred = false;

    bool operator==(const DatabaseRailRow &) const = default;
};

/// A saved view as its tab shows it.
struct ViewTabRow {
    Q_GADGET
    Q_PROPERTY(QUuid viewID MEMBER id FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)

public:
    QUuid id;
    QString name;
    QString symbol;

    bool operator==(const ViewTabRow &) const = default;
};

/// A filter or a sort of a view.
struct ViewRuleRow {
    Q_GADGET
    Q_PROPERTY(QUuid ruleID MEMBER id FINAL)
    Q_PROPERTY(QString propertyName MEMBER propertyName FINAL)
    /// The operator of a filter, the direction of a sort.
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString value MEMBER value FINAL)

public:
    QUuid id;
    QString propertyName;
    QString label;
    QString value;

    bool operator==(const ViewRuleRow &) const = default;
};
