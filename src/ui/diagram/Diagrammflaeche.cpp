#include "ui/diagram/Diagrammflaeche.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>

#include <utility>

#include "programm/Exportieren.h"
#include "ui/diagram/Bildausgabe.h"
#include "ui/diagram/Bilddatei.h"
#include "ui/diagram/DiagrammZugang.h"
#include "ui/diagram/conDisplay.h"
#include "ui/diagram/frmBild.h"
#include "ui/platform/Farben.h"
#include "ui/platform/Zwischenablage.h"

namespace zerna {

Diagrammflaeche::Diagrammflaeche(Programm& programm, Dialoge dialoge, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_dialoge(dialoge)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(QStringLiteral("Diagramm"));
    m_display = new conDisplay(programm, dialoge, this);
    m_display->setObjectName(QStringLiteral("conDisplay1"));
    m_display->setAccessibleName(QStringLiteral("Konzentrationsdiagramm"));
    connect(m_display, &conDisplay::PositionInfo, this, &Diagrammflaeche::positionChanged);
    connect(m_display, &conDisplay::randChanged, this, &Diagrammflaeche::placeDisplay);
    connect(m_display, &conDisplay::randVeraltet, this, [this](const QRegion& part) { update(part); });
    showHinweis({});
}

/// Whether it is painted anew.
bool Diagrammflaeche::showDiagramm(Diagramm& diagramm, Qt::FocusPolicy focus, bool isNew)
{
    if (&diagramm != &m_meldung) { // which comes and goes while something is typed
        if (m_gezeigt != nullptr && m_gezeigt != &diagramm)
            m_gezeigt->verlassen();
        m_gezeigt = &diagramm;
    }
    const bool isOther = std::exchange(m_diagramm, &diagramm) != &diagramm;
    m_display->setVisible(&diagramm == &m_display->diagramm());
    setFocusPolicy(focus);
    m_dragging = false;
    setAccessibleDescription({});
    emit positionChanged(diagramm.cursorText());
    const bool isPainted = isOther || (isNew && !zeigtKonzentration()); // which tells what is new in its picture
    if (isPainted)
        update();
    return isPainted;
}

/// Keys undo what the mouse has done; views of the ternary diagram are undone like input.
void Diagrammflaeche::takeFocus()
{
    if (m_display->isVisible())
        m_display->setFocus(Qt::MouseFocusReason);
    else if (m_diagramm != &m_ternaer)
        setFocus(Qt::MouseFocusReason);
}

/// After a change of how the diagram is looked at.
void Diagrammflaeche::updateDiagramm()
{
    update();
    if (m_display->isVisible())
        m_display->updateAll();
}

void Diagrammflaeche::showKonzentration()
{
    showDiagramm(m_display->diagramm(), Qt::NoFocus); // the display takes the keys itself
    if (hatGroesse(*this))
        placeDisplay();
}

bool Diagrammflaeche::zeigtKonzentration() const { return m_diagramm == &m_display->diagramm(); }

void Diagrammflaeche::showPSE(Elementdiagramm elemente)
{
    m_pse.setElemente(std::move(elemente));
    showDiagramm(m_pse, Qt::StrongFocus);
}

void Diagrammflaeche::setPSEAnsicht(const PSEAnsicht& ansicht)
{
    m_pse.setAnsicht(ansicht);
    update();
}

void Diagrammflaeche::copyLuecken() { copyToClipboard(toQt(m_pse.luecken())); }

void Diagrammflaeche::setTernaerziel(std::optional<float> ziel)
{
    m_ternaer.setZiel(ziel);
    update();
}

void Diagrammflaeche::showTernaer(Ternaerangaben angaben)
{
    const bool isNew = m_ternaer.setAngaben(std::move(angaben));
    const bool isPainted = showDiagramm(m_ternaer, Qt::StrongFocus, isNew);
    m_readingIsOld = m_readingIsOld || isPainted;
    if (!m_readingIsOld)
        nenneAblesung();
}

/// What the keyboard cursor or the mouse reads in the ternary diagram.
void Diagrammflaeche::nenneAblesung()
{
    const QString ablesung = m_ternaer.cursorText();
    emit positionChanged(ablesung.isEmpty() ? m_ternaer.positionText(m_lastPosition, leinwand()) : ablesung);
}

void Diagrammflaeche::setAnsicht(const Ansicht& ansicht)
{
    m_ternaer.setAnsicht(ansicht);
    update();
}

/// Called where the view may have changed.
void Diagrammflaeche::nenneAnsicht(const QString& geste)
{
    if (m_diagramm != &m_ternaer)
        return;
    m_readingIsOld = true;
    emit ansichtChanged(geste);
}

void Diagrammflaeche::showFehler(const QString& grund)
{
    showHinweis(QStringLiteral("Konnte Diagramm nicht berechnen!\n\n%1").arg(grund));
}

void Diagrammflaeche::showHinweis(const QString& hinweis)
{
    m_meldung = Diagrammmeldung(hinweis);
    showDiagramm(m_meldung, Qt::NoFocus);
    setAccessibleDescription(hinweis);
}

void Diagrammflaeche::copyPicture() { copyToClipboard(imageOf(m_diagramm->maler(), leinwand())); }

void Diagrammflaeche::copyValues() { copyToClipboard(toQt(m_diagramm->values())); }

void Diagrammflaeche::save()
{
    exportieren(m_programm.boxes(), m_dialoge.save, Exporttitel, m_diagramm->exportarten(leinwand()));
}

void Diagrammflaeche::savePicture()
{
    frmBild dialog(m_diagramm->maler(), gemerkteBildvorgabe(m_programm.settings()), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const Bildvorgabe& vorgabe = dialog.vorgabe();
    merkeBildvorgabe(m_programm.settings(), vorgabe);
    const Eingabe& drawn =
        m_programm.Eingabe().istVollstaendig() ? m_programm.Eingabe() : m_programm.gerechneteEingabe();
    const auto arten = bildarten(
        m_diagramm->maler(), vorgabe, bildtexte(drawn, m_programm.Dokument().diagramm), m_programm.dokumenttext());
    speichereAls(m_programm.boxes(), m_dialoge.save, "Bild speichern", arten,
        SaveFileDialog::Choice{fromQt(QDir::currentPath()) + '/', static_cast<int>(vorgabe.art) + 1});
}

void Diagrammflaeche::print()
{
    if (!canPrint())
        return m_programm.boxes().show(Icon::Exclamation, Programmtitel,
            "Es ist kein Drucker eingerichtet. „Bild speichern“ gibt das Diagramm auch als PDF-Dokument aus.");
    const std::optional<std::string> file = printPicture(this, m_diagramm->maler(), leinwand());
    if (!file)
        m_programm.boxes().show(Icon::Exclamation, Programmtitel,
            "Das Diagramm konnte nicht gedruckt werden. „Bild speichern“ gibt es auch als PDF-Dokument aus.");
    else if (!file->empty())
        m_dialoge.save.gespeichert(*file);
}

void Diagrammflaeche::contextMenuEvent(QContextMenuEvent* event)
{
    if (!istDiagramm())
        return;
    QMenu menu(this);
    addCommands(menu);
    addOutputs(menu);
    bool isFirst = true;
    for (QAction* const action : actions()) {
        if (!action->isEnabled())
            continue;
        if (std::exchange(isFirst, false))
            menu.addSeparator();
        menu.addAction(action);
    }
    menu.exec(event->globalPos());
}

void Diagrammflaeche::addCommands(QMenu& menu)
{
    for (const Diagramm::Command& command : m_diagramm->commands()) {
        QAction* const action = menu.addAction(command.text, this, [this, execute = command.execute] {
            execute();
            updateDiagramm();
            nenneAnsicht({});
            if (m_diagramm == &m_pse)
                emit pseAnsichtChanged();
        });
        action->setCheckable(command.an.has_value());
        action->setChecked(command.an.value_or(false));
    }
    if (!menu.isEmpty())
        menu.addSeparator();
}

void Diagrammflaeche::addOutputs(QMenu& menu)
{
    menu.addAction(QStringLiteral("Bild kopieren"), this, &Diagrammflaeche::copyPicture);
    menu.addAction(QStringLiteral("Werte kopieren"), this, &Diagrammflaeche::copyValues);
    menu.addSeparator();
    menu.addAction(QStringLiteral("Bild speichern ..."), this, &Diagrammflaeche::savePicture);
    menu.addAction(QStringLiteral("Drucken ..."), this, &Diagrammflaeche::print);
}

void Diagrammflaeche::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeDisplay();
}

/// The display holds the axes of its picture; what is around them is painted here.
void Diagrammflaeche::placeDisplay() { m_display->setPlatz(m_display->diagramm().kern(leinwand()), size()); }

void Diagrammflaeche::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        placeDisplay();
}

