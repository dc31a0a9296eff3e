#pragma once

#include <memory>

#include "model/Diagrammwahl.h"
#include "programm/Rechenkern.h"
#include "ui/diagram/Diagramm.h"

namespace zerna {

/// The chosen diagram of the calculator's alloy as the window shows it. Throws Datenfehler or Laufzeitfehler.
std::unique_ptr<Diagramm> diagramm(Rechenkern& kern, const Diagrammwahl& wahl);

} // namespace zerna
