#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

/// Takes the keyboard to a menu bar when Alt is pressed and released alone, and back to where it was when the
/// menu bar lets go of it.
class MenuBarKeys : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *menuBar READ menuBar WRITE setMenuBar NOTIFY menuBarChanged FINAL)
    /// What had the keyboard's focus last outside the menu bar and its menus, and how it had got it.
    Q_PROPERTY(QQuickItem *origin READ origin NOTIFY originChanged FINAL)
    Q_PROPERTY(int originReason READ originReason NOTIFY originChanged FINAL)

public:
    using QObject::QObject;

    QQuickItem *menuBar() const { return m_menuBar; }
    void setMenuBar(QQuickItem *menuBar);
    QQuickItem *origin() const { return m_origin; }
    int originReason() const { return m_originReason; }

    /// Highlights the first menu, or leaves the menu bar if the keyboard is already there.
    Q_INVOKABLE void toggle();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void menuBarChanged();
    void originChanged();

private:
    void watchWindow(QQuickWindow *window);
    void setAltAlone(bool alone);
    void rememberOrigin();
    void returnToOrigin();

    QPointer<QQuickItem> m_menuBar;
    QPointer<QQuickItem> m_origin;
    QPointer<QQuickWindow> m_window;
    int m_originReason = Qt::OtherFocusReason;
    bool m_altAlone = false;
    /// Whether the menu bar or one of its menus had the focus last.
    bool m_isAway = false;
};
