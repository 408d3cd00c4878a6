#pragma once

#include <QList>
#include <QString>

/// A command of the menus, as it is offered elsewhere.
struct NamedCommand {
    QString id;
    /// As the menu shows it, such as "New Page".
    QString title;
    /// The keys as a user reads them; may be empty.
    QString keys;
};

/// Knows the commands of the menus. The application is one; what lies below it reaches them by this.
class CommandSource
{
public:
    virtual ~CommandSource() = default;

    /// What can be done now, in the order of the menus. What acts on a text field alone is not among it.
    virtual QList<NamedCommand> namedCommands() = 0;
    /// An unknown id does nothing.
    virtual void runCommand(const QString &id) = 0;
};
