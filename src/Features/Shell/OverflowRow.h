#pragma once

#include <QObject>
#include <QUuid>

/// One line of the overflow menu: a place to go to, or the heading of a section.
struct OverflowRow {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QString emoji MEMBER emoji FINAL)
    Q_PROPERTY(QString destination MEMBER destination FINAL)

public:
    QUuid id;
    QString title;
    QString symbol = {};
    /// Shown instead of the symbol.
    QString emoji = {};
    /// `Destination::text()` of the place; empty for a heading or a hint.
    QString destination = {};

    bool operator==(const OverflowRow &) const = default;
};
