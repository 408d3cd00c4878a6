#pragma once

#include "Harness/Comparison.h"
#include "Harness/Desk.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickWindow>

#include <optional>

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

    ~Scene() { close(); }
    Q_DISABLE_COPY_MOVE(Scene)

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

    void close()
    {
        m_screen.reset();
        // Items of repeaters go later, but their animations would not outlive the engine.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Changes the settings, as another place of the window would, to the moment when the theme is
    /// everywhere.
    Comparison::Duration change(void (*edit)(AppSettings &))
    {
        return timed([&] {
            m_desk.store->changeSettings(edit);
            OVTheme::apply(m_desk.store->settings());
            settle();
        });
    }

    /// A click in the middle of what has this text; nothing for what is not there.
    std::optional<Comparison::Duration> click(const QString &text)
    {
        const QQuickItem *const item = withText(m_screen.get(), text);
        if (!item)
            return std::nullopt;
        const QPointF place = item->mapToScene({item->width() / 2, item->height() / 2});
        return timed([&] {
            for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                const auto buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
                QMouseEvent event(type, place, place, Qt::LeftButton, buttons, Qt::NoModifier);
                QCoreApplication::sendEvent(&m_window, &event);
            }
            settle();
        });
    }

    /// To the moment when nothing is left to do but to draw.
    Comparison::Duration press(int key, const QString &text = {}, Qt::KeyboardModifiers modifiers = {})
    {
        return timed([&] {
            for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent event(type, key, modifiers, text);
                QCoreApplication::sendEvent(&m_window, &event);
            }
            settle();
        });
    }

    QQuickItem *focusItem() const { return m_window.activeFocusItem(); }

    Desk &desk() { return m_desk; }

protected:
    /// Turns the wheel of the mouse here in the window, in eighths of a degree.
    void wheel(const QPointF &place, int angle)
    {
        QWheelEvent event(place, place, QPoint(), QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        event.setTimestamp(quint64(QDateTime::currentMSecsSinceEpoch()));
        QCoreApplication::sendEvent(&m_window, &event);
    }

    void settle()
    {
        QCoreApplication::processEvents();
        m_control.polishItems();
    }

private:
    static const QQuickItem *withText(const QQuickItem *from, const QString &text)
    {
        for (const QQuickItem *child : from->childItems()) {
            if (!child->isVisible())
                continue;
            if (child->property("text").toString() == text)
                return child;
            if (const QQuickItem *const found = withText(child, text))
                return found;
        }
        return nullptr;
    }

    Desk m_desk;
    QByteArray m_source;
    QQmlEngine m_engine;
    QQuickRenderControl m_control;
    QQuickWindow m_window{&m_control};
    std::unique_ptr<QQuickItem> m_screen;
};
