#pragma once

#include "DesignSystem/TextFinder.h"
#include "Session/OrvelSession.h"

/// Makes the search within a screen known to the menus, for as long as the screen is shown:
///
///     ShownFinder { active: root.visible; finder: page.finder; session: Orvel }
class ShownFinder : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(OrvelSession *session MEMBER m_session WRITE setSession NOTIFY changed REQUIRED FINAL)
    Q_PROPERTY(TextFinder *finder MEMBER m_finder WRITE setFinder NOTIFY changed REQUIRED FINAL)
    Q_PROPERTY(bool active MEMBER m_active WRITE setActive NOTIFY changed FINAL)

public:
    using QObject::QObject;
    ~ShownFinder() override { tell(false); }

    void setSession(OrvelSession *session);
    void setFinder(TextFinder *finder);
    void setActive(bool active);

signals:
    void changed();

private:
    void tell(bool isShown);

    QPointer<OrvelSession> m_session;
    QPointer<TextFinder> m_finder;
    bool m_active = true;
};
