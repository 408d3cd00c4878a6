#include "Features/Shell/ViewState.h"

#include <QAbstractItemModel>

#include <algorithm>

namespace
{
using Step = ViewState::Step;
using Path = ViewState::Path;

bool isRowView(const QQuickItem *item)
{
    return item && item->inherits("QQuickItemView");
}

QQuickItem *contentOf(const QQuickItem *flickable)
{
    return flickable->property("contentItem").value<QQuickItem *>();
}

/// What tells a row of the view from others.
QVariant rowOf(const QQuickItem *view, int index)
{
    const auto *const model = view->property("model").value<QAbstractItemModel *>();
    if (!model || index < 0 || index >= model->rowCount() || model->roleNames().isEmpty())
        return {};
    const QList<int> roles = model->roleNames().keys();
    return model->data(model->index(index, 0), *std::ranges::min_element(roles));
}

/// Where the row of a step stands now; -1 if it is gone.
int indexOfRow(const QQuickItem *view, const Step &step)
{
    const int count = view->property("count").toInt();
    if (step.index < count && rowOf(view, step.index) == step.row)
        return step.index;
    for (int index = 0; step.row.isValid() && index < count; ++index)
        if (rowOf(view, index) == step.row)
            return index;
    return std::min(step.index, count - 1);
}

QQuickItem *itemOfRow(QQuickItem *view, int index)
{
    QQuickItem *item = nullptr;
    QMetaObject::invokeMethod(view, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, item), Q_ARG(int, index));
    return item;
}

int indexAt(QQuickItem *view, qreal x, qreal y)
{
    int index = -1;
    QMetaObject::invokeMethod(view, "indexAt", Q_RETURN_ARG(int, index), Q_ARG(qreal, x), Q_ARG(qreal, y));
    return index;
}

Step stepTo(const QQuickItem *item)
{
    const QQuickItem *const parent = item->parentItem();
    const QQuickItem *const view = parent ? parent->parentItem() : nullptr;
    const QVariant row = item->property("index");
    if (isRowView(view) && contentOf(view) == parent && row.isValid())
        return {row.toInt(), true, rowOf(view, row.toInt())};
    return {int(parent->childItems().indexOf(item)), false, {}};
}

Path pathTo(const QQuickItem *item, const QQuickItem *screen)
{
    Path path;
    for (; item && item != screen; item = item->parentItem())
        path.prepend(stepTo(item));
    return path;
}

/// The item at the end of the path; null if there is none.
QQuickItem *follow(QQuickItem *item, const Path &path)
{
    for (const Step &step : path) {
        if (step.isRow) {
            QQuickItem *const view = item->parentItem();
            const int index = isRowView(view) ? indexOfRow(view, step) : -1;
            // A row out of sight is made when it becomes the current one.
            if (index >= 0 && !itemOfRow(view, index))
                view->setProperty("currentIndex", index);
            item = index < 0 ? nullptr : itemOfRow(view, index);
        } else {
            item = item->childItems().value(step.index);
        }
        if (!item)
            return nullptr;
    }
    return item;
}

void collectScrolls(QQuickItem *item, const QQuickItem *screen, ViewState &state)
{
    if (!item->isVisible())
        return;
    if (item->inherits("QQuickFlickable")) {
        const QPointF content(item->property("contentX").toReal(), item->property("contentY").toReal());
        const QPointF origin(item->property("originX").toReal(), item->property("originY").toReal());
        ViewState::Scroll scroll{pathTo(item, screen), {}, content - origin};
        const int top = isRowView(item) ? indexAt(item, item->width() / 2, content.y() + 1) : -1;
        if (QQuickItem *const row = top >= 0 ? itemOfRow(item, top) : nullptr) {
            scroll.top = Step{top, true, rowOf(item, top)};
            scroll.offset = {scroll.offset.x(), content.y() - row->y()};
        }
        state.scrolls.append(scroll);
    }
    for (QQuickItem *const child : item->childItems())
        collectScrolls(child, screen, state);
}

void scrollTo(QQuickItem *view, const ViewState::Scroll &scroll)
{
    if (isRowView(view))
        QMetaObject::invokeMethod(view, "forceLayout");
    const qreal originX = view->property("originX").toReal();
    const int top = scroll.top ? indexOfRow(view, *scroll.top) : -1;
    qreal y = view->property("originY").toReal() + scroll.offset.y();
    if (top >= 0) {
        static constexpr int atBeginning = 0;
        QMetaObject::invokeMethod(view, "positionViewAtIndex", Q_ARG(int, top), Q_ARG(int, atBeginning));
        const QQuickItem *const row = itemOfRow(view, top);
        y = row ? row->y() + scroll.offset.y() : view->property("contentY").toReal();
    }
    const qreal end =
        view->property("originY").toReal() + view->property("contentHeight").toReal() - view->height();
    view->setProperty("contentY", std::max(view->property("originY").toReal(), std::min(y, end)));
    const qreal endX = originX + view->property("contentWidth").toReal() - view->width();
    view->setProperty("contentX", std::max(originX, std::min(originX + scroll.offset.x(), endX)));
}
} // namespace

QVariant ViewStates::keep(QQuickItem *screen)
{
    if (!screen)
        return {};
    ViewState state;
    collectScrolls(screen, screen, state);
    QQuickItem *item = screen;
    while (item->isFocusScope() && item->scopedFocusItem())
        item = item->scopedFocusItem();
    if (item != screen && screen->isAncestorOf(item)) {
        state.hasFocus = true;
        state.focus = pathTo(item, screen);
        const auto number = [item](const char *name) {
            const QVariant value = item->property(name);
            return value.isValid() ? value.toInt() : -1;
        };
        state.caret = number("cursorPosition");
        state.selectionStart = number("selectionStart");
        state.selectionEnd = number("selectionEnd");
    }
    return QVariant::fromValue(state);
}

void ViewStates::scroll(QQuickItem *screen, const QVariant &state)
{
    if (!screen)
        return;
    const auto kept = state.value<ViewState>();
    for (const ViewState::Scroll &scroll : kept.scrolls) {
        QQuickItem *const view = follow(screen, scroll.path);
        if (view && view->inherits("QQuickFlickable"))
            scrollTo(view, scroll);
    }
}

bool ViewStates::focus(QQuickItem *screen, const QVariant &state)
{
    const auto kept = state.value<ViewState>();
    QQuickItem *const item = screen && kept.hasFocus ? follow(screen, kept.focus) : nullptr;
    if (!item || !item->isVisible() || !item->isEnabled())
        return false;
    item->forceActiveFocus(Qt::OtherFocusReason);
    if (kept.caret >= 0)
        item->setProperty("cursorPosition", kept.caret);
    if (kept.selectionStart >= 0 && kept.selectionEnd > kept.selectionStart)
        QMetaObject::invokeMethod(item, "select", Q_ARG(int, kept.selectionStart),
                                  Q_ARG(int, kept.selectionEnd));
    return true;
}
