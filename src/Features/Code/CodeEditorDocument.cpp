#include "Features/Code/CodeEditorDocument.h"

#include "DesignSystem/OVTheme.h"
#include "DesignSystem/ThemeRevision.h"
#include "Features/Code/CodePalette.h"
#include "Features/Code/RowLayout.h"

#include <QScopedValueRollback>
#include <QTextDocument>

#include <algorithm>

namespace
{
constexpr int indentation = 4;
/// What is inserted in one turn of the event loop.
constexpr qsizetype sliceUnits = 100'000;

/// What ends a line for a document.
bool endsLine(QChar unit)
{
    return unit == QChar::ParagraphSeparator || unit == u'\r' || unit == QChar(0xfdd0) ||
           unit == QChar(0xfdd1);
}

/// The text as a document can hold it.
QString withLineFeeds(QString text)
{
    if (std::ranges::none_of(text, endsLine))
        return text;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    std::ranges::replace_if(text, endsLine, QChar(u'\n'));
    return text;
}

/// The whole text; unlike `toPlainText` it keeps no-break spaces.
QString textOf(const QTextDocument &document)
{
    return withLineFeeds(document.toRawText());
}

QTextCursor selected(QTextDocument *document, int start, int end)
{
    QTextCursor cursor(document);
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    return cursor;
}

qsizetype blanksBefore(const QString &line)
{
    return std::ranges::find_if_not(line, [](QChar unit) { return unit == u' ' || unit == u'\t'; }) -
           line.begin();
}

QColor inkOf(std::string_view role, const OVColors &colors)
{
    if (role == "ovInkSecondary")
        return colors.inkSecondary;
    return role == "ovInkTertiary" ? colors.inkTertiary : colors.ink;
}

/// The colours of source text in the appearance of the program.
CodeHighlighter::Colors currentColors()
{
    const OVThemeSnapshot &theme = OVTheme::current();
    const OVColors inks = OVTheme::colors();
    CodeHighlighter::Colors colors;
    for (std::size_t kind = 0; kind < colors.size(); ++kind) {
        const CodeColor color = CodePalette::color(CodeTokenKind(kind));
        const std::string_view digits = theme.dark ? color.dark : color.light;
        colors[kind] = theme.inkMode || digits.empty()
                           ? inkOf(color.inkRole, inks)
                           : QColor(u'#' + QLatin1String(digits.data(), qsizetype(digits.size())));
    }
    return colors;
}
} // namespace

CodeEditorDocument::CodeEditorDocument(QObject *parent) : QObject(parent)
{
    connect(&m_slices, &QTimer::timeout, this, &CodeEditorDocument::insertSlice);
}

void CodeEditorDocument::setDocument(QQuickTextDocument *document)
{
    if (m_document == document)
        return;
    if (QTextDocument *const before = textDocument()) {
        before->disconnect(this);
        before->documentLayout()->disconnect(this);
    }
    m_highlighter.reset();
    m_document = document;
    if (QTextDocument *const text = textDocument()) {
        RowLayout *const layout = RowLayout::of(text);
        text->setUndoRedoEnabled(false);
        m_highlighter = std::make_unique<CodeHighlighter>(text);
        applyLanguage();
        m_highlighter->setColors(currentColors());
        connect(&ThemeRevision::shared(), &ThemeRevision::valueChanged, m_highlighter.get(),
                [this] { m_highlighter->setColors(currentColors()); });
        connect(text, &QTextDocument::contentsChange, this,
                [this] { m_isEdited = m_isEdited || !m_highlighter->isColoring(); });
        connect(text, &QTextDocument::contentsChanged, this, &CodeEditorDocument::contentsWereChanged);
        connect(layout, &RowLayout::update, this, &CodeEditorDocument::laidOut);
        connect(layout, &RowLayout::documentSizeChanged, this, &CodeEditorDocument::laidOut);
        show(withLineFeeds(m_text));
    }
    emit documentChanged();
}

