#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QThreadPool>

#include <functional>
#include <optional>

/// Whether the desktop prefers dark windows: what its settings portal says, else how light the palette is.
class SystemAppearance : public QObject
{
    Q_OBJECT

public:
    explicit SystemAppearance(QObject *parent = nullptr);

    /// Asks the portal on this bus and listens to it from then on; until it answers the palette counts.
    /// @param bus called on another thread, since connecting to a bus waits for it
    void followPortal(const std::function<QDBusConnection()> &bus);

    bool isDark() const { return m_dark; }

    /// What the portal's number says; nothing if the user has no preference there.
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
    // Last, so that it is gone before anything that it uses.
    QThreadPool m_background;
};
