#pragma once

#include <QObject>

/// Counts the real changes of the appearance. Main thread only.
class ThemeRevision : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int value READ value NOTIFY valueChanged FINAL)

public:
    static ThemeRevision &shared();

    int value() const { return m_value; }

signals:
    void valueChanged();

private:
    friend class OVTheme;
    void increment();

    int m_value = 0;
};
