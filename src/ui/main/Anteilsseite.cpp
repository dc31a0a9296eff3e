#include "ui/main/Anteilsseite.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "model/Anteilsuebernahme.h"
#include "model/Suchtabelle.h"
#include "ui/controls/Befundzeile.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/main/Suchliste.h"
#include "ui/platform/Anzeige.h"

namespace zerna {

Anteilsseite::Anteilsseite(Programm& programm, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
{
    createControls();
    layOut();
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
    m_liste = new Suchliste(this);
    m_liste->setObjectName(QStringLiteral("tblSuche_Anteile"));
    m_liste->setAccessibleName(QStringLiteral("Zusammensetzungen mit dem gesuchten Wert"));
    connect(m_liste, &Suchliste::gewaehltChanged, this, [this] { showState({}); });
    connect(m_liste, &Suchliste::uebernehmen, this, &Anteilsseite::uebernehme);
    m_lblSatz = new Befundzeile(this);
    m_lblSatz->setObjectName(QStringLiteral("lblSuche_Anteil"));
    connect(m_lblSatz, &Befundzeile::clicked, this, &Anteilsseite::satzClicked);
    m_cmdUebernehmen = new StyledButton(QStringLiteral("Ü&bernehmen"), this);
    m_cmdUebernehmen->setObjectName(QStringLiteral("cmdSuche_Uebernehmen"));
    m_cmdUebernehmen->setToolTipText(QStringLiteral("Die gewählte Zusammensetzung in den Rechner eintragen"));
    connect(m_cmdUebernehmen, &StyledButton::clicked, this, &Anteilsseite::uebernehme);
    m_cmdKopieren = new StyledButton(QStringLiteral("Ko&pieren"), this);
    m_cmdKopieren->setObjectName(QStringLiteral("cmdSuche_Kopieren"));
    m_cmdKopieren->setToolTipText(QStringLiteral("Alle Lösungen als Tabelle in die Zwischenablage"));
    connect(m_cmdKopieren, &StyledButton::clicked, m_liste, &Suchliste::kopiere);
}

void Anteilsseite::layOut()
{
    auto* const form = new QFormLayout;
    form->addRow(QStringLiteral("Gesucht ist der Anteil &von:"), m_cmbKomponente);
    auto* const series = new QHBoxLayout;
    series->addWidget(m_chkMischungsreihe);
    series->addStretch();
    form->addRow(series);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(8);
    column->addLayout(form);
    column->addWidget(m_liste, 1);
    column->addWidget(m_lblSatz);
    column->addLayout(knopfzeile({m_cmdUebernehmen, m_cmdKopieren}));
}

void Anteilsseite::listKomponenten()
{
    const Eingabe& eingabe = m_programm.Eingabe();
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

/// Why there can be no answer; empty if there can.
std::string Anteilsseite::hindernis(const Eingabefeld& ziel) const
{
    const Eingabe& eingabe = m_programm.Eingabe();
    if (eingabe.anzahl() == 1)
        return "Ein Anteil lässt sich erst ab zwei Komponenten suchen.";
    if (const auto hindernis = eingabe.hindernis())
        return hindernis->grund;
    if (!eingabe.istVollstaendig())
        return "Es sind nicht alle Anteile eingetragen.";
    return zielhindernis(ziel);
}

void Anteilsseite::suche(int groesse, const Eingabefeld& ziel)
{
    listKomponenten();
    m_frage.groesse = groesse;
    m_frage.ziel = ziel.fehler ? 0 : ziel.wert;
    m_antwort = {};
    std::string grund = hindernis(ziel);
    Tabelle tabelle;
    if (grund.empty()) {
        try {
            const clsCalc& calc = m_programm.Calc();
            const Legierung legierung = m_programm.Eingabe().legierung().value();
            m_antwort = sucheAnteil(calc, legierung.komponenten(), m_frage);
            tabelle = loesungstabelle(calc, legierung.komponenten(), m_frage, m_antwort, Dezimaltrenner::Komma);
            grund = antwortsatz(m_antwort, m_frage, fromQt(m_cmbKomponente->currentText()));
        } catch (const Laufzeitfehler& error) {
            grund = error.what();
        }
    }
    {
        const QSignalBlocker quiet(m_liste);
        m_liste->zeige(std::move(tabelle));
    }
    showState(grund);
}

/// What can be done with the chosen answer, and what is to be said of it.
void Anteilsseite::showState(const std::string& hindernis)
{
    const bool hasAnswer = m_liste->gewaehlt() >= 0 && !m_antwort.loesungen.empty();
    std::string satz = hindernis;
    bool isPossible = false;
    if (hasAnswer) {
        const auto parts = gewaehlteAnteile();
        const auto used = std::span(parts).first(static_cast<std::size_t>(m_programm.Eingabe().anzahl()));
        isPossible = istUebernehmbar(used);
        satz = uebernahmesatz(m_frage, used);
    }
    m_cmdUebernehmen->setEnabled(isPossible);
    m_cmdKopieren->setEnabled(hasAnswer);
    m_lblSatz->zeige(gezeigt(toQt(satz)), Befundzeile::Ton::Hinweis, hasAnswer && !isPossible);
}

std::array<double, MaxKomponenten> Anteilsseite::gewaehlteAnteile() const
{
    const Legierung legierung = m_programm.Eingabe().legierung().value();
    const Loesung& loesung = m_antwort.loesungen.at(static_cast<std::size_t>(m_liste->gewaehlt()));
    return zusammensetzung(m_programm.Calc(), legierung.komponenten(), m_frage, loesung.prozent);
}

/// Leads on where an answer cannot be taken over.
void Anteilsseite::satzClicked()
{
    if (!m_antwort.loesungen.empty() && !m_cmdUebernehmen->isEnabled())
        emit mischungsreiheChosen(true);
}

void Anteilsseite::uebernehme()
{
    if (m_cmdUebernehmen->isEnabled())
        emit uebernommen(mitAnteilen(m_programm.Eingabe(), gewaehlteAnteile()));
}

void Anteilsseite::gehZuAntworten()
{
    if (m_liste->rowCount() > 0)
        m_liste->setFocus(Qt::OtherFocusReason);
}

} // namespace zerna
