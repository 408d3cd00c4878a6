#include "Features/Pages/PageHeaderViewModel.h"

#include "Foundation/LineText.h"
#include "Session/PageActions.h"
#include "Store/PageOperations.h"
#include "Support/OVDate.h"

#include <QLocale>

#include <utility>

PageHeaderViewModel::PageHeaderViewModel(QObject *parent, std::chrono::milliseconds countDelay)
    : ViewModel(parent)
{
    follow<Page>();
    followDays();
    m_countTimer.setSingleShot(true);
    m_countTimer.setInterval(countDelay);
    connect(&m_countTimer, &QTimer::timeout, this, &PageHeaderViewModel::count);
    m_selectionTimer.setSingleShot(true);
    m_selectionTimer.setInterval(countDelay);
    connect(&m_selectionTimer, &QTimer::timeout, this, &PageHeaderViewModel::countSelected);
}

void PageHeaderViewModel::setPageID(const QUuid &pageID)
{
    if (m_pageID == pageID)
        return;
    m_pageID = pageID;
    emit pageIDChanged();
    requestWholeRefresh();
    flush();
}

QString PageHeaderViewModel::setTitle(const QString &title)
{
    const Page *const before = page();
    const qsizetype longest = std::max(maxTitleLength, before ? before->title.size() : 0);
    qsizetype length = std::min(title.size(), longest);
    const bool isCut = length < title.size();
    if (isCut && title[length].isLowSurrogate())
        --length;
    PageOperations::rename(store(), m_pageID, LineText::singleLine(title.first(length)));
    flush();
    if (isCut)
        emit titleCut(tr("The title was too long and has been cut to %1 characters.").arg(length));
    return m_face.title;
}

void PageHeaderViewModel::setIcon(const QString &icon)
{
    PageOperations::setIcon(store(), m_pageID, icon);
}

QList<QString> PageHeaderViewModel::icons() const
{
    return {QStringLiteral("📄"), QStringLiteral("📝"), QStringLiteral("📌"), QStringLiteral("📎"),
            QStringLiteral("🧭"), QStringLiteral("💡"), QStringLiteral("🔖"), QStringLiteral("📊"),
            QStringLiteral("🧪"), QStringLiteral("🎨"), QStringLiteral("🗺️"), QStringLiteral("⛰️"),
            QStringLiteral("🍀"), QStringLiteral("🧱"), QStringLiteral("🛠️"),  QStringLiteral("🌸")};
}

void PageHeaderViewModel::toggleFavorite()
{
    PageOperations::toggleFavorite(store(), m_pageID);
}

QString PageHeaderViewModel::convertText() const
{
    return isNote() ? tr("Convert to page") : tr("Convert to note");
}

void PageHeaderViewModel::convert()
{
    PageOperations::convert(store(), m_pageID);
}

QString PageHeaderViewModel::wordsText() const
{
    return tr("%1 words").arg(m_counts.words);
}

QString PageHeaderViewModel::readingTimeText() const
{
    return PageText::readingTimeLabel(m_counts.words);
}

QString PageHeaderViewModel::backText() const
{
    return isNote() ? tr("All notes") : tr("Home");
}

Destination::Kind PageHeaderViewModel::backPlace() const
{
    return isNote() ? Destination::Kind::notes : Destination::Kind::dashboard;
}

void PageHeaderViewModel::goBack()
{
    ui().setSelection(Destination::to(backPlace()));
}

void PageHeaderViewModel::deletePage()
{
    PageActions::erase(store(), ui(), m_pageID, backPlace());
}

void PageHeaderViewModel::refresh(const ChangeSet &changes)
{
    const Page *const found = page();
    if (!found || !changes.of<Page>().contains(m_pageID))
        return;
    showFace(*found);
    const QString edited =
        tr("Edited %1").arg(OVDate::relative(found->updatedDate, clock().now(), clock().timeZone()));
    if (std::exchange(m_editedText, edited) != edited)
        emit editedTextChanged();
    if (changes.of<Page>().isReloaded)
        count();
    else
        m_countTimer.start();
}

bool PageHeaderViewModel::reveal(const UndoPlace &place)
{
    if (place.textRecord != m_pageID || !page())
        return false;
    emit titleRestored(place.caret);
    return true;
}

void PageHeaderViewModel::showFace(const Page &page)
{
    const Face before = std::exchange(m_face, {page.title, page.icon, page.kind, page.isFavorite});
    if (before.title != m_face.title)
        emit titleChanged();
    if (before.icon != m_face.icon)
        emit iconChanged();
    if (before.kind != m_face.kind)
        emit kindChanged();
    if (before.isFavorite != m_face.isFavorite)
        emit isFavoriteChanged();
}

void PageHeaderViewModel::count()
{
    const Page *const found = page();
    if (!found)
        return;
    const PageText::Counts counts = PageText::countsOf(found->content);
    if (std::exchange(m_counts, counts) != counts)
        emit countsChanged();
}

QString PageHeaderViewModel::described(const PageText::Counts &counts)
{
    const QLocale english(QLocale::English);
    return tr("%1 words, %2 characters")
        .arg(english.toString(counts.words), english.toString(counts.characters));
}

QString PageHeaderViewModel::selectedWordsText() const
{
    if (m_selectedCounts.characters == 0)
        return {};
    return m_selectedCounts.words == 1 ? tr("1 word selected")
                                       : tr("%1 words selected").arg(m_selectedCounts.words);
}

void PageHeaderViewModel::setSelection(PageSelection *selection)
{
    if (m_selection == selection)
        return;
    if (m_selection)
        m_selection->disconnect(this);
    m_selection = selection;
    if (m_selection)
        connect(m_selection, &PageSelection::changed, &m_selectionTimer, qOverload<>(&QTimer::start));
    emit selectionChanged();
}

void PageHeaderViewModel::setSelectedText(const QString &text)
{
    if (m_selectedText == text)
        return;
    m_selectedText = text;
    m_selectionTimer.start();
    emit selectedTextChanged();
}

void PageHeaderViewModel::countSelected()
{
    const bool hasBlocks = m_selection && m_selection->isActive();
    const PageText::Counts counts =
        hasBlocks ? PageText::countsOf(m_selection->blocks()) : PageText::countsOf(m_selectedText);
    if (std::exchange(m_selectedCounts, counts) != counts)
        emit selectedCountsChanged();
}
