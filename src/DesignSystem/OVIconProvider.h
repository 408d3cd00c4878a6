#pragma once

#include <QHash>
#include <QQuickImageProvider>

/// Draws icons at the size and in the colour asked for: "image://orvel-icons/SYMBOL/RRGGBB" or "…/AARRGGBB".
class OVIconProvider : public QQuickImageProvider
{
public:
    static constexpr QLatin1String name{"orvel-icons"};

    OVIconProvider();

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

private:
    QImage shape(const QString &path, const QSize &size);

    /// Uncoloured icons by path and size: a change of colour draws no path again.
    QHash<std::pair<QString, int>, QImage> m_shapes;
};
