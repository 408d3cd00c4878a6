#pragma once

#include <QPointer>
#include <QQuickTextDocument>
#include <QTextDocument>

/// Sets the lines of an editable text apart, which a TextEdit cannot do by itself. The user's undo never
/// sees it.
class LineSpacing : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The `textDocument` of a TextEdit or TextArea.
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY documentChanged FINAL)
    /// Pixels between the lines, besides what the font asks for.
    Q_PROPERTY(int distance READ distance WRITE setDistance NOTIFY distanceChanged FINAL)

public:
    using QObject::QObject;

    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);
    int distance() const { return m_distance; }
    void setDistance(int distance);

signals:
    void documentChanged();
    void distanceChanged();

private:
    void applyWhenSet();
    void apply();

    QPointer<QQuickTextDocument> m_document;
    int m_distance = 0;
    bool m_applying = false;
};
