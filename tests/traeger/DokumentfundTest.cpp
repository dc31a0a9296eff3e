#include "traeger/Dokumentfund.h"

#include <gmock/gmock.h>

#include <random>

#include <zlib.h>

#include "core/Laufzeitfehler.h"
#include "support/Traegerbilder.h"
#include "traeger/Entpacken.h"
#include "traeger/Pdf.h"
#include "traeger/Png.h"
#include "traeger/Svg.h"

namespace zerna {

using namespace std::string_literals;
using testing::HasSubstr;

namespace {

const std::string Dokumenttext = R"({"titel": "Größe <5 µm & ]]> \"Ω\"",
 "zeilen": [ 1,  2 ]}
)";

std::string replaced(std::string text, std::string_view what, std::string_view by)
{
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return text.replace(at, what.size(), by);
}

const std::string Marked = R"({"version": 1, "format": "Zerna-Legierung"})";

/// An SVG picture that writes the document its own way.
std::string svgWith(std::string_view inside) { return replaced(Svgbild, "<g/>", inside); }

/// A PNG picture with a chunk of another program.
std::string pngWith(const std::string& type, const std::string& data)
{
    constexpr std::size_t BehindHeader = 33;
    const auto bigEndian = [](std::size_t number) {
        std::string bytes;
        for (const unsigned shift : {24U, 16U, 8U, 0U})
            bytes += static_cast<char>(number >> shift);
        return bytes;
    };
    const std::string chunk = type + data;
    const auto checksum = crc32_z(0, reinterpret_cast<const Bytef*>(chunk.data()), chunk.size());
    return std::string(Pngbild).insert(BehindHeader, bigEndian(data.size()) + chunk + bigEndian(checksum));
}

} // namespace

TEST(DokumentfundTest, ADocumentComesBackFromEveryCarrierAsItWas)
{
    const std::string own =
        "<m:legierung xmlns:m='urn:zerna:legierung'>{&quot;a&quot;:<!-- --> &#937;&lt;}</m:legierung>";
    const struct {
        const char* name;
        Dateiart art;
        std::string bytes;
        std::string document;
    } rows[] = {
        {"itself", Dateiart::Dokument, "\xEF\xBB\xBF\n" + Dokumenttext, "\xEF\xBB\xBF\n" + Dokumenttext},
        {"PNG", Dateiart::Png, pngMitDokument(Pngbild, Dokumenttext), Dokumenttext},
        {"PNG with something behind it", Dateiart::Png, pngMitDokument(Pngbild, Dokumenttext) + "mehr", Dokumenttext},
        {"PNG, text stored plainly", Dateiart::Png, pngWith("tEXt", "zerna\0{}"s), "{}"},
        {"PNG, text stored packed", Dateiart::Png, pngWith("zTXt", "zerna\0\0"s + gepackt(Dokumenttext)), Dokumenttext},
        {"PNG, text stored in Latin-1", Dateiart::Png, pngWith("tEXt", "zerna\0{\"\xB5\xDF\"}"s), R"({"µß"})"},
        {"PNG, the same packed", Dateiart::Png, pngWith("zTXt", "zerna\0\0"s + gepackt("{\"Ω\xB5\"}")), R"({"Î©µ"})"},
        {"PNG, plain iTXt with a language", Dateiart::Png, pngWith("iTXt", "zerna\0\0\0de\0Legierung\0{}"s), "{}"},
        {"SVG", Dateiart::Svg, svgMitDokument(Svgbild, Dokumenttext), Dokumenttext},
        {"SVG that speaks of another kind", Dateiart::Svg, svgMitDokument(Svgbild, R"({"%PDF-1.4"})"),
            R"({"%PDF-1.4"})"},
        {"SVG written anew", Dateiart::Svg, "\xEF\xBB\xBF" + svgWith(own), R"({"a": Ω<})"},
        {"SVG, characters that XML lacks", Dateiart::Svg, svgMitDokument(Svgbild, "{\"\xEF\xBF\xBE\xEF\xBF\xBF\"}"),
            R"({"\ufffe\uffff"})"},
        {"PDF", Dateiart::Pdf, pdfMit(gepackt(Dokumenttext)), Dokumenttext},
        {"PDF with lines in front", Dateiart::Pdf, "\r\n\r\n" + pdfMit(gepackt(Dokumenttext)), Dokumenttext},
        {"PDF written anew unpacked", Dateiart::Pdf, pdfMit(Dokumenttext), Dokumenttext},
        {"PDF with a later change", Dateiart::Pdf, pdfMit(Dokumenttext) + pdfMit(gepackt("{\"b\"}")), "{\"b\"}"},
        {"PDF with another program's attachments", Dateiart::Pdf,
            pdfMit("{\"a\"}") + pdfMit(gepackt(Marked)) + pdfMit("{\"b\"}") + pdfMit(gepackt("{\"c\"}")), Marked},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Dokumentfund found = dokumentAus(row.bytes);
        EXPECT_EQ(found.art, row.art);
        EXPECT_EQ(found.dokument, row.document);
        EXPECT_EQ(found.grund, "");
    }
}

