#include "Features/Reader/BookViewModel.h"

#include "Features/Reader/BookRow.h"
#include "Store/BookOperations.h"

#include <utility>

using namespace std::chrono_literals;

BookViewModel::BookViewModel(QObject *parent) : ViewModel(parent)
{
    follow<Book>();
    m_placeTimer.setSingleShot(true);
    m_placeTimer.setInterval(300ms);
    connect(&m_placeTimer, &QTimer::timeout, this, &BookViewModel::keepPlace);
    m_background.setMaxThreadCount(1);
    connect(this, &ViewModel::activeChanged, this, &BookViewModel::keepPlace);
}

BookViewModel::~BookViewModel()
{
    keepPlace();
}

void BookViewModel::setBookID(const QUuid &id)
{
    if (m_bookID == id)
        return;
    keepPlace();
    m_bookID = id;
    emit bookIDChanged();
    if (session())
        reload();
}

void BookViewModel::reload()
{
    showRecord();
    const int load = ++m_loads;
    if (!store().list<Book>().first(m_bookID)) {
        m_isLoading = false;
        show(nullptr);
        return;
    }
    m_isLoading = true;
    show(nullptr);
    m_background.start([this, load, id = m_bookID, library = store().bookLibrary()] {
        auto contents = std::make_shared<const BookContents>(BookContents::makeParagraphs(library.text(id)));
        QMetaObject::invokeMethod(
            this,
            [this, load, contents = std::move(contents)] {
                if (load != m_loads)
                    return;
                m_isLoading = false;
                show(contents);
            },
            Qt::QueuedConnection);
    });
}

void BookViewModel::show(SharedBookContents contents)
{
    m_contents = std::move(contents);
    const Book *book = store().list<Book>().first(m_bookID);
    m_topRow = m_contents && book ? std::max(0, m_contents->rowOfParagraph(book->lastLocation)) : 0;
    m_selection.setContents(m_contents);
    m_finder.setContents(m_contents);
    m_finder.setTopRow(m_topRow);
    m_rows.setContents(m_contents);
    emit topRowChanged();
    emit loaded();
}

void BookViewModel::refresh(const ChangeSet &)
{
    showRecord();
}

void BookViewModel::showRecord()
{
    const Book *book = store().list<Book>().first(m_bookID);
    const BookRow row = book ? BookRow::of(*book) : BookRow();
    if (m_title == row.title && m_author == row.author)
        return;
    m_title = row.title;
    m_author = row.author;
    emit bookChanged();
}

void BookViewModel::setTopRow(int row)
{
    if (!m_contents || row < 0 || row >= m_contents->rowCount() || m_topRow == row)
        return;
    m_topRow = row;
    m_finder.setTopRow(row);
    m_hasMoved = true;
    m_placeTimer.start();
    emit topRowChanged();
}

void BookViewModel::keepPlace()
{
    // A book that was only opened keeps the place that it had, even if its text has become shorter.
    m_placeTimer.stop();
    if (std::exchange(m_hasMoved, false) && m_contents)
        BookOperations::keepPlace(store(), m_bookID, m_contents->rows()[m_topRow].paragraph);
}

double BookViewModel::progress() const
{
    return m_contents ? m_contents->progressAt(m_topRow) : 0;
}

QString BookViewModel::timeLeftText() const
{
    static constexpr int minutesOfHour = 60;
    const int minutes = m_contents ? m_contents->minutesLeft(m_topRow) : 0;
    if (minutes < 2 * minutesOfHour)
        return tr("about %1 min left in the book").arg(minutes);
    return tr("about %1 h left in the book").arg((minutes + minutesOfHour / 2) / minutesOfHour);
}
