#include "ui/button/ButtonTheme.h"

#include "ui/platform/Farben.h"

namespace zerna {

namespace {

constexpr double BaseContrast = 10.0; // leaves room for the tints of hover, pressed and checked

/// `look` with a text that stands out from both ends of the background. A gradient around medium grey can be too
/// light for white and too dark for black text; it is made flat, since any one colour bears one of the two.
ButtonLook legible(ButtonLook look)
{
    const QColor wanted = look.text;
    look.text = abgehoben(wanted, {look.backgroundStart, look.backgroundEnd}, Textkontrast);
    if (kleinsterKontrast(look.text, {look.backgroundStart, look.backgroundEnd}) < Textkontrast) {
        look.backgroundStart = look.backgroundEnd = gemischt(look.backgroundStart, look.backgroundEnd, 0.5);
        look.text = abgehoben(wanted, {look.backgroundStart}, Textkontrast);
    }
    return look;
}

/// `look` with its background moved towards that of `other`.
ButtonLook tinted(ButtonLook look, const ButtonLook& other, double share)
{
    look.backgroundStart = gemischt(look.backgroundStart, other.backgroundStart, share);
    look.backgroundEnd = gemischt(look.backgroundEnd, other.backgroundEnd, share);
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
    look.frame = gemischt(theme.disabled.frame, theme.checked.frame, 0.3);
    look.frameWidth = theme.checked.frameWidth;
    return legible(look);
}

} // namespace

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
        return condition.hovered ? legible(tinted(theme.checked, theme.hover, 0.5)) : theme.checked;
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
    const QColor base = abgehoben(colour(QPalette::Button), {dark ? Qt::white : Qt::black}, BaseContrast);
    const QColor start = gemischt(base, Qt::white, shades.start);
    const QColor end = gemischt(base, Qt::white, shades.end);
    const QColor frame = gemischt(base, text, shades.frame);
    const QColor accent = abgehoben(colour(QPalette::Highlight), {start, end}, Grafikkontrast);
    const auto towardsAccent = [&accent](const QColor& from, double share) { return gemischt(from, accent, share); };

    const QColor flat = gemischt(base, colour(QPalette::Window), 0.5);

    ButtonTheme theme;
    theme.normal = legible({start, end, frame, text});
    theme.hover = legible(
        {towardsAccent(start, shades.hover), towardsAccent(end, shades.hover), towardsAccent(frame, 0.7), text});
    // Pressed turns the gradient over: the button seems pushed in.
    theme.pressed = legible(
        {towardsAccent(end, shades.pressed), towardsAccent(start, shades.pressed), gemischt(accent, text, 0.2), text});
    const QColor tint = towardsAccent(end, shades.checked);
    theme.checked = legible({tint, tint, accent, gemischt(accent, text, 0.6)});
    theme.checked.frameWidth = 2;
    theme.disabled = legible({flat, flat, gemischt(base, text, 0.15), gemischt(text, base, 0.55)});
    theme.focus = abgehoben(accent,
        {start, end, theme.hover.backgroundStart, theme.hover.backgroundEnd, theme.pressed.backgroundStart,
            theme.pressed.backgroundEnd, theme.checked.backgroundStart, theme.checked.backgroundEnd},
        Grafikkontrast);
    return theme;
}

} // namespace zerna
