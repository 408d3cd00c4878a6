#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Asks the desktop to keep the screen awake while it is active. Where the desktop offers no such thing,
/// nothing happens.
class IdleInhibitor : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged FINAL)
    /// What the desktop may tell the user.
    Q_PROPERTY(QString reason MEMBER m_reason NOTIFY reasonChanged FINAL)

public:
    using QObject::QObject;
    ~IdleInhibitor() override;

    bool isActive() const { return m_isActive; }
    void setActive(bool active);

signals:
    void activeChanged();
    void reasonChanged();

private:
    void inhibit();
    void release();

    QString m_reason;
    bool m_isActive = false;
    /// What the desktop knows the request by; 0 for none.
    uint m_cookie = 0;
};
