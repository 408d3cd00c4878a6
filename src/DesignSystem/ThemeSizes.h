#pragma once

#include "DesignSystem/ThemeType.h"

#include <algorithm>

/// Gaps, corners, icons and controls, in whole pixels.
class ThemeSizes : public ThemeType
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(int space4 READ space4 NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int space8 READ space8 NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int space12 READ space12 NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int space16 READ space16 NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int space24 READ space24 NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int space32 READ space32 NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int space48 READ space48 NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int screenPadding READ screenPadding NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int screenPaddingNarrow READ screenPaddingNarrow NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int cornerCard READ cornerCard NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int cornerSheet READ cornerSheet NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int cornerField READ cornerField NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int cornerMark READ cornerMark NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int lineWidth READ lineWidth NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int iconRow READ iconRow NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int iconButton READ iconButton NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int iconHeader READ iconHeader NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int iconTile READ iconTile NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int iconEmpty READ iconEmpty NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int iconPage READ iconPage NOTIFY sizesChanged FINAL)
    /// A round button that is the first thing in its card, and the mark of one day.
    Q_PROPERTY(int roundMark READ roundMark NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int dayMark READ dayMark NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int timerRing READ timerRing NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int chartHeight READ chartHeight NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int chartRow READ chartRow NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int chartHint READ chartHint NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int buttonHeight READ buttonHeight NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int fieldHeight READ fieldHeight NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int iconButtonSize READ iconButtonSize NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int chipHeight READ chipHeight NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int rowHeight READ rowHeight NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int sidebarWidth READ sidebarWidth NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int readingWidth READ readingWidth NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int bookWidth READ bookWidth NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int zenWidth READ zenWidth NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int listWidth READ listWidth NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int gridWidth READ gridWidth NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int fieldWidth READ fieldWidth NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int menuWidth READ menuWidth NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int dialogWidth READ dialogWidth NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int promptWidth READ promptWidth NOTIFY sizesChanged FINAL)
    Q_PROPERTY(int sheetWidth READ sheetWidth NOTIFY sizesChanged FINAL)
    Q_PROPERTY(double disabledOpacity READ disabledOpacity NOTIFY sizesChanged FINAL)

public:
    int space4() const { return gap(4); }
    int space8() const { return gap(8); }
    int space12() const { return gap(12); }
    int space16() const { return gap(16); }
    int space24() const { return gap(24); }
    int space32() const { return gap(32); }
    int space48() const { return gap(48); }
    int screenPadding() const { return gap(32); }
    int screenPaddingNarrow() const { return gap(20); }
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
    int roundMark() const { return scaled(44); }
    int dayMark() const { return scaled(22); }
    int timerRing() const { return scaled(230); }
    int chartHeight() const { return scaled(190); }
    /// A horizontal bar with its label.
    int chartRow() const { return scaled(44); }
    /// What stands in place of a chart without values.
    int chartHint() const { return scaled(120); }
    int buttonHeight() const { return control(34); }
    int fieldHeight() const { return control(36); }
    int iconButtonSize() const { return control(30); }
    int chipHeight() const { return control(28); }
    int rowHeight() const { return control(snapshot().compactSidebar ? 28 : 32); }
    int sidebarWidth() const { return scaled(snapshot().compactSidebar ? 208 : 248); }
    int readingWidth() const { return scaled(720); }
    int bookWidth() const { return scaled(660); }
    int zenWidth() const { return scaled(640); }
    int listWidth() const { return scaled(920); }
    int gridWidth() const { return scaled(1180); }
    int fieldWidth() const { return scaled(240); }
    int menuWidth() const { return scaled(180); }
    int dialogWidth() const { return scaled(420); }
    int promptWidth() const { return scaled(440); }
    int sheetWidth() const { return scaled(560); }
    double disabledOpacity() const { return 0.45; }

protected:
    using ThemeType::ThemeType;

private:
    static int gap(int pixels) { return qRound(pixels * snapshot().densityScale); }
    static int corner(int pixels) { return qRound(pixels * snapshot().cornerScale); }
    static int control(int pixels)
    {
        // Tight and loose rows differ less than gaps do, and large text always finds room.
        const double density = 1 + (snapshot().densityScale - 1) / 2;
        return qRound(pixels * density * std::max(1.0, snapshot().fontScale));
    }
};
