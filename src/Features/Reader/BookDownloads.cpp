#include "Features/Reader/BookDownloads.h"

#include "Features/Reader/CatalogueRow.h"
#include "Foundation/LineText.h"
#include "Store/BookOperations.h"

BookDownloads::BookDownloads(OrvelSession *session, const GutenbergClient::Options &options)
    : m_session(session), m_client(options)
{
    m_background.setMaxThreadCount(1);
}

BookDownloads::~BookDownloads()
{
    m_background.waitForDone();
    for (const QUuid &id : std::as_const(m_writing))
        if (!store().list<Book>().contains(id))
            store().bookLibrary().deleteText(id);
}

BookDownloads *BookDownloads::create(QQmlEngine *engine, QJSEngine *script)
{
    return new BookDownloads(OrvelSession::create(engine, script));
}

void BookDownloads::begin(const GutenbergBook &book, const QUuid &record)
{
    dismissError();
    if (m_downloads.contains(book.id))
        return;
    Download download{std::make_unique<QObject>(), record};
    QObject *const owner = download.owner.get();
    m_downloads.emplace(book.id, std::move(download));
    QList<BookDownloadRow> rows = m_rows.rows();
    rows.append({book.id, LineText::shownTitle(book.title)});
    m_rows.setRows(std::move(rows));
    emit changed();
    const auto progress = [this, number = book.id](qint64 received, qint64 total) {
        const QString text = CatalogueRow::progressOf(received, total);
        const BookDownloadRow *const shown = m_rows.find(number);
        if (!shown || shown->progressText == text)
            return;
        m_rows.changeRow(number, [&text](BookDownloadRow &row) { row.progressText = text; });
        emit changed();
    };
    m_client.download(book, owner, progress,
                      [this, book](const std::expected<QString, QString> &text) { finish(book, text); });
}

void BookDownloads::cancel(qint64 number)
{
    end(number);
}

bool BookDownloads::end(qint64 number)
{
    if (m_downloads.erase(number) == 0)
        return false;
    QList<BookDownloadRow> rows = m_rows.rows();
    rows.removeIf([number](const BookDownloadRow &row) { return row.id == number; });
    m_rows.setRows(std::move(rows));
    emit changed();
    return true;
}

void BookDownloads::finish(const GutenbergBook &book, const std::expected<QString, QString> &text)
{
    if (text && !text->isEmpty()) {
        keep(book, *text);
        return;
    }
    end(book.id);
    setError(LineText::shownTitle(book.title), text ? tr("That book didn't return any text.") : text.error());
}

void BookDownloads::keep(const GutenbergBook &book, const QString &text)
{
    Download &download = m_downloads.at(book.id);
    const bool isNew = download.record.isNull();
    const QUuid id = isNew ? store().makeId() : download.record;
    if (isNew)
        download.newRecord = id;
    m_writing.insert(id);
    m_background.start([this, id, isNew, book, text, library = store().bookLibrary()] {
        // A book whose text can't be written says so when it is opened.
        (void)library.write(id, text);
        const auto end = [this, id, isNew, book] { finishKeeping(book, id, isNew); };
        QMetaObject::invokeMethod(this, end, Qt::QueuedConnection);
    });
}

void BookDownloads::finishKeeping(const GutenbergBook &book, const QUuid &id, bool isNew)
{
    m_writing.remove(id);
    // It may have been cancelled, or begun anew, or its record removed, in this last moment.
    const auto download = m_downloads.find(book.id);
    const bool isWanted =
        download != m_downloads.end() && (isNew ? download->second.newRecord : download->second.record) == id;
    if (isWanted && isNew)
        BookOperations::add(store(), book.makeBook(id, store().now()));
    if (!store().list<Book>().contains(id))
        store().bookLibrary().deleteText(id);
    if (!isWanted)
        return;
    end(book.id);
    if (store().list<Book>().contains(id))
        emit bookReady(book.id, id);
}

void BookDownloads::setError(const QString &title, const QString &message)
{
    if (m_errorMessage == message && m_failedTitle == title)
        return;
    m_errorMessage = message;
    m_failedTitle = title;
    emit errorMessageChanged();
}
