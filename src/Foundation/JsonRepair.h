#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

/// Makes JSON again of bytes that are JSON but for a small damage, such as power cuts, other programs and
/// faulty memory leave. A whole document passes without a change.
namespace JsonRepair
{
/// The document without a UTF-8 mark before it and without blanks and NULs around it.
QByteArrayView trimmed(QByteArrayView bytes);

/// The document as UTF-8 if it is UTF-16 that begins with its mark, else nothing.
std::optional<QByteArray> fromUtf16(QByteArrayView bytes);

/// Replaces what a strict parser refuses in texts and numbers: bytes that are no UTF-8 and escaped halves of
/// surrogate pairs become U+FFFD, integers beyond 64 bits become numbers with an exponent, and numbers too
/// large for a double become the largest double.
QByteArray repaired(QByteArrayView json);
} // namespace JsonRepair
