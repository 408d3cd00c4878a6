#pragma once

#include <QAccessibleObject>
#include <QQuickItem>

class OVAccessible;

/// An item as assistive technology sees it, with the role of its `OVAccessible` and with what its
/// `Accessible` says.
class AccessibleItem : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    explicit AccessibleItem(QQuickItem *item);

    QAccessibleInterface *parent() const override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QWindow *window() const override;
    QRect rect() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString &action) override;
    QStringList keyBindingsForAction(const QString &action) const override;

private:
    QQuickItem *item() const;
    QObject *accessible() const;
    bool says(const char *property) const;
    QList<QAccessibleInterface *> children() const;
};
