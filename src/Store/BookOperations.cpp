#include "Store/BookOperations.h"

Book BookOperations::add(WorkspaceStore &store, const Book &book)
{
    const Action action(store, ActionText::tr("Add Book"));
    const auto &books = store.list<Book>();
    const auto known = std::ranges::find(books, book.gutenbergID, &Book::gutenbergID);
    Book stored = book;
    if (known == books.end()) {
        store.add(stored);
        return stored;
    }
    stored.id = known->id;
    store.change<Book>(stored.id, [&](Book &kept) { kept = stored; });
    return stored;
}

void BookOperations::remove(WorkspaceStore &store, const QUuid &bookID)
{
    const Action action(store, ActionText::tr("Remove Book"));
    action.setMessage(ActionText::tr("Book removed"));
    action.whenForgotten([library = store.bookLibrary(), bookID] { library.deleteText(bookID); });
    store.erase<Book>(bookID);
}

void BookOperations::keepPlace(WorkspaceStore &store, const QUuid &bookID, qint64 paragraph)
{
    const Book *book = store.list<Book>().first(bookID);
    if (!book || book->lastLocation == paragraph)
        return;
    const Action action = Action::background(store);
    store.change<Book>(bookID, [&](Book &kept) {
        kept.lastLocation = paragraph;
        kept.updatedDate = store.now();
    });
}
