#include "Store/CodeOperations.h"

namespace
{
template <typename Edit>
void changeDocument(WorkspaceStore &store, const QUuid &documentID, Edit edit)
{
    store.change<CodeDocument>(documentID, [&](CodeDocument &document) {
        edit(document);
        document.updatedDate = store.now();
    });
}
} // namespace

CodeDocument CodeOperations::create(WorkspaceStore &store)
{
    const Action action(store, ActionText::tr("New Snippet"));
    CodeDocument document;
    document.id = store.makeId();
    document.createdDate = document.updatedDate = store.now();
    document.sortOrder = secondsSince1970(document.createdDate);
    store.add(document);
    return document;
}

std::optional<QUuid> CodeOperations::duplicate(WorkspaceStore &store, const QUuid &documentID)
{
    const CodeDocument *const original = store.codeDocuments().first(documentID);
    if (!original)
        return std::nullopt;
    const Action action(store, ActionText::tr("Duplicate Snippet"));
    CodeDocument copy = *original;
    copy.id = store.makeId();
    copy.title += QStringLiteral(" copy");
    copy.createdDate = copy.updatedDate = store.now();
    copy.sortOrder = secondsSince1970(copy.createdDate);
    store.add(copy);
    return copy.id;
}

void CodeOperations::rename(WorkspaceStore &store, const QUuid &documentID, const QString &title)
{
    const Action action(store, ActionText::tr("Rename Snippet"));
    changeDocument(store, documentID, [&](CodeDocument &document) { document.title = title; });
}

void CodeOperations::setLanguage(WorkspaceStore &store, const QUuid &documentID, CodeLanguage language)
{
    const Action action(store, ActionText::tr("Change Language"));
    changeDocument(store, documentID, [&](CodeDocument &document) { document.language = language; });
}

void CodeOperations::setSource(WorkspaceStore &store, const QUuid &documentID, const QString &source,
                               qsizetype caret)
{
    const CodeDocument *const document = store.codeDocuments().first(documentID);
    if (!document)
        return;
    const Action action(store,
                        Typing{{documentID, QStringLiteral("source")}, document->source, source, caret});
    changeDocument(store, documentID, [&](CodeDocument &changed) { changed.source = source; });
}

void CodeOperations::remove(WorkspaceStore &store, const QUuid &documentID)
{
    const Action action(store, ActionText::tr("Delete Snippet"));
    action.setMessage(ActionText::tr("Snippet deleted"));
    store.erase<CodeDocument>(documentID);
}
