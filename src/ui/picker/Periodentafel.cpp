#include "ui/picker/Periodentafel.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

#include "bild/PSETafel.h"
#include "ui/controls/Masse.h"
#include "ui/picker/PeriodentafelZugang.h"
#include "ui/picker/Tafellegende.h"
#include "ui/picker/Zelltexte.h"
#include "ui/platform/Anzeige.h"
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"

namespace zerna {

Periodentafel::Periodentafel(const ElementCollection& elements, QWidget* parent)
    : QWidget(parent)
    , m_elements(elements)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("Periodensystem"));
}

void Periodentafel::setSelected(const std::shared_ptr<clsElement>& element)
{
    const bool isOther = element != m_selected;
    updateCell(m_selected);
    m_selected = element;
    updateCell(m_selected);
    if (!element)
        return;
    setAccessibleDescription(auskunft(element));
    if (isOther)
        sageZelle(*this);
}

QString Periodentafel::auskunft(const std::shared_ptr<clsElement>& element) const
{
    return QStringLiteral("%1, Ordnungszahl %2, %3")
        .arg(toQt(element->symbol()))
        .arg(element->OZ())
        .arg(hinweis(element).replace(QLatin1Char('\n'), QStringLiteral(", ")));
}

void Periodentafel::setFaerbung(Tafelfaerbung faerbung)
{
    m_faerbung = std::move(faerbung);
    update();
}

void Periodentafel::setKomponenten(std::vector<std::string> symbols)
{
    m_komponenten = std::move(symbols);
    update();
}

/// "1" or "1 3"; empty for an element that is not in the alloy.
std::string Periodentafel::komponentenOf(const clsElement& element) const
{
    std::string numbers;
    for (std::size_t row = 0; row < m_komponenten.size(); ++row) {
        if (m_komponenten[row] == element.symbol())
            numbers += (numbers.empty() ? "" : " ") + std::to_string(row + 1);
    }
    return numbers;
}

Tafelmassstab Periodentafel::scale() const { return {static_cast<double>(width()), static_cast<double>(height())}; }

QRectF Periodentafel::cellOf(const clsElement& element) const
{
    const Rechteck cell = scale().cell(element.X(), element.Y());
    return {cell.left, cell.top, cell.width, cell.height};
}

QRect Periodentafel::freeArea() const
{
    const Rechteck from = scale().cell(3.3, 1);
    const Rechteck to = scale().cell(12.8, 3.8);
    return QRectF(QPointF(from.left, from.top + 4), QPointF(to.left, to.top)).toRect();
}

QRect Periodentafel::gap() const
{
    const Rechteck from = scale().cell(4, 8);
    const Rechteck to = scale().cell(18, 9);
    return QRectF(QPointF(from.left, from.top), QPointF(to.left, to.top)).toRect();
}

std::shared_ptr<clsElement> Periodentafel::elementUnder(const QPointF& position) const
{
    return elementAt(m_elements, scale().columnAt(position.x()), scale().rowAt(position.y()));
}

void Periodentafel::select(const std::shared_ptr<clsElement>& element)
{
    if (!element)
        return;
    setSelected(element);
    emit selected(element);
}

void Periodentafel::hover(const std::shared_ptr<clsElement>& element)
{
    if (element == m_hovered)
        return;
    updateCell(m_hovered);
    m_hovered = element;
    updateCell(m_hovered);
}

void Periodentafel::updateCell(const std::shared_ptr<clsElement>& element)
{
    constexpr int Margin = 4;
    if (element)
        update(cellOf(*element).toAlignedRect().adjusted(-Margin, -Margin, Margin, Margin));
}

bool Periodentafel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const auto element = elementUnder(help->pos());
        QToolTip::showText(help->globalPos(), element ? gezeigt(hinweis(element)) : QString(), this);
        return true;
    }
    return QWidget::event(event);
}

/// The toolkit tells that the table has the focus; the cell comes after that.
void Periodentafel::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    QMetaObject::invokeMethod(
        this, [this] { sageZelle(*this); }, Qt::QueuedConnection);
}

