#include "Features/Relax/AmbientScene.h"

#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace
{
/// After a pause of the machine the scene goes on where it was.
constexpr double longestStep = 0.25;
/// A greater picture is drawn smaller and enlarged.
constexpr double mostPixels = 1.3e6;
} // namespace

AmbientScene::AmbientScene(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    m_frames.setInterval(33ms);
    m_frames.setTimerType(Qt::PreciseTimer);
    connect(&m_frames, &QTimer::timeout, this, &AmbientScene::advance);
}

void AmbientScene::setScene(const QString &scene)
{
    const auto value = enumFromRaw<RelaxScene>(scene);
    if (!value || std::exchange(m_scene, *value) == *value)
        return;
    emit sceneChanged();
    update();
}

void AmbientScene::setPlaying(bool playing)
{
    if (std::exchange(m_isPlaying, playing) == playing)
        return;
    emit playingChanged();
    runOrRest();
}

void AmbientScene::setSeconds(double seconds)
{
    if (std::exchange(m_seconds, seconds) == seconds)
        return;
    emit secondsChanged();
    update();
}

void AmbientScene::setRadius(double radius)
{
    if (std::exchange(m_radius, radius) == radius)
        return;
    emit radiusChanged();
    update();
}

void AmbientScene::setPaper(bool paper)
{
    if (std::exchange(m_isPaper, paper) == paper)
        return;
    emit paperChanged();
    update();
}

void AmbientScene::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickPaintedItem::itemChange(change, data);
    if (change == ItemVisibleHasChanged || change == ItemSceneChange)
        runOrRest();
}

void AmbientScene::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    const double pixels = newGeometry.width() * newGeometry.height();
    const double shrink = std::sqrt(std::min(1.0, mostPixels / std::max(1.0, pixels)));
    setTextureSize(shrink < 1 ? (newGeometry.size() * shrink).toSize() : QSize());
}

void AmbientScene::runOrRest()
{
    if (!m_isPlaying || !isVisible() || !window()) {
        m_frames.stop();
        return;
    }
    if (m_frames.isActive())
        return;
    m_sinceFrame.start();
    m_frames.start();
}

void AmbientScene::advance()
{
    const double step = double(m_sinceFrame.nsecsElapsed()) / 1e9;
    m_sinceFrame.start();
    // A window that is minimized draws nothing.
    if (window()->isExposed())
        setSeconds(m_seconds + std::min(step, longestStep));
}

void AmbientScene::paint(QPainter *painter)
{
    const QSize size(int(std::ceil(width())), int(std::ceil(height())));
    painter->setRenderHint(QPainter::Antialiasing);
    if (m_isPaper)
        paintPaper(*painter, size);
    else
        m_painter.paint(*painter, size, m_scene, m_seconds);
    cutCorners(*painter);
}

void AmbientScene::paintPaper(QPainter &painter, QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    QPainter once(&picture);
    m_painter.paint(once, size, m_scene, m_seconds);
    once.end();
    for (int y = 0; y < picture.height(); ++y) {
        auto *const pixels = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            // Ink on warm paper: what is dark stays light enough to look printed.
            const int light = 96 + qGray(pixels[x]) * 150 / 255;
            pixels[x] = qRgb(light, light * 98 / 100, light * 93 / 100);
        }
    }
    painter.drawImage(QPoint(), picture);
}

void AmbientScene::cutCorners(QPainter &painter) const
{
    if (m_radius <= 0)
        return;
    QPainterPath outside;
    outside.addRect(QRectF(-1, -1, width() + 2, height() + 2));
    QPainterPath inside;
    inside.addRoundedRect(QRectF(0, 0, width(), height()), m_radius, m_radius);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(outside.subtracted(inside), Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}
