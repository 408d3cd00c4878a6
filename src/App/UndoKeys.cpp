#include "App/UndoKeys.h"

#include <QKeyEvent>
#include <QQuickItem>

namespace
{
/// The property of a text field that says whether it can do itself what this key asks for; null for other
/// keys.
const char *condition(const QKeyEvent &key)
{
    const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
    if (key.key() == Qt::Key_Z && modifiers == Qt::ControlModifier)
        return "canUndo";
    if ((key.key() == Qt::Key_Z && modifiers == (Qt::ControlModifier | Qt::ShiftModifier)) ||
        (key.key() == Qt::Key_Y && modifiers == Qt::ControlModifier))
        return "canRedo";
    return nullptr;
}
} // namespace

void UndoKeys::setWindow(QQuickWindow *window)
{
    if (m_window == window)
        return;
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    if (m_window)
        m_window->installEventFilter(this);
    emit windowChanged();
}

bool UndoKeys::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride || !m_window->activeFocusItem())
        return false;
    const char *const property = condition(static_cast<QKeyEvent &>(*event));
    const QVariant canDo = property ? m_window->activeFocusItem()->property(property) : QVariant();
    if (!canDo.isValid() || canDo.toBool())
        return false;
    event->ignore();
    return true;
}
