#include "Features/Shell/DetailViewModel.h"

#include "Features/Shell/ScreenTable.h"
#include "Support/OrvelNavigation.h"

namespace
{
using Kind = Destination::Kind;

/// The properties of MissingRecord.qml.
QVariantMap missing(const char *symbol, const char *title, const char *action, Kind target)
{
    return {{QStringLiteral("symbol"), QString::fromLatin1(symbol)},
            {QStringLiteral("title"), QString::fromLatin1(title)},
            {QStringLiteral("message"), QStringLiteral("It may have been deleted.")},
            {QStringLiteral("actionTitle"), QString::fromLatin1(action)},
            {QStringLiteral("destination"), Destination::to(target).text()}};
}

/// The properties of ModulePlaceholder.qml.
QVariantMap placeholder(const QString &symbol, const QString &title, const QString &blurb)
{
    return {{QStringLiteral("symbol"), symbol},
            {QStringLiteral("title"), title},
            {QStringLiteral("blurb"), blurb}};
}
} // namespace

void DetailViewModel::setStore(WorkspaceStore *store)
{
    if (m_store == store)
        return;
    m_store = store;
    connect(store, &WorkspaceStore::changed, this, &DetailViewModel::follow);
    m_route.request();
    emit storeChanged();
}

void DetailViewModel::setUi(UIState *ui)
{
    if (m_ui == ui)
        return;
    m_ui = ui;
    connect(ui, &UIState::selectionChanged, &m_route, &CoalescedCall::request);
    m_route.request();
    emit uiChanged();
}

void DetailViewModel::setThemeRevision(int revision)
{
    if (m_themeRevision == revision)
        return;
    m_themeRevision = revision;
    m_route.request();
    emit themeRevisionChanged();
}

void DetailViewModel::follow(const ChangeSet &changes)
{
    const Destination &place = m_ui->selection();
    const auto comesOrGoes = [&](const RecordChanges &records) {
        return records.isReloaded || records.inserted.contains(place.id) ||
               records.removed.contains(place.id);
    };
    if ((place.kind == Kind::page && comesOrGoes(changes.of<Page>())) ||
        (place.kind == Kind::project && comesOrGoes(changes.of<Project>())))
        m_route.request();
}

void DetailViewModel::route()
{
    Screen next = screen();
    if (next == m_screen)
        return;
    m_screen = std::move(next);
    emit screenChanged();
}

bool DetailViewModel::isFound(const Destination &place) const
{
    if (place.kind == Kind::page)
        return m_store->pages().first(place.id);
    if (place.kind == Kind::project)
        return m_store->projects().first(place.id);
    return true;
}

DetailViewModel::Screen DetailViewModel::screen() const
{
    const Destination &place = m_ui->selection();
    Screen next;
    next.place = place;
    next.identity = place.kind == Kind::settings ? QStringLiteral("settings")
                                                 : QStringLiteral("theme-%1").arg(m_themeRevision);
    if (isFound(place)) {
        showPlace(next);
        return next;
    }
    next.source = ScreenTable::url("Orvel/Shell/MissingRecord.qml");
    next.properties =
        place.kind == Kind::page
            ? missing("doc.questionmark", "Page not found", "Back to dashboard", Kind::dashboard)
            : missing("target", "Project not found", "Back to projects", Kind::projects);
    return next;
}

void DetailViewModel::showPlace(Screen &screen) const
{
    const Destination &place = screen.place;
    if (const ScreenTable::Screen *const found = ScreenTable::find(place.kind)) {
        screen.source = ScreenTable::url(found->file);
        if (!found->recordProperty.empty())
            screen.properties.insert(
                QString::fromLatin1(found->recordProperty.data(), qsizetype(found->recordProperty.size())),
                place.id);
        return;
    }
    screen.source = ScreenTable::url("Orvel/Shell/ModulePlaceholder.qml");
    if (const auto module = OrvelNavigation::module(place))
        screen.properties = placeholder(
            enumSymbol(*module), enumLabel(*module),
            QString::fromUtf16(moduleBlurb(*module).data(), qsizetype(moduleBlurb(*module).size())));
    else if (place.kind == Kind::settings)
        screen.properties = placeholder(QStringLiteral("gearshape"), QStringLiteral("Settings"), {});
    else if (const Page *const page = m_store->pages().first(place.id))
        screen.properties = placeholder(QStringLiteral("doc.text"), page->title, {});
    else if (const Project *const project = m_store->projects().first(place.id))
        screen.properties = placeholder(QStringLiteral("target"), project->name, {});
    else
        screen.properties = placeholder(enumSymbol(OrvelModule::decks), enumLabel(OrvelModule::decks), {});
}
