#include "ui/search/Drittelementseite.h"

#include <QFormLayout>

#include "core/CheckedArithmetic.h"
#include "model/suche/Anteilsuebernahme.h"
#include "model/suche/Suchtabelle.h"
#include "ui/controls/Befundzeile.h"
#include "ui/controls/Wertfeld.h"
#include "ui/platform/QtText.h"
#include "ui/search/Suchliste.h"

namespace zerna {

namespace {

constexpr std::array Koepfe{"Element", "Wert", "Einheit", "Abweichung"};

} // namespace

Drittelementseite::Drittelementseite(Programm& programm, QWidget* parent)
    : Suchseite(programm,
        {.liste = "tblSuche_Elemente",
            .listenname = QStringLiteral("Elemente, das nächste zuerst"),
            .satz = "lblSuche_Element",
            .uebernehmen = "cmdSuche_Element",
            .uebernahme = QStringLiteral("Das gewählte Element als weitere Zeile in den Rechner eintragen"),
            .kopieren = "cmdSuche_Rangliste",
            .kopie = QStringLiteral("Die ganze Rangliste als Tabelle in die Zwischenablage")},
        parent)
    , m_txtProzent(new Wertfeld(this))
{
    m_txtProzent->setObjectName(QStringLiteral("txtSuche_Prozent"));
    m_txtProzent->setEigenerVerlauf(true);
    m_txtProzent->setWert(QStringLiteral("10"), false);
    connect(m_txtProzent, &Wertfeld::textChanged, this, &Drittelementseite::rank);
    auto* const frage = new QFormLayout;
    frage->addRow(QStringLiteral("&at% des weiteren Elements:"), m_txtProzent);
    layOut(frage, {m_txtProzent});
}

void Drittelementseite::suche(int groesse, const Eingabefeld& ziel)
{
    m_groesse = groesse;
    m_ziel = ziel;
    rank();
}

void Drittelementseite::rank()
{
    const Eingabefeld prozent = zahlenfeld(fromQt(m_txtProzent->text()));
    const bool isShare = !prozent.fehler && prozent.wert > 0 && prozent.wert < 100;
    m_txtProzent->setFehler(isShare ? QString() : QStringLiteral("Eine Zahl zwischen 0 und 100 eintragen."));
    m_rangliste = {};
    Tabelle tabelle;
    const bool isFull = programm().Eingabe().anzahl() == MaxKomponenten;
    std::string text = isFull ? "Die Legierung hat schon fünf Komponenten, für ein weiteres Element ist kein Platz."
                              : hindernis(m_ziel);
    if (text.empty() && isShare) {
        try {
            const Legierung legierung = programm().Eingabe().legierung().value();
            const Groesse& groesse = *findReihengroesse(m_groesse);
            m_rangliste = drittelemente(programm().Calc(), programm().ElementCollection(), legierung.komponenten(),
                prozent.wert, groesse, m_ziel.wert);
            tabelle = rangtabelle(m_rangliste, groesse, Dezimaltrenner::Komma);
            for (std::size_t i = 0; i < Koepfe.size(); ++i)
                tabelle.spalten.at(i).name = Koepfe.at(i);
            text = ohneDatenSatz(m_rangliste);
        } catch (const Laufzeitfehler& error) {
            text = error.what();
        }
    }
    liste().zeige(std::move(tabelle));
    satz().zeige(toQt(text), Befundzeile::Ton::Hinweis, false);
    setUebernehmbar(!m_rangliste.elemente.empty());
    setKopierbar(!m_rangliste.elemente.empty());
}

void Drittelementseite::uebernehme()
{
    const std::string symbol = m_rangliste.elemente.at(static_cast<std::size_t>(liste().gewaehlt())).element->symbol();
    const double prozent = zahlenfeld(fromQt(m_txtProzent->text())).wert;
    emit uebernommen(mitElement(programm().Eingabe(), symbol, prozent), toQt(symbol));
}

} // namespace zerna
