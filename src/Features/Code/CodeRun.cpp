#include "Features/Code/CodeRun.h"

#include "Foundation/BadgeTone.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

namespace
{
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
    case CodeRunResult::Status::unsupported:
        break;
    }
    return {CodeRun::tr("Unsupported"), QStringLiteral("slash.circle"), BadgeTone::neutral};
}
} // namespace

CodeRun::CodeRun(QObject *parent) : CodeRun(CodeRunnerOptions::ofThisMachine(), parent) {}

CodeRun::CodeRun(CodeRunnerOptions options, QObject *parent) : QObject(parent), m_options(std::move(options))
{
}

void CodeRun::run(const QString &source, const QString &languageRaw)
{
    if (m_running)
        return;
    if (!m_runner)
        m_runner = std::make_unique<CodeRunner>(m_options);
    m_running = true;
    setResult({});
    emit runningChanged();
    const auto language =
        enumFromRaw<CodeLanguage>(languageRaw).value_or(enumCases<CodeLanguage>().front().value);
    m_runner->run(source, language, this, [this](const CodeRunResult &result) {
        m_running = false;
        setResult(result);
        emit runningChanged();
    });
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

QString CodeRun::durationText() const
{
    return m_result && m_result->duration > 0 ? QString::asprintf("%.2fs", m_result->duration) : QString();
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
    return m_result ? m_result->output : QString();
}

QString CodeRun::consoleText() const
{
    if (!m_result)
        return {};
    const bool isBlank = QStringView(m_result->output).trimmed().isEmpty();
    return isBlank ? tr("No output.") : m_result->output;
}

void CodeRun::setResult(std::optional<CodeRunResult> result)
{
    if (m_result == result)
        return;
    m_result = std::move(result);
    emit resultChanged();
}