void CodeEditorDocument::setText(const QString &text)
{
    if (m_text == text)
        return;
    m_text = text;
    if (textDocument())
        show(withLineFeeds(text));
    emit textChanged();
}

void CodeEditorDocument::setLanguage(const QString &language)
{
    if (m_language == language)
        return;
    m_language = language;
    applyLanguage();
    emit languageChanged();
}

void CodeEditorDocument::setViewTop(qreal top)
{
    if (m_viewTop == top)
        return;
    m_viewTop = top;
    emit viewChanged();
    showColors();
}

void CodeEditorDocument::setViewHeight(qreal height)
{
    if (m_viewHeight == height)
        return;
    m_viewHeight = height;
    emit viewChanged();
    showColors();
}

void CodeEditorDocument::setCaret(int caret)
{
    if (m_caret == caret)
        return;
    m_caret = caret;
    if (QTextDocument *const document = textDocument())
        RowLayout::of(document)->setCaret(caret);
    emit caretChanged();
    locateCaret();
}

void CodeEditorDocument::indent(int selectionStart, int selectionEnd)
{
    const auto [first, last] = linesOf(selectionStart, selectionEnd);
    QTextCursor cursor = selected(textDocument(), selectionStart, selectionEnd);
    const QString blanks(indentation, u' ');
    if (first == last) {
        cursor.insertText(blanks);
        return;
    }
    cursor.beginEditBlock();
    for (int line = first; line <= last; ++line) {
        const QTextBlock block = textDocument()->findBlockByNumber(line);
        cursor.setPosition(block.position());
        if (block.length() > 1)
            cursor.insertText(blanks);
    }
    cursor.endEditBlock();
}

