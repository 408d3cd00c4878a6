#pragma once

#include "Foundation/CoalescedCall.h"
#include "Session/SessionTypes.h"

#include <QUrl>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

/// Routes what the person selected to the screen that shows it.
class DetailViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(WorkspaceStore *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(UIState *ui READ ui WRITE setUi NOTIFY uiChanged REQUIRED FINAL)
    /// Value of `ThemeRevision`.
    Q_PROPERTY(int themeRevision READ themeRevision WRITE setThemeRevision NOTIFY themeRevisionChanged FINAL)
    /// The text of the destination that the screen shows.
    Q_PROPERTY(QString place READ place NOTIFY screenChanged FINAL)
    /// "settings" while the settings are shown, so that a change of theme leaves them standing; else
    /// "theme-" and the revision, so that it builds every other screen anew.
    Q_PROPERTY(QString identity READ identity NOTIFY screenChanged FINAL)
    /// The QML file of the screen and the values its properties begin with.
    Q_PROPERTY(QUrl source READ source NOTIFY screenChanged FINAL)
    Q_PROPERTY(QVariantMap properties READ properties NOTIFY screenChanged FINAL)

public:
    explicit DetailViewModel(QObject *parent = nullptr) : QObject(parent) {}

    WorkspaceStore *store() const { return m_store; }
    void setStore(WorkspaceStore *store);
    UIState *ui() const { return m_ui; }
    void setUi(UIState *ui);
    int themeRevision() const { return m_themeRevision; }
    void setThemeRevision(int revision);

    QString place() const { return m_screen.place.text(); }
    const QString &identity() const { return m_screen.identity; }
    const QUrl &source() const { return m_screen.source; }
    const QVariantMap &properties() const { return m_screen.properties; }

signals:
    void storeChanged();
    void uiChanged();
    void themeRevisionChanged();
    /// Another screen is to be shown, or the same one built anew.
    void screenChanged();

private:
    struct Screen {
        QString identity;
        Destination place;
        QUrl source;
        QVariantMap properties;

        bool operator==(const Screen &) const = default;
    };

    void follow(const ChangeSet &changes);
    void route();
    Screen screen() const;
    void showPlace(Screen &screen) const;
    /// Whether the record to be shown is there; true for a place that shows none.
    bool isFound(const Destination &place) const;

    WorkspaceStore *m_store = nullptr;
    UIState *m_ui = nullptr;
    int m_themeRevision = 0;
    Screen m_screen;
    CoalescedCall m_route{[this] { route(); }};
};
