#pragma once

#include "Features/Tasks/TaskRows.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// What the Tasks screen shows, and its form for a new task. Filter and priority are told by their raw texts;
/// what is done to one task is in `TaskActions`.
class TasksViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged FINAL)
    Q_PROPERTY(bool dueEnabled MEMBER m_dueEnabled NOTIFY dueEnabledChanged FINAL)
    Q_PROPERTY(QDateTime due MEMBER m_due NOTIFY dueChanged FINAL)
    Q_PROPERTY(QString priority READ priority WRITE setPriority NOTIFY priorityChanged FINAL)
    /// Whether the title is more than blanks.
    Q_PROPERTY(bool canAdd READ canAdd NOTIFY titleChanged FINAL)

    Q_PROPERTY(QList<Choice> filters READ filters CONSTANT FINAL)
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged FINAL)
    Q_PROPERTY(bool showDone READ showDone WRITE setShowDone NOTIFY showDoneChanged FINAL)
    /// `TaskRow`s.
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    Q_PROPERTY(QString countText READ countText NOTIFY filteredChanged FINAL)
    /// Whether the filter takes no task.
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY filteredChanged FINAL)

public:
    explicit TasksViewModel(QObject *parent = nullptr);

    const QString &title() const { return m_title; }
    void setTitle(const QString &title);
    bool canAdd() const;
    /// Adds the task that the form describes, unless its title is blank, and empties the form. The due moment
    /// stays for the next one.
    Q_INVOKABLE void addTask();

    QString priority() const { return enumRawText(m_priority); }
    void setPriority(const QString &priority);

    static QList<Choice> filters() { return Choice::all<TaskFilter>(); }
    QString filter() const { return enumRawText(m_filter); }
    /// Unknown texts are ignored.
    void setFilter(const QString &filter);
    bool showDone() const { return m_showDone; }
    void setShowDone(bool showDone);
    QAbstractItemModel *rows() { return &m_rows; }
    QString countText() const;
    bool isEmpty() const { return m_filtered == 0; }

signals:
    void titleChanged();
    void dueEnabledChanged();
    void dueChanged();
    void priorityChanged();
    void filterChanged();
    void showDoneChanged();
    void filteredChanged();

    /// The row with this index is where a step was undone.
    void revealed(int row);

protected:
    void start() override;
    void refresh(const ChangeSet &changes) override;
    bool reveal(const UndoPlace &place) override;

private:
    void timePassed();
    /// Shows the changed tasks in their rows; false if a row has to come, go or move for that.
    bool updateRows(const QSet<QUuid> &changed);
    void layOut();

    QString m_title;
    bool m_dueEnabled = false;
    QDateTime m_due;
    TaskPriority m_priority = TaskPriority::medium;

    TaskFilter m_filter = TaskFilter::all;
    bool m_showDone = false;
    KeyedListModel<TaskRow> m_rows;
    qsizetype m_filtered = 0;
    std::optional<TaskDay> m_day;
};
