#include "ui/diagram/conDisplay.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "ui/diagram/Bildausgabe.h"
#include "ui/diagram/Plotflaeche.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr int Valenzgroesse = 0;

std::size_t slot(int index)
{
    if (index < 0 || index >= MaxKomponenten)
        throw Laufzeitfehler(Fehler::IndexAusserhalb);
    return static_cast<std::size_t>(index);
}

QSize plotSize(const Rechteck& plot) { return {static_cast<int>(plot.width), static_cast<int>(plot.height)}; }

} // namespace

std::pair<float, float> endValues(const Reihe& reihe)
{
    const auto known = [](float value) { return !istUnbekannt(value); };
    const auto* const first = std::ranges::find_if(reihe, known);
    if (first == reihe.end())
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    const auto last = std::find_if(reihe.rbegin(), reihe.rend(), known);
    return std::minmax(*first, *last);
}

conDisplay::conDisplay(Programm& programm, Dialoge dialoge, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_dialoge(dialoge)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_pic = new Plotflaeche(
        [this](QPainter& painter) {
            paintPlot(painter, m_layout);
            paintCursor(painter);
        },
        this);
    m_pic->setObjectName(QStringLiteral("pic"));
    connect(m_pic, &Plotflaeche::mouseMoved, this, [this](const QPointF& position) {
        if (m_hasAxes && !m_fehler && m_layout.plot.width > 0 && m_layout.plot.height > 0)
            showPosition(m_layout.abbildung.x(position.x()), m_layout.abbildung.y(position.y()));
    });
    connect(m_pic, &Plotflaeche::mouseLeft, this, [this] { emit PositionInfo({}); });
}

void conDisplay::setVariablesElement(int index)
{
    const auto& element = m_komponenten.at(slot(index)).komponente.element;
    m_variable = index;
    if (!element)
        throw Laufzeitfehler(Fehler::ObjektNichtFestgelegt);
    m_symbol = element->symbol();
}

void conDisplay::Element_Add(int index, std::string_view key, float prozent)
{
    m_komponenten.at(slot(index)) = {{m_programm.ElementCollection().Item(key), prozent}, false};
}

void conDisplay::setLegierung(const Legierung& legierung)
{
    for (std::size_t i = 0; const Legierungskomponente& komponente : legierung.komponenten())
        m_komponenten.at(i++) = {komponente, true};
}

void conDisplay::Zeichne_Punkt(float x, float y, std::uint32_t colour)
{
    m_striche.push_back({colour, {{x, y}}});
    m_pic->update();
}

void conDisplay::Zeichne_LinieZu(float x, float y, std::uint32_t colour)
{
    if (m_striche.empty())
        m_striche.push_back({colour, {{m_x.min, m_y.min}}});
    if (m_striche.back().colour != colour)
        m_striche.push_back({colour, {m_striche.back().points.back()}});
    m_striche.back().points.emplace_back(x, y);
    m_pic->update();
}

void conDisplay::Zeichne_Valenz() { drawSeries(computeSeries(Valenzgroesse)); }

void conDisplay::Display_Loeschen()
{
    m_striche.clear();
    m_pic->update();
}

void conDisplay::Display_Background()
{
    m_hintergrund.insert(m_hintergrund.end(), m_striche.begin(), m_striche.end());
    m_striche.clear();
}

void conDisplay::Zeichne_Fehler()
{
    m_fehler = true;
    m_hasAxes = false;
    m_hintergrund.clear();
    m_striche.clear();
    relayout();
}

void conDisplay::Zeichne_Diagramm_2D(int groesse, int variable)
{
    if (!m_bereit)
        return;
    m_variable = variable;
    const bool known = findReihengroesse(groesse) != nullptr;
    const Reihe reihe = known ? computeSeries(groesse) : m_reihe;
    if (known)
        m_einheit = reiheneinheit(groesse);
    drawSeries(reihe);
}

Legierung conDisplay::components() const
{
    Legierung legierung;
    const int count = std::clamp(m_programm.Komponentenzahl(), 1, MaxKomponenten);
    for (int i = 0; i < count; ++i) {
        const auto& [komponente, isRead] = m_komponenten.at(slot(i));
        if (!komponente.element)
            throw Laufzeitfehler(Fehler::ObjektNichtFestgelegt);
        legierung.add(isRead ? komponente : gelesen(komponente.element, komponente.prozent, m_programm.Parser()));
    }
    return legierung;
}

