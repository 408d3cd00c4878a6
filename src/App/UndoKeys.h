#pragma once

#include <QPointer>
#include <QQmlEngine>
#include <QQuickWindow>

/// Leaves the keys of undo and redo to the workspace while the text field with the focus has nothing of its
/// own to undo or redo, such as a search field that is empty. Text fields otherwise claim these keys in any
/// case.
class UndoKeys : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow *window READ window WRITE setWindow NOTIFY windowChanged REQUIRED FINAL)

public:
    using QObject::QObject;

    QQuickWindow *window() const { return m_window; }
    void setWindow(QQuickWindow *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void windowChanged();

private:
    QPointer<QQuickWindow> m_window;
};
