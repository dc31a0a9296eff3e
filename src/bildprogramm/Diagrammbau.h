#pragma once

#include <memory>

#include "bild/Konzentrationsbild.h"
#include "bild/PSEGeometrie.h"
#include "model/dokument/Dokument.h"
#include "programm/Rechenkern.h"
#include "ui/diagram/Diagramm.h"

namespace zerna {

/// The chosen diagram of a document, whose alloy is the calculator's, as the window shows it. Throws Datenfehler where
/// there is nothing to show, Laufzeitfehler.
std::unique_ptr<Diagramm> diagramm(
    Rechenkern& kern, const Dokument& dokument, const Kurvenschalter& schalter, const PSEAnsicht& ansicht);

} // namespace zerna
