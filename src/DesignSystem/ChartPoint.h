#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// One value of a chart.
struct ChartPoint {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString label MEMBER label FINAL)
    /// For an axis where the label is too long.
    Q_PROPERTY(QString shortLabel MEMBER shortLabel FINAL)
    Q_PROPERTY(double value MEMBER value FINAL)
    /// The value as it is read, such as "80%".
    Q_PROPERTY(QString valueText MEMBER valueText FINAL)
    /// The product's name of an icon; empty for none.
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)

public:
    QString label;
    QString shortLabel;
    double value = 0;
    QString valueText;
    QString symbol = {};

    bool operator==(const ChartPoint &) const = default;
};
