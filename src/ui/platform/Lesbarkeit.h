#pragma once

#include <QPalette>
#include <QProxyStyle>

namespace zerna {

/// The palette with every text at 4.5:1 or more against its ground, those of what is disabled and the hints in empty
/// fields too. Colours that stand out enough stay.
QPalette lesbar(QPalette palette);

/// The platform's usual style with that palette, also when the colours of the desktop change.
class LesbarerStil : public QProxyStyle {
public:
    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
};

} // namespace zerna
