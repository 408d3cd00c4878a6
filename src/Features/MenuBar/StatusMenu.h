#pragma once

#include "Features/MenuBar/StatusMenuTypes.h"

#include <QObject>

/// The plain menu of a status item, by the desktop's menu protocol: for panels that show nothing but menus,
/// and for the secondary click on all others. It is one list without submenus.
class StatusMenu : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    // The names of the protocol.
    Q_PROPERTY(uint Version READ version SCRIPTABLE true)
    Q_PROPERTY(QString TextDirection READ textDirection SCRIPTABLE true)
    Q_PROPERTY(QString Status READ status SCRIPTABLE true)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath SCRIPTABLE true)

public:
    struct Entry {
        /// Empty for a line between groups.
        QString label;
        /// Without one the entry only tells something.
        std::function<void()> action = {};
    };
    /// Called each time before the menu is shown. What comes and goes stands first.
    using Source = std::function<QList<Entry>()>;

    static constexpr char path[] = "/StatusNotifierItem/Menu";

    explicit StatusMenu(Source entries, QObject *parent = nullptr);

    /// Has the entries asked for anew; it tells panels if they have changed.
    /// @return whether they have
    bool update();

    static uint version() { return 3; }
    static QString textDirection();
    static QString status() { return QStringLiteral("normal"); }
    static QStringList iconThemePath() { return {}; }

public slots:
    /// @param parent 0 for the whole menu
    Q_SCRIPTABLE uint GetLayout(int parent, int depth, const QStringList &names, StatusMenuLayout &layout);
    /// @param ids none for all
    Q_SCRIPTABLE QList<StatusMenuProperties> GetGroupProperties(const QList<int> &ids,
                                                                const QStringList &names);
    Q_SCRIPTABLE QDBusVariant GetProperty(int id, const QString &name);
    Q_SCRIPTABLE void Event(int id, const QString &event, const QDBusVariant &data, uint timestamp);
    /// @return the ids that are not in the menu
    Q_SCRIPTABLE QList<int> EventGroup(const QList<StatusMenuEvent> &events);
    /// @return whether the menu has to be asked for anew
    Q_SCRIPTABLE bool AboutToShow(int id);
    Q_SCRIPTABLE QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &unknown);

signals:
    Q_SCRIPTABLE void LayoutUpdated(uint revision, int parent);

private:
    bool has(int id) const { return id >= 0 && id <= m_entries.size(); }
    /// @param id of an entry, not of the menu
    const Entry &entry(int id) const { return m_entries.at(m_entries.size() - id); }
    QVariantMap properties(int id) const;
    Source m_source;
    /// Their ids count from 1 for the last one up, so that an entry keeps its id while others come and go
    /// before it: a click may arrive after they did. The menu is 0.
    QList<Entry> m_entries;
    uint m_revision = 1;
};
