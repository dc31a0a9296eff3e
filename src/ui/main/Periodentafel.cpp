#include "ui/main/Periodentafel.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <algorithm>
#include <array>

#include "bild/PSETafel.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

/// How a group of elements is told from the others: by colour and by a sign in the corner.
struct Gruppe {
    std::string_view egk;
    std::string_view name;
    QRgb light;
    QRgb dark;
    char sign; // c circle, s square, t triangle, d diamond
};

constexpr std::array<Gruppe, 4> Gruppen{{
    {"H", "Hauptgruppen", 0xFFCFE2F7, 0xFF24476E, 'c'},
    {"N", "Nebengruppen", 0xFFFBE3BC, 0xFF6B4A14, 's'},
    {"L", "Lanthanoide", 0xFFCFEBD2, 0xFF20562B, 't'},
    {"A", "Actinoide", 0xFFF3D3E6, 0xFF6A2550, 'd'},
}};

const Gruppe* gruppeOf(std::string_view egk)
{
    const auto* const found = std::ranges::find(Gruppen, egk, &Gruppe::egk);
    return found == Gruppen.end() ? nullptr : found;
}

QPainterPath signPath(char sign, const QRectF& box)
{
    QPainterPath path;
    switch (sign) {
    case 'c':
        path.addEllipse(box);
        break;
    case 's':
        path.addRect(box);
        break;
    case 't':
        path.addPolygon(QPolygonF{box.bottomLeft(), box.bottomRight(), QPointF(box.center().x(), box.top())});
        break;
    default:
        path.addPolygon(QPolygonF{QPointF(box.center().x(), box.top()), QPointF(box.right(), box.center().y()),
            QPointF(box.center().x(), box.bottom()), QPointF(box.left(), box.center().y())});
    }
    return path;
}

/// Black or white, whichever is easier to read on the colour.
QColor textOn(const QColor& background)
{
    constexpr double EqualContrast = 0.179;
    return leuchtdichte(fromQt(background)) > EqualContrast ? Qt::black : Qt::white;
}

QFont sized(QFont font, double pixels)
{
    font.setPixelSize(std::max(1, static_cast<int>(pixels)));
    return font;
}

/// Size in pixels of all texts of a cell but its symbol.
double smallTextSize(double width, double height) { return std::clamp(std::min(width, height) * 0.2, 6.0, 14.0); }

QString numberText(double value)
{
    const std::string text(trimmed(FormatValue(static_cast<float>(value), "")));
    return text.empty() ? QStringLiteral("0") : toQt(text);
}

constexpr double Gap = 1.5; // between cells
constexpr double CellMargin = 4; // beside the texts of a cell, together
constexpr double Lift = 2; // of the cell under the mouse

} // namespace

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
    updateCell(m_selected);
    m_selected = element;
    updateCell(m_selected);
    if (!element)
        return;
    setAccessibleDescription(QStringLiteral("%1, %2, Ordnungszahl %3")
                                 .arg(toQt(element->Name()), toQt(element->symbol()))
                                 .arg(element->OZ()));
    QAccessibleEvent announcement(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&announcement);
}

void Periodentafel::setReihe(PSEReihe reihe)
{
    m_reihe = std::move(reihe);
    bool first = true;
    for (const float value : m_reihe.y) {
        if (istUnbekannt(value))
            continue;
        m_smallest = first ? value : std::min<double>(m_smallest, value);
        m_largest = first ? value : std::max<double>(m_largest, value);
        first = false;
    }
    update();
}

Tafelmassstab Periodentafel::scale() const { return {static_cast<double>(width()), static_cast<double>(height())}; }

QRectF Periodentafel::cellOf(const clsElement& element) const
{
    const Zelle cell = scale().cell(element.X(), element.Y());
    return {cell.left, cell.top, cell.width, cell.height};
}

QRect Periodentafel::freeArea() const
{
    const Zelle from = scale().cell(3.3, 1);
    const Zelle to = scale().cell(12.8, 3.8);
    return QRectF(QPointF(from.left, from.top + 4), QPointF(to.left, to.top)).toRect();
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
        const auto* help = static_cast<QHelpEvent*>(event); // NOLINT(cppcoreguidelines-pro-type-static-cast-downcast)
        const auto element = elementUnder(help->pos());
        QToolTip::showText(help->globalPos(), element ? toQt(element->Name()) : QString(), this);
        return true;
    }
    return QWidget::event(event);
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
        if (m_selected)
            emit activated(mapToGlobal(cellOf(*m_selected).center().toPoint()));
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

