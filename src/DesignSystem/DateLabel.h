#pragma once

#include <QDateTime>
#include <QObject>
#include <qqmlregistration.h>

/// The words a date field shows for its moment: "Nov 22, 2026", "14:30", or "Nov 22, 2026, 14:30".
class DateLabel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QDateTime value MEMBER m_value NOTIFY changed FINAL)
    Q_PROPERTY(bool showsDate MEMBER m_showsDate NOTIFY changed FINAL)
    Q_PROPERTY(bool showsTime MEMBER m_showsTime NOTIFY changed FINAL)
    /// Empty while there is no valid moment.
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)

public:
    using QObject::QObject;

    QString text() const;

signals:
    void changed();

private:
    QDateTime m_value;
    bool m_showsDate = true;
    bool m_showsTime = false;
};
