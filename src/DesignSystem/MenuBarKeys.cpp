#include "DesignSystem/MenuBarKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <utility>

void MenuBarKeys::setMenuBar(QQuickItem *menuBar)
{
    if (menuBar == m_menuBar)
        return;
    if (m_menuBar)
        m_menuBar->disconnect(this);
    m_menuBar = menuBar;
    if (m_menuBar) {
        connect(m_menuBar, &QQuickItem::windowChanged, this, &MenuBarKeys::watchWindow);
        connect(m_menuBar, &QQuickItem::activeFocusChanged, this, &MenuBarKeys::returnToOrigin);
        watchWindow(m_menuBar->window());
    }
    emit menuBarChanged();
}

void MenuBarKeys::toggle()
{
    if (!m_menuBar || !m_menuBar->window())
        return;
    if (m_menuBar->hasActiveFocus()) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(m_menuBar, &escape);
        return;
    }
    m_menuBar->forceActiveFocus(Qt::MenuBarFocusReason);
    // The menu bar has no other way to be told which menu is the current one.
    QKeyEvent next(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
    QCoreApplication::sendEvent(m_menuBar, &next);
}

bool MenuBarKeys::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride: {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() != Qt::Key_Alt || key->modifiers() & ~Qt::AltModifier)
            setAltAlone(false);
        else if (watched == m_window && event->type() == QEvent::KeyPress && !key->isAutoRepeat())
            setAltAlone(true);
        break;
    }
    case QEvent::KeyRelease:
        if (m_altAlone && watched == m_window && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Alt) {
            setAltAlone(false);
            toggle();
        }
        break;
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::FocusOut:
        setAltAlone(false);
        break;
    default:
        break;
    }
    return false;
}

void MenuBarKeys::setAltAlone(bool alone)
{
    if (alone == m_altAlone)
        return;
    m_altAlone = alone;
    // While Alt is held, a key that a shortcut takes never reaches the window.
    if (alone)
        QCoreApplication::instance()->installEventFilter(this);
    else
        QCoreApplication::instance()->removeEventFilter(this);
}

void MenuBarKeys::watchWindow(QQuickWindow *window)
{
    if (m_window) {
        m_window->removeEventFilter(this);
        m_window->disconnect(this);
    }
    m_window = window;
    if (!m_window)
        return;
    m_window->installEventFilter(this);
    connect(m_window, &QQuickWindow::activeFocusItemChanged, this, &MenuBarKeys::rememberOrigin);
    rememberOrigin();
}

void MenuBarKeys::rememberOrigin()
{
    QQuickItem *active = m_window->activeFocusItem();
    if (!active || active == m_window->contentItem())
        return;
    for (const QQuickItem *item = active; item; item = item->parentItem()) {
        if (item == m_menuBar || item->inherits("QQuickOverlay")) {
            m_isAway = true;
            return;
        }
    }
    // A menu bar that lets go leaves the focus to a scope around what had it.
    if (std::exchange(m_isAway, false) && m_origin && active->isAncestorOf(m_origin))
        return;
    m_origin = active;
    const QVariant reason = active->property("focusReason");
    m_originReason = reason.isValid() ? reason.toInt() : static_cast<int>(Qt::OtherFocusReason);
    emit originChanged();
}

void MenuBarKeys::returnToOrigin()
{
    if (m_menuBar->hasActiveFocus() || !m_window || !m_origin)
        return;
    const QQuickItem *active = m_window->activeFocusItem();
    if (!active || active->isAncestorOf(m_origin))
        m_origin->forceActiveFocus(static_cast<Qt::FocusReason>(m_originReason));
}
