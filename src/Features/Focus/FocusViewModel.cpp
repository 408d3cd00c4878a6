#include "Features/Focus/FocusViewModel.h"

#include "Foundation/LineText.h"

FocusViewModel::FocusViewModel(QObject *parent) : ViewModel(parent)
{
    follow<TaskItem>();
    followSettings();
}

FocusViewModel::~FocusViewModel()
{
    if (m_timer)
        m_timer->close(this);
}

void FocusViewModel::start()
{
    m_timer = session()->focus();
    m_timer->open(this);
    m_timer->setWatched(this, m_watched);
    connect(m_timer, &FocusTimer::changed, this, [this] {
        emit changed();
        emit progressChanged();
        emit taskChanged();
    });
}

void FocusViewModel::setWatched(bool watched)
{
    if (m_watched == watched)
        return;
    m_watched = watched;
    if (m_timer)
        m_timer->setWatched(this, watched);
    emit watchedChanged();
}

QString FocusViewModel::stateText() const
{
    if (isRunning())
        return tr("Focusing");
    return isBegun() ? tr("Paused") : tr("Ready");
}

QString FocusViewModel::primaryText() const
{
    if (isRunning())
        return tr("Pause");
    return isBegun() ? tr("Resume") : tr("Start");
}

QString FocusViewModel::primarySymbol() const
{
    return isRunning() ? QStringLiteral("pause.fill") : QStringLiteral("play.fill");
}

QString FocusViewModel::taskTitle() const
{
    return task() ? LineText::shownTitle(task()->title) : QString();
}

Choice FocusViewModel::taskStatus() const
{
    return task() ? Choice::of(task()->status) : Choice();
}

int FocusViewModel::taskIndex() const
{
    const TaskItem *const task = this->task();
    const auto row =
        task ? std::ranges::find(m_tasks.rows(), task->id, &FocusTaskRow::id) : m_tasks.rows().end();
    return row == m_tasks.rows().end() ? -1 : int(row - m_tasks.rows().begin());
}

QString FocusViewModel::defaultText() const
{
    return m_timer ? tr("%1 min").arg(store().settings().defaultFocusMinutes) : QString();
}

void FocusViewModel::logSession()
{
    if (canLog())
        m_timer->complete();
}

void FocusViewModel::choosePreset(int preset)
{
    if (preset >= 0 && preset < presets().size())
        m_timer->setMinutes(presets().at(preset));
}

void FocusViewModel::linkTask(int index)
{
    if (index >= 0 && index < m_tasks.rows().size())
        m_timer->setTaskID(m_tasks.rows().at(index).id);
}

void FocusViewModel::refresh(const ChangeSet &)
{
    QList<FocusTaskRow> rows;
    for (const TaskItem &task : store().tasks())
        if (task.status != TaskStatus::done)
            rows.append({task.id, LineText::shownTitle(task.title)});
    m_tasks.setRows(std::move(rows));
    emit taskChanged();
    emit changed();
}
