#pragma once

#include <QDBusVariant>
#include <QObject>

#include <optional>

class QDBusConnection;

/// Whether the desktop prefers dark windows: what its settings portal says, else how light the palette is.
class SystemAppearance : public QObject
{
    Q_OBJECT

public:
    /// Asks the portal on this bus without waiting for the answer; until then, and without a bus, the palette
    /// counts.
    explicit SystemAppearance(const QDBusConnection &bus, QObject *parent = nullptr);

    bool isDark() const { return m_dark; }

    /// What the portal's number says; nothing if the person has no preference there.
    static std::optional<bool> preference(uint colorScheme);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void changed(bool dark);

private slots:
    void portalSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void askPortal(const QDBusConnection &bus);
    void update();

    std::optional<bool> m_portal;
    bool m_dark = false;
};
