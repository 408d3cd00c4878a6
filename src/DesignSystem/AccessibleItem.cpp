#include "DesignSystem/AccessibleItem.h"

#include "DesignSystem/OVAccessible.h"

#include <QQuickWindow>

#include <algorithm>

namespace
{

/// Whether its `Accessible.ignored` is set.
bool isIgnored(const QQuickItem *item)
{
    return std::ranges::any_of(item->children(), [](const QObject *child) {
        return child->inherits("QQuickAccessibleAttached") && child->property("ignored").toBool();
    });
}

/// The nearest items within that assistive technology sees.
void collect(const QQuickItem *parent, QList<QAccessibleInterface *> &found)
{
    const QList<QQuickItem *> items = parent->childItems();
    for (QQuickItem *const item : items) {
        QAccessibleInterface *const seen = QAccessible::queryAccessibleInterface(item);
        if (seen && !isIgnored(item))
            found << seen;
        else
            collect(item, found);
    }
}

} // namespace

AccessibleItem::AccessibleItem(QQuickItem *item) : QAccessibleObject(item) {}

QQuickItem *AccessibleItem::item() const
{
    return static_cast<QQuickItem *>(object());
}

QObject *AccessibleItem::accessible() const
{
    OVAccessible *const attached = OVAccessible::of(object());
    return attached ? attached->accessible() : nullptr;
}

bool AccessibleItem::says(const char *property) const
{
    const QObject *const accessible = this->accessible();
    return accessible && accessible->property(property).toBool();
}

QAccessibleInterface *AccessibleItem::parent() const
{
    const QQuickItem *const root = item()->window() ? item()->window()->contentItem() : nullptr;
    for (QQuickItem *parent = item()->parentItem(); parent && parent != root; parent = parent->parentItem()) {
        if (QAccessibleInterface *const seen = QAccessible::queryAccessibleInterface(parent))
            return seen;
    }
    return QAccessible::queryAccessibleInterface(item()->window());
}

QList<QAccessibleInterface *> AccessibleItem::children() const
{
    switch (role()) {
    case QAccessible::Button:
    case QAccessible::ButtonMenu:
    case QAccessible::CheckBox:
    case QAccessible::Heading:
    case QAccessible::MenuItem:
    case QAccessible::PageTab:
    case QAccessible::RadioButton:
        // Told of as a whole, by its name.
        return {};
    default:
        QList<QAccessibleInterface *> found;
        collect(item(), found);
        return found;
    }
}

int AccessibleItem::childCount() const
{
    return static_cast<int>(children().size());
}

QAccessibleInterface *AccessibleItem::child(int index) const
{
    return children().value(index);
}

int AccessibleItem::indexOfChild(const QAccessibleInterface *child) const
{
    const QList<QAccessibleInterface *> all = children();
    for (int i = 0; i < all.size(); ++i) {
        if (all[i]->object() == child->object())
            return i;
    }
    return -1;
}

QWindow *AccessibleItem::window() const
{
    return item()->window();
}

QRect AccessibleItem::rect() const
{
    if (!item()->window())
        return {};
    const QPointF corner = item()->mapToScene({});
    return {item()->window()->mapToGlobal(corner.toPoint()), item()->size().toSize()};
}

QString AccessibleItem::text(QAccessible::Text kind) const
{
    const QObject *const accessible = this->accessible();
    if (!accessible || (kind != QAccessible::Name && kind != QAccessible::Description))
        return {};
    return accessible->property(kind == QAccessible::Name ? "name" : "description").toString();
}

QAccessible::Role AccessibleItem::role() const
{
    const OVAccessible *const attached = OVAccessible::of(object());
    return attached ? static_cast<QAccessible::Role>(attached->role()) : QAccessible::NoRole;
}

QAccessible::State AccessibleItem::state() const
{
    QAccessible::State state;
    const QWindow *const window = this->window();
    state.invisible =
        !window || !window->isVisible() || !item()->isVisible() || qFuzzyIsNull(item()->opacity());
    state.disabled = !item()->isEnabled();
    state.focusable = item()->activeFocusOnTab() || says("focusable");
    state.focused = item()->hasActiveFocus();
    state.checkable = says("checkable");
    // A button that is checked is a tab that is selected.
    state.checked = says("checked") && role() != QAccessible::PageTab;
    state.selectable = says("selectable");
    state.selected = says("selected");
    state.pressed = says("pressed");
    return state;
}

void *AccessibleItem::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
}

QStringList AccessibleItem::actionNames() const
{
    QStringList names;
    switch (role()) {
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
        names << toggleAction();
        [[fallthrough]];
    case QAccessible::Button:
    case QAccessible::ButtonMenu:
    case QAccessible::ListItem:
    case QAccessible::MenuItem:
    case QAccessible::PageTab:
        names << pressAction();
        break;
    default:
        break;
    }
    if (state().focusable)
        names << setFocusAction();
    return names;
}

void AccessibleItem::doAction(const QString &action)
{
    if (action == setFocusAction())
        item()->forceActiveFocus();
    else if (action == pressAction() && accessible())
        QMetaObject::invokeMethod(accessible(), "pressAction");
    else if (action == toggleAction() && accessible())
        QMetaObject::invokeMethod(accessible(), "toggleAction");
}

QStringList AccessibleItem::keyBindingsForAction(const QString &) const
{
    return {};
}
