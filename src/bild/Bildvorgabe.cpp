#include "bild/Bildvorgabe.h"

#include <array>
#include <cmath>
#include <utility>

#include "core/Laufzeitfehler.h"
#include "core/Zahlentext.h"

namespace zerna {

namespace {

constexpr double Million = 1e6;
constexpr double MostPixels = 100 * Million; // 400 MB while it is painted
constexpr std::string_view Schriftschluessel = "Bild_Schrift";
constexpr std::string_view Artschluessel = "Bild_Art";
constexpr std::string_view Dezimalschluessel = "Bild_Dezimal";

/// Setting and switch.
constexpr std::array<std::pair<std::string_view, bool Bildvorgabe::*>, 4> Schalter{{
    {"Bild_Grau", &Bildvorgabe::grau},
    {"Bild_Titel", &Bildvorgabe::titel},
    {"Bild_Legende", &Bildvorgabe::legende},
    {"Bild_RundeTeilung", &Bildvorgabe::rundeTeilung},
}};

} // namespace

std::span<const Bildmass> bildmasse()
{
    static constexpr std::array<Bildmass, 5> Masse{{
        {"Breite", "Bild_Breite", "mm", 20, 500, &Bildvorgabe::breite},
        {"Höhe", "Bild_Hoehe", "mm", 20, 500, &Bildvorgabe::hoehe},
        {"Schriftgröße", "Bild_Schriftgroesse", "pt", 4, 36, &Bildvorgabe::schriftgroesse},
        {"Linienbreite", "Bild_Linienbreite", "pt", 0.1, 6, &Bildvorgabe::linienbreite},
        {"Auflösung", "Bild_Aufloesung", "dpi", 50, 1200, &Bildvorgabe::aufloesung},
    }};
    return Masse;
}

std::optional<double> masszahl(const Bildmass& mass, std::string_view text)
{
    double value = 0;
    try {
        if (readNumber(text, value) && value >= mass.kleinstes && value <= mass.groesstes)
            return value;
    } catch (const Laufzeitfehler&) { // beyond all numbers
    }
    return std::nullopt;
}

std::string erwartung(const Bildmass& mass)
{
    return "erwartet wird eine Zahl von " + textOfDouble(mass.kleinstes) + " bis " + textOfDouble(mass.groesstes) + " "
        + std::string(mass.einheit);
}

std::string zuGross(const Bildvorgabe& vorgabe)
{
    constexpr double Inch = 25.4; // mm
    const double dots = vorgabe.aufloesung / Inch;
    const double pixels = vorgabe.breite * dots * vorgabe.hoehe * dots;
    if (pixels <= MostPixels)
        return {};
    return "Bei " + textOfDouble(vorgabe.aufloesung) + " dpi hätte das Bild "
        + fixedText(std::ceil(pixels / Million), 0) + " Millionen Pixel, höchstens "
        + fixedText(MostPixels / Million, 0) + " Millionen sind möglich.";
}

Bildstil stilNach(const Bildvorgabe& vorgabe)
{
    return {.rundeTeilung = vorgabe.rundeTeilung,
        .dezimal = vorgabe.dezimal,
        .grau = vorgabe.grau,
        .linienbreite = pixelAusPunkt(vorgabe.linienbreite),
        .titel = vorgabe.titel,
        .legende = vorgabe.legende,
        .bildschirm = false};
}

Bildvorgabe gemerkteBildvorgabe(const Settings& settings)
{
    Bildvorgabe vorgabe;
    for (const Bildmass& mass : bildmasse())
        vorgabe.*mass.wert = masszahl(mass, settings.LoadSetting(mass.schluessel, {})).value_or(vorgabe.*mass.wert);
    for (const auto& [key, isOn] : Schalter)
        vorgabe.*isOn = settings.istAn(key, vorgabe.*isOn);
    vorgabe.schrift = settings.LoadSetting(Schriftschluessel, vorgabe.schrift);
    if (settings.LoadSetting(Dezimalschluessel, ",") == ".")
        vorgabe.dezimal = Dezimaltrenner::Punkt;
    const std::string art = settings.LoadSetting(Artschluessel, "png");
    vorgabe.art = art == "svg" ? Bildart::SVG : art == "pdf" ? Bildart::PDF : Bildart::PNG;
    return vorgabe;
}

void merkeBildvorgabe(Settings& settings, const Bildvorgabe& vorgabe)
{
    constexpr std::array<std::string_view, 3> Arten{"png", "svg", "pdf"};
    for (const Bildmass& mass : bildmasse())
        settings.SaveSetting(mass.schluessel, textOfDouble(vorgabe.*mass.wert));
    for (const auto& [key, isOn] : Schalter)
        settings.setAn(key, vorgabe.*isOn);
    settings.SaveSetting(Schriftschluessel, vorgabe.schrift);
    settings.SaveSetting(Dezimalschluessel, std::string(1, static_cast<char>(vorgabe.dezimal)));
    settings.SaveSetting(Artschluessel, Arten.at(static_cast<std::size_t>(vorgabe.art)));
}

} // namespace zerna
