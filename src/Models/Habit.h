#pragma once

#include "Foundation/Timestamp.h"
#include "Models/ThemeSettings.h"

#include <QUuid>

#include <set>

/// A habit with its marked days.
struct Habit {
    QUuid id;
    QString name;
    QString emoji;
    AccentPalette accent = AccentPalette::mono;
    qint64 targetPerWeek = 0;
    /// Day keys of the days done.
    std::set<QString> completions;
    double sortOrder = 0;
    Timestamp createdDate;

    bool operator==(const Habit &) const = default;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &Habit::id},
                          Field{"name", &Habit::name},
                          Field{"emoji", &Habit::emoji},
                          Field{"accent", &Habit::accent},
                          Field{"targetPerWeek", &Habit::targetPerWeek},
                          Field{"completions", &Habit::completions},
                          Field{"sortOrder", &Habit::sortOrder},
                          Field{"createdDate", &Habit::createdDate}};
    }
};
