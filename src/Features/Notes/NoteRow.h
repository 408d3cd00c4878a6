#pragma once

#include "Models/Page.h"

#include <QDate>
#include <QObject>
#include <QTimeZone>

/// A card of the notes screen. It shares the blocks with its note and works its texts out when they are
/// asked for, since of ten thousand cards a dozen are seen.
struct NoteRow {
    Q_GADGET
    Q_PROPERTY(QUuid noteID MEMBER id FINAL)
    Q_PROPERTY(QString icon MEMBER icon FINAL)
    Q_PROPERTY(QString title READ titleText FINAL)
    Q_PROPERTY(QString preview READ preview FINAL)
    Q_PROPERTY(bool isBlank READ isBlank FINAL)
    Q_PROPERTY(QString dateText READ dateText FINAL)

public:
    /// Characters, as a user counts them, of a preview.
    static constexpr qsizetype previewLength = 140;

    QUuid id;
    QString icon;
    QString title;
    QList<Block> content;
    Timestamp updatedDate;
    QDate today;
    QTimeZone zone;

    bool operator==(const NoteRow &) const = default;

    static NoteRow of(const Page &note, QDate today, const QTimeZone &zone);

    QString titleText() const;
    /// The beginning of the text of all blocks, on one line; with an ellipsis where it goes on.
    QString preview() const;
    /// Whether the preview stands for a note without text.
    bool isBlank() const;
    QString dateText() const;
};
