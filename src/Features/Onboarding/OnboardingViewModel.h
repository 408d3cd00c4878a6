#pragma once

#include "Features/Onboarding/OnboardingChoices.h"
#include "Features/Onboarding/OnboardingStep.h"
#include "Session/SessionTypes.h"
#include "Store/WorkspaceStore.h"

#include <QtQml/qqmlregistration.h>

/// The first run: what the person has chosen so far, step by step. Nothing of it reaches the store before
/// `finish`. Positions stand for the cases of steps, modules and appearances, in their order.
class OnboardingViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(WorkspaceStore *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(UIState *ui MEMBER m_ui REQUIRED FINAL)

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
    Q_PROPERTY(QList<QString> workspaceIcons READ workspaceIcons CONSTANT FINAL)
    Q_PROPERTY(QList<OnboardingModule> modules READ modules CONSTANT FINAL)
    /// For each module whether it stays visible.
    Q_PROPERTY(QList<bool> selectedModules READ selectedModules NOTIFY choicesChanged FINAL)
    Q_PROPERTY(bool hidesEveryModule READ hidesEveryModule NOTIFY choicesChanged FINAL)
    Q_PROPERTY(bool includeSamples MEMBER m_includeSamples NOTIFY choicesChanged FINAL)
    Q_PROPERTY(int appearance READ appearance WRITE setAppearance NOTIFY choicesChanged FINAL)
    Q_PROPERTY(QList<OnboardingAppearance> appearances READ appearances NOTIFY appearancesChanged FINAL)
    Q_PROPERTY(QList<OnboardingSummaryRow> summary READ summary NOTIFY choicesChanged FINAL)

public:
    using QObject::QObject;

    WorkspaceStore *store() const { return m_store; }
    void setStore(WorkspaceStore *store);

    int step() const { return int(m_step); }
    static int stepCount() { return onboardingStepCount; }
    QString title() const { return onboardingStepText(m_step).title; }
    QString subtitle() const { return onboardingStepText(m_step).subtitle; }
    QString progressText() const;
    QString primaryText() const { return onboardingStepText(m_step).primary; }
    bool isFirst() const { return m_step == OnboardingStep::welcome; }
    bool isLast() const { return m_step == OnboardingStep::ready; }

    static QString defaultWorkspaceName() { return AppSettings().workspaceName; }
    static QStringList workspaceIcons();
    static QList<OnboardingModule> modules();
    QList<bool> selectedModules() const;
    bool hidesEveryModule() const { return m_selectedModules.isEmpty(); }
    int appearance() const { return int(m_appearance); }
    void setAppearance(int appearance);
    QList<OnboardingAppearance> appearances() const;
    QList<OnboardingSummaryRow> summary() const;

    Q_INVOKABLE void goNext() { goTo(step() + 1); }
    Q_INVOKABLE void goBack() { goTo(step() - 1); }
    Q_INVOKABLE void jumpToReady() { goTo(int(OnboardingStep::ready)); }
    Q_INVOKABLE void toggleModule(int module);
    Q_INVOKABLE void selectAllModules();
    Q_INVOKABLE void clearModules();
    /// Hands all choices to the workspace, which ends the onboarding, and goes to the dashboard. Once done it
    /// does nothing more.
    Q_INVOKABLE void finish();

signals:
    void storeChanged();
    void stepChanged();
    void choicesChanged();
    void appearancesChanged();

private:
    void goTo(int step);
    void selectModules(const QList<OrvelModule> &modules);

    WorkspaceStore *m_store = nullptr;
    UIState *m_ui = nullptr;
    OnboardingStep m_step = OnboardingStep::welcome;
    bool m_finished = false;

    QString m_name;
    QString m_workspaceName;
    QString m_workspaceIcon = AppSettings().workspaceIcon;
    /// In module order.
    QList<OrvelModule> m_selectedModules = AppSettings().visibleModules();
    bool m_includeSamples = false;
    AppearanceMode m_appearance = AppearanceMode::system;
};
