#pragma once

#include "Features/Code/ConsoleExcerpt.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// `ConsoleExcerpt` for QML.
class ConsoleExcerptText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString output MEMBER m_output NOTIFY outputChanged FINAL)
    Q_PROPERTY(QString shown READ shown NOTIFY outputChanged FINAL)

public:
    using QObject::QObject;

    QString shown() const
    {
        // As much as a text can show at once without a hitch.
        constexpr qsizetype limit = 60'000;
        return ConsoleExcerpt::of(m_output, limit);
    }

signals:
    void outputChanged();

private:
    QString m_output;
};
