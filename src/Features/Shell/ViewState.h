#pragma once

#include <QPointF>
#include <QQuickItem>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

/// How a screen was left: where its views were scrolled to, and what had the focus, with the caret in it.
struct ViewState {
    Q_GADGET
    QML_ANONYMOUS

public:
    /// Leads from an item to one within it: the place among the children, or the row of a view of rows.
    struct Step {
        int index = 0;
        bool isRow = false;
        /// What the first role of the row said, by which it is found again elsewhere.
        QVariant row;
    };
    using Path = QList<Step>;
    struct Scroll {
        Path path;
        /// Of a view of rows the one at its top; without any the contents count.
        std::optional<Step> top;
        /// From the beginning of the row, or of the contents.
        QPointF offset;
    };

    QList<Scroll> scrolls;
    Path focus;
    bool hasFocus = false;
    int caret = -1;
    int selectionStart = -1;
    int selectionEnd = -1;
};

/// Keeps how a screen is shown, and shows it so again.
class ViewStates : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE static QVariant keep(QQuickItem *screen);
    /// Scrolls as it was; what is not there any more stays as it is.
    Q_INVOKABLE static void scroll(QQuickItem *screen, const QVariant &state);
    /// Gives the focus to what had it, with the caret in its place; false if it is not there.
    Q_INVOKABLE static bool focus(QQuickItem *screen, const QVariant &state);
};
