#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "parser/clsParser.h"
#include "support/RecordingBoxes.h"

using namespace zerna;

namespace {

/// However many unknown functions a formula calls.
constexpr std::size_t MostBoxes = 10;

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void add(ElementCollection& elements, Dateinummern& files, MessageBoxes& boxes, const char* symbol, float valence)
{
    auto element = std::make_shared<clsElement>(files, boxes);
    element->setsymbol(symbol);
    element->setValenz(valence);
    elements.Add(element, symbol);
}

} // namespace

/// Evaluates the text: the result is a number text, an error has a reason and a place, and a second evaluation agrees.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string formula(data, data + size);
    Dateinummern files;
    RecordingBoxes boxes;
    ElementCollection elements;
    add(elements, files, boxes, "Cu", 1.5F);
    add(elements, files, boxes, "Fe", 2);
    add(elements, files, boxes, "Xx", Unbekannt);
    clsParser parser(elements, boxes);

    const std::string result = parser.Parse(formula);
    require(!result.empty() && boxes.shown.size() <= MostBoxes);
    if (const auto& error = parser.LastError()) {
        require(error->Nummer != 0 && !error->Grund.empty());
        require(error->Stelle >= 1 && error->Stelle <= formula.size() + 1);
        require(boxes.shown.empty() == !error->Grund.ends_with("ist nicht definiert"));
    }
    if (!result.starts_with("0x")) {
        require(parser.FormatLastResult("Standard") == result);
        try {
            require(numberIn(result).has_value());
        } catch (const Laufzeitfehler&) {
            require(result.find("E+308") != std::string::npos); // rounded up past the largest double
        }
    }
    require(!parser.FormatLastResult("Scientific").empty());
    require(parser.Parse(formula) == result);
    return 0;
}
