#include <tuple>

#include "ui/controls/Menue.h"
#include "ui/diagram/Diagrammflaeche.h"
#include "ui/pages/Diagrammbereich.h"
#include "ui/pages/Diagrammseite.h"
#include "ui/pages/Konzentrationsseite.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Zwischenablage.h"

namespace zerna {

void Diagrammbereich::addBefehle(Menue& menue)
{
    using enum Menue::Abschnitt;
    menue.add(Dateien, {.text = QStringLiteral("&Messkurve öffnen ..."), .name = "mnuMesskurve", .tun = [this] {
                            oeffneMesskurven({});
                        }});
    menue.add(Ausgabe,
        {.text = QStringLiteral("&Diagramm speichern ..."),
            .name = "mnuDiagramm_Speichern",
            .tun = [this] { m_picDiagramm->save(); },
            .moeglich = [this] { return istDruckbar(); }});
    menue.add(Ausgabe,
        {.text = QStringLiteral("B&ild speichern ..."),
            .name = "mnuBild_Speichern",
            .tun = [this] { m_picDiagramm->savePicture(); },
            .moeglich = [this] { return istDruckbar(); }});
    menue.add(Menue::Abschnitt::Kopieren,
        {.text = QStringLiteral("&Diagramm kopieren"),
            .name = "mnuDiagramm_Kopieren",
            .tun = [this] { m_picDiagramm->copyPicture(); },
            .moeglich = [this] { return istDruckbar(); }});
    for (const auto& [text, name, typ] :
        {std::tuple(QStringLiteral("Diagramm &2 D"), "mnuTyp_0", zerna::Diagrammtyp::Konzentration),
            {QStringLiteral("Diagramm &3 D - ternär"), "mnuTyp_1", zerna::Diagrammtyp::Ternaer},
            {QStringLiteral("Diagramm P&SE"), "mnuTyp_2", zerna::Diagrammtyp::PSE},
            {QStringLiteral("&Messkurve"), "mnuTyp_3", zerna::Diagrammtyp::Messkurve}}) {
        menue.add(Menue::Abschnitt::Diagrammtyp,
            {.text = text,
                .name = name,
                .tun = [this, typ = typ] { waehleTyp(static_cast<int>(typ)); },
                .gewaehlt = [this, typ = typ] { return wahl().typ == typ; }});
    }
    menue.add(Menue::Abschnitt::Diagramm,
        {.text = QStringLiteral("&Bei welchem Anteil? ..."),
            .name = "mnuAnteil",
            .tasten = {QKeySequence(Qt::CTRL | Qt::Key_F)},
            .tun = [this] { frageAnteil(); }});
    for (Diagrammseite* const seite : m_seiten)
        seite->addBefehle(menue);
}

void Diagrammbereich::zeigeGroesse(int groesse, int komponente)
{
    Diagrammwahl shown = wahl();
    const bool isMeasured = shown.typ == zerna::Diagrammtyp::Messkurve; // beside which 2kF is asked for
    if (isMeasured && groesse == seite(shown.typ).suchfrage().groesse)
        return;
    if (shown.typ != zerna::Diagrammtyp::Ternaer)
        wechsleTyp(shown, zerna::Diagrammtyp::Konzentration);
    shown.groesse = groesse;
    if (seite(shown.typ).hatKomponente())
        shown.komponente = komponente;
    shown = passendeWahl(shown, m_eingabe.anzahl());
    if (shown == wahl())
        return;
    wahl() = shown;
    zeigeDokument();
    emit geschehen({QStringLiteral("Diagramm: %1").arg(toQt(findGroesse(shown.groesse)->name))});
}

void Diagrammbereich::setMarken(const Suchmarken& marken)
{
    for (Diagrammseite* const seite : m_seiten)
        seite->setMarken(marken);
}

void Diagrammbereich::setMischungsreihe(bool an) { m_konzentration->setMischungsreihe(an); }

void Diagrammbereich::kopierePunkte()
{
    if (const std::string points = m_picDiagramm->ternaerzielpunkte(); !points.empty())
        copyToClipboard(toQt(points));
}

bool Diagrammbereich::istDruckbar() const { return m_picDiagramm->istDiagramm(); }

void Diagrammbereich::drucke() { m_picDiagramm->print(); }

} // namespace zerna
