#include "ui/controls/Masse.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScreen>
#include <QStyleOptionComboBox>

namespace zerna {

namespace {

constexpr int TextMargin = 2 + 1; // the toolkit's own on each side of a field's text, and the cursor's width

} // namespace

int feldhoehe(const QWidget& widget) { return widget.fontMetrics().height() + 11; }

int knopfhoehe(const QWidget& widget) { return feldhoehe(widget) + 2; }

int feldrand(const QLineEdit& field)
{
    QStyleOptionFrame option;
    option.initFrom(&field);
    option.rect = QRect(0, 0, 200, 50);
    option.lineWidth = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
    return field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field).left() + TextMargin;
}

int feldbreite(const QLineEdit& field, const QString& widest)
{
    return field.fontMetrics().horizontalAdvance(widest) + 2 * feldrand(field);
}

int listenbreite(const QComboBox& list, const QString& widest)
{
    QStyleOptionComboBox option;
    option.initFrom(&list);
    const QSize text = list.fontMetrics().size(Qt::TextSingleLine, widest);
    return list.style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, &list).width();
}

QRect fensterraum(const QWidget& window)
{
    constexpr QMargins Frame(8, 40, 8, 8); // with room to spare
    return window.screen()->availableGeometry().marginsRemoved(Frame);
}

} // namespace zerna
