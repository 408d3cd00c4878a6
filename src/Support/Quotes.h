#pragma once

#include <QString>

/// A thought for the day.
struct Quote {
    QString id;
    QString text;
    QString author;

    bool operator==(const Quote &) const = default;
};
