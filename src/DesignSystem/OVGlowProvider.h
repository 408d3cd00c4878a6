#pragma once

#include <QQuickImageProvider>

/// Paints the soft parts of the window's ground. "image://orvel-glows/RRGGBB" is a round cloud of a colour
/// that fades out towards its edge; "image://orvel-glows/grain" is a tile of faint grain, which hides the
/// steps of gradients.
class OVGlowProvider : public QQuickImageProvider
{
public:
    static constexpr QLatin1String name{"orvel-glows"};

    OVGlowProvider();

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};
