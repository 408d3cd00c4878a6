#include "DesignSystem/ListFocus.h"

#include <QQuickWindow>

#include <algorithm>

namespace
{
/// `ListView.Contain` and `GridView.Contain`.
constexpr int contain = 4;

template <typename Value, typename Changed>
void assign(Value &member, const Value &value, Changed changed)
{
    if (member == value)
        return;
    member = value;
    changed();
}
} // namespace

void ListFocus::setView(QQuickItem *view)
{
    if (view == m_view)
        return;
    m_view = view;
    emit viewChanged();
}

void ListFocus::setColumns(int columns)
{
    assign(m_columns, std::max(1, columns), [this] { emit columnsChanged(); });
}

void ListFocus::setRowHeight(qreal height)
{
    assign(m_rowHeight, height, [this] { emit rowHeightChanged(); });
}

void ListFocus::setHorizontal(bool horizontal)
{
    assign(m_horizontal, horizontal, [this] { emit horizontalChanged(); });
}

void ListFocus::setStopsAt(const QJSValue &function)
{
    m_stopsAt = function;
    emit stopsAtChanged();
}

void ListFocus::setRingShown(bool shown)
{
    assign(m_ringShown, shown, [this] { emit ringShownChanged(); });
}

void ListFocus::focus(int index, int reason)
{
    if (!m_view || count() == 0)
        return;
    index = std::clamp(index, 0, count() - 1);
    m_view->setProperty("currentIndex", index);
    // What stands above the items shows together with the first of them.
    if (index < m_columns && reason != Qt::MouseFocusReason)
        QMetaObject::invokeMethod(m_view, "positionViewAtBeginning");
    QMetaObject::invokeMethod(m_view, "positionViewAtIndex", Q_ARG(int, index), Q_ARG(int, contain));
    setRingShown(reason != Qt::MouseFocusReason);
    auto *const item = m_view->property("currentItem").value<QQuickItem *>();
    if (!item)
        return;
    item->forceActiveFocus(static_cast<Qt::FocusReason>(reason));
    // The view may have given the item its focus already, without the reason.
    if (const QQuickWindow *const window = item->window(); window && window->activeFocusItem())
        window->activeFocusItem()->setProperty("focusReason", reason);
}

bool ListFocus::press(int key)
{
    const Motion result = motion(key);
    if (result.index < 0 && result.edge == 0)
        return false;
    if (result.edge != 0)
        emit exited(result.edge);
    else
        focus(result.index);
    return true;
}

int ListFocus::target(int key) const
{
    const Motion result = motion(key);
    return result.edge != 0 ? current() : result.index;
}

int ListFocus::stopFrom(int index, int step) const
{
    for (int i = index; i >= 0 && i < count(); i += step) {
        if (!m_stopsAt.isCallable() || QJSValue(m_stopsAt).call({i}).toBool())
            return i;
    }
    return -1;
}

ListFocus::Motion ListFocus::motion(int key) const
{
    // The view learns of rows that went or came when it is next drawn; a key may be faster.
    if (m_view)
        QMetaObject::invokeMethod(m_view, "forceLayout");
    const int page = pageRows();
    const bool inRow = m_columns > 1 || m_horizontal;
    const auto stepBy = [this](int step, int edge) {
        const int index = stopFrom(current() + step, step);
        return index < 0 ? Motion{.edge = edge} : Motion{.index = index};
    };
    switch (key) {
    case Qt::Key_Left:
        return inRow ? stepBy(-1, Qt::LeftEdge) : Motion{};
    case Qt::Key_Right:
        return inRow ? stepBy(1, Qt::RightEdge) : Motion{};
    case Qt::Key_Up:
        return m_horizontal ? Motion{} : byRow(-1);
    case Qt::Key_Down:
        return m_horizontal ? Motion{} : byRow(1);
    case Qt::Key_PageUp:
        return m_horizontal ? Motion{} : byRow(-page);
    case Qt::Key_PageDown:
        return m_horizontal ? Motion{} : byRow(page);
    case Qt::Key_Home:
        return {.index = stopFrom(0, 1)};
    case Qt::Key_End:
        return {.index = stopFrom(count() - 1, -1)};
    default:
        return {};
    }
}

/// Several rows end at the first or last one of the column; one row leaves the view there.
ListFocus::Motion ListFocus::byRow(int step) const
{
    const int last = count() - 1;
    const int from = std::max(0, current());
    const int column = from % m_columns;
    const int direction = step < 0 ? -1 : 1;
    int index = from + step * m_columns;
    const bool isBeyond = index < 0 || index > last;
    if (isBeyond && step < 0)
        index = column;
    else if (isBeyond)
        index = m_columns == 1 ? last : last - (last - column) % m_columns;
    // Below the end of a short last row, the last item is the next one down.
    if (isBeyond && step == 1 && from / m_columns < last / m_columns)
        return {.index = last};
    index = m_columns == 1 ? stopFrom(index, direction) : index;
    // Items at which the focus does not stop may stand at the end.
    if (index < 0 && std::abs(step) > 1)
        index = stopFrom(direction < 0 ? 0 : last, -direction);
    if (index < 0 || (isBeyond && std::abs(step) == 1))
        return {.edge = direction < 0 ? Qt::TopEdge : Qt::BottomEdge};
    return {.index = index};
}

int ListFocus::pageRows() const
{
    const auto *const item = m_view ? m_view->property("currentItem").value<QQuickItem *>() : nullptr;
    const qreal height = m_rowHeight > 0 ? m_rowHeight : item ? item->height() : 0;
    return m_view ? std::max(1, static_cast<int>(m_view->height() / std::max(1.0, height)) - 1) : 1;
}

int ListFocus::count() const
{
    return m_view ? m_view->property("count").toInt() : 0;
}

int ListFocus::current() const
{
    return m_view ? m_view->property("currentIndex").toInt() : -1;
}
