#pragma once

#include "Foundation/CoalescedCall.h"

#include <QPointer>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

/// Remembers from launch to launch where the window stood on this machine, how large it was and whether it
/// was maximized. Where the desktop places windows itself, only the size comes back.
class WindowPlacement : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The settings file; empty remembers nothing.
    Q_PROPERTY(QString settingsPath MEMBER m_settingsPath FINAL)
    Q_PROPERTY(QQuickWindow *window READ window WRITE setWindow NOTIFY windowChanged REQUIRED FINAL)

public:
    explicit WindowPlacement(QObject *parent = nullptr);

    QQuickWindow *window() const { return m_window; }
    void setWindow(QQuickWindow *window);

    /// Puts the window, not yet shown, where it stood at the end of the last launch.
    Q_INVOKABLE void restore();
    Q_INVOKABLE void save() const;

    /// The remembered place, made to fit the screens there are: never smaller than the minimum, and moved
    /// onto the first screen if it can be reached on none.
    static QRect fitted(const QRect &remembered, const QList<QRect> &screens, const QSize &minimum);

signals:
    void windowChanged();

private:
    void track();

    QString m_settingsPath;
    QPointer<QQuickWindow> m_window;
    /// Where the window stands when it is neither maximized nor in full screen.
    QRect m_normal;
    bool m_isMaximized = false;
    /// Geometry and state of one change come one after the other, in either order.
    CoalescedCall m_track;
};
