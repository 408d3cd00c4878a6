#pragma once

#include <QString>

/// What typing changed in a text: how much went away and what came, at one place. Typing that goes on is put
/// together to about a word, which is what one undo takes back.
class TypedText
{
public:
    /// The difference of the two.
    /// @param caret where the caret stands after it, which tells apart what repeats; -1 if it is not known
    static TypedText between(QStringView before, QStringView after, qsizetype caret = -1);

    /// Takes the typing that follows in, if it goes on where this one ended and begins no new word; otherwise
    /// nothing changes and it tells false.
    bool continueWith(const TypedText &next);

    /// Where the caret stood before and after.
    qsizetype startBefore() const { return m_position + m_removed.length; }
    qsizetype endAfter() const { return m_position + m_inserted.length; }

private:
    /// What has to be known of a piece of text to tell whether typing goes on in it.
    struct Piece {
        qsizetype length = 0;
        QChar first;
        QChar last;
        bool hasLineBreak = false;

        static Piece of(QStringView text);
        void append(const Piece &next);
    };

    qsizetype m_position = 0;
    Piece m_removed;
    Piece m_inserted;
};
