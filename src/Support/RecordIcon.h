#pragma once

#include "Models/Folder.h"
#include "Models/Page.h"

/// How a page or folder is marked in lists: with a line icon as long as it has the icon it was made with,
/// else with the emoji that the user chose.
struct RecordIcon {
    QString symbol;
    QString emoji;

    static RecordIcon of(const Page &page)
    {
        if (page.kind == PageKind::note)
            return make(page.icon, u"📝", QStringLiteral("note.text"));
        return make(page.icon, u"📄", QStringLiteral("doc.text"));
    }
    static RecordIcon of(const Folder &folder) { return make(folder.icon, u"📁", QStringLiteral("folder")); }

private:
    static RecordIcon make(const QString &icon, QStringView ordinaryIcon, const QString &symbol)
    {
        const bool isOrdinary = icon.isEmpty() || icon == ordinaryIcon;
        return isOrdinary ? RecordIcon{symbol, {}} : RecordIcon{{}, icon};
    }
};
