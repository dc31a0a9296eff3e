#include "ui/diagram/Diagrammflaeche.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>

#include <algorithm>
#include <cmath>

#include "core/Zahlentext.h"
#include "model/Werttext.h"
#include "ui/diagram/Bildausgabe.h"
#include "ui/diagram/Striche.h"
#include "ui/diagram/conDisplay.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr int TitelHoehe = 12; // pixels of the rotated axis title

Textmasse measures(const QFont& font)
{
    const QFontMetricsF metrics(font);
    return {[metrics](std::string_view text) { return metrics.horizontalAdvance(toQt(text)); }, metrics.height()};
}

QPointF toPoint(const Punkt& p) { return {std::round(p.x) + 0.5, std::round(p.y) + 0.5}; }

} // namespace

Diagrammflaeche::Diagrammflaeche(Programm& programm, Dialoge dialoge, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_dialoge(dialoge)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("Diagramm"));
    m_display = new conDisplay(programm, dialoge, this);
    m_display->setObjectName(QStringLiteral("conDisplay1"));
    m_display->setAccessibleName(QStringLiteral("Konzentrationsdiagramm"));
    connect(m_display, &conDisplay::PositionInfo, this, &Diagrammflaeche::positionChanged);
    showContent(Inhalt::Meldung);
}

void Diagrammflaeche::showContent(Inhalt inhalt)
{
    m_inhalt = inhalt;
    m_display->setVisible(inhalt == Inhalt::Konzentration);
    const bool takesKeys = inhalt == Inhalt::PSE || inhalt == Inhalt::Ternaer; // the concentration diagram does itself
    setFocusPolicy(takesKeys ? Qt::StrongFocus : Qt::NoFocus);
    m_marked = -1;
    m_dragging = false;
    emit positionChanged({});
    update();
}

void Diagrammflaeche::showKonzentration() { showContent(Inhalt::Konzentration); }

void Diagrammflaeche::showPSE(PSEReihe reihe, std::vector<std::string> symbols)
{
    m_reihe = std::move(reihe);
    m_symbole = std::move(symbols);
    m_bild = layOutPSEFor(size(), m_bildFont);
    showContent(Inhalt::PSE);
}

void Diagrammflaeche::showTernaer(Ternaergitter gitter, const Anteile3& current)
{
    m_ternaer.setGitter(std::move(gitter), current);
    showContent(Inhalt::Ternaer);
}

void Diagrammflaeche::showFehler(const QString& grund)
{
    m_meldung = QStringLiteral("Konnte Diagramm nicht berechnen!\n\n%1").arg(grund);
    showContent(Inhalt::Meldung);
}

void Diagrammflaeche::showHinweis(const QString& hinweis)
{
    m_meldung = hinweis;
    showContent(Inhalt::Meldung);
}

void Diagrammflaeche::copyPicture()
{
    QClipboard* const clipboard = QGuiApplication::clipboard();
    if (clipboard == nullptr)
        return;
    const auto maler = [this](QPainter& painter, const QSize& size) { paintPicture(painter, size); };
    clipboard->clear();
    clipboard->setImage(imageOf(maler, size(), devicePixelRatioF()));
}

void Diagrammflaeche::save()
{
    if (m_inhalt == Inhalt::Meldung)
        return;
    if (m_inhalt == Inhalt::Konzentration) {
        m_display->Speichern_Diagramm_2D();
        return;
    }
    const auto maler = [this](QPainter& painter, const QSize& size) { paintPicture(painter, size); };
    const auto text = [this] { return values(); };
    const auto bild = [&] { return imageOf(maler, size(), devicePixelRatioF()); };
    const Exportart arten[] = {
        m_inhalt == Inhalt::PSE ? datDatei(text) : textdatei("Daten 3D (*.3dd)", "*.3dd", ".3dd", text),
        bitmap(bild),
    };
    exportieren(m_programm.boxes(), m_dialoge.save, Exporttitel, arten);
}

std::string Diagrammflaeche::values() const
{
    switch (m_inhalt) {
    case Inhalt::Konzentration:
        return m_display->values(1);
    case Inhalt::Ternaer:
        return ternaerdatei(m_ternaer.gitter());
    case Inhalt::PSE:
        return psedatei(m_reihe);
    case Inhalt::Meldung:
        break;
    }
    return {};
}

