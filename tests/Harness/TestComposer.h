#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QWindow>

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
    /// Types as fast as it gets: all keys in one batch, with no turn of the event loop in between. A line
    /// feed stands for Return.
    Q_INVOKABLE void typeAtOnce(const QString &text)
    {
        for (const QChar character : text) {
            const int key = character == u'\n' ? int(Qt::Key_Return) : character.toUpper().unicode();
            const QString typed = character == u'\n' ? QStringLiteral("\r") : QString(character);
            sendKey(key, Qt::NoModifier, typed);
        }
    }
    /// Presses one key, again with no turn of the event loop.
    Q_INVOKABLE void press(int key, int modifiers) { sendKey(key, Qt::KeyboardModifiers(modifiers), {}); }
    /// Puts a text into the clipboard.
    Q_INVOKABLE void copy(const QString &text) { QGuiApplication::clipboard()->setText(text); }
    Q_INVOKABLE QString copied() { return QGuiApplication::clipboard()->text(); }

private:
    static void sendKey(int key, Qt::KeyboardModifiers modifiers, const QString &text)
    {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers, text);
            QCoreApplication::sendEvent(QGuiApplication::focusWindow(), &event);
        }
    }
    static void send(const QString &preedit, const QString &commit)
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
    }
};
