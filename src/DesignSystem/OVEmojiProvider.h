#pragma once

#include <QColor>
#include <QQuickImageProvider>

/// Draws an emoji, or a short text in its place, as an image. The engine shares an image between all who show
/// it, so that a drawing is unpacked from its font once instead of by each of them.
class OVEmojiProvider : public QQuickImageProvider
{
public:
    static constexpr QLatin1String name{"orvel-emoji"};

    OVEmojiProvider();

    /// Where the image of the text is found; empty for no text. Emoji have colours of their own, other
    /// texts take this one.
    static QString source(const QString &text, const QColor &color);

    /// The text is in the middle of an image a quarter higher than asked for, since some drawings are higher
    /// than their line.
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};
