#include "App/OrvelScreens.h"

namespace
{
using enum Destination::Kind;

constexpr std::array table{
    PlaceScreen{page, "Orvel/Pages/PageEditorView.qml",
                ScreenRecord{recordExists<Page>, "pageID", "doc.questionmark",
                             QT_TRANSLATE_NOOP("OrvelScreens", "Page not found"),
                             QT_TRANSLATE_NOOP("OrvelScreens", "Back to dashboard"), dashboard}},
    PlaceScreen{project, "Orvel/Projects/ProjectDetailView.qml",
                ScreenRecord{recordExists<Project>, "projectID", "target",
                             QT_TRANSLATE_NOOP("OrvelScreens", "Project not found"),
                             QT_TRANSLATE_NOOP("OrvelScreens", "Back to projects"), projects}},
    PlaceScreen{codeDocument, "Orvel/Code/CodeView.qml"},
    PlaceScreen{deck, "Orvel/Decks/DecksView.qml"},
    PlaceScreen{decks, "Orvel/Decks/DecksView.qml"},
    PlaceScreen{dashboard, "Orvel/Dashboard/DashboardView.qml"},
    PlaceScreen{today, "Orvel/Today/TodayView.qml"},
    PlaceScreen{projects, "Orvel/Projects/ProjectsView.qml"},
    PlaceScreen{tasks, "Orvel/Tasks/TasksView.qml"},
    PlaceScreen{calendar, "Orvel/Calendar/CalendarView.qml"},
    PlaceScreen{focus, "Orvel/Focus/FocusView.qml"},
    PlaceScreen{habits, "Orvel/Habits/HabitsView.qml"},
    PlaceScreen{insights, "Orvel/Insights/InsightsView.qml"},
    PlaceScreen{notes, "Orvel/Notes/NotesView.qml"},
    PlaceScreen{databases, "Orvel/Databases/DatabasesView.qml"},
    PlaceScreen{reader, "Orvel/Reader/ReaderView.qml"},
    PlaceScreen{relax, "Orvel/Relax/RelaxView.qml"},
    PlaceScreen{code, "Orvel/Code/CodeView.qml"},
    PlaceScreen{settings, "Orvel/Settings/SettingsView.qml"},
};
} // namespace

OrvelScreens::OrvelScreens(QObject *parent) : ScreenTable(table, parent) {}
