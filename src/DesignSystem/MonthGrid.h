#pragma once

#include <QAbstractListModel>
#include <QDateTime>
#include <QStringList>
#include <qqmlregistration.h>

/// The month a date picker shows: six weeks of days from a Sunday on, with a cursor that the keyboard moves
/// and the chosen day. Moving the cursor out of the month turns the page.
class MonthGrid : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    /// The chosen moment; an invalid date means that nothing is chosen. Setting it moves the cursor there.
    Q_PROPERTY(QDateTime value READ value WRITE setValue NOTIFY valueChanged FINAL)
    /// The present moment: it marks today, and gives the time of day while nothing is chosen.
    Q_PROPERTY(QDateTime now READ now WRITE setNow NOTIFY nowChanged FINAL)
    /// The month and year shown, such as "November 2026".
    Q_PROPERTY(QString title READ title NOTIFY cursorChanged FINAL)
    /// The cell of the cursor's day, and that day in words for assistive tools.
    Q_PROPERTY(int cursorIndex READ cursorIndex NOTIFY cursorChanged FINAL)
    Q_PROPERTY(QString cursorText READ cursorText NOTIFY cursorChanged FINAL)
    /// "Sun" to "Sat".
    Q_PROPERTY(QStringList weekdays READ weekdays CONSTANT FINAL)

public:
    enum Role { Number = Qt::UserRole, InMonth, Today, Chosen, Label };

    explicit MonthGrid(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    QDateTime value() const;
    void setValue(const QDateTime &value);
    QDateTime now() const;
    void setNow(const QDateTime &now);
    QString title() const;
    int cursorIndex() const;
    QString cursorText() const;
    QStringList weekdays() const;

    Q_INVOKABLE void moveDays(int days);
    Q_INVOKABLE void moveMonths(int months);
    Q_INVOKABLE void moveToWeekStart();
    Q_INVOKABLE void moveToWeekEnd();
    Q_INVOKABLE void moveToToday();
    Q_INVOKABLE void moveToCell(int index);

    /// The moment that choosing the cursor's day means: that day at the value's time of day.
    Q_INVOKABLE QDateTime momentAtCursor() const;

signals:
    void valueChanged();
    void nowChanged();
    void cursorChanged();

private:
    QDate dayOfCell(int index) const;
    QDate firstCell() const;
    void setCursor(QDate day);
    void cellsChanged();

    QDateTime m_value;
    QDateTime m_now;
    QDate m_cursor;
};
