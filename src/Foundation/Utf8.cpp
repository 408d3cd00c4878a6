#include "Foundation/Utf8.h"

#include <QStringDecoder>

std::optional<QString> Utf8::decode(QByteArrayView bytes)
{
    // With state, a character cut off at the end would count as one that is still to come.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    return decoder.hasError() ? std::nullopt : std::optional(std::move(text));
}
