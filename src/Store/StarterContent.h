#pragma once

#include "Models/AppSettings.h"

class WorkspaceStore;

/// What a new workspace holds, and the examples in it. Example records carry no mark: they are known by their
/// exact titles, so a record of the user's own with such a title counts as one.
namespace StarterContent
{
/// The choices made in the onboarding.
struct Choices {
    QString userName;
    QString workspaceName;
    QString workspaceIcon;
    AppearanceMode appearance = AppearanceMode::system;
    QList<OrvelModule> modules;
    bool includeSamples = false;
};

/// Takes the choices over, fills the workspace and saves.
void completeOnboarding(WorkspaceStore &store, const Choices &choices);
/// Makes the welcome page and, if wished, examples for the modules, and saves.
void seed(WorkspaceStore &store, const QList<OrvelModule> &modules, bool samples);

bool hasExampleContent(const WorkspaceStore &store);
/// Removes the examples with the tasks and activities of the example project and the example folder. The
/// welcome page and the example database stay.
void removeExampleContent(WorkspaceStore &store);
} // namespace StarterContent
