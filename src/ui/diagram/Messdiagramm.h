#pragma once

#include "bild/Messkurvenbild.h"
#include "ui/diagram/Kurvendiagramm.h"

namespace zerna {

/// The diagram of measured curves, with the Friedel minima or 2kF of an alloy across it.
class Messdiagramm : public Kurvendiagramm {
public:
    /// Shows other curves, the whole of them.
    void setKurven(Kurvenbild bild);

    /// Shows what follows of another alloy, and the maxima beside it.
    void setBeiwerk(Messbeiwerk beiwerk, Tabelle befunde);

    bool hatWerte() const override { return true; }
    std::string values() const override;
    std::vector<Exportart> exportarten(const Leinwand& leinwand) const override;

private:
    Tabelle m_befunde;
};

} // namespace zerna