void Diagrammflaeche::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_inhalt == Inhalt::Meldung)
        return;
    const auto maler = [this](QPainter& painter, const QSize& size) { paintPicture(painter, size); };
    QMenu menu(this);
    if (m_inhalt == Inhalt::Ternaer) {
        Ansicht flach = m_ternaer.ansicht();
        flach.flach = true;
        Ansicht raeumlich = flach;
        raeumlich.flach = false;
        menu.addAction(QStringLiteral("Draufsicht"), this, [this, flach] { changeView(flach); });
        menu.addAction(QStringLiteral("Räumlich"), this, [this, raeumlich] { changeView(raeumlich); });
        menu.addSeparator();
    }
    menu.addAction(QStringLiteral("Bild kopieren"), this, &Diagrammflaeche::copyPicture);
    menu.addAction(QStringLiteral("Werte kopieren"), this, [this] {
        if (QClipboard* const clipboard = QGuiApplication::clipboard())
            clipboard->setText(toQt(values()));
    });
    menu.addSeparator();
    menu.addAction(QStringLiteral("Bild speichern ..."), this,
        [this, maler] { exportieren(m_programm.boxes(), m_dialoge.save, "Bild speichern", bildarten(maler, size())); });
    menu.addAction(QStringLiteral("Drucken ..."), this, [this, maler] { printPicture(this, maler, size()); });
    menu.exec(event->globalPos());
}

/// Lays the element-property diagram out; the labels' font gets smaller where they would not fit.
PSEBild Diagrammflaeche::layOutPSEFor(const QSize& size, QFont& labelFont) const
{
    labelFont = font();
    PSEBild bild = layOutPSE(m_reihe, size.width(), size.height(), measures(labelFont));
    if (bild.widestLabel <= bild.labelRoom || bild.labelRoom <= 0)
        return bild;
    labelFont.setPointSizeF(std::max(1.0, labelFont.pointSizeF() * bild.labelRoom / bild.widestLabel));
    return layOutPSE(m_reihe, size.width(), size.height(), measures(labelFont));
}

void Diagrammflaeche::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_display->setGeometry(rect());
    if (m_inhalt == Inhalt::PSE)
        m_bild = layOutPSEFor(size(), m_bildFont);
}

void Diagrammflaeche::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (m_inhalt == Inhalt::PSE) {
        painter.fillRect(rect(), Qt::white);
        paintPSE(painter, m_bild, m_bildFont);
    } else if (m_inhalt == Inhalt::Ternaer) {
        m_ternaer.paint(painter, size(), font(), devicePixelRatioF());
    } else {
        paintPicture(painter, size());
    }
    if (m_marked >= 0 && m_bild.points.at(static_cast<std::size_t>(m_marked))) {
        constexpr double Radius = 4;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(200, 60, 0), 2));
        painter.drawEllipse(toPoint(*m_bild.points.at(static_cast<std::size_t>(m_marked))), Radius, Radius);
        painter.setRenderHint(QPainter::Antialiasing, false);
    }
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void Diagrammflaeche::paintPicture(QPainter& painter, const QSize& size) const
{
    if (m_inhalt == Inhalt::Konzentration)
        return m_display->paintPicture(painter, size);
    painter.fillRect(QRect(QPoint(0, 0), size), Qt::white);
    if (m_inhalt == Inhalt::Ternaer) {
        constexpr double ExportRatio = 3; // of the surface's pixels in vector pictures and on paper
        const bool toImage = dynamic_cast<QImage*>(painter.device()) != nullptr;
        Ternaerdiagramm copy = m_ternaer;
        copy.paint(painter, size, font(), toImage ? painter.device()->devicePixelRatioF() : ExportRatio);
    } else if (m_inhalt == Inhalt::PSE) {
        QFont labelFont;
        const PSEBild bild = layOutPSEFor(size, labelFont);
        paintPSE(painter, bild, labelFont);
    } else {
        paintMeldung(painter, size);
    }
}

void Diagrammflaeche::paintPSE(QPainter& painter, const PSEBild& bild, const QFont& labelFont) const
{
    painter.setPen(QPen(Qt::black, 1));
    for (const Strecke& line : bild.lines)
        painter.drawLine(toPoint(line.from), toPoint(line.to));
    painter.setFont(labelFont);
    const double ascent = QFontMetricsF(labelFont).ascent();
    for (const Schriftzug& label : bild.labels)
        painter.drawText(QPointF(label.position.x, label.position.y + ascent), toQt(label.text));

    QFont titleFont = font();
    titleFont.setPixelSize(TitelHoehe);
    painter.setFont(titleFont);
    painter.save();
    painter.translate(bild.titel.position.x, bild.titel.position.y);
    painter.rotate(-90);
    painter.drawText(QPointF(0, QFontMetricsF(titleFont).ascent()), toQt(bild.titel.text));
    painter.restore();

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colourOf(Blau), Kurvenbreite, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const std::vector<Punkt>& piece : bild.curve) {
        QPolygonF polygon;
        for (const Punkt& p : piece)
            polygon << toPoint(p);
        if (polygon.size() == 1)
            painter.fillRect(QRectF(polygon.front() - QPointF(1.5, 1.5), QSizeF(3, 3)), colourOf(Blau));
        else
            painter.drawPolyline(polygon);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void Diagrammflaeche::paintMeldung(QPainter& painter, const QSize& size) const
{
    constexpr double Punkte = 14;
    constexpr int Rand = 16;
    QFont large = font();
    large.setPointSizeF(Punkte);
    painter.setFont(large);
    painter.setPen(Qt::black);
    const QRect area = QRect(QPoint(0, 0), size).adjusted(Rand, Rand, -Rand, -Rand);
    painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, m_meldung);
}

