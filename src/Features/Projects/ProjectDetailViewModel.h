#pragma once

#include "Features/Projects/ActivityLine.h"
#include "Features/Projects/MilestoneLine.h"
#include "Features/Tasks/TaskRow.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// What the page of one project shows and does.
class ProjectDetailViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QUuid projectID READ projectID WRITE setProjectID NOTIFY projectIDChanged REQUIRED FINAL)

    Q_PROPERTY(QString icon READ icon NOTIFY projectChanged FINAL)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY projectChanged FINAL)
    Q_PROPERTY(QString details READ details WRITE setDetails NOTIFY projectChanged FINAL)
    Q_PROPERTY(Choice status READ status NOTIFY projectChanged FINAL)
    Q_PROPERTY(QList<Choice> statuses READ statuses CONSTANT FINAL)
    Q_PROPERTY(bool dueEnabled READ dueEnabled WRITE setDueEnabled NOTIFY projectChanged FINAL)
    /// Invalid without a due date.
    Q_PROPERTY(QDateTime due READ due WRITE setDue NOTIFY projectChanged FINAL)

    Q_PROPERTY(QString tasksText READ tasksText NOTIFY tasksChanged FINAL)
    Q_PROPERTY(QString percentText READ percentText NOTIFY tasksChanged FINAL)
    /// From 0 to 1.
    Q_PROPERTY(double progress READ progress NOTIFY tasksChanged FINAL)
    Q_PROPERTY(QString openText READ openText NOTIFY tasksChanged FINAL)
    Q_PROPERTY(bool hasTasks READ hasTasks NOTIFY tasksChanged FINAL)
    Q_PROPERTY(bool showDoneTasks READ showDoneTasks WRITE setShowDoneTasks NOTIFY showDoneTasksChanged FINAL)
    /// `TaskRow`s.
    Q_PROPERTY(QAbstractItemModel *tasks READ tasks CONSTANT FINAL)

    /// `MilestoneLine`s.
    Q_PROPERTY(QAbstractItemModel *milestones READ milestones CONSTANT FINAL)
    /// `ActivityLine`s, the newest first; at first a few.
    Q_PROPERTY(QAbstractItemModel *activities READ activities CONSTANT FINAL)
    /// "12 more"; empty if all of them are listed.
    Q_PROPERTY(QString moreActivitiesText READ moreActivitiesText NOTIFY activitiesChanged FINAL)

public:
    explicit ProjectDetailViewModel(QObject *parent = nullptr);

    QUuid projectID() const { return m_projectID; }
    void setProjectID(const QUuid &projectID);

    const QString &icon() const { return m_project.icon; }
    const QString &name() const { return m_project.name; }
    /// Takes the name as it is typed, on one line.
    void setName(const QString &name);
    const QString &details() const { return m_project.details; }
    void setDetails(const QString &details);
    Choice status() const;
    static QList<Choice> statuses();
    bool dueEnabled() const { return m_project.dueDate.has_value(); }
    /// Without a due date, sets one in two weeks.
    void setDueEnabled(bool enabled);
    QDateTime due() const;
    void setDue(const QDateTime &due);

    QString tasksText() const;
    QString percentText() const;
    double progress() const;
    QString openText() const;
    bool hasTasks() const { return m_progress.total > 0; }
    bool showDoneTasks() const { return m_showDoneTasks; }
    void setShowDoneTasks(bool show);
    QAbstractItemModel *tasks() { return &m_tasks; }
    /// False for a blank title, which adds nothing.
    Q_INVOKABLE bool addTask(const QString &title);

    QAbstractItemModel *milestones() { return &m_milestones; }
    /// False for a blank title, which adds nothing.
    Q_INVOKABLE bool addMilestone(const QString &title);
    Q_INVOKABLE void toggleMilestone(const QUuid &milestoneID);
    Q_INVOKABLE void removeMilestone(const QUuid &milestoneID);

    QAbstractItemModel *activities() { return &m_activities; }
    QString moreActivitiesText() const;
    /// Lists some more of them.
    Q_INVOKABLE void showMoreActivities();

signals:
    void projectIDChanged();
    void projectChanged();
    void tasksChanged();
    void showDoneTasksChanged();
    void activitiesChanged();

    /// The task with this index is where a step was undone.
    void taskRevealed(int row);
    /// A step was undone in the field "name" or "details", where the caret belongs to this place now; -1 if
    /// that is not known.
    void fieldRevealed(const QString &field, int caret);

protected:
    void refresh(const ChangeSet &changes) override;
    bool reveal(const UndoPlace &place) override;

private:
    void showProject(const Project &project);
    void showTasks(const RecordChanges &changes);
    /// Shows the changed tasks in their rows; false if a row has to come, go or move for that.
    bool updateTasks(const QSet<QUuid> &changed, const TaskDay &day);
    void showActivities();

    QUuid m_projectID;
    /// As it is shown.
    Project m_project;
    ProjectProgress m_progress;
    bool m_showDoneTasks = false;
    KeyedListModel<TaskRow> m_tasks;
    KeyedListModel<MilestoneLine> m_milestones;
    KeyedListModel<ActivityLine> m_activities;
    qsizetype m_activityCount = 0;
    qsizetype m_activityLimit = 0;
};
