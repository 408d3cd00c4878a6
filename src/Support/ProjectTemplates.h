#pragma once

#include "Models/Project.h"

#include <QStringList>

/// A project to begin with, as the program brings it.
struct ProjectTemplate {
    QString id;
    QString name;
    QString icon;
    QString details;
    ProjectStatus status;
    QStringList milestones;
    QStringList tasks;
};

namespace ProjectTemplates
{
/// The built-in templates in the order of the sheet.
const QList<ProjectTemplate> &all();
} // namespace ProjectTemplates
