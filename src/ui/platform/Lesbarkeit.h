#pragma once

#include <QPalette>
#include <QProxyStyle>

namespace zerna {

/// The palette with every text at 4.5:1 or more against its ground, those of what is disabled and the hints in empty
/// fields too. Colours that stand out enough stay.
QPalette lesbar(QPalette palette);

/// The platform's usual style with that palette, also when the colours of the desktop change, and without animations.
/// What has the focus has a frame that no theme hides. Its icons are read when they are painted: every menu bar has one
/// for commands that find no room.
class LesbarerStil : public QProxyStyle {
public:
    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
    void polish(QApplication* application) override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget = nullptr) const override;
    int pixelMetric(
        PixelMetric metric, const QStyleOption* option = nullptr, const QWidget* widget = nullptr) const override;
    QIcon standardIcon(
        StandardPixmap icon, const QStyleOption* option = nullptr, const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
        QStyleHintReturn* answer = nullptr) const override;
};

} // namespace zerna
