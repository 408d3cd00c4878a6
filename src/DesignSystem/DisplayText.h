#pragma once

#include "DesignSystem/OVEmojiProvider.h"
#include "Foundation/LineText.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Makes texts of the user's ready for views that get them as they are stored.
class DisplayText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Bounds a text before it is laid out; see `LineText::shown`.
    Q_INVOKABLE static QString shown(const QString &text) { return LineText::shown(text); }

    /// See `OVEmojiProvider::source`.
    Q_INVOKABLE static QString emojiSource(const QString &text, const QColor &color)
    {
        return OVEmojiProvider::source(text, color);
    }
};