void CodeEditorDocument::outdent(int selectionStart, int selectionEnd)
{
    const auto [first, last] = linesOf(selectionStart, selectionEnd);
    QTextCursor cursor(textDocument());
    cursor.beginEditBlock();
    for (int line = first; line <= last; ++line) {
        const QTextBlock block = textDocument()->findBlockByNumber(line);
        const QString text = block.text();
        const qsizetype tab = text.left(indentation).indexOf(u'\t');
        const int count = int(std::min<qsizetype>(blanksBefore(text), tab >= 0 ? tab + 1 : indentation));
        cursor.setPosition(block.position());
        cursor.setPosition(block.position() + count, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
    }
    cursor.endEditBlock();
}

void CodeEditorDocument::breakLine(int selectionStart, int selectionEnd)
{
    const QTextBlock block = textDocument()->findBlock(selectionStart);
    const QString before = block.text().left(selectionStart - block.position());
    selected(textDocument(), selectionStart, selectionEnd)
        .insertText(u'\n' + before.left(blanksBefore(before)));
}

bool CodeEditorDocument::removeIndent(int caret)
{
    const QTextBlock block = textDocument()->findBlock(caret);
    const QString before = block.text().left(caret - block.position());
    if (before.isEmpty() || blanksBefore(before) != before.size())
        return false;
    int columns = 0;
    for (const QChar unit : before)
        columns += unit == u'\t' ? indentation - columns % indentation : 1;
    qsizetype count = 1;
    if (!before.endsWith(u'\t'))
        for (--columns; columns % indentation > 0 && before.at(before.size() - 1 - count) == u' '; --columns)
            ++count;
    selected(textDocument(), caret - int(count), caret).removeSelectedText();
    return true;
}

void CodeEditorDocument::contentsWereChanged()
{
    if (!std::exchange(m_isEdited, false) || m_isShowing)
        return;
    locateCaret();
    showColors();
    tellLineCount();
    // A composition changes the document too, but not its text.
    QString text = textOf(*textDocument());
    if (text == m_shown)
        return;
    m_text = m_shown = std::move(text);
    emit textChanged();
    emit edited(m_text);
}

void CodeEditorDocument::show(const QString &text)
{
    QTextDocument *const document = textDocument();
    const QString present = textOf(*document);
    const qsizetype caret = m_caret;
    m_shown = text;
    auto [end, presentEnd] = std::ranges::mismatch(text, present);
    qsizetype same = end - text.begin();
    if (same > 0 && text.at(same - 1).isHighSurrogate())
        --same;
    qsizetype rest = 0;
    const qsizetype most = std::min(text.size(), present.size()) - same;
    while (rest < most && text.at(text.size() - 1 - rest) == present.at(present.size() - 1 - rest))
        ++rest;
    if (rest > 0 && text.at(text.size() - rest).isLowSurrogate())
        --rest;
    insert(selected(document, int(same), int(present.size() - rest)),
           text.sliced(same, text.size() - rest - same));
    m_isEdited = false;
    // A caret beyond the change moves along with its text; else it stays, as far as there is text.
    if (caret <= present.size() - rest)
        emit caretPlaced(int(std::min(caret, text.size() - rest)));
    locateCaret();
    tellLineCount();
}

void CodeEditorDocument::insert(const QTextCursor &place, const QString &text)
{
    const bool wasLoading = isLoading();
    m_pending = text;
    m_inserted = 0;
    m_pendingPlace = place;
    if (text.size() > sliceUnits)
        m_slices.start(0);
    else
        m_slices.stop();
    insertSlice();
    if (isLoading() != wasLoading)
        emit isLoadingChanged();
}

void CodeEditorDocument::insertSlice()
{
    qsizetype end = std::min(m_pending.size(), m_inserted + sliceUnits);
    if (end < m_pending.size() && m_pending.at(end).isLowSurrogate())
        ++end;
    {
        const QScopedValueRollback showing(m_isShowing, true);
        m_pendingPlace.insertText(m_pending.sliced(m_inserted, end - m_inserted));
    }
    m_isEdited = false;
    m_inserted = end;
    showColors();
    tellLineCount();
    if (m_inserted < m_pending.size())
        return;
    m_pending.clear();
    m_pendingPlace = QTextCursor();
    if (isLoading()) {
        m_slices.stop();
        emit isLoadingChanged();
    }
}

void CodeEditorDocument::tellLineCount()
{
    const int lines = textDocument()->blockCount();
    if (std::exchange(m_lineCount, lines) != lines)
        emit lineCountChanged();
}

void CodeEditorDocument::applyLanguage()
{
    if (m_highlighter)
        m_highlighter->setLanguage(
            enumFromRaw<CodeLanguage>(m_language).value_or(enumCases<CodeLanguage>().front().value));
}

void CodeEditorDocument::locateCaret()
{
    const QTextDocument *const document = textDocument();
    const QTextBlock block = document ? document->findBlock(m_caret) : QTextBlock();
    const int line = block.isValid() ? block.blockNumber() + 1 : 1;
    const int column = block.isValid() ? m_caret - block.position() + 1 : 1;
    if (line == m_caretLine && column == m_caretColumn)
        return;
    m_caretLine = line;
    m_caretColumn = column;
    emit caretMoved();
}

void CodeEditorDocument::showColors()
{
    // A document that asks for its geometry before anybody shows it would be laid out for nothing.
    if (!m_highlighter || m_viewHeight <= 0 || m_isShowing)
        return;
    // A little more than is in view, for what scrolls in.
    const qreal margin = m_viewHeight / 2;
    const RowLayout &layout = *RowLayout::of(textDocument());
    m_highlighter->setVisibleLines(layout.lineAt(m_viewTop - margin),
                                   layout.lineAt(m_viewTop + m_viewHeight + margin));
}

std::pair<int, int> CodeEditorDocument::linesOf(int selectionStart, int selectionEnd) const
{
    const int first = textDocument()->findBlock(selectionStart).blockNumber();
    const QTextBlock end = textDocument()->findBlock(selectionEnd);
    const bool touchesEnd = selectionEnd > end.position() || end.blockNumber() == first;
    return {first, end.blockNumber() - (touchesEnd ? 0 : 1)};
}
