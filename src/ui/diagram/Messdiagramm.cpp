#include "ui/diagram/Messdiagramm.h"

#include <utility>

#include "ui/diagram/Bildausgabe.h"

namespace zerna {

void Messdiagramm::setKurven(Kurvenbild bild)
{
    setBild(std::move(bild));
    beginneNeu();
}

void Messdiagramm::setBeiwerk(Messbeiwerk beiwerk, Tabelle befunde)
{
    setBeschriftung(std::move(beiwerk.untertitel), std::move(beiwerk.marken), std::move(beiwerk.hinweise));
    m_befunde = std::move(befunde);
}

std::string Messdiagramm::values() const { return messkurvenwerte(bild()); }

std::vector<Exportart> Messdiagramm::exportarten(const Leinwand& leinwand) const
{
    return {datDatei([this] { return values(); }),
        Exportart{
            "Maxima als CSV-Tabelle (*.csv)", "*.csv", ".csv", [this] { return std::optional(alsCsv(m_befunde)); }},
        bitmap(maler(), leinwand)};
}

} // namespace zerna
