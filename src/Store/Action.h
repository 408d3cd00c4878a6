#pragma once

#include "Store/UndoHistory.h"

#include <QCoreApplication>

class WorkspaceStore;

/// Typing in a text field that writes into the store with each key.
struct Typing {
    TextPlace text;
    QStringView before;
    QStringView after;
    /// Where the caret stands now; -1 if that is not known.
    qsizetype caret = -1;
    /// How the Edit menu calls it; "Typing" if empty.
    QString name = {};
    /// Whether all typing in the field is one step until `WorkspaceStore::endTyping`, however many words it
    /// is.
    bool isOneStep = false;
};

/// The names of actions and what is told of them, for translation: `ActionText::tr("Delete Task")`.
struct ActionText {
    Q_DECLARE_TR_FUNCTIONS(ActionText)
};

/// One thing that the user does. All changes of the store while it exists become one change set, one signal,
/// one undo step and one request to save. Of actions within actions the outermost counts; one without a name
/// takes that of the first within it.
class [[nodiscard]] Action
{
public:
    /// @param name how the Edit menu calls it, such as "Delete Task"
    Action(WorkspaceStore &store, const QString &name);
    /// Typing, which the history puts together to about a word a step.
    Action(WorkspaceStore &store, const Typing &typing);
    /// What the program does by itself, such as keeping the place in a book: undone along with the step
    /// before it.
    static Action background(WorkspaceStore &store);
    ~Action();
    Q_DISABLE_COPY_MOVE(Action)

    /// What the window tells once the action is done, with a way to undo it, such as "Task deleted". That of
    /// an outer action comes first.
    void setMessage(const QString &message) const;
    /// Puts off what can't be undone, such as deleting a file, until the step is forgotten.
    void whenForgotten(std::function<void()> call) const;

private:
    struct Background {
    };
    Action(WorkspaceStore &store, Background);

    WorkspaceStore &m_store;
    bool m_isOutermost;
};
