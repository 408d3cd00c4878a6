#include "App/RootViewModel.h"

#include "Support/OrvelNavigation.h"

void RootViewModel::setStore(WorkspaceStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store)
        connect(m_store, &WorkspaceStore::changed, this, [this](const ChangeSet &changes) {
            if (changes.settings)
                read();
        });
    emit storeChanged();
    read();
}

void RootViewModel::read()
{
    const AppSettings settings = m_store ? m_store->settings() : AppSettings();
    if (const QString title = OrvelNavigation::windowTitle(settings); title != m_title) {
        m_title = title;
        emit titleChanged();
    }
    if (settings.hasCompletedOnboarding != m_hasCompletedOnboarding) {
        m_hasCompletedOnboarding = settings.hasCompletedOnboarding;
        emit hasCompletedOnboardingChanged();
    }
}
