#pragma once

#include "Harness/ManualClock.h"
#include "Session/FocusTimer.h"
#include "Store/BookOperations.h"
#include "Store/DeckOperations.h"
#include "Store/EventOperations.h"
#include "Store/HabitOperations.h"
#include "Store/PageOperations.h"
#include "Store/ProjectOperations.h"
#include "Store/TaskOperations.h"
#include "Store/WorkspaceStore.h"
#include "Support/UIState.h"
#include "Support/Updates/UpdateService.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTemporaryDir>

/// A whole workspace in a scratch folder for tests of screens: QML reaches it as `Workspace` after
/// `import Orvel.Testing`, and screens find its store and UI state in `Orvel`. Time stands still until a test
/// moves it.
class TestWorkspace : public QObject
{
    Q_OBJECT

public:
    TestWorkspace()
        : m_store(
              {m_folder.filePath(QStringLiteral("workspace.json")), &m_clock, std::chrono::milliseconds(0)})
    {
    }

    WorkspaceStore &store() { return m_store; }
    UIState &ui() { return m_ui; }
    /// It knows no site, so it never asks one.
    UpdateService &updates() { return m_updates; }
    ManualClock &clock() { return m_clock; }
    /// A machine that never sleeps; what it tells the user is kept in `told`.
    Machine machine()
    {
        return {.uptime = [this] { return m_clock.now().time_since_epoch(); },
                .notify = [this](const QString &, const QString &text) { m_told.append(text); }};
    }
    Q_INVOKABLE QStringList told() const { return m_told; }

    /// An empty workspace that has finished its onboarding, with the window on the dashboard.
    Q_INVOKABLE void reset()
    {
        m_clock.setNow(ManualClock().now());
        m_told.clear();
        m_store.resetEverything(false);
        m_store.changeSettings([](AppSettings &settings) { settings.hasCompletedOnboarding = true; });
        m_ui.setSelection(Destination());
        m_ui.setPresentingDeckID(QUuid());
        m_ui.setSearchPresented(false);
        m_ui.setShortcutsPresented(false);
        m_ui.setSidebarVisible(true);
    }

    /// A workspace that nobody has entered yet.
    Q_INVOKABLE void resetToFirstRun()
    {
        reset();
        m_store.resetEverything(false);
    }

    /// @param status and priority raw texts
    /// @param dueInHours counted from now; NaN for a task without a due date
    Q_INVOKABLE QString addTask(const QString &title, const QString &status = QStringLiteral("todo"),
                                const QString &priority = QStringLiteral("medium"),
                                double dueInHours = qQNaN())
    {
        std::optional<Timestamp> due;
        if (!qIsNaN(dueInHours))
            due = m_clock.now() + std::chrono::milliseconds(qint64(dueInHours * 3'600'000));
        const QUuid id =
            TaskOperations::create(m_store, title, enumFromRaw<TaskPriority>(priority).value(), due);
        while (m_store.tasks().first(id)->status != enumFromRaw<TaskStatus>(status).value())
            TaskOperations::cycleStatus(m_store, id);
        return id.toString(QUuid::WithoutBraces);
    }

    Q_INVOKABLE void addTasks(int count)
    {
        for (int i = 0; i < count; ++i)
            TaskOperations::create(m_store, QStringLiteral("Task %1").arg(i), TaskPriority::medium, {});
    }
    Q_INVOKABLE void renameTask(const QString &id, const QString &title)
    {
        TaskOperations::rename(m_store, QUuid(id), title);
    }
    Q_INVOKABLE void finishTask(const QString &id)
    {
        TaskOperations::setStatus(m_store, QUuid(id), TaskStatus::done);
    }

    /// @param inDays counted from today
    /// @param minutes after midnight; negative for an all-day event
    Q_INVOKABLE QString addEvent(const QString &title, int inDays = 0, int minutes = -1,
                                 const QString &kind = QStringLiteral("event"))
    {
        const Timestamp noon =
            toTimestamp(QDateTime(m_clock.today().addDays(inDays), {12, 0}, m_clock.timeZone()));
        const auto time = minutes < 0 ? std::nullopt : std::optional<qint64>(minutes);
        return EventOperations::create(m_store, title, noon, time, enumFromRaw<EventKind>(kind).value())
            .toString(QUuid::WithoutBraces);
    }

