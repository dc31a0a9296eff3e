#include "core/Laufzeitfehler.h"

#include <string>

namespace zerna {

namespace {

const char* beschreibung(Fehler fehler)
{
    switch (fehler) {
    case Fehler::UngueltigesArgument:
        return "Ungültiger Prozeduraufruf oder ungültiges Argument";
    case Fehler::Ueberlauf:
        return "Überlauf";
    case Fehler::IndexAusserhalb:
        return "Index außerhalb des gültigen Bereichs";
    case Fehler::DivisionDurchNull:
        return "Division durch Null";
    case Fehler::TypenUnvertraeglich:
        return "Typen unverträglich";
    case Fehler::DateinummerFalsch:
        return "Dateiname oder -nummer falsch";
    case Fehler::DateiNichtGefunden:
        return "Datei nicht gefunden";
    case Fehler::EinAusgabefehler:
        return "E/A-Fehler des Geräts";
    case Fehler::DatentraegerVoll:
        return "Datenträger voll";
    case Fehler::HinterDateiende:
        return "Eingabe hinter Dateiende";
    case Fehler::ZugriffVerweigert:
        return "Zugriff verweigert";
    case Fehler::PfadZugriff:
        return "Fehler beim Zugriff auf Pfad/Datei";
    case Fehler::PfadNichtGefunden:
        return "Pfad nicht gefunden";
    case Fehler::ObjektNichtFestgelegt:
        return "Objektvariable nicht festgelegt";
    case Fehler::SchluesselVergeben:
        return "Dieser Schlüssel ist bereits einem Element dieser Auflistung zugeordnet";
    }
    return "";
}

} // namespace

Laufzeitfehler::Laufzeitfehler(Fehler fehler, std::string_view ursache)
    : std::runtime_error(
        ursache.empty() ? beschreibung(fehler) : std::string(beschreibung(fehler)).append(" (").append(ursache) + ")")
    , m_fehler(fehler)
{
}

} // namespace zerna