/// Name, what the cell is coloured by and the rows that the element stands in.
QString Periodentafel::hinweis(const std::shared_ptr<clsElement>& element) const
{
    const auto place = std::ranges::find(m_elements, element);
    if (place == m_elements.end())
        return toQt(element->Name());
    const auto index = static_cast<std::size_t>(place - m_elements.begin());
    const std::string beschreibung = m_faerbung.beschreibung(*element, index);
    QString text = toQt(beschreibung.empty() ? element->Name() : element->Name() + '\n' + beschreibung);
    if (const std::string komponenten = komponentenOf(*element); !komponenten.empty())
        text += QStringLiteral("\nKomponente %1 der Legierung")
                    .arg(toQt(komponenten).replace(QLatin1Char(' '), QStringLiteral(", ")));
    return text;
}

void Periodentafel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        select(elementUnder(event->position()));
}

void Periodentafel::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && elementUnder(event->position()))
        emit activated(event->globalPosition().toPoint());
}

void Periodentafel::askForSelected()
{
    if (m_selected)
        emit activated(mapToGlobal(cellOf(*m_selected).center().toPoint()));
}

void Periodentafel::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() != QContextMenuEvent::Mouse)
        return askForSelected();
    const auto element = elementUnder(event->pos());
    select(element);
    if (element)
        emit activated(event->globalPos());
}

void Periodentafel::mouseMoveEvent(QMouseEvent* event) { hover(elementUnder(event->position())); }

void Periodentafel::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    hover(nullptr);
}

void Periodentafel::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        moveSelection(-1, 0);
        break;
    case Qt::Key_Right:
        moveSelection(1, 0);
        break;
    case Qt::Key_Up:
        moveSelection(0, -1);
        break;
    case Qt::Key_Down:
        moveSelection(0, 1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        askForSelected();
        break;
    default:
        if (event->text().size() == 1 && event->text().at(0).isLetter())
            typeLetter(event->text());
        else
            QWidget::keyPressEvent(event);
    }
}

void Periodentafel::moveSelection(int dx, int dy)
{
    if (m_selected)
        select(nextElement(m_elements, *m_selected, dx, dy));
}

/// Letters typed in quick succession belong to one symbol.
void Periodentafel::typeLetter(const QString& letter)
{
    constexpr qint64 Pause = 1000; // ms
    if (!m_sinceLetter.isValid() || m_sinceLetter.elapsed() > Pause)
        m_typed.clear();
    m_sinceLetter.start();
    auto found = elementWithPrefix(m_elements, fromQt(m_typed + letter));
    m_typed = found ? m_typed + letter : letter;
    if (!found)
        found = elementWithPrefix(m_elements, fromQt(letter));
    select(found);
}

void Periodentafel::paintEvent(QPaintEvent* event)
{
    const int listHeight = feldhoehe(*this) + 9; // of the list that lies at the top of the free area
    const Zellstil stil{palette(), font(), m_namenPassen, hasFocus()};
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (event->region().intersects(freeArea())) // not for a cell alone
        paintLegende(painter, QRectF(freeArea()).adjusted(0, listHeight, 0, 0), m_faerbung, stil);
    paintReihenhinweise(painter, scale(), stil);
    std::size_t index = 0;
    std::size_t hovered = 0;
    for (const auto& element : m_elements) {
        if (element == m_hovered)
            hovered = index;
        else if (event->region().intersects(cellOf(*element).toAlignedRect()))
            paintCell(painter, *element, index, stil);
        ++index;
    }
    if (m_hovered) // above its neighbours
        paintCell(painter, *m_hovered, hovered, stil);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(fokusfarbe(palette(), palette().color(QPalette::Window)), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void Periodentafel::paintCell(
    QPainter& painter, const clsElement& element, std::size_t index, const Zellstil& stil) const
{
    const Elementzelle zelle{element, m_faerbung.fuellung(element, index, istDunkel(stil.palette)),
        m_faerbung.wert(index), komponentenOf(element), &element == m_hovered.get(), &element == m_selected.get()};
    paintZelle(painter, cellOf(element), zelle, stil);
}

void Periodentafel::resizeEvent(QResizeEvent*)
{
    const Rechteck cell = scale().cell(1, 1);
    const QFontMetricsF metrics(withPixelSize(font(), schriftgroessen(cell.width, cell.height).klein));
    m_namenPassen = namenPassen(m_elements, cell.width - 2 * Zellabstand,
        [&metrics](std::string_view name) { return metrics.horizontalAdvance(toQt(name)); });
}

} // namespace zerna
