#pragma once

#include <QByteArrayView>
#include <QString>

/// The plain-text files of the library.
namespace GutenbergText
{
/// The bytes as text: UTF-8, or ISO Latin-1 where they are no UTF-8. Lines end in a single newline.
QString decode(QByteArrayView bytes);
/// Whether the text is a page of the web, as servers and networks send in place of what was asked for.
bool isWebPage(const QString &text);
} // namespace GutenbergText
