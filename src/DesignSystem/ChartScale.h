#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// How charts divide their axes, and how many of their labels find room.
class ChartScale : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The marks of an axis of counts: from 0 in even, round steps of at least 1 up to the largest value or
    /// beyond.
    /// @param most how many steps there may be
    Q_INVOKABLE static QList<double> ticks(double largest, int most = 4);
    /// Of every how many labels one is shown, so that none comes near the next, nor one at an end that is
    /// moved inwards.
    /// @param pitch from the middle of one value to that of the next
    /// @param width of the widest label
    Q_INVOKABLE static int labelStep(double pitch, double width, double gap);
    /// The width of the widest text.
    Q_INVOKABLE static double widest(const QStringList &texts, const QFont &font);
    /// "950", "9,500", "12K", "1.2M"
    Q_INVOKABLE static QString shortNumber(double value);
};
