#pragma once

#include "DesignSystem/OVFonts.h"
#include "DesignSystem/OVTheme.h"
#include "DesignSystem/ThemeSpring.h"

#include <QEasingCurve>
#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

/// What views read of the appearance: every colour, size and duration has its name here, and nothing is
/// literal in a view. Sizes are whole pixels, already multiplied by the scales that the person chose.
class Theme : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    // Colours
    Q_PROPERTY(QColor ovCanvas READ ovCanvas NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovSidebar READ ovSidebar NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovSurface READ ovSurface NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovSubtle READ ovSubtle NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovHover READ ovHover NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovBorder READ ovBorder NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovBorderStrong READ ovBorderStrong NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovInk READ ovInk NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovInkSecondary READ ovInkSecondary NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovInkTertiary READ ovInkTertiary NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovLink READ ovLink NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovDanger READ ovDanger NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovWarning READ ovWarning NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovSuccess READ ovSuccess NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovInfo READ ovInfo NOTIFY changed FINAL)
    Q_PROPERTY(QColor accent READ accent NOTIFY changed FINAL)
    Q_PROPERTY(QColor onAccent READ onAccent NOTIFY changed FINAL)
    /// Behind selected text.
    Q_PROPERTY(QColor selection READ selection NOTIFY changed FINAL)
    /// The ring around what has the keyboard's focus.
    Q_PROPERTY(QColor focusRing READ focusRing NOTIFY changed FINAL)
    /// Over the window behind a sheet.
    Q_PROPERTY(QColor ovScrim READ ovScrim NOTIFY changed FINAL)

    Q_PROPERTY(QList<QColor> canvasColors READ canvasColors NOTIFY changed FINAL)
    Q_PROPERTY(bool vividCanvas READ vividCanvas NOTIFY changed FINAL)

    // Choices
    Q_PROPERTY(bool dark READ dark NOTIFY changed FINAL)
    Q_PROPERTY(bool inkMode READ inkMode NOTIFY changed FINAL)
    Q_PROPERTY(bool glassySurfaces READ glassySurfaces NOTIFY changed FINAL)
    Q_PROPERTY(bool motionEnabled READ motionEnabled NOTIFY changed FINAL)
    Q_PROPERTY(bool animatedBackground READ animatedBackground NOTIFY changed FINAL)
    Q_PROPERTY(bool accentIcons READ accentIcons NOTIFY changed FINAL)
    Q_PROPERTY(bool tabBarLabels READ tabBarLabels NOTIFY changed FINAL)
    Q_PROPERTY(bool showQuote READ showQuote NOTIFY changed FINAL)
    Q_PROPERTY(bool compactSidebar READ compactSidebar NOTIFY changed FINAL)
    Q_PROPERTY(QString navigation READ navigation NOTIFY changed FINAL)
    Q_PROPERTY(double fontScale READ fontScale NOTIFY changed FINAL)
    Q_PROPERTY(double cornerScale READ cornerScale NOTIFY changed FINAL)
    Q_PROPERTY(double densityScale READ densityScale NOTIFY changed FINAL)

    // Gaps
    Q_PROPERTY(int space4 READ space4 NOTIFY changed FINAL)
    Q_PROPERTY(int space8 READ space8 NOTIFY changed FINAL)
    Q_PROPERTY(int space12 READ space12 NOTIFY changed FINAL)
    Q_PROPERTY(int space16 READ space16 NOTIFY changed FINAL)
    Q_PROPERTY(int space24 READ space24 NOTIFY changed FINAL)
    Q_PROPERTY(int space32 READ space32 NOTIFY changed FINAL)
    Q_PROPERTY(int space48 READ space48 NOTIFY changed FINAL)
    Q_PROPERTY(int screenPadding READ screenPadding NOTIFY changed FINAL)
    Q_PROPERTY(int screenPaddingNarrow READ screenPaddingNarrow NOTIFY changed FINAL)

    // Type
    Q_PROPERTY(QString fontFamily READ fontFamily NOTIFY changed FINAL)
    Q_PROPERTY(QString codeFamily READ codeFamily NOTIFY changed FINAL)
    Q_PROPERTY(int textWeight READ textWeight NOTIFY changed FINAL)
    Q_PROPERTY(QString numberFamily READ numberFamily NOTIFY changed FINAL)
    Q_PROPERTY(QString emojiFamily READ emojiFamily CONSTANT FINAL)
    Q_PROPERTY(QString serifFamily READ serifFamily NOTIFY changed FINAL)
    Q_PROPERTY(int sizeScreenTitle READ sizeScreenTitle NOTIFY changed FINAL)
    Q_PROPERTY(int sizeCardTitle READ sizeCardTitle NOTIFY changed FINAL)
    Q_PROPERTY(int sizeBody READ sizeBody NOTIFY changed FINAL)
    Q_PROPERTY(int sizeDense READ sizeDense NOTIFY changed FINAL)
    Q_PROPERTY(int sizeCaption READ sizeCaption NOTIFY changed FINAL)
    Q_PROPERTY(int sizeSection READ sizeSection NOTIFY changed FINAL)
    Q_PROPERTY(int sizeTile READ sizeTile NOTIFY changed FINAL)
    Q_PROPERTY(int sizeCode READ sizeCode NOTIFY changed FINAL)
    Q_PROPERTY(int sizePageTitle READ sizePageTitle NOTIFY changed FINAL)
    Q_PROPERTY(int sizeHeading1 READ sizeHeading1 NOTIFY changed FINAL)
    Q_PROPERTY(int sizeHeading2 READ sizeHeading2 NOTIFY changed FINAL)
    Q_PROPERTY(int sizeHeading3 READ sizeHeading3 NOTIFY changed FINAL)
    Q_PROPERTY(int sizeReading READ sizeReading NOTIFY changed FINAL)

    // Corners and lines
    Q_PROPERTY(int cornerCard READ cornerCard NOTIFY changed FINAL)
    Q_PROPERTY(int cornerSheet READ cornerSheet NOTIFY changed FINAL)
    Q_PROPERTY(int cornerField READ cornerField NOTIFY changed FINAL)
    Q_PROPERTY(int cornerMark READ cornerMark NOTIFY changed FINAL)
    Q_PROPERTY(int lineWidth READ lineWidth NOTIFY changed FINAL)

    // Icons
    Q_PROPERTY(int iconRow READ iconRow NOTIFY changed FINAL)
    Q_PROPERTY(int iconButton READ iconButton NOTIFY changed FINAL)
    Q_PROPERTY(int iconHeader READ iconHeader NOTIFY changed FINAL)
    Q_PROPERTY(int iconTile READ iconTile NOTIFY changed FINAL)
    Q_PROPERTY(int iconEmpty READ iconEmpty NOTIFY changed FINAL)
    Q_PROPERTY(int iconPage READ iconPage NOTIFY changed FINAL)

    // Controls
    Q_PROPERTY(int buttonHeight READ buttonHeight NOTIFY changed FINAL)
    Q_PROPERTY(int fieldHeight READ fieldHeight NOTIFY changed FINAL)
    Q_PROPERTY(int iconButtonSize READ iconButtonSize NOTIFY changed FINAL)
    Q_PROPERTY(int chipHeight READ chipHeight NOTIFY changed FINAL)
    Q_PROPERTY(int rowHeight READ rowHeight NOTIFY changed FINAL)
    Q_PROPERTY(int sidebarWidth READ sidebarWidth NOTIFY changed FINAL)
    Q_PROPERTY(int readingWidth READ readingWidth NOTIFY changed FINAL)
    Q_PROPERTY(int zenWidth READ zenWidth NOTIFY changed FINAL)
    Q_PROPERTY(int listWidth READ listWidth NOTIFY changed FINAL)
    Q_PROPERTY(int gridWidth READ gridWidth NOTIFY changed FINAL)
    Q_PROPERTY(int fieldWidth READ fieldWidth NOTIFY changed FINAL)
    Q_PROPERTY(int menuWidth READ menuWidth NOTIFY changed FINAL)
    Q_PROPERTY(int dialogWidth READ dialogWidth NOTIFY changed FINAL)
    Q_PROPERTY(int promptWidth READ promptWidth NOTIFY changed FINAL)
    Q_PROPERTY(int sheetWidth READ sheetWidth NOTIFY changed FINAL)
    Q_PROPERTY(double disabledOpacity READ disabledOpacity NOTIFY changed FINAL)

    // Motion in milliseconds; 0 where motion is off
    Q_PROPERTY(int durationHover READ durationHover NOTIFY changed FINAL)
    Q_PROPERTY(int durationMenu READ durationMenu NOTIFY changed FINAL)
    Q_PROPERTY(int durationScreen READ durationScreen NOTIFY changed FINAL)
    Q_PROPERTY(int durationRemoval READ durationRemoval NOTIFY changed FINAL)
    Q_PROPERTY(int durationSpring READ durationSpring NOTIFY changed FINAL)
    Q_PROPERTY(double springResponse READ springResponse NOTIFY changed FINAL)
    Q_PROPERTY(QEasingCurve springEasing READ springEasing NOTIFY changed FINAL)
    Q_PROPERTY(int tooltipDelay READ tooltipDelay NOTIFY changed FINAL)
    Q_PROPERTY(int toastDuration READ toastDuration NOTIFY changed FINAL)

