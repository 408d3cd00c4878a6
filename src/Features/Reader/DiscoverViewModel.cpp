#include "Features/Reader/DiscoverViewModel.h"

#include "Store/BookOperations.h"

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

DiscoverViewModel::DiscoverViewModel(QObject *parent) : ViewModel(parent)
{
    follow<Book>();
    m_searchTimer.setSingleShot(true);
    m_searchTimer.setInterval(350ms);
    connect(&m_searchTimer, &QTimer::timeout, this, &DiscoverViewModel::searchNow);
    m_background.setMaxThreadCount(1);
}

DiscoverViewModel::~DiscoverViewModel() = default;

void DiscoverViewModel::setCatalogue(const QUrl &catalogue)
{
    if (catalogue.isEmpty() || m_options.catalogue == catalogue)
        return;
    Q_ASSERT_X(!m_client, "DiscoverViewModel", "a search has one catalogue");
    m_options.catalogue = catalogue;
    emit catalogueChanged();
}

void DiscoverViewModel::start()
{
    m_client = std::make_unique<GutenbergClient>(m_options);
    connect(m_client.get(), &GutenbergClient::phaseChanged, this, &DiscoverViewModel::showPhase);
    connect(m_client.get(), &GutenbergClient::resultsChanged, this, &DiscoverViewModel::showPhase);
}

void DiscoverViewModel::refresh(const ChangeSet &)
{
    showResults();
}

void DiscoverViewModel::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    m_query = query;
    emit queryChanged();
    if (m_query.trimmed().isEmpty())
        searchNow();
    else
        m_searchTimer.start();
}

void DiscoverViewModel::searchNow()
{
    m_searchTimer.stop();
    m_client->search(m_query);
    showPhase();
}

QString DiscoverViewModel::failure() const
{
    return m_phase == Phase::failed ? m_client->failure() : QString();
}

void DiscoverViewModel::showPhase()
{
    const auto phase = [this] {
        // The answer to an earlier query may come after the field was emptied.
        if (m_query.trimmed().isEmpty())
            return Phase::idle;
        switch (m_client->phase()) {
        case GutenbergClient::Phase::loading:
            return Phase::loading;
        case GutenbergClient::Phase::loaded:
            return m_client->results().isEmpty() ? Phase::nothingFound : Phase::found;
        case GutenbergClient::Phase::failed:
            return Phase::failed;
        case GutenbergClient::Phase::idle:
            break;
        }
        return Phase::idle;
    }();
    const bool isNew = std::exchange(m_phase, phase) != phase;
    showResults();
    if (isNew)
        emit phaseChanged();
}

void DiscoverViewModel::showResults()
{
    QList<CatalogueRow> rows;
    if (m_phase == Phase::found) {
        QSet<qint64> known;
        for (const Book &book : store().list<Book>())
            known.insert(book.gutenbergID);
        for (const GutenbergBook &book : m_client->results()) {
            CatalogueRow row = CatalogueRow::of(book);
            row.isInLibrary = known.contains(book.id);
            if (const auto download = m_downloads.find(book.id); download != m_downloads.end()) {
                row.isDownloading = true;
                row.progressText = download->second.progressText;
            }
            rows.append(row);
        }
    }
    m_results.setRows(std::move(rows));
}

void DiscoverViewModel::read(qint64 number)
{
    const auto &books = store().list<Book>();
    const auto known = std::ranges::find(books, number, &Book::gutenbergID);
    if (known != books.end()) {
        emit bookReady(known->id);
        return;
    }
    const auto found = std::ranges::find(m_client->results(), number, &GutenbergBook::id);
    if (found != m_client->results().end() && found->plainTextURL())
        begin(*found);
}

void DiscoverViewModel::fetchAgain(const QUuid &bookID)
{
    const Book *book = store().list<Book>().first(bookID);
    if (!book)
        return;
    GutenbergBook wanted;
    wanted.id = book->gutenbergID;
    wanted.formats.insert(QStringLiteral("text/plain"), book->downloadURL);
    begin(wanted, bookID);
}

void DiscoverViewModel::begin(const GutenbergBook &book, const QUuid &record)
{
    setErrorMessage({});
    if (m_downloads.contains(book.id))
        return;
    Download download{std::make_unique<QObject>(), record, {}};
    QObject *const owner = download.owner.get();
    m_downloads.emplace(book.id, std::move(download));
    showResults();
    const auto progress = [this, number = book.id](qint64 received, qint64 total) {
        QString text = CatalogueRow::progressOf(received, total);
        m_results.changeRow(number, [&text](CatalogueRow &row) { row.progressText = text; });
        m_downloads.at(number).progressText = std::move(text);
    };
    m_client->download(book, owner, progress,
                       [this, book](const std::expected<QString, QString> &text) { finish(book, text); });
}

void DiscoverViewModel::cancel(qint64 number)
{
    m_downloads.erase(number);
    showResults();
}

void DiscoverViewModel::finish(const GutenbergBook &book, const std::expected<QString, QString> &text)
{
    if (text && !text->isEmpty()) {
        keep(book, *text);
        return;
    }
    setErrorMessage(text ? tr("That book didn't return any text.") : text.error());
    m_downloads.erase(book.id);
    showResults();
}

void DiscoverViewModel::keep(const GutenbergBook &book, const QString &text)
{
    const QUuid record = m_downloads.at(book.id).record;
    const QUuid id = record.isNull() ? store().makeId() : record;
    m_background.start([this, id, isNew = record.isNull(), book, text, library = store().bookLibrary()] {
        // A book whose text can't be written says so when it is opened.
        (void)library.write(id, text);
        const auto end = [this, id, isNew, book] { finishKeeping(book, id, isNew); };
        QMetaObject::invokeMethod(this, end, Qt::QueuedConnection);
    });
}

void DiscoverViewModel::finishKeeping(const GutenbergBook &book, const QUuid &id, bool isNew)
{
    // It may have been cancelled, or the record removed, in this last moment.
    const bool isWanted = m_downloads.erase(book.id) > 0;
    if (isWanted && isNew)
        BookOperations::add(store(), book.makeBook(id, store().now()));
    const bool isKept = store().list<Book>().contains(id);
    if (!isKept)
        store().bookLibrary().deleteText(id);
    showResults();
    if (isWanted && isKept)
        emit bookReady(id);
}

void DiscoverViewModel::setErrorMessage(const QString &message)
{
    if (m_errorMessage == message)
        return;
    m_errorMessage = message;
    emit errorMessageChanged();
}
