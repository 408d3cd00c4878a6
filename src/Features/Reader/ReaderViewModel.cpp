#include "Features/Reader/ReaderViewModel.h"

#include "Store/BookOperations.h"

#include <algorithm>
#include <utility>

ReaderViewModel::ReaderViewModel(QObject *parent) : ViewModel(parent)
{
    follow<Book>();
    followSettings();
}

void ReaderViewModel::setMode(const QString &mode)
{
    const auto value = enumFromRaw<ReaderMode>(mode);
    if (!value || *value == m_mode)
        return;
    m_mode = *value;
    emit modeChanged();
}

void ReaderViewModel::open(const QUuid &bookID)
{
    setMode(enumRawText(ReaderMode::library));
    if (store().list<Book>().first(bookID))
        select(bookID);
}

void ReaderViewModel::closeBook()
{
    select({});
}

void ReaderViewModel::remove(const QUuid &bookID)
{
    BookOperations::remove(store(), bookID);
}

void ReaderViewModel::adjustScale(int steps)
{
    store().changeSettings([steps](AppSettings &settings) {
        const double scale = settings.readerFontScale + steps * scaleStep;
        settings.readerFontScale = std::clamp(scale, smallestScale, largestScale);
    });
}

void ReaderViewModel::toggleSerif()
{
    store().changeSettings([](AppSettings &settings) { settings.readerSerif = !settings.readerSerif; });
}

void ReaderViewModel::toggleInk()
{
    store().changeSettings([](AppSettings &settings) { settings.inkMode = !settings.inkMode; });
}

void ReaderViewModel::refresh(const ChangeSet &)
{
    const AppSettings &settings = store().settings();
    const Settings shown{std::clamp(settings.readerFontScale, smallestScale, largestScale),
                         settings.readerSerif, settings.inkMode};
    if (std::exchange(m_settings, shown) != shown)
        emit settingsChanged();

    const auto &books = store().list<Book>();
    const bool wasEmpty = isEmpty();
    QList<BookRow> rows;
    for (const Book &book : books)
        rows.append(BookRow::of(book));
    m_books.setRows(std::move(rows));
    if (isEmpty() != wasEmpty)
        emit isEmptyChanged();

    if (!std::exchange(m_isOpened, true) && !books.isEmpty())
        select(books.at(0).id);
    else if (hasSelection() && !books.first(m_selectedBookID))
        select({});
    findSelectedRow();
}

bool ReaderViewModel::reveal(const UndoPlace &place)
{
    if (!m_books.find(place.record))
        return false;
    open(place.record);
    return true;
}

void ReaderViewModel::select(const QUuid &bookID)
{
    if (m_selectedBookID == bookID)
        return;
    m_selectedBookID = bookID;
    emit selectionChanged();
    findSelectedRow();
}

void ReaderViewModel::findSelectedRow()
{
    const auto found = std::ranges::find(m_books.rows(), m_selectedBookID, &BookRow::id);
    const int row = found == m_books.rows().end() ? -1 : int(found - m_books.rows().begin());
    if (std::exchange(m_selectedRow, row) != row)
        emit selectedRowChanged();
}
