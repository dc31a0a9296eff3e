#include "ui/diagram/conDisplay.h"

#include <QFocusEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

#include "core/Zahlentext.h"
#include "programm/Exportieren.h"
#include "ui/diagram/DiagrammZugang.h"
#include "ui/diagram/Plotflaeche.h"
#include "ui/platform/Farben.h"

namespace zerna {

namespace {

constexpr int Valenzgroesse = 0;

std::size_t slot(int index)
{
    if (index < 0 || index >= MaxKomponenten)
        throw Laufzeitfehler(Fehler::IndexAusserhalb);
    return static_cast<std::size_t>(index);
}

} // namespace

conDisplay::conDisplay(Programm& programm, Dialoge dialoge, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_dialoge(dialoge)
    , m_diagramm([this] { return askSchritt(); })
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true); // of the plot, on the way to the widget around it
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_pic = new Plotflaeche(
        [this](QPainter& painter) {
            painter.fillRect(m_pic->rect(), Qt::white);
            painter.translate(-pictureOffset(m_pic->pos()));
            m_diagramm.paintPlot(painter, leinwand(), Linien::WieZuSehen);
            m_diagramm.paintCursor(painter, leinwand());
            painter.resetTransform();
            painter.translate(-m_pic->pos());
            paintFocus(painter);
        },
        this);
    m_pic->setObjectName(QStringLiteral("pic"));
    connect(m_pic, &Plotflaeche::mouseMoved, this, [this](const QPointF& position) {
        if (m_diagramm.hasAxes())
            emit PositionInfo(m_diagramm.positionText(position + pictureOffset(m_pic->pos()), leinwand()));
    });
    connect(m_pic, &Plotflaeche::mouseLeft, this, [this] { emit PositionInfo({}); });
}

void conDisplay::setVariablesElement(int index)
{
    const auto& element = m_komponenten.at(slot(index)).komponente.element;
    m_variable = index;
    if (!element)
        throw Laufzeitfehler(Fehler::ObjektNichtFestgelegt);
    m_diagramm.setSymbol(element->symbol());
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
    m_diagramm.zeichnePunkt(x, y, colour);
    updatePlot();
}

void conDisplay::Zeichne_LinieZu(float x, float y, std::uint32_t colour)
{
    m_diagramm.zeichneLinieZu(x, y, colour);
    updatePlot();
}

void conDisplay::Zeichne_Valenz()
{
    m_diagramm.zeichneReihe(computeSeries(Valenzgroesse));
    placePlot();
}

void conDisplay::Display_Loeschen()
{
    m_diagramm.loeschen();
    updatePlot();
}

void conDisplay::Display_Background() { m_diagramm.alsHintergrund(); }

void conDisplay::Zeichne_Fehler()
{
    m_diagramm.zeichneFehler();
    placePlot();
}

void conDisplay::Zeichne_Diagramm_2D(int groesse, int variable)
{
    if (!m_bereit)
        return;
    setReihe(groesse, variable);
    placePlot();
}

void conDisplay::setReihe(int groesse, int variable)
{
    if (variable != m_variable || groesse != m_groesse)
        m_diagramm.beginneNeu();
    m_variable = variable;
    m_groesse = groesse;
    const bool known = findReihengroesse(groesse) != nullptr;
    const Reihe reihe = known ? computeSeries(groesse) : m_diagramm.reihe();
    if (known)
        m_diagramm.setEinheit(reiheneinheit(groesse));
    m_diagramm.zeichneReihe(reihe);
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
    if (m_art == Reihenart::Summe100)
        return Mischungsreihe(m_programm.Calc(), legierung.komponenten(), m_variable, groesse, m_art).reihe();
    if (groesse == GroesseDichte)
        return dichtereihe(std::span(m_dichtefelder).first(legierung.komponenten().size()), m_variable);
    return konzentrationsreihe(m_programm.Calc(), legierung.komponenten(), m_variable, groesse);
}

void conDisplay::setBild(Kurvenbild bild)
{
    const Kurvenbild& plain = m_diagramm.bild();
    if (bild.x.einheit.empty())
        bild.x.einheit = plain.x.einheit;
    if (bild.y.einheit.empty())
        bild.y.einheit = plain.y.einheit;
    m_diagramm.setBild(std::move(bild));
    if (!hatGroesse(*this))
        return;
    emit randChanged(); // first: a host may give it another place
    placePlot();
}

void conDisplay::setPlatz(const QRect& place, const QSize& picture)
{
    const QMargins rand(
        place.left(), place.top(), picture.width() - place.right() - 1, picture.height() - place.bottom() - 1);
    if (rand == m_rand && place == geometry())
        return;
    m_rand = rand;
    setGeometry(place);
    placePlot();
}

/// The canvas of the whole picture.
Leinwand conDisplay::leinwand() const
{
    Leinwand leinwand = leinwandOf(*this);
    leinwand.size = leinwand.size.grownBy(m_rand);
    return leinwand;
}

/// Where a point of the control lies in the picture.
QPoint conDisplay::pictureOffset(const QPoint& point) const { return point + QPoint(m_rand.left(), m_rand.top()); }

/// Only what is otherwise is painted anew.
void conDisplay::placePlot()
{
    const QPoint corner = pictureOffset({});
    const auto [rand, kern, plot] = m_diagramm.neues(leinwand());
    m_pic->setGeometry(m_diagramm.plot(leinwand()).translated(-corner));
    update((rand + kern).translated(-corner));
    m_pic->update(plot.translated(-corner - m_pic->pos()));
    emit randVeraltet(rand);
}

void conDisplay::updateAll()
{
    m_diagramm.vergissGezeigtes();
    update();
    updatePlot();
}

void conDisplay::updatePlot()
{
    m_diagramm.vergissPlot();
    m_pic->update();
}

void conDisplay::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    m_diagramm.clearCursor();
    sageAblesung(*this);
    updateAll();
}

void conDisplay::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    updateAll();
}

void conDisplay::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.translate(-pictureOffset({}));
    const QRegion part = event->region().translated(pictureOffset({}));
    m_diagramm.paintAchsen(painter, leinwand(), part);
    if (m_rand.isNull())
        m_diagramm.paintRand(painter, leinwand(), part);
    painter.resetTransform();
    paintFocus(painter);
}

/// The frame around the whole control, the plot in it included.
void conDisplay::paintFocus(QPainter& painter) const
{
    if (!hasFocus())
        return;
    painter.setPen(QPen(fokusfarbe(palette(), Qt::white), 2)); // diagrams are white in every theme
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void conDisplay::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        placePlot();
}

void conDisplay::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placePlot();
}

void conDisplay::Speichern_Diagramm_2D()
{
    exportieren(m_programm.boxes(), m_dialoge.save, Exporttitel, m_diagramm.exportarten(leinwand()));
}

/// The step width that the user wants; none on cancel.
std::optional<int> conDisplay::askSchritt() const
{
    const auto& element = m_komponenten.at(slot(m_variable)).komponente.element;
    const std::string prompt =
        "Bitte geben Sie die Schrittweite der at% für\r\n" + (element ? element->Name() : std::string()) + " an.";
    const auto answer = m_dialoge.input.ask("Diagramm speichern", prompt, "1");
    return answer ? std::optional(schrittweite(*answer)) : std::nullopt;
}

} // namespace zerna
