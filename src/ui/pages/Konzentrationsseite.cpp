#include "ui/pages/Konzentrationsseite.h"

#include <QHBoxLayout>

#include <cmath>

#include "bild/Kurventabelle.h"
#include "core/Zahlentext.h"
#include "programm/Exportieren.h"
#include "ui/button/StyledButton.h"
#include "ui/controls/Menue.h"
#include "ui/controls/Tabellenknopf.h"
#include "ui/diagram/Diagrammflaeche.h"
#include "ui/diagram/conDisplay.h"
#include "ui/diagram/conLabel.h"
#include "ui/pages/Kurvenmenue.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Zwischenablage.h"

namespace zerna {

namespace {

/// The answers of a search, if they belong to what is drawn.
std::vector<Linienmarke> linienmarken(const Suchmarken& found, const Diagrammwahl& wahl)
{
    constexpr Farbe Colour{0, 110, 60};
    constexpr int Digits = 6;
    std::vector<Linienmarke> marken;
    if (found.groesse == wahl.groesse && found.komponente == wahl.komponente) {
        for (const double prozent : found.prozente)
            marken.push_back({prozent, textWithDigits(prozent, Digits) + " at%", Colour});
    }
    return marken;
}

QString symbolOf(const Eingabe::Zeile& zeile) { return zeile.element ? toQt(zeile.element->symbol()) : QString(); }

} // namespace

Konzentrationsseite::Konzentrationsseite(Programm& programm, Dialoge dialoge, Diagrammflaeche& flaeche, QWidget* parent)
    : Diagrammseite(programm, flaeche, parent)
    , m_dialoge(dialoge)
    , m_cmdKurven(new StyledButton(QStringLiteral("Kurven ▾"), parent))
    , m_menue(new Kurvenmenue(programm, this))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    for (int i = 0; i < MaxKomponenten; ++i) {
        auto* label = new conLabel(this);
        label->setObjectName(numberedName("conLabel", i));
        label->hide();
        connect(label, &conLabel::Change, this, [this, i, label] { emit prozentStepped(i, label->Value()); });
        row->addWidget(label, 1);
        m_conLabel.at(static_cast<std::size_t>(i)) = label;
    }
    row->addStretch();
    createMenu();
}

void Konzentrationsseite::createMenu()
{
    m_cmdKurven->setObjectName(QStringLiteral("cmdKurven"));
    m_cmdKurven->setAccessibleName(QStringLiteral("Kurven des Diagramms"));
    m_cmdKurven->setToolTipText(QStringLiteral("Mischungsreihe, zweite Größe, Kurven festhalten und vergleichen"));
    connect(m_cmdKurven, &StyledButton::clicked, m_menue,
        [this] { m_menue->popup(m_cmdKurven->mapToGlobal(m_cmdKurven->rect().bottomLeft())); });
    connect(m_menue, &Kurvenmenue::schalterChanged, this, &Diagrammseite::schalterChanged);
    connect(m_menue, &Kurvenmenue::umgestellt, this, &Diagrammseite::umgestellt);
    connect(m_menue, &Kurvenmenue::tabelleCopyRequested, this, [this] {
        const Tabelle table = tabelle();
        copyToClipboard(toQt(alsText(mitKopf(table))), toQt(alsHtml(table)));
    });
    connect(m_menue, &Kurvenmenue::tabelleSaveRequested, this,
        [this] { exportieren(this->programm().boxes(), m_dialoge.save, Exporttitel, tabellenarten(tabelle())); });
    this->flaeche().addAction(m_menue->menuAction());
    m_menue->setEnabled(false);
}

/// The menu is of use while its diagram is seen.
void Konzentrationsseite::showEvent(QShowEvent* event)
{
    Diagrammseite::showEvent(event);
    m_menue->setEnabled(true);
}

void Konzentrationsseite::hideEvent(QHideEvent* event)
{
    Diagrammseite::hideEvent(event);
    m_menue->setEnabled(false);
}

Tabelle Konzentrationsseite::tabelle()
{
    return m_bild ? kurventabelle(m_bild->bild, tabellentrenner(programm().settings())) : Tabelle();
}

void Konzentrationsseite::addBefehle(Menue& menue) { menue.add(Menue::Abschnitt::Diagramm, m_menue->menuAction()); }

std::vector<QWidget*> Konzentrationsseite::tabOrder() const
{
    std::vector<QWidget*> order;
    for (conLabel* const label : m_conLabel) {
        const auto buttons = label->buttons();
        order.insert(order.end(), buttons.begin(), buttons.end());
    }
    return order;
}

