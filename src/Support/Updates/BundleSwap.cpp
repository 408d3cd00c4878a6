#include "Support/Updates/BundleSwap.h"

#include "Foundation/AtomicFile.h"

#include <QDir>
#include <QFile>
#include <QProcess>

using namespace Qt::StringLiterals;

std::expected<void, QString> BundleSwap::start(const QString &target, const QString &staged,
                                               const QString &work, qint64 processId)
{
    QFile script(u":/orvel/updates/swap.sh"_s);
    if (!script.open(QIODevice::ReadOnly))
        return std::unexpected(script.errorString());
    const QString path = work + "/swap.sh"_L1;
    if (const auto written = AtomicFile::write(path, script.readAll()); !written)
        return written;
    QFile::setPermissions(path, QFile::permissions(path) | QFile::ExeOwner | QFile::ReadGroup |
                                    QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);

    QProcess process;
    process.setProgram(u"/bin/sh"_s);
    process.setArguments({path, target, staged, work, QString::number(processId)});
    // The current folder may lie in the bundle that goes.
    process.setWorkingDirectory(QDir::homePath());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    // In a session of its own, so that neither the end of the program nor of its terminal takes it along.
    if (!process.startDetached())
        return std::unexpected(process.errorString());
    return {};
}
