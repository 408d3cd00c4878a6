#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// What a runner takes from the machine.
struct CodeRunnerOptions {
    /// Where interpreters are looked for first, in this order.
    QStringList folders{QStringLiteral("/opt/homebrew/bin/"), QStringLiteral("/usr/local/bin/"),
                        QStringLiteral("/usr/bin/"), QStringLiteral("/bin/")};
    /// Asked for an interpreter that is in none of them; may be empty.
    QString loginShell;
    QString temporaryFolder;
    QProcessEnvironment environment;
    /// All time-outs are multiplied by it.
    double timeScale = 1;
    /// Bytes kept of each of a child's two outputs.
    qsizetype outputLimit = 16 * 1024 * 1024;
    /// Whether runs get a PID namespace where the system allows it.
    bool isIsolated = true;

    /// Those of this machine and this user.
    static CodeRunnerOptions ofThisMachine();
};
