#pragma once

#include "Models/Page.h"

#include <QDate>
#include <QObject>
#include <QTimeZone>

/// A page as one line of a card. It works its texts out when they are asked for, since of ten thousand pages
/// a few are seen.
struct PageLine {
    Q_GADGET
    Q_PROPERTY(QUuid pageID MEMBER id FINAL)
    Q_PROPERTY(QString icon MEMBER icon FINAL)
    Q_PROPERTY(QString title READ titleText FINAL)
    Q_PROPERTY(QString dateText READ dateText FINAL)

public:
    QUuid id;
    QString icon;
    QString title;
    Timestamp updatedDate;
    QDate today;
    QTimeZone zone;

    bool operator==(const PageLine &) const = default;

    static PageLine of(const Page &page, QDate today, const QTimeZone &zone);

    QString titleText() const;
    /// When it was changed last.
    QString dateText() const;
};
