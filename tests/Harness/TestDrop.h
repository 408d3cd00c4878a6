#pragma once

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWindow>

/// Drags files over a window and drops them there, as a file manager does: `Drop` after `import
/// Orvel.Testing`.
class TestDrop : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void enter(QWindow *window, const QPoint &place, const QList<QUrl> &files)
    {
        m_files.setUrls(files);
        QDragEnterEvent event(place, Qt::CopyAction, &m_files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &event);
        QDragMoveEvent move(place, Qt::CopyAction, &m_files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &move);
    }
    Q_INVOKABLE void drop(QWindow *window, const QPoint &place)
    {
        QDropEvent event(place, Qt::CopyAction, &m_files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &event);
    }

private:
    QMimeData m_files;
};
