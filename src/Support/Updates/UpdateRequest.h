#pragma once

#include <QNetworkRequest>

/// What is asked of an update site: always afresh, and nothing is remembered afterwards.
namespace UpdateRequest
{
QNetworkRequest to(const QUrl &address, const QByteArray &userAgent);
} // namespace UpdateRequest
