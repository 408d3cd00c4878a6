#pragma once

#include "Models/AppSettings.h"

#include <QObject>

/// A saved link as a chip.
struct RelaxLinkRow {
    Q_GADGET
    Q_PROPERTY(QUuid linkID MEMBER id FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString url MEMBER url FINAL)
    /// Whether it plays on the stage.
    Q_PROPERTY(bool isActive MEMBER isActive FINAL)

public:
    QUuid id;
    QString name = {};
    QString url = {};
    bool isActive = false;

    bool operator==(const RelaxLinkRow &) const = default;
};
