#include "model/messung/Messdatei.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/Textbytes.h"
#include "model/messung/Messkopf.h"
#include "model/messung/Messzeile.h"

namespace zerna {

namespace {

constexpr std::size_t LongestHeading = 10'000; // bytes of what stands above the points

bool isComment(std::string_view line)
{
    return std::string_view("#;%'!").find(line.front()) != std::string_view::npos || line.starts_with("//");
}

std::string grundIn(std::size_t zeile, const std::string& grund)
{
    return "Zeile " + std::to_string(zeile) + ": " + grund + ".";
}

/// Goes through the lines of a text.
class Messdatei {
public:
    explicit Messdatei(std::size_t most)
        : m_most(most)
    {
    }

    /// Why the points cannot be read; empty if they can.
    std::string lies(std::string_view text)
    {
        while (!text.empty() && m_grund.empty()) {
            const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
            ++m_zeile;
            liesZeile(ohneRand(text.substr(0, end)));
            text.remove_prefix(
                end + (text.substr(end).starts_with("\r\n") ? 2 : std::min<std::size_t>(1, text.size() - end)));
        }
        if (m_grund.empty())
            pruefe();
        return std::move(m_grund);
    }

    const std::string& kopf() const { return m_kopf; }

    std::vector<Messpunkt> punkte()
    {
        if (m_faellt)
            std::ranges::reverse(m_punkte);
        return std::move(m_punkte);
    }

private:
    void liesZeile(std::string_view line)
    {
        if (line.empty())
            return;
        Messpunkt punkt;
        if (isComment(line)) {
            nimmKopf(line);
        } else if (line = ohneRand(line.substr(0, line.find('#'))); m_zeilen.lies(line, punkt)) {
            nimm(punkt);
        } else if (!m_punkte.empty() || beginntWieMesspunkt(line)) {
            m_grund = grundIn(m_zeile, m_zeilen.grund(line));
        } else {
            if (m_ersteZahl == 0 && !line.empty()
                && line.find_first_not_of("0123456789+-.,eE") == std::string_view::npos)
                m_ersteZahl = m_zeile;
            nimmKopf(line);
        }
    }

    void nimmKopf(std::string_view line)
    {
        if (m_punkte.empty() && m_kopf.size() + line.size() < LongestHeading)
            m_kopf.append(line).append("\n");
    }

    void nimm(const Messpunkt& punkt)
    {
        if (m_punkte.empty())
            m_erste = m_zeile;
        else if (m_punkte.size() == 1)
            m_faellt = punkt.x < m_punkte.back().x;
        if (!m_punkte.empty() && (m_faellt ? punkt.x >= m_punkte.back().x : punkt.x <= m_punkte.back().x))
            m_grund = grundIn(m_zeile, ordnung(punkt.x == m_punkte.back().x));
        else if (m_punkte.size() >= m_most)
            m_grund = grundIn(m_zeile,
                "Für mehr als " + std::to_string(m_most)
                    + " Messpunkte ist kein Platz; alle Messkurven zusammen dürfen " + std::to_string(MeisteMesspunkte)
                    + " haben");
        m_punkte.push_back(punkt);
    }

    std::string ordnung(bool isSame) const
    {
        if (isSame)
            return "Der Wert der ersten Spalte ist derselbe wie im Punkt davor";
        return m_faellt ? "Die Werte der ersten Spalte fallen zuerst und steigen hier"
                        : "Die Werte der ersten Spalte steigen zuerst und fallen hier";
    }

    void pruefe()
    {
        if (m_punkte.empty())
            m_grund = m_ersteZahl > 0 ? grundIn(m_ersteZahl, "Hier steht nur eine Spalte; gebraucht werden zwei")
                : m_kopf.empty()      ? "Die Datei ist leer."
                                      : "In der Datei stehen keine zwei Spalten mit Zahlen.";
        else if (m_zeilen.istMehrdeutig())
            m_grund = grundIn(m_erste,
                "Ein Komma kann hier vor Nachkommastellen oder zwischen zwei Spalten stehen; Spalten bitte mit "
                "Semikolon "
                "oder Tabulator trennen");
        else if (m_punkte.size() < WenigsteMesspunkte)
            m_grund = grundIn(m_zeile, "Die Datei hat zu wenige Messpunkte; gebraucht werden mindestens drei");
    }

    std::size_t m_most;
    Messzeilen m_zeilen;
    std::vector<Messpunkt> m_punkte;
    std::string m_kopf;
    std::string m_grund;
    std::size_t m_zeile = 0; // from 1
    std::size_t m_erste = 0; // line of the first point
    std::size_t m_ersteZahl = 0; // line of the first number that stands alone; 0 for none
    bool m_faellt = false;
};

/// In Å a distance of atoms is above 1 and a main maximum of S(K) below 10, in nm it is the other way round.
Messeinheit einheitNach(const std::vector<Messpunkt>& punkte, Messart art)
{
    const double x = std::ranges::max_element(punkte, {}, &Messpunkt::y)->x;
    const bool isNanometer = art == Messart::Paarverteilung ? x < 1 : x > 10;
    return isNanometer ? Messeinheit::Nanometer : Messeinheit::Angstroem;
}

} // namespace

Messlesung liesMesskurve(std::string_view bytes, std::string_view name, std::size_t hoechstens)
{
    const auto text = textAusBytes(bytes);
    if (!text)
        return {std::nullopt, "Das ist keine Textdatei."};
    Messdatei datei(hoechstens);
    if (std::string grund = datei.lies(*text); !grund.empty())
        return {std::nullopt, std::move(grund)};
    const Messangabe angabe = messangabe(std::string(name) + "\n" + datei.kopf());
    std::vector<Messpunkt> punkte = datei.punkte();
    const Messart art = angabe.art.value_or(Messart::Paarverteilung);
    const Messeinheit einheit = angabe.einheit ? *angabe.einheit : einheitNach(punkte, art);
    return {Messkurve{std::string(name), art, einheit, std::move(punkte)}, {}};
}

} // namespace zerna
