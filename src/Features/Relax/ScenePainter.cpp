#include "Features/Relax/ScenePainter.h"

#include "Features/Relax/SceneParts.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace
{
/// How many times smaller the image of the soft parts is in each direction.
constexpr int softening = 5;
constexpr int smallestSoft = 24;

struct Parts {
    void (*soft)(QImage &image, double seconds);
    void (*still)(QPainter &painter, const QSizeF &size);
    void (*moving)(QPainter &painter, const QSizeF &size, double seconds);
};

/// In the order of `RelaxScene`.
constexpr std::array parts{
    Parts{AuroraScene::soft, AuroraScene::still, nullptr},
    Parts{OceanScene::soft, nullptr, OceanScene::moving},
    Parts{ForestScene::soft, ForestScene::still, ForestScene::moving},
    Parts{NightScene::soft, NightScene::still, NightScene::moving},
    Parts{SunsetScene::soft, nullptr, SunsetScene::moving},
    Parts{MeadowScene::soft, nullptr, MeadowScene::moving},
    Parts{RainScene::soft, nullptr, RainScene::moving},
    Parts{EmbersScene::soft, nullptr, EmbersScene::moving},
};
} // namespace

void ScenePainter::paint(QPainter &painter, QSize size, RelaxScene scene, double seconds)
{
    if (size.isEmpty())
        return;
    const Parts &scenery = parts[std::size_t(scene)];
    const QSize softSize(std::max(smallestSoft, size.width() / softening),
                         std::max(smallestSoft, size.height() / softening));
    if (m_soft.size() != softSize)
        m_soft = QImage(softSize, QImage::Format_RGB32);
    scenery.soft(m_soft, seconds);
    painter.save();
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    painter.drawImage(QRect(QPoint(), size), m_soft);
    if (scenery.still)
        paintStillPart(painter, size, scene);
    if (scenery.moving)
        scenery.moving(painter, size, seconds);
    painter.restore();
}

void ScenePainter::paintStillPart(QPainter &painter, QSize size, RelaxScene scene)
{
    if (m_still.size() != size || m_stillScene != scene) {
        m_still = QImage(size, QImage::Format_ARGB32_Premultiplied);
        m_still.fill(Qt::transparent);
        m_stillScene = scene;
        QPainter once(&m_still);
        once.setRenderHint(QPainter::Antialiasing);
        parts[std::size_t(scene)].still(once, size);
    }
    painter.drawImage(QPoint(), m_still);
}
