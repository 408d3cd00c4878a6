#include "Foundation/Http.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QTimer>

namespace
{
enum class Method { get, head };

constexpr int mostRedirects = 10;
/// What the toolkit may fetch ahead of a program that has no time to take it.
constexpr qint64 mostBytesAhead = 1 << 20;

/// One request under way; deletes itself when it has ended.
class HttpExchange : public QObject
{
public:
    HttpExchange(const HttpLimits &limits, std::function<void(HttpResult)> done, QObject *owner)
        : QObject(owner), m_limits(limits), m_done(std::move(done))
    {
    }
    ~HttpExchange() override { dropReply(); }

    /// Without a sink the body becomes part of the answer.
    void start(QNetworkAccessManager &network, QNetworkRequest request, Method method, HttpSink sink)
    {
        if (!Http::isWebAddress(request.url())) {
            const QString reason =
                QStringLiteral("Not an address of the web: %1").arg(request.url().toString());
            QTimer::singleShot(0, this, [this, reason] { end(std::unexpected(reason)); });
            return;
        }
        request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                             QNetworkRequest::NoLessSafeRedirectPolicy);
        request.setMaximumRedirectsAllowed(mostRedirects);
        request.setTransferTimeout(int(m_limits.silence.count()));
        // A packed body that ends early or is broken comes out of Qt as if it were whole.
        request.setRawHeader("Accept-Encoding", "identity");
        m_sink = std::move(sink);
        m_isBodyExpected = method == Method::get;
        m_reply = m_isBodyExpected ? network.get(request) : network.head(request);
        m_reply->setReadBufferSize(mostBytesAhead);
        connect(m_reply, &QNetworkReply::metaDataChanged, this, &HttpExchange::takeHeaders);
        connect(m_reply, &QNetworkReply::readyRead, this, &HttpExchange::takeBody);
        connect(m_reply, &QNetworkReply::finished, this, &HttpExchange::finish);
        QTimer::singleShot(m_limits.whole, this, [this] { giveUp(tookTooLong()); });
    }

private:
    /// The told length of the body, or -1.
    qint64 toldLength() const
    {
        const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
        return m_isBodyExpected && length.isValid() ? length.toLongLong() : -1;
    }

    void takeHeaders()
    {
        m_answer.status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (toldLength() > m_limits.bytes)
            refuseLength();
        else if (m_sink && m_answer.isSuccess())
            hand({});
    }

    /// False if the exchange has ended over it, and this may be gone.
    bool takeBody()
    {
        const QByteArray bytes = m_reply->readAll();
        m_received += bytes.size();
        if (m_received > m_limits.bytes) {
            refuseLength();
            return false;
        }
        if (!m_sink)
            m_answer.body += bytes;
        return !m_sink || !m_answer.isSuccess() || bytes.isEmpty() || hand(bytes);
    }

    bool hand(QByteArrayView bytes)
    {
        const auto taken = m_sink(bytes, toldLength());
        if (!taken)
            end(std::unexpected(taken.error()));
        return taken.has_value();
    }

    static QString tookTooLong() { return QStringLiteral("The answer took too long."); }

    void refuseLength() { giveUp(QStringLiteral("The answer is longer than %1 bytes.").arg(m_limits.bytes)); }

    /// A refusal is an answer, however badly its page arrives.
    void giveUp(const QString &reason)
    {
        if (m_answer.status >= 400)
            endAnswered();
        else
            end(std::unexpected(reason));
    }

    void finish()
    {
        m_answer.status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (const auto error = m_reply->error(); error != QNetworkReply::NoError) {
            // The toolkit gives up on a silent server; this exchange's own aborts are not heard here.
            giveUp(error == QNetworkReply::OperationCanceledError ? tookTooLong() : m_reply->errorString());
            return;
        }
        if (!takeBody())
            return;
        if (m_isBodyExpected && isPacked())
            end(std::unexpected(QStringLiteral("The answer is packed though that was not asked for.")));
        else if (m_received < toldLength())
            end(std::unexpected(QStringLiteral("The answer ended early.")));
        else
            endAnswered();
    }

    bool isPacked() const
    {
        const QByteArray encoding = m_reply->rawHeader("Content-Encoding").trimmed().toLower();
        return !encoding.isEmpty() && encoding != "identity";
    }

    void endAnswered()
    {
        m_answer.contentType =
            m_reply->header(QNetworkRequest::ContentTypeHeader).toString().toLower().toLatin1();
        end(std::move(m_answer));
    }

    void end(HttpResult result)
    {
        dropReply();
        deleteLater();
        // Whoever is called may delete the owner, and this with it.
        if (const auto done = std::exchange(m_done, nullptr))
            done(std::move(result));
    }

    void dropReply()
    {
        if (!m_reply)
            return;
        m_reply->disconnect(this);
        m_reply->abort();
        m_reply->deleteLater();
        m_reply.clear();
    }

    HttpLimits m_limits;
    std::function<void(HttpResult)> m_done;
    QPointer<QNetworkReply> m_reply;
    HttpSink m_sink;
    bool m_isBodyExpected = true;
    qint64 m_received = 0;
    HttpAnswer m_answer;
};

void begin(Method method, QNetworkAccessManager &network, const QNetworkRequest &request,
           const HttpLimits &limits, HttpSink sink, QObject *owner, std::function<void(HttpResult)> done)
{
    auto *const exchange = new HttpExchange(limits, std::move(done), owner);
    exchange->start(network, request, method, std::move(sink));
}
} // namespace

bool Http::isWebAddress(const QUrl &address)
{
    const QString scheme = address.scheme();
    return address.isValid() && (scheme == u"http" || scheme == u"https") && !address.host().isEmpty();
}

void Http::get(QNetworkAccessManager &network, const QNetworkRequest &request, const HttpLimits &limits,
               QObject *owner, std::function<void(HttpResult)> done)
{
    begin(Method::get, network, request, limits, {}, owner, std::move(done));
}

void Http::download(QNetworkAccessManager &network, const QNetworkRequest &request, const HttpLimits &limits,
                    HttpSink sink, QObject *owner, std::function<void(HttpResult)> done)
{
    begin(Method::get, network, request, limits, std::move(sink), owner, std::move(done));
}

void Http::head(QNetworkAccessManager &network, const QNetworkRequest &request, const HttpLimits &limits,
                QObject *owner, std::function<void(HttpResult)> done)
{
    begin(Method::head, network, request, limits, {}, owner, std::move(done));
}
