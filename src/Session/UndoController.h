#pragma once

#include "Store/UndoHistory.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

class UIState;
class WorkspaceStore;

/// Where an undone or redone step happened: the record to show, and for typing the text field and the caret.
struct UndoPlace {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QUuid record MEMBER record FINAL)
    Q_PROPERTY(QUuid textRecord MEMBER textRecord FINAL)
    Q_PROPERTY(QString textField MEMBER textField FINAL)
    Q_PROPERTY(int caret MEMBER caret FINAL)

public:
    Destination destination;
    QUuid record;
    /// Of a step of typing: what the text belongs to, such as a block, and its field. Null for any other
    /// step.
    QUuid textRecord;
    QString textField;
    int caret = -1;
};

/// `Orvel.undo`: takes back what the user did and does it again, and goes to where that was.
class UndoController : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY changed FINAL)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY changed FINAL)
    /// The entries of the Edit menu, such as "Undo Delete Task".
    Q_PROPERTY(QString undoText READ undoText NOTIFY changed FINAL)
    Q_PROPERTY(QString redoText READ redoText NOTIFY changed FINAL)
    /// What the window tells for some seconds, such as "Task deleted"; empty for nothing.
    Q_PROPERTY(QString message READ message NOTIFY messageChanged FINAL)
    /// Whether the message offers to undo what it tells.
    Q_PROPERTY(bool messageOffersUndo READ messageOffersUndo NOTIFY messageChanged FINAL)

public:
    /// Both live longer than the controller.
    UndoController(WorkspaceStore *store, UIState *ui, QObject *parent = nullptr);

    bool canUndo() const;
    bool canRedo() const;
    QString undoText() const;
    QString redoText() const;
    Q_INVOKABLE void undo();
    Q_INVOKABLE void redo();
    /// Text fields tell when the caret has gone elsewhere, so that what is typed there is a step of its own.
    Q_INVOKABLE void endTyping();

    const QString &message() const { return m_message; }
    bool messageOffersUndo() const { return m_messageOffersUndo; }
    /// Tells how something went that is no step, such as saving a copy; a later message takes its place.
    void tell(const QString &text) { setMessage(text, false); }
    Q_INVOKABLE void dismissMessage() { setMessage({}, false); }

    /// The place of the step that was undone or redone last, until its screen has shown it.
    const std::optional<UndoPlace> &restored() const { return m_restored; }
    void takeRestored() { m_restored.reset(); }

signals:
    void changed();
    void messageChanged();
    /// A step was undone or redone and its place is to be shown, see `restored`.
    void restoredChanged();

private:
    void follow(const ChangeSet &changes);
    void restore(const UndoStep *step, bool isUndo);
    void setMessage(const QString &message, bool offersUndo);

    WorkspaceStore *m_store;
    UIState *m_ui;
    QString m_message;
    bool m_messageOffersUndo = false;
    std::optional<UndoPlace> m_restored;
};
