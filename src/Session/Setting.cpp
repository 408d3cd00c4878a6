#include "Session/Setting.h"

#include "Support/SettingFields.h"

void Setting::setSession(OrvelSession *session)
{
    if (m_session == session)
        return;
    Q_ASSERT_X(!m_session, "Setting", "a setting belongs to one session");
    m_session = session;
    connect(session->store(), &WorkspaceStore::changed, this, [this](const ChangeSet &changes) {
        if (changes.settings)
            follow();
    });
    emit sessionChanged();
    follow();
}

void Setting::setField(const QString &field)
{
    if (m_field == field)
        return;
    m_field = field;
    emit fieldChanged();
    follow();
}

bool Setting::set(const QVariant &value)
{
    AppSettings next = m_session->store()->settings();
    if (!SettingFields::set(next, m_field, value)) {
        qWarning("The setting %ls can't hold %ls", qUtf16Printable(m_field),
                 qUtf16Printable(value.toString()));
        return false;
    }
    m_session->store()->changeSettings([&next](AppSettings &settings) { settings = next; });
    return true;
}

void Setting::follow()
{
    if (!m_session || m_field.isEmpty())
        return;
    QVariant next = SettingFields::value(m_session->store()->settings(), m_field);
    if (!next.isValid())
        qWarning("There is no setting %ls", qUtf16Printable(m_field));
    if (next == m_value)
        return;
    m_value = std::move(next);
    emit valueChanged();
}