int Konzentrationsseite::zeilenhoehe() const { return m_conLabel[0]->minimumSizeHint().height(); }

/// Each row has its label; the balance row's cannot be stepped, and none can while mass % are typed.
void Konzentrationsseite::zeigeAuswahl(const Eingabe& eingabe)
{
    constexpr float Shown = 1e6F; // what no label has room for is left as it was
    for (int row = 0; row < MaxKomponenten; ++row) {
        conLabel& label = *m_conLabel.at(static_cast<std::size_t>(row));
        label.setVisible(row < eingabe.anzahl());
        if (row >= eingabe.anzahl())
            continue;
        const Eingabefeld& prozent = eingabe.prozentInKraft(row);
        label.setLabel(symbolOf(eingabe.zeile(row)) + QLatin1Char(' '));
        label.setEnabled(!eingabe.istAusgleich(row) && eingabe.einheit() == Anteilseinheit::Atom);
        if (!prozent.fehler && std::abs(prozent.wert) < Shown)
            label.setValue(static_cast<int>(std::lround(prozent.wert)));
    }
}

void Konzentrationsseite::zeichne(const Eingabe& eingabe)
{
    m_bild.reset();
    m_menue->setKurve({});
    if (eingabe.anzahl() == 1) {
        flaeche().showHinweis(
            QStringLiteral("Für ein Konzentrationsdiagramm sind\nmindestens zwei Komponenten nötig."));
        return;
    }
    if (zeigeHindernis(eingabe))
        return;
    const Eingabe* const drawn = zuZeichnen(eingabe);
    if (drawn == nullptr) {
        flaeche().showFehler(QStringLiteral("Es sind nicht alle Anteile eingetragen!"));
        return;
    }
    try {
        drawSeries(*drawn);
        flaeche().showKonzentration();
    } catch (const Laufzeitfehler& error) {
        zeigeFehler(error);
    }
}

/// While an at% is being typed it is the alloy of the results, as long as it has the components in the list and can be
/// drawn; null if there is none.
const Eingabe* Konzentrationsseite::zuZeichnen(const Eingabe& eingabe)
{
    if (eingabe.istVollstaendig())
        return &eingabe;
    const Eingabe& last = programm().gerechneteEingabe();
    bool isSame = last.istVollstaendig() && last.anzahl() == eingabe.anzahl() && !last.hindernis();
    for (int row = 0; isSame && row < eingabe.anzahl(); ++row)
        isSame = last.zeile(row).element == eingabe.zeile(row).element;
    return isSame ? &last : nullptr;
}

void Konzentrationsseite::drawSeries(const Eingabe& eingabe)
{
    const Kurvenschalter& schalter = m_menue->schalter();
    conDisplay& display = flaeche().display();
    std::array<float, MaxKomponenten> dichten{};
    for (int row = 0; row < eingabe.anzahl(); ++row)
        dichten.at(static_cast<std::size_t>(row)) = eingabe.zeile(row).dichte.wert;
    display.setKompositionBereit(true);
    display.setLegierung(eingabe.legierung().value());
    display.setDichtefelder(dichten);
    display.setReihenart(schalter.mischungsreihe ? Reihenart::Summe100 : Reihenart::Gegeben);
    display.setVariablesElement(wahl().komponente);
    display.setReihe(wahl().groesse, wahl().komponente);

    const Dokument& dokument = programm().Dokument();
    Vergleichskurven vergleich{.gehaltene = *dokument.kurven};
    if (wahl().varianten)
        vergleich.varianten = dokument.vergleich->varianten;
    m_bild = konzentrationsbild(programm().Calc(), eingabe, wahl(), schalter, vergleich);
    m_menue->setKurve(gehalteneKurve(*m_bild, eingabe, wahl(), schalter));
    showBild();
}

void Konzentrationsseite::showBild()
{
    m_bild->bild.marken = linienmarken(m_marken, wahl());
    flaeche().display().setBild(m_bild->bild);
}

void Konzentrationsseite::setMarken(const Suchmarken& marken)
{
    if (marken == m_marken)
        return;
    m_marken = marken;
    if (m_bild)
        showBild();
}

void Konzentrationsseite::setMischungsreihe(bool an) { m_menue->setMischungsreihe(an); }

QString Konzentrationsseite::angebot() const
{
    return m_bild && m_bild->laeuftHinaus ? QStringLiteral("Eine Kurve läuft aus dem Bild. Ganze Kurve zeigen")
                                          : QString();
}

void Konzentrationsseite::nimmAn() { m_menue->zeigeGanzeKurve(); }

} // namespace zerna
