#include "ui/platform/Lesbarkeit.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QStyleOption>

#include <algorithm>
#include <array>

#include "ui/platform/Farben.h"
#include "ui/platform/Kontrast.h"
#include "ui/platform/Spaetsymbol.h"

namespace zerna {

namespace {

constexpr int FocusWidth = 2;

/// The colour that a partly transparent one gives on a ground.
QColor opaque(const QColor& colour, const QColor& ground) { return gemischt(ground, colour, colour.alphaF()); }

/// Around a control, or the current entry of a list.
void drawFocus(const QStyleOption& option, QPainter& painter)
{
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(fokusfarbe(option.palette, option.palette.color(QPalette::Window)), FocusWidth));
    painter.drawRect(option.rect.adjusted(1, 1, -1, -1));
    painter.restore();
}

/// On dark grounds the usual style frames fields, buttons and sliders with a colour that is darker still.
void drawOutline(const QStyleOption& option, QPainter& painter)
{
    if (!istDunkel(option.palette))
        return;
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(linienfarbe(
        option.palette.color(QPalette::Window), option.palette.color(QPalette::Active, QPalette::WindowText)));
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

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

/// Menus, lists and hints are there at once.
void LesbarerStil::polish(QApplication* application)
{
    QProxyStyle::polish(application);
    for (const auto effect : {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo, Qt::UI_AnimateTooltip,
             Qt::UI_FadeTooltip, Qt::UI_AnimateToolBox})
        QApplication::setEffectEnabled(effect, false);
}

void LesbarerStil::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (option->state.testFlag(State_HasFocus) && (control == CC_ComboBox || control == CC_ToolButton))
        drawFocus(*option, *painter);
    else if (control == CC_ComboBox)
        drawOutline(*option, *painter);
    if (control != CC_ScrollBar)
        return;
    QStyleOption slider = *option;
    slider.rect = subControlRect(control, option, SC_ScrollBarSlider, widget);
    drawOutline(slider, *painter);
}

/// The usual style frames a button with the focus no other than the one that Enter presses.
void LesbarerStil::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    const bool isTab = element == CE_TabBarTab && option->state.testFlag(State_Selected);
    if ((element == CE_PushButton || isTab) && option->state.testFlag(State_HasFocus))
        drawFocus(*option, *painter);
    else if (element == CE_PushButton)
        drawOutline(*option, *painter);
}

void LesbarerStil::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    if (element == PE_FrameFocusRect)
        return drawFocus(*option, *painter);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_FrameLineEdit || element == PE_IndicatorCheckBox)
        drawOutline(*option, *painter);
    const bool isView = qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
    if (element == PE_Frame && isView && option->state.testFlag(State_HasFocus))
        drawFocus(*option, *painter);
}

/// Lists, tables and long texts leave room for the frame around what has the focus.
int LesbarerStil::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    const bool isView = qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
    return metric == PM_DefaultFrameWidth && isView ? std::max(usual, FocusWidth) : usual;
}

QIcon LesbarerStil::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    if (icon != SP_ToolBarHorizontalExtensionButton)
        return QProxyStyle::standardIcon(icon, option, widget);
    return spaetesSymbol([style = QPointer(baseStyle())] {
        return style != nullptr ? style->standardIcon(SP_ToolBarHorizontalExtensionButton) : QIcon();
    });
}

int LesbarerStil::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* answer) const
{
    return hint == SH_Widget_Animation_Duration ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
}

} // namespace zerna
