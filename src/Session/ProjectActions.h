#pragma once

#include "Session/OrvelSession.h"

/// What the user does to one project, from whichever screen shows it; an unknown project or text does
/// nothing.
class ProjectActions : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit ProjectActions(OrvelSession *session) : m_session(session) {}
    static ProjectActions *create(QQmlEngine *engine, QJSEngine *script);

    /// @param status a raw text
    Q_INVOKABLE void setStatus(const QUuid &projectID, const QString &status);
    /// Makes a template of the project and a project of the template.
    Q_INVOKABLE void toggleTemplate(const QUuid &projectID);
    /// If the project is open, the window goes to all projects first.
    Q_INVOKABLE void remove(const QUuid &projectID);

private:
    WorkspaceStore &store() const { return *m_session->store(); }

    OrvelSession *m_session;
};
