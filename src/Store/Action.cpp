#include "Store/Action.h"

#include "Store/WorkspaceStore.h"

Action::Action(WorkspaceStore &store, const QString &name) : m_store(store)
{
    m_isOutermost = store.begin([&](UndoStep &step) { step.name = name; });
}

Action::Action(WorkspaceStore &store, const Typing &typing) : m_store(store)
{
    m_isOutermost = store.begin([&](UndoStep &step) {
        step.name = typing.name.isEmpty() ? ActionText::tr("Typing") : typing.name;
        step.text = typing.text;
        step.isWholeEdit = typing.isOneStep;
        step.typed = TypedText::between(typing.before, typing.after, typing.caret);
    });
}

Action::Action(WorkspaceStore &store, Background) : m_store(store)
{
    m_isOutermost = store.begin([](UndoStep &step) { step.isBackground = true; });
}

Action Action::background(WorkspaceStore &store)
{
    return Action(store, Background());
}

Action::~Action()
{
    m_store.end();
}

void Action::setMessage(const QString &message) const
{
    if (m_isOutermost || m_store.m_action.step.message.isEmpty())
        m_store.m_action.step.message = message;
}

void Action::whenForgotten(std::function<void()> call) const
{
    m_store.m_action.step.whenForgotten.append(std::move(call));
}
