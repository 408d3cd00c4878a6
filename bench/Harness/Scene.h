#pragma once

#include "Harness/Comparison.h"
#include "Harness/Desk.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickWindow>

/// A screen over a workspace, in a window that is never drawn.
class Scene
{
public:
    /// @param screen the QML of the screen with its import
    Scene(const Snapshot &workspace, QByteArray screen) : m_desk(workspace), m_source(std::move(screen))
    {
        m_desk.provideTo(m_engine);
        m_window.contentItem()->setSize({1240, 820});
        m_window.resize(1240, 820);
        QFocusEvent focus(QEvent::FocusIn);
        QCoreApplication::sendEvent(&m_window, &focus);
    }

    Comparison::Duration open()
    {
        m_screen.reset();
        return timed([this] {
            QQmlComponent component(&m_engine);
            component.setData(m_source, QUrl());
            m_screen.reset(qobject_cast<QQuickItem *>(component.create()));
            m_screen->setParentItem(m_window.contentItem());
            m_screen->setSize({1240, 820});
            settle();
        });
    }

    /// To the moment when nothing is left to do but to draw.
    Comparison::Duration press(int key, const QString &text = {})
    {
        return timed([&] {
            for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent event(type, key, Qt::NoModifier, text);
                QCoreApplication::sendEvent(&m_window, &event);
            }
            settle();
        });
    }

    QQuickItem *focusItem() const { return m_window.activeFocusItem(); }

    Desk &desk() { return m_desk; }

protected:
    void settle()
    {
        QCoreApplication::processEvents();
        m_control.polishItems();
    }

private:
    Desk m_desk;
    QByteArray m_source;
    QQmlEngine m_engine;
    QQuickRenderControl m_control;
    QQuickWindow m_window{&m_control};
    std::unique_ptr<QQuickItem> m_screen;
};
