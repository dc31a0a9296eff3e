#include "traeger/Svg.h"

#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include <expat.h>

#include "core/Laufzeitfehler.h"
#include "traeger/Textanfang.h"

namespace zerna {

namespace {

using namespace std::string_view_literals;

constexpr auto Begin =
    R"(<metadata><zerna:legierung xmlns:zerna="urn:zerna:legierung" xml:space="preserve"><![CDATA[)"sv;
constexpr auto End = "]]></zerna:legierung></metadata>\n"sv;
constexpr auto OurElement = "urn:zerna:legierung legierung"sv; // namespace and name as expat tells them
constexpr auto SvgElement = "http://www.w3.org/2000/svg svg"sv;

std::string replaced(std::string text, std::string_view what, std::string_view by)
{
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
    return text;
}

/// The document where only what ends a CDATA section is special. XML has no place for two characters that JSON may
/// hold only in its strings, where they can be written as escapes.
std::string asCdata(std::string_view dokument)
{
    std::string text = replaced(std::string(dokument), "]]>", "]]]]><![CDATA[>");
    text = replaced(std::move(text), "\xEF\xBF\xBE", "\\ufffe");
    return replaced(std::move(text), "\xEF\xBF\xBF", "\\uffff");
}

/// What has been read of the picture.
struct Reading {
    XML_Parser parser = nullptr;
    std::string text; ///< of our element
    std::string_view refused; ///< why reading stopped
    bool complete = false; ///< our element has been read to its end
    int depth = 0; ///< of the present element
    int inside = 0; ///< depth of our element; 0 outside of it

    void refuse(std::string_view reason)
    {
        refused = reason;
        XML_StopParser(parser, XML_FALSE);
    }
};

void XMLCALL begin(void* user, const XML_Char* name, const XML_Char** /*attributes*/)
{
    auto& reading = *static_cast<Reading*>(user);
    if (++reading.depth == 1 && name != SvgElement && name != "svg"sv)
        reading.refuse("Die Datei ist XML, aber keine SVG-Grafik.");
    if (reading.inside == 0 && name == OurElement)
        reading.inside = reading.depth;
}

void XMLCALL text(void* user, const XML_Char* characters, int count)
{
    auto& reading = *static_cast<Reading*>(user);
    if (reading.inside != 0)
        reading.text.append(characters, static_cast<std::size_t>(count));
}

void XMLCALL end(void* user, const XML_Char* /*name*/)
{
    auto& reading = *static_cast<Reading*>(user);
    if (reading.depth == reading.inside) {
        reading.complete = true;
        XML_StopParser(reading.parser, XML_FALSE);
    }
    --reading.depth;
}

/// A few entities can stand for gigabytes.
void XMLCALL entity(void* user, const XML_Char*, int, const XML_Char*, int, const XML_Char*, const XML_Char*,
    const XML_Char*, const XML_Char*)
{
    static_cast<Reading*>(user)->refuse("Die SVG-Grafik legt eigene Entitäten fest; solche liest Zerna nicht.");
}

Dokumentfund fundOf(Reading reading, XML_Status state)
{
    if (reading.complete)
        return {Dateiart::Svg, std::move(reading.text), {}};
    if (!reading.refused.empty())
        return {reading.depth > 1 ? Dateiart::Svg : Dateiart::Fremd, {}, std::string(reading.refused)};
    if (state == XML_STATUS_OK)
        return {Dateiart::Svg, {}, keineLegierungIn("der SVG-Grafik")};
    return {Dateiart::Svg, {},
        "Die SVG-Grafik ist beschädigt (Zeile " + std::to_string(XML_GetCurrentLineNumber(reading.parser)) + ", Spalte "
            + std::to_string(XML_GetCurrentColumnNumber(reading.parser) + 1) + ")."};
}

} // namespace

std::string svgMitDokument(std::string_view svg, std::string_view dokument)
{
    const std::size_t place = svg.rfind("</svg>");
    if (place == std::string_view::npos)
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    std::string result(svg);
    return result.insert(place, std::string(Begin).append(asCdata(dokument)).append(End));
}

bool istSvg(std::string_view bytes) { return textanfang(bytes) == '<'; }

Dokumentfund dokumentImSvg(std::string_view svg)
{
    const std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)> parser(
        XML_ParserCreateNS(nullptr, ' '), &XML_ParserFree);
    if (!parser)
        throw std::bad_alloc();
    Reading reading{parser.get(), {}, {}, false, 0, 0};
    XML_SetUserData(reading.parser, &reading);
    XML_SetElementHandler(reading.parser, begin, end);
    XML_SetCharacterDataHandler(reading.parser, text);
    XML_SetEntityDeclHandler(reading.parser, entity);
    const auto state = XML_Parse(reading.parser, svg.data(), static_cast<int>(svg.size()), XML_TRUE);
    return fundOf(std::move(reading), state);
}

} // namespace zerna
