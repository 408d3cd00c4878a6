#include "Session/UndoController.h"

#include "Store/WorkspaceStore.h"
#include "Support/UIState.h"

UndoController::UndoController(WorkspaceStore *store, UIState *ui, QObject *parent)
    : QObject(parent), m_store(store), m_ui(ui)
{
    store->setPlaceSource([ui] { return ui->selection(); });
    connect(store, &WorkspaceStore::changed, this, &UndoController::follow);
}

bool UndoController::canUndo() const
{
    return m_store->history().undoStep();
}

bool UndoController::canRedo() const
{
    return m_store->history().redoStep();
}

QString UndoController::undoText() const
{
    const UndoStep *const step = m_store->history().undoStep();
    return step && !step->name.isEmpty() ? tr("Undo %1").arg(step->name) : tr("Undo");
}

QString UndoController::redoText() const
{
    const UndoStep *const step = m_store->history().redoStep();
    return step && !step->name.isEmpty() ? tr("Redo %1").arg(step->name) : tr("Redo");
}

void UndoController::undo()
{
    restore(m_store->undo(), true);
}

void UndoController::redo()
{
    restore(m_store->redo(), false);
}

void UndoController::endTyping()
{
    m_store->endTyping();
}

void UndoController::follow(const ChangeSet &changes)
{
    m_restored.reset();
    setMessage(changes.message, true);
    emit changed();
}

void UndoController::restore(const UndoStep *step, bool isUndo)
{
    if (!step)
        return;
    const Destination &destination = isUndo ? step->place : step->placeAfter;
    UndoPlace place{.destination = destination, .record = step->record};
    if (step->text) {
        place.textRecord = step->text->record;
        place.textField = step->text->field;
        place.caret = int(isUndo ? step->typed->startBefore() : step->typed->endAfter());
    }
    m_restored = place;
    if (m_ui->selection() != destination) {
        m_ui->setSelection(destination);
        if (!step->name.isEmpty())
            setMessage(isUndo ? tr("Undone: %1").arg(step->name) : tr("Redone: %1").arg(step->name), false);
    }
    emit restoredChanged();
}

void UndoController::setMessage(const QString &message, bool offersUndo)
{
    // The same message again is news: it tells of another action.
    if (message.isEmpty() && m_message.isEmpty())
        return;
    m_message = message;
    m_messageOffersUndo = offersUndo;
    emit messageChanged();
}
