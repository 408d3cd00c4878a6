#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <expected>
#include <functional>

class QNetworkAccessManager;
class QNetworkRequest;
class QObject;
class QUrl;

/// What one exchange with a server may cost at most.
struct HttpLimits {
    /// From the request to the last byte, redirects included.
    std::chrono::milliseconds whole;
    /// Without a single byte from the server.
    std::chrono::milliseconds silence;
    /// Bytes of the body.
    qint64 bytes;
};

/// The whole answer of a server, whatever its status.
struct HttpAnswer {
    int status = 0;
    /// In lower case, with its parameters; empty if the server told none.
    QByteArray contentType;
    QByteArray body;

    bool isSuccess() const { return status >= 200 && status < 300; }
};

/// The answer, or the reason why there is none, for logs rather than for the person.
using HttpResult = std::expected<HttpAnswer, QString>;

/// Bounded requests to servers nobody here controls. Only http and https addresses are asked; redirects are
/// followed, but never from https to http and never for ever. A body that ends before its told length is a
/// failure.
///
/// `done` is called once, after the call has returned, unless `owner` dies first: then the exchange ends
/// without a word.
namespace Http
{
/// Whether the address is one that can be asked: http or https, with a host.
bool isWebAddress(const QUrl &address);

void get(QNetworkAccessManager &network, const QNetworkRequest &request, const HttpLimits &limits,
         QObject *owner, std::function<void(HttpResult)> done);
/// Asks for the headers alone.
void head(QNetworkAccessManager &network, const QNetworkRequest &request, const HttpLimits &limits,
          QObject *owner, std::function<void(HttpResult)> done);
} // namespace Http
