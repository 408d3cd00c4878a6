#include "Features/Code/CodeViewModel.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

CodeViewModel::CodeViewModel(QObject *parent) : QObject(parent), m_refresh([this] { refresh(); })
{
    connect(&m_result, &CodeRun::runningChanged, this, &CodeViewModel::isRunningChanged);
    connect(&m_result, &CodeRun::runningChanged, this, &CodeViewModel::consoleTextChanged);
    connect(&m_result, &CodeRun::resultChanged, this, &CodeViewModel::consoleTextChanged);
    m_shown.title.clear();
}

void CodeViewModel::setStore(WorkspaceStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store)
        connect(m_store, &WorkspaceStore::changed, this, &CodeViewModel::follow);
    emit storeChanged();
    m_layoutNeeded = true;
    m_refresh.request();
}

void CodeViewModel::setActive(bool active)
{
    if (m_active == active)
        return;
    m_active = active;
    emit activeChanged();
    m_refresh.request();
}

void CodeViewModel::setFocusDocument(const QVariant &document)
{
    const QUuid id = document.toUuid();
    if (m_focusDocument == id)
        return;
    m_focusDocument = id;
    m_focusWanted = !id.isNull();
    emit focusDocumentChanged();
    m_refresh.request();
}

void CodeViewModel::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    m_query = query;
    emit queryChanged();
    m_layoutNeeded = true;
    m_refresh.request();
}

void CodeViewModel::setFontSize(int size)
{
    size = qBound(smallestFont, size, largestFont);
    if (std::exchange(m_fontSize, size) != size)
        emit fontSizeChanged();
}

void CodeViewModel::setShowConsole(bool shown)
{
    if (std::exchange(m_showConsole, shown) != shown)
        emit showConsoleChanged();
}

QString CodeViewModel::consoleText() const
{
    if (isRunning())
        return tr("Running…");
    return m_result.hasResult() ? m_result.consoleText() : tr("Run the snippet to see its output.");
}

void CodeViewModel::newDocument()
{
    CodeDocument document;
    document.id = QUuid::createUuid();
    document.createdDate = document.updatedDate = m_store->clock().now();
    document.sortOrder = secondsSince1970(document.createdDate);
    showInList(document);
    m_store->add(document);
    select(document.id);
}

void CodeViewModel::select(const QUuid &id)
{
    if (m_selectedID == id || !m_store->codeDocuments().first(id))
        return;
    m_focusWanted = false;
    m_changedDocuments += {m_selectedID, id};
    m_selectedID = id;
    refresh();
}

void CodeViewModel::selectBy(int rows)
{
    const qsizetype count = m_rows.rows().size();
    if (count == 0)
        return;
    const qsizetype wanted = m_selectedRow < 0 ? 0 : qsizetype(m_selectedRow) + rows;
    select(m_rows.rows().at(qBound(qsizetype(0), wanted, count - 1)).id);
}

void CodeViewModel::duplicate(const QUuid &id)
{
    const CodeDocument *const original = m_store->codeDocuments().first(id);
    if (!original)
        return;
    CodeDocument copy = *original;
    copy.id = QUuid::createUuid();
    copy.title += QStringLiteral(" copy");
    copy.createdDate = copy.updatedDate = m_store->clock().now();
    copy.sortOrder = secondsSince1970(copy.createdDate);
    m_store->add(copy);
    select(copy.id);
}

void CodeViewModel::deleteDocument(const QUuid &id)
{
    m_store->erase<CodeDocument>(id);
}

void CodeViewModel::rename(const QUuid &id, const QString &title)
{
    const QString trimmed = title.trimmed();
    const CodeDocument *const renamed = m_store->codeDocuments().first(id);
    if (trimmed.isEmpty() || !renamed)
        return;
    if (renamed->title != trimmed)
        change(id, [&](CodeDocument &document) { document.title = trimmed; });
    // The field shows at once what became of its text.
    refresh();
}

void CodeViewModel::setLanguage(const QString &raw)
{
    if (const auto language = enumFromRaw<CodeLanguage>(raw))
        change(m_selectedID, [&](CodeDocument &document) { document.language = *language; });
}

