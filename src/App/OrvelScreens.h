#pragma once

#include "Features/Shell/ScreenTable.h"

/// The table of all screens: one line each.
class OrvelScreens : public ScreenTable
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit OrvelScreens(QObject *parent = nullptr);

    QString text(const char *text) const override { return tr(text); }
};
