#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <benchmark/benchmark.h>

#include "bench/Fenster.h"
#include "bench/Zeichnen.h"
#include "model/reihen/Konzentrationsreihe.h"
#include "ui/diagram/Diagrammflaeche.h"
#include "ui/diagram/Kurvenmaler.h"
#include "ui/diagram/conDisplay.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr QSize Bildgroesse(1200, 800);
constexpr std::array<float, MaxKomponenten> Prozente{40, 20, 20, 10, 10};

/// A picture with all that it may have: titles, notes, the mixture dashed and the alloy as a point.
Kurvenbild vollesBild()
{
    Aufbau aufbau;
    std::vector<Legierungskomponente> alloy;
    for (std::size_t i = 0; i < Prozente.size(); ++i)
        alloy.push_back(aufbau.komponente(i, Prozente.at(i)));
    const Reihe reihe = konzentrationsreihe(aufbau.calc, alloy, 0, FermienergieCode);
    Kurvenbild bild;
    bild.titel = "Fermienergie [eV] über at% Al";
    bild.untertitel = "Al 40 at% (2,7 g/cm³, z = 3), Cu 20 at% (8,96 g/cm³, z = 1), Zn 20 at% (7,14 g/cm³, z = 2)";
    bild.x = {"at% Al", {0, 100}, "at% Al"};
    const auto [smallest, largest] = endValues(reihe);
    bild.y = {"Fermienergie [eV]", yBereich(smallest, largest), "eV"};
    bild.kurven = {{"die anderen wie eingetragen", {}, {0, 0, 255}},
        {"Mischungsreihe", {}, {200, 80, 0}, Linienart::Gestrichelt},
        {"die Legierung", {{40, reihe.at(40)}}, {200, 30, 30}, Linienart::Keine, Punktzeichen::Kreis}};
    for (std::size_t i = 0; i < reihe.size(); ++i) {
        bild.kurven[0].punkte.push_back({static_cast<double>(i), reihe.at(i)});
        bild.kurven[1].punkte.push_back({static_cast<double>(i), reihe.at(i) * 0.95});
    }
    bild.hinweise = {
        "Die Kurve geht nicht durch die Legierung: Die anderen Anteile bleiben, wie sie eingetragen sind."};
    return bild;
}

void neuzeichnen(benchmark::State& state)
{
    const Fenster fenster;
    auto& flaeche = fenster.find<Diagrammflaeche>("picDiagramm");
    flaeche.resize(Bildgroesse);
    flaeche.display().setBild(vollesBild());
    QImage image(Bildgroesse, QImage::Format_RGB32);
    flaeche.render(&image); // sizes and places of what lies in it
    for (auto _ : state) // NOLINT(clang-analyzer-deadcode.DeadStores)
        flaeche.render(&image);
}

/// A text at its ready place.
struct Beschriftung {
    QPointF place;
    QString text;
};

/// What a painter is to be told for the same picture.
struct Malvorlage {
    std::vector<QRectF> striche;
    std::vector<Beschriftung> texte;
    Beschriftung titel;
    std::vector<QPolygonF> linien; // on the picture
    std::vector<QPolygonF> proben; // in the legend
    QPointF legierung;
    QPointF probe;
};

Malvorlage malvorlage(const Kurvenbild& bild, const QFont& font)
{
    const Kurvenzeichnung zeichnung = kurvenzeichnung(bild, {Bildgroesse, font, 1});
    const Kurvenlayout& layout = zeichnung.layout;
    const double ascent = QFontMetricsF(font).ascent();
    Malvorlage vorlage;
    for (const auto* const striche : {&layout.striche, &layout.kernstriche})
        for (const Rechteck& strich : *striche)
            vorlage.striche.emplace_back(strich.left, strich.top, strich.width, strich.height);
    for (const auto* const texte : {&layout.texte, &layout.kerntexte})
        for (const Textstelle& stelle : *texte) {
            const Beschriftung ready{{stelle.box.left, stelle.box.top + ascent}, toQt(stelle.text)};
            if (stelle.schrift.fett)
                vorlage.titel = ready;
            else
                vorlage.texte.push_back(ready);
        }
    const QPointF corner(layout.plot.left, layout.plot.top);
    for (std::size_t i = 0; i < 2; ++i) {
        vorlage.linien.push_back(zeichnung.bahnen[i].linien.front().translated(corner));
        const Linienprobe& probe = layout.legende.at(i);
        vorlage.proben.emplace_back(QList<QPointF>{{probe.left, probe.row}, {probe.right, probe.row}});
    }
    vorlage.legierung = zeichnung.bahnen[2].zeichen.front() + corner;
    vorlage.probe = {(layout.legende[2].left + layout.legende[2].right) / 2, layout.legende[2].row};
    return vorlage;
}

/// The same lines, signs, ticks and labels at ready places, and nothing else.
void nurZeichnen(benchmark::State& state)
{
    const Fenster fenster;
    const QFont font = fenster.find<Diagrammflaeche>("picDiagramm").font();
    QFont bold = font;
    bold.setBold(true);
    const Malvorlage vorlage = malvorlage(vollesBild(), font);
    QPen solid(Qt::blue, Bildstil().linienbreite, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    QPen dashed(QColor(200, 80, 0), Bildstil().linienbreite, Qt::CustomDashLine, Qt::FlatCap, Qt::RoundJoin);
    dashed.setDashPattern({5, 3});
    QImage image(Bildgroesse, QImage::Format_RGB32);
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        QPainter painter(&image);
        painter.fillRect(image.rect(), Qt::white);
        painter.setPen(Qt::black);
        for (const QRectF& strich : vorlage.striche)
            painter.fillRect(strich, Qt::black);
        painter.setFont(bold);
        painter.drawText(vorlage.titel.place, vorlage.titel.text);
        painter.setFont(font);
        for (const auto& [place, text] : vorlage.texte)
            painter.drawText(place, text);
        painter.setRenderHint(QPainter::Antialiasing);
        for (const auto* const linien : {&vorlage.linien, &vorlage.proben}) {
            painter.setPen(solid);
            painter.drawPolyline(linien->at(0));
            painter.setPen(dashed);
            painter.drawPolyline(linien->at(1));
        }
        for (const QPointF& middle : {vorlage.legierung, vorlage.probe}) {
            painter.setPen(QPen(Qt::white, 1));
            painter.setBrush(QColor(200, 30, 30));
            painter.drawEllipse(middle, 3.5, 3.5);
            painter.setBrush(Qt::NoBrush);
        }
    }
}

} // namespace

void registerZeichenBenchmarks()
{
    benchmark::RegisterBenchmark("Diagramm/neu zeichnen", neuzeichnen);
    benchmark::RegisterBenchmark("Diagramm/nur zeichnen", nurZeichnen);
}

} // namespace zerna
