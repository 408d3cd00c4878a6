#include "Features/Code/CodeRunner.h"

#include "Features/Code/CodeLanguages.h"
#include "Features/Code/JsonText.h"
#include "Features/Code/ScratchFolder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QPointer>
#include <QRegularExpression>
#include <QScopeGuard>

#include <sys/eventfd.h>

namespace
{
using namespace std::chrono_literals;
using Status = CodeRunResult::Status;

constexpr std::chrono::milliseconds grace = 1s;
/// More runs at once wait for their turn.
constexpr int mostRuns = 64;

QString decoded(const QByteArray &bytes, bool isCut, qsizetype limit)
{
    QString text = QString::fromUtf8(bytes);
    if (isCut) {
        if (!text.endsWith(QLatin1Char('\n')))
            text += QLatin1Char('\n');
        text += CodeRunner::tr("[cut after %1]").arg(QLocale(QLocale::English).formattedDataSize(limit, 0));
    }
    return text;
}

/// The arguments with the snippet's path in the place of "{file}". Within a longer argument the path is
/// quoted if it needs to be, as the shell of sqlite3 reads it.
QStringList withFile(QStringList arguments, const QString &path)
{
    QString quoted = path;
    if (path.contains(QRegularExpression(QStringLiteral("[\\s'\"\\\\;]")))) {
        quoted.replace(QLatin1Char('\\'), QStringLiteral("\\\\"))
            .replace(QLatin1Char('"'), QStringLiteral("\\\""));
        quoted = QLatin1Char('"') + quoted + QLatin1Char('"');
    }
    const QString file = QStringLiteral("{file}");
    for (QString &argument : arguments)
        argument.replace(file, argument == file ? path : quoted);
    return arguments;
}

void appendLine(QString &text, const QString &line)
{
    if (!text.isEmpty() && !text.endsWith(QLatin1Char('\n')))
        text += QLatin1Char('\n');
    text += line;
}
} // namespace

CodeRunner::CodeRunner(const CodeRunnerOptions &options, QObject *parent)
    : QObject(parent),
      m_options(options),
      m_cancelled(::eventfd(0, EFD_CLOEXEC)),
      m_interpreters(options, m_cancelled.number())
{
    m_threads.setMaxThreadCount(mostRuns);
}

CodeRunner::~CodeRunner()
{
    m_threads.clear();
    eventfd_write(m_cancelled.number(), 1);
    m_threads.waitForDone();
}

std::shared_ptr<RunControl> CodeRunner::run(const QString &source, CodeLanguage language, QObject *context,
                                            const Answer &answer)
{
    auto control = std::make_shared<RunControl>();
    m_threads.start([this, source, language, answer, control, context = QPointer(context)] {
        QMetaObject::invokeMethod(
            this,
            [context, answer, result = result(source, language, *control)] {
                if (context)
                    answer(result);
            },
            Qt::QueuedConnection);
    });
    return control;
}

bool CodeRunner::canRun(CodeLanguage language)
{
    return CodeLanguages::traits(language).canRun;
}

QString CodeRunner::unsupportedReason(CodeLanguage language)
{
    const QString label = enumLabel(language);
    switch (language) {
    case CodeLanguage::markdown:
    case CodeLanguage::plain:
        return tr("%1 has no runtime.").arg(label);
    case CodeLanguage::html:
    case CodeLanguage::css:
        return tr("%1 is markup  -  there is nothing to run.").arg(label);
    default:
        return tr("%1 can\u2019t be run here.").arg(label);
    }
}

QString CodeRunner::prepared(const QString &source)
{
    QString text;
    text.reserve(source.size() + 1);
    for (qsizetype i = 0; i < source.size(); ++i) {
        switch (const char16_t unit = source[i].unicode()) {
        case u'\r':
            if (i + 1 < source.size() && source[i + 1] == QLatin1Char('\n'))
                break;
            [[fallthrough]];
        case u'\u2028':
        case u'\u2029':
            text += QLatin1Char('\n');
            break;
        case u'\u00a0':
        case u'\u2007':
        case u'\u202f':
            text += QLatin1Char(' ');
            break;
        case u'\u00ad':
        case u'\u200b':
        case u'\u200c':
        case u'\u200d':
        case u'\u2060':
        case u'\ufeff':
            break;
        default:
            text += QChar(unit);
        }
    }
    if (!text.endsWith(QLatin1Char('\n')))
        text += QLatin1Char('\n');
    return text;
}

