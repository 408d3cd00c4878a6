#include "Features/Code/Interpreters.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace
{
using namespace std::chrono_literals;

/// For a login shell with much to load, and for an interpreter that starts for the first time.
constexpr std::chrono::milliseconds questionTimeout = 10s;
constexpr qsizetype questionOutputLimit = 65536;

bool isExecutableFile(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() && info.isExecutable();
}
} // namespace

std::optional<CodeCommand> Interpreters::command(CodeLanguage language) const
{
    const QString file = QStringLiteral("{file}");
    const auto with = [this](const char *name, const QStringList &arguments,
                             std::chrono::seconds timeout) -> std::optional<CodeCommand> {
        const auto path = resolve(QString::fromLatin1(name));
        if (!path)
            return std::nullopt;
        return CodeCommand{*path, arguments, timeout, versionLabel(*path)};
    };
    switch (language) {
    case CodeLanguage::python:
        return with("python3", {file}, 20s);
    case CodeLanguage::javascript:
        return with("node", {file}, 20s);
    case CodeLanguage::typescript:
        return typescriptCommand();
    case CodeLanguage::swift:
        return with("swift", {file}, 60s);
    case CodeLanguage::shell:
        return with("sh", {file}, 20s);
    case CodeLanguage::sql:
        return with("sqlite3",
                    {QStringLiteral(":memory:"), QStringLiteral(".mode box"), QStringLiteral(".read {file}")},
                    12s);
    default:
        return std::nullopt;
    }
}

std::optional<CodeCommand> Interpreters::typescriptCommand() const
{
    const QString file = QStringLiteral("{file}");
    const auto node = resolve(QStringLiteral("node"));
    if (!node)
        return std::nullopt;
    const QString version = versionLabel(*node);
    const auto major = nodeMajor(version);
    if (!major || *major > 22)
        return CodeCommand{*node, {file}, 30s, version};
    if (*major == 22)
        return CodeCommand{*node, {QStringLiteral("--experimental-strip-types"), file}, 30s, version};
    if (const auto tsx = resolve(QStringLiteral("tsx")))
        return CodeCommand{*tsx, {file}, 30s, versionLabel(*tsx)};
    if (const auto tsNode = resolve(QStringLiteral("ts-node")))
        return CodeCommand{*tsNode, {file}, 45s, versionLabel(*tsNode)};
    if (const auto tsc = resolve(QStringLiteral("tsc")))
        return CodeCommand{*tsc,
                           {QStringLiteral("--noEmit"), QStringLiteral("--skipLibCheck"),
                            QStringLiteral("--target"), QStringLiteral("es2022"), QStringLiteral("--module"),
                            QStringLiteral("esnext"), QStringLiteral("--moduleResolution"),
                            QStringLiteral("bundler"), file},
                           60s,
                           versionLabel(*tsc) + QStringLiteral(" (type check)")};
    return std::nullopt;
}

std::optional<QString> Interpreters::resolve(const QString &name) const
{
    for (const QString &folder : m_options.folders)
        if (const QString path = QDir(folder).filePath(name); isExecutableFile(path))
            return path;
    return shellWhich(name);
}

std::optional<QString> Interpreters::shellWhich(const QString &name) const
{
    if (m_options.loginShell.isEmpty())
        return std::nullopt;
    const QString answer =
        printed(m_options.loginShell, {QStringLiteral("-lc"), QStringLiteral("command -v ") + name});
    // A greeting of the shell may stand above the path.
    const QString path = answer.trimmed().section(QLatin1Char('\n'), -1).trimmed();
    if (QDir::isAbsolutePath(path) && isExecutableFile(path))
        return path;
    return std::nullopt;
}

QString Interpreters::versionLabel(const QString &path) const
{
    {
        const QMutexLocker lock(&m_mutex);
        if (const auto known = m_labels.constFind(path); known != m_labels.cend())
            return *known;
    }
    QString label = printed(path, {QStringLiteral("--version")}).section(QLatin1Char('\n'), 0, 0).trimmed();
    if (label.isEmpty())
        label = QFileInfo(path).fileName();
    const QMutexLocker lock(&m_mutex);
    m_labels.insert(path, label);
    return label;
}

std::optional<int> Interpreters::nodeMajor(const QString &label)
{
    static const QRegularExpression number(QStringLiteral("[0-9]+"));
    bool isNumber = false;
    const int major = number.match(label).captured().toInt(&isNumber);
    return isNumber ? std::optional(major) : std::nullopt;
}

QString Interpreters::printed(const QString &program, const QStringList &arguments) const
{
    const auto scaled = [this](std::chrono::milliseconds time) {
        return std::chrono::milliseconds(qint64(double(time.count()) * m_options.timeScale));
    };
    const auto outcome = ProcessRun::run({.program = program,
                                          .arguments = arguments,
                                          .folder = QStringLiteral("/"),
                                          .environment = m_options.environment,
                                          .timeout = scaled(questionTimeout),
                                          .grace = scaled(200ms),
                                          .outputLimit = questionOutputLimit,
                                          .isIsolated = m_options.isIsolated},
                                         m_cancelled);
    return QString::fromUtf8(outcome.output);
}
