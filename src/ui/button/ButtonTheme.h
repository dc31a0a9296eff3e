#pragma once

#include <QColor>
#include <QPalette>

namespace zerna {

enum class ButtonState { Normal, Hover, Pressed, Checked, Disabled };

/// How a button looks in one state. Lengths in logical pixels.
struct ButtonLook {
    QColor backgroundStart; ///< upper end of the gradient
    QColor backgroundEnd; ///< lower end of the gradient
    QColor frame;
    QColor text;
    qreal cornerRadius = 4;
    qreal frameWidth = 1;

    bool operator==(const ButtonLook&) const = default;
};

/// The looks of a button in all its states. Any theme may be shown to every button of the program at once,
/// see StyledButton::setApplicationTheme.
struct ButtonTheme {
    ButtonLook normal;
    ButtonLook hover;
    ButtonLook pressed;
    ButtonLook checked;
    ButtonLook disabled;
    QColor focus; ///< ring inside the frame of the button that has the keyboard focus

    bool operator==(const ButtonTheme&) const = default;
};

/// What is true of a button at the moment; several may be true at once.
struct ButtonCondition {
    bool enabled = true;
    bool pressed = false;
    bool checked = false;
    bool hovered = false;
};

/// The state that counts: disabled before pressed before checked before hover.
ButtonState stateOf(const ButtonCondition& condition);

/// The look of the state that counts. A checked button still answers to the mouse pointer, and is still told from
/// an unchecked one while disabled: these two looks are mixed from two of the theme's.
ButtonLook lookOf(const ButtonTheme& theme, const ButtonCondition& condition);

/// Light or dark theme derived from the active colours Button, ButtonText, Window and Highlight. Text stands out
/// from both ends of the background by 4.5:1 or more in every state, the focus colour by 3:1 or more.
ButtonTheme themeFromPalette(const QPalette& palette);

} // namespace zerna
