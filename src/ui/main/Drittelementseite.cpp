#include "ui/main/Drittelementseite.h"

#include <QFormLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "core/CheckedArithmetic.h"
#include "model/Anteilsuebernahme.h"
#include "model/Suchtabelle.h"
#include "ui/controls/Befundzeile.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/controls/Wertfeld.h"
#include "ui/main/Suchliste.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr std::array Koepfe{"Element", "Wert", "Einheit", "Abweichung"};

} // namespace

Drittelementseite::Drittelementseite(Programm& programm, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
{
    createControls();
    layOut();
}

void Drittelementseite::createControls()
{
    m_txtProzent = new Wertfeld(this);
    m_txtProzent->setObjectName(QStringLiteral("txtSuche_Prozent"));
    m_txtProzent->setEigenerVerlauf(true);
    m_txtProzent->setWert(QStringLiteral("10"), false);
    connect(m_txtProzent, &Wertfeld::textChanged, this, &Drittelementseite::rank);
    connect(m_txtProzent, &Wertfeld::returnPressed, this, &Drittelementseite::gehZuAntworten);
    m_liste = new Suchliste(this);
    m_liste->setObjectName(QStringLiteral("tblSuche_Elemente"));
    m_liste->setAccessibleName(QStringLiteral("Elemente, das nächste zuerst"));
    connect(m_liste, &Suchliste::uebernehmen, this, &Drittelementseite::uebernehme);
    m_lblSatz = new Befundzeile(this);
    m_lblSatz->setObjectName(QStringLiteral("lblSuche_Element"));
    m_cmdUebernehmen = new StyledButton(QStringLiteral("Ü&bernehmen"), this);
    m_cmdUebernehmen->setObjectName(QStringLiteral("cmdSuche_Element"));
    m_cmdUebernehmen->setToolTipText(QStringLiteral("Das gewählte Element als weitere Zeile in den Rechner eintragen"));
    connect(m_cmdUebernehmen, &StyledButton::clicked, this, &Drittelementseite::uebernehme);
    m_cmdKopieren = new StyledButton(QStringLiteral("Ko&pieren"), this);
    m_cmdKopieren->setObjectName(QStringLiteral("cmdSuche_Rangliste"));
    m_cmdKopieren->setToolTipText(QStringLiteral("Die ganze Rangliste als Tabelle in die Zwischenablage"));
    connect(m_cmdKopieren, &StyledButton::clicked, m_liste, &Suchliste::kopiere);
}

void Drittelementseite::layOut()
{
    auto* const form = new QFormLayout;
    form->addRow(QStringLiteral("&at% des weiteren Elements:"), m_txtProzent);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(8);
    column->addLayout(form);
    column->addWidget(m_liste, 1);
    column->addWidget(m_lblSatz);
    column->addLayout(knopfzeile({m_cmdUebernehmen, m_cmdKopieren}));
}

void Drittelementseite::suche(int groesse, const Eingabefeld& ziel)
{
    m_groesse = groesse;
    m_ziel = ziel;
    rank();
}

/// Why there can be no ranking; empty if there can.
std::string Drittelementseite::hindernis() const
{
    const Eingabe& eingabe = m_programm.Eingabe();
    if (eingabe.anzahl() == MaxKomponenten)
        return "Die Legierung hat schon fünf Komponenten, für ein weiteres Element ist kein Platz.";
    if (const auto hindernis = eingabe.hindernis())
        return hindernis->grund;
    if (!eingabe.istVollstaendig())
        return "Es sind nicht alle Anteile eingetragen.";
    return zielhindernis(m_ziel);
}

void Drittelementseite::rank()
{
    const Eingabefeld prozent = zahlenfeld(fromQt(m_txtProzent->text()));
    const bool isShare = !prozent.fehler && prozent.wert > 0 && prozent.wert < 100;
    m_txtProzent->setFehler(isShare ? QString() : QStringLiteral("Eine Zahl zwischen 0 und 100 eintragen."));
    m_rangliste = {};
    Tabelle tabelle;
    std::string satz = hindernis();
    if (satz.empty() && isShare) {
        try {
            const Legierung legierung = m_programm.Eingabe().legierung().value();
            const Groesse& groesse = *findReihengroesse(m_groesse);
            m_rangliste = drittelemente(m_programm.Calc(), m_programm.ElementCollection(), legierung.komponenten(),
                prozent.wert, groesse, m_ziel.wert);
            tabelle = rangtabelle(m_rangliste, groesse, Dezimaltrenner::Komma);
            for (std::size_t i = 0; i < Koepfe.size(); ++i)
                tabelle.spalten.at(i).name = Koepfe.at(i);
            satz = ohneDatenSatz(m_rangliste);
        } catch (const Laufzeitfehler& error) {
            satz = error.what();
        }
    }
    m_liste->zeige(std::move(tabelle));
    m_lblSatz->zeige(toQt(satz), Befundzeile::Ton::Hinweis, false);
    for (StyledButton* const button : {m_cmdUebernehmen, m_cmdKopieren})
        button->setEnabled(!m_rangliste.elemente.empty());
}

void Drittelementseite::uebernehme()
{
    if (!m_cmdUebernehmen->isEnabled())
        return;
    const std::string symbol = m_rangliste.elemente.at(static_cast<std::size_t>(m_liste->gewaehlt())).element->symbol();
    const double prozent = zahlenfeld(fromQt(m_txtProzent->text())).wert;
    emit uebernommen(mitElement(m_programm.Eingabe(), symbol, prozent), toQt(symbol));
}

void Drittelementseite::gehZuAntworten()
{
    if (m_liste->rowCount() > 0)
        m_liste->setFocus(Qt::OtherFocusReason);
}

} // namespace zerna
