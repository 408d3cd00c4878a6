#pragma once

#include <QQuickImageProvider>

/// Paints a round cloud of a colour that fades out towards its edge: "image://orvel-glows/RRGGBB".
class OVGlowProvider : public QQuickImageProvider
{
public:
    static constexpr QLatin1String name{"orvel-glows"};

    OVGlowProvider();

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};
