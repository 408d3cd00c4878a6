#pragma once

#include "DesignSystem/OVLook.h"

#include <QtQml/qqmlregistration.h>

/// A module as the onboarding offers it.
struct OnboardingModule {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString blurb MEMBER blurb FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)

public:
    QString title;
    QString blurb;
    QString symbol;

    bool operator==(const OnboardingModule &) const = default;
};

/// An appearance with the looks that a picture of it shows: what it can come out as.
struct OnboardingAppearance {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QList<OVLook> looks MEMBER looks FINAL)

public:
    QString title;
    QString symbol;
    QList<OVLook> looks;

    bool operator==(const OnboardingAppearance &) const = default;
};

/// One line of the summary before the workspace is entered.
struct OnboardingSummaryRow {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString value MEMBER value FINAL)

public:
    QString symbol;
    QString label;
    QString value;

    bool operator==(const OnboardingSummaryRow &) const = default;
};
