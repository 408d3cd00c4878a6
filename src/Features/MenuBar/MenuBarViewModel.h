#pragma once

#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// A task that is due today, as the panel lists it.
struct MenuBarTask {
    Q_GADGET
    Q_PROPERTY(QUuid taskID MEMBER taskID FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)

public:
    QUuid taskID;
    QString title;

    const QUuid &id() const { return taskID; }
    bool operator==(const MenuBarTask &) const = default;
};

/// What the panel of the menu bar shows of the day.
class MenuBarViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString icon READ icon NOTIFY changed FINAL)
    Q_PROPERTY(QString name READ name NOTIFY changed FINAL)
    Q_PROPERTY(QString greeting READ greeting NOTIFY changed FINAL)
    Q_PROPERTY(int openCount READ openCount NOTIFY changed FINAL)
    Q_PROPERTY(int dueCount READ dueCount NOTIFY changed FINAL)
    Q_PROPERTY(int habitCount READ habitCount NOTIFY changed FINAL)
    /// Whether the tasks due today are listed.
    Q_PROPERTY(bool listsTasks READ listsTasks NOTIFY changed FINAL)
    Q_PROPERTY(QAbstractItemModel *tasks READ tasks CONSTANT FINAL)

public:
    explicit MenuBarViewModel(QObject *parent = nullptr);

    const QString &icon() const { return m_shown.icon; }
    const QString &name() const { return m_shown.name; }
    const QString &greeting() const { return m_shown.greeting; }
    int openCount() const { return m_shown.openCount; }
    int dueCount() const { return int(m_tasks.rows().size()); }
    int habitCount() const { return m_shown.habitCount; }
    bool listsTasks() const { return m_shown.listsTasks && dueCount() > 0; }
    QAbstractItemModel *tasks() { return &m_tasks; }
    const QList<MenuBarTask> &taskList() const { return m_tasks.rows(); }

    /// Adds a task due today; false for a blank title.
    Q_INVOKABLE bool addTask(const QString &title);
    Q_INVOKABLE void finishTask(const QUuid &taskID);

signals:
    void changed();

private:
    struct Shown {
        QString icon;
        QString name;
        QString greeting;
        int openCount = 0;
        int habitCount = 0;
        bool listsTasks = true;

        bool operator==(const Shown &) const = default;
    };

    void start() override;
    void refresh(const ChangeSet &changes) override;
    QString currentGreeting() const;

    Shown m_shown;
    KeyedListModel<MenuBarTask> m_tasks;
};
