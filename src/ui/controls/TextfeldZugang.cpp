#include "ui/controls/TextfeldZugang.h"

#include <QLineEdit>

namespace zerna {

TextfeldZugang::TextfeldZugang(QLineEdit& feld)
    : QAccessibleWidget(&feld, QAccessible::EditableText)
    , m_feld(feld)
{
}

QAccessible::State TextfeldZugang::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = m_feld.isReadOnly();
    state.editable = !m_feld.isReadOnly();
    state.selectableText = true;
    state.passwordEdit = m_feld.echoMode() != QLineEdit::Normal;
    return state;
}

QString TextfeldZugang::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value)
        return m_feld.displayText();
    const QString said = QAccessibleWidget::text(kind);
    return said.isEmpty() && kind == QAccessible::Description ? m_feld.placeholderText() : said;
}

void TextfeldZugang::setText(QAccessible::Text kind, const QString& text)
{
    if (kind == QAccessible::Value)
        replaceText(0, characterCount(), text);
    else
        QAccessibleWidget::setText(kind, text);
}

void* TextfeldZugang::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

void TextfeldZugang::selection(int, int* start, int* end) const
{
    *start = qMax(0, m_feld.selectionStart()); // -1 for none
    *end = qMax(0, m_feld.selectionEnd());
}

int TextfeldZugang::selectionCount() const { return m_feld.hasSelectedText() ? 1 : 0; }

void TextfeldZugang::addSelection(int start, int end) { setSelection(0, start, end); }

void TextfeldZugang::removeSelection(int) { m_feld.deselect(); }

void TextfeldZugang::setSelection(int, int start, int end)
{
    m_feld.setSelection(within(start), within(end) - within(start));
}

int TextfeldZugang::cursorPosition() const { return m_feld.cursorPosition(); }

void TextfeldZugang::setCursorPosition(int position) { m_feld.setCursorPosition(position); }

QString TextfeldZugang::text(int start, int end) const
{
    return m_feld.displayText().mid(within(start), qMax(0, within(end) - within(start)));
}

int TextfeldZugang::characterCount() const { return static_cast<int>(m_feld.displayText().size()); }

/// The place in the text that is nearest to an offset, which a reader may have from a text that was longer.
int TextfeldZugang::within(int offset) const { return qBound(0, offset, characterCount()); }

QRect TextfeldZugang::characterRect(int offset) const
{
    const QString text = m_feld.displayText();
    const QFontMetrics metrics = m_feld.fontMetrics();
    const auto left = [&](int at) { return metrics.horizontalAdvance(text.left(at)); };
    QRect place = m_feld.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    place.moveLeft(place.center().x() + left(offset) - left(m_feld.cursorPosition()));
    place.setWidth(left(offset + 1) - left(offset));
    return {m_feld.mapToGlobal(place.topLeft()), place.size()};
}

int TextfeldZugang::offsetAtPoint(const QPoint& point) const
{
    return m_feld.cursorPositionAt(m_feld.mapFromGlobal(point));
}

void TextfeldZugang::scrollToSubstring(int start, int end)
{
    m_feld.setCursorPosition(end);
    m_feld.setCursorPosition(start);
}

QString TextfeldZugang::attributes(int, int* start, int* end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

/// As if it were typed.
void TextfeldZugang::replaceText(int start, int end, const QString& text)
{
    if (m_feld.isReadOnly() || !m_feld.isEnabled())
        return;
    setSelection(0, start, end);
    m_feld.insert(text);
}

} // namespace zerna
