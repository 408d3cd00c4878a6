#pragma once

#include <QString>
#include <QUrl>

/// A newer build on offer.
struct AvailableUpdate {
    QString version;
    QString build;
    /// What is new, as plain text; empty if nothing is told.
    QString notes;
    /// Empty if there is no package to fetch; then the page is all there is.
    QUrl downloadURL;
    /// In any case of letters; empty if none is published.
    QString sha256;
    QUrl pageURL;

    bool operator==(const AvailableUpdate &) const = default;
};
