#include "ui/main/Hilfeziele.h"

#include <QRegularExpression>
#include <QWidget>

#include <algorithm>

namespace zerna {

namespace {

constexpr auto Anfang = "die-ersten-zehn-minuten";
constexpr auto Zusammensetzung = "zusammensetzung";
constexpr auto Dateien = "legierungen-öffnen-und-speichern";
constexpr auto Ergebnisse = "ergebnisse-eintippen-blättern-kopieren-speichern";
constexpr auto Lehrbuch = "was-das-lehrbuch-dazu-sagt";
constexpr auto Vergleich = "legierungen-merken-und-vergleichen";
constexpr auto Kurven = "kurven-vergleichen";
constexpr auto Ablesen = "ablesen-kopieren-speichern";
constexpr auto Suche = "bei-welchem-anteil";
constexpr auto Messkurven = "messkurven-neben-der-legierung";
constexpr auto Elementdiagramme = "diagramme-über-der-ordnungszahl";
constexpr auto Ternaer = "ternäres-diagramm";
constexpr auto Meldungen = "meldungen-und-was-zu-tun-ist";

constexpr Hilfeziel Ziele[] = {
    // the parts of the window
    {"frmMain", Anfang},
    {"frmHandbuch", "das-handbuch-im-programm"},
    {"mnuMain", "tastatur"},
    {"lblSperre", "beim-start"},
    {"optButton_1", Anfang},
    {"cmdKnopf1", Anfang},
    {"cmdAbout", "das-handbuch-im-programm"},
    {"Kompositionsbereich", Zusammensetzung},
    {"cmbValenz", "formeln-für-die-valenz"},
    {"txtValenz", "formeln-für-die-valenz"},
    {"Ergebnisbereich", Ergebnisse},
    {"lblMFE", "die-größen"},
    {"Ergebnisdetails", Lehrbuch},
    {"Befundzeile", "in-den-feldern"},
    {"conWiegen1", "einwaage"},
    {"Pic_1_1", "periodensystem"},
    {"lblHerkunft", "elementdaten-und-die-datei-elementedat"},
    {"Pic_1_2", Vergleich},
    // the diagram, by the page above it that is seen
    {"Konzentrationsseite", "konzentrationsdiagramme"},
    {"Ternaerseite", Ternaer},
    {"PSEseite", Elementdiagramme},
    {"Messseite", Messkurven},
    {"tblMaxima", Messkurven},
    {"cmdDiagramm_Lehrbuch", Lehrbuch},
    {"cmdDiagramm_Anteil", Suche},
    {"cmdKurven", Kurven},
    {"cmdLuecken", Elementdiagramme},
    {"cmdDiagramm_Kopieren", Ablesen},
    {"cmdDiagramm_Speichern", Ablesen},
    // dialogs
    {"frmAbout", "das-handbuch-im-programm"},
    {"frmBild", "ein-bild-für-eine-veröffentlichung"},
    {"frmEinstellungen", "einstellungen"},
    {"frmZielsuche", Suche},
    {"Titeldialog", Dateien},
    {"QFileDialog", Dateien},
    {"QInputDialog", Ablesen},
    {"QPrintDialog", Ablesen},
    {"QMessageBox", Meldungen},
    // entries of menus
    {"mnuNeu", Dateien},
    {"mnuOeffnen", Dateien},
    {"mnuSpeichern", Dateien},
    {"mnuSpeichernUnter", Dateien},
    {"mnuEinstellungen", "einstellungen"},
    {"mnuBild_Speichern", "ein-bild-für-eine-veröffentlichung"},
    {"mnuMesskurve", Messkurven},
    {"mnuWiegen_Speichern", "einwaage"},
    {"mnuWiegen_Kopieren", "einwaage"},
    {"mnuZurueckholen", "einwaage"},
    {"mnuTitel", Dateien},
    {"mnuAnteil", Suche},
    {"mnuMFE_Kopieren", Ergebnisse},
    {"mnuMFE_Speichern", Ergebnisse},
    {"mnuDiagramm_Kopieren", Ablesen},
    {"mnuDiagramm_Speichern", Ablesen},
    {"mnuPSE_Luecken", Elementdiagramme},
    {"mnuVergleich_Merken", Vergleich},
    {"mnuVergleich_Speichern", Vergleich},
};

const char* zielVon(const QString& teil)
{
    const auto* const found =
        std::ranges::find_if(Ziele, [&teil](const Hilfeziel& ziel) { return teil == QLatin1String(ziel.teil); });
    return found == std::end(Ziele) ? nullptr : found->anker;
}

QString klasse(const QObject& object)
{
    return QString::fromLatin1(object.metaObject()->className()).remove(QStringLiteral("zerna::"));
}

/// What the table says about this object itself; the diagram is what its page says.
const char* eigenesZiel(const QObject& object)
{
    static const QRegularExpression row(QStringLiteral("_\\d+$"));
    for (const QString& teil : {object.objectName(), QString(object.objectName()).remove(row), klasse(object)}) {
        if (const char* const anker = zielVon(teil))
            return anker;
    }
    if (klasse(object) == QLatin1String("Diagrammbereich")) {
        for (const QWidget* const page : object.findChildren<QWidget*>()) {
            if (const char* const anker = zielVon(klasse(*page)); anker != nullptr && !page->isHidden())
                return anker;
        }
    }
    return nullptr;
}

} // namespace

std::span<const Hilfeziel> hilfeziele() { return Ziele; }

QString hilfeziel(const QObject* object)
{
    for (; object != nullptr; object = object->parent()) {
        if (const char* const anker = eigenesZiel(*object))
            return QString::fromUtf8(anker);
    }
    return {};
}

} // namespace zerna
