#pragma once

#include <QObject>
#include <QUuid>

/// A task that a session can be linked to.
struct FocusTaskRow {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title FINAL)

public:
    QUuid id;
    QString title;

    bool operator==(const FocusTaskRow &) const = default;
};
