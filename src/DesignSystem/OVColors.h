#pragma once

#include <QColor>

/// The named colours of one look.
struct OVColors {
    QColor canvas;
    QColor sidebar;
    QColor surface;
    QColor subtle;
    QColor hover;
    QColor border;
    QColor borderStrong;
    QColor ink;
    QColor inkSecondary;
    QColor inkTertiary;
    QColor link;
    QColor danger;
    QColor warning;
    QColor success;
    QColor info;

    bool operator==(const OVColors &) const = default;

    /// @param inkMode the paper look, whose papers and inks are the same in both appearances
    static OVColors of(bool inkMode, bool dark);
};
