#include "Features/Decks/SlideEditorCanvas.h"

#include "Features/Decks/DeckLayout.h"
#include "Features/Decks/SlideFields.h"
#include "Features/Decks/SlidePainter.h"

#include <QPainter>

#include <algorithm>

namespace
{
/// How far beside a text a click still means it, on the reference canvas.
constexpr double reach = 28;
constexpr double promptOpacity = 0.55;
constexpr double faintestPrompt = 0.1;
constexpr double selectionOpacity = 0.22;
/// Where the cards of a stats slide stand.
constexpr QRectF cardsRect(100, 266, 1080, 228);

double distance(const QRectF &rect, QPointF point)
{
    const double x = std::max({rect.left() - point.x(), 0.0, point.x() - rect.right()});
    const double y = std::max({rect.top() - point.y(), 0.0, point.y() - rect.bottom()});
    return std::hypot(x, y);
}

/// The slide with prompts in the fields that are empty.
ShownSlide prompting(ShownSlide shown)
{
    for (const EnumCase<SlideField> &field : enumCases<SlideField>())
        if (QString &text = shown.slide.*SlideFields::member(field.value); text.isEmpty())
            text = slidePlaceholder(shown.slide.kind, field.value);
    return shown;
}
} // namespace

SlideEditorCanvas::SlideEditorCanvas(QQuickItem *parent) : SlideCanvas(parent) {}
SlideEditorCanvas::~SlideEditorCanvas() = default;

void SlideEditorCanvas::setField(const QString &field)
{
    if (std::exchange(m_field, field) == field)
        return;
    emit fieldChanged();
    emit storedTextChanged();
    invalidate();
}

QString SlideEditorCanvas::storedText() const
{
    const auto field = enumFromRaw<SlideField>(m_field);
    return field ? shown().slide.*SlideFields::member(*field) : QString();
}

void SlideEditorCanvas::setText(const QString &text)
{
    if (std::exchange(m_text, text) == text)
        return;
    emit textChanged();
    invalidate();
}

void SlideEditorCanvas::setPreedit(const QString &preedit)
{
    if (std::exchange(m_preedit, preedit) == preedit)
        return;
    emit textChanged();
    invalidate();
}

void SlideEditorCanvas::setCaret(int caret)
{
    if (std::exchange(m_caret, caret) == caret)
        return;
    emit caretChanged();
    const Part *const part = edited();
    // Only then does what is drawn depend on it.
    if (!m_preedit.isEmpty() || (part && part->text && !part->text->fits()))
        invalidate();
    else
        emit placed();
}

void SlideEditorCanvas::setSelectionStart(int position)
{
    if (std::exchange(m_selectionStart, position) == position)
        return;
    emit selectionChanged();
    update();
}

void SlideEditorCanvas::setSelectionEnd(int position)
{
    if (std::exchange(m_selectionEnd, position) == position)
        return;
    emit selectionChanged();
    update();
}

void SlideEditorCanvas::slideChanged()
{
    emit storedTextChanged();
    invalidate();
}

void SlideEditorCanvas::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    SlideCanvas::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        emit placed();
}

void SlideEditorCanvas::invalidate()
{
    m_isLaidOut = false;
    emit placed();
    update();
}

const std::vector<SlideEditorCanvas::Part> &SlideEditorCanvas::parts() const
{
    if (!std::exchange(m_isLaidOut, true))
        layOut();
    return m_parts;
}

void SlideEditorCanvas::layOut() const
{
    ShownSlide shown = this->shown();
    const auto field = enumFromRaw<SlideField>(m_field);
    if (field) {
        QString text = m_text;
        text.insert(std::clamp<qsizetype>(m_caret, 0, text.size()), m_preedit);
        shown.slide.*SlideFields::member(*field) = text;
    }
    const QList<SlideRegion> own = shown.regions();
    m_parts.clear();
    for (const SlideRegion &region : prompting(shown).regions()) {
        Part part{.region = region, .text = {}, .isPrompt = !own.contains(region)};
        const bool isEdited = field && region.field == field;
        if (region.kind == SlideRegion::Kind::text)
            part.text.emplace(region, isEdited && !part.isPrompt ? SlideText::Extent::whole
                                                                 : SlideText::Extent::fitting);
        if (part.isPrompt)
            part.region.opacity = std::max(region.opacity * promptOpacity, faintestPrompt);
        if (isEdited && !part.isPrompt)
            part.text->scrollTo(inPart(m_caret) + textOffset(part));
        m_parts.push_back(std::move(part));
    }
}

const SlideEditorCanvas::Part *SlideEditorCanvas::partOf(const QString &field) const
{
    const auto wanted = enumFromRaw<SlideField>(field);
    if (!wanted)
        return nullptr;
    const auto found = std::ranges::find_if(
        parts(), [&](const Part &part) { return part.text && part.region.field == wanted; });
    return found == parts().end() ? nullptr : &*found;
}

double SlideEditorCanvas::unit() const
{
    return std::max(width(), 1.0) / DeckLayout::canvas.width();
}

QRectF SlideEditorCanvas::toItem(const QRectF &rect) const
{
    return {rect.topLeft() * unit(), rect.size() * unit()};
}

int SlideEditorCanvas::textOffset(const Part &part) const
{
    qsizetype length = part.region.lines.size() - 1;
    for (const SlideRegion::Line &line : part.region.lines)
        length += line.text.size();
    const auto field = enumFromRaw<SlideField>(m_field);
    const qsizetype own = part.isPrompt && field ? slidePlaceholder(shown().slide.kind, *field).size()
                                                 : m_text.size() + m_preedit.size();
    return int(std::max<qsizetype>(0, length - own));
}