    Q_INVOKABLE QString addPage(const QString &title, bool isFavorite = false,
                                const QString &folderID = QString())
    {
        const QUuid id = PageOperations::create(m_store, PageKind::page);
        m_store.change<Page>(id, [&](Page &page) {
            page.title = title;
            page.isFavorite = isFavorite;
            if (!folderID.isEmpty())
                page.folderID = QUuid(folderID);
        });
        return id.toString(QUuid::WithoutBraces);
    }

    /// A page of these blocks, each an object of the fields that differ from those of a fresh block.
    Q_INVOKABLE QString addPageOf(const QVariantList &blocks)
    {
        QList<Block> content;
        for (const QVariant &fields : blocks) {
            const QVariantMap values = fields.toMap();
            const auto text = [&values](const char *field, const QString &otherwise) {
                return values.value(QString::fromLatin1(field), otherwise).toString();
            };
            Block block;
            block.id = QUuid::createUuid();
            block.text = text("text", {});
            block.type = enumFromRaw<BlockType>(text("type", QStringLiteral("paragraph"))).value();
            block.tone = enumFromRaw<CalloutTone>(text("tone", QStringLiteral("info"))).value();
            block.language = text("language", block.language);
            block.checked = values.value(QStringLiteral("checked")).toBool();
            content.append(block);
        }
        const QUuid id = PageOperations::create(m_store, PageKind::page);
        m_store.change<Page>(id, [&](Page &page) { page.content = content; });
        return id.toString(QUuid::WithoutBraces);
    }

    /// A note with one block a line of the text.
    Q_INVOKABLE QString addNote(const QString &title, const QString &text = QString())
    {
        const QUuid id = PageOperations::create(m_store, PageKind::note);
        m_store.change<Page>(id, [&](Page &page) {
            page.title = title;
            page.content.clear();
            for (const QString &line : text.split(u'\n'))
                page.content.append(Block{.id = QUuid::createUuid(), .text = line});
        });
        return id.toString(QUuid::WithoutBraces);
    }

    Q_INVOKABLE void renamePage(const QString &id, const QString &title)
    {
        PageOperations::rename(m_store, QUuid(id), title);
    }

    /// @param language a raw text
    Q_INVOKABLE QString addCode(const QString &title, const QString &language, const QString &source)
    {
        CodeDocument document{.id = QUuid::createUuid(), .title = title, .source = source};
        document.language = enumFromRaw<CodeLanguage>(language).value();
        document.createdDate = document.updatedDate = m_clock.now();
        m_store.add(document);
        return document.id.toString(QUuid::WithoutBraces);
    }

    /// A deck of these slides, each an object of the texts that it has and the raw text of its kind.
    Q_INVOKABLE QString addDeck(const QString &title, const QVariantList &slides)
    {
        m_clock.advance(std::chrono::minutes(1));
        const QUuid id = DeckOperations::create(m_store, SlideTheme::inkTheme());
        m_store.change<Deck>(id, [&](Deck &deck) {
            deck.title = title;
            deck.slides.clear();
            for (const QVariant &fields : slides) {
                const QVariantMap values = fields.toMap();
                const auto text = [&values](const char *field) {
                    return values.value(QString::fromLatin1(field)).toString();
                };
                deck.slides.append({QUuid::createUuid(),
                                    enumFromRaw<SlideKind>(text("kind")).value_or(SlideKind::title),
                                    text("kicker"), text("title"), text("subtitle"), text("body"),
                                    text("bodyB"), text("notes")});
            }
        });
        return id.toString(QUuid::WithoutBraces);
    }

    Q_INVOKABLE void present(const QString &deckID) { m_ui.setPresentingDeckID(QUuid(deckID)); }
    Q_INVOKABLE void deleteDeck(const QString &id) { m_store.erase<Deck>(QUuid(id)); }
    /// The title of the deck that is presented; empty for none.
    Q_INVOKABLE QString presentedDeck() const
    {
        const Deck *const deck = m_store.list<Deck>().first(m_ui.presentingDeckID());
        return deck ? deck->title : QString();
    }

    Q_INVOKABLE QString addProject(const QString &name)
    {
        return ProjectOperations::createBlank(m_store, name).value().toString(QUuid::WithoutBraces);
    }

    Q_INVOKABLE void insertBlockFirst(const QString &pageID, const QString &text)
    {
        m_store.change<Page>(QUuid(pageID), [&](Page &page) {
            page.content.prepend(Block{.id = QUuid::createUuid(), .text = text});
        });
    }

