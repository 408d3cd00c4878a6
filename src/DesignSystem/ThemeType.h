#pragma once

#include "DesignSystem/OVFonts.h"
#include "DesignSystem/ThemeColors.h"

#include <QFont>

/// Families and sizes of text, in whole pixels.
class ThemeType : public ThemeColors
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QString fontFamily READ fontFamily NOTIFY typeChanged FINAL)
    Q_PROPERTY(QString codeFamily READ codeFamily NOTIFY typeChanged FINAL)
    Q_PROPERTY(int textWeight READ textWeight NOTIFY typeChanged FINAL)
    Q_PROPERTY(QString emojiFamily READ emojiFamily CONSTANT FINAL)
    Q_PROPERTY(QString serifFamily READ serifFamily NOTIFY typeChanged FINAL)
    Q_PROPERTY(int sizeScreenTitle READ sizeScreenTitle NOTIFY typeChanged FINAL)
    Q_PROPERTY(int sizeCardTitle READ sizeCardTitle NOTIFY typeChanged FINAL)
    Q_PROPERTY(int sizeBody READ sizeBody NOTIFY typeChanged FINAL)
    Q_PROPERTY(int sizeDense READ sizeDense NOTIFY typeChanged FINAL)
    Q_PROPERTY(int sizeCaption READ sizeCaption NOTIFY typeChanged FINAL)
    Q_PROPERTY(int sizeSection READ sizeSection NOTIFY typeChanged FINAL)
    Q_PROPERTY(int sizeTile READ sizeTile NOTIFY typeChanged FINAL)
    Q_PROPERTY(int sizeCode READ sizeCode NOTIFY typeChanged FINAL)
    Q_PROPERTY(int sizePageTitle READ sizePageTitle NOTIFY typeChanged FINAL)
    Q_PROPERTY(int sizeHeading1 READ sizeHeading1 NOTIFY typeChanged FINAL)
    Q_PROPERTY(int sizeHeading2 READ sizeHeading2 NOTIFY typeChanged FINAL)
    Q_PROPERTY(int sizeHeading3 READ sizeHeading3 NOTIFY typeChanged FINAL)
    Q_PROPERTY(int sizeReading READ sizeReading NOTIFY typeChanged FINAL)
    /// Of the text of a book, before the reader's own scale.
    Q_PROPERTY(int sizeBook READ sizeBook NOTIFY typeChanged FINAL)

public:
    QString fontFamily() const { return OVFonts::family(snapshot().fontDesign); }
    QString codeFamily() const { return OVFonts::family(FontChoice::monospaced); }
    /// Weight of ordinary text: the rounded family is thin, and set a step stronger.
    int textWeight() const
    {
        return snapshot().fontDesign == FontChoice::rounded ? QFont::Medium : QFont::Normal;
    }
    QString emojiFamily() const { return OVFonts::emojiFamily(); }
    QString serifFamily() const { return OVFonts::family(FontChoice::serif); }
    int sizeScreenTitle() const { return scaled(28); }
    int sizeCardTitle() const { return scaled(17); }
    int sizeBody() const { return scaled(14); }
    int sizeDense() const { return scaled(13); }
    int sizeCaption() const { return scaled(12); }
    int sizeSection() const { return scaled(12); }
    int sizeTile() const { return scaled(26); }
    int sizeCode() const { return scaled(13); }
    int sizePageTitle() const { return scaled(38); }
    int sizeHeading1() const { return scaled(26); }
    int sizeHeading2() const { return scaled(21); }
    int sizeHeading3() const { return scaled(17); }
    int sizeReading() const { return scaled(16); }
    int sizeBook() const { return scaled(18); }

protected:
    using ThemeColors::ThemeColors;
};
