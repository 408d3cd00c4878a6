#include "App/SingleInstance.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cstdio>
#include <unistd.h>

/// A start of a program that only looks after its being alone: prints what it has become and each wish to
/// show its window, and the writer stays until its input is closed.
/// Arguments: the lock, the socket, the patience in milliseconds, the activation token.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const auto say = [](const QByteArray &line) {
        std::puts(line.constData());
        std::fflush(stdout);
    };
    SingleInstance instance({.lockPath = arguments.at(1),
                             .socketPath = arguments.at(2),
                             .patience = std::chrono::milliseconds(arguments.at(3).toInt())});
    QObject::connect(&instance, &SingleInstance::raiseRequested,
                     [&](const QByteArray &token) { say("raise " + token); });
    const auto role = instance.start(arguments.value(4).toUtf8());
    if (!role) {
        say(role.error().toUtf8());
        return EXIT_FAILURE;
    }
    if (*role == SingleInstance::Role::visitor) {
        say("visitor");
        return EXIT_SUCCESS;
    }
    instance.listen();
    say("writer");
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &QCoreApplication::quit);
    return QCoreApplication::exec();
}
