#pragma once

#include "Features/MenuBar/StatusItemTypes.h"
#include "Features/MenuBar/StatusMenu.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QPoint>
#include <QThreadPool>

#include <functional>
#include <memory>

/// An icon on the desktop's panel, by the desktop's StatusNotifierItem protocol. While it is shown, it is
/// registered with whatever keeps the icons of the panel, also after that is started anew. Without a panel
/// for icons nothing happens.
class StatusItem : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    // The names of the protocol.
    Q_PROPERTY(QString Category READ category SCRIPTABLE true)
    Q_PROPERTY(QString Id READ id SCRIPTABLE true)
    Q_PROPERTY(QString Title READ title SCRIPTABLE true)
    Q_PROPERTY(QString Status READ status SCRIPTABLE true)
    Q_PROPERTY(QString IconName READ iconName SCRIPTABLE true)
    Q_PROPERTY(StatusPixmaps IconPixmap READ iconPixmap SCRIPTABLE true)
    Q_PROPERTY(QString IconAccessibleDesc READ title SCRIPTABLE true)
    Q_PROPERTY(StatusToolTip ToolTip READ toolTip SCRIPTABLE true)
    Q_PROPERTY(bool ItemIsMenu READ isMenu SCRIPTABLE true)
    Q_PROPERTY(QDBusObjectPath Menu READ menu SCRIPTABLE true)

public:
    struct Options {
        /// Of the program, such as "com.orvel.workspace".
        QString id;
        /// What the icon is called, to assistive technology too.
        QString title;
        /// In the sizes that panels have.
        QList<QImage> images;
        /// What a secondary click opens, and on desktops that know nothing else every click.
        StatusMenu::Source menu;
        /// The name of the icon on the bus, which no other program has. A panel drops the icon once it is
        /// given up.
        QString service;
        /// Called on another thread, since connecting to a bus waits for it.
        std::function<QDBusConnection()> bus;
    };

    static constexpr char path[] = "/StatusNotifierItem";
    static constexpr char watcherService[] = "org.kde.StatusNotifierWatcher";

    explicit StatusItem(Options options, QObject *parent = nullptr);
    ~StatusItem() override;

    void show();
    /// Takes the icon from the panel.
    void hide();
    /// Whether a panel has taken the icon.
    bool isShown() const { return m_isRegistered; }
    /// Registers once more if it is to be shown and no panel has taken it.
    void reassert();
    /// @param text empty for none
    void setToolTip(const QString &text);
    StatusMenu &plainMenu() { return m_menu; }

    static QString category() { return QStringLiteral("ApplicationStatus"); }
    QString id() const { return m_options.id; }
    QString title() const { return m_options.title; }
    static QString status() { return QStringLiteral("Active"); }
    static QString iconName() { return {}; }
    StatusPixmaps iconPixmap() const;
    StatusToolTip toolTip() const { return {{}, {}, m_options.title, m_toolTip}; }
    static bool isMenu() { return false; }
    static QDBusObjectPath menu() { return QDBusObjectPath(QLatin1String(StatusMenu::path)); }

public slots:
    Q_SCRIPTABLE void Activate(int x, int y) { emit activated({x, y}); }
    Q_SCRIPTABLE void SecondaryActivate(int x, int y) { emit activated({x, y}); }
    Q_SCRIPTABLE void ContextMenu(int x, int y) { emit activated({x, y}); }
    Q_SCRIPTABLE void Scroll(int, const QString &) {}

signals:
    Q_SCRIPTABLE void NewToolTip();
    /// The user has clicked the icon, at this place of the screen as far as the panel tells.
    void activated(const QPoint &place);
    void shownChanged();

private:
    void connectTo(const QDBusConnection &bus);
    void registerItem();
    void setRegistered(bool registered);

    Options m_options;
    StatusMenu m_menu;
    QString m_toolTip;
    bool m_isWanted = false;
    bool m_isRegistered = false;
    bool m_isConnecting = false;
    std::optional<QDBusConnection> m_bus;
    std::unique_ptr<QDBusServiceWatcher> m_watcher;
    // Last, so that it is gone before anything that it uses.
    QThreadPool m_background;
};
