#include "programm/Exportart.h"

#include <utility>

#include "core/Zeichensatz.h"

namespace zerna {

Exportart textdatei(std::string_view beschreibung, std::string_view muster, std::string_view endung, Exporttext text)
{
    const auto bytes = [text = std::move(text)]() -> std::optional<std::string> {
        const auto utf8 = text();
        return utf8 ? std::optional(toWindows1252(*utf8)) : std::nullopt;
    };
    return {beschreibung, muster, endung, bytes, true};
}

Exportart datDatei(Exporttext text) { return textdatei("DAT-File (*.dat)", "*.dat", ".dat", std::move(text)); }

Exportart friedelminima(Exporttext text)
{
    return textdatei("Friedelminima (*.fri)", "*.fri", ".fri", std::move(text));
}

std::vector<Exportart> tabellenarten(const Tabelle& tabelle)
{
    return {
        {"CSV mit Semikolon (*.csv)", "*.csv", ".csv", [tabelle] { return alsCsv(tabelle); }},
        {"Text mit Tabulatoren (*.txt)", "*.txt", ".txt",
            [tabelle] { return "\xEF\xBB\xBF" + alsText(mitKopf(tabelle)); }},
        {"HTML für Textprogramme (*.html)", "*.html", ".html", [tabelle] { return alsHtml(tabelle); }},
    };
}

} // namespace zerna
