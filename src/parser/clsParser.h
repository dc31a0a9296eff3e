#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/MessageBoxes.h"
#include "parser/Formelwert.h"

namespace zerna {

/// Evaluates formulas with the valences of one element collection and tells the user about unknown functions.
class clsParser {
public:
    clsParser(const ElementCollection& elements, MessageBoxes& boxes);

    /// The value of the last Parse: "Standard" as plain text, "Scientific" as "0,00E+00"; empty for any other format.
    std::string FormatLastResult(std::string_view format) const;

    /// The formula's value as text, see Formelwert. Any error makes it "0", see LastError. An unknown function counts
    /// as 0 in the formula and is shown in a message box once the evaluation is over. The elements whose valences it
    /// took are added to `bezuege`.
    std::string Parse(std::string_view formula, std::vector<Valenzbezug>* bezuege = nullptr);

    /// The name of function `index`, 0 to FunctionCount - 1; empty for any other.
    std::string_view FunctionName(int index) const;
    int FunctionCount() const;

    /// The first error of the last Parse, an unknown function included.
    const std::optional<Formelfehler>& LastError() const { return m_lastError; }

private:
    const ElementCollection& m_elements;
    MessageBoxes& m_boxes;
    double m_lastResult = 0;
    std::optional<Formelfehler> m_lastError;
};

} // namespace zerna
