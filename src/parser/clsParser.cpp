#include "parser/clsParser.h"

#include <utility>

#include "core/Zahlentext.h"
#include "parser/Formelfunktionen.h"

namespace zerna {

clsParser::clsParser(const ElementCollection& elements, MessageBoxes& boxes)
    : m_elements(elements)
    , m_boxes(boxes)
{
}

std::string clsParser::FormatLastResult(std::string_view format) const
{
    if (format == "Scientific")
        return scientificText(m_lastResult, 2, "", false);
    return format == "Standard" ? textOfDouble(m_lastResult) : std::string();
}

std::string clsParser::Parse(std::string_view formula, std::vector<Valenzbezug>* bezuege)
{
    Formelwert value = formelwert(formula, m_elements, bezuege);
    for (const std::string& text : value.meldungen)
        m_boxes.show(Icon::None, Formelmeldungstitel, text);
    m_lastResult = value.wert; // after the boxes, in which another formula may have been evaluated
    m_lastError = std::move(value.fehler);
    return std::move(value.text);
}

std::string_view clsParser::FunctionName(int index) const
{
    if (index < 0 || index >= Funktionenzahl)
        return {};
    return index == Funktionenzahl - 1 ? "Hex" : formelfunktion(index).name;
}

int clsParser::FunctionCount() const { return Funktionenzahl; }

} // namespace zerna
