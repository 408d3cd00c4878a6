#include "Store/UndoHistory.h"

#include <QThreadPool>

namespace
{
constexpr qint64 maxBytesFreedAtOnce = 64 * 1024;

/// Frees a large step beside the window: giving back an import of thousands of records takes longer than a
/// frame.
void discard(UndoStep step)
{
    step.whenForgotten.clear();
    if (step.bytes > maxBytesFreedAtOnce)
        QThreadPool::globalInstance()->start(
            [held = std::make_shared<UndoStep>(std::move(step))]() mutable { held.reset(); });
}
} // namespace

bool UndoStep::isEmpty() const
{
    return std::apply([](const auto &...kind) { return (kind.isEmpty() && ...); }, edits);
}

void UndoHistory::add(UndoStep step, const Lists &lists)
{
    dropRedo();
    if (!merge(step, lists)) {
        measure(step, lists);
        m_steps.push_back(std::move(step));
        m_done = m_steps.size();
    }
    m_typingEnded = false;
    shrink();
}

bool UndoHistory::merge(UndoStep &step, const Lists &lists)
{
    if (m_steps.empty() || m_typingEnded || !step.typed || step.isBackground)
        return false;
    UndoStep &last = m_steps.back();
    if (!last.typed || last.text != step.text || last.place != step.place)
        return false;
    if (!(last.isWholeEdit && step.isWholeEdit) && !last.typed->continueWith(*step.typed))
        return false;
    RecordKinds::forEach([&]<typename Record>() {
        std::get<RecordEdits<Record>>(last.edits).add(std::get<RecordEdits<Record>>(step.edits));
    });
    measure(last, lists);
    return true;
}

const UndoStep *UndoHistory::undo(Lists &lists, const Destination &current, ChangeSet &changes)
{
    if (!undoStep())
        return nullptr;
    while (lastIsBackground())
        toggle(m_steps[--m_done], lists, true, changes);
    UndoStep &step = m_steps[--m_done];
    step.placeAfter = current;
    toggle(step, lists, true, changes);
    return &step;
}

const UndoStep *UndoHistory::redo(Lists &lists, ChangeSet &changes)
{
    if (m_done == m_steps.size())
        return nullptr;
    UndoStep &step = m_steps[m_done++];
    toggle(step, lists, false, changes);
    while (m_done < m_steps.size() && m_steps[m_done].isBackground)
        toggle(m_steps[m_done++], lists, false, changes);
    return &step;
}

void UndoHistory::toggle(UndoStep &step, Lists &lists, bool undo, ChangeSet &changes)
{
    ChangeSet own;
    RecordKinds::forEach([&]<typename Record>() {
        std::get<RecordEdits<Record>>(step.edits)
            .toggle(std::get<RecordList<Record>>(lists), undo, own.of<Record>());
    });
    changes.add(own);
    measure(step, lists);
    m_typingEnded = true;
}

void UndoHistory::measure(UndoStep &step, const Lists &lists)
{
    qint64 bytes = qint64(sizeof step);
    RecordKinds::forEach([&]<typename Record>() {
        bytes += std::get<RecordEdits<Record>>(step.edits).bytes(std::get<RecordList<Record>>(lists));
    });
    m_bytes += bytes - step.bytes;
    step.bytes = bytes;
}

const UndoStep *UndoHistory::undoStep() const
{
    for (std::size_t i = m_done; i > 0; --i)
        if (!m_steps[i - 1].isBackground)
            return &m_steps[i - 1];
    return nullptr;
}

const UndoStep *UndoHistory::redoStep() const
{
    return m_done < m_steps.size() ? &m_steps[m_done] : nullptr;
}

void UndoHistory::dropRedo()
{
    // What these steps put off never happened, since they are undone.
    for (; m_steps.size() > m_done; m_steps.pop_back()) {
        m_bytes -= m_steps.back().bytes;
        discard(std::move(m_steps.back()));
    }
}

void UndoHistory::shrink()
{
    while (m_done > 0 && (m_steps.size() > m_limits.maxSteps || m_bytes > m_limits.maxBytes)) {
        UndoStep forgotten = std::move(m_steps.front());
        m_steps.pop_front();
        --m_done;
        m_bytes -= forgotten.bytes;
        for (const auto &call : forgotten.whenForgotten)
            call();
        discard(std::move(forgotten));
    }
}

void UndoHistory::clear()
{
    dropRedo();
    const std::deque<UndoStep> forgotten = std::exchange(m_steps, {});
    m_done = 0;
    m_bytes = 0;
    for (const UndoStep &step : forgotten)
        for (const auto &call : step.whenForgotten)
            call();
}
