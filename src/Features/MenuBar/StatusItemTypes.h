#pragma once

#include <QDBusArgument>
#include <QImage>

/// A picture as status items hand it over: big-endian ARGB32.
struct StatusPixmap {
    int width = 0;
    int height = 0;
    QByteArray data;

    static StatusPixmap of(const QImage &image);
};
using StatusPixmaps = QList<StatusPixmap>;

struct StatusToolTip {
    QString iconName;
    StatusPixmaps icon;
    QString title;
    QString text;
};

Q_DECLARE_METATYPE(StatusPixmap)
Q_DECLARE_METATYPE(StatusToolTip)

QDBusArgument &operator<<(QDBusArgument &argument, const StatusPixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusPixmap &pixmap);
QDBusArgument &operator<<(QDBusArgument &argument, const StatusToolTip &toolTip);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusToolTip &toolTip);
