#include <cstdint>
#include <string>

#include "Elemente.h"
#include "Pruefung.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "parser/clsParser.h"

using namespace zerna;

namespace {

/// However many unknown functions a formula calls.
constexpr std::size_t MostBoxes = 10;

} // namespace

/// Evaluates the text: the result is a number text, an error has a reason and a place, and a second evaluation agrees.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string formula(data, data + size);
    Elemente elements;
    elements.add("Cu", 1.5F);
    elements.add("Fe", 2);
    elements.add("Xx", Unbekannt);
    RecordingBoxes& boxes = elements.boxes;
    clsParser parser(*elements, boxes);

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
