#pragma once

#include "Features/Code/CodeRunner.h"

#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>

/// Runs snippets one at a time and keeps the result of the last one, as a console shows it. A run ends with
/// its owner.
class CodeRun : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool running READ isRunning NOTIFY runningChanged FINAL)
    Q_PROPERTY(bool hasResult READ hasResult NOTIFY resultChanged FINAL)
    /// The texts below are empty while there is no result.
    Q_PROPERTY(QString statusWord READ statusWord NOTIFY resultChanged FINAL)
    Q_PROPERTY(QString statusSymbol READ statusSymbol NOTIFY resultChanged FINAL)
    /// One of the tones of `OVBadge`.
    Q_PROPERTY(int statusTone READ statusTone NOTIFY resultChanged FINAL)
    Q_PROPERTY(QString durationText READ durationText NOTIFY resultChanged FINAL)
    Q_PROPERTY(QString tool READ tool NOTIFY resultChanged FINAL)
    Q_PROPERTY(QString toolTip READ toolTip CONSTANT FINAL)
    /// What was printed; may be megabytes.
    Q_PROPERTY(QString output READ output NOTIFY resultChanged FINAL)
    /// The same, or a word in its place if it is blank.
    Q_PROPERTY(QString consoleText READ consoleText NOTIFY resultChanged FINAL)

public:
    explicit CodeRun(QObject *parent = nullptr);
    /// With another machine than this one.
    explicit CodeRun(CodeRunnerOptions options, QObject *parent = nullptr);

    /// Does nothing while a run is going; else it takes the last result away and starts.
    /// @param languageRaw an unknown one reads as the first language
    Q_INVOKABLE void run(const QString &source, const QString &languageRaw);
    /// Takes the result away. A run that is going still brings its own.
    Q_INVOKABLE void clear();

    /// Puts all of the output on the clipboard.
    Q_INVOKABLE void copyOutput() const;

    bool isRunning() const { return m_running; }
    bool hasResult() const { return m_result.has_value(); }
    QString statusWord() const;
    QString statusSymbol() const;
    int statusTone() const;
    QString durationText() const;
    QString tool() const;
    QString toolTip() const;
    QString output() const;
    QString consoleText() const;

signals:
    void runningChanged();
    void resultChanged();

private:
    void setResult(std::optional<CodeRunResult> result);

    CodeRunnerOptions m_options;
    /// Made for the first run, since most code that is shown is never run.
    std::unique_ptr<CodeRunner> m_runner;
    bool m_running = false;
    std::optional<CodeRunResult> m_result;
};
