#pragma once

#include "Features/Pages/BlockClipboard.h"

#include <QObject>

#include <functional>

/// Reads the clipboard as blocks; what is long on another thread, so that the window goes on meanwhile.
class ClipboardReader : public QObject
{
    Q_OBJECT

public:
    /// What is read at once, in UTF-16 units.
    static constexpr qsizetype maxAtOnce = 100'000;
    using Receiver = std::function<void(const QList<Block> &)>;

    using QObject::QObject;

    /// Hands the blocks that the texts name to the receiver, at once or later; never once this is gone.
    void read(const BlockClipboard::Texts &texts, Receiver receiver);

signals:
    /// What was long has been read.
    void finished();
};
