#include "ui/weighing/Wiegegrund.h"

#include "core/CheckedArithmetic.h"
#include "model/einwaage/Einwaage.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

/// The reason of an arithmetic failure that no component is to blame for.
QString ursache(const Laufzeitfehler& error)
{
    return error.Nummer() == static_cast<int>(Fehler::Ueberlauf)
        ? QStringLiteral("die Zahlen sind zu groß für die Rechnung")
        : QStringLiteral("die Zahlen sind zu klein für die Rechnung");
}

/// The sentence about the component that is to blame.
QString satz(const clsCalc& calc, const Wiegehindernis& hindernis)
{
    const std::string name = calc.Element_Name(hindernis.komponente); // empty without an element
    return toQt(
        (name.empty() ? "Komponente " + std::to_string(hindernis.komponente + 1) : name) + " " + hindernis.grund);
}

} // namespace

QString sollGrund(const clsCalc& calc, int komponentenzahl, const Laufzeitfehler& fehler)
{
    const auto hindernis = sollmassenHindernis(calc, komponentenzahl);
    return QStringLiteral("Sollmassen nicht berechenbar: %1.")
        .arg(hindernis ? satz(calc, *hindernis) : ursache(fehler));
}

QString istGrund(const clsCalc& calc, std::span<const float> massen, const Laufzeitfehler& fehler)
{
    const auto hindernis = atomprozentHindernis(calc, massen);
    return QStringLiteral("Atomprozente nicht berechenbar: %1.")
        .arg(hindernis ? satz(calc, *hindernis) : ursache(fehler));
}

} // namespace zerna
