#pragma once

#include <QHBoxLayout>

#include <initializer_list>

#include "ui/button/StyledButton.h"

namespace zerna {

inline constexpr int Knopfbreite = 110; ///< of a button with a short caption, in logical pixels

/// Buttons of one size in a row at the right-hand side of whatever the row is put into.
inline QHBoxLayout* knopfzeile(std::initializer_list<StyledButton*> buttons)
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (StyledButton* const button : buttons) {
        button->setMinimumWidth(Knopfbreite);
        button->setFixedHeight(28);
        row->addWidget(button);
    }
    return row;
}

} // namespace zerna
