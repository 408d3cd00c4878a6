#include "Features/MenuBar/StatusItemTypes.h"

#include <QtEndian>

StatusPixmap StatusPixmap::of(const QImage &image)
{
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    StatusPixmap pixmap{pixels.width(), pixels.height(), {}};
    pixmap.data.resize(pixels.sizeInBytes());
    qToBigEndian<quint32>(pixels.constBits(), pixels.sizeInBytes() / 4, pixmap.data.data());
    return pixmap;
}

QDBusArgument &operator<<(QDBusArgument &argument, const StatusPixmap &pixmap)
{
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.data;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, StatusPixmap &pixmap)
{
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.data;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const StatusToolTip &toolTip)
{
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.icon << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, StatusToolTip &toolTip)
{
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.icon >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}
