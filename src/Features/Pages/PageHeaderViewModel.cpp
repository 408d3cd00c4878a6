#include "Features/Pages/PageHeaderViewModel.h"

#include "Foundation/LineText.h"
#include "Store/PageOperations.h"
#include "Support/OVDate.h"
#include "Support/PageText.h"

#include <utility>

PageHeaderViewModel::PageHeaderViewModel(QObject *parent, std::chrono::milliseconds countDelay)
    : QObject(parent)
{
    m_countTimer.setSingleShot(true);
    m_countTimer.setInterval(countDelay);
    connect(&m_countTimer, &QTimer::timeout, this, &PageHeaderViewModel::count);
}

void PageHeaderViewModel::setStore(WorkspaceStore *store)
{
    if (m_store == store)
        return;
    m_store = store;
    connect(store, &WorkspaceStore::changed, this, &PageHeaderViewModel::follow);
    connect(&store->clock(), &Clock::dayChanged, this, &PageHeaderViewModel::showEdited);
    emit storeChanged();
    showAll();
}

void PageHeaderViewModel::setPageID(const QUuid &pageID)
{
    if (m_pageID == pageID)
        return;
    m_pageID = pageID;
    emit pageIDChanged();
    showAll();
}

QString PageHeaderViewModel::setTitle(const QString &title)
{
    qsizetype length = std::min(title.size(), std::max(maxTitleLength, m_face.title.size()));
    const bool isCut = length < title.size();
    if (isCut && title[length].isLowSurrogate())
        --length;
    PageOperations::rename(*m_store, m_pageID, LineText::singleLine(title.first(length)));
    if (isCut)
        emit titleCut(tr("The title was too long and has been cut to %1 characters.").arg(length));
    return m_face.title;
}

void PageHeaderViewModel::setIcon(const QString &icon)
{
    PageOperations::setIcon(*m_store, m_pageID, icon);
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
    PageOperations::toggleFavorite(*m_store, m_pageID);
}

QString PageHeaderViewModel::convertText() const
{
    return isNote() ? QStringLiteral("Convert to page") : QStringLiteral("Convert to note");
}

void PageHeaderViewModel::convert()
{
    PageOperations::convert(*m_store, m_pageID);
}

QString PageHeaderViewModel::wordsText() const
{
    return QStringLiteral("%1 words").arg(m_words);
}

QString PageHeaderViewModel::readingTimeText() const
{
    return PageText::readingTimeLabel(m_words);
}

QString PageHeaderViewModel::backText() const
{
    return isNote() ? QStringLiteral("All notes") : QStringLiteral("Home");
}

void PageHeaderViewModel::goBack()
{
    m_ui->setSelection(Destination::to(isNote() ? Destination::Kind::notes : Destination::Kind::dashboard));
}

void PageHeaderViewModel::deletePage()
{
    goBack();
    PageOperations::remove(*m_store, m_pageID);
}

void PageHeaderViewModel::follow(const ChangeSet &changes)
{
    if (changes.of<Page>().isReloaded)
        return showAll();
    if (!changes.of<Page>().contains(m_pageID) || !page())
        return;
    showFace();
    showEdited();
    m_countTimer.start();
}

void PageHeaderViewModel::showAll()
{
    showFace();
    showEdited();
    count();
}

void PageHeaderViewModel::showFace()
{
    const Page *const found = page();
    if (!found)
        return;
    const Face before = std::exchange(m_face, {found->title, found->icon, found->kind, found->isFavorite});
    if (before.title != m_face.title)
        emit titleChanged();
    if (before.icon != m_face.icon)
        emit iconChanged();
    if (before.kind != m_face.kind)
        emit kindChanged();
    if (before.isFavorite != m_face.isFavorite)
        emit isFavoriteChanged();
}

void PageHeaderViewModel::showEdited()
{
    const Page *const found = page();
    if (!found)
        return;
    const Clock &clock = m_store->clock();
    const QString text =
        QStringLiteral("Edited ") + OVDate::relative(found->updatedDate, clock.now(), clock.timeZone());
    if (std::exchange(m_editedText, text) != text)
        emit editedTextChanged();
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
