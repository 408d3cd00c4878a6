#pragma once

#include "Features/Decks/SlideCanvas.h"
#include "Features/Decks/SlideText.h"

/// A slide whose texts can be edited where they stand. A text input that is not drawn takes the keys; the
/// canvas draws its text with caret and selection in the one way of drawing slides. Empty fields show what
/// they are for. Fields are told by their raw texts, and rectangles are those of the item.
class SlideEditorCanvas : public SlideCanvas
{
    Q_OBJECT
    QML_ELEMENT
    /// The field that is being edited; empty for none.
    Q_PROPERTY(QString field READ field WRITE setField NOTIFY fieldChanged FINAL)
    /// What is stored in that field.
    Q_PROPERTY(QString storedText READ storedText NOTIFY storedTextChanged FINAL)
    /// What the input holds, and within it what an input method is composing at the caret.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL)
    Q_PROPERTY(QString preedit READ preedit WRITE setPreedit NOTIFY textChanged FINAL)
    Q_PROPERTY(int caret READ caret WRITE setCaret NOTIFY caretChanged FINAL)
    Q_PROPERTY(int selectionStart READ selectionStart WRITE setSelectionStart NOTIFY selectionChanged FINAL)
    Q_PROPERTY(int selectionEnd READ selectionEnd WRITE setSelectionEnd NOTIFY selectionChanged FINAL)

    Q_PROPERTY(QRectF caretRect READ caretRect NOTIFY placed FINAL)
    Q_PROPERTY(QRectF fieldRect READ fieldRect NOTIFY placed FINAL)
    /// The rectangles of the texts that do not fit.
    Q_PROPERTY(QList<QRectF> overflows READ overflows NOTIFY placed FINAL)
    Q_PROPERTY(QColor ink READ ink NOTIFY shownChanged FINAL)

public:
    explicit SlideEditorCanvas(QQuickItem *parent = nullptr);
    ~SlideEditorCanvas() override;

    const QString &field() const { return m_field; }
    void setField(const QString &field);
    QString storedText() const;
    const QString &text() const { return m_text; }
    void setText(const QString &text);
    const QString &preedit() const { return m_preedit; }
    void setPreedit(const QString &preedit);
    int caret() const { return m_caret; }
    void setCaret(int caret);
    int selectionStart() const { return m_selectionStart; }
    void setSelectionStart(int position);
    int selectionEnd() const { return m_selectionEnd; }
    void setSelectionEnd(int position);

    QRectF caretRect() const;
    QRectF fieldRect() const { return rectOf(m_field); }
    QList<QRectF> overflows() const;
    QColor ink() const;

    /// Whether the field can be edited here.
    Q_INVOKABLE bool hasField(const QString &field) const { return fields().contains(field); }
    /// The field that follows in the order of reading, or the first one of none; empty at the end. Backwards
    /// likewise.
    Q_INVOKABLE QString nextField(const QString &field, bool forward) const;
    Q_INVOKABLE bool isMultiLine(const QString &field) const;
    /// What the field is for.
    Q_INVOKABLE QString promptOf(const QString &field) const;
    Q_INVOKABLE QRectF rectOf(const QString &field) const;
    /// The field at the point or just beside it; empty for none. On a stats slide the cards count as its
    /// body.
    Q_INVOKABLE QString fieldAt(QPointF point) const;
    /// The position in the text that is nearest to the point.
    Q_INVOKABLE int positionAt(QPointF point) const;
    /// The position so many lines further down at x; -1 beyond the first and the last line.
    Q_INVOKABLE int positionInLine(int position, int lines, double x) const;
    /// The position at x in the first line of the text, or in the last one.
    Q_INVOKABLE int positionAtEdge(bool first, double x) const;
    Q_INVOKABLE int lineStart(int position) const;
    Q_INVOKABLE int lineEnd(int position) const;

    void paint(QPainter *painter) override;

signals:
    void fieldChanged();
    void storedTextChanged();
    void textChanged();
    void caretChanged();
    void selectionChanged();
    /// Where something stands has changed.
    void placed();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void slideChanged() override;

private:
    struct Part {
        SlideRegion region;
        std::optional<SlideText> text;
        /// A prompt in place of what is not there yet.
        bool isPrompt = false;
    };

    QStringList fields() const;
    void invalidate();
    const std::vector<Part> &parts() const;
    void layOut() const;
    const Part *partOf(const QString &field) const;
    const Part *edited() const { return partOf(m_field); }
    double unit() const;
    QRectF toItem(const QRectF &rect) const;
    /// Where the input's text begins in that of the region.
    int textOffset(const Part &part) const;
    int inPart(int position) const;
    int inInput(const Part &part, int position) const;
    void paintEdited(QPainter &painter, const Part &part) const;

    QString m_field;
    QString m_text;
    QString m_preedit;
    int m_caret = 0;
    int m_selectionStart = 0;
    int m_selectionEnd = 0;
    mutable std::vector<Part> m_parts;
    mutable bool m_isLaidOut = false;
};
