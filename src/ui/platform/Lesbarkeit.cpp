#include "ui/platform/Lesbarkeit.h"

#include <array>

#include "ui/platform/Kontrast.h"

namespace zerna {

namespace {

/// The colour that a partly transparent one gives on a ground.
QColor opaque(const QColor& colour, const QColor& ground) { return gemischt(ground, colour, colour.alphaF()); }

} // namespace

QPalette lesbar(QPalette palette)
{
    using Role = QPalette::ColorRole;
    constexpr std::array<std::pair<Role, Role>, 7> Texts{{{QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base}, {QPalette::ButtonText, QPalette::Button},
        {QPalette::PlaceholderText, QPalette::Base}, {QPalette::Link, QPalette::Window},
        {QPalette::LinkVisited, QPalette::Window}, {QPalette::ToolTipText, QPalette::ToolTipBase}}};
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const auto& [text, ground] : Texts) {
            const QColor below = palette.color(group, ground);
            palette.setColor(group, text, abgehoben(opaque(palette.color(group, text), below), {below}, Textkontrast));
        }
        const QColor selected = palette.color(group, QPalette::HighlightedText);
        palette.setColor(
            group, QPalette::Highlight, abgehoben(palette.color(group, QPalette::Highlight), {selected}, Textkontrast));
    }
    return palette;
}

void LesbarerStil::polish(QPalette& palette)
{
    QProxyStyle::polish(palette);
    palette = lesbar(palette);
}

} // namespace zerna