Reihe conDisplay::computeSeries(int groesse) const
{
    const Legierung legierung = components();
    if (groesse == GroesseDichte)
        return dichtereihe(std::span(m_dichtefelder).first(legierung.komponenten().size()), m_variable);
    return konzentrationsreihe(m_programm.Calc(), legierung.komponenten(), m_variable, groesse);
}

void conDisplay::drawSeries(const Reihe& reihe)
{
    const auto [smallest, largest] = endValues(reihe);
    m_y = yBereich(smallest, largest);
    m_reihe = reihe;
    m_hasAxes = true;
    m_fehler = false;
    m_hintergrund.clear();
    m_striche.clear();
    bool gap = true;
    for (std::size_t i = 0; i < reihe.size(); ++i) {
        const float value = reihe.at(i);
        if (istUnbekannt(value))
            gap = true;
        else if (std::exchange(gap, false))
            Zeichne_Punkt(static_cast<float>(i), value, Blau);
        else
            Zeichne_LinieZu(static_cast<float>(i), value, Blau);
    }
    Display_Background();
    relayout();
}

conDisplay::Layout conDisplay::layOut(const QSize& size) const
{
    Layout layout;
    layout.plot = plotArea(size.width(), size.height());
    layout.labelFont = font();
    if (!m_hasAxes || layout.plot.width == 0 || layout.plot.height == 0)
        return layout;
    layout.abbildung = Abbildung(layout.plot.width, layout.plot.height, m_x, m_y);
    fitLabelFont(layout, size.height());
    const QFontMetricsF metrics(layout.labelFont);
    layout.labelHeight = metrics.height();
    layout.yMarken = yMarken(layout.plot, size.height(), m_y, layout.labelHeight);
    layout.xMarken = xMarken(
        layout.plot, size.width(), m_x, [&](std::string_view text) { return metrics.horizontalAdvance(toQt(text)); });
    return layout;
}

/// Makes the labels' font as small as they need. Texts do not shrink in proportion to their font, and smaller labels
/// leave room for more of them, so it takes a few steps.
void conDisplay::fitLabelFont(Layout& layout, int height) const
{
    constexpr int Steps = 5;
    for (int i = 0; i < Steps; ++i) {
        const QFontMetricsF metrics(layout.labelFont);
        const auto width = [&](std::string_view text) { return metrics.horizontalAdvance(toQt(text)); };
        layout.yMarken = yMarken(layout.plot, height, m_y, metrics.height());
        const double scale = labelScale(layout.yMarken, layout.plot, width, metrics.height());
        if (scale >= 1)
            return;
        layout.labelFont.setPointSizeF(std::max(1.0, layout.labelFont.pointSizeF() * scale));
    }
}

void conDisplay::relayout()
{
    m_layout = layOut(size());
    m_pic->setGeometry(QRect(
        QPoint(static_cast<int>(m_layout.plot.left), static_cast<int>(m_layout.plot.top)), plotSize(m_layout.plot)));
    update();
    m_pic->update();
}

std::string conDisplay::values(int schritt) const { return reihendatei(m_symbol, m_einheit, m_reihe, schritt); }

void conDisplay::paintPicture(QPainter& painter, const QSize& size) const
{
    const Layout layout = layOut(size);
    paintSurface(painter, size, layout);
    painter.save();
    painter.translate(layout.plot.left, layout.plot.top);
    painter.setClipRect(QRect(QPoint(0, 0), plotSize(layout.plot)));
    paintPlot(painter, layout);
    painter.restore();
}

