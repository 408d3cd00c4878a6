#pragma once

#include "Session/SessionTypes.h"

#include <QQmlEngine>

/// `Orvel` in QML: the long-lived objects of the process, as screens hand them to their view models. The
/// application fills it before the first screen is made, and tests fill it with theirs.
class OrvelSession : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Orvel)
    QML_SINGLETON
    Q_PROPERTY(WorkspaceStore *store READ store NOTIFY filled FINAL)
    Q_PROPERTY(UIState *ui READ ui NOTIFY filled FINAL)

public:
    using QObject::QObject;

    /// The session of this engine.
    static OrvelSession *of(QQmlEngine &engine);

    WorkspaceStore *store() const { return m_store; }
    UIState *ui() const { return m_ui; }

    /// Both objects outlive the engine.
    void fill(WorkspaceStore *store, UIState *ui);

signals:
    void filled();

private:
    WorkspaceStore *m_store = nullptr;
    UIState *m_ui = nullptr;
};
