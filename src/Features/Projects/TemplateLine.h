#pragma once

#include "Support/ProjectTemplates.h"

#include <QObject>

/// A built-in template as the sheet for a new project shows it.
struct TemplateLine {
    Q_GADGET
    Q_PROPERTY(QString templateID MEMBER id FINAL)
    Q_PROPERTY(QString icon MEMBER icon FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString details MEMBER details FINAL)

public:
    QString id;
    QString icon;
    QString name;
    QString details;

    bool operator==(const TemplateLine &) const = default;

    static TemplateLine of(const ProjectTemplate &from)
    {
        return {from.id, from.icon, from.name, from.details};
    }
};
