#pragma once

#include "Foundation/LineText.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Bounds texts of the user's before they are laid out, for views that get them as they are stored.
class DisplayText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// See `LineText::shown`.
    Q_INVOKABLE static QString shown(const QString &text) { return LineText::shown(text); }
};
