#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QPalette>

#include <optional>

/// Whether the desktop prefers dark windows: what its settings portal says, or else what the palette of the
/// platform looks like.
class DesktopAppearance : public QObject
{
    Q_OBJECT

public:
    /// Asks the portal; the answer comes later, through `darkChanged`.
    explicit DesktopAppearance(QObject *parent = nullptr);

    bool isDark() const { return m_portal.value_or(m_palette); }

    /// The portal's value of "color-scheme": 1 for dark, 2 for light; nothing for no preference.
    static std::optional<bool> preference(const QVariant &colorScheme);
    static bool looksDark(const QPalette &palette);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void darkChanged();

private slots:
    void portalSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void askPortal();
    void set(std::optional<bool> portal, bool palette);

    std::optional<bool> m_portal;
    bool m_palette;
};