void Diagrammflaeche::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    if (m_diagramm == &m_display->diagramm()) { // the rest of it is painted by the display
        painter.fillRect(rect(), Qt::white);
        m_display->diagramm().paintRand(painter, leinwand(), event->region());
        return;
    }
    m_diagramm->paint(painter, leinwand());
    m_diagramm->paintCursor(painter, leinwand());
    if (std::exchange(m_readingIsOld, false) && m_diagramm == &m_ternaer) // read once the picture is there
        nenneAblesung();
    if (hasFocus()) {
        painter.setPen(QPen(fokusfarbe(palette(), Qt::white), 2)); // diagrams are white in every theme
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void Diagrammflaeche::mousePressEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    m_dragging = true;
    ++m_drags;
    m_lastPosition = event->position();
    m_diagramm->pressed(event->position());
}

void Diagrammflaeche::mouseReleaseEvent(QMouseEvent* event)
{
    QWidget::mouseReleaseEvent(event);
    m_dragging = false;
    if (event->button() == Qt::LeftButton && m_diagramm->released(leinwand()))
        updateDiagramm();
}

void Diagrammflaeche::mouseDoubleClickEvent(QMouseEvent* event)
{
    QWidget::mouseDoubleClickEvent(event);
    if (!m_diagramm->doubleClicked())
        return;
    updateDiagramm();
    nenneAnsicht({});
}

