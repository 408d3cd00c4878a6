#include "Features/Relax/VideoPicture.h"

#include "Foundation/LazyLibrary.h"

#include <QPainter>

namespace
{
struct Frame;

/// The functions of the library, by the names that they have there. The type of a frame is not known here; it
/// is as large as a pointer, and only passed on.
struct FrameLibrary {
    Frame (*frameOf)(const QObject *sink) = nullptr;
    QImage (*toImage)(const Frame *frame) = nullptr;
    void (*destroy)(Frame *frame) = nullptr;
    bool isComplete = false;

    static const FrameLibrary &get()
    {
        static const FrameLibrary functions = [] {
            LazyLibrary library(QStringLiteral("Qt6Multimedia"), 6);
            FrameLibrary found;
            library.resolve(found.frameOf, "_ZNK10QVideoSink10videoFrameEv");
            library.resolve(found.toImage, "_ZNK11QVideoFrame7toImageEv");
            library.resolve(found.destroy, "_ZN11QVideoFrameD1Ev");
            found.isComplete = library.state().has_value();
            return found;
        }();
        return functions;
    }
};

struct Frame {
    Frame() = delete;
    Frame(const Frame &) = delete;
    Frame &operator=(const Frame &) = delete;
    ~Frame() { FrameLibrary::get().destroy(this); }

    void *contents;
};
} // namespace

void VideoPicture::setSink(QObject *sink)
{
    if (m_sink == sink)
        return;
    if (m_sink)
        disconnect(m_sink, nullptr, this, nullptr);
    m_sink = sink;
    if (m_sink)
        connect(m_sink, SIGNAL(videoFrameChanged(QVideoFrame)), this, SLOT(takeFrame()));
    emit sinkChanged();
}

void VideoPicture::takeFrame()
{
    const FrameLibrary &library = FrameLibrary::get();
    if (!isVisible() || !m_sink || !library.isComplete)
        return;
    const Frame frame = library.frameOf(m_sink);
    m_frame = library.toImage(&frame);
    update();
}

void VideoPicture::paint(QPainter *painter)
{
    if (m_frame.isNull())
        return;
    const QSizeF filling = QSizeF(m_frame.size()).scaled(size(), Qt::KeepAspectRatioByExpanding);
    const QPointF corner((width() - filling.width()) / 2, (height() - filling.height()) / 2);
    painter->drawImage(QRectF(corner, filling), m_frame);
}
