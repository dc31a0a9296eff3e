#include "ui/pages/Diagrammseite.h"

#include <array>

#include "ui/diagram/Diagrammflaeche.h"
#include "ui/platform/QtText.h"

namespace zerna {

Diagrammseite::Diagrammseite(Programm& programm, Diagrammflaeche& flaeche, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_flaeche(flaeche)
{
}

bool Diagrammseite::zeigeHindernis(const Eingabe& eingabe)
{
    const auto hindernis = eingabe.hindernis();
    if (hindernis)
        m_flaeche.showFehler(toQt(hindernis->grund));
    return hindernis.has_value();
}

void Diagrammseite::zeigeFehler(const Laufzeitfehler& error)
{
    m_flaeche.showHinweis(QStringLiteral(
        "Konnte Diagramm nicht berechnen!\n%1 (%2)\n\nDie Größe hat hier keinen Wert oder ist an den Enden 0: Werte "
        "der Komponenten prüfen oder eine andere Größe wählen.")
                              .arg(toQt(error.what()))
                              .arg(error.Nummer()));
}

std::span<const int> legierungsgroessen()
{
    static constexpr std::array Groessen{0, 1, 3, 4, 2, 5, 6, 7, 8, 9, 10};
    return Groessen;
}

} // namespace zerna
