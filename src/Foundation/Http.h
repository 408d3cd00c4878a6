#pragma once

#include <QByteArray>
#include <QByteArrayView>
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

/// The whole answer of a server; with a status of 400 or more, as much of its body as came.
struct HttpAnswer {
    int status = 0;
    /// In lower case, with its parameters; empty if the server told none.
    QByteArray contentType;
    QByteArray body;

    bool isSuccess() const { return status >= 200 && status < 300; }
};

/// The answer, or the reason why there is none, in the words of the system.
using HttpResult = std::expected<HttpAnswer, QString>;

/// Takes the body of an answer piece by piece, first with no bytes at all once the headers are there. The
/// told length is that of the whole body, or -1. An error ends the exchange and becomes its result. It may
/// not end the life of the exchange's owner.
using HttpSink = std::function<std::expected<void, QString>(QByteArrayView bytes, qint64 toldLength)>;

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
/// Hands the body of a success on to the sink and keeps none of it; any other body is dropped. The body of
/// the result is empty.
void download(QNetworkAccessManager &network, const QNetworkRequest &request, const HttpLimits &limits,
              HttpSink sink, QObject *owner, std::function<void(HttpResult)> done);
/// Asks for the headers alone.
void head(QNetworkAccessManager &network, const QNetworkRequest &request, const HttpLimits &limits,
          QObject *owner, std::function<void(HttpResult)> done);
} // namespace Http
