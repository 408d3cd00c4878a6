#pragma once

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/// The languages as menus and tooltips name them. An unknown raw text reads as the first language.
class CodeLanguageList : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// In the order of menus; both lists go together.
    Q_PROPERTY(QList<QString> rawTexts READ rawTexts CONSTANT FINAL)
    Q_PROPERTY(QList<QString> labels READ labels CONSTANT FINAL)

public:
    using QObject::QObject;

    QStringList rawTexts() const;
    QStringList labels() const;

    Q_INVOKABLE QString label(const QString &raw) const;
    Q_INVOKABLE bool canRun(const QString &raw) const;
    Q_INVOKABLE QString unsupportedReason(const QString &raw) const;
};
