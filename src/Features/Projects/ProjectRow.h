#pragma once

#include "Foundation/Choice.h"
#include "Models/Project.h"

#include <QCoreApplication>

/// A project as cards and lists show it.
struct ProjectRow {
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(ProjectRow)
    Q_PROPERTY(QUuid projectID MEMBER id FINAL)
    Q_PROPERTY(QString icon MEMBER icon FINAL)
    Q_PROPERTY(QString name READ nameText FINAL)
    Q_PROPERTY(QString details READ detailsText FINAL)
    Q_PROPERTY(Choice status READ statusChoice FINAL)
    /// "due Mar 9"; empty without a due date.
    Q_PROPERTY(QString dueText READ dueText FINAL)
    Q_PROPERTY(bool isTemplate MEMBER isTemplate FINAL)
    Q_PROPERTY(QString tasksText READ tasksText FINAL)
    /// "33% complete"
    Q_PROPERTY(QString percentText READ percentText FINAL)
    Q_PROPERTY(double progress READ share FINAL)

public:
    QUuid id;
    QString icon;
    QString name;
    QString details;
    ProjectStatus status = ProjectStatus::notStarted;
    std::optional<QDate> due;
    bool isTemplate = false;
    ProjectProgress progress;

    bool operator==(const ProjectRow &) const = default;

    static ProjectRow of(const Project &project, const ProjectProgress &progress, const QTimeZone &zone);
    /// The status as menus and badges show it.
    static Choice choice(ProjectStatus status);
    /// "1/3 tasks"
    static QString tasksText(const ProjectProgress &progress);
    /// "33% complete"
    static QString percentText(const ProjectProgress &progress);
    /// From 0 to 1.
    static double share(const ProjectProgress &progress);

    QString nameText() const;
    QString detailsText() const;
    Choice statusChoice() const { return choice(status); }
    QString dueText() const;
    QString tasksText() const { return tasksText(progress); }
    QString percentText() const { return percentText(progress); }
    double share() const { return share(progress); }
};
