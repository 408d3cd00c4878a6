#pragma once

#include "DesignSystem/OVTextMarks.h"
#include "DesignSystem/TextFinder.h"

/// Looks for a text in the open document, and replaces it.
class CodeFinder : public TextFinder
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The code screen has it.")
    /// What is to be marked in the text of the editor, which has line feeds alone at the ends of lines.
    Q_PROPERTY(TextMarkList marks READ marks NOTIFY revisionChanged FINAL)

public:
    using TextFinder::TextFinder;

    bool canReplace() const override { return true; }
    /// @param isOther whether it is the text of another document
    void setText(const QString &text, bool isOther);
    /// Where the user is: the search begins there.
    Q_INVOKABLE void startAt(int position);
    TextMarkList marks() const;
    /// Goes to where the text stands first, with the keyboard.
    void show(const QString &text);
    /// Gives the keyboard to the match that the user is at; false if there is none.
    Q_INVOKABLE bool choose();

signals:
    /// This match is to be brought into view.
    /// @param selects whether the keyboard goes to it as well
    void shown(int start, int length, bool selects);
    /// The text after the user has replaced as many matches.
    /// @param caret behind the last of them
    void replaced(const QString &text, int caret, int count);

protected:
    Found search(const QString &query) override;
    void clearMatches() override { m_matches.clear(); }
    void showMatch(int match) override { emit shown(m_matches[match], m_length, false); }
    void replaceMatches(int first, int last, const QString &by) override;

private:
    QString m_text;
    QString m_folded;
    QList<int> m_matches;
    int m_length = 0;
    int m_from = 0;
};