void conDisplay::paintSurface(QPainter& painter, const QSize& size, const Layout& layout) const
{
    painter.fillRect(QRect(QPoint(0, 0), size), Qt::white);
    painter.setFont(layout.labelFont);
    painter.setPen(Qt::black);
    const Rechteck& plot = layout.plot;
    const double ascent = QFontMetricsF(layout.labelFont).ascent();
    for (const Achsenmarke& marke : layout.yMarken) {
        const int row = std::min(static_cast<int>(std::lround(marke.position)), size.height() - 1);
        painter.fillRect(QRectF(plot.left - TickLength, row, TickLength, 1), Qt::black);
        painter.drawText(QPointF(LabelColumn, marke.labelStart + ascent), toQt(marke.label));
    }
    const double labelTop = xLabelTop(plot, layout.labelHeight);
    for (const Achsenmarke& marke : layout.xMarken) {
        const int column = std::min(static_cast<int>(std::lround(marke.position)), size.width() - 1);
        painter.fillRect(QRectF(column, plot.height, 1, TickLength), Qt::black);
        painter.drawText(QPointF(marke.labelStart, labelTop + ascent), toQt(marke.label));
    }
    if (layout.xMarken.empty())
        return;
    painter.fillRect(QRectF(plot.left - 1, 0, 1, plot.height + 1), Qt::black);
    painter.fillRect(QRectF(plot.left - 1, plot.height, plot.width + 1, 1), Qt::black);
}

void conDisplay::paintPlot(QPainter& painter, const Layout& layout) const
{
    const QRect area(QPoint(0, 0), plotSize(layout.plot));
    painter.fillRect(area, Qt::white);
    if (m_fehler) {
        constexpr double Punkte = 24;
        QFont large = font();
        large.setPointSizeF(Punkte);
        painter.setFont(large);
        painter.setPen(Qt::black);
        painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, QStringLiteral("Fehler bei Diagrammberechnung"));
        return;
    }
    if (!m_hasAxes)
        return;
    paintStriche(painter, m_hintergrund, layout.abbildung);
    paintStriche(painter, m_striche, layout.abbildung);
}

void conDisplay::paintCursor(QPainter& painter) const
{
    if (m_cursor < 0 || !m_hasAxes || m_layout.plot.width == 0)
        return;
    const double column = m_layout.abbildung.column(m_cursor) + 0.5;
    painter.setPen(QPen(QColor(200, 60, 0), 1, Qt::DashLine));
    painter.drawLine(QPointF(column, 0), QPointF(column, m_layout.plot.height));
}

QString conDisplay::positionText(double x, double y) const
{
    return toQt(fixedText(x, 2) + " at% " + m_symbol + " - " + FormatValue(static_cast<float>(y), m_einheit));
}

void conDisplay::showPosition(double x, double y) { emit PositionInfo(positionText(x, y)); }

void conDisplay::moveCursor(int prozent)
{
    m_cursor = std::clamp(prozent, 0, 100);
    showPosition(m_cursor, m_reihe.at(static_cast<std::size_t>(m_cursor)));
    m_pic->update();
}

void conDisplay::keyPressEvent(QKeyEvent* event)
{
    if (!m_hasAxes)
        return QWidget::keyPressEvent(event);
    switch (event->key()) {
    case Qt::Key_Left:
        moveCursor(m_cursor - 1);
        break;
    case Qt::Key_Right:
        moveCursor(m_cursor + 1);
        break;
    case Qt::Key_Home:
        moveCursor(0);
        break;
    case Qt::Key_End:
        moveCursor(100);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void conDisplay::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    m_cursor = -1;
    m_pic->update();
}

void conDisplay::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintSurface(painter, size(), m_layout);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void conDisplay::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    relayout();
}

void conDisplay::Speichern_Diagramm_2D()
{
    const Exportart arten[] = {datDatei([this] { return chosenValues(); }), bitmap([this] { return plotImage(); })};
    exportieren(m_programm.boxes(), m_dialoge.save, Exporttitel, arten);
}

/// The values at the step width that the user is asked for; none on cancel.
std::optional<std::string> conDisplay::chosenValues() const
{
    const auto& element = m_komponenten.at(slot(m_variable)).komponente.element;
    const std::string prompt =
        "Bitte geben Sie die Schrittweite der at% für\r\n" + (element ? element->Name() : std::string()) + " an.";
    const auto answer = m_dialoge.input.ask("Diagramm speichern", prompt, "1");
    return answer ? std::optional(values(schrittweite(*answer))) : std::nullopt;
}

QImage conDisplay::plotImage() const
{
    const auto paintPic = [this](QPainter& painter, const QSize&) { paintPlot(painter, m_layout); };
    return imageOf(paintPic, plotSize(m_layout.plot), devicePixelRatioF());
}

} // namespace zerna
