#include "ui/weighing/Massenfeld.h"

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

} // namespace zerna
