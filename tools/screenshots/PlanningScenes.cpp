#include "SampleMonth.h"
#include "Scenes.h"

using namespace Qt::StringLiterals;

/// The modes of the calendar, many projects and the whole of the settings.
QList<Picture> planningPictures()
{
    const auto with = [](void (*fill)(WorkspaceStore &)) {
        return [fill](WorkspaceStore &store, UIState &) { fill(store); };
    };
    const QByteArray calendar = screenPage("Calendar", "CalendarView", {});
    const QByteArray projects = screenPage("Projects", "ProjectsView", {});
    const QByteArray settings = screenPage("Settings", "SettingsView", {});
    const Look smallHuge = both(light, huge);
    QList<Picture> pictures;
    for (const QString &mode : {u"month"_s, u"week"_s, u"day"_s, u"agenda"_s}) {
        const QString name = u"planning-"_s + mode;
        const QString key = mode.first(1);
        const auto add = [&](const QString &state, void (*fill)(WorkspaceStore &), QSize size,
                             const Look &look) {
            pictures.append({name + u'-' + state, calendar, size, with(fill), look, key});
        };
        add(u"empty"_s, [](WorkspaceStore &) {}, windowSize, light);
        for (const auto &[lookName, look] : looks())
            add(u"ordinary-"_s + lookName, SampleMonth::fill, windowSize, look);
        add(u"crowded"_s, SampleMonth::crowd, windowSize, light);
        add(u"crowded-small-huge"_s, SampleMonth::crowd, smallSize, smallHuge);
    }
    pictures.append({u"planning-projects-sixty"_s, projects, windowSize, with(SampleMonth::crowd), light});
    for (const auto &[name, look] : looks())
        pictures.append(
            {u"planning-settings-"_s + name, settings, {1240, 4300}, with(SampleMonth::fill), look});
    pictures.append(
        {u"planning-settings-small-huge"_s, settings, {900, 7000}, with(SampleMonth::fill), smallHuge});
    return pictures;
}
