#pragma once

#include "Session/SessionTypes.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What the top of the window shows of the settings.
class RootViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(WorkspaceStore *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged FINAL)
    Q_PROPERTY(
        bool hasCompletedOnboarding READ hasCompletedOnboarding NOTIFY hasCompletedOnboardingChanged FINAL)

public:
    using QObject::QObject;

    WorkspaceStore *store() const { return m_store; }
    void setStore(WorkspaceStore *store);
    /// The name of the workspace, or "Orvel" if that is blank.
    QString title() const { return m_title; }
    bool hasCompletedOnboarding() const { return m_hasCompletedOnboarding; }

signals:
    void storeChanged();
    void titleChanged();
    void hasCompletedOnboardingChanged();

private:
    void read();

    WorkspaceStore *m_store = nullptr;
    QString m_title;
    bool m_hasCompletedOnboarding = false;
};
