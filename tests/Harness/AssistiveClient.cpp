#include "Harness/AssistiveClient.h"

#include <QDBusArgument>
#include <QDBusVariant>
#include <QDir>
#include <QTest>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{
const QString accessible = u"org.a11y.atspi.Accessible"_s;
const QString action = u"org.a11y.atspi.Action"_s;
const QString rootPath = u"/org/a11y/atspi/accessible/root"_s;

/// Numbers of states on the bus.
enum State { checked = 4, focusable = 11, selected = 23, sensitive = 24, visible = 30 };

bool has(quint64 states, State state)
{
    return states & (quint64(1) << state);
}

struct Reference {
    QString service;
    QString path;
};

QList<Reference> references(const QDBusMessage &answer)
{
    QList<Reference> found;
    if (answer.type() != QDBusMessage::ReplyMessage)
        return found;
    const auto list = answer.arguments().constFirst().value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        Reference reference;
        QDBusObjectPath path;
        list.beginStructure();
        list >> reference.service >> path;
        list.endStructure();
        reference.path = path.path();
        found.append(reference);
    }
    list.endArray();
    return found;
}

QDBusConnection bus()
{
    return QDBusConnection(u"accessibility"_s);
}
} // namespace

AssistiveClient::AssistiveClient() : m_environment(QProcessEnvironment::systemEnvironment())
{
    // High enough for a gallery without scrolling: what is scrolled away counts as not shown.
    m_display.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-nolisten"_s, u"tcp"_s, u"-noreset"_s,
                                u"-screen"_s, u"0"_s, u"1240x9000x24"_s});
    if (!m_display.waitForStarted()) {
        m_missing = u"there is no Xvfb"_s;
        return;
    }
    while (!m_display.canReadLine() && m_display.waitForReadyRead()) {
    }
    m_environment.insert(u"DISPLAY"_s, u':' + QString::fromLatin1(m_display.readLine().trimmed()));
    m_environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    m_environment.insert(u"HOME"_s, m_folder.path());
    m_environment.insert(u"XDG_RUNTIME_DIR"_s, m_folder.path());
    m_environment.insert(u"GSETTINGS_BACKEND"_s, u"memory"_s);
    m_environment.remove(u"AT_SPI_BUS_ADDRESS"_s);
    if (!openBus())
        m_missing = u"there is no accessibility bus"_s;
}

AssistiveClient::~AssistiveClient()
{
    stop();
    QDBusConnection::disconnectFromBus(u"accessibility"_s);
    QDBusConnection::disconnectFromBus(u"session"_s);
    for (QProcess *const process : {&m_session, &m_display}) {
        process->terminate();
        process->waitForFinished();
    }
}

bool AssistiveClient::openBus()
{
    m_session.setProcessEnvironment(m_environment);
    m_session.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    if (!m_session.waitForStarted() || !m_session.waitForReadyRead())
        return false;
    const QString address = QString::fromUtf8(m_session.readAllStandardOutput()).trimmed();
    m_environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address);

    const QDBusConnection session = QDBusConnection::connectToBus(address, u"session"_s);
    const auto ask = [&](const QString &interface, const QString &method, const QVariantList &arguments) {
        auto message =
            QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, interface, method);
        message.setArguments(arguments);
        return session.call(message);
    };
    // As a screen reader does when it starts.
    ask(u"org.freedesktop.DBus.Properties"_s, u"Set"_s,
        {u"org.a11y.Status"_s, u"IsEnabled"_s, QVariant::fromValue(QDBusVariant(true))});
    const QDBusMessage answer = ask(u"org.a11y.Bus"_s, u"GetAddress"_s, {});
    return answer.type() == QDBusMessage::ReplyMessage &&
           QDBusConnection::connectToBus(answer.arguments().constFirst().toString(), u"accessibility"_s)
               .isConnected();
}

