#pragma once

#include <QQuickImageProvider>

/// Draws the soft shadow of a surface with round corners as an image whose middle stretches:
/// "image://orvel-shadows/RADIUS/BLUR/STRENGTH", radius and blur in pixels, the strength in percent.
class OVShadowProvider : public QQuickImageProvider
{
public:
    static constexpr QLatin1String name{"orvel-shadows"};

    OVShadowProvider();

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};
