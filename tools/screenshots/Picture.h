#pragma once

#include "Models/AppSettings.h"
#include "Store/WorkspaceStore.h"
#include "Support/UIState.h"

#include <QByteArray>
#include <QList>
#include <QSize>
#include <QString>

#include <functional>
#include <utility>

using Look = std::function<void(AppSettings &)>;
using Content = std::function<void(WorkspaceStore &, UIState &)>;

/// One picture: a page of QML, what lies in the workspace, and how it looks.
struct Picture {
    QString name;
    /// Its property `pointer`, where it has one, is where the pointer is.
    QByteArray page;
    QSize size;
    Content content;
    Look look;
    /// Typed into what has the focus.
    QString typed = {};
};

constexpr QSize windowSize(1240, 820);
constexpr QSize smallSize(900, 600);

void light(AppSettings &settings);
void dark(AppSettings &settings);
void huge(AppSettings &settings);
Look both(const Look &first, const Look &second);

/// The looks in which every screen is drawn, with their names.
QList<std::pair<QString, Look>> looks();

/// The whole window, with the screen that the content selects.
constexpr char windowPage[] =
    "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel.App\n"
    "Item { OVBackground { anchors.fill: parent } WorkspaceView { anchors.fill: parent } }";

/// A screen beside a sidebar's width, as `view`, after a script has done something in it.
QByteArray screenPage(const QByteArray &module, const QByteArray &view, const QByteArray &script);

/// Writes the picture to a file; false, with the reason on standard error, when that is impossible.
bool draw(const Picture &picture, const QString &file);
