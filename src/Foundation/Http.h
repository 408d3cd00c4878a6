#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QUrl>

#include <chrono>
#include <expected>
#include <functional>

class QObject;

struct HttpRequest {
    QUrl url;
    /// Sent as "User-Agent"; empty for none.
    QByteArray userAgent = {};
};

/// What one exchange with a server may cost at most.
struct HttpLimits {
    /// From the request to the last byte, redirects included.
    std::chrono::milliseconds totalTimeout;
    /// Without progress: a line of the header, or bytes of the body.
    std::chrono::milliseconds idleTimeout;
    /// Bytes of the body, packed as well as unpacked.
    qint64 maxBytes;
};

/// The complete response of a server; with a status of 300 or more, as much of its body as came.
struct HttpResponse {
    int status = 0;
    /// In lower case, with its parameters; empty if the server sent none.
    QByteArray contentType;
    QByteArray body;

    bool isSuccess() const { return status >= 200 && status < 300; }
};

/// The response, or a sentence why there is none.
using HttpResult = std::expected<HttpResponse, QString>;

/// Takes the body of a response piece by piece, first with no bytes at all once the header is there. The
/// content length is that of the whole body, or -1. An error ends the exchange and becomes its result.
///
/// It is called on the thread of the exchange, and not after the owner's children have been destroyed: what
/// it uses has to be its own.
using HttpSink = std::function<std::expected<void, QString>(QByteArrayView bytes, qint64 contentLength)>;

/// Bounded requests to servers that may be slow, broken or hostile. Only http and https addresses are asked.
/// Redirects are followed, but never from https to http nor more than ten; the response of any other redirect
/// is the result. A packed body is unpacked, and one that ends early is a failure.
///
/// Each exchange runs on a thread of its own. `done` is called once, on the owner's thread and after the call
/// has returned, unless the owner is destroyed first: then the exchange ends at once.
namespace Http
{
/// Whether the address is one that can be asked: http or https, with a host.
bool isWebAddress(const QUrl &address);

void get(const HttpRequest &request, const HttpLimits &limits, QObject *owner,
         std::function<void(HttpResult)> done);
/// Hands the body of a success on to the sink and keeps none of it; any other body is dropped. The body of
/// the result is empty.
void download(const HttpRequest &request, const HttpLimits &limits, HttpSink sink, QObject *owner,
              std::function<void(HttpResult)> done);
/// Asks for the header alone.
void head(const HttpRequest &request, const HttpLimits &limits, QObject *owner,
          std::function<void(HttpResult)> done);
} // namespace Http
