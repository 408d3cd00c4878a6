#pragma once

#include <QList>
#include <QString>
#include <QUrl>

/// The addresses in a text that can be opened: those of the web and of mail, and nothing that could start a
/// program.
namespace TextLinks
{
struct Link {
    qsizetype begin = 0;
    qsizetype end = 0;
    QUrl url;
};

/// Whether the text may hold an address; costs little.
bool mayHaveLinks(QStringView text);
QList<Link> in(QStringView text);
/// The address that this place lies in or at whose end it is; invalid if there is none.
QUrl at(QStringView text, qsizetype position);
/// Whether the address may be opened.
bool isSafe(const QUrl &url);
} // namespace TextLinks
