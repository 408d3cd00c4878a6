#pragma once

#include "DesignSystem/OVTextMarks.h"
#include "Features/Pages/SpellChecker.h"
#include "Foundation/CoalescedCall.h"

#include <QtQml/qqmlregistration.h>

/// Underlines the misspelt words of a TextEdit, except the one that is being written.
class SpellingMarks : public OVTextMarks
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(SpellChecker *checker READ checker WRITE setChecker NOTIFY checkerChanged REQUIRED FINAL)
    /// Where the caret stands; -1 while it is elsewhere.
    Q_PROPERTY(int caret READ caret WRITE setCaret NOTIFY caretChanged FINAL)

public:
    explicit SpellingMarks(QQuickItem *parent = nullptr);

    SpellChecker *checker() const { return m_checker; }
    void setChecker(SpellChecker *checker);
    int caret() const { return m_caret; }
    void setCaret(int caret);

    /// Where the misspelt word at this position begins; -1 if there is none.
    Q_INVOKABLE int wordBegin(int position) const;
    Q_INVOKABLE int wordEnd(int position) const;
    /// The word itself; empty if there is none.
    Q_INVOKABLE QString wordAt(int position) const;
    /// One of the user's own words at this position; empty if there is none.
    Q_INVOKABLE QString ownWordAt(int position) const;

signals:
    void checkerChanged();
    void caretChanged();

private:
    void followDocument();
    void textChanged(int position, int added);
    void showMarks();
    const TextMark *markAt(int position) const;

    QPointer<SpellChecker> m_checker;
    int m_caret = -1;
    /// Where the user has written last; -1 once the caret has gone elsewhere.
    int m_typedAt = -1;
    QString m_text;
    /// Whether words are still being looked up.
    bool m_waits = false;
    CoalescedCall m_show;
};
