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
}

void DiscoverViewModel::setCatalogue(const QUrl &catalogue)
{
    if (catalogue.isEmpty() || m_options.catalogue == catalogue)
        return;
    Q_ASSERT_X(!m_client, "DiscoverViewModel", "a search has one catalogue");
    m_options.catalogue = catalogue;
    emit catalogueChanged();
}

void DiscoverViewModel::setDownloads(BookDownloads *downloads)
{
    if (m_downloads == downloads)
        return;
    Q_ASSERT_X(!m_downloads, "DiscoverViewModel", "the downloads are set once");
    m_downloads = downloads;
    connect(m_downloads, &BookDownloads::changed, this, &DiscoverViewModel::showResults);
    connect(m_downloads, &BookDownloads::bookReady, this, &DiscoverViewModel::finish);
    emit downloadsChanged();
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
            if (const BookDownloadRow *download = m_downloads->find(book.id)) {
                row.isDownloading = true;
                row.progressText = download->progressText;
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
    wanted.title = book->title;
    wanted.formats.insert(QStringLiteral("text/plain"), book->downloadURL);
    begin(wanted, bookID);
}

void DiscoverViewModel::begin(const GutenbergBook &book, const QUuid &record)
{
    m_awaited.insert(book.id);
    m_downloads->begin(book, record);
}

void DiscoverViewModel::finish(qint64 number, const QUuid &bookID)
{
    if (m_awaited.remove(number))
        emit bookReady(bookID);
}
