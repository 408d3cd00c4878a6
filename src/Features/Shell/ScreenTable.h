#pragma once

#include "Support/Destination.h"

#include <QUrl>

/// Which QML file shows which place. A screen joins the window by one line here and by its module in the
/// build file beside it.
namespace ScreenTable
{
struct Screen {
    Destination::Kind kind;
    /// Below the import path of QML.
    std::string_view file;
    /// The property of the screen that takes the id of the record; empty where there is none.
    std::string_view recordProperty;
};

inline constexpr auto screens = std::to_array<Screen>({
    {Destination::Kind::page, "Orvel/Pages/PageEditorView.qml", "pageID"},
    {Destination::Kind::notes, "Orvel/Notes/NotesView.qml", {}},
    {Destination::Kind::code, "Orvel/Code/CodeView.qml", {}},
    {Destination::Kind::codeDocument, "Orvel/Code/CodeView.qml", {}},
    {Destination::Kind::tasks, "Orvel/Tasks/TasksView.qml", {}},
});

/// The screen of this kind; null where none is made yet.
constexpr const Screen *find(Destination::Kind kind)
{
    for (const Screen &screen : screens)
        if (screen.kind == kind)
            return &screen;
    return nullptr;
}

inline QUrl url(std::string_view file)
{
    return QUrl(QStringLiteral("qrc:/qt/qml/") + QLatin1String(file.data(), qsizetype(file.size())));
}
} // namespace ScreenTable
