#pragma once

#include "Session/SessionTypes.h"

#include <QtQml/qqmlregistration.h>

#include <span>

/// Where a place shows one record: which, whether it exists, and what stands there if it doesn't.
struct ScreenRecord {
    bool (*exists)(const WorkspaceStore &store, const QUuid &id);
    /// The property of the screen that takes the id.
    const char *property;
    /// Shown in place of a record that is gone; the texts are marked for translation.
    const char *symbol;
    const char *title;
    const char *action;
    /// Where the action leads.
    Destination::Kind wayBack;
};

template <typename Record>
bool recordExists(const WorkspaceStore &store, const QUuid &id)
{
    return store.list<Record>().first(id);
}

/// All there is to know of what stands in the detail pane at one kind of place.
struct PlaceScreen {
    Destination::Kind kind;
    /// The QML file below the import path.
    const char *file;
    std::optional<ScreenRecord> record = {};
};

/// Which screen shows which place. The application has the table, since it alone knows all screens.
class ScreenTable : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application makes the table of screens.")

public:
    const std::span<const PlaceScreen> screens;

    /// The screen of this kind of place; null for none.
    const PlaceScreen *find(Destination::Kind kind) const
    {
        const auto found = std::ranges::find(screens, kind, &PlaceScreen::kind);
        return found == screens.end() ? nullptr : &*found;
    }
    /// A text of the table in the user's language.
    virtual QString text(const char *text) const = 0;

protected:
    explicit ScreenTable(std::span<const PlaceScreen> screens, QObject *parent)
        : QObject(parent), screens(screens)
    {
    }
};
