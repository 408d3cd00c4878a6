#include "Features/Code/CodeRunnerOptions.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <pwd.h>
#include <unistd.h>

namespace
{
QString shellOf(const QProcessEnvironment &environment)
{
    const QString usual = QStringLiteral("/bin/zsh");
    if (QFileInfo(usual).isExecutable())
        return usual;
    passwd entry{};
    passwd *found = nullptr;
    std::array<char, 4096> buffer;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found && *found->pw_shell)
        return QFile::decodeName(found->pw_shell);
    return environment.value(QStringLiteral("SHELL"));
}
} // namespace

CodeRunnerOptions CodeRunnerOptions::ofThisMachine()
{
    const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    return {
        .loginShell = shellOf(environment), .temporaryFolder = QDir::tempPath(), .environment = environment};
}