public:
    /// Also gives the engine its icons.
    static Theme *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    QColor ovCanvas() const { return m_colors.canvas; }
    QColor ovSidebar() const { return m_colors.sidebar; }
    QColor ovSurface() const { return m_colors.surface; }
    QColor ovSubtle() const { return m_colors.subtle; }
    QColor ovHover() const { return m_colors.hover; }
    QColor ovBorder() const { return m_colors.border; }
    QColor ovBorderStrong() const { return m_colors.borderStrong; }
    QColor ovInk() const { return m_colors.ink; }
    /// Where the canvas is tinted, a shade stronger than the named colour, as it must stay readable there.
    QColor ovInkSecondary() const { return m_inkSecondary; }
    QColor ovInkTertiary() const { return m_colors.inkTertiary; }
    QColor ovLink() const { return m_colors.link; }
    QColor ovDanger() const { return m_colors.danger; }
    QColor ovWarning() const { return m_colors.warning; }
    QColor ovSuccess() const { return m_colors.success; }
    QColor ovInfo() const { return m_colors.info; }
    QColor accent() const { return snapshot().accentColor; }
    QColor onAccent() const { return snapshot().onAccent; }
    QColor selection() const;
    QColor focusRing() const;
    QColor ovScrim() const;

    /// The gradient of the window's ground; empty where the plain canvas colour shows.
    QList<QColor> canvasColors() const;
    bool vividCanvas() const;

    bool dark() const { return snapshot().dark; }
    bool inkMode() const { return snapshot().inkMode; }
    bool glassySurfaces() const { return snapshot().glassySurfaces; }
    bool motionEnabled() const { return snapshot().motionEnabled; }
    bool animatedBackground() const { return snapshot().animatedBackground; }
    bool accentIcons() const { return snapshot().accentIcons; }
    bool tabBarLabels() const { return snapshot().tabBarLabels; }
    bool showQuote() const { return snapshot().showQuote; }
    bool compactSidebar() const { return snapshot().compactSidebar; }
    QString navigation() const { return enumRawText(snapshot().navigation); }
    double fontScale() const { return snapshot().fontScale; }
    double cornerScale() const { return snapshot().cornerScale; }
    double densityScale() const { return snapshot().densityScale; }

    int space4() const { return gap(4); }
    int space8() const { return gap(8); }
    int space12() const { return gap(12); }
    int space16() const { return gap(16); }
    int space24() const { return gap(24); }
    int space32() const { return gap(32); }
    int space48() const { return gap(48); }
    int screenPadding() const { return gap(32); }
    int screenPaddingNarrow() const { return gap(20); }

    QString fontFamily() const { return OVFonts::family(snapshot().fontDesign); }
    QString codeFamily() const { return OVFonts::family(FontChoice::monospaced); }
    /// Weight of ordinary text: the rounded family is thin, and set a step stronger.
    int textWeight() const
    {
        return snapshot().fontDesign == FontChoice::rounded ? QFont::Medium : QFont::Normal;
    }
    QString numberFamily() const { return OVFonts::numberFamily(snapshot().fontDesign); }
    QString emojiFamily() const { return OVFonts::emojiFamily(); }
    QString serifFamily() const { return OVFonts::family(FontChoice::serif); }
    int sizeScreenTitle() const { return text(28); }
    int sizeCardTitle() const { return text(17); }
    int sizeBody() const { return text(14); }
    int sizeDense() const { return text(13); }
    int sizeCaption() const { return text(12); }
    int sizeSection() const { return text(12); }
    int sizeTile() const { return text(26); }
    int sizeCode() const { return text(13); }
    int sizePageTitle() const { return text(38); }
    int sizeHeading1() const { return text(26); }
    int sizeHeading2() const { return text(21); }
    int sizeHeading3() const { return text(17); }
    int sizeReading() const { return text(16); }

    int cornerCard() const { return corner(14); }
    int cornerSheet() const { return corner(18); }
    int cornerField() const { return corner(9); }
    int cornerMark() const { return corner(6); }
    int lineWidth() const { return 1; }

    int iconRow() const { return scaled(16); }
    int iconButton() const { return scaled(18); }
    int iconHeader() const { return scaled(20); }
    int iconTile() const { return scaled(24); }
    int iconEmpty() const { return scaled(40); }
    int iconPage() const { return scaled(58); }

    int buttonHeight() const { return control(34); }
    int fieldHeight() const { return control(36); }
    int iconButtonSize() const { return control(30); }
    int chipHeight() const { return control(28); }
    int rowHeight() const { return control(snapshot().compactSidebar ? 28 : 32); }
    int sidebarWidth() const { return scaled(snapshot().compactSidebar ? 208 : 248); }
    int readingWidth() const { return scaled(720); }
    int zenWidth() const { return scaled(640); }
    int listWidth() const { return scaled(920); }
    int gridWidth() const { return scaled(1180); }
    int fieldWidth() const { return scaled(240); }
    int menuWidth() const { return scaled(180); }
    int dialogWidth() const { return scaled(420); }
    int promptWidth() const { return scaled(440); }
    int sheetWidth() const { return scaled(560); }
    double disabledOpacity() const { return 0.45; }

    int durationHover() const { return duration(120); }
    int durationMenu() const { return duration(120); }
    int durationScreen() const { return duration(160); }
    int durationRemoval() const { return duration(160); }
    int durationSpring() const { return duration(ThemeSpring::duration(snapshot().animation)); }
    double springResponse() const { return ThemeSpring::response(snapshot().animation); }
    QEasingCurve springEasing() const { return ThemeSpring::curve(snapshot().animation); }
    int tooltipDelay() const { return 500; }
    int toastDuration() const { return 4000; }

signals:
    void changed();

private:
    explicit Theme(QObject *parent);

    static const OVThemeSnapshot &snapshot() { return OVTheme::current(); }
    static int gap(int pixels) { return qRound(pixels * snapshot().densityScale); }
    static int text(int pixels) { return qRound(pixels * snapshot().fontScale); }
    static int corner(int pixels) { return qRound(pixels * snapshot().cornerScale); }
    /// Things that hold or go with text grow with it.
    static int scaled(int pixels) { return qRound(pixels * snapshot().fontScale); }
    static int control(int pixels);
    static int duration(double milliseconds) { return snapshot().motionEnabled ? qRound(milliseconds) : 0; }

    void readColors();

    OVColors m_colors;
    QColor m_inkSecondary;
};
