#include "Features/Relax/VideoPanelViewModel.h"

#include "Features/Relax/RelaxTexts.h"
#include "Features/Relax/RelaxVideoResolver.h"

#include <algorithm>
#include <utility>

VideoPanelViewModel::VideoPanelViewModel(QObject *parent) : ViewModel(parent)
{
    followSettings();
}

void VideoPanelViewModel::setVideoURL(const QString &url)
{
    if (m_videoURL == url)
        return;
    m_videoURL = url;
    emit videoURLChanged();
}

void VideoPanelViewModel::setLinkName(const QString &name)
{
    if (m_linkName == name)
        return;
    m_linkName = name;
    emit linkNameChanged();
}

void VideoPanelViewModel::setUseVideo(bool useVideo)
{
    if (std::exchange(m_usesVideo, useVideo) == useVideo)
        return;
    emit useVideoChanged();
    showLinks();
}

void VideoPanelViewModel::playPastedLink()
{
    const int probe = ++m_probes;
    const auto url = RelaxVideoResolver::normalizedURL(m_videoURL);
    if (!url) {
        setSource({}, tr("That doesn't look like a link. Try a full address, such as youtu.be/..."));
        emit videoWanted(false);
        return;
    }
    const RelaxVideoSource source = RelaxVideoResolver::resolve(*url);
    setSource(source, RelaxTexts::notice(source));
    emit videoWanted(true);
    store().changeSettings([this](AppSettings &settings) { settings.relaxLastURL = m_videoURL.trimmed(); });
    RelaxVideoResolver::refine(source, this,
                               [this, probe, source](const std::optional<RelaxVideoSource> &better) {
                                   // Another link may play by now.
                                   if (better && *better != source && probe == m_probes)
                                       setSource(better, RelaxTexts::notice(*better));
                               });
}

void VideoPanelViewModel::playLink(const QUuid &linkID)
{
    const RelaxLinkRow *link = m_links.find(linkID);
    if (!link)
        return;
    setVideoURL(link->url);
    playPastedLink();
}

void VideoPanelViewModel::saveCurrentLink()
{
    const QString address = m_videoURL.trimmed();
    if (address.isEmpty())
        return;
    const QString name = m_linkName.trimmed();
    const RelaxLink link{store().makeId(), name.isEmpty() ? RelaxTexts::defaultLinkName(address) : name,
                         address};
    store().changeSettings([&link](AppSettings &settings) {
        settings.relaxLinks.removeIf([&link](const RelaxLink &saved) { return saved.url == link.url; });
        settings.relaxLinks.append(link);
    });
    setLinkName({});
}

void VideoPanelViewModel::deleteLink(const QUuid &linkID)
{
    store().changeSettings([&linkID](AppSettings &settings) {
        settings.relaxLinks.removeIf([&linkID](const RelaxLink &saved) { return saved.id == linkID; });
    });
}

void VideoPanelViewModel::refresh(const ChangeSet &)
{
    showLinks();
}

void VideoPanelViewModel::setSource(const std::optional<RelaxVideoSource> &source, const QString &notice)
{
    if (m_source == source && m_notice == notice)
        return;
    m_source = source;
    m_notice = notice;
    emit sourceChanged();
    showLinks();
}

bool VideoPanelViewModel::isActiveLink(const RelaxLink &link) const
{
    if (!m_usesVideo || !m_source)
        return false;
    const auto url = RelaxVideoResolver::normalizedURL(link.url);
    return url && RelaxVideoResolver::resolve(*url).url == m_source->url;
}

void VideoPanelViewModel::showLinks()
{
    if (!session())
        return;
    const bool hadLinks = hasLinks();
    QList<RelaxLinkRow> rows;
    for (const RelaxLink &link : store().settings().relaxLinks)
        rows.append({link.id, link.name, link.url, isActiveLink(link)});
    m_links.setRows(std::move(rows));
    if (hasLinks() != hadLinks)
        emit linksChanged();
}
