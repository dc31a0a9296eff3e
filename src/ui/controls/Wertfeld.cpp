#include "ui/controls/Wertfeld.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr const char* Marke = "Marke"; // property: the text form of the unknown-value marker, or "0"
constexpr int EchoMargin = 6;

/// The action of the window with the standard key; null if it has none.
QAction* actionOf(const QWidget& window, QKeySequence::StandardKey key)
{
    const auto known = QKeySequence::keyBindings(key);
    for (QAction* const action : window.actions()) {
        for (const QKeySequence& own : action->shortcuts()) {
            if (known.contains(own))
                return action;
        }
    }
    return nullptr;
}

} // namespace

Wertfeld::Wertfeld(QWidget* parent)
    : QLineEdit(parent)
{
    setProperty(Marke, QStringLiteral("0"));
    strengthenDisabledText();
    connect(this, &QLineEdit::returnPressed, this, &Wertfeld::verlassen);
    connect(this, &QLineEdit::textChanged, this, &Wertfeld::cutEcho);
}

/// A field that takes no input still shows a value that must be read with ease, and so are echoes and hints in it.
void Wertfeld::strengthenDisabledText()
{
    const auto mixed = [](const QColor& a, const QColor& b, double share) {
        return QColor::fromRgbF(static_cast<float>(a.redF() * share + b.redF() * (1 - share)),
            static_cast<float>(a.greenF() * share + b.greenF() * (1 - share)),
            static_cast<float>(a.blueF() * share + b.blueF() * (1 - share)));
    };
    QPalette own = palette();
    const QColor text =
        mixed(own.color(QPalette::Active, QPalette::WindowText), own.color(QPalette::Active, QPalette::Window), 0.75);
    if (own.color(QPalette::Disabled, QPalette::Text) == text)
        return;
    own.setColor(QPalette::Disabled, QPalette::Text, text);
    own.setColor(QPalette::PlaceholderText,
        mixed(own.color(QPalette::Active, QPalette::Text), own.color(QPalette::Active, QPalette::Base), 0.7));
    setPalette(own);
}

void Wertfeld::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        strengthenDisabledText();
}

void Wertfeld::setWert(const QString& text, bool unbekannt)
{
    const QSignalBlocker blocker(this);
    setProperty(Marke, unbekannt ? toQt(textOfSingle(Unbekannt)) : QStringLiteral("0"));
    setText(text);
    cutEcho();
    setCursorPosition(0); // a text that is too long shows its beginning
}

bool Wertfeld::istWertUnbekannt() const { return property(Marke).toString() != QLatin1String("0"); }

void Wertfeld::setFehler(const QString& grund)
{
    if (grund == m_fehler)
        return;
    m_fehler = grund;
    showHinweis();
    update();
}

void Wertfeld::setBedenken(const QString& bedenken)
{
    if (bedenken == m_bedenken)
        return;
    m_bedenken = bedenken;
    showHinweis();
    update();
}

void Wertfeld::setEcho(const QString& echo)
{
    if (echo == m_echo)
        return;
    m_echo = echo;
    cutEcho();
    showHinweis();
    update();
}

/// Leaves the echo the room that the text does not need.
void Wertfeld::cutEcho()
{
    constexpr int Frame = 12; // with the cursor
    constexpr int Shortest = 4; // characters that say something: "= 1…"
    m_shownEcho.clear();
    if (!m_echo.isEmpty()) {
        const int room = width() - fontMetrics().horizontalAdvance(text()) - Frame - EchoMargin;
        m_shownEcho = fontMetrics().elidedText(m_echo, Qt::ElideRight, qMax(0, room));
        if (m_shownEcho != m_echo && m_shownEcho.size() < Shortest)
            m_shownEcho.clear();
    }
    const int margin = m_shownEcho.isEmpty() ? 0 : fontMetrics().horizontalAdvance(m_shownEcho) + EchoMargin;
    const int left = looksLikeLabel() ? style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this) : 0;
    if (textMargins() != QMargins(left, 0, margin, 0))
        setTextMargins(left, 0, margin, 0);
}

