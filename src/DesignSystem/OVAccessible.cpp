#include "DesignSystem/OVAccessible.h"

#include "DesignSystem/AccessibleItem.h"

#include <QQmlContext>
#include <QQmlProperty>
#include <QSet>

namespace
{

constexpr auto attachedProperty = "_orvelAccessible";

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    const OVAccessible *const attached = OVAccessible::of(object);
    return attached && attached->role() != QAccessible::NoRole
               ? new AccessibleItem(qobject_cast<QQuickItem *>(object))
               : nullptr;
}

/// All attached objects, for the moment when assistive technology appears.
class Registry : public QAccessible::ActivationObserver
{
public:
    Registry()
    {
        QAccessible::installActivationObserver(this);
        QAccessible::installFactory(makeInterface);
    }

    void accessibilityActiveChanged(bool active) override
    {
        if (!active)
            return;
        for (OVAccessible *attached : std::as_const(all))
            attached->apply();
    }

    QSet<OVAccessible *> all;
};

Registry &registry()
{
    // Never destroyed, as attached objects may outlive it.
    static auto *const shared = new Registry;
    return *shared;
}

} // namespace

OVAccessible::OVAccessible(QObject *attachee) : QObject(attachee), m_role(QAccessible::NoRole)
{
    registry().all.insert(this);
}

OVAccessible::~OVAccessible()
{
    registry().all.remove(this);
}

OVAccessible *OVAccessible::qmlAttachedProperties(QObject *attachee)
{
    return new OVAccessible(attachee);
}

OVAccessible *OVAccessible::of(const QObject *item)
{
    return item->property(attachedProperty).value<OVAccessible *>();
}

void OVAccessible::setRole(int role)
{
    if (role == m_role)
        return;
    m_role = role;
    applyLater();
    emit roleChanged();
}

void OVAccessible::setName(const QString &name)
{
    if (name == m_name)
        return;
    m_name = name;
    applyLater();
    emit nameChanged();
}

QQuickItem *OVAccessible::item() const
{
    if (auto *const item = qobject_cast<QQuickItem *>(parent()))
        return item;
    // A popup shows itself by an item around its content.
    const auto *const content = parent()->property("contentItem").value<QQuickItem *>();
    return content ? content->parentItem() : nullptr;
}

QObject *OVAccessible::accessible()
{
    // Not there yet while the item is being made.
    if (!m_accessible && item())
        m_accessible = QQmlProperty(item(), QStringLiteral("Accessible.name"), qmlContext(parent())).object();
    return m_accessible;
}

void OVAccessible::applyLater()
{
    if (!QAccessible::isActive())
        return;
    // The content of a popup that is still being made may not be touched.
    if (qobject_cast<QQuickItem *>(parent()))
        apply();
    else
        QMetaObject::invokeMethod(this, &OVAccessible::apply, Qt::QueuedConnection);
}

void OVAccessible::apply()
{
    QQuickItem *const seen = item();
    if (!seen)
        return;
    seen->setProperty(attachedProperty, QVariant::fromValue(this));
    if (!m_name.isEmpty() && accessible())
        accessible()->setProperty("name", m_name);
    if (m_role == QAccessible::NoRole)
        return;
    // An interface that was asked for before would keep the role of the control's kind.
    QAccessibleInterface *const known = QAccessible::queryAccessibleInterface(seen);
    if (known && !dynamic_cast<AccessibleItem *>(known))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
}
