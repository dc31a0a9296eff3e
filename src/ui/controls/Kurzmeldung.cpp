#include "ui/controls/Kurzmeldung.h"

#include <QAccessible>

namespace zerna {

Kurzmeldung::Kurzmeldung(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void Kurzmeldung::zeige(const QString& text)
{
    m_text = text;
    fit();
    setToolTip(text);
    setAccessibleName(text);
    if (text.isEmpty())
        return;
    QAccessibleEvent spoken(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&spoken);
}

void Kurzmeldung::fit() { setText(fontMetrics().elidedText(m_text, Qt::ElideRight, width())); }

void Kurzmeldung::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    fit();
}

} // namespace zerna
