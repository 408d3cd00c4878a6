#include "Session/SaveFileDialog.h"

#include <QDir>
#include <QFileInfo>

SaveFileDialog::SaveFileDialog(const QDBusConnection &bus, QString fallbackFolder, QObject *parent)
    : QObject(parent), m_portal(bus), m_fallbackFolder(std::move(fallbackFolder))
{
}

QString SaveFileDialog::freePath(const QString &folder, const QString &fileName)
{
    const QFileInfo name(fileName);
    const QDir dir(folder);
    QString path = dir.filePath(fileName);
    for (int number = 2; QFileInfo::exists(path) || QFileInfo(path).isSymLink(); ++number)
        path = dir.filePath(
            QStringLiteral("%1 %2.%3").arg(name.completeBaseName(), QString::number(number), name.suffix()));
    return path;
}

void SaveFileDialog::ask(const QString &fileName, Receiver receiver)
{
    const auto answered = [this, fileName, receiver = std::move(receiver)](
                              const std::expected<QString, FilePortal::NoFile> &path) {
        if (path)
            receiver(Answer{*path, true});
        else if (path.error() == FilePortal::NoFile::cancelled)
            receiver(std::nullopt);
        else
            receiver(freePlace(fileName));
    };
    m_portal.ask(QStringLiteral("SaveFile"), tr("Save"), {{QStringLiteral("current_name"), fileName}},
                 answered);
}

SaveFileDialog::Answer SaveFileDialog::freePlace(const QString &fileName) const
{
    QDir().mkpath(m_fallbackFolder);
    return {freePath(m_fallbackFolder, fileName), false};
}
