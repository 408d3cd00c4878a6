#pragma once

#include "Foundation/Choice.h"
#include "Session/OrvelSession.h"

/// Makes the choices known to QML.
struct ChoiceType {
    Q_GADGET
    QML_FOREIGN(Choice)
    QML_ANONYMOUS
};

/// What the user does to one task, from whichever screen shows it. Statuses and priorities are told by their
/// raw texts; an unknown task or text does nothing.
class TaskActions : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QList<Choice> statuses READ statuses CONSTANT FINAL)
    Q_PROPERTY(QList<Choice> priorities READ priorities CONSTANT FINAL)

public:
    explicit TaskActions(OrvelSession *session) : m_session(session) {}
    static TaskActions *create(QQmlEngine *engine, QJSEngine *script);

    static QList<Choice> statuses() { return Choice::all<TaskStatus>(); }
    static QList<Choice> priorities() { return Choice::all<TaskPriority>(); }

    /// Whether no task can be made of the title.
    Q_INVOKABLE static bool isBlank(const QString &title) { return title.trimmed().isEmpty(); }
    /// Adds a task with this title, trimmed and on one line; false if it is blank.
    Q_INVOKABLE bool add(const QString &title);
    /// Takes the title as it is typed, on one line.
    Q_INVOKABLE void rename(const QUuid &taskID, const QString &title);
    /// To done, or from there to do.
    Q_INVOKABLE void toggleDone(const QUuid &taskID);
    Q_INVOKABLE void cycleStatus(const QUuid &taskID);
    Q_INVOKABLE void setStatus(const QUuid &taskID, const QString &status);
    Q_INVOKABLE void cyclePriority(const QUuid &taskID);
    Q_INVOKABLE void setPriority(const QUuid &taskID, const QString &priority);
    Q_INVOKABLE void setDue(const QUuid &taskID, const QDateTime &due);
    Q_INVOKABLE void clearDue(const QUuid &taskID);
    Q_INVOKABLE void remove(const QUuid &taskID);

private:
    WorkspaceStore &store() const { return *m_session->store(); }

    OrvelSession *m_session;
};
