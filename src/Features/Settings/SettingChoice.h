#pragma once

#include "DesignSystem/OVLook.h"

#include <QVariant>

/// One of the values that a setting can take, as a card, tile, chip or row shows it. Each kind of control
/// reads what it draws.
struct SettingChoice {
    Q_GADGET
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString detail MEMBER detail FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    /// The raw text of an enum's case.
    Q_PROPERTY(QString raw MEMBER raw FINAL)
    /// A font that shows what the choice means; empty for that of the window.
    Q_PROPERTY(QString family MEMBER family FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(QColor onColor MEMBER onColor FINAL)
    Q_PROPERTY(QList<OVLook> looks MEMBER looks FINAL)
    Q_PROPERTY(bool isSelected MEMBER isSelected FINAL)

public:
    QString label;
    QString detail = {};
    QString symbol = {};
    QString raw = {};
    QString family = {};
    QColor color = {};
    QColor onColor = {};
    QList<OVLook> looks = {};
    /// What the field takes; see `SettingFields`.
    QVariant value = {};
    bool isSelected = false;

    const QString &id() const { return label; }
    bool operator==(const SettingChoice &) const = default;
};
