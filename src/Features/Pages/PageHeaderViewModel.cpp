#include "Features/Pages/PageHeaderViewModel.h"

#include "Foundation/LineText.h"
#include "Session/PageActions.h"
#include "Store/PageOperations.h"
#include "Support/OVDate.h"
#include "Support/PageText.h"

#include <utility>

PageHeaderViewModel::PageHeaderViewModel(QObject *parent, std::chrono::milliseconds countDelay)
    : ViewModel(parent)
{
    follow<Page>();
    followDays();
    m_countTimer.setSingleShot(true);
    m_countTimer.setInterval(countDelay);
    connect(&m_countTimer, &QTimer::timeout, this, &PageHeaderViewModel::count);
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
    return tr("%1 words").arg(m_words);
}

QString PageHeaderViewModel::readingTimeText() const
{
    return PageText::readingTimeLabel(m_words);
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
    const qsizetype words = PageText::wordCount(*found);
    if (std::exchange(m_words, words) != words)
        emit countsChanged();
}
