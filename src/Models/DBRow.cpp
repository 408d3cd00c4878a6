#include "Models/DBRow.h"

QString DBRow::value(const DBProperty &property) const
{
    return values.value(valueKey(property.id));
}

QString DBRow::valueKey(const QUuid &propertyID)
{
    return propertyID.toString(QUuid::WithoutBraces).toUpper();
}
