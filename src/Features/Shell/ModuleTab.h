#pragma once

#include <QObject>
#include <QUuid>

/// A module as a tab or a button of the dock.
struct ModuleTab {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QString destination MEMBER destination FINAL)

public:
    QUuid id;
    QString title;
    QString symbol;
    /// `Destination::text()` of the module.
    QString destination;

    bool operator==(const ModuleTab &) const = default;
};
