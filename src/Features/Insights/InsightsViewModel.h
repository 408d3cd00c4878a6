#pragma once

#include "DesignSystem/AccentShades.h"
#include "Features/Insights/InsightsPoints.h"
#include "Session/ViewModel.h"

#include <QQuickItem>

/// What the Insights screen shows: figures and charts of the user's own work. Only what follows from a kind
/// of record that changed is counted anew.
class InsightsViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString tasksDoneText READ tasksDoneText NOTIFY tasksChanged FINAL)
    Q_PROPERTY(QString completionText READ completionText NOTIFY tasksChanged FINAL)
    Q_PROPERTY(QString pagesText READ pagesText NOTIFY pagesChanged FINAL)
    Q_PROPERTY(QString streakText READ streakText NOTIFY habitsChanged FINAL)

    /// The points of each chart; none where there is nothing to draw.
    Q_PROPERTY(QList<ChartPoint> statuses MEMBER m_statuses NOTIFY tasksChanged FINAL)
    Q_PROPERTY(QList<ChartPoint> completions MEMBER m_completions NOTIFY tasksChanged FINAL)
    Q_PROPERTY(QList<ChartPoint> pages MEMBER m_pages NOTIFY pagesChanged FINAL)
    Q_PROPERTY(QList<ChartPoint> events MEMBER m_events NOTIFY eventsChanged FINAL)
    Q_PROPERTY(QList<ChartPoint> projects MEMBER m_projects NOTIFY projectsChanged FINAL)
    Q_PROPERTY(QList<ChartPoint> habits MEMBER m_habits NOTIFY habitsChanged FINAL)
    Q_PROPERTY(QList<AccentShades> habitAccents MEMBER m_habitAccents NOTIFY habitsChanged FINAL)

public:
    explicit InsightsViewModel(QObject *parent = nullptr);

    QString tasksDoneText() const;
    QString completionText() const;
    QString pagesText() const;
    QString streakText() const;

    /// Puts the points on the clipboard as a table.
    Q_INVOKABLE void copyNumbers(const QString &labelHeading, const QString &valueHeading,
                                 const QList<ChartPoint> &points);
    /// Puts a picture of the item on the clipboard; `pictureCopied` tells when it is there.
    Q_INVOKABLE void copyPicture(QQuickItem *item);

signals:
    void tasksChanged();
    void pagesChanged();
    void eventsChanged();
    void projectsChanged();
    void habitsChanged();
    void pictureCopied();

protected:
    void refresh(const ChangeSet &changes) override;

private:
    void countTasks();
    void countPages();
    void countEvents();
    void countProjects();
    void countHabits();

    InsightsQueries::TaskFigures m_tasks;
    qint64 m_pageCount = 0;
    qint64 m_bestStreak = 0;
    QDate m_day;
    QList<ChartPoint> m_statuses;
    QList<ChartPoint> m_completions;
    QList<ChartPoint> m_pages;
    QList<ChartPoint> m_events;
    QList<ChartPoint> m_projects;
    QList<ChartPoint> m_habits;
    QList<AccentShades> m_habitAccents;
};
