#include "ui/button/ButtonTheme.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "ui/platform/Farben.h"

namespace zerna {

namespace {

constexpr double TextContrast = 4.5;
constexpr double LineContrast = 3.0;
constexpr double BaseContrast = 10.0; // leaves room for the tints of hover, pressed and checked

/// `share` 0 gives `one`, 1 gives `other`.
QColor mixed(const QColor& one, const QColor& other, double share)
{
    const auto channel = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
    return {channel(one.red(), other.red()), channel(one.green(), other.green()), channel(one.blue(), other.blue())};
}

double smallestContrast(const QColor& colour, std::initializer_list<QColor> backgrounds)
{
    double smallest = 21;
    for (const QColor& background : backgrounds)
        smallest = std::min(smallest, contrastRatio(colour, background));
    return smallest;
}

/// `colour`, moved no further towards black or white than it takes to stand out from all backgrounds.
QColor standingOut(const QColor& colour, std::initializer_list<QColor> backgrounds, double contrast)
{
    constexpr int Steps = 50;
    const bool lighten = smallestContrast(Qt::white, backgrounds) > smallestContrast(Qt::black, backgrounds);
    const QColor pole = lighten ? Qt::white : Qt::black;
    QColor result = colour;
    for (int step = 1; step <= Steps && smallestContrast(result, backgrounds) < contrast; ++step)
        result = mixed(colour, pole, static_cast<double>(step) / Steps);
    return result;
}

/// `look` with a text that stands out from both ends of the background. A gradient around medium grey can be too
/// light for white and too dark for black text; it is made flat, since any one colour bears one of the two.
ButtonLook legible(ButtonLook look, double contrast)
{
    const QColor wanted = look.text;
    look.text = standingOut(wanted, {look.backgroundStart, look.backgroundEnd}, contrast);
    if (smallestContrast(look.text, {look.backgroundStart, look.backgroundEnd}) < contrast) {
        look.backgroundStart = look.backgroundEnd = mixed(look.backgroundStart, look.backgroundEnd, 0.5);
        look.text = standingOut(wanted, {look.backgroundStart}, contrast);
    }
    return look;
}

/// `look` with its background moved towards that of `other`.
ButtonLook tinted(ButtonLook look, const ButtonLook& other, double share)
{
    look.backgroundStart = mixed(look.backgroundStart, other.backgroundStart, share);
    look.backgroundEnd = mixed(look.backgroundEnd, other.backgroundEnd, share);
    return look;
}

/// How far each state moves away from the base colour; 0 to 1.
struct Shades {
    double start; ///< towards white
    double end;
    double frame; ///< towards the text
    double hover; ///< towards the accent
    double pressed;
    double checked;
};

constexpr Shades LightShades{.start = 0.9, .end = 0.4, .frame = 0.3, .hover = 0.1, .pressed = 0.3, .checked = 0.2};
constexpr Shades DarkShades{.start = 0.12, .end = 0.06, .frame = 0.3, .hover = 0.16, .pressed = 0.4, .checked = 0.3};

ButtonLook disabledChecked(const ButtonTheme& theme)
{
    ButtonLook look = tinted(theme.disabled, theme.checked, 0.6);
    look.frame = mixed(theme.disabled.frame, theme.checked.frame, 0.3);
    look.frameWidth = theme.checked.frameWidth;
    return legible(look, TextContrast);
}

} // namespace

double contrastRatio(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({leuchtdichte(fromQt(one)), leuchtdichte(fromQt(other))});
    return (lighter + 0.05) / (darker + 0.05);
}

ButtonState stateOf(const ButtonCondition& condition)
{
    if (!condition.enabled)
        return ButtonState::Disabled;
    if (condition.pressed)
        return ButtonState::Pressed;
    if (condition.checked)
        return ButtonState::Checked;
    return condition.hovered ? ButtonState::Hover : ButtonState::Normal;
}

ButtonLook lookOf(const ButtonTheme& theme, const ButtonCondition& condition)
{
    switch (stateOf(condition)) {
    case ButtonState::Disabled:
        return condition.checked ? disabledChecked(theme) : theme.disabled;
    case ButtonState::Pressed:
        return theme.pressed;
    case ButtonState::Checked:
        return condition.hovered ? legible(tinted(theme.checked, theme.hover, 0.5), TextContrast) : theme.checked;
    case ButtonState::Hover:
        return theme.hover;
    case ButtonState::Normal:
        break;
    }
    return theme.normal;
}

ButtonTheme themeFromPalette(const QPalette& palette)
{
    const auto colour = [&palette](QPalette::ColorRole role) { return palette.color(QPalette::Active, role); };
    const QColor text = colour(QPalette::ButtonText);
    const bool dark = leuchtdichte(fromQt(text)) > leuchtdichte(fromQt(colour(QPalette::Button)));
    const Shades& shades = dark ? DarkShades : LightShades;

    // A medium grey carries neither black nor white text well once it is tinted, so move away from the text first.
    const QColor base = standingOut(colour(QPalette::Button), {dark ? Qt::white : Qt::black}, BaseContrast);
    const QColor start = mixed(base, Qt::white, shades.start);
    const QColor end = mixed(base, Qt::white, shades.end);
    const QColor frame = mixed(base, text, shades.frame);
    const QColor accent = standingOut(colour(QPalette::Highlight), {start, end}, LineContrast);
    const auto towardsAccent = [&accent](const QColor& from, double share) { return mixed(from, accent, share); };

    const QColor flat = mixed(base, colour(QPalette::Window), 0.5);

    ButtonTheme theme;
    theme.normal = legible({start, end, frame, text}, TextContrast);
    theme.hover =
        legible({towardsAccent(start, shades.hover), towardsAccent(end, shades.hover), towardsAccent(frame, 0.7), text},
            TextContrast);
    // Pressed turns the gradient over: the button seems pushed in.
    theme.pressed = legible(
        {towardsAccent(end, shades.pressed), towardsAccent(start, shades.pressed), mixed(accent, text, 0.2), text},
        TextContrast);
    const QColor tint = towardsAccent(end, shades.checked);
    theme.checked = legible({tint, tint, accent, mixed(accent, text, 0.6)}, TextContrast);
    theme.checked.frameWidth = 2;
    theme.disabled = legible({flat, flat, mixed(base, text, 0.15), mixed(text, base, 0.55)}, TextContrast);
    theme.focus = standingOut(accent,
        {start, end, theme.hover.backgroundStart, theme.hover.backgroundEnd, theme.pressed.backgroundStart,
            theme.pressed.backgroundEnd, theme.checked.backgroundStart, theme.checked.backgroundEnd},
        LineContrast);
    return theme;
}

} // namespace zerna
