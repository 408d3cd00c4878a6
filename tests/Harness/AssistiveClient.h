#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QTemporaryDir>

#include <functional>
#include <memory>

/// Assistive technology in a process of its own: it finds a program on a private accessibility bus, walks
/// through what the program shows, and presses it, all by D-Bus calls. The bus, its registry and the display
/// live as long as the client.
class AssistiveClient
{
public:
    AssistiveClient();
    ~AssistiveClient();
    Q_DISABLE_COPY_MOVE(AssistiveClient)

    /// What the machine lacks; empty if there is everything that the client needs.
    QString missing() const { return m_missing; }

    /// Starts the program with a home of its own and waits until it is on the bus.
    /// @param prepare gets the folder of its data before the start
    bool start(const QString &program, const std::function<void(const QString &)> &prepare = {});
    void stop();

    /// One thing that a program shows.
    struct Seen {
        QString path;
        /// Role and name, then the states that hold, such as "radio button All checked".
        QString text;
    };
    /// Everything shown, from the outside inwards.
    QList<Seen> all() const;
    QStringList texts() const;
    /// Waits until something is shown of which this holds; its path, or nothing.
    QString waitFor(const QString &text) const;

    QStringList actions(const QString &path) const;
    bool press(const QString &path) const;
    bool focus(const QString &path) const;

private:
    QDBusMessage call(const QString &path, const QString &interface, const QString &method,
                      const QVariantList &arguments = {}) const;
    QVariant property(const QString &path, const QString &name) const;
    Seen look(const QString &path, quint64 states) const;
    void collect(const QString &path, QList<Seen> &found) const;
    bool act(const QString &path, const QString &action) const;
    bool openBus();
    bool findProgram();

    QTemporaryDir m_folder;
    QProcess m_display, m_session;
    QProcessEnvironment m_environment;
    std::unique_ptr<QProcess> m_program;
    QString m_missing;
    QString m_service;
};
