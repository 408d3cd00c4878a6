#pragma once

#include <QObject>
#include <QVariantHash>

/// What belongs to this user on this machine and not to the workspace, such as a count of the day. It lies in
/// a settings file of its own and is kept when the workspace is reset.
class Preferences : public QObject
{
    Q_OBJECT

public:
    /// @param filePath empty keeps the values only as long as the object lives
    explicit Preferences(const QString &filePath = {}, QObject *parent = nullptr);

    /// "Orvel/preferences.ini" in the user's folder for settings.
    static QString defaultFilePath();

    /// @param otherwise what stands for a key that was never written
    QVariant value(const QString &key, const QVariant &otherwise = {}) const;
    /// Writes the value at once. An equal one writes nothing.
    void setValue(const QString &key, const QVariant &value);

signals:
    void changed(const QString &key);

private:
    QString m_filePath;
    QVariantHash m_values;
};
