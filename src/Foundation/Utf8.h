#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace Utf8
{
/// The bytes as text, without a byte order mark; nothing if they are no UTF-8.
std::optional<QString> decode(QByteArrayView bytes);
} // namespace Utf8
