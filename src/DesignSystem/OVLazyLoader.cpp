#include "DesignSystem/OVLazyLoader.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlInfo>

OVLazyLoader::OVLazyLoader(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
}

OVLazyLoader::~OVLazyLoader()
{
    delete m_object;
}

void OVLazyLoader::setActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    if (!active)
        drop();
    emit activeChanged();
    update();
}

void OVLazyLoader::setSourceComponent(QQmlComponent *component)
{
    if (component == m_component)
        return;
    drop();
    m_component = component;
    emit sourceComponentChanged();
    update();
}

QObject *OVLazyLoader::load()
{
    setActive(true);
    return m_object;
}

void OVLazyLoader::componentComplete()
{
    QQuickItem::componentComplete();
    update();
}

void OVLazyLoader::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        fillWithItem();
}

void OVLazyLoader::update()
{
    if (isComponentComplete() && m_active && m_component && !m_object)
        make();
}

void OVLazyLoader::make()
{
    QQmlContext *context = m_component->creationContext();
    m_object = m_component->beginCreate(context ? context : qmlContext(this));
    if (!m_object) {
        qmlWarning(this, m_component->errors());
        return;
    }
    QQmlEngine::setObjectOwnership(m_object, QQmlEngine::CppOwnership);
    // A popup finds the item that it belongs to by its parent.
    m_object->setParent(this);
    m_item = qobject_cast<QQuickItem *>(m_object);
    if (m_item)
        m_item->setParentItem(this);
    m_component->completeCreate();
    if (!m_object)
        return;
    if (m_item) {
        connect(m_item, &QQuickItem::implicitWidthChanged, this, &OVLazyLoader::takeItemSize);
        connect(m_item, &QQuickItem::implicitHeightChanged, this, &OVLazyLoader::takeItemSize);
        takeItemSize();
        fillWithItem();
    }
    emit itemChanged();
    emit loaded();
}

void OVLazyLoader::drop()
{
    if (!m_object)
        return;
    QObject *const object = m_object;
    m_object = nullptr;
    if (m_item) {
        m_item->disconnect(this);
        m_item->setParentItem(nullptr);
        m_item->setVisible(false);
        m_item = nullptr;
        takeItemSize();
    }
    object->deleteLater();
    emit itemChanged();
}

void OVLazyLoader::takeItemSize()
{
    setImplicitSize(m_item ? m_item->implicitWidth() : 0, m_item ? m_item->implicitHeight() : 0);
}

void OVLazyLoader::fillWithItem()
{
    if (m_item)
        m_item->setSize(size());
}
