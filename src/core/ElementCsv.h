#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/ElementRecord.h"

namespace zerna {

/// A table that cannot be read; what() says in German which line and column and why.
class Tabellenfehler : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The element table as comma-separated text: UTF-8, a header line with the record's field names, decimal point, an
/// empty cell for an unknown number, the 18 subshell counts in one cell separated by blanks, cells with a comma or a
/// quotation mark in quotation marks. A table as spreadsheets write it is read as well: semicolons or tabs between the
/// cells, decimal commas, lines of empty cells. Throws Tabellenfehler, also for a character that the data file cannot
/// hold.
std::vector<ElementRecord> readElementCsv(std::string_view text);

/// The same table from records, lines ending in LF.
std::string writeElementCsv(std::span<const ElementRecord> records);

} // namespace zerna
