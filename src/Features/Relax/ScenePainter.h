#pragma once

#include "Features/Relax/RelaxScene.h"

#include <QImage>
#include <QSize>

class QPainter;

/// Draws the ambient scenes. A scene is the same each time for a given second, and none flashes or moves
/// fast.
///
/// What is soft, such as glows and mist, is computed in a small image that is then enlarged; what has edges
/// is painted over it at full size.
class ScenePainter
{
public:
    /// Fills the rectangle from the origin of the painter to the size.
    void paint(QPainter &painter, QSize size, RelaxScene scene, double seconds);

private:
    void paintStillPart(QPainter &painter, QSize size, RelaxScene scene);

    QImage m_soft;
    /// Parts of a scene that never move, with the scene they belong to.
    QImage m_still;
    RelaxScene m_stillScene = RelaxScene::aurora;
};