/// Several changes of the view before the next painting become one picture.
void Diagrammflaeche::mouseMoveEvent(QMouseEvent* event)
{
    QWidget::mouseMoveEvent(event);
    const QPointF way = event->position() - m_lastPosition;
    m_lastPosition = event->position();
    m_dragging = m_dragging && event->buttons().testFlag(Qt::LeftButton);
    if (m_dragging && m_diagramm->draggedTo(event->position(), way, leinwand())) {
        takeFocus();
        updateDiagramm();
        nenneAnsicht(QStringLiteral("Maus %1").arg(m_drags));
        return;
    }
    const bool hasChanged = m_diagramm->hovered(event->position(), leinwand());
    if (m_display->isVisible()) { // which tells the position itself
        if (hasChanged)
            m_display->updatePlot();
        return;
    }
    if (hasChanged)
        update();
    emit positionChanged(m_diagramm->positionText(event->position(), leinwand()));
}

void Diagrammflaeche::wheelEvent(QWheelEvent* event)
{
    constexpr double Notch = 120; // eighths of a degree
    if (!m_diagramm->wheelTurnedAt(event->position(), event->angleDelta().y() / Notch, leinwand()))
        return QWidget::wheelEvent(event);
    event->accept();
    takeFocus();
    updateDiagramm();
    nenneAnsicht(QStringLiteral("Rad"));
}

void Diagrammflaeche::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    m_lastPosition = {-1, -1};
    if (m_diagramm->left())
        updateDiagramm();
    emit positionChanged({});
}

void Diagrammflaeche::keyPressEvent(QKeyEvent* event)
{
    const Ansicht before = ansicht();
    if (!m_diagramm->keyPressedWith(event->key(), event->modifiers(), leinwand()))
        return QWidget::keyPressEvent(event);
    if (const QString text = m_diagramm->cursorText(); !text.isEmpty())
        emit positionChanged(text);
    updateDiagramm();
    if (ansicht() != before)
        nenneAnsicht(QStringLiteral("Tasten"));
    sageAblesung(m_display->isVisible() ? static_cast<QWidget&>(*m_display) : *this);
}

void Diagrammflaeche::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    m_diagramm->clearCursor();
    sageAblesung(*this);
    update();
}

} // namespace zerna