void Wertfeld::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    cutEcho();
}

void Wertfeld::setBerechnet(bool berechnet)
{
    if (berechnet == m_berechnet)
        return;
    m_berechnet = berechnet;
    showArt();
}

void Wertfeld::showArt()
{
    setFrame(!looksLikeLabel());
    QPalette own;
    if (looksLikeLabel())
        own.setColor(QPalette::Base, Qt::transparent);
    setPalette(own);
    strengthenDisabledText();
    cutEcho(); // without a frame the text keeps its place by a margin
}

void Wertfeld::setHinweis(const QString& hinweis)
{
    m_hinweis = hinweis;
    showHinweis();
}

void Wertfeld::showHinweis()
{
    const QString valid = m_echo.isEmpty() ? m_hinweis : QStringLiteral("%1 %2").arg(text(), m_echo).trimmed();
    const QString unmarked = m_bedenken.isEmpty() ? valid : m_bedenken;
    const QString& shown = m_fehler.isEmpty() ? unmarked : m_fehler;
    if (shown == toolTip())
        return;
    setToolTip(shown);
    setAccessibleDescription(shown);
}

/// Whether the window undoes what was typed.
bool Wertfeld::goesToWindow(const QKeyEvent& key) const
{
    if (key.matches(QKeySequence::Undo))
        return !m_eigenerVerlauf || !isUndoAvailable();
    return key.matches(QKeySequence::Redo) && (!m_eigenerVerlauf || !isRedoAvailable());
}

/// A text field claims these keys before the window's actions get them.
bool Wertfeld::event(QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride || !goesToWindow(static_cast<const QKeyEvent&>(*event)))
        return QLineEdit::event(event);
    event->ignore();
    return false;
}

/// Comes with these keys only while the window has nothing to undo; then they must not do anything else.
void Wertfeld::keyPressEvent(QKeyEvent* event)
{
    if (goesToWindow(*event))
        event->ignore();
    else
        QLineEdit::keyPressEvent(event);
}

/// Takes a number whole: to the toolkit the decimal comma parts words, and what is typed next would join the rest.
void Wertfeld::mouseDoubleClickEvent(QMouseEvent* event)
{
    QLineEdit::mouseDoubleClickEvent(event);
    if (numberIn(fromQt(text())))
        selectAll();
}

void Wertfeld::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu* const menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* const undo = actionOf(*window(), QKeySequence::Undo);
    QAction* const redo = actionOf(*window(), QKeySequence::Redo);
    if (const auto own = menu->actions(); !m_eigenerVerlauf && !isReadOnly() && undo != nullptr && redo != nullptr) {
        menu->insertActions(own.at(0), {undo, redo});
        menu->removeAction(own.at(0)); // the field's undo and redo come first
        menu->removeAction(own.at(1));
    }
    menu->popup(event->globalPos());
}

void Wertfeld::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (m_berechnet)
        showArt();
    emit focusEntered();
}

void Wertfeld::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (m_berechnet)
        showArt();
    emit focusLeft();
    const Qt::FocusReason reason = event->reason();
    const bool comesBack =
        reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
    if (!comesBack)
        emit verlassen();
}

void Wertfeld::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    if (hasFocus() && m_fehler.isEmpty() && m_bedenken.isEmpty()) { // the style's own frame may be too faint
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(fokusfarbe(palette(), palette().color(QPalette::Window)), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2, 2);
        painter.setRenderHint(QPainter::Antialiasing, false);
    }
    if (!m_shownEcho.isEmpty()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect().adjusted(0, 0, -EchoMargin, 0), Qt::AlignRight | Qt::AlignVCenter, m_shownEcho);
    }
    if (!m_fehler.isEmpty() || !m_bedenken.isEmpty()) {
        QColor fill =
            m_fehler.isEmpty() ? bedenkenfarbe(palette(), QPalette::Base) : fehlerfarbe(palette(), QPalette::Base);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(fill, 2));
        fill.setAlpha(36);
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2, 2);
    }
}

} // namespace zerna
