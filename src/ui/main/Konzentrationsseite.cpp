#include "ui/main/Konzentrationsseite.h"

#include <QHBoxLayout>

#include <cmath>

#include "ui/diagram/Diagrammflaeche.h"
#include "ui/diagram/conDisplay.h"
#include "ui/diagram/conLabel.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

QString symbolOf(const Eingabe::Zeile& zeile) { return zeile.element ? toQt(zeile.element->symbol()) : QString(); }

} // namespace

Konzentrationsseite::Konzentrationsseite(Programm& programm, Diagrammflaeche& flaeche, QWidget* parent)
    : Diagrammseite(programm, flaeche, parent)
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
}

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
    conDisplay& display = flaeche().display();
    display.setKompositionBereit(true);
    std::array<float, MaxKomponenten> dichten{};
    for (int row = 0; row < eingabe.anzahl(); ++row)
        dichten.at(static_cast<std::size_t>(row)) = eingabe.zeile(row).dichte.wert;
    display.setLegierung(eingabe.legierung().value());
    display.setDichtefelder(dichten);
    display.setVariablesElement(wahl().komponente);
    display.Zeichne_Diagramm_2D(wahl().groesse, wahl().komponente);
}

} // namespace zerna