void Diagrammflaeche::pointAt(std::size_t element)
{
    emit positionChanged(QStringLiteral("%1   OZ %2   %3")
                             .arg(toQt(m_symbole.at(element)), toQt(textOfSingle(m_reihe.x.at(element))),
                                 toQt(werttext(m_reihe.y.at(element)))));
}

void Diagrammflaeche::mousePressEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event);
    if (m_inhalt != Inhalt::Ternaer || event->button() != Qt::LeftButton)
        return;
    m_dragging = true;
    m_lastPosition = event->position();
}

void Diagrammflaeche::mouseReleaseEvent(QMouseEvent* event)
{
    QWidget::mouseReleaseEvent(event);
    m_dragging = false;
}

void Diagrammflaeche::mouseDoubleClickEvent(QMouseEvent* event)
{
    QWidget::mouseDoubleClickEvent(event);
    m_ternaer.reset();
    update();
}

void Diagrammflaeche::mouseMoveEvent(QMouseEvent* event)
{
    QWidget::mouseMoveEvent(event);
    if (m_inhalt == Inhalt::PSE) {
        if (const auto element = nearestElement(m_bild, event->position().x()))
            pointAt(*element);
    } else if (m_inhalt == Inhalt::Ternaer && m_dragging) {
        const QPointF moved = event->position() - m_lastPosition;
        m_lastPosition = event->position();
        turnBy(moved.y(), -moved.x());
    } else if (m_inhalt == Inhalt::Ternaer) {
        emit positionChanged(m_ternaer.positionText(event->position()));
    }
}

void Diagrammflaeche::wheelEvent(QWheelEvent* event)
{
    constexpr double FactorPerNotch = 1.1;
    constexpr double Notch = 120; // eighths of a degree
    if (m_inhalt != Inhalt::Ternaer)
        return QWidget::wheelEvent(event);
    changeView(zoomed(m_ternaer.ansicht(), std::pow(FactorPerNotch, event->angleDelta().y() / Notch)));
    event->accept();
}

/// The flat diagram stands still.
void Diagrammflaeche::turnBy(double tilt, double turn)
{
    if (!m_ternaer.ansicht().flach)
        changeView(rotated(m_ternaer.ansicht(), tilt, turn));
}

void Diagrammflaeche::changeView(const Ansicht& ansicht)
{
    m_ternaer.setAnsicht(ansicht);
    update(); // several changes before the next painting become one picture
}

void Diagrammflaeche::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    emit positionChanged({});
}

void Diagrammflaeche::keyPressEvent(QKeyEvent* event)
{
    if (m_inhalt == Inhalt::PSE)
        moveCursor(*event);
    else if (m_inhalt == Inhalt::Ternaer)
        turnView(*event);
    else
        QWidget::keyPressEvent(event);
}

void Diagrammflaeche::turnView(QKeyEvent& event)
{
    constexpr double Step = 5; // degrees
    constexpr double Factor = 1.1;
    const Ansicht& ansicht = m_ternaer.ansicht();
    switch (event.key()) {
    case Qt::Key_Left:
        turnBy(0, Step);
        break;
    case Qt::Key_Right:
        turnBy(0, -Step);
        break;
    case Qt::Key_Up:
        turnBy(-Step, 0);
        break;
    case Qt::Key_Down:
        turnBy(Step, 0);
        break;
    case Qt::Key_Plus:
        changeView(zoomed(ansicht, Factor));
        break;
    case Qt::Key_Minus:
        changeView(zoomed(ansicht, 1 / Factor));
        break;
    default:
        QWidget::keyPressEvent(&event);
    }
}

/// Moves the cursor to the next element that has a value.
void Diagrammflaeche::moveCursor(QKeyEvent& event)
{
    const auto count = static_cast<int>(m_bild.points.size());
    int next = -1;
    int step = 1;
    switch (event.key()) {
    case Qt::Key_Left:
        next = m_marked - 1;
        step = -1;
        break;
    case Qt::Key_Right:
        next = m_marked + 1;
        break;
    case Qt::Key_Home:
        next = 0;
        break;
    case Qt::Key_End:
        next = count - 1;
        step = -1;
        break;
    default:
        QWidget::keyPressEvent(&event);
        return;
    }
    while (next >= 0 && next < count && !m_bild.points.at(static_cast<std::size_t>(next)))
        next += step;
    if (next < 0 || next >= count)
        return;
    m_marked = next;
    pointAt(static_cast<std::size_t>(next));
    update();
}

void Diagrammflaeche::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    m_marked = -1;
    update();
}

} // namespace zerna
