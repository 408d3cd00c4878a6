#pragma once

#include "Foundation/Choice.h"
#include "Models/CalendarEvent.h"

#include <QDateTime>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What is typed and chosen for a new event. The kind is told by its raw text.
class EventForm : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the calendar")
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged FINAL)
    Q_PROPERTY(bool timeEnabled MEMBER m_timeEnabled NOTIFY timeEnabledChanged FINAL)
    /// Its time of day counts.
    Q_PROPERTY(QDateTime time MEMBER m_time NOTIFY timeChanged FINAL)
    Q_PROPERTY(QString kind READ kindText WRITE setKind NOTIFY kindChanged FINAL)
    Q_PROPERTY(QList<Choice> kinds READ kinds CONSTANT FINAL)
    /// Whether the title is more than blanks.
    Q_PROPERTY(bool canAdd READ canAdd NOTIFY titleChanged FINAL)

public:
    using QObject::QObject;

    const QString &title() const { return m_title; }
    void setTitle(const QString &title);
    void setTime(const QDateTime &time);
    QString kindText() const { return enumRawText(m_kind); }
    EventKind kind() const { return m_kind; }
    /// Unknown texts are ignored.
    void setKind(const QString &kind);
    static QList<Choice> kinds();
    bool canAdd() const { return !m_title.trimmed().isEmpty(); }

    /// After midnight; nothing for an all-day event.
    std::optional<qint64> timeMinutes() const;
    /// Makes it ready for the next event; the time stays.
    void reset();

signals:
    void titleChanged();
    void timeEnabledChanged();
    void timeChanged();
    void kindChanged();

private:
    QString m_title;
    bool m_timeEnabled = false;
    QDateTime m_time;
    EventKind m_kind = EventKind::event;
};
