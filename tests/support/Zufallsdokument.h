#pragma once

#include <array>
#include <cmath>
#include <memory>
#include <random>
#include <string>

#include "core/Zahlentext.h"
#include "model/dokument/Dokument.h"

namespace zerna {

/// Makes documents as users could, and some that nobody would: each seed the same ones on every machine.
class Zufallsdokument {
public:
    Zufallsdokument(const ElementCollection& elements, unsigned seed)
        : m_elements(elements)
        , m_random(seed)
    {
    }

    Dokument naechstes()
    {
        Dokument dokument(m_elements);
        dokument.titel = text();
        dokument.bemerkung = text() + "\r\n" + text();
        dokument.eingabe = eingabe();
        dokument.wiegen.gewuenscht = text();
        for (std::string& gewogen : dokument.wiegen.gewogen)
            gewogen = text();
        dokument.wiegen.verlust = text();
        if (below(3) == 0)
            dokument.wiegen.bezug = Wiegebezug{below(MaxKomponenten), std::abs(single())};
        Diagrammwahl wahl{.typ = static_cast<Diagrammtyp>(below(4)),
            .groesse = below(11),
            .komponente = below(MaxKomponenten),
            .aufloesung = 1 + below(10),
            .ansicht = {real(-90, 90), real(-180, 180), real(0.5, 3), below(2) == 0}};
        if (below(3) == 0)
            wahl.andereGroesse = below(23);
        if (below(3) == 0)
            wahl.zweiteGroesse = below(11);
        wahl.varianten = below(3) == 0;
        dokument.diagramm = passendeWahl(wahl, dokument.eingabe.anzahl());
        dokument.vergleich = vergleich();
        dokument.kurven = kurven();
        dokument.messkurven = messkurven();
        if (below(4) == 0)
            dokument.fremd = std::string(R"({"diagramm":{"farbe":"grün"},"neu":[1,null,{"a":-2.5}]})");
        return dokument;
    }

    Eingabe eingabe()
    {
        Eingabe eingabe(m_elements);
        for (int steps = below(20); steps > 0; --steps)
            change(eingabe, below(MaxKomponenten));
        return eingabe;
    }

    /// One edit of a row.
    void change(Eingabe& eingabe, int zeile)
    {
        switch (below(9)) {
        case 0:
            eingabe.setAnzahl(1 + below(MaxKomponenten));
            break;
        case 1:
            eingabe.waehleElement(zeile, element().symbol());
            break;
        case 2:
            eingabe.setProzent(zeile, text());
            break;
        case 3:
            eingabe.setProzentOhneAusgleich(zeile, text());
            eingabe.gleicheAus();
            break;
        case 4:
            eingabe.nachschlagen(zeile);
            break;
        case 5:
            eingabe.waehleDichteart(dichtearten().at(static_cast<std::size_t>(below(3))));
            break;
        case 6:
            eingabe.waehleDichte(zeile, AndereWahl);
            if (eingabe.zeile(zeile).element)
                eingabe.setDichte(zeile, text());
            break;
        default:
            eingabe.waehleValenz(zeile, ValenzAndere);
            if (eingabe.zeile(zeile).element)
                eingabe.setValenz(zeile, text());
        }
    }

    int below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

private:
    const clsElement& element() { return *m_elements.Item(1 + below(m_elements.Count())); }

    double real(double least, double most)
    {
        return least + (most - least) * static_cast<double>(m_random()) / 0xFFFFFFFF;
    }

    float single() { return static_cast<float>(real(-1, 1) * std::array{1e-9, 0.1, 7.0, 1e3, 2.5e20}.at(pick(5))); }

    std::string text()
    {
        static const std::array<std::string, 16> Texte{"", "0", "-0", "33.30", " 12,5 ", "1e39", "3/2", "z_Cu+1",
            "hex(7)", "sqrt(2", "<unbekannt>", "Größe \"2 kF\" \\ 😀", std::string("\0\x7F\n", 3), "&H10", "foo(1)",
            "1,,5"};
        return below(2) == 0 ? textOfSingle(single()) : Texte.at(pick(Texte.size()));
    }

    std::size_t pick(std::size_t count) { return m_random() % count; }

    Vergleich vergleich()
    {
        Vergleich vergleich;
        const int count = below(200) == 0 ? static_cast<int>(MaxVarianten) : below(3);
        for (int i = 0; i < count; ++i)
            vergleich.varianten.push_back({text(), eingabe(), below(4) == 0 ? R"({"note":{"x":"€"}})" : ""});
        vergleich.referenz = count == 0 ? 0 : static_cast<std::size_t>(below(count));
        return vergleich;
    }

    std::vector<GehalteneKurve> kurven()
    {
        std::vector<GehalteneKurve> kurven(below(20) == 0 ? pick(MaxKurven + 1) : 0);
        for (GehalteneKurve& kurve : kurven) {
            kurve.name = text();
            kurve.symbol = element().symbol();
            kurve.groesse = below(11);
            kurve.art = below(2) == 0 ? Reihenart::Gegeben : Reihenart::Summe100;
            for (float& value : kurve.werte)
                value = below(9) == 0 ? Unbekannt : single();
            kurve.fremd = below(4) == 0 ? R"({"note":{"x":"€"}})" : "";
        }
        return kurven;
    }

    std::vector<Messkurve> messkurven()
    {
        std::vector<Messkurve> kurven;
        for (int count = std::max(0, below(6) - 3); count > 0; --count) {
            std::vector<Messpunkt> punkte;
            for (double x = real(-9, 9); punkte.size() < 3 || below(8) != 0; x += real(1e-9, 2.5))
                punkte.push_back({x, real(-1, 1) * std::array{1e-9, 0.1, 1.0, 2.5e20}.at(pick(4))});
            kurven.push_back({text(), static_cast<Messart>(below(2)), static_cast<Messeinheit>(below(2)),
                std::move(punkte), below(4) == 0 ? R"({"probe":[7]})" : ""});
        }
        return kurven;
    }

    const ElementCollection& m_elements;
    std::mt19937 m_random;
};

} // namespace zerna
