#include "Features/Code/CodeRun.h"

#include "Features/Code/ConsoleExcerpt.h"
#include "Foundation/BadgeTone.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

namespace
{
using namespace std::chrono_literals;

/// The console changes no more often than this.
constexpr auto frame = 33ms;
/// What a console shows of an output.
constexpr qsizetype mostShownUnits = 60'000;

/// How a console tells what became of a run.
struct StatusTexts {
    QString word;
    QString symbol;
    BadgeTone tone = BadgeTone::neutral;
};

StatusTexts textsOf(CodeRunResult::Status status)
{
    switch (status) {
    case CodeRunResult::Status::success:
        return {CodeRun::tr("Succeeded"), QStringLiteral("checkmark.circle"), BadgeTone::success};
    case CodeRunResult::Status::failure:
        return {CodeRun::tr("Failed"), QStringLiteral("xmark.octagon"), BadgeTone::danger};
    case CodeRunResult::Status::timedOut:
        return {CodeRun::tr("Timed out"), QStringLiteral("clock"), BadgeTone::warning};
    case CodeRunResult::Status::stopped:
        return {CodeRun::tr("Stopped"), QStringLiteral("stop"), BadgeTone::neutral};
    case CodeRunResult::Status::unsupported:
        break;
    }
    return {CodeRun::tr("Unsupported"), QStringLiteral("slash.circle"), BadgeTone::neutral};
}
} // namespace

CodeRun::CodeRun(QObject *parent) : CodeRun(CodeRunnerOptions::ofThisMachine(), parent) {}

CodeRun::CodeRun(CodeRunnerOptions options, QObject *parent) : QObject(parent), m_options(std::move(options))
{
    m_frames.setInterval(frame);
    connect(&m_frames, &QTimer::timeout, this, &CodeRun::follow);
}

void CodeRun::run(const QString &source, const QString &languageRaw)
{
    if (m_running)
        return;
    if (!m_runner)
        m_runner = std::make_unique<CodeRunner>(m_options);
    m_running = true;
    setResult({});
    const auto language =
        enumFromRaw<CodeLanguage>(languageRaw).value_or(enumCases<CodeLanguage>().front().value);
    m_control = m_runner->run(source, language, this, [this](const CodeRunResult &result) {
        m_running = false;
        m_frames.stop();
        m_printed.clear();
        setResult(result);
        emit runningChanged();
    });
    m_elapsed.start();
    m_frames.start();
    emit runningChanged();
    emit outputChanged();
}

void CodeRun::stop()
{
    if (m_running)
        m_control->stop();
}

void CodeRun::follow()
{
    // A whole tenth at a time, so that it can be read.
    setDurationText(tr("%1s").arg(double(m_elapsed.elapsed() / 100) / 10, 0, 'f', 1));
    if (auto text = m_control->newText()) {
        m_printed = *std::move(text);
        emit outputChanged();
    }
}

void CodeRun::clear()
{
    setResult({});
}

void CodeRun::copyOutput() const
{
    QGuiApplication::clipboard()->setText(output());
}

QString CodeRun::statusWord() const
{
    return m_result ? textsOf(m_result->status).word : QString();
}

QString CodeRun::statusSymbol() const
{
    return m_result ? textsOf(m_result->status).symbol : QString();
}

int CodeRun::statusTone() const
{
    return int(m_result ? textsOf(m_result->status).tone : BadgeTone::neutral);
}

QString CodeRun::tool() const
{
    return m_result ? m_result->tool.value_or(QString()) : QString();
}

QString CodeRun::toolTip() const
{
    return tr("The interpreter that ran this snippet");
}

QString CodeRun::output() const
{
    return m_result ? m_result->output : m_printed;
}

QString CodeRun::consoleText() const
{
    const QString text = output();
    if (!QStringView(text).trimmed().isEmpty())
        return ConsoleExcerpt::of(text, mostShownUnits);
    if (m_running)
        return tr("Running…");
    return m_result ? tr("No output.") : QString();
}

void CodeRun::setResult(std::optional<CodeRunResult> result)
{
    if (m_result == result)
        return;
    m_result = std::move(result);
    setDurationText(m_result && m_result->duration > 0 ? tr("%1s").arg(m_result->duration, 0, 'f', 2)
                                                       : QString());
    emit resultChanged();
    emit outputChanged();
}

void CodeRun::setDurationText(const QString &text)
{
    if (std::exchange(m_durationText, text) != text)
        emit durationTextChanged();
}
