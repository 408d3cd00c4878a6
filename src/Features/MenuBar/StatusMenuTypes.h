#pragma once

#include <QDBusArgument>
#include <QVariantMap>

/// The names of these are those of the desktop's menu protocol.

/// An item of the menu with those below it, each of the latter a `StatusMenuLayout` in a variant.
struct StatusMenuLayout {
    int id = 0;
    QVariantMap properties;
    QVariantList children;
};

struct StatusMenuProperties {
    int id = 0;
    QVariantMap properties;
};

struct StatusMenuEvent {
    int id = 0;
    QString event;
    QDBusVariant data;
    uint timestamp = 0;
};

Q_DECLARE_METATYPE(StatusMenuLayout)
Q_DECLARE_METATYPE(StatusMenuProperties)
Q_DECLARE_METATYPE(StatusMenuEvent)

QDBusArgument &operator<<(QDBusArgument &argument, const StatusMenuLayout &layout);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusMenuLayout &layout);
QDBusArgument &operator<<(QDBusArgument &argument, const StatusMenuProperties &properties);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusMenuProperties &properties);
QDBusArgument &operator<<(QDBusArgument &argument, const StatusMenuEvent &event);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusMenuEvent &event);
