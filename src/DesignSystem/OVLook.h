#pragma once

#include "DesignSystem/OVThemeSnapshot.h"

#include <QObject>

/// The colours and corners of one appearance, for a small picture of a window that shows it before it is
/// chosen.
struct OVLook {
    Q_GADGET
    /// The ground of the window from top to bottom, three colours.
    Q_PROPERTY(QList<QColor> ground MEMBER ground FINAL)
    Q_PROPERTY(QColor sidebar MEMBER sidebar FINAL)
    Q_PROPERTY(QColor surface MEMBER surface FINAL)
    Q_PROPERTY(QColor hover MEMBER hover FINAL)
    Q_PROPERTY(QColor border MEMBER border FINAL)
    Q_PROPERTY(QColor borderStrong MEMBER borderStrong FINAL)
    Q_PROPERTY(QColor ink MEMBER ink FINAL)
    Q_PROPERTY(QColor inkTertiary MEMBER inkTertiary FINAL)
    Q_PROPERTY(QColor accent MEMBER accent FINAL)
    Q_PROPERTY(double cornerScale MEMBER cornerScale FINAL)

public:
    QList<QColor> ground;
    QColor sidebar;
    QColor surface;
    QColor hover;
    QColor border;
    QColor borderStrong;
    QColor ink;
    QColor inkTertiary;
    QColor accent;
    double cornerScale = 1.0;

    bool operator==(const OVLook &) const = default;

    static OVLook of(const OVThemeSnapshot &snapshot);
    /// The looks that the settings can come out as: light and dark where they follow the desktop, else one.
    static QList<OVLook> possible(const AppSettings &settings);
};
