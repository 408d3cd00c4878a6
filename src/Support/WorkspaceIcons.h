#pragma once

#include <QStringList>

/// The emoji that a workspace can be marked with.
inline QStringList workspaceIcons()
{
    return {QStringLiteral("🧠"), QStringLiteral("🚀"), QStringLiteral("🌱"), QStringLiteral("📚"),
            QStringLiteral("🎯"), QStringLiteral("🗂️"), QStringLiteral("⚡️"), QStringLiteral("🧩"),
            QStringLiteral("🌊"), QStringLiteral("🪐"), QStringLiteral("🔮"), QStringLiteral("🏔️")};
}
