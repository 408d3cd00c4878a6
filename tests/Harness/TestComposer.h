#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>

/// Writes like an input method into what has the focus, and into the clipboard: `Composer` in QML after
/// `import Orvel.Testing`.
class TestComposer : public QObject
{
    Q_OBJECT

public:
    /// Shows text that is still being composed.
    Q_INVOKABLE void compose(const QString &text) { send(text, {}); }
    /// Ends the composition with this text.
    Q_INVOKABLE void commit(const QString &text) { send({}, text); }
    /// Puts a text into the clipboard.
    Q_INVOKABLE void copy(const QString &text) { QGuiApplication::clipboard()->setText(text); }
    Q_INVOKABLE QString copied() { return QGuiApplication::clipboard()->text(); }

private:
    static void send(const QString &preedit, const QString &commit)
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
    }
};