TEST(DokumentfundTest, WhereThereIsNoneTheReasonIsSaid)
{
    const std::string bomb = gepackt(std::string(GroessteDatei + 1, '{'));
    const std::string png = pngMitDokument(Pngbild, Dokumenttext);
    const struct {
        const char* name;
        std::string bytes;
        std::string reason;
    } rows[] = {
        {"empty", "", "Die Datei ist leer"},
        {"some text", "Al60Cu40", "weder eine Legierung noch ein Bild"},
        {"UTF-16", "\xFF\xFE<\0s\0v\0g\0>\0"s, "Text in UTF-16"},
        {"UTF-16 without a mark", "{\0\"\0"s, "Text in UTF-16"},
        {"a number", "g\0\0\0"s, "weder eine Legierung noch ein Bild"},
        {"JPEG", "\xFF\xD8\xFF\xE0", "Diese Art von Bild kann keine"},
        {"PNG without", Pngbild, "In dem PNG-Bild steckt keine"},
        {"PNG cut", Pngbild.substr(0, Pngbild.size() - 4), "endet zu früh"},
        {"PNG, length beyond its end", "\x89PNG\r\n\x1A\n\xFF\xFF\xFF\xFFIHDR....", "endet zu früh"},
        {"PNG, a byte changed", replaced(png, "zerna\0\1"sv, "zerna\0\0"sv),
            "Legierung in dem PNG-Bild ist beschädigt"},
        {"PNG, text cut inside", pngWith("zTXt", "zerna\0\0\x78"s), "Legierung in dem PNG-Bild ist beschädigt"},
        {"PNG, nothing but the keyword", pngWith("zTXt", "zerna\0"s), "Legierung in dem PNG-Bild ist beschädigt"},
        {"PNG, gigabytes", pngWith("zTXt", "zerna\0\0"s + bomb), "Legierung in dem PNG-Bild ist beschädigt"},
        {"SVG without", Svgbild, "In der SVG-Grafik steckt keine"},
        {"SVG, another's element", svgWith("<legierung>{}</legierung>"), "In der SVG-Grafik steckt keine"},
        {"SVG cut", Svgbild.substr(0, 66), "beschädigt (Zeile 3, Spalte "},
        {"SVG, entities", replaced(Svgbild, "<svg", "<!DOCTYPE svg [<!ENTITY a 'aa'>]><svg"), "Entitäten"},
        {"other XML", "<html/>", "XML, aber keine SVG-Grafik"},
        {"SVGZ cut", "\x1F\x8B\x08", "gepackte SVG-Grafik ist beschädigt"},
        {"PDF without", pdfMit(""), "In dem PDF-Dokument steckt keine"},
        {"PDF cut", "%PDF-1.4\nstream\n", "endet zu früh"},
        {"PDF, cut inside", pdfMit(gepackt(Dokumenttext).substr(0, 60)),
            "Legierung in dem PDF-Dokument ist beschädigt"},
        {"PDF, encrypted", replaced(pdfMit("?"), "xref", "/Encrypt 4 0 R xref"), "verschlüsselt"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Dokumentfund found = dokumentAus(row.bytes);
        EXPECT_FALSE(found.dokument);
        EXPECT_THAT(found.grund, HasSubstr(row.reason));
        EXPECT_TRUE(found.grund.ends_with('.')) << found.grund;
    }
}

TEST(DokumentfundTest, WhatIsNoPictureCarriesNothing)
{
    EXPECT_THROW(pngMitDokument("", Dokumenttext), Laufzeitfehler);
    EXPECT_THROW(svgMitDokument("<svg/>", Dokumenttext), Laufzeitfehler);
}

TEST(DokumentfundTest, ADamagedCarrierNeverGivesAnotherDocument)
{
    std::mt19937 random(7);
    for (const std::string& carrier : {pngMitDokument(Pngbild, Dokumenttext), pdfMit(gepackt(Dokumenttext))})
        for (int i = 0; i < 2000; ++i) {
            std::string damaged = carrier;
            char& byte = damaged.at(random() % damaged.size());
            byte = static_cast<char>(byte ^ (1 << random() % 8));
            damaged.resize(i % 4 == 0 ? random() % damaged.size() : damaged.size());
            const Dokumentfund found = dokumentAus(damaged);
            EXPECT_TRUE(found.dokument ? *found.dokument == Dokumenttext : !found.grund.empty());
        }
}

} // namespace zerna
