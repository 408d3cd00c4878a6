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

    qint64 bytes() const { return (m_removed.size() + m_inserted.size()) * qint64(sizeof(QChar)); }
    /// Where the caret stood before and after.
    qsizetype startBefore() const { return m_position + m_removed.size(); }
    qsizetype endAfter() const { return m_position + m_inserted.size(); }

private:
    qsizetype m_position = 0;
    QString m_removed;
    QString m_inserted;
};
