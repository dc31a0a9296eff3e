#include "traeger/Dokumentfund.h"

#include <algorithm>
#include <array>

#include "core/Textbytes.h"
#include "traeger/Entpacken.h"
#include "traeger/Pdf.h"
#include "traeger/Png.h"
#include "traeger/Svg.h"
#include "traeger/Textanfang.h"

namespace zerna {

namespace {

using namespace std::string_view_literals;

bool istAnderesBild(std::string_view bytes)
{
    constexpr auto Beginnings = std::to_array({"BM"sv, "\xFF\xD8\xFF"sv, "GIF8"sv, "II*\0"sv, "MM\0*"sv, "RIFF"sv});
    return std::any_of(
        Beginnings.begin(), Beginnings.end(), [bytes](std::string_view begin) { return bytes.starts_with(begin); });
}

Dokumentfund fremd(std::string_view bytes)
{
    if (bytes.empty())
        return {Dateiart::Fremd, {}, "Die Datei ist leer."};
    if (istAnderesBild(bytes))
        return {Dateiart::Fremd, {}, "Diese Art von Bild kann keine Legierung tragen; PNG, SVG und PDF können es."};
    return {Dateiart::Fremd, {}, "Die Datei ist weder eine Legierung noch ein Bild, das eine trägt (PNG, SVG, PDF)."};
}

Dokumentfund dokumentInGepacktem(std::string_view bytes)
{
    const Entpackt unpacked = entpackt(bytes);
    if (!unpacked.vollstaendig)
        return {Dateiart::Svg, {}, "Die gepackte SVG-Grafik ist beschädigt oder zu groß."};
    return istSvg(unpacked.bytes) ? dokumentImSvg(unpacked.bytes) : fremd(bytes);
}

/// Only the reader of pictures knows it.
Dokumentfund dokumentInUtf16(std::string_view bytes)
{
    Dokumentfund fund = istSvg(bytes) ? dokumentImSvg(bytes) : Dokumentfund();
    return fund.dokument ? fund
                         : Dokumentfund{Dateiart::Fremd, {}, "Die Datei ist Text in UTF-16; erwartet wird UTF-8."};
}

} // namespace

Dokumentfund dokumentAus(std::string_view bytes)
{
    if (istUtf16(bytes))
        return dokumentInUtf16(bytes);
    if (textanfang(bytes) == '{')
        return {Dateiart::Dokument, std::string(bytes), {}};
    if (istPng(bytes))
        return dokumentImPng(bytes);
    if (istSvg(bytes))
        return dokumentImSvg(bytes);
    if (bytes.starts_with("\x1F\x8B"))
        return dokumentInGepacktem(bytes);
    if (istPdf(bytes)) // after what is known by its very beginning: its own mark may stand somewhat later
        return dokumentImPdf(bytes);
    return fremd(bytes);
}

std::string keineLegierungIn(std::string_view traeger)
{
    return "In " + std::string(traeger)
        + " steckt keine Legierung. Die Datei stammt nicht aus Zerna, oder die Legierung ging beim Bearbeiten oder "
          "Versenden verloren.";
}

} // namespace zerna
