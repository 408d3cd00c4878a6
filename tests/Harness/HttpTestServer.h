#pragma once

#include <QHash>
#include <QObject>
#include <QSslCertificate>
#include <QSslKey>
#include <QTcpServer>
#include <QUrl>

#include <memory>
#include <optional>

class QTcpSocket;

/// A certificate for 127.0.0.1 that nobody trusts but who is told to, made afresh for a test.
struct TestCertificate {
    QSslCertificate certificate = QSslCertificate();
    QSslKey key = QSslKey();

    /// Null if the machine can't make one.
    static TestCertificate make();
    bool isNull() const { return certificate.isNull() || key.isNull(); }
    /// From now on the requests of this program trust it, and no other.
    void trust() const;
};

/// A web server of the test's own, on this machine, that answers each path as well or as badly as it is told.
/// It closes every connection after one answer.
class HttpTestServer : public QObject
{
    Q_OBJECT

public:
    enum class Pace {
        /// The whole answer, then the end of the connection.
        atOnce,
        /// The same, once the test calls `release`.
        onRelease,
        /// Never a byte.
        silent,
        /// Headers and body, then silence without an end.
        stalling,
        /// Headers, then a byte of the body now and then, for ever.
        dripping,
        /// Headers, then the filler again and again, as fast as it is taken.
        endless,
        /// The end of the connection in place of an answer.
        hangingUp,
    };

    struct Answer {
        int status = 200;
        QByteArray contentType = "text/plain; charset=utf-8";
        QByteArray body;
        /// Where a redirect leads; an address or a path.
        QByteArray location;
        /// Sent in place of the true length.
        std::optional<qint64> contentLength;
        QByteArray contentEncoding;
        /// Sent as it is in place of headers and body.
        QByteArray raw;
        QByteArray filler = QByteArray(1024, '.');
        Pace pace = Pace::atOnce;
    };

    struct Request {
        QByteArray method;
        /// Path and query as they came.
        QByteArray target;
        /// Names in lower case.
        QHash<QByteArray, QByteArray> headers;
    };

    /// Speaks http, or https if a certificate is given.
    explicit HttpTestServer(const TestCertificate &certificate = TestCertificate(),
                            QObject *parent = nullptr);
    ~HttpTestServer() override;

    QUrl url(const QString &path = {}) const;

    /// Any other path answers 404.
    void answer(const QString &path, const Answer &answer) { m_answers.insert(path, answer); }
    /// Sends the answers that wait for it on this path, query left out.
    void release(const QString &path);

    const QList<Request> &requests() const { return m_requests; }
    void forgetRequests() { m_requests.clear(); }
    /// How many clients hold on.
    qsizetype openConnections() const { return m_sockets.size(); }

private:
    struct Waiting {
        QString path;
        QTcpSocket *socket;
        Answer answer;
    };

    void accept();
    void read(QTcpSocket *socket);
    void respond(QTcpSocket *socket, const QString &path);
    void send(QTcpSocket *socket, const Answer &answer);
    void drop(QTcpSocket *socket);

    std::unique_ptr<QTcpServer> m_server;
    bool m_isSecure = false;
    QHash<QString, Answer> m_answers;
    QHash<QTcpSocket *, QByteArray> m_sockets;
    QList<Waiting> m_waiting;
    QList<Request> m_requests;
};
