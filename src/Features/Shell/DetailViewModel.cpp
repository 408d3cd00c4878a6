#include "Features/Shell/DetailViewModel.h"

#include "DesignSystem/ThemeRevision.h"

using namespace Qt::StringLiterals;

DetailViewModel::DetailViewModel(QObject *parent) : ViewModel(parent)
{
    follow<Page, Project, CodeDocument, Deck>();
}

void DetailViewModel::setScreens(ScreenTable *screens)
{
    m_screens = screens;
    requestRefresh();
}

void DetailViewModel::start()
{
    connect(&ui(), &UIState::selectionChanged, this, &DetailViewModel::requestRefresh);
    connect(&ThemeRevision::shared(), &ThemeRevision::valueChanged, this, &DetailViewModel::requestRefresh);
}

void DetailViewModel::refresh(const ChangeSet &)
{
    if (!m_screens)
        return;
    Screen next = screen();
    if (next == m_screen)
        return;
    m_screen = std::move(next);
    emit screenChanged();
}

DetailViewModel::Screen DetailViewModel::screen() const
{
    Screen next{.place = ui().selection()};
    const Destination &place = next.place;
    next.identity = place.kind == Destination::Kind::settings
                        ? u"settings"_s
                        : u"theme-%1"_s.arg(ThemeRevision::shared().value());
    const PlaceScreen *const found = m_screens->find(place.kind);
    const ScreenRecord *const record = found && found->record ? &*found->record : nullptr;
    const bool exists = !record || record->exists(store(), place.id);
    if (!exists) {
        next.source = url("Orvel/Shell/PlaceNotice.qml");
        next.properties = notFound(*record);
    } else if (found) {
        next.source = url(found->file);
        if (record)
            next.properties.insert(QLatin1String(record->property), place.id);
    }
    return next;
}

QVariantMap DetailViewModel::notFound(const ScreenRecord &record) const
{
    return {{u"symbol"_s, QString::fromLatin1(record.symbol)},
            {u"title"_s, m_screens->text(record.title)},
            {u"message"_s, tr("It may have been deleted.")},
            {u"actionTitle"_s, m_screens->text(record.action)},
            {u"destination"_s, Destination::to(record.wayBack).text()}};
}

QUrl DetailViewModel::url(const char *file)
{
    return QUrl(u"qrc:/qt/qml/"_s + QLatin1String(file));
}
