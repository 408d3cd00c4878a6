#pragma once

#include "Foundation/FieldList.h"
#include "Support/Updates/AvailableUpdate.h"

#include <QByteArray>

#include <optional>

/// The manifest of the update site: what it publishes, and where.
struct VersionFile {
    /// The package of one platform.
    struct Asset {
        std::optional<QString> download;
        std::optional<QString> sha256;

        static constexpr auto fields()
        {
            return std::tuple{Field{"download", &Asset::download}, Field{"sha256", &Asset::sha256}};
        }
    };

    /// Dotted numbers, such as "1.4.2".
    QString version;
    std::optional<QString> build;
    std::optional<QString> notes;
    std::optional<QString> page;
    std::optional<QString> sha256;
    std::optional<QString> download;
    std::optional<Asset> linuxAsset;
    std::optional<Asset> macAsset;
    /// Never offered here.
    std::optional<Asset> iosAsset;

    static constexpr auto fields()
    {
        return std::tuple{
            Field{"version", &VersionFile::version},  Field{"build", &VersionFile::build},
            Field{"notes", &VersionFile::notes},      Field{"page", &VersionFile::page},
            Field{"sha256", &VersionFile::sha256},    Field{"download", &VersionFile::download},
            Field{"linux", &VersionFile::linuxAsset}, Field{"mac", &VersionFile::macAsset},
            Field{"ios", &VersionFile::iosAsset},
        };
    }

    /// Nothing for what is no manifest. Unknown keys are passed over.
    static std::optional<VersionFile> read(const QByteArray &json);

    /// "0" if none is told.
    QString buildOrZero() const { return build.value_or(QStringLiteral("0")); }
    /// Relative addresses are meant from the site. The package of this platform goes before the others and
    /// brings its own checksum.
    AvailableUpdate offer(const QUrl &site) const;
};
