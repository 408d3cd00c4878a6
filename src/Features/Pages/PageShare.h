#pragma once

#include "Models/Page.h"

#include <QUrl>

#include <expected>

/// How pages leave the program as Markdown. Failures are sentences for the user.
namespace PageShare
{
/// The longest mail link, in bytes: what desktops and mail programs still take reliably.
inline constexpr qsizetype mostMailBytes = 30'000;

/// The file name offered for a page of this title; it is fit for every usual file system.
QString fileName(const QString &title);
std::expected<void, QString> write(const Page &page, const QString &path);
/// The link that opens a new mail with the page in it.
std::expected<QUrl, QString> mailLink(const Page &page);
} // namespace PageShare