bool AssistiveClient::start(const QString &program, const std::function<void(const QString &)> &prepare)
{
    stop();
    const QString data = m_folder.filePath(u"data"_s);
    QDir(data).removeRecursively();
    QDir().mkpath(data);
    if (prepare)
        prepare(data);
    m_environment.insert(u"XDG_DATA_HOME"_s, data);
    m_environment.insert(u"XDG_CONFIG_HOME"_s, m_folder.filePath(u"config"_s));
    m_environment.insert(u"XDG_STATE_HOME"_s, m_folder.filePath(u"state"_s));
    m_program = std::make_unique<QProcess>();
    m_program->setProcessEnvironment(m_environment);
    m_program->setProcessChannelMode(QProcess::ForwardedChannels);
    m_program->start(program, QStringList());
    return m_program->waitForStarted() && QTest::qWaitFor([this] { return findProgram(); }, 30'000);
}

void AssistiveClient::stop()
{
    m_service.clear();
    if (!m_program)
        return;
    m_program->terminate();
    m_program->waitForFinished();
    m_program.reset();
}

bool AssistiveClient::findProgram()
{
    const auto ask =
        QDBusMessage::createMethodCall(u"org.a11y.atspi.Registry"_s, rootPath, accessible, u"GetChildren"_s);
    const QList<Reference> programs = references(bus().call(ask));
    if (programs.isEmpty())
        return false;
    m_service = programs.constLast().service;
    return !all().isEmpty();
}

QDBusMessage AssistiveClient::call(const QString &path, const QString &interface, const QString &method,
                                   const QVariantList &arguments) const
{
    auto message = QDBusMessage::createMethodCall(m_service, path, interface, method);
    message.setArguments(arguments);
    return bus().call(message);
}

QVariant AssistiveClient::property(const QString &path, const QString &name) const
{
    const QDBusMessage answer =
        call(path, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {accessible, name});
    return answer.type() == QDBusMessage::ReplyMessage
               ? answer.arguments().constFirst().value<QDBusVariant>().variant()
               : QVariant();
}

AssistiveClient::Seen AssistiveClient::look(const QString &path, quint64 states) const
{
    QStringList words{call(path, accessible, u"GetRoleName"_s).arguments().value(0).toString(),
                      property(path, u"Name"_s).toString()};
    static constexpr std::array told{std::pair(checked, "checked"), std::pair(selected, "selected")};
    for (const auto &[state, word] : told)
        if (has(states, state))
            words << QString::fromLatin1(word);
    if (!has(states, sensitive))
        words << u"disabled"_s;
    return {path, words.join(u' ')};
}

void AssistiveClient::collect(const QString &path, QList<Seen> &found) const
{
    for (const Reference &child : references(call(path, accessible, u"GetChildren"_s))) {
        const QDBusMessage answer = call(child.path, accessible, u"GetState"_s);
        if (answer.type() != QDBusMessage::ReplyMessage)
            continue;
        QList<uint> parts;
        answer.arguments().constFirst().value<QDBusArgument>() >> parts;
        const quint64 states = parts.value(0) | quint64(parts.value(1)) << 32;
        if (!has(states, visible))
            continue;
        found << look(child.path, states);
        collect(child.path, found);
    }
}

QList<AssistiveClient::Seen> AssistiveClient::all() const
{
    QList<Seen> found;
    collect(rootPath, found);
    return found;
}

QStringList AssistiveClient::texts() const
{
    QStringList texts;
    const QList<Seen> seen = all();
    for (const Seen &one : seen)
        texts << one.text;
    return texts;
}

QString AssistiveClient::waitFor(const QString &text) const
{
    QString path;
    const auto shows = [&] {
        const QList<Seen> seen = all();
        const auto match = std::ranges::find(seen, text, &Seen::text);
        path = match == seen.end() ? QString() : match->path;
        return !path.isEmpty();
    };
    return QTest::qWaitFor(shows, 15'000) ? path : QString();
}

QStringList AssistiveClient::actions(const QString &path) const
{
    QStringList names;
    const QDBusMessage answer = call(path, action, u"GetActions"_s);
    if (answer.type() != QDBusMessage::ReplyMessage)
        return names;
    const auto list = answer.arguments().constFirst().value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        QString name, description, keys;
        list.beginStructure();
        list >> name >> description >> keys;
        list.endStructure();
        names << name;
    }
    list.endArray();
    return names;
}

bool AssistiveClient::act(const QString &path, const QString &name) const
{
    const qsizetype index = actions(path).indexOf(name);
    return index >= 0 && call(path, action, u"DoAction"_s, {int(index)}).arguments().value(0).toBool();
}

bool AssistiveClient::press(const QString &path) const
{
    return act(path, u"Press"_s);
}

bool AssistiveClient::focus(const QString &path) const
{
    return act(path, u"SetFocus"_s);
}
