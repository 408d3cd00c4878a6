#pragma once

#include "Features/Code/CodeRunnerOptions.h"
#include "Features/Code/ProcessRun.h"
#include "Models/CodeLanguage.h"

#include <QHash>
#include <QMutex>

#include <optional>

/// How a language is run on this machine.
struct CodeCommand {
    QString executable;
    /// "{file}" stands for the path of the snippet.
    QStringList arguments;
    std::chrono::seconds timeout{};
    /// For the status line.
    QString label;
};

/// Finds the interpreters of the machine and knows their versions. Safe to use from several threads; calls
/// may block for seconds.
class Interpreters
{
public:
    /// @param cancelled can be read when all waiting should end
    Interpreters(const CodeRunnerOptions &options, int cancelled) : m_options(options), m_cancelled(cancelled)
    {
    }

    /// Nothing if the language has no interpreter here.
    std::optional<CodeCommand> command(CodeLanguage language) const;

    /// The path of an executable, looked for in the standard folders, then by the login shell.
    std::optional<QString> resolve(const QString &name) const;
    std::optional<QString> shellWhich(const QString &name) const;

    /// What the executable says about its version, in one line, or else its name. Asked once.
    QString versionLabel(const QString &path) const;

    /// The first number of a version text.
    static std::optional<int> nodeMajor(const QString &label);

private:
    std::optional<CodeCommand> typescriptCommand() const;
    /// What the program prints, once it has ended.
    QString printed(const QString &program, const QStringList &arguments) const;

    CodeRunnerOptions m_options;
    int m_cancelled;
    mutable QMutex m_mutex;
    mutable QHash<QString, QString> m_labels;
};
