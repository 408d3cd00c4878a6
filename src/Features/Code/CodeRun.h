#pragma once

#include "Features/Code/CodeRunner.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>

/// Runs snippets one at a time and keeps what the last one printed, as a console shows it. A run ends with
/// its owner.
class CodeRun : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool running READ isRunning NOTIFY runningChanged FINAL)
    Q_PROPERTY(bool hasResult READ hasResult NOTIFY resultChanged FINAL)
    /// The texts of the status are empty while there is no result.
    Q_PROPERTY(QString statusWord READ statusWord NOTIFY resultChanged FINAL)
    Q_PROPERTY(QString statusSymbol READ statusSymbol NOTIFY resultChanged FINAL)
    /// One of the tones of `OVBadge`.
    Q_PROPERTY(int statusTone READ statusTone NOTIFY resultChanged FINAL)
    Q_PROPERTY(QString tool READ tool NOTIFY resultChanged FINAL)
    Q_PROPERTY(QString toolTip READ toolTip CONSTANT FINAL)
    /// How long the last run took, or how long the present one has been going.
    Q_PROPERTY(QString durationText READ durationText NOTIFY durationTextChanged FINAL)
    /// What was printed, of a run that is going its beginning and its end; may be megabytes.
    Q_PROPERTY(QString output READ output NOTIFY outputChanged FINAL)
    /// The same for a console: a word in its place if it is blank, the beginning and the end if it is long.
    Q_PROPERTY(QString consoleText READ consoleText NOTIFY outputChanged FINAL)

public:
    explicit CodeRun(QObject *parent = nullptr);
    /// With another machine than this one.
    explicit CodeRun(CodeRunnerOptions options, QObject *parent = nullptr);

    /// Does nothing while a run is going; else it takes the last result away and starts.
    /// @param languageRaw an unknown one reads as the first language
    Q_INVOKABLE void run(const QString &source, const QString &languageRaw);
    /// Asks the run that is going to end; it is killed if it doesn't.
    Q_INVOKABLE void stop();
    /// Takes the result away. A run that is going still brings its own.
    Q_INVOKABLE void clear();

    /// Puts all of the output on the clipboard.
    Q_INVOKABLE void copyOutput() const;

    bool isRunning() const { return m_running; }
    bool hasResult() const { return m_result.has_value(); }
    QString statusWord() const;
    QString statusSymbol() const;
    int statusTone() const;
    const QString &durationText() const { return m_durationText; }
    QString tool() const;
    QString toolTip() const;
    QString output() const;
    QString consoleText() const;

signals:
    void runningChanged();
    void resultChanged();
    void durationTextChanged();
    void outputChanged();

private:
    /// Takes over what the run has printed since the last frame.
    void follow();
    void setResult(std::optional<CodeRunResult> result);
    void setDurationText(const QString &text);

    CodeRunnerOptions m_options;
    /// Made for the first run, since most code that is shown is never run.
    std::unique_ptr<CodeRunner> m_runner;
    bool m_running = false;
    std::shared_ptr<RunControl> m_control;
    QTimer m_frames;
    QElapsedTimer m_elapsed;
    QString m_durationText;
    /// While a run is going.
    QString m_printed;
    std::optional<CodeRunResult> m_result;
};
