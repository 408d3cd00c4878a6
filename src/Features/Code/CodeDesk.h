#pragma once

#include "Features/Code/CodeRun.h"

#include <QHash>
#include <QPointF>
#include <QUuid>

/// Where the editor was left in a document.
struct CodePlace {
    Q_GADGET
    Q_PROPERTY(int caret MEMBER caret FINAL)
    Q_PROPERTY(QPointF scroll MEMBER scroll FINAL)

public:
    int caret = 0;
    QPointF scroll;
};

/// What the code screen keeps while the window is open, also while another screen is shown: how the editor
/// shows its text, where it was left, and the runs, each of which belongs to a document.
class CodeDesk : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool wrap MEMBER m_wrap NOTIFY wrapChanged FINAL)
    Q_PROPERTY(bool showLineNumbers MEMBER m_showLineNumbers NOTIFY showLineNumbersChanged FINAL)
    /// Pixels at the ordinary size of text.
    Q_PROPERTY(int fontSize READ fontSize WRITE setFontSize NOTIFY fontSizeChanged FINAL)
    Q_PROPERTY(bool canShrink READ canShrink NOTIFY fontSizeChanged FINAL)
    Q_PROPERTY(bool canGrow READ canGrow NOTIFY fontSizeChanged FINAL)
    Q_PROPERTY(bool showConsole READ showConsole WRITE setShowConsole NOTIFY showConsoleChanged FINAL)

public:
    static constexpr int smallestFont = 9, usualFont = 13, largestFont = 28;

    using QObject::QObject;

    int fontSize() const { return m_fontSize; }
    /// Keeps it within bounds.
    void setFontSize(int size);
    bool canShrink() const { return m_fontSize > smallestFont; }
    bool canGrow() const { return m_fontSize < largestFont; }

    bool showConsole() const { return m_showConsole; }
    void setShowConsole(bool shown);

    /// The run of a document, made when it is first asked for. Of many that have ended the oldest are
    /// forgotten.
    Q_INVOKABLE CodeRun *run(const QUuid &document);
    Q_INVOKABLE CodePlace place(const QUuid &document) const { return m_places.value(document); }
    Q_INVOKABLE void leave(const QUuid &document, int caret, const QPointF &scroll);
    /// Ends the run of a document that is gone.
    void forget(const QUuid &document);
    /// As the window was opened.
    Q_INVOKABLE void reset();

signals:
    void wrapChanged();
    void showLineNumbersChanged();
    void fontSizeChanged();
    void showConsoleChanged();

private:
    bool m_wrap = false;
    bool m_showLineNumbers = true;
    int m_fontSize = usualFont;
    bool m_showConsole = false;
    QHash<QUuid, CodePlace> m_places;
    QHash<QUuid, CodeRun *> m_runs;
    /// The documents of the runs, the one that was asked for last at the end.
    QList<QUuid> m_order;
};