    Q_INVOKABLE void deletePage(const QString &id) { m_store.erase<Page>(QUuid(id)); }

    Q_INVOKABLE QString addFolder(const QString &name)
    {
        return FolderOperations::create(m_store, name, QStringLiteral("📁"))
            .id.toString(QUuid::WithoutBraces);
    }

    /// @param daysAgo the days that are done
    Q_INVOKABLE QString addHabit(const QString &name, const QList<int> &daysAgo = {}, int target = 7)
    {
        const QUuid id =
            *HabitOperations::create(m_store, name, QStringLiteral("🔥"), AccentPalette::orange, target);
        for (const int days : daysAgo)
            HabitOperations::toggle(m_store, id, m_clock.today().addDays(-days));
        return id.toString(QUuid::WithoutBraces);
    }

    /// A book of the reader with its text on disk; an empty text stands for none.
    Q_INVOKABLE QString addBook(const QString &title, const QString &author, const QString &text)
    {
        const Book book{.id = QUuid::createUuid(),
                        .gutenbergID = m_store.list<Book>().size() + 1,
                        .title = title,
                        .author = author};
        BookOperations::add(m_store, book);
        if (!text.isEmpty())
            (void)m_store.bookLibrary().write(book.id, text);
        return book.id.toString(QUuid::WithoutBraces);
    }

    Q_INVOKABLE QString clipboard() const { return QGuiApplication::clipboard()->text(); }

    /// The place that the window shows, as `Destination::text()`.
    Q_INVOKABLE QString selection() const { return m_ui.selection().text(); }

    /// What stands in the file after a save.
    Q_INVOKABLE QString saved()
    {
        m_store.saveNow();
        QFile file(m_store.filePath());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    Q_INVOKABLE void advanceSeconds(double seconds)
    {
        m_clock.advance(std::chrono::milliseconds(qint64(seconds * 1000)));
    }
    Q_INVOKABLE void advanceHours(double hours)
    {
        m_clock.advance(std::chrono::milliseconds(qint64(hours * 3'600'000)));
    }

    /// Sets one field of the settings' theme, or of the settings themselves, by its raw text.
    Q_INVOKABLE void setNavigation(const QString &raw)
    {
        m_store.changeSettings([&](AppSettings &settings) {
            settings.theme.navigation = enumFromRaw<NavigationStyle>(raw).value();
        });
    }
    Q_INVOKABLE void setMenuBarShowsTasks(bool shown)
    {
        m_store.changeSettings([&](AppSettings &settings) { settings.menuBarShowsTasks = shown; });
    }
    Q_INVOKABLE void setTabBarLabels(bool shown)
    {
        m_store.changeSettings([&](AppSettings &settings) { settings.theme.tabBarLabels = shown; });
    }
    Q_INVOKABLE void setCompactSidebar(bool compact)
    {
        m_store.changeSettings([&](AppSettings &settings) { settings.theme.compactSidebar = compact; });
    }
    Q_INVOKABLE void setWorkspaceName(const QString &name)
    {
        m_store.changeSettings([&](AppSettings &settings) { settings.workspaceName = name; });
    }
    /// Everything happens at once.
    Q_INVOKABLE void stopMotion()
    {
        m_store.changeSettings([](AppSettings &settings) { settings.reducedMotion = true; });
    }
    Q_INVOKABLE void useInkMode()
    {
        m_store.changeSettings([](AppSettings &settings) { settings.inkMode = true; });
    }
    Q_INVOKABLE void hideModule(const QString &raw)
    {
        m_store.changeSettings(
            [&](AppSettings &settings) { settings.setModule(enumFromRaw<OrvelModule>(raw).value(), false); });
    }

    /// Hides every other module.
    Q_INVOKABLE void showModules(const QStringList &raws)
    {
        m_store.changeSettings([&](AppSettings &settings) {
            for (const EnumCase<OrvelModule> &module : enumCases<OrvelModule>())
                settings.setModule(module.value, raws.contains(enumRawText(module.value)));
        });
    }
    Q_INVOKABLE void setAccent(const QString &raw)
    {
        m_store.changeSettings(
            [&](AppSettings &settings) { settings.theme.accent = enumFromRaw<AccentPalette>(raw).value(); });
    }

private:
    QTemporaryDir m_folder;
    ManualClock m_clock;
    WorkspaceStore m_store;
    UIState m_ui;
    UpdateService m_updates{{}};
    QStringList m_told;
};
