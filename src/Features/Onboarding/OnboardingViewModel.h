#pragma once

#include "DesignSystem/OVLook.h"
#include "Foundation/KeyedListModel.h"
#include "Models/AppSettings.h"
#include "Session/ViewModel.h"

/// A module as the onboarding offers it.
struct OnboardingModule {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString blurb MEMBER blurb FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(bool isSelected MEMBER isSelected FINAL)

public:
    OrvelModule id = OrvelModule::dashboard;
    QString title;
    QString blurb;
    QString symbol;
    /// Whether it stays visible.
    bool isSelected = true;

    bool operator==(const OnboardingModule &) const = default;
};

/// An appearance with the looks that a picture of it shows: what it can come out as.
struct OnboardingAppearance {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QList<OVLook> looks MEMBER looks FINAL)
    Q_PROPERTY(bool isSelected MEMBER isSelected FINAL)

public:
    AppearanceMode id = AppearanceMode::system;
    QString title;
    QString symbol;
    QList<OVLook> looks;
    bool isSelected = false;

    bool operator==(const OnboardingAppearance &) const = default;
};

/// One line of the summary before the workspace is entered.
struct OnboardingSummaryRow {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString value MEMBER value FINAL)

public:
    QString symbol;
    QString label;
    QString value;

    bool operator==(const OnboardingSummaryRow &) const = default;
};

/// The first run: what the user has chosen so far, step by step. Nothing of it reaches the store before
/// `finish`. Modules and appearances are told by their position in their lists.
class OnboardingViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// From 0.
    Q_PROPERTY(int step READ step NOTIFY stepChanged FINAL)
    Q_PROPERTY(int stepCount READ stepCount CONSTANT FINAL)
    Q_PROPERTY(QString title READ title NOTIFY stepChanged FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY stepChanged FINAL)
    /// Which step of how many this is, in words.
    Q_PROPERTY(QString progressText READ progressText NOTIFY stepChanged FINAL)
    Q_PROPERTY(QString primaryText READ primaryText NOTIFY stepChanged FINAL)
    Q_PROPERTY(bool isFirst READ isFirst NOTIFY stepChanged FINAL)
    Q_PROPERTY(bool isLast READ isLast NOTIFY stepChanged FINAL)

    Q_PROPERTY(QString name MEMBER m_name NOTIFY choicesChanged FINAL)
    Q_PROPERTY(QString workspaceName MEMBER m_workspaceName NOTIFY choicesChanged FINAL)
    Q_PROPERTY(QString defaultWorkspaceName READ defaultWorkspaceName CONSTANT FINAL)
    Q_PROPERTY(QString workspaceIcon MEMBER m_workspaceIcon NOTIFY choicesChanged FINAL)
    Q_PROPERTY(QStringList workspaceIcons READ workspaceIcons CONSTANT FINAL)
    Q_PROPERTY(QAbstractItemModel *modules READ modules CONSTANT FINAL)
    Q_PROPERTY(bool hidesEveryModule READ hidesEveryModule NOTIFY choicesChanged FINAL)
    Q_PROPERTY(bool includeSamples MEMBER m_includeSamples NOTIFY choicesChanged FINAL)
    Q_PROPERTY(int appearance READ appearance WRITE setAppearance NOTIFY choicesChanged FINAL)
    Q_PROPERTY(QAbstractItemModel *appearances READ appearances CONSTANT FINAL)
    Q_PROPERTY(QList<OnboardingSummaryRow> summary READ summary NOTIFY choicesChanged FINAL)

public:
    explicit OnboardingViewModel(QObject *parent = nullptr);

    int step() const { return m_step; }
    static int stepCount();
    QString title() const;
    QString subtitle() const;
    QString progressText() const;
    QString primaryText() const;
    bool isFirst() const { return m_step == 0; }
    bool isLast() const { return m_step == stepCount() - 1; }

    static QString defaultWorkspaceName() { return AppSettings().workspaceName; }
    static QStringList workspaceIcons();
    QAbstractItemModel *modules() { return &m_modules; }
    const QList<OnboardingModule> &moduleList() const { return m_modules.rows(); }
    bool hidesEveryModule() const { return selectedModules().isEmpty(); }
    int appearance() const { return int(m_appearance); }
    void setAppearance(int appearance);
    QAbstractItemModel *appearances() { return &m_appearances; }
    const QList<OnboardingAppearance> &appearanceList() const { return m_appearances.rows(); }
    QList<OnboardingSummaryRow> summary() const;

    Q_INVOKABLE void goNext() { goTo(m_step + 1); }
    Q_INVOKABLE void goBack() { goTo(m_step - 1); }
    Q_INVOKABLE void jumpToReady() { goTo(stepCount() - 1); }
    Q_INVOKABLE void toggleModule(int module);
    Q_INVOKABLE void selectAllModules() { selectModules(true); }
    Q_INVOKABLE void clearModules() { selectModules(false); }
    /// Hands all choices to the workspace, which ends the onboarding, and goes to the dashboard. Once done it
    /// does nothing more.
    Q_INVOKABLE void finish();

signals:
    void stepChanged();
    void choicesChanged();

private:
    /// Shows the appearances in the theme as it is.
    void refresh(const ChangeSet &changes) override;
    void goTo(int step);
    void selectModules(bool selected);
    void setModules(const QList<OnboardingModule> &modules);
    QList<OrvelModule> selectedModules() const;

    int m_step = 0;
    bool m_isFinished = false;
    QString m_name;
    QString m_workspaceName;
    QString m_workspaceIcon = AppSettings().workspaceIcon;
    KeyedListModel<OnboardingModule> m_modules;
    bool m_includeSamples = false;
    AppearanceMode m_appearance = AppearanceMode::system;
    KeyedListModel<OnboardingAppearance> m_appearances;
};
