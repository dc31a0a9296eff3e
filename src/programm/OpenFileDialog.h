#pragma once

#include <optional>
#include <string>

namespace zerna {

enum class Dateiwahl { Legierung, Messkurve };

/// The platform's dialog for a file to open.
class OpenFileDialog {
public:
    virtual ~OpenFileDialog() = default;

    /// Asks for the path of a file that may hold such a thing, UTF-8; no value on cancel.
    virtual std::optional<std::string> choose(Dateiwahl wahl) = 0;
};

} // namespace zerna
