#pragma once

#include <QImage>
#include <QPointer>
#include <QQuickPaintedItem>

/// Draws the frames of a video where the toolkit's own item can't, which needs a graphics card: it fills
/// itself with the frame and cuts what stands out. The library of the frames is there once a player is, and
/// is not loaded by this item.
class VideoPicture : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The `QVideoSink` whose frames are shown.
    Q_PROPERTY(QObject *sink READ sink WRITE setSink NOTIFY sinkChanged FINAL)

public:
    using QQuickPaintedItem::QQuickPaintedItem;

    QObject *sink() const { return m_sink; }
    void setSink(QObject *sink);

    void paint(QPainter *painter) override;

signals:
    void sinkChanged();

private slots:
    void takeFrame();

private:
    QPointer<QObject> m_sink;
    QImage m_frame;
};
