#pragma once

#include <QKeySequence>

/// The keys of the machine at hand as a person reads them, such as "Ctrl K".
namespace KeyText
{
inline QString of(const QKeySequence &keys)
{
    return keys.toString(QKeySequence::NativeText).replace(u'+', u' ');
}
inline QString search()
{
    return of(QKeySequence(Qt::CTRL | Qt::Key_K));
}
inline QString newPage()
{
    return of(QKeySequence(Qt::CTRL | Qt::Key_N));
}
inline QString newNote()
{
    return of(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N));
}
inline QString shortcuts()
{
    return of(QKeySequence(Qt::CTRL | Qt::Key_Slash));
}
inline QString settings()
{
    return of(QKeySequence(Qt::CTRL | Qt::Key_Comma));
}
} // namespace KeyText