CodeRunResult CodeRunner::validateJSON(const QString &source)
{
    const QString tool = QStringLiteral("JSON");
    const auto pretty = JsonText::pretty(source);
    if (!pretty)
        return {Status::failure, tr("Invalid JSON: %1").arg(pretty.error()), 0, tool};
    return {Status::success, *pretty, 0, tool};
}

CodeRunResult CodeRunner::result(const QString &source, CodeLanguage language, RunControl &control) const
{
    if (!canRun(language))
        return {Status::unsupported, unsupportedReason(language)};
    const QString text = prepared(source);
    if (text.trimmed().isEmpty())
        return {Status::success, tr("Nothing to run.")};
    QElapsedTimer timer;
    timer.start();
    CodeRunResult result = execute(text, language, control);
    result.duration = double(timer.nsecsElapsed()) / 1e9;
    return result;
}

CodeRunResult CodeRunner::execute(const QString &source, CodeLanguage language, RunControl &control) const
{
    if (language == CodeLanguage::json)
        return validateJSON(source);
    const auto command = m_interpreters.command(language);
    if (!command)
        return {Status::unsupported, unsupportedReason(language)};
    const auto folder = ScratchFolder::make(m_options.temporaryFolder);
    if (!folder)
        return {Status::failure, tr("Couldn\u2019t prepare a scratch folder: %1").arg(folder.error()), 0,
                command->label};
    const auto removal = qScopeGuard([&] { ScratchFolder::remove(*folder, m_cancelled.number()); });
    return executeIn(*folder, source, language, *command, control);
}

CodeRunResult CodeRunner::executeIn(const QString &folder, const QString &source, CodeLanguage language,
                                    const CodeCommand &command, RunControl &control) const
{
    const std::u16string_view extension = CodeLanguages::traits(language).fileExtension;
    QFile snippet(QDir(folder).filePath(QStringLiteral("main.") +
                                        QString::fromUtf16(extension.data(), qsizetype(extension.size()))));
    const QByteArray bytes = source.toUtf8();
    if (!snippet.open(QIODevice::WriteOnly | QIODevice::NewOnly) || snippet.write(bytes) != bytes.size() ||
        !snippet.flush())
        return {Status::failure, tr("Couldn\u2019t write the snippet: %1").arg(snippet.errorString()), 0,
                command.label};
    snippet.close();

    QProcessEnvironment environment = m_options.environment;
    environment.insert(QStringLiteral("NO_COLOR"), QStringLiteral("1"));
    environment.insert(QStringLiteral("PYTHONIOENCODING"), QStringLiteral("utf-8"));
    environment.insert(QStringLiteral("TERM"), QStringLiteral("dumb"));
    const auto scaled = [this](std::chrono::milliseconds time) {
        return std::chrono::milliseconds(qint64(double(time.count()) * m_options.timeScale));
    };
    const auto outcome = ProcessRun::run({.program = command.executable,
                                          .arguments = withFile(command.arguments, snippet.fileName()),
                                          .folder = folder,
                                          .environment = environment,
                                          .timeout = scaled(command.timeout),
                                          .grace = scaled(grace),
                                          .outputLimit = m_options.outputLimit,
                                          .scratchFolder = folder,
                                          .isIsolated = m_options.isIsolated,
                                          .control = &control},
                                         m_cancelled.number());
    if (outcome.launchError)
        return {Status::failure,
                tr("Couldn\u2019t launch %1: %2")
                    .arg(QFileInfo(command.executable).fileName(), qt_error_string(*outcome.launchError)),
                0, command.label};

    QString output = decoded(outcome.output, outcome.isOutputCut, m_options.outputLimit);
    if (const QString errors = decoded(outcome.errors, outcome.isErrorsCut, m_options.outputLimit);
        !errors.isEmpty())
        appendLine(output, errors);
    if (outcome.isTimedOut) {
        appendLine(output, tr("[stopped after %1s]").arg(command.timeout.count()));
        return {Status::timedOut, output, 0, command.label};
    }
    if (outcome.isStopped) {
        appendLine(output, tr("[stopped]"));
        return {Status::stopped, output, 0, command.label};
    }
    if (output.trimmed().isEmpty())
        output = outcome.status != 0 ? tr("Exited with status %1.").arg(outcome.status)
                                     : tr("Finished with no output.");
    return {outcome.status != 0 ? Status::failure : Status::success, output, 0, command.label};
}
