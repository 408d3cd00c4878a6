#include "Session/OrvelSession.h"

OrvelSession *OrvelSession::of(QQmlEngine &engine)
{
    return engine.singletonInstance<OrvelSession *>(qmlTypeId("Orvel.Session", 1, 0, "Orvel"));
}

void OrvelSession::fill(WorkspaceStore *store, UIState *ui)
{
    m_store = store;
    m_ui = ui;
    emit filled();
}
