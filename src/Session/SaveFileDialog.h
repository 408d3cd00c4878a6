#pragma once

#include "Session/FilePortal.h"

#include <optional>

/// Asks the user where a file is to be saved, in the dialog of the desktop itself, which every desktop
/// offers to programs through its portal. Where there is none, the file goes into a folder without asking.
class SaveFileDialog : public QObject
{
    Q_OBJECT

public:
    struct Answer {
        QString path;
        /// False where the folder was taken without asking.
        bool wasAsked = true;
    };
    /// Gets nothing if the user has cancelled.
    using Receiver = std::function<void(const std::optional<Answer> &)>;

    /// @param fallbackFolder is made when it is needed
    SaveFileDialog(const QDBusConnection &bus, QString fallbackFolder, QObject *parent = nullptr);

    /// @param fileName the name offered
    /// @param receiver is called once; if the dialog is asked anew before, it is not called at all
    void ask(const QString &fileName, Receiver receiver);

    /// A path in the folder that no file has yet: "Plan.md", "Plan 2.md", ...
    static QString freePath(const QString &folder, const QString &fileName);

private:
    Answer freePlace(const QString &fileName) const;

    FilePortal m_portal;
    QString m_fallbackFolder;
};
