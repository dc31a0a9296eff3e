#include "ui/controls/Wertanzeige.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

#include "ui/platform/Ansage.h"
#include "ui/platform/Anzeige.h"
#include "ui/platform/Farben.h"

namespace zerna {

namespace {

/// One line of text from a place on, in the middle of a height. The toolkit's own alignment lays the text out first,
/// which takes longer than drawing it.
void drawLine(QPainter& painter, double left, const QRect& area, const QString& text)
{
    const QFontMetricsF metrics(painter.font());
    const double top = area.top() + (area.height() - metrics.height()) / 2;
    painter.drawText(QPointF(left, top + metrics.ascent()), text);
}

} // namespace

Wertanzeige::Wertanzeige(QWidget* parent)
    : QWidget(parent)
    , m_ansage(new Ansage(this, QAccessible::ValueChanged))
{
    setSizePolicy({QSizePolicy::Preferred, QSizePolicy::Preferred, QSizePolicy::Label});
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent); // another number paints nothing beneath it
}

void Wertanzeige::zeige(const QString& shown)
{
    if (shown == m_text)
        return;
    const int before = textWidth();
    const bool hadColumns = hasColumns();
    m_text = shown;
    if (textWidth() != before)
        updateGeometry();
    if (hadColumns && hasColumns())
        update(numberArea());
    else
        update();
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
        return {textWidth(), fontMetrics().height()};
    const int unit = fontMetrics().horizontalAdvance(m_einheit + m_marke) + 1;
    return {m_numberWidth + 2 * m_margin + einheitenabstand(fontMetrics()) + unit, fontMetrics().height()};
}

bool Wertanzeige::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    emit hintRequested(static_cast<QHelpEvent*>(event)->globalPos());
    return true;
}

void Wertanzeige::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
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
        QWidget::keyPressEvent(event);
}

void Wertanzeige::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::RightButton)
        emit menuRequested(event->globalPosition().toPoint());
    else if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit detailsRequested();
    else
        QWidget::mouseReleaseEvent(event);
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

/// That the size follows from: 0 where the columns have their widths.
int Wertanzeige::textWidth() const
{
    return m_numberWidth > 0 ? 0 : fontMetrics().size(Qt::TextSingleLine, m_text).width();
}

/// Whether number and unit are shown apart.
bool Wertanzeige::hasColumns() const
{
    return m_numberWidth > 0 && m_text.endsWith(m_einheit) && m_text.size() > m_einheit.size();
}

QRect Wertanzeige::numberArea() const { return {0, 0, m_margin + m_numberWidth, height()}; }

void Wertanzeige::paintNumber(QPainter& painter) const
{
    constexpr double Narrowest = 0.75;
    const QString number = gezeigt(m_text.chopped(m_einheit.size()).trimmed());
    const QRect area = numberArea();
    const double width = QFontMetricsF(font()).horizontalAdvance(number);
    if (qRound(width) <= area.width())
        return drawLine(painter, area.width() - width, area, number);
    // Narrower by the painter: to the toolkit each width of a font is a font of its own, which it takes long to load.
    const double scale = std::max(Narrowest, area.width() / width);
    painter.save();
    painter.translate(area.width() - scale * width, 0);
    painter.scale(scale, 1);
    drawLine(painter, 0, area, number);
    painter.restore();
}

void Wertanzeige::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().window());
    if (hasFocus())
        paintFocus(painter);
    const QColor colour = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
    painter.setPen(m_blass ? abgeschwaecht(palette()) : colour);
    if (!hasColumns())
        return drawLine(painter, 0, rect(), gezeigt(m_text));
    paintNumber(painter);
    const int unit = numberArea().width() + m_margin + einheitenabstand(fontMetrics());
    if (event->rect().right() >= unit) // not for another number alone
        drawLine(painter, unit, rect(), m_einheit + m_marke);
}

} // namespace zerna
