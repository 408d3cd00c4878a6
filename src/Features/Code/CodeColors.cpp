#include "Features/Code/CodeColors.h"

#include "DesignSystem/OVTheme.h"
#include "Features/Code/CodePalette.h"

namespace
{
QColor inkOf(std::string_view role, const OVColors &colors)
{
    if (role == "ovInkSecondary")
        return colors.inkSecondary;
    return role == "ovInkTertiary" ? colors.inkTertiary : colors.ink;
}
} // namespace

CodeHighlighter::Colors CodeColors::current()
{
    const OVThemeSnapshot &theme = OVTheme::current();
    const OVColors inks = OVTheme::colors();
    CodeHighlighter::Colors colors;
    for (std::size_t kind = 0; kind < colors.size(); ++kind) {
        const CodeColor color = CodePalette::color(CodeTokenKind(kind));
        const std::string_view digits = theme.dark ? color.dark : color.light;
        colors[kind] = theme.inkMode || digits.empty()
                           ? inkOf(color.inkRole, inks)
                           : QColor(u'#' + QLatin1String(digits.data(), qsizetype(digits.size())));
    }
    return colors;
}
