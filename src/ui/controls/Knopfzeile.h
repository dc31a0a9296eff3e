#pragma once

#include <QHBoxLayout>

#include <initializer_list>

#include "ui/button/StyledButton.h"
#include "ui/controls/Masse.h"
#include "ui/platform/Schriftfolge.h"

namespace zerna {

inline constexpr int Knopfbreite = 110; ///< of a button with a short caption, in logical pixels

/// Gives a button the height of all buttons, at least a width, and room for its caption.
inline void setKnopfgroesse(StyledButton* button, int width = Knopfbreite)
{
    folgeSchrift(button, [button, width] {
        button->setMinimumWidth(qMax(width, button->sizeHint().width()));
        button->setFixedHeight(knopfhoehe(*button));
    });
}

/// Makes a button of one sign as wide as it is high.
inline void setZeichenknopf(StyledButton* button)
{
    folgeSchrift(button, [button] { button->setFixedSize(knopfhoehe(*button), feldhoehe(*button)); });
}

/// Buttons of one size in a row at the right-hand side of whatever the row is put into.
inline QHBoxLayout* knopfzeile(std::initializer_list<StyledButton*> buttons)
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (StyledButton* const button : buttons) {
        setKnopfgroesse(button);
        row->addWidget(button);
    }
    return row;
}

} // namespace zerna
