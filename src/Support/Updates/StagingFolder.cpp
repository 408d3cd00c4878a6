#include "Support/Updates/StagingFolder.h"

#include <QDir>
#include <QFile>
#include <QUuid>

#include <sys/stat.h>

std::expected<std::unique_ptr<StagingFolder>, QString> StagingFolder::make(const QString &temporaryFolder)
{
    const QString path = temporaryFolder + QStringLiteral("/Orvel-update-") +
                         QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
    QDir().mkpath(temporaryFolder);
    // Nobody else's from the first moment on, in a place where everybody may write.
    if (::mkdir(QFile::encodeName(path).constData(), 0700) != 0)
        return std::unexpected(qt_error_string());
    return std::unique_ptr<StagingFolder>(new StagingFolder(path));
}

StagingFolder::~StagingFolder()
{
    if (!m_isHandedOver)
        QDir(m_path).removeRecursively();
}
