#pragma once

#include "Foundation/Choice.h"
#include "Models/CodeLanguage.h"

#include <QtQml/qqmlregistration.h>

/// The languages as menus and tooltips name them. An unknown raw text reads as the first language.
class CodeLanguageList : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// In the order of menus.
    Q_PROPERTY(QList<Choice> choices READ choices CONSTANT FINAL)

public:
    using QObject::QObject;

    QList<Choice> choices() const { return Choice::all<CodeLanguage>(); }
    Q_INVOKABLE QString label(const QString &raw) const;
    Q_INVOKABLE bool canRun(const QString &raw) const;
    Q_INVOKABLE QString unsupportedReason(const QString &raw) const;
};
