#pragma once

#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// How many records of a kind the workspace holds.
struct SettingsCount {
    Q_GADGET
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString count MEMBER count FINAL)

public:
    QString label;
    QString count;

    const QString &id() const { return label; }
    bool operator==(const SettingsCount &) const = default;
};

/// What the settings screen says of the workspace and does with it as a whole. Its controls for single fields
/// stand for themselves, see `Setting` and `SettingChoices`.
class SettingsViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QAbstractItemModel *counts READ counts CONSTANT FINAL)
    Q_PROPERTY(bool hasExampleContent READ hasExampleContent NOTIFY hasExampleContentChanged FINAL)
    Q_PROPERTY(QStringList workspaceIcons READ workspaceIcons CONSTANT FINAL)
    /// Whether the icon on the desktop's panel is wanted on this machine.
    Q_PROPERTY(
        bool menuBarEnabled READ menuBarEnabled WRITE setMenuBarEnabled NOTIFY menuBarEnabledChanged FINAL)
    /// Where and when updates are looked for.
    Q_PROPERTY(QString updatesText READ updatesText NOTIFY sessionChanged FINAL)
    Q_PROPERTY(QString versionText READ versionText NOTIFY sessionChanged FINAL)

public:
    explicit SettingsViewModel(QObject *parent = nullptr);

    QAbstractItemModel *counts() { return &m_counts; }
    const QList<SettingsCount> &countList() const { return m_counts.rows(); }
    bool hasExampleContent() const { return m_hasExampleContent; }
    static QStringList workspaceIcons();
    bool menuBarEnabled() const;
    void setMenuBarEnabled(bool enabled);
    QString updatesText() const;
    QString versionText() const;

    Q_INVOKABLE void removeExampleContent();
    /// Goes to the dashboard and back to the first run; the workspace stays.
    Q_INVOKABLE void rerunOnboarding();
    /// Goes to the dashboard and erases everything.
    Q_INVOKABLE void resetWorkspace();

signals:
    void hasExampleContentChanged();
    void menuBarEnabledChanged();

private:
    void start() override;
    void refresh(const ChangeSet &changes) override;

    KeyedListModel<SettingsCount> m_counts;
    bool m_hasExampleContent = false;
};
