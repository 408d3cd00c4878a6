#pragma once

#include "Store/ChangeSet.h"
#include "Store/RecordEdits.h"
#include "Store/TypedText.h"
#include "Support/Destination.h"

#include <deque>
#include <functional>

/// A text field that writes what is typed into a record.
struct TextPlace {
    /// The record, or the part of one, such as a block of a page, that the text belongs to.
    QUuid record;
    /// The field of the record, such as "title".
    QString field;

    bool operator==(const TextPlace &) const = default;
};

/// One thing that the user did, kept so that it can be taken back and done again.
struct UndoStep {
    /// How the Edit menu calls it, such as "Delete Task".
    QString name;
    /// Where in the window it was done, and where the user was when it was undone.
    Destination place;
    Destination placeAfter;
    /// The first record that it touched.
    QUuid record;
    /// Set if the step is typing.
    std::optional<TextPlace> text;
    std::optional<TypedText> typed;
    /// Whether typing that goes on in the text belongs to this step, also where it begins a new word.
    bool isWholeEdit = false;
    /// What the window tells once it is done, such as "Task deleted"; empty for nothing.
    QString message;
    /// Not the user's own doing, such as the place kept in a book: undone and done again along with the step
    /// before it.
    bool isBackground = false;
    RecordKinds::Each<RecordEdits> edits;
    /// What the step put off until it can no longer be undone.
    QList<std::function<void()>> whenForgotten;
    qint64 bytes = 0;

    bool isEmpty() const;
};

/// The steps that can be undone and done again. The oldest are forgotten where there are more than a
/// thousand, or where they hold more than 64 MB.
class UndoHistory
{
public:
    struct Limits {
        std::size_t maxSteps = 1'000;
        qint64 maxBytes = 64 * 1024 * 1024;
    };
    using Lists = RecordKinds::Each<RecordList>;

    UndoHistory() = default;
    explicit UndoHistory(Limits limits) : m_limits(limits) {}

    /// Adds what was just done; whatever could be done again no longer can. Typing that goes on becomes part
    /// of the step before it.
    void add(UndoStep step, const Lists &lists);
    /// Takes the last step back; null if there is none.
    const UndoStep *undo(Lists &lists, const Destination &current, ChangeSet &changes);
    /// Does the step again that was undone last; null if there is none.
    const UndoStep *redo(Lists &lists, ChangeSet &changes);
    /// Forgets all steps.
    void clear();
    /// The next typing begins a step of its own.
    void endTyping() { m_typingEnded = true; }

    /// What `undo` and `redo` would take; null if there is nothing.
    const UndoStep *undoStep() const;
    const UndoStep *redoStep() const;
    /// Whether what was done last was not the user's own doing.
    bool lastIsBackground() const { return m_done > 0 && m_steps[m_done - 1].isBackground; }
    qint64 bytes() const { return m_bytes; }
    /// How many steps are done, and not undone.
    std::size_t size() const { return m_done; }

private:
    bool merge(UndoStep &step, const Lists &lists);
    void toggle(UndoStep &step, Lists &lists, bool undo, ChangeSet &changes);
    void measure(UndoStep &step, const Lists &lists);
    void dropRedo();
    void shrink();

    Limits m_limits;
    std::deque<UndoStep> m_steps;
    /// Steps before this place are done.
    std::size_t m_done = 0;
    qint64 m_bytes = 0;
    bool m_typingEnded = false;
};
