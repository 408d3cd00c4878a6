#pragma once

#include "Features/Code/Interpreters.h"
#include "Features/Code/RunControl.h"
#include "Foundation/FileDescriptor.h"

#include <QObject>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <optional>

/// What became of a run.
struct CodeRunResult {
    /// A run is stopped by the user, and timed out by the program.
    enum class Status { success, failure, timedOut, stopped, unsupported };
    Status status = Status::success;
    /// For the console.
    QString output;
    /// Seconds; 0 when nothing ran.
    double duration = 0;
    /// The interpreter that ran, for the status line.
    std::optional<QString> tool;

    bool operator==(const CodeRunResult &) const = default;
};

/// Runs snippets of source with the interpreters of this machine, off the main thread, several at once.
/// Destroying it ends what is running; no process and no scratch folder of a run outlives it.
class CodeRunner : public QObject
{
    Q_OBJECT

public:
    explicit CodeRunner(const CodeRunnerOptions &options = CodeRunnerOptions::ofThisMachine(),
                        QObject *parent = nullptr);
    ~CodeRunner() override;

    using Answer = std::function<void(const CodeRunResult &)>;

    /// Starts a run and returns at once. The answer comes in the runner's thread, unless `context` or the
    /// runner is gone by then.
    std::shared_ptr<RunControl> run(const QString &source, CodeLanguage language, QObject *context,
                                    const Answer &answer);

    /// Whether the language can be run at all, leaving aside which interpreters are there.
    static bool canRun(CodeLanguage language);
    /// The sentence for a language that can't be run.
    static QString unsupportedReason(CodeLanguage language);
    /// The text freed of what pasting brings along and interpreters stumble over.
    static QString prepared(const QString &source);
    /// JSON is its own interpreter: it is checked and laid out.
    static CodeRunResult validateJSON(const QString &source);

private:
    CodeRunResult result(const QString &source, CodeLanguage language, RunControl &control) const;
    CodeRunResult execute(const QString &source, CodeLanguage language, RunControl &control) const;
    CodeRunResult executeIn(const QString &folder, const QString &source, CodeLanguage language,
                            const CodeCommand &command, RunControl &control) const;

    CodeRunnerOptions m_options;
    /// Can be read once the runs have to end.
    FileDescriptor m_cancelled;
    Interpreters m_interpreters;
    QThreadPool m_threads;
};
