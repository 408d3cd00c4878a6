#include "Features/Habits/HabitsViewModel.h"

#include "Foundation/LineText.h"
#include "Store/HabitOperations.h"
#include "Support/OVDate.h"

#include <utility>

namespace
{
const QString firstEmoji = QStringLiteral("🔥");
constexpr int firstTarget = HabitOperations::maxTarget;
} // namespace

HabitsViewModel::HabitsViewModel(QObject *parent)
    : ViewModel(parent), m_emoji(firstEmoji), m_target(firstTarget)
{
    follow<Habit>();
    followDays();
}

QString HabitsViewModel::doneText() const
{
    return QStringLiteral("%1/%2").arg(m_figures.doneToday).arg(m_figures.habits);
}

void HabitsViewModel::setComposing(bool composing)
{
    if (m_composing == composing)
        return;
    m_composing = composing;
    emit composingChanged();
    // The prompt below the habits goes while the form is open.
    requestRefresh();
}

void HabitsViewModel::setName(const QString &name)
{
    if (m_name == name)
        return;
    m_name = name;
    emit nameChanged();
}

bool HabitsViewModel::canAdd() const
{
    return !m_name.trimmed().isEmpty();
}

QStringList HabitsViewModel::emojiChoices()
{
    return {QStringLiteral("💧"), QStringLiteral("📚"), QStringLiteral("🏃"), QStringLiteral("🧘"),
            QStringLiteral("🥗"), QStringLiteral("😴"), firstEmoji,           QStringLiteral("🌱"),
            QStringLiteral("🎯"), QStringLiteral("🎨"), QStringLiteral("🎸"), QStringLiteral("🧹"),
            QStringLiteral("☀️"),  QStringLiteral("🌙"), QStringLiteral("💪"), QStringLiteral("✍️"),
            QStringLiteral("🧠"), QStringLiteral("🚶")};
}

QList<AccentShades> HabitsViewModel::accents()
{
    QList<AccentShades> accents;
    for (const auto &entry : enumCases<AccentPalette>())
        if (entry.value != AccentPalette::mono)
            accents.append(AccentShades::of(entry.value));
    return accents;
}

void HabitsViewModel::setAccent(const QString &accent)
{
    const auto value = enumFromRaw<AccentPalette>(accent);
    if (!value || *value == m_accent)
        return;
    m_accent = *value;
    emit accentChanged();
}

void HabitsViewModel::addHabit()
{
    if (!HabitOperations::create(store(), LineText::singleLine(m_name.trimmed()), m_emoji, m_accent,
                                 m_target))
        return;
    setName({});
    if (std::exchange(m_emoji, firstEmoji) != firstEmoji)
        emit emojiChanged();
    if (std::exchange(m_target, firstTarget) != firstTarget)
        emit targetChanged();
    setComposing(false);
}

void HabitsViewModel::toggleToday(const QUuid &habitID)
{
    HabitOperations::toggle(store(), habitID, store().now());
}

void HabitsViewModel::toggleDay(const QUuid &habitID, int weekday)
{
    const QDate today = clock().today();
    const QDate day = OVDate::startOfWeek(today).addDays(weekday);
    if (day <= today)
        HabitOperations::toggle(store(), habitID, day);
}

void HabitsViewModel::setHabitTarget(const QUuid &habitID, int target)
{
    HabitOperations::setTarget(store(), habitID, target);
}

void HabitsViewModel::remove(const QUuid &habitID)
{
    HabitOperations::remove(store(), habitID);
}

void HabitsViewModel::forget(const RecordChanges &habits)
{
    const bool isNewDay = std::exchange(m_knownDay, clock().today()) != clock().today();
    if (habits.isReloaded || isNewDay) {
        m_known.clear();
        return;
    }
    for (const auto *ids : {&habits.replaced, &habits.removed})
        for (const QUuid &id : *ids)
            m_known.remove(id);
}

void HabitsViewModel::refresh(const ChangeSet &changes)
{
    forget(changes.of<Habit>());
    Figures figures;
    QList<HabitRow> rows;
    for (const Habit &habit : store().list<Habit>()) {
        auto row = m_known.constFind(habit.id);
        if (row == m_known.constEnd())
            row = m_known.insert(habit.id, HabitRow::of(habit, clock().today()));
        ++figures.habits;
        figures.doneToday += row->isDoneToday ? 1 : 0;
        figures.bestStreak = std::max(figures.bestStreak, row->streak);
        figures.weeklyCount += row->weeklyCount;
        rows.append(*row);
    }
    if (!rows.isEmpty() && !m_composing)
        rows.append(HabitRow::prompt());
    m_rows.setRows(std::move(rows));
    if (std::exchange(m_figures, figures) != figures)
        emit figuresChanged();
}

bool HabitsViewModel::reveal(const UndoPlace &place)
{
    const auto row = std::ranges::find(m_rows.rows(), place.record, &HabitRow::id);
    if (row == m_rows.rows().end())
        return false;
    emit revealed(int(row - m_rows.rows().begin()));
    return true;
}
