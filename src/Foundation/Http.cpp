#include "Foundation/Http.h"

#include "Foundation/HttpTransfer.h"

#include <QObject>

#include <csignal>
#include <system_error>
#include <thread>

namespace
{
using Done = std::function<void(HttpResult)>;

/// One exchange under way; deletes itself when it has ended.
class HttpExchange : public QObject
{
public:
    HttpExchange(HttpTransfer::Method method, const HttpRequest &request, const HttpLimits &limits,
                 HttpSink sink, Done done, QObject *owner)
        : QObject(owner), m_done(std::move(done))
    {
        try {
            m_thread = std::jthread([=, this, sink = std::move(sink)](const std::stop_token &stop) {
                // Signals are for the main thread; a connection that the server closes raises one as well.
                sigset_t all;
                ::sigfillset(&all);
                ::pthread_sigmask(SIG_BLOCK, &all, nullptr);
                postEnd(HttpTransfer(method, request, limits, sink).run(stop));
            });
        } catch (const std::system_error &error) {
            postEnd(std::unexpected(QString::fromLocal8Bit(error.what())));
        }
    }

private:
    void postEnd(HttpResult result)
    {
        QMetaObject::invokeMethod(
            this, [this, result = std::move(result)]() mutable { end(std::move(result)); },
            Qt::QueuedConnection);
    }

    void end(HttpResult result)
    {
        deleteLater();
        // The callback may delete the owner, and this with it.
        const Done done = std::exchange(m_done, nullptr);
        done(std::move(result));
    }

    Done m_done;
    // Last, so that it has ended before anything that it uses goes.
    std::jthread m_thread;
};
} // namespace

bool Http::isWebAddress(const QUrl &address)
{
    const QString scheme = address.scheme();
    return address.isValid() && (scheme == u"http" || scheme == u"https") && !address.host().isEmpty();
}

void Http::get(const HttpRequest &request, const HttpLimits &limits, QObject *owner, Done done)
{
    new HttpExchange(HttpTransfer::Method::get, request, limits, {}, std::move(done), owner);
}

void Http::download(const HttpRequest &request, const HttpLimits &limits, HttpSink sink, QObject *owner,
                    Done done)
{
    new HttpExchange(HttpTransfer::Method::get, request, limits, std::move(sink), std::move(done), owner);
}

void Http::head(const HttpRequest &request, const HttpLimits &limits, QObject *owner, Done done)
{
    new HttpExchange(HttpTransfer::Method::head, request, limits, {}, std::move(done), owner);
}
