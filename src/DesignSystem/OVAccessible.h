#pragma once

#include <QPointer>
#include <QQuickItem>

/// What assistive technology is told of a control or a popup, where `Accessible` does not suffice: a control
/// of this Qt version keeps the role of its kind whatever `Accessible.role` says, and a popup takes no
/// `Accessible` at all. Costs next to nothing while there is no such technology.
class OVAccessible : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("OVAccessible is attached to controls and popups.")
    QML_ATTACHED(OVAccessible)
    /// A role of `Accessible`.
    Q_PROPERTY(int role READ role WRITE setRole NOTIFY roleChanged FINAL)
    /// The name of a popup; other items are named by `Accessible.name`.
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged FINAL)

public:
    explicit OVAccessible(QObject *attachee);
    ~OVAccessible() override;
    static OVAccessible *qmlAttachedProperties(QObject *attachee);
    /// That of an item that assistive technology sees; null for none.
    static OVAccessible *of(const QObject *item);

    int role() const { return m_role; }
    void setRole(int role);
    QString name() const { return m_name; }
    void setName(const QString &name);

    /// The `Accessible` of the item.
    QObject *accessible();
    /// Lets assistive technology see what is attached.
    void apply();

signals:
    void roleChanged();
    void nameChanged();

private:
    QQuickItem *item() const;
    void applyLater();

    QString m_name;
    QPointer<QObject> m_accessible;
    int m_role;
};
