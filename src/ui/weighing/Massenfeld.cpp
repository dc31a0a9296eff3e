#include "ui/weighing/Massenfeld.h"

#include <QFocusEvent>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "ui/platform/QtText.h"

namespace zerna {

Massenfeld::Massenfeld(const QString& name, QWidget* parent)
    : Wertfeld(parent)
{
    setObjectName(name);
    setAlignment(Qt::AlignRight);
    connect(this, &Wertfeld::textChanged, this, &Massenfeld::read); // before whoever asks for the mass then
}

void Massenfeld::read()
{
    m_masse = ParseValue(fromQt(text()));
    setFehler(istUnbekannt(m_masse) ? QStringLiteral("Keine gültige Zahl") : QString());
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
