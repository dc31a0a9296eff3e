#include "ui/controls/Wertfeld.h"

#include <QFocusEvent>
#include <QPainter>
#include <QSignalBlocker>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr const char* Marke = "Marke"; // property: the text form of the unknown-value marker, or "0"
constexpr int EchoMargin = 6;

/// A red that stands out on light and on dark fields.
QColor fehlerfarbe(const QPalette& palette)
{
    return istDunkel(palette, QPalette::Base) ? QColor(255, 107, 107) : QColor(200, 30, 30);
}

} // namespace

Wertfeld::Wertfeld(QWidget* parent)
    : QLineEdit(parent)
{
    setWert({}, false);
    strengthenDisabledText();
}

/// A field that takes no input still shows a value that must be read with ease.
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

void Wertfeld::setEcho(const QString& echo)
{
    if (echo == m_echo)
        return;
    m_echo = echo;
    const int width = echo.isEmpty() ? 0 : fontMetrics().horizontalAdvance(echo) + EchoMargin;
    setTextMargins(0, 0, width, 0);
    showHinweis();
    update();
}

void Wertfeld::setHinweis(const QString& hinweis)
{
    m_hinweis = hinweis;
    showHinweis();
}

void Wertfeld::showHinweis()
{
    const QString valid = m_echo.isEmpty() ? m_hinweis : QStringLiteral("%1 %2").arg(text(), m_echo);
    setToolTip(m_fehler.isEmpty() ? valid : m_fehler);
    setAccessibleDescription(toolTip());
}

void Wertfeld::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    emit focusEntered();
}

void Wertfeld::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    emit focusLeft();
}

void Wertfeld::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    if (!m_echo.isEmpty()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect().adjusted(0, 0, -EchoMargin, 0), Qt::AlignRight | Qt::AlignVCenter, m_echo);
    }
    if (!m_fehler.isEmpty()) {
        QColor fill = fehlerfarbe(palette());
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(fill, 2));
        fill.setAlpha(36);
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2, 2);
    }
}

} // namespace zerna
