#pragma once

#include "Support/Destination.h"

/// One place that the palette can open, or a command that it can give.
struct PaletteRow {
    Q_GADGET
    Q_PROPERTY(QString header MEMBER header FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString subtitle MEMBER subtitle FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QString emoji MEMBER emoji FINAL)
    Q_PROPERTY(QString keys MEMBER keys FINAL)

public:
    /// Stands for the place in the list: as a key changes most rows, views show the new ones in those they
    /// have.
    QUuid id;
    /// The title of the group, on its first row.
    QString header;
    /// As `Text.StyledText`, with what the query matches in bold.
    QString title;
    /// The title as plain text.
    QString name;
    QString subtitle;
    QString symbol;
    /// Shown instead of the symbol.
    QString emoji;
    /// The keys that open it without the palette, as a user reads them.
    QString keys;
    Destination destination;
    /// The command that it stands for instead of a place; else empty.
    QString command;
    /// Whether the place is to show where the query stands in it.
    bool showsText = false;

    bool operator==(const PaletteRow &) const = default;
};
