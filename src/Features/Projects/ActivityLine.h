#pragma once

#include "Models/Activity.h"

#include <QDate>
#include <QObject>
#include <QTimeZone>

/// A line of a project's history as its page shows it.
struct ActivityLine {
    Q_GADGET
    Q_PROPERTY(QString text READ shownText FINAL)
    /// "Yesterday"
    Q_PROPERTY(QString dateText READ dateText FINAL)

public:
    QUuid id;
    QString text;
    QDate day;
    QDate today;

    bool operator==(const ActivityLine &) const = default;

    static ActivityLine of(const Activity &activity, QDate today, const QTimeZone &zone);

    QString shownText() const;
    QString dateText() const;
};