void CodeViewModel::setSource(const QString &source)
{
    change(m_selectedID, [&](CodeDocument &document) { document.source = source; });
}

void CodeViewModel::copySource() const
{
    // What is shown may lag behind what has just been typed.
    if (const CodeDocument *const document = m_store->codeDocuments().first(m_selectedID))
        QGuiApplication::clipboard()->setText(document->source);
}

void CodeViewModel::runSnippet()
{
    const CodeDocument *const document = m_store->codeDocuments().first(m_selectedID);
    if (!document || isRunning())
        return;
    setShowConsole(true);
    m_result.run(document->source, enumRawText(document->language));
}

void CodeViewModel::showInList(const CodeDocument &document)
{
    if (!CodeRow::matches(document, m_query.trimmed()))
        setQuery({});
}

template <typename Edit>
void CodeViewModel::change(const QUuid &id, Edit edit)
{
    m_store->change<CodeDocument>(id, [&](CodeDocument &document) {
        edit(document);
        document.updatedDate = m_store->clock().now();
    });
}

void CodeViewModel::follow(const ChangeSet &changes)
{
    const RecordChanges &documents = changes.of<CodeDocument>();
    if (documents.isEmpty())
        return;
    m_changedDocuments += documents.replaced;
    m_layoutNeeded |= !documents.isReplacedOnly();
    m_refresh.request();
}

void CodeViewModel::refresh()
{
    if (!m_active || !m_store)
        return;
    syncSelection();
    if (std::exchange(m_layoutNeeded, false))
        layOut();
    else
        updateRows();
    m_changedDocuments.clear();
    locateSelection();
    showDocument();
}

void CodeViewModel::syncSelection()
{
    const auto &documents = m_store->codeDocuments();
    QUuid next = m_selectedID;
    const CodeDocument *const wanted =
        std::exchange(m_focusWanted, false) ? documents.first(m_focusDocument) : nullptr;
    if (wanted && wanted->id != m_selectedID) {
        next = wanted->id;
        showInList(*wanted);
    } else if (!documents.first(m_selectedID)) {
        next = documents.all().isEmpty() ? QUuid() : documents.all().first().id;
    }
    m_changedDocuments += {m_selectedID, next};
    m_selectedID = next;
}

void CodeViewModel::layOut()
{
    const QString query = m_query.trimmed();
    QList<CodeRow> rows;
    const auto &documents = m_store->codeDocuments().all();
    for (const CodeDocument &document : documents)
        if (query.isEmpty() || CodeRow::matches(document, query))
            rows.append(CodeRow::of(document, document.id == m_selectedID));
    const bool findsNothing = rows.isEmpty() && !documents.isEmpty();
    m_rows.setRows(std::move(rows));
    if (std::exchange(m_isEmpty, documents.isEmpty()) != documents.isEmpty())
        emit isEmptyChanged();
    if (std::exchange(m_findsNothing, findsNothing) != findsNothing)
        emit findsNothingChanged();
}

void CodeViewModel::updateRows()
{
    // A document stays in the list while it is edited, even if the query does not find it any more.
    for (const QUuid &id : std::as_const(m_changedDocuments))
        if (const CodeDocument *const document = m_store->codeDocuments().first(id))
            m_rows.updateRow(CodeRow::of(*document, id == m_selectedID));
}

void CodeViewModel::locateSelection()
{
    const auto &rows = m_rows.rows();
    const auto found = std::ranges::find(rows, m_selectedID, &CodeRow::id);
    const int row = found == rows.end() ? -1 : int(found - rows.begin());
    if (std::exchange(m_selectedRow, row) != row)
        emit selectedRowChanged();
}

void CodeViewModel::showDocument()
{
    const CodeDocument *const document = m_store->codeDocuments().first(m_selectedID);
    CodeDocument next;
    next.title.clear();
    if (document)
        next = *document;
    const CodeDocument last = std::exchange(m_shown, std::move(next));
    if (last.title != m_shown.title)
        emit titleChanged();
    if (last.language != m_shown.language)
        emit languageChanged();
    if (last.source != m_shown.source)
        emit sourceChanged();
    if (last.id != m_shown.id)
        emit selectionChanged();
}
