#pragma once

#include <QAccessible>
#include <QMetaEnum>
#include <QQuickItem>
#include <QQuickWindow>

/// What assistive technology is told of the items of a window, and what it can do to them: the bridge to it
/// reads the same interfaces.
class Assistive : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Assistive technology appears.
    Q_INVOKABLE void begin() { QAccessible::setActive(true); }

    /// Role and name, then the states that hold, such as "RadioButton All checked"; empty for an item that it
    /// does not see.
    Q_INVOKABLE QString describe(QQuickItem *item) const
    {
        const QAccessibleInterface *const seen = interface(item);
        if (!seen)
            return {};
        QStringList words{
            QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(seen->role())),
            seen->text(QAccessible::Name)};
        const QAccessible::State state = seen->state();
        if (state.checked)
            words << QStringLiteral("checked");
        if (state.selected)
            words << QStringLiteral("selected");
        if (state.disabled)
            words << QStringLiteral("disabled");
        return words.join(u' ');
    }

    /// Everything visible in the window that it sees, one description an item, from the outside inwards.
    Q_INVOKABLE QStringList describeAll(QQuickWindow *window) const
    {
        QStringList found;
        for (QQuickItem *const item : items(window))
            found << describe(item);
        return found;
    }

    /// What it sees in the window, for closer looks.
    Q_INVOKABLE QList<QQuickItem *> items(QQuickWindow *window) const
    {
        QList<QQuickItem *> found;
        collect(QAccessible::queryAccessibleInterface(window), found);
        return found;
    }

    Q_INVOKABLE bool isFocusable(QQuickItem *item) const
    {
        const QAccessibleInterface *const seen = interface(item);
        return seen && seen->state().focusable;
    }

    Q_INVOKABLE bool canPress(QQuickItem *item) const
    {
        QAccessibleInterface *const seen = interface(item);
        return seen && seen->actionInterface() &&
               seen->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction());
    }

    Q_INVOKABLE void press(QQuickItem *item) const
    {
        if (canPress(item))
            interface(item)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }

private:
    static QAccessibleInterface *interface(QQuickItem *item)
    {
        return item ? QAccessible::queryAccessibleInterface(item) : nullptr;
    }

    static void collect(const QAccessibleInterface *parent, QList<QQuickItem *> &found)
    {
        for (int i = 0; parent && i < parent->childCount(); ++i) {
            const QAccessibleInterface *const child = parent->child(i);
            if (!child || child->state().invisible)
                continue;
            if (auto *const item = qobject_cast<QQuickItem *>(child->object()))
                found << item;
            collect(child, found);
        }
    }
};
