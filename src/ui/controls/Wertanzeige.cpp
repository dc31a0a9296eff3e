#include "ui/controls/Wertanzeige.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>

#include <numeric>

#include "ui/platform/Ansage.h"
#include "ui/platform/Anzeige.h"
#include "ui/platform/Farben.h"

namespace zerna {

namespace {

/// The font, as much narrower as a text needs it. Each width is a font of its own to the toolkit: few are tried.
QFont fitting(QFont font, const QString& text, int width)
{
    constexpr int Narrowest = 75; // percent
    constexpr int Normal = 100;
    const auto stretched = [&font](int stretch) {
        QFont result = font;
        if (stretch < Normal)
            result.setStretch(stretch);
        return result;
    };
    const auto isTooWide = [&](int stretch) {
        return QFontMetrics(stretched(stretch)).horizontalAdvance(text) > width;
    };
    if (!isTooWide(Normal))
        return font;
    int fits = Narrowest;
    for (int over = Normal; over - fits > 1;) {
        const int middle = std::midpoint(fits, over);
        (isTooWide(middle) ? over : fits) = middle;
    }
    return stretched(fits);
}

} // namespace

Wertanzeige::Wertanzeige(QWidget* parent)
    : QLabel(parent)
    , m_ansage(new Ansage(this, QAccessible::ValueChanged))
{
    setFocusPolicy(Qt::StrongFocus);
    setTextFormat(Qt::PlainText);
}

void Wertanzeige::zeige(const QString& shown)
{
    if (shown == text())
        return;
    setText(shown);
    m_ansage->merke();
}

void Wertanzeige::setEinheit(const QString& einheit, int numberWidth, int margin)
{
    m_einheit = einheit;
    m_numberWidth = numberWidth;
    m_margin = margin;
    updateGeometry();
    update();
}

void Wertanzeige::setMarke(const QString& bedeutung)
{
    m_marke = bedeutung.isEmpty() ? QString() : QStringLiteral(" ≠");
    setAccessibleDescription(bedeutung);
    updateGeometry();
    update();
}

void Wertanzeige::setBlass(bool blass)
{
    if (blass == m_blass)
        return;
    m_blass = blass;
    update();
}

QSize Wertanzeige::sizeHint() const
{
    if (m_numberWidth == 0)
        return QLabel::sizeHint();
    const int unit = fontMetrics().horizontalAdvance(m_einheit + m_marke) + 1;
    return {m_numberWidth + 2 * m_margin + einheitenabstand(fontMetrics()) + unit, fontMetrics().height()};
}

bool Wertanzeige::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    emit hintRequested(static_cast<QHelpEvent*>(event)->globalPos());
    return true;
}

void Wertanzeige::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    update();
}

void Wertanzeige::contextMenuEvent(QContextMenuEvent* event)
{
    // The mouse asks when its button is released, see mouseReleaseEvent.
    if (event->reason() == QContextMenuEvent::Keyboard)
        emit menuRequested(mapToGlobal(rect().center()));
}

void Wertanzeige::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        emit copyRequested();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space)
        emit detailsRequested();
    else
        QLabel::keyPressEvent(event);
}

void Wertanzeige::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::RightButton)
        emit menuRequested(event->globalPosition().toPoint());
    else if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit detailsRequested();
    else
        QLabel::mouseReleaseEvent(event);
}

/// A frame that no theme can hide, with a breath of its colour inside.
void Wertanzeige::paintFocus(QPainter& painter) const
{
    QColor colour = fokusfarbe(palette(), palette().color(QPalette::Window));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 2));
    colour.setAlpha(24);
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
    painter.restore();
}

void Wertanzeige::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (hasFocus())
        paintFocus(painter);
    const QColor colour = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
    painter.setPen(m_blass ? abgeschwaecht(palette()) : colour);
    const bool columns = m_numberWidth > 0 && text().endsWith(m_einheit) && text().size() > m_einheit.size();
    const QRect area = contentsRect();
    if (columns) {
        const QString number = gezeigt(text().chopped(m_einheit.size()).trimmed());
        const int width = m_margin + m_numberWidth;
        painter.setFont(fitting(font(), number, width));
        painter.drawText(
            QRect(area.left(), area.top(), width, area.height()), Qt::AlignRight | Qt::AlignVCenter, number);
        painter.setFont(font());
        painter.drawText(area.adjusted(width + m_margin + einheitenabstand(fontMetrics()), 0, 0, 0),
            Qt::AlignLeft | Qt::AlignVCenter, m_einheit + m_marke);
    } else {
        painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, gezeigt(text()));
    }
}

} // namespace zerna
