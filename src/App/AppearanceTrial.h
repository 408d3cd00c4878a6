#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Shows the window in an appearance that is being considered, for as long as this lives. Nothing of it is
/// stored.
class AppearanceTrial : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// Position among the appearances.
    Q_PROPERTY(int appearance READ appearance WRITE setAppearance NOTIFY appearanceChanged REQUIRED FINAL)

public:
    using QObject::QObject;
    ~AppearanceTrial() override;

    int appearance() const { return m_appearance; }
    void setAppearance(int appearance);

signals:
    void appearanceChanged();

private:
    int m_appearance = -1;
};
