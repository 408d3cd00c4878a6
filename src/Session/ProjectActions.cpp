#include "Session/ProjectActions.h"

#include "Store/ProjectOperations.h"

ProjectActions *ProjectActions::create(QQmlEngine *engine, QJSEngine *script)
{
    return new ProjectActions(OrvelSession::create(engine, script));
}

void ProjectActions::setStatus(const QUuid &projectID, const QString &status)
{
    const auto value = enumFromRaw<ProjectStatus>(status);
    if (value && store().projects().contains(projectID))
        ProjectOperations::setStatus(store(), projectID, *value);
}

void ProjectActions::toggleTemplate(const QUuid &projectID)
{
    ProjectOperations::toggleTemplate(store(), projectID);
}

void ProjectActions::remove(const QUuid &projectID)
{
    const Action action(store(), QString());
    if (m_session->ui()->selection() == Destination::project(projectID))
        m_session->ui()->setSelection(Destination::to(Destination::Kind::projects));
    ProjectOperations::remove(store(), projectID);
}
