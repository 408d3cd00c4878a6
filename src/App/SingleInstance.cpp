#include "App/SingleInstance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLoggingCategory>
#include <QStandardPaths>
#include <QThread>

using namespace std::chrono_literals;

namespace
{
Q_LOGGING_CATEGORY(instanceLog, "orvel.instance")

constexpr char request[] = "show ";
constexpr char answer[] = "shown\n";
constexpr qint64 longestRequest = 4096;
} // namespace

SingleInstance::Options SingleInstance::Options::forWorkspace(const QString &filePath)
{
    const auto target = AtomicFile::realPath(filePath);
    const QFileInfo file(target ? QFile::decodeName(target->c_str()) : filePath);
    const QString lockName = file.completeBaseName() + QStringLiteral(".lock");
    const QString place = QFileInfo(file.path()).canonicalFilePath() + u'/' + lockName;
    const QByteArray name =
        QCryptographicHash::hash(QFile::encodeName(place), QCryptographicHash::Sha256).toHex().first(16);
    return {.lockPath = file.dir().filePath(lockName),
            .socketPath = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
                          QStringLiteral("/orvel-%1.socket").arg(QString::fromLatin1(name))};
}

SingleInstance::SingleInstance(Options options, QObject *parent)
    : QObject(parent), m_options(std::move(options)), m_lock(m_options.lockPath)
{
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::greet);
}

SingleInstance::~SingleInstance()
{
    m_server.close();
}

std::expected<SingleInstance::Role, QString> SingleInstance::start(const QByteArray &activationToken)
{
    const QDeadlineTimer deadline(m_options.patience);
    // The other start may be on its way up, not listening yet, or on its way out, about to release the lock.
    do {
        const FileLock::State state = m_lock.acquire();
        if (state == FileLock::State::held)
            return Role::writer;
        if (ask(activationToken, deadline.remainingTimeAsDuration() / 1ms * 1ms))
            return Role::visitor;
        // Where no lock can be made nothing can be written either, and only an answer proves another start.
        if (state == FileLock::State::impossible)
            return Role::writer;
        QThread::msleep(20);
    } while (!deadline.hasExpired());
    return std::unexpected(
        QStringLiteral("Orvel is already running but does not answer; end it and start Orvel again."));
}

std::expected<void, QString> SingleInstance::checkLock()
{
    if (m_lock.check() == FileLock::State::taken)
        return std::unexpected(tr("another Orvel is writing this workspace"));
    return {};
}

void SingleInstance::listen()
{
    if (m_server.isListening())
        return;
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    // A killed process leaves its socket behind; the process that holds the lock may clear it away.
    QLocalServer::removeServer(m_options.socketPath);
    if (!m_server.listen(m_options.socketPath))
        qCWarning(instanceLog, "A second start of Orvel will not find this one: %s",
                  qUtf8Printable(m_server.errorString()));
}

void SingleInstance::greet()
{
    while (QLocalSocket *const visitor = m_server.nextPendingConnection()) {
        connect(visitor, &QLocalSocket::disconnected, visitor, &QObject::deleteLater);
        const auto serve = [this, visitor] {
            if (!visitor->canReadLine()) {
                if (visitor->bytesAvailable() > longestRequest)
                    visitor->abort();
                return;
            }
            const QByteArray line = visitor->readLine().trimmed() + ' ';
            if (line.startsWith(request)) {
                emit raiseRequested(line.sliced(qstrlen(request)).trimmed());
                visitor->write(answer);
            }
            visitor->disconnectFromServer();
        };
        connect(visitor, &QLocalSocket::readyRead, this, serve);
        if (visitor->bytesAvailable() > 0)
            serve();
    }
}

bool SingleInstance::ask(const QByteArray &activationToken, std::chrono::milliseconds patience) const
{
    const auto wait = int(patience.count());
    QLocalSocket socket;
    socket.connectToServer(m_options.socketPath);
    if (!socket.waitForConnected(wait))
        return false;
    socket.write(request + activationToken + '\n');
    while (!socket.canReadLine())
        if (!socket.waitForReadyRead(wait))
            return false;
    return socket.readLine() == answer;
}
