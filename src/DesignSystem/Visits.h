#pragma once

#include <QObject>
#include <QSet>
#include <QtQml/qqmlregistration.h>

/// Which screens the user has seen since the start: only at its first visit does a screen build itself up.
class Visits : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Counts a visit; true for the first one.
    Q_INVOKABLE bool isFirst(const QString &screen)
    {
        const qsizetype known = m_screens.size();
        m_screens.insert(screen);
        return m_screens.size() > known;
    }

private:
    QSet<QString> m_screens;
};
