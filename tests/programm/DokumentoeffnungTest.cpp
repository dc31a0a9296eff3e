#include "programm/Dokumentoeffnung.h"

#include <gmock/gmock.h>

#include "support/RechnerTest.h"
#include "support/Traegerbilder.h"
#include "support/Zufallsdokument.h"
#include "traeger/Pdf.h"
#include "traeger/Png.h"
#include "traeger/Svg.h"

namespace zerna {

using DokumentoeffnungTest = RechnerTest;

TEST_F(DokumentoeffnungTest, OpensTheSameDocumentFromFilesAndPictures)
{
    addElements();
    Zufallsdokument zufall(elements, 2);
    for (int i = 0; i < 50; ++i) {
        const Dokument dokument = zufall.naechstes();
        const std::string text = schreibe(dokument);
        for (const auto& [name, bytes, isPicture] :
            {std::tuple("a.zerna", text, false), {"a.png", pngMitDokument(Pngbild, text), true},
                {"a.svg", svgMitDokument(Svgbild, text), true}, {"a.pdf", pdfMit(text) + pdfMit("{\"b\": 1}"), true}}) {
            SCOPED_TRACE(name);
            writeBytes(folder / name, bytes);
            const Dokumentoeffnung oeffnung = oeffneDokument(folder / name, elements);
            ASSERT_TRUE(oeffnung.lesung.dokument) << oeffnung.grund;
            EXPECT_EQ(*oeffnung.lesung.dokument, dokument);
            EXPECT_EQ(oeffnung.istBild, isPicture);
        }
    }
}

TEST_F(DokumentoeffnungTest, SaysWhyAFileIsNoDocument)
{
    for (const auto& [name, bytes, reason] : {std::tuple("bild.png", Pngbild, "In dem PNG-Bild steckt keine Legierung"),
             {"falsch.zerna", std::string("{\n \"format\": }"), "Zeile 2, Spalte 12: Das ist kein gültiges JSON."},
             {"leer.zerna", std::string(), "Die Datei ist leer."}}) {
        writeBytes(folder / name, bytes);
        EXPECT_THAT(oeffneDokument(folder / name, elements).grund, testing::StartsWith(reason));
    }
    EXPECT_EQ(oeffneDokument(folder / "fehlt", elements).grund, "Datei nicht gefunden.");
    EXPECT_THAT(
        oeffneDokument(folder.path(), elements).grund, testing::StartsWith("Fehler beim Zugriff auf Pfad/Datei"));
    EXPECT_TRUE(istDokumentname("Größe.ZERNA") && istDokumentname("a.svgz") && !istDokumentname("zerna"));
}

} // namespace zerna
