#include "ui/search/Anteilsseite.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>

#include "model/suche/Anteilsuebernahme.h"
#include "model/suche/Suchtabelle.h"
#include "ui/controls/Befundzeile.h"
#include "ui/platform/Anzeige.h"
#include "ui/search/Suchliste.h"

namespace zerna {

Anteilsseite::Anteilsseite(Programm& programm, QWidget* parent)
    : Suchseite(programm,
        {.liste = "tblSuche_Anteile",
            .listenname = QStringLiteral("Zusammensetzungen mit dem gesuchten Wert"),
            .satz = "lblSuche_Anteil",
            .uebernehmen = "cmdSuche_Uebernehmen",
            .uebernahme = QStringLiteral("Die gewählte Zusammensetzung in den Rechner eintragen"),
            .kopieren = "cmdSuche_Kopieren",
            .kopie = QStringLiteral("Alle Lösungen als Tabelle in die Zwischenablage")},
        parent)
{
    createControls();
    auto* const frage = new QFormLayout;
    frage->addRow(QStringLiteral("Gesucht ist der Anteil &von:"), m_cmbKomponente);
    auto* const series = new QHBoxLayout;
    series->addWidget(m_chkMischungsreihe);
    series->addStretch();
    frage->addRow(series);
    layOut(frage, {m_cmbKomponente, m_chkMischungsreihe});
}

void Anteilsseite::createControls()
{
    m_cmbKomponente = new QComboBox(this);
    m_cmbKomponente->setObjectName(QStringLiteral("cmbSuche_Komponente"));
    connect(m_cmbKomponente, &QComboBox::activated, this, &Anteilsseite::komponenteChosen);
    m_chkMischungsreihe = new QCheckBox(QStringLiteral("&Mischungsreihe (Summe 100 %)"), this);
    m_chkMischungsreihe->setObjectName(QStringLiteral("chkSuche_Mischungsreihe"));
    m_chkMischungsreihe->setToolTip(
        QStringLiteral("Die anderen Komponenten behalten ihr Verhältnis und teilen sich den ganzen Rest"));
    connect(m_chkMischungsreihe, &QCheckBox::clicked, this, &Anteilsseite::mischungsreiheChosen);
    connect(&liste(), &Suchliste::gewaehltChanged, this, [this] { showState({}); });
    connect(&satz(), &Befundzeile::clicked, this, &Anteilsseite::satzClicked);
}

void Anteilsseite::listKomponenten()
{
    const Eingabe& eingabe = programm().Eingabe();
    m_cmbKomponente->clear();
    for (int row = 0; row < eingabe.anzahl(); ++row) {
        const auto& element = eingabe.zeile(row).element;
        m_cmbKomponente->addItem(element ? toQt(element->symbol()) : QStringLiteral("Zeile %1").arg(row + 1));
    }
    m_frage.komponente = std::min(m_frage.komponente, eingabe.anzahl() - 1);
    m_cmbKomponente->setCurrentIndex(m_frage.komponente);
}

void Anteilsseite::setKomponente(int row) { m_frage.komponente = row; }

void Anteilsseite::setMischungsreihe(bool an)
{
    m_frage.art = an ? Reihenart::Summe100 : Reihenart::Gegeben;
    m_chkMischungsreihe->setChecked(an);
}

void Anteilsseite::suche(int groesse, const Eingabefeld& ziel)
{
    listKomponenten();
    m_frage.groesse = groesse;
    m_frage.ziel = ziel.fehler ? 0 : ziel.wert;
    m_antwort = {};
    const bool isAlone = programm().Eingabe().anzahl() == 1;
    std::string grund = isAlone ? "Ein Anteil lässt sich erst ab zwei Komponenten suchen." : hindernis(ziel);
    Tabelle tabelle;
    if (grund.empty()) {
        try {
            const clsCalc& calc = programm().Calc();
            const Legierung legierung = programm().Eingabe().legierung().value();
            m_antwort = sucheAnteil(calc, legierung.komponenten(), m_frage);
            tabelle = loesungstabelle(calc, legierung.komponenten(), m_frage, m_antwort, Dezimaltrenner::Komma);
            grund = antwortsatz(m_antwort, m_frage, fromQt(m_cmbKomponente->currentText()));
        } catch (const Laufzeitfehler& error) {
            grund = error.what();
        }
    }
    {
        const QSignalBlocker quiet(&liste());
        liste().zeige(std::move(tabelle));
    }
    showState(grund);
}

/// What can be done with the chosen answer, and what is to be said of it.
void Anteilsseite::showState(const std::string& hindernis)
{
    const bool hasAnswer = liste().gewaehlt() >= 0 && !m_antwort.loesungen.empty();
    std::string text = hindernis;
    bool isPossible = false;
    if (hasAnswer) {
        const auto parts = gewaehlteAnteile();
        const auto used = std::span(parts).first(static_cast<std::size_t>(programm().Eingabe().anzahl()));
        isPossible = zerna::istUebernehmbar(used);
        text = uebernahmesatz(m_frage, used);
    }
    setUebernehmbar(isPossible);
    setKopierbar(hasAnswer);
    satz().zeige(gezeigt(toQt(text)), Befundzeile::Ton::Hinweis, hasAnswer && !isPossible);
}

std::array<double, MaxKomponenten> Anteilsseite::gewaehlteAnteile() const
{
    const Legierung legierung = programm().Eingabe().legierung().value();
    const Loesung& loesung = m_antwort.loesungen.at(static_cast<std::size_t>(liste().gewaehlt()));
    return zusammensetzung(programm().Calc(), legierung.komponenten(), m_frage, loesung.prozent);
}

/// Leads on where an answer cannot be taken over.
void Anteilsseite::satzClicked()
{
    if (!m_antwort.loesungen.empty() && !istUebernehmbar())
        emit mischungsreiheChosen(true);
}

void Anteilsseite::uebernehme() { emit uebernommen(mitAnteilen(programm().Eingabe(), gewaehlteAnteile())); }

} // namespace zerna
