#include "Support/Destination.h"

QString Destination::kindText() const
{
    return enumRawText(kind);
}

QString Destination::text() const
{
    if (!showsRecord(kind))
        return kindText();
    return kindText() + u'/' + id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<Destination> Destination::fromText(const QString &text)
{
    const qsizetype slash = text.indexOf(u'/');
    const auto kind = enumFromRaw<Kind>(text.left(slash));
    if (!kind || showsRecord(*kind) != (slash >= 0))
        return std::nullopt;
    const Destination found{*kind, slash < 0 ? QUuid() : QUuid::fromString(QStringView(text).mid(slash + 1))};
    if (found.text() != text)
        return std::nullopt;
    return found;
}
