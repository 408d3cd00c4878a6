#pragma once

#include <QPointer>
#include <QQuickTextDocument>
#include <QtQml/qqmlregistration.h>

/// Joins a plain-text TextEdit with a text that is stored elsewhere, character by character as it is: of its
/// own accord a TextEdit hands out other blanks than it was given. What is stored comes into the field with
/// the caret kept, never while an input method is composing, and only what the user changes goes out. Undo is
/// left to where the text is stored.
class FieldText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The `textDocument` of the TextEdit.
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY documentChanged FINAL)
    /// The stored text.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL)
    /// The `inputMethodComposing` of the TextEdit.
    Q_PROPERTY(bool composing READ isComposing WRITE setComposing NOTIFY composingChanged FINAL)

public:
    using QObject::QObject;

    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);
    const QString &text() const { return m_text; }
    /// Also puts the text into the field if the field shows another one.
    Q_INVOKABLE void setText(const QString &text);
    bool isComposing() const { return m_composing; }
    void setComposing(bool composing);

signals:
    void documentChanged();
    void textChanged();
    void composingChanged();
    /// The user has changed the text of the field to this one.
    void edited(const QString &text);

private:
    void readField();
    void fillField();
    QString fieldText() const;

    QPointer<QQuickTextDocument> m_document;
    QString m_text;
    /// What the field showed when it was last looked at.
    QString m_shown;
    bool m_composing = false;
    bool m_filling = false;
};
