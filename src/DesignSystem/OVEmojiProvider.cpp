#include "DesignSystem/OVEmojiProvider.h"

#include "DesignSystem/OVFonts.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace
{
constexpr int defaultHeight = 16;
/// UTF-16 units; an emoji of several people has up to eleven.
constexpr qsizetype maxLength = 32;
constexpr char32_t firstPictograph = 0x1f300;

bool hasOwnColors(const QString &text)
{
    return text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate() &&
           QChar::surrogateToUcs4(text[0], text[1]) >= firstPictograph;
}
} // namespace

OVEmojiProvider::OVEmojiProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QString OVEmojiProvider::source(const QString &text, const QColor &color)
{
    if (text.isEmpty())
        return {};
    const QString painted = hasOwnColors(text) ? QStringLiteral("own") : color.name(QColor::HexArgb).mid(1);
    // As the numbers of its units, a text of any kind, or a part of one, is a valid address.
    const auto *const units = reinterpret_cast<const char *>(text.utf16());
    const qsizetype length = std::min(text.size(), maxLength) * qsizetype(sizeof(char16_t));
    return QStringLiteral("image://%1/%2/%3")
        .arg(name, painted, QLatin1String(QByteArray::fromRawData(units, length).toHex()));
}

QImage OVEmojiProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QByteArray units = QByteArray::fromHex(id.section(u'/', 1).toLatin1());
    const QString text(reinterpret_cast<const QChar *>(units.constData()),
                       units.size() / qsizetype(sizeof(QChar)));
    const QColor color = QColor::fromString(u'#' + id.section(u'/', 0, 0));
    const int height = requestedSize.height() > 0 ? requestedSize.height() : defaultHeight;
    QFont font(OVFonts::emojiFamily());
    font.setPixelSize(std::max(1, qRound(height * 0.86)));
    const int width = std::max(1, QFontMetrics(font).horizontalAdvance(text));
    QImage image(width, height + 2 * ((height + 7) / 8), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(color.isValid() ? color : QColor(Qt::gray));
    painter.drawText(image.rect(), Qt::AlignCenter | Qt::TextSingleLine, text);
    painter.end();
    if (size)
        *size = image.size();
    return image;
}
