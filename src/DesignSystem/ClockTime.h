#pragma once

#include <QDateTime>
#include <QObject>
#include <qqmlregistration.h>

/// The time of day that a time picker edits. Every step keeps the day, also where the hours or minutes run
/// past their end.
class ClockTime : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The edited moment; an invalid one reads as midnight and cannot be edited.
    Q_PROPERTY(QDateTime value READ value WRITE setValue NOTIFY valueChanged FINAL)
    /// Two digits each, the hours from "00" to "23".
    Q_PROPERTY(QString hourText READ hourText NOTIFY valueChanged FINAL)
    Q_PROPERTY(QString minuteText READ minuteText NOTIFY valueChanged FINAL)

public:
    enum Part { Hours, Minutes };
    Q_ENUM(Part)

    using QObject::QObject;

    QDateTime value() const;
    void setValue(const QDateTime &value);
    QString hourText() const;
    QString minuteText() const;

    /// Moves one part by so many units, wrapping round within the part.
    Q_INVOKABLE void step(ClockTime::Part part, int units);

    /// Takes a typed digit: the first one stands for itself, a second one that fits moves it to the tens.
    /// True when the part cannot take another digit, so that typing goes on in the next part.
    Q_INVOKABLE bool typeDigit(ClockTime::Part part, int digit);

    /// The next typed digit starts a part afresh.
    Q_INVOKABLE void endTyping();

signals:
    void valueChanged();
    /// The time was changed here, rather than by setting the value.
    void edited(const QDateTime &value);

private:
    int amount(Part part) const;
    void setAmount(Part part, int amount);

    QDateTime m_value;
    bool m_typing = false;
};