QColor Periodentafel::colourOfCell(const clsElement& element, std::size_t index) const
{
    if (!m_reihe.y.empty()) {
        const float value = m_reihe.y.at(index);
        if (istUnbekannt(value))
            return palette().color(QPalette::Button);
        return toQt(farbskala(m_largest > m_smallest ? (value - m_smallest) / (m_largest - m_smallest) : 0.5));
    }
    const Gruppe* const gruppe = gruppeOf(element.EGK());
    if (gruppe == nullptr)
        return palette().color(QPalette::Button);
    return QColor::fromRgb(istDunkel(palette()) ? gruppe->dark : gruppe->light);
}

void Periodentafel::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintLegend(painter);
    paintSeriesHints(painter);
    std::size_t index = 0;
    std::size_t hovered = m_reihe.x.size();
    for (const auto& element : m_elements) {
        if (element == m_hovered)
            hovered = index;
        else if (event->region().intersects(cellOf(*element).toAlignedRect()))
            paintCell(painter, *element, index);
        ++index;
    }
    if (m_hovered) // above its neighbours
        paintCell(painter, *m_hovered, hovered);
}

void Periodentafel::paintCell(QPainter& painter, const clsElement& element, std::size_t index) const
{
    constexpr double Radius = 3;
    QRectF cell = cellOf(element).adjusted(Gap, Gap, -Gap, -Gap);
    const bool isHovered = &element == m_hovered.get();
    const bool isSelected = &element == m_selected.get();
    if (isHovered) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 70));
        painter.drawRoundedRect(cell.translated(1, Lift), Radius, Radius);
        cell.translate(0, -Lift);
    }
    const QColor colour = colourOfCell(element, index);
    const QColor text = textOn(colour);
    painter.setPen(QPen(istDunkel(palette()) ? colour.lighter(150) : colour.darker(130), 1));
    painter.setBrush(colour);
    painter.drawRoundedRect(cell, Radius, Radius);
    const bool missing = !m_reihe.y.empty() && istUnbekannt(m_reihe.y.at(index));
    if (missing) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QBrush(palette().color(QPalette::Mid), Qt::BDiagPattern));
        painter.drawRoundedRect(cell, Radius, Radius);
    }
    const Gruppe* const gruppe = gruppeOf(element.EGK());
    if (m_reihe.y.empty() && gruppe != nullptr) {
        const double size = std::clamp(cell.width() * 0.12, 3.0, 8.0);
        painter.setPen(Qt::NoPen);
        QColor sign = text;
        sign.setAlpha(150);
        painter.setBrush(sign);
        painter.drawPath(signPath(gruppe->sign, {cell.right() - size - 4, cell.top() + 4, size, size}));
    }
    paintCellTexts(painter, element, cell, missing ? palette().color(QPalette::ButtonText) : text);
    if (isSelected) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText), 3));
        painter.drawRoundedRect(cell, Radius, Radius);
    }
}

/// Atomic number and symbol; below them name or mass where there is room.
void Periodentafel::paintCellTexts(
    QPainter& painter, const clsElement& element, const QRectF& cell, const QColor& text) const
{
    constexpr double SmallestText = 8; // pixels
    const double unit = std::min(cell.width(), cell.height());
    painter.setPen(text);
    const double small = smallTextSize(cell.width(), cell.height());
    const QFont smallFont = sized(font(), small);
    painter.setFont(smallFont);
    painter.drawText(cell.adjusted(4, 2, -2, 0), Qt::AlignLeft | Qt::AlignTop, QString::number(element.OZ()));
    QFont symbolFont = sized(font(), unit * 0.38);
    symbolFont.setBold(true);
    painter.setFont(symbolFont);
    const bool hasThirdLine = small >= SmallestText && cell.height() >= small * 4.5;
    const QString symbol =
        QFontMetricsF(symbolFont).elidedText(toQt(element.symbol()), Qt::ElideRight, cell.width() - 4);
    painter.drawText(cell.adjusted(2, small * 0.6, -2, hasThirdLine ? -small : 0), Qt::AlignCenter, symbol);
    if (!hasThirdLine)
        return;
    painter.setFont(smallFont);
    const QFontMetricsF metrics(smallFont);
    const QString mass = istUnbekannt(element.Masse()) ? QString() : toQt(textWithDigits(element.Masse(), 5));
    const QString line = m_namesFit ? toQt(element.Name()) : mass;
    if (metrics.horizontalAdvance(line) <= cell.width() - CellMargin)
        painter.drawText(cell.adjusted(2, 0, -2, -3), Qt::AlignHCenter | Qt::AlignBottom, line);
}

