#pragma once

#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>

/// Makes an object when it is first asked for, and drops it when it is no longer wanted. An item fills the
/// loader and lends it its implicit size; without one the implicit size is zero. Unlike a `Loader` it can
/// make the component of a file with bound components.
class OVLazyLoader : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// Whether the object is there.
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged FINAL)
    Q_PROPERTY(QQmlComponent *sourceComponent READ sourceComponent WRITE setSourceComponent NOTIFY
                   sourceComponentChanged FINAL)
    /// The object, or null.
    Q_PROPERTY(QObject *item READ item NOTIFY itemChanged FINAL)

public:
    explicit OVLazyLoader(QQuickItem *parent = nullptr);
    ~OVLazyLoader() override;

    bool isActive() const { return m_active; }
    void setActive(bool active);
    QQmlComponent *sourceComponent() const { return m_component; }
    void setSourceComponent(QQmlComponent *component);
    QObject *item() const { return m_object; }

    /// Makes the object if it is not there yet.
    Q_INVOKABLE QObject *load();

signals:
    void activeChanged();
    void sourceComponentChanged();
    void itemChanged();
    /// The object has just been made.
    void loaded();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void update();
    void make();
    void drop();
    void takeItemSize();
    void fillWithItem();

    QPointer<QQmlComponent> m_component;
    QPointer<QObject> m_object;
    QPointer<QQuickItem> m_item;
    bool m_active = false;
};
