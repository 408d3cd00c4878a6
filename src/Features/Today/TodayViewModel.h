#pragma once

#include "Features/Projects/ProjectRow.h"
#include "Features/Tasks/TaskRow.h"
#include "Features/Today/PageLine.h"
#include "Features/Today/ScheduleItem.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// What the Today screen shows, and its field for a note.
class TodayViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString greeting READ greeting NOTIFY greetingChanged FINAL)
    /// "2 tasks · 1 event today"
    Q_PROPERTY(QString summary READ summary NOTIFY dayChanged FINAL)
    Q_PROPERTY(QString percentText READ percentText NOTIFY progressChanged FINAL)
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressChanged FINAL)
    /// Of all tasks, from 0 to 1.
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged FINAL)
    /// `ScheduleItem`s.
    Q_PROPERTY(QAbstractItemModel *schedule READ schedule CONSTANT FINAL)
    /// `TaskRow`s.
    Q_PROPERTY(QAbstractItemModel *dueTasks READ dueTasks CONSTANT FINAL)
    /// `ProjectRow`s.
    Q_PROPERTY(QAbstractItemModel *projects READ projects CONSTANT FINAL)
    /// `PageLine`s.
    Q_PROPERTY(QAbstractItemModel *recentPages READ recentPages CONSTANT FINAL)

    Q_PROPERTY(QString quickNote READ quickNote WRITE setQuickNote NOTIFY quickNoteChanged FINAL)
    /// Whether the note is more than blanks.
    Q_PROPERTY(bool canSaveNote READ canSaveNote NOTIFY quickNoteChanged FINAL)

public:
    explicit TodayViewModel(QObject *parent = nullptr);

    const QString &greeting() const { return m_greeting; }
    QString summary() const;
    QString percentText() const;
    QString progressText() const;
    double progress() const
    {
        return double(m_progress.done) / double(std::max<qint64>(1, m_progress.total));
    }
    QAbstractItemModel *schedule() { return &m_schedule; }
    QAbstractItemModel *dueTasks() { return &m_dueTasks; }
    QAbstractItemModel *projects() { return &m_projects; }
    QAbstractItemModel *recentPages() { return &m_recentPages; }

    const QString &quickNote() const { return m_quickNote; }
    void setQuickNote(const QString &text);
    bool canSaveNote() const { return !m_quickNote.trimmed().isEmpty(); }
    /// Makes a note of the text, unless it is blank, and empties the field; the note is not opened.
    Q_INVOKABLE void saveNote();

    /// Make an empty one and open it.
    Q_INVOKABLE void newPage();
    Q_INVOKABLE void newNote();

signals:
    void greetingChanged();
    void dayChanged();
    void progressChanged();
    void quickNoteChanged();

protected:
    void start() override;
    void refresh(const ChangeSet &changes) override;

private:
    void greet();
    void showDay();
    void showProjects();
    void showPages();

    QString m_greeting;
    qsizetype m_taskCount = 0;
    qsizetype m_eventCount = 0;
    ProjectProgress m_progress;
    KeyedListModel<ScheduleItem> m_schedule;
    KeyedListModel<TaskRow> m_dueTasks;
    KeyedListModel<ProjectRow> m_projects;
    KeyedListModel<PageLine> m_recentPages;
    QString m_quickNote;
};
