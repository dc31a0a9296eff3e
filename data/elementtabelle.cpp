// Turns an element table (CSV) into what the program ships:
//   elementtabelle dat TABLE.csv OUT.dat    the element data file
//   elementtabelle cpp TABLE.csv OUT.cpp    the built-in table as a byte array

#include <fstream>
#include <iostream>
#include <iterator>
#include <span>
#include <string>

#include "core/ElementCsv.h"
#include "core/Elementdatei.h"

namespace {

std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

void writeByteArray(const std::filesystem::path& dat, const std::filesystem::path& cpp)
{
    const std::string bytes = contentOf(dat);
    std::ofstream stream(cpp);
    stream << "#include \"programm/EingebauteTabelle.h\"\n\nstatic constexpr unsigned char Bytes[] = {";
    for (std::size_t i = 0; i < bytes.size(); ++i)
        stream << (i % 20 == 0 ? "\n    " : " ") << static_cast<int>(static_cast<unsigned char>(bytes[i])) << ',';
    stream << "\n};\n\nconstinit const std::span<const unsigned char> zerna::EingebauteTabelle(Bytes);\n";
}

void makeTable(std::span<char* const> arguments)
{
    if (arguments.size() != 4)
        throw std::runtime_error("usage: elementtabelle dat|cpp TABLE.csv OUT");
    const std::string form = arguments[1];
    const std::filesystem::path out = arguments[3];
    const std::filesystem::path dat = form == "dat" ? out : std::filesystem::path(out).replace_extension(".dat");
    zerna::saveElements(dat, zerna::readElementCsv(contentOf(arguments[2])));
    if (form == "cpp")
        writeByteArray(dat, out);
}

} // namespace

int main(int argc, char** argv)
{
    try {
        makeTable({argv, static_cast<std::size_t>(argc)});
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "elementtabelle: " << error.what() << '\n';
        return 1;
    }
}
