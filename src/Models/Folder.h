#pragma once

#include "Foundation/FieldList.h"
#include "Foundation/Timestamp.h"

#include <QString>
#include <QUuid>

/// A named group of pages in the sidebar.
struct Folder {
    QUuid id;
    QString name;
    /// An emoji or short text.
    QString icon;
    double sortOrder = 0;
    Timestamp createdDate;
    Timestamp updatedDate;

    bool operator==(const Folder &) const = default;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &Folder::id},
                          Field{"name", &Folder::name},
                          Field{"icon", &Folder::icon},
                          Field{"sortOrder", &Folder::sortOrder},
                          Field{"createdDate", &Folder::createdDate},
                          Field{"updatedDate", &Folder::updatedDate}};
    }
};
