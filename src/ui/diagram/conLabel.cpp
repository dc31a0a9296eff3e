#include "ui/diagram/conLabel.h"

#include <QEvent>
#include <QPainter>

#include "core/Zahlentext.h"
#include "ui/button/StyledButton.h"
#include "ui/platform/Ansage.h"
#include "ui/platform/Anzeige.h"

namespace zerna {

namespace {

constexpr int CaptionColumn = 5;
constexpr int ValueRow = 12;

} // namespace

int steppedValue(int value, int button)
{
    if (button != 0)
        return value + 1 > 100 ? 0 : value + 1;
    return value - 1 < 0 ? 100 : value - 1;
}

conLabel::conLabel(QWidget* parent)
    : QWidget(parent)
    , m_ansage(new Ansage(this, QAccessible::ValueChanged))
{
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    const std::array<QString, 2> captions{QStringLiteral("▼"), QStringLiteral("▲")};
    for (int i = 0; i < 2; ++i) {
        const auto k = static_cast<std::size_t>(i);
        m_buttons.at(k) = new StyledButton(captions.at(k), this);
        m_buttons.at(k)->setObjectName(QStringLiteral("cmdStep_%1").arg(i));
        connect(m_buttons.at(k), &StyledButton::clicked, this, [this, i] { step(i); });
    }
}

std::array<QWidget*, 2> conLabel::buttons() const { return {m_buttons[1], m_buttons[0]}; }

void conLabel::setValue(int value)
{
    if (value == m_value)
        return;
    m_value = value;
    m_ansage->merke();
    updateTexts();
}

void conLabel::setLabel(const QString& label)
{
    if (label == m_label)
        return;
    m_label = label;
    m_buttons[0]->setAccessibleName(QStringLiteral("Anteil von %1 verkleinern").arg(label.trimmed()));
    m_buttons[1]->setAccessibleName(QStringLiteral("Anteil von %1 vergrößern").arg(label.trimmed()));
    updateTexts();
}

void conLabel::setEnabled(bool enabled)
{
    if (enabled == m_enabled)
        return;
    m_enabled = enabled;
    for (StyledButton* const button : m_buttons)
        button->setEnabled(enabled);
    update();
}

void conLabel::step(int button)
{
    m_value = steppedValue(m_value, button);
    m_ansage->merke();
    emit Change();
    updateTexts();
}

/// Beside the buttons.
void conLabel::updateTexts() { update(0, 0, width() - buttonWidth(), height()); }

void conLabel::resizeEvent(QResizeEvent*)
{
    const int half = height() / 2;
    m_buttons[1]->setGeometry(width() - buttonWidth(), 0, buttonWidth(), half - 1);
    m_buttons[0]->setGeometry(width() - buttonWidth(), half, buttonWidth(), half - 1);
}

void conLabel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateGeometry();
}

int conLabel::buttonWidth() const { return fontMetrics().height() + 7; }

QSize conLabel::minimumSizeHint() const
{
    constexpr int Gap = 3;
    const int texts = fontMetrics().horizontalAdvance(QStringLiteral("Am100"));
    return {CaptionColumn + texts + Gap + buttonWidth(), qMax(34, ValueRow + fontMetrics().height() + 4)};
}

QSize conLabel::sizeHint() const
{
    const QSize least = minimumSizeHint();
    return {least.width() * 5 / 4, least.height()};
}

void conLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const int ascent = fontMetrics().ascent();
    painter.drawText(CaptionColumn, ascent, m_label);
    const QString value = toQt(anzeigetext((m_value >= 0 && m_value < 10 ? "0" : "") + fixedText(m_value, 0)));
    painter.drawText(CaptionColumn + fontMetrics().horizontalAdvance(m_label), ValueRow + ascent, value);
}

} // namespace zerna
