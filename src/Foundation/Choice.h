#pragma once

#include "Foundation/EnumTable.h"

#include <QObject>

/// One case of an enumeration as menus, chips and badges show it.
struct Choice {
    Q_GADGET
    /// The raw text, by which the choice is told to C++.
    Q_PROPERTY(QString raw MEMBER raw FINAL)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    /// A `BadgeTone`.
    Q_PROPERTY(int tone MEMBER tone FINAL)

public:
    QString raw;
    QString label;
    QString symbol;
    int tone = 0;

    bool operator==(const Choice &) const = default;

    template <TabledEnum Enum>
    static Choice of(Enum value)
    {
        return {enumRawText(value), enumLabel(value), enumSymbol(value), int(enumCase(value).tone)};
    }
    /// All cases in order.
    template <TabledEnum Enum>
    static QList<Choice> all()
    {
        QList<Choice> choices;
        for (const auto &entry : enumCases<Enum>())
            choices.append(of(entry.value));
        return choices;
    }
};
