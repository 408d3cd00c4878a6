#include "Harness/HttpTestServer.h"

#include <QFile>
#include <QProcess>
#include <QSslConfiguration>
#include <QSslServer>
#include <QSslSocket>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;

TestCertificate TestCertificate::make()
{
    const QTemporaryDir folder;
    const QString certificatePath = folder.filePath(u"certificate.pem"_s);
    const QString keyPath = folder.filePath(u"key.pem"_s);
    QProcess openssl;
    openssl.start(u"openssl"_s,
                  {u"req"_s, u"-x509"_s, u"-newkey"_s, u"rsa:2048"_s, u"-nodes"_s, u"-days"_s, u"2"_s,
                   u"-subj"_s, u"/CN=127.0.0.1"_s, u"-addext"_s, u"subjectAltName=IP:127.0.0.1"_s, u"-out"_s,
                   certificatePath, u"-keyout"_s, keyPath});
    QFile certificate(certificatePath);
    QFile key(keyPath);
    const bool isMade = openssl.waitForFinished() && openssl.exitCode() == 0;
    if (!isMade || !certificate.open(QIODevice::ReadOnly) || !key.open(QIODevice::ReadOnly))
        return TestCertificate();
    return {QSslCertificate(&certificate), QSslKey(&key, QSsl::Rsa)};
}

void TestCertificate::trust() const
{
    static const QTemporaryDir folder;
    QFile file(folder.filePath(u"trusted.pem"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(certificate.toPem()) < 0)
        qFatal("The certificate can't be written");
    qputenv("SSL_CERT_FILE", QFile::encodeName(file.fileName()));
}

HttpTestServer::HttpTestServer(const TestCertificate &certificate, QObject *parent)
    : QObject(parent), m_isSecure(!certificate.isNull())
{
    if (m_isSecure) {
        auto server = std::make_unique<QSslServer>();
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(certificate.certificate);
        configuration.setPrivateKey(certificate.key);
        configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
        server->setSslConfiguration(configuration);
        m_server = std::move(server);
    } else {
        m_server = std::make_unique<QTcpServer>();
    }
    // A proxy of the machine is not asked for this server.
    qputenv("NO_PROXY", "127.0.0.1");
    connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, this, &HttpTestServer::accept);
    if (!m_server->listen(QHostAddress::LocalHost))
        qFatal("The test server can't listen: %s", qPrintable(m_server->errorString()));
}

HttpTestServer::~HttpTestServer()
{
    // The sockets die with the server, and must not speak to a half destroyed one.
    for (QTcpSocket *const socket : m_sockets.keys())
        socket->disconnect(this);
}

QUrl HttpTestServer::url(const QString &path) const
{
    const QString scheme = m_isSecure ? u"https"_s : u"http"_s;
    return QUrl(u"%1://127.0.0.1:%2%3"_s.arg(scheme).arg(m_server->serverPort()).arg(path));
}

void HttpTestServer::accept()
{
    while (QTcpSocket *const socket = m_server->nextPendingConnection()) {
        m_sockets.insert(socket, {});
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] { drop(socket); });
        read(socket);
    }
}

void HttpTestServer::drop(QTcpSocket *socket)
{
    m_sockets.remove(socket);
    m_waiting.removeIf([socket](const Waiting &waiting) { return waiting.socket == socket; });
    socket->deleteLater();
}

void HttpTestServer::read(QTcpSocket *socket)
{
    QByteArray &received = m_sockets[socket];
    received += socket->readAll();
    const qsizetype end = received.indexOf("\r\n\r\n");
    if (end < 0)
        return;
    const QList<QByteArray> lines = received.left(end).split('\n');
    received.clear();
    const QList<QByteArray> first = lines.first().trimmed().split(' ');
    Request request{first.value(0), first.value(1), {}};
    for (const QByteArray &line : lines.mid(1)) {
        const qsizetype colon = line.indexOf(':');
        request.headers.insert(line.left(colon).toLower(), line.mid(colon + 1).trimmed());
    }
    m_requests.append(request);
    respond(socket, QUrl::fromEncoded(request.target).path());
}

void HttpTestServer::respond(QTcpSocket *socket, const QString &path)
{
    Answer missing;
    missing.status = 404;
    missing.contentType = "text/html";
    missing.body = "<html><body>There is nothing here.</body></html>";
    Answer answer = m_answers.value(path, missing);
    if (m_requests.last().method == "HEAD") {
        answer.contentLength = answer.contentLength.value_or(answer.body.size());
        answer.body.clear();
    }
    if (answer.pace == Pace::onRelease)
        m_waiting.append({path, socket, answer});
    else
        send(socket, answer);
}

void HttpTestServer::release(const QString &path)
{
    const QList<Waiting> waiting = m_waiting;
    m_waiting.removeIf([&path](const Waiting &each) { return each.path == path; });
    for (const Waiting &each : waiting)
        if (each.path == path)
            send(each.socket, each.answer);
}

void HttpTestServer::send(QTcpSocket *socket, const Answer &answer)
{
    if (answer.pace == Pace::silent)
        return;
    if (answer.pace == Pace::hangingUp) {
        socket->disconnectFromHost();
        return;
    }
    const bool hasLength = answer.pace != Pace::dripping && answer.pace != Pace::endless;
    QByteArray head = "HTTP/1.1 " + QByteArray::number(answer.status) + " Test\r\nConnection: close\r\n";
    const auto header = [&head](const char *name, const QByteArray &value) {
        if (!value.isEmpty())
            head += QByteArray(name) + ": " + value + "\r\n";
    };
    header("Content-Type", answer.contentType);
    header("Content-Encoding", answer.contentEncoding);
    header("Location", answer.location);
    if (hasLength)
        header("Content-Length", QByteArray::number(answer.contentLength.value_or(answer.body.size())));
    socket->write(answer.raw.isEmpty() ? head + "\r\n" + answer.body : answer.raw);

    if (answer.pace == Pace::dripping) {
        auto *const timer = new QTimer(socket);
        connect(timer, &QTimer::timeout, socket, [socket] { socket->write("."); });
        timer->start(5);
    } else if (answer.pace == Pace::endless) {
        auto *const timer = new QTimer(socket);
        const QByteArray filler = answer.filler.repeated(1 + 64 * 1024 / answer.filler.size());
        connect(timer, &QTimer::timeout, socket,
                [filler, socket, secure = qobject_cast<QSslSocket *>(socket)] {
                    const qint64 waiting =
                        socket->bytesToWrite() + (secure ? secure->encryptedBytesToWrite() : 0);
                    if (waiting < 64 * 1024)
                        socket->write(filler);
                });
        timer->start(0);
    } else if (answer.pace != Pace::stalling) {
        socket->disconnectFromHost();
    }
}