/// Names are shown only if all of them fit: a mixture of names and masses would look like a mistake.
void Periodentafel::resizeEvent(QResizeEvent*)
{
    const Zelle cell = scale().cell(1, 1);
    const QFontMetricsF metrics(sized(font(), smallTextSize(cell.width, cell.height)));
    m_namesFit = std::ranges::all_of(m_elements, [&](const auto& element) {
        return metrics.horizontalAdvance(toQt(element->Name())) <= cell.width - 2 * Gap - CellMargin;
    });
}

void Periodentafel::paintLegend(QPainter& painter) const
{
    constexpr int ListHeight = 34; // of the list that lies at the top of the area
    const QRectF area = QRectF(freeArea()).adjusted(0, ListHeight, 0, 0);
    if (area.height() < 20 || area.width() < 80)
        return;
    painter.setFont(font());
    if (m_reihe.y.empty())
        paintGroupLegend(painter, area);
    else
        paintScaleLegend(painter, area);
}

void Periodentafel::paintGroupLegend(QPainter& painter, QRectF area) const
{
    const double height = std::min(26.0, area.height() / 2);
    const double width = area.width() / 2;
    for (std::size_t i = 0; i < Gruppen.size(); ++i) {
        const Gruppe& gruppe = Gruppen.at(i);
        const QPointF corner(area.left() + (i % 2 == 0 ? 0 : width), area.top() + (i < 2 ? 0 : height));
        const QColor colour = QColor::fromRgb(istDunkel(palette()) ? gruppe.dark : gruppe.light);
        const QRectF sample(corner, QSizeF(height * 0.7, height * 0.7));
        painter.setPen(QPen(istDunkel(palette()) ? colour.lighter(150) : colour.darker(130), 1));
        painter.setBrush(colour);
        painter.drawRoundedRect(sample, 3, 3);
        painter.setPen(Qt::NoPen);
        painter.setBrush(textOn(colour));
        const double size = sample.width() * 0.4;
        painter.drawPath(signPath(gruppe.sign, {sample.center() - QPointF(size, size) / 2, QSizeF(size, size)}));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRectF(sample.right() + 8, sample.top(), width - sample.width() - 8, sample.height()),
            Qt::AlignLeft | Qt::AlignVCenter, toQt(gruppe.name));
    }
}

void Periodentafel::paintScaleLegend(QPainter& painter, const QRectF& area) const
{
    constexpr int Stops = 17;
    const double barHeight = std::min(14.0, area.height() / 3);
    const QRectF bar(area.left(), area.top() + 2, area.width(), barHeight);
    QLinearGradient gradient(bar.topLeft(), bar.topRight());
    for (int i = 0; i < Stops; ++i)
        gradient.setColorAt(i / (Stops - 1.0), toQt(farbskala(i / (Stops - 1.0))));
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRect(bar);
    painter.setPen(palette().color(QPalette::WindowText));
    const QRectF labels(bar.left(), bar.bottom() + 2, bar.width(), area.bottom() - bar.bottom() - 2);
    painter.drawText(labels, Qt::AlignLeft | Qt::AlignTop, numberText(m_smallest));
    painter.drawText(labels, Qt::AlignRight | Qt::AlignTop, numberText(m_largest));
    const double line = painter.fontMetrics().height();
    painter.drawText(labels.adjusted(0, line, 0, 0), Qt::AlignHCenter | Qt::AlignTop, toQt(m_reihe.titel));
}

/// Tells where the two separate rows belong in the main body.
void Periodentafel::paintSeriesHints(QPainter& painter) const
{
    const std::array<std::pair<double, QString>, 2> rows{
        {{9, QStringLiteral("zu La  ▸")}, {10, QStringLiteral("zu Ac  ▸")}}};
    painter.setPen(palette().color(QPalette::WindowText));
    const Zelle cell = scale().cell(1, 9);
    painter.setFont(sized(font(), std::clamp(cell.height * 0.2, 7.0, 14.0)));
    for (const auto& [row, text] : rows) {
        const Zelle place = scale().cell(1, row);
        painter.drawText(
            QRectF(place.left, place.top, place.width * 3 - 6, place.height), Qt::AlignRight | Qt::AlignVCenter, text);
    }
}

} // namespace zerna
