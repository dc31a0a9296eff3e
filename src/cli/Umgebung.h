#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/MessageBoxes.h"
#include "model/dokument/Dokument.h"
#include "programm/Rechenkern.h"

namespace zerna {

/// Bytes of a line on standard error.
inline constexpr std::size_t LaengsteMeldung = 1000;

/// A message as it is written: one sentence without its full stop, however it comes; several with theirs.
std::string meldungszeile(const std::string& text);

/// Writes a message as a line on standard error, "zerna-cli" in front.
void melde(const std::string& text);

/// Messages of the library as lines on standard error.
class StandardErrorBoxes : public MessageBoxes {
public:
    void show(Icon icon, std::string_view caption, std::string_view text) override;
};

struct Komponenten;

/// What every command works with: the element data, the calculator, and where output goes.
class Umgebung {
public:
    /// Reads the given data file, else the one beside the program, else the built-in table; never writes one. Throws
    /// Datenfehler.
    void load();

    /// Reads the elements and makes the alloy of these components, or of the formula that they are the words of, the
    /// calculator's, their parts in that unit unless the formula names another; or that of the document in the one file
    /// that they name. Says on standard error if amounts were scaled. Throws Aufruffehler or Datenfehler.
    void readAlloy(const Komponenten& komponenten);

    /// Says on standard error what makes the results doubtful.
    void nenneBefund();

    /// Both of them.
    void loadAlloy(const Komponenten& komponenten);

    Rechenkern& kern() { return m_kern; }

    /// What else the file holds that the alloy comes from; nothing if it comes from none.
    const std::optional<Dokument>& dokument() const { return m_dokument; }

    /// Whether the call has that argument.
    bool nennt(std::string_view argument) const;

    std::string daten; ///< the data file that was asked for; empty for none
    std::vector<std::string> aufruf; ///< the arguments of the call

private:
    void loadComponents(const Komponenten& komponenten);
    void loadDocument(const std::string& file);
    void loadFormel(const Komponenten& worte);

    StandardErrorBoxes m_boxes;
    Rechenkern m_kern{m_boxes};
    std::optional<Dokument> m_dokument;
};

/// Prints a text with CR LF: to standard output as UTF-8 with LF, to a named file as the bytes that the window saves.
/// Throws Datenfehler.
void put(const std::string& text, const std::string& file);

/// Writes bytes to a file. Throws Datenfehler, which names the file.
void writeFile(const std::string& file, std::string_view bytes);

/// All bytes of a file. Throws Datenfehler, which names the file.
std::string readFile(const std::string& file);

} // namespace zerna
