#pragma once

#include <QSizeF>

class QImage;
class QPainter;

/// The parts of each scene: `soft` fills a small image, `still` paints what never moves, and `moving` what
/// does. Sizes are those of the whole scene.
namespace AuroraScene
{
void soft(QImage &image, double seconds);
void still(QPainter &painter, const QSizeF &size);
} // namespace AuroraScene

namespace OceanScene
{
void soft(QImage &image, double seconds);
void moving(QPainter &painter, const QSizeF &size, double seconds);
} // namespace OceanScene

namespace ForestScene
{
void soft(QImage &image, double seconds);
void still(QPainter &painter, const QSizeF &size);
void moving(QPainter &painter, const QSizeF &size, double seconds);
} // namespace ForestScene

namespace NightScene
{
void soft(QImage &image, double seconds);
void still(QPainter &painter, const QSizeF &size);
void moving(QPainter &painter, const QSizeF &size, double seconds);
} // namespace NightScene

namespace SunsetScene
{
void soft(QImage &image, double seconds);
void moving(QPainter &painter, const QSizeF &size, double seconds);
} // namespace SunsetScene

namespace MeadowScene
{
void soft(QImage &image, double seconds);
void moving(QPainter &painter, const QSizeF &size, double seconds);
} // namespace MeadowScene

namespace RainScene
{
void soft(QImage &image, double seconds);
void moving(QPainter &painter, const QSizeF &size, double seconds);
} // namespace RainScene

namespace EmbersScene
{
void soft(QImage &image, double seconds);
void moving(QPainter &painter, const QSizeF &size, double seconds);
} // namespace EmbersScene
