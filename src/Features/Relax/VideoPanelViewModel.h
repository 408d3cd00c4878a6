#pragma once

#include "Features/Relax/RelaxLinkRow.h"
#include "Features/Relax/RelaxVideoSource.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

#include <optional>

/// The video behind the scenes: the pasted link, what it plays, and the saved links.
class VideoPanelViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString videoURL READ videoURL WRITE setVideoURL NOTIFY videoURLChanged FINAL)
    Q_PROPERTY(QString linkName READ linkName WRITE setLinkName NOTIFY linkNameChanged FINAL)
    /// A line below the field; empty for none.
    Q_PROPERTY(QString notice READ notice NOTIFY sourceChanged FINAL)
    Q_PROPERTY(bool hasSource READ hasSource NOTIFY sourceChanged FINAL)
    /// Whether the source is a file for the media player, and not a page for a web player.
    Q_PROPERTY(bool isMedia READ isMedia NOTIFY sourceChanged FINAL)
    Q_PROPERTY(QUrl sourceURL READ sourceURL NOTIFY sourceChanged FINAL)
    /// Such as "Video file"; empty without a source.
    Q_PROPERTY(QString sourceLabel READ sourceLabel NOTIFY sourceChanged FINAL)
    /// Whether the stage shows the video.
    Q_PROPERTY(bool useVideo MEMBER m_usesVideo WRITE setUseVideo NOTIFY useVideoChanged FINAL)
    /// `RelaxLinkRow`s.
    Q_PROPERTY(QAbstractItemModel *links READ links CONSTANT FINAL)
    Q_PROPERTY(bool hasLinks READ hasLinks NOTIFY linksChanged FINAL)

public:
    explicit VideoPanelViewModel(QObject *parent = nullptr);

    const QString &videoURL() const { return m_videoURL; }
    void setVideoURL(const QString &url);
    const QString &linkName() const { return m_linkName; }
    void setLinkName(const QString &name);
    const QString &notice() const { return m_notice; }
    bool hasSource() const { return m_source.has_value(); }
    bool isMedia() const { return m_source && m_source->kind == RelaxVideoSource::Kind::media; }
    QUrl sourceURL() const { return m_source ? m_source->url : QUrl(); }
    QString sourceLabel() const { return m_source ? m_source->label() : QString(); }
    void setUseVideo(bool useVideo);
    QAbstractItemModel *links() { return &m_links; }
    const QList<RelaxLinkRow> &linkList() const { return m_links.rows(); }
    bool hasLinks() const { return !m_links.rows().isEmpty(); }

    /// Plays what the field holds, or tells that it is no link.
    Q_INVOKABLE void playPastedLink();
    /// Plays a saved link.
    Q_INVOKABLE void playLink(const QUuid &linkID);
    /// Saves the link of the field under the name, at the end and in the place of an earlier one.
    Q_INVOKABLE void saveCurrentLink();
    Q_INVOKABLE void deleteLink(const QUuid &linkID);

signals:
    void videoURLChanged();
    void linkNameChanged();
    void sourceChanged();
    void useVideoChanged();
    void linksChanged();
    /// The stage is to show the video, or not any more.
    void videoWanted(bool wanted);

protected:
    void refresh(const ChangeSet &changes) override;

private:
    void setSource(const std::optional<RelaxVideoSource> &source, const QString &notice);
    bool isActiveLink(const RelaxLink &link) const;
    void showLinks();

    QString m_videoURL;
    QString m_linkName;
    QString m_notice;
    std::optional<RelaxVideoSource> m_source;
    bool m_usesVideo = false;
    KeyedListModel<RelaxLinkRow> m_links;
    int m_probes = 0;
};
