#include "Features/Pages/PageFinder.h"

#include "Features/Pages/PageBlocks.h"
#include "Foundation/TextSearch.h"

#include <algorithm>

PageFinder::PageFinder(QObject *parent) : TextFinder(parent), m_refresh([this] { searchAgain(false); }) {}

void PageFinder::setSession(OrvelSession *session)
{
    if (m_session == session)
        return;
    m_session = session;
    connect(session->store(), &WorkspaceStore::changed, this, &PageFinder::followStore);
    connect(session->ui(), &UIState::textSought, this, &PageFinder::showSoughtText);
    emit sessionChanged();
}

void PageFinder::setPageID(const QUuid &pageID)
{
    if (m_pageID == pageID)
        return;
    m_pageID = pageID;
    emit pageIDChanged();
}

void PageFinder::startAt(const QUuid &blockID, int position)
{
    const QList<Block> *const present = blocks();
    m_from = {present ? int(PageBlocks::indexOf(*present, blockID)) : 0, position};
    // The last match is where the user was before.
    if (!isOpen())
        m_matches.clear();
}

TextMarkList PageFinder::marksIn(const QUuid &blockID, int partBegin) const
{
    TextMarkList list;
    if (!isOpen() || m_matches.isEmpty())
        return list;
    const int row = int(PageBlocks::indexOf(m_blocks, blockID));
    for (auto match = std::ranges::lower_bound(m_matches, Place{row, partBegin});
         match != m_matches.end() && match->row == row; ++match)
        list.marks.append(
            {match->start - partBegin, int(m_wanted.size()), int(match - m_matches.begin()) == current()});
    return list;
}

void PageFinder::showSoughtText()
{
    if (!m_session || m_session->ui()->selection() != Destination::page(m_pageID))
        return;
    const QString text = m_session->ui()->takeSoughtText();
    if (text.trimmed().isEmpty())
        return;
    // The blocks may have changed since they were last searched, and the query may be the same.
    m_from = {};
    m_matches.clear();
    setQuery({});
    setQuery(text);
    choose();
}

bool PageFinder::choose()
{
    if (current() >= 0)
        tell(current(), true);
    return current() >= 0;
}

TextFinder::Found PageFinder::search(const QString &query)
{
    if (current() >= 0 && current() < m_matches.size())
        m_from = m_matches[current()];
    readBlocks();
    m_wanted = TextSearch::fold(query);
    m_matches.clear();
    for (qsizetype row = 0; row < m_folded.size(); ++row)
        for (const int start : TextSearch::find(m_folded[row], m_wanted))
            m_matches.append({int(row), start});
    if (m_matches.isEmpty())
        return {};
    const auto next = std::ranges::lower_bound(m_matches, m_from);
    return {int(m_matches.size()), next == m_matches.end() ? 0 : int(next - m_matches.begin())};
}

void PageFinder::clearMatches()
{
    m_matches.clear();
}

void PageFinder::replaceMatches(int first, int last, const QString &by)
{
    const QList<Place> replaced = m_matches.sliced(first, last - first);
    const Place end = replaced.last();
    WorkspaceStore &store = *m_session->store();
    {
        const bool isAll = last - first > 1;
        const Action action(store, isAll ? tr("Replace All") : tr("Replace"));
        if (isAll)
            action.setMessage(tr("%Ln replaced", nullptr, last - first));
        store.change<Page>(m_pageID, [&](Page &page) {
            // From the end, so that the places before stay what they are.
            for (auto place = replaced.rbegin(); place != replaced.rend(); ++place)
                if (stands(page.content, *place))
                    page.content[place->row].text.replace(place->start, m_wanted.size(), by);
            page.updatedDate = store.now();
        });
    }
    m_matches.clear();
    m_from = {end.row, end.start + int(by.size())};
    m_refresh.flush();
    searchAgain(true);
}

bool PageFinder::stands(const QList<Block> &blocks, Place place) const
{
    return place.row < blocks.size() &&
           TextSearch::fold(QStringView(blocks[place.row].text).mid(place.start, m_wanted.size())) ==
               m_wanted;
}

const QList<Block> *PageFinder::blocks() const
{
    const Page *const page = m_session ? m_session->store()->pages().first(m_pageID) : nullptr;
    return page ? &page->content : nullptr;
}

void PageFinder::readBlocks()
{
    const QList<Block> *const present = blocks();
    if (!present)
        return;
    m_folded.resize(present->size());
    for (qsizetype row = 0; row < present->size(); ++row) {
        const Block &next = present->at(row);
        const bool isKnown =
            row < m_blocks.size() && m_blocks[row].type == next.type && m_blocks[row].text == next.text;
        if (!isKnown)
            m_folded[row] = next.type == BlockType::divider ? QString() : TextSearch::fold(next.text);
    }
    m_blocks = *present;
}

void PageFinder::followStore(const ChangeSet &changes)
{
    if (isOpen() && changes.of<Page>().contains(m_pageID))
        m_refresh.request();
}

void PageFinder::tell(int match, bool selects)
{
    const Place place = m_matches[match];
    emit shown(place.row, m_blocks[place.row].id, place.start, int(m_wanted.size()), selects);
}
