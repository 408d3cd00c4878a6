#pragma once

#include "Session/OrvelSession.h"

/// One field of the settings, for a control that shows and changes it:
///
///     Setting { id: ink; field: "inkMode"; session: Orvel }
///     OVSwitch { checked: ink.value; onToggled: ink.set(checked) }
class Setting : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(OrvelSession *session READ session WRITE setSession NOTIFY sessionChanged REQUIRED FINAL)
    /// The name of the field in the file, such as "theme.glassySurfaces"; see `SettingFields`.
    Q_PROPERTY(QString field READ field WRITE setField NOTIFY fieldChanged REQUIRED FINAL)
    Q_PROPERTY(QVariant value READ value NOTIFY valueChanged FINAL)

public:
    using QObject::QObject;

    OrvelSession *session() const { return m_session; }
    void setSession(OrvelSession *session);
    const QString &field() const { return m_field; }
    void setField(const QString &field);
    const QVariant &value() const { return m_value; }

    /// Changes the settings at once. A value that the field can't hold changes nothing, and gives false.
    Q_INVOKABLE bool set(const QVariant &value);

signals:
    void sessionChanged();
    void fieldChanged();
    void valueChanged();

private:
    void follow();

    OrvelSession *m_session = nullptr;
    QString m_field;
    QVariant m_value;
};
