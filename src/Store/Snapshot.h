#pragma once

#include "Models/Activity.h"
#include "Models/AppSettings.h"
#include "Models/Book.h"
#include "Models/CalendarEvent.h"
#include "Models/CodeDocument.h"
#include "Models/DBRow.h"
#include "Models/DatabaseTable.h"
#include "Models/Deck.h"
#include "Models/Folder.h"
#include "Models/Habit.h"
#include "Models/Page.h"
#include "Models/Project.h"
#include "Models/TaskItem.h"

/// The document on disk: the whole workspace. It is tolerant key by key, so a list with a bad record reads as
/// empty while all others load. Copying one is cheap, since lists share their contents.
struct Snapshot {
    AppSettings settings;
    QList<Folder> folders;
    QList<Page> pages;
    QList<TaskItem> tasks;
    QList<CalendarEvent> events;
    QList<Project> projects;
    QList<Activity> activities;
    QList<DatabaseTable> databases;
    QList<DBRow> rows;
    QList<Habit> habits;
    QList<CodeDocument> codeDocuments;
    QList<Deck> decks;
    QList<Book> books;

    bool operator==(const Snapshot &) const = default;

    static constexpr bool isTolerant = true;
    static constexpr auto fields()
    {
        return std::tuple{Field{"settings", &Snapshot::settings},
                          Field{"folders", &Snapshot::folders},
                          Field{"pages", &Snapshot::pages},
                          Field{"tasks", &Snapshot::tasks},
                          Field{"events", &Snapshot::events},
                          Field{"projects", &Snapshot::projects},
                          Field{"activities", &Snapshot::activities},
                          Field{"databases", &Snapshot::databases},
                          Field{"rows", &Snapshot::rows},
                          Field{"habits", &Snapshot::habits},
                          Field{"codeDocuments", &Snapshot::codeDocuments},
                          Field{"decks", &Snapshot::decks},
                          Field{"books", &Snapshot::books}};
    }
};
