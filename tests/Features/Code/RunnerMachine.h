#pragma once

#include "Features/Code/CodeRunner.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUuid>
#include <QtTest>

#include <optional>

/// A machine for a runner: a temporary folder, interpreters of its own, and a mark in the environment by
/// which every process of a run can be found again. A process without it can carry the mark as an argument.
class RunnerMachine
{
public:
    RunnerMachine()
    {
        options = CodeRunnerOptions::ofThisMachine();
        options.environment.insert(QStringLiteral("ORVEL_TEST_MARK"), m_mark);
        options.temporaryFolder = folder.filePath(QStringLiteral("tmp"));
        options.loginShell.clear();
    }

    /// Only interpreters made with `addTool` are found from now on.
    void useOwnTools() { options.folders = {folder.filePath(QStringLiteral("bin"))}; }

    /// An executable of this name; gives its path.
    QString addTool(const QString &name, const QByteArray &script) const
    {
        QDir().mkpath(folder.filePath(QStringLiteral("bin")));
        QFile file(folder.filePath(QStringLiteral("bin/") + name));
        if (!file.open(QIODevice::WriteOnly) || file.write(script) != script.size())
            qFatal("cannot write a tool");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return file.fileName();
    }

    /// The answer of a run; fails loudly if there is none.
    static CodeRunResult answer(CodeRunner &runner, const QString &source, CodeLanguage language)
    {
        std::optional<CodeRunResult> result;
        runner.run(source, language, &runner, [&](const CodeRunResult &got) { result = got; });
        if (!QTest::qWaitFor([&] { return result.has_value(); }, 120'000))
            qFatal("the run does not end");
        return *result;
    }
    CodeRunResult answer(const QString &source, CodeLanguage language) const
    {
        CodeRunner runner(options);
        return answer(runner, source, language);
    }

    /// How many processes of this machine's runs live.
    int processes() const
    {
        int count = 0;
        const QStringList pids =
            QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs);
        for (const QString &pid : pids) {
            for (const QString &name : {QStringLiteral("environ"), QStringLiteral("cmdline")}) {
                QFile file(QStringLiteral("/proc/%1/%2").arg(pid, name));
                if (file.open(QIODevice::ReadOnly) && file.readAll().contains(m_mark.toLatin1())) {
                    ++count;
                    break;
                }
            }
        }
        return count;
    }

    /// A process that is just becoming another program is not counted, so one look has to be enough.
    bool waitForMoreProcessesThan(int count) const
    {
        return QTest::qWaitFor([&] { return processes() > count; }, 30'000);
    }

    QStringList scratchFolders() const
    {
        return QDir(options.temporaryFolder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    CodeRunnerOptions options;
    QTemporaryDir folder;

private:
    QString m_mark = QUuid::createUuid().toString(QUuid::WithoutBraces);
};
