#include "ui/weighing/Massenfeld.h"

#include <QFocusEvent>
#include <QStyle>
#include <QStyleOptionFrame>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "ui/platform/QtText.h"

namespace zerna {

Massenfeld::Massenfeld(const QString& name, QWidget* parent)
    : Wertfeld(parent)
{
    setObjectName(name);
    setAlignment(Qt::AlignRight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &Wertfeld::textChanged, this, &Massenfeld::read); // before whoever asks for the mass then
}

void Massenfeld::read()
{
    m_masse = ParseValue(fromQt(text()));
    setFehler(istUnbekannt(m_masse) ? QStringLiteral("Keine gültige Zahl") : QString());
}

void Massenfeld::setMasse(const QString& text)
{
    if (text == this->text())
        return; // the cursor stays where it is
    setWert(text, false);
    read();
}

QSize Massenfeld::sizeHint() const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QSize text(fontMetrics().horizontalAdvance(QStringLiteral("0000000,0000")), fontMetrics().height());
    const int width = style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, this).width();
    return {width, QLineEdit::sizeHint().height()};
}

void Massenfeld::focusOutEvent(QFocusEvent* event)
{
    Wertfeld::focusOutEvent(event);
    const Qt::FocusReason reason = event->reason();
    const bool comesBack =
        reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
    if (!comesBack)
        emit left();
}

} // namespace zerna
