#include "programm/Messkurvenoeffnung.h"

#include <utility>

#include "core/Datei.h"
#include "core/Kuerzung.h"
#include "core/Textbytes.h"
#include "model/messung/Messdatei.h"
#include "programm/Dokumentoeffnung.h"
#include "traeger/Dokumentfund.h"

namespace zerna {

namespace {

Messlesung gelesen(const std::filesystem::path& datei, const std::vector<Messkurve>& vorhandene)
{
    if (vorhandene.size() >= MeisteMesskurven)
        return {std::nullopt,
            "Es sind schon " + std::to_string(MeisteMesskurven) + " Messkurven; bitte erst eine entfernen."};
    try {
        return liesMesskurve(
            readFile(datei), utf8FromPath(datei.filename()), MeisteMesspunkte - messpunktzahl(vorhandene));
    } catch (const Laufzeitfehler& error) {
        return {std::nullopt, std::string(error.what()) + "."};
    }
}

} // namespace

Messkurvenoeffnung oeffneMesskurven(
    std::vector<Messkurve> vorhandene, const std::vector<std::filesystem::path>& dateien)
{
    Messkurvenoeffnung oeffnung{std::move(vorhandene), 0, {}};
    for (const std::filesystem::path& datei : dateien) {
        Messlesung lesung = gelesen(datei, oeffnung.kurven);
        if (lesung.kurve) {
            oeffnung.kurven.push_back(*std::move(lesung.kurve));
            ++oeffnung.neue;
        } else {
            oeffnung.grund += (oeffnung.grund.empty() ? "" : "\r\n\r\n") + std::string("Die Messkurve ")
                + zitierteDatei(utf8FromPath(datei.filename())) + " konnte nicht geöffnet werden:\r\n" + lesung.grund;
        }
    }
    return oeffnung;
}

bool istMesskurvendatei(const std::filesystem::path& datei)
{
    if (istDokumentname(utf8FromPath(datei.filename())))
        return false;
    try {
        const std::string bytes = readFile(datei);
        return !bytes.empty() && dokumentAus(bytes).art == Dateiart::Fremd && textAusBytes(bytes);
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

} // namespace zerna
