#pragma once

#include "Features/Decks/SlideRegion.h"

#include <QBuffer>
#include <QList>
#include <QPainter>
#include <QPdfWriter>

/// Writes slides as the pages of a PDF: shapes and letters as such, with their fonts, so that a page is sharp
/// at every size and its text can be searched. Only coloured letters are pictures.
class SlidePdf
{
public:
    explicit SlidePdf(const QString &title);

    /// Appends a page of 960 by 540 points. Gives false if it can't be drawn.
    bool addPage(const QList<SlideRegion> &regions, const SlideTheme &theme);
    /// The whole document, empty if it can't be written; nothing may be added afterwards.
    QByteArray finish();

private:
    QBuffer m_buffer;
    QPdfWriter m_writer;
    QPainter m_painter;
};
