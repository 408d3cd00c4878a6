#include "Support/Preferences.h"

#include <QSettings>
#include <QStandardPaths>

Preferences::Preferences(const QString &filePath, QObject *parent) : QObject(parent), m_filePath(filePath)
{
    if (m_filePath.isEmpty())
        return;
    const QSettings settings(m_filePath, QSettings::IniFormat);
    for (const QString &key : settings.allKeys())
        m_values.insert(key, settings.value(key));
}

QString Preferences::defaultFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Orvel/preferences.ini");
}

QVariant Preferences::value(const QString &key, const QVariant &otherwise) const
{
    return m_values.value(key, otherwise);
}

void Preferences::setValue(const QString &key, const QVariant &value)
{
    // A value that was read from the file is a text.
    if (m_values.contains(key) && m_values.value(key).toString() == value.toString())
        return;
    m_values.insert(key, value);
    if (!m_filePath.isEmpty())
        QSettings(m_filePath, QSettings::IniFormat).setValue(key, value);
    emit changed(key);
}
