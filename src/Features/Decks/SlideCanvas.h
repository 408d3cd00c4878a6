#pragma once

#include "Features/Decks/DeckRow.h"

#include <QQuickPaintedItem>

/// Makes known to QML what the lists of this module hold.
struct ShownSlideType {
    Q_GADGET
    QML_FOREIGN(ShownSlide)
    QML_ANONYMOUS
};

struct SlideThemeChoiceType {
    Q_GADGET
    QML_FOREIGN(SlideThemeChoice)
    QML_ANONYMOUS
};

/// A drawn slide, as wide as the item. It is drawn anew only when the slide or the size changes.
class SlideCanvas : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(ShownSlide shown READ shown WRITE setShown NOTIFY shownChanged FINAL)

public:
    explicit SlideCanvas(QQuickItem *parent = nullptr);

    const ShownSlide &shown() const { return m_shown; }
    void setShown(const ShownSlide &shown);

    void paint(QPainter *painter) override;

signals:
    void shownChanged();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    /// The slide is another one or has changed.
    virtual void slideChanged() {}

private:
    ShownSlide m_shown;
};
