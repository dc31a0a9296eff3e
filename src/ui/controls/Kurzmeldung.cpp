#include "ui/controls/Kurzmeldung.h"

#include "ui/platform/Ansage.h"

namespace zerna {

Kurzmeldung::Kurzmeldung(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void Kurzmeldung::zeige(const QString& text)
{
    schreibe(text);
    if (!text.isEmpty())
        sageSofort(*this);
}

void Kurzmeldung::schreibe(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    setToolTip(text);
    setAccessibleName(text);
    fit();
}

void Kurzmeldung::fit() { setText(fontMetrics().elidedText(m_text, Qt::ElideRight, width())); }

void Kurzmeldung::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    fit();
}

} // namespace zerna
