#include "Features/Code/CodeViewModel.h"

#include "Store/CodeOperations.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

CodeViewModel::CodeViewModel(QObject *parent) : ViewModel(parent)
{
    follow<CodeDocument>();
    m_document.title.clear();
    connect(&m_finder, &CodeFinder::replaced, this, &CodeViewModel::replaceSource);
}

void CodeViewModel::start()
{
    connect(&ui(), &UIState::codeDocumentIDChanged, this, [this] {
        // One that the query hides would be open without a row.
        const CodeDocument *const wanted = find(ui().codeDocumentID());
        if (wanted && !CodeRow::matches(*wanted, m_query.trimmed()))
            setQuery({});
        requestRefresh();
    });
    connect(&ui(), &UIState::textSought, this, [this] {
        flush();
        showSoughtText();
    });
}

void CodeViewModel::showSoughtText()
{
    if (ui().selection() == Destination::codeDocument(selectedID()))
        m_finder.show(ui().takeSoughtText());
}

void CodeViewModel::replaceSource(const QString &source, int caret, int count)
{
    const bool isAll = count > 1;
    const Action action(store(), isAll ? tr("Replace All") : tr("Replace"));
    if (isAll)
        action.setMessage(tr("%Ln replaced", nullptr, count));
    CodeOperations::setSource(store(), selectedID(), source, caret);
}

void CodeViewModel::setQuery(const QString &query)
{
    if (std::exchange(m_query, query) == query)
        return;
    emit queryChanged();
    m_needsLayout = true;
    requestRefresh();
}

void CodeViewModel::newDocument()
{
    setQuery({});
    select(CodeOperations::create(store()).id);
}

void CodeViewModel::select(const QUuid &id)
{
    ui().setCodeDocumentID(id);
    flush();
}

void CodeViewModel::selectBy(int rows)
{
    const int last = int(m_rows.rows().size()) - 1;
    if (last >= 0)
        select(m_rows.rows().at(m_selectedRow < 0 ? 0 : qBound(0, m_selectedRow + rows, last)).id);
}

void CodeViewModel::duplicate(const QUuid &id)
{
    if (const auto copy = CodeOperations::duplicate(store(), id))
        select(*copy);
}

void CodeViewModel::deleteDocument(const QUuid &id)
{
    CodeOperations::remove(store(), id);
}

void CodeViewModel::rename(const QUuid &id, const QString &title)
{
    if (!title.trimmed().isEmpty())
        CodeOperations::rename(store(), id, title.trimmed());
    // The field shows at once what became of its text.
    flush();
}

void CodeViewModel::setLanguage(const QString &raw)
{
    if (const auto language = enumFromRaw<CodeLanguage>(raw))
        CodeOperations::setLanguage(store(), selectedID(), *language);
}

void CodeViewModel::setSource(const QString &source, int caret)
{
    CodeOperations::setSource(store(), selectedID(), source, caret);
}

void CodeViewModel::copySource() const
{
    // What is shown may lag behind what has just been typed.
    if (const CodeDocument *const document = find(selectedID()))
        QGuiApplication::clipboard()->setText(document->source);
}

QString CodeViewModel::titleOf(const QUuid &id) const
{
    const CodeDocument *const document = find(id);
    return document ? CodeRow::of(*document).title : QString();
}

void CodeViewModel::runSnippet()
{
    const CodeDocument *const document = find(selectedID());
    if (!document)
        return;
    m_desk->setShowConsole(true);
    m_desk->run(document->id)->run(document->source, enumRawText(document->language));
}

void CodeViewModel::refresh(const ChangeSet &changes)
{
    const RecordChanges &documents = changes.of<CodeDocument>();
    for (const QUuid &id : documents.removed)
        m_desk->forget(id);
    showDocument();
    // A document stays in the list while it is edited, even if the query does not find it any more.
    if (std::exchange(m_needsLayout, false) || !documents.isReplacedOnly())
        layOut();
    else
        for (const QUuid &id : documents.replaced)
            m_rows.updateRow(CodeRow::of(*find(id)));
    const int row = int(std::ranges::find(m_rows.rows(), selectedID(), &CodeRow::id) - m_rows.rows().begin());
    if (const int shown = row < m_rows.rows().size() ? row : -1; std::exchange(m_selectedRow, shown) != shown)
        emit selectedRowChanged();
}

void CodeViewModel::showDocument()
{
    const auto &documents = store().codeDocuments();
    const CodeDocument *document = find(ui().codeDocumentID());
    if (!document)
        document = find(selectedID());
    if (!document && !documents.all().isEmpty())
        document = &documents.all().first();
    CodeDocument none;
    none.title.clear();
    const CodeDocument &next = document ? *document : none;
    const bool isOther = next.id != selectedID();
    if (isOther)
        emit selectionAboutToChange();
    if (std::exchange(m_document, next) != next)
        emit documentChanged();
    m_finder.setText(m_document.source, isOther);
    if (isOther)
        emit selectionChanged();
    // The screen opens again where it was left.
    ui().setCodeDocumentID(selectedID());
}

void CodeViewModel::layOut()
{
    const QString query = m_query.trimmed();
    QList<CodeRow> rows;
    const auto &documents = store().codeDocuments().all();
    QSet<QUuid> matching;
    for (const CodeDocument *const document : session()->search()->matching<CodeDocument>(query))
        matching.insert(document->id);
    for (const CodeDocument &document : documents)
        if (query.isEmpty() || matching.contains(document.id) || CodeRow::languageMatches(document, query))
            rows.append(CodeRow::of(document));
    m_rows.setRows(std::move(rows));
    if (std::exchange(m_isEmpty, documents.isEmpty()) != documents.isEmpty())
        emit isEmptyChanged();
}

bool CodeViewModel::reveal(const UndoPlace &place)
{
    const QUuid id = place.textRecord.isNull() ? place.record : place.textRecord;
    if (!find(id))
        return false;
    select(id);
    if (place.textField == u"source")
        emit caretRestored(place.caret);
    return true;
}
