#pragma once

#include "Models/Project.h"

#include <QObject>

/// A step of a project as its page shows it.
struct MilestoneLine {
    Q_GADGET
    Q_PROPERTY(QUuid milestoneID MEMBER id FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(bool done MEMBER done FINAL)

public:
    QUuid id;
    QString title;
    bool done = false;

    bool operator==(const MilestoneLine &) const = default;

    static MilestoneLine of(const Milestone &milestone)
    {
        return {milestone.id, milestone.title, milestone.done};
    }
};
