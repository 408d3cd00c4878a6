#pragma once

#include <QString>
#include <QUrl>

/// What a pasted link plays as.
struct RelaxVideoSource {
    enum class Kind {
        /// A file or stream for the media player.
        media,
        /// A page for a web player.
        embed,
    };

    Kind kind = Kind::embed;
    QUrl url;

    bool operator==(const RelaxVideoSource &) const = default;

    static RelaxVideoSource media(const QUrl &url) { return {Kind::media, url}; }
    static RelaxVideoSource embed(const QUrl &url) { return {Kind::embed, url}; }

    /// What the screen calls it: the service, if it is a known one.
    QString label() const;
};