/// What is being composed stands between the caret and the text behind it.
int SlideEditorCanvas::inPart(int position) const
{
    return position >= m_caret ? position + int(m_preedit.size()) : position;
}

int SlideEditorCanvas::inInput(const Part &part, int position) const
{
    if (position < 0)
        return -1;
    if (part.isPrompt)
        return 0;
    position = std::max(0, position - textOffset(part));
    if (position > m_caret)
        position = std::max(m_caret, position - int(m_preedit.size()));
    return std::min(position, int(m_text.size()));
}

QRectF SlideEditorCanvas::caretRect() const
{
    const Part *const part = edited();
    if (!part)
        return {};
    return toItem(part->text->caretRect(textOffset(*part) + (part->isPrompt ? 0 : inPart(m_caret))));
}

QList<QRectF> SlideEditorCanvas::overflows() const
{
    QList<QRectF> rects;
    for (const Part &part : parts())
        if (part.text && !part.isPrompt && !part.text->fits())
            rects.append(toItem(part.region.rect));
    return rects;
}

QColor SlideEditorCanvas::ink() const
{
    return SlidePainter::color(shown().theme.ink);
}

QStringList SlideEditorCanvas::fields() const
{
    QStringList fields;
    for (const Part &part : parts())
        if (part.text && part.region.field)
            fields.append(enumRawText(*part.region.field));
    return fields;
}

QString SlideEditorCanvas::nextField(const QString &field, bool forward) const
{
    const QStringList all = fields();
    const qsizetype index = all.indexOf(field);
    if (index < 0)
        return all.value(forward ? 0 : all.size() - 1);
    return all.value(forward ? index + 1 : index - 1);
}

bool SlideEditorCanvas::isMultiLine(const QString &field) const
{
    const auto known = enumFromRaw<SlideField>(field);
    return known && SlideFields::isMultiLine(*known);
}

QString SlideEditorCanvas::promptOf(const QString &field) const
{
    const auto known = enumFromRaw<SlideField>(field);
    return known ? slidePlaceholder(shown().slide.kind, *known) : QString();
}

QRectF SlideEditorCanvas::rectOf(const QString &field) const
{
    const Part *const part = partOf(field);
    return part ? toItem(part->region.rect) : QRectF();
}

QString SlideEditorCanvas::fieldAt(QPointF point) const
{
    const QPointF onCanvas = point / unit();
    QString nearest;
    double best = reach;
    for (const Part &part : parts()) {
        if (!part.text || !part.region.field)
            continue;
        const double away = distance(part.region.rect, onCanvas);
        if (away > best || (away == best && !nearest.isEmpty()))
            continue;
        best = away;
        nearest = enumRawText(*part.region.field);
    }
    const bool isOnCards = shown().slide.kind == SlideKind::stats && cardsRect.contains(onCanvas);
    return isOnCards ? enumRawText(SlideField::body) : nearest;
}

int SlideEditorCanvas::positionAt(QPointF point) const
{
    const Part *const part = edited();
    return part ? inInput(*part, part->text->positionAt(point / unit())) : 0;
}

int SlideEditorCanvas::positionInLine(int position, int lines, double x) const
{
    const Part *const part = edited();
    if (!part || part->isPrompt)
        return -1;
    return inInput(*part,
                   part->text->positionInLine(textOffset(*part) + inPart(position), lines, x / unit()));
}

int SlideEditorCanvas::positionAtEdge(bool first, double x) const
{
    const Part *const part = edited();
    if (!part)
        return 0;
    const int edge = first ? 0 : textOffset(*part) + int(m_text.size());
    return inInput(*part, part->text->positionInLine(edge, 0, x / unit()));
}

int SlideEditorCanvas::lineStart(int position) const
{
    const Part *const part = edited();
    return part ? inInput(*part, part->text->lineStart(textOffset(*part) + inPart(position))) : 0;
}

int SlideEditorCanvas::lineEnd(int position) const
{
    const Part *const part = edited();
    return part ? inInput(*part, part->text->lineEnd(textOffset(*part) + inPart(position))) : 0;
}

void SlideEditorCanvas::paint(QPainter *painter)
{
    painter->save();
    SlidePainter::begin(*painter, width());
    for (const Part &part : parts()) {
        painter->setOpacity(part.region.opacity);
        if (!part.text) {
            SlidePainter::paintBox(*painter, part.region);
            continue;
        }
        if (&part == edited())
            paintEdited(*painter, part);
        SlidePainter::paintText(*painter, *part.text, part.region, shown().theme);
    }
    painter->restore();
}

void SlideEditorCanvas::paintEdited(QPainter &painter, const Part &part) const
{
    if (part.isPrompt)
        return;
    const int offset = textOffset(part);
    QColor marked = ink();
    marked.setAlphaF(selectionOpacity);
    painter.setOpacity(1);
    for (const QRectF &rect : part.text->rects(offset + m_selectionStart, offset + m_selectionEnd))
        if (m_selectionStart < m_selectionEnd)
            painter.fillRect(rect, marked);
    if (!m_preedit.isEmpty())
        for (const QRectF &rect :
             part.text->rects(offset + m_caret, offset + m_caret + int(m_preedit.size())))
            painter.fillRect(QRectF(rect.left(), rect.bottom() - 2, rect.width(), 2), ink());
    painter.setOpacity(part.region.opacity);
}
