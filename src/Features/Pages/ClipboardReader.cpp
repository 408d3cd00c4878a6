#include "Features/Pages/ClipboardReader.h"

#include <QPointer>
#include <QThreadPool>

void ClipboardReader::read(const BlockClipboard::Texts &texts, Receiver receiver)
{
    if (texts.size() <= maxAtOnce) {
        receiver(BlockClipboard::blocksIn(texts));
        return;
    }
    // The reader may go before the thread ends; what receives for it stays.
    auto *const handover = new QObject;
    connect(handover, &QObject::destroyed, this, &ClipboardReader::finished);
    QThreadPool::globalInstance()->start(
        [handover, texts, self = QPointer(this), receiver = std::move(receiver)]() mutable {
            QMetaObject::invokeMethod(
                handover,
                [handover, self = std::move(self), receiver = std::move(receiver),
                 blocks = BlockClipboard::blocksIn(texts)] {
                    if (self)
                        receiver(blocks);
                    handover->deleteLater();
                },
                Qt::QueuedConnection);
        });
}
