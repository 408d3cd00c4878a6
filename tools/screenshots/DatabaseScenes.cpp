#include "SampleDatabases.h"
#include "Scenes.h"

namespace
{
/// A database in one of its layouts.
Picture databasePicture(const QString &name, QSize size, const Look &look, void (*fill)(WorkspaceStore &),
                        const QByteArray &script)
{
    return {QStringLiteral("database-") + name,
            "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel.Databases\n"
            "Item { OVBackground { anchors.fill: parent }\n"
            "DatabasesView { id: view; anchors.fill: parent; focus: true; railWanted: false }\n"
            "Timer { interval: 100; running: true; onTriggered: { view.viewModel.selectBy(0); " +
                script + " } } }",
            size, [fill](WorkspaceStore &store, UIState &) { fill(store); }, look};
}
} // namespace

QList<Picture> databasePictures()
{
    QList<Picture> pictures;
    for (const EnumCase<DBViewType> &layout : enumCases<DBViewType>()) {
        const QByteArray raw(layout.raw.data(), qsizetype(layout.raw.size()));
        const QByteArray open = "view.viewModel.addView('" + raw + "')";
        const QString name = QString::fromLatin1(raw) + u'-';
        for (const auto &[lookName, look] : looks())
            pictures.append(
                databasePicture(name + lookName, windowSize, look, &SampleDatabases::ordinary, open));
        pictures.append(databasePicture(name + QStringLiteral("empty"), windowSize, light,
                                        &SampleDatabases::empty, open));
        pictures.append(databasePicture(name + QStringLiteral("crowded"), windowSize, light,
                                        &SampleDatabases::crowded, open));
        pictures.append(databasePicture(name + QStringLiteral("crowded-small-huge"), smallSize,
                                        both(light, huge), &SampleDatabases::crowded, open));
    }
    return pictures;
}
