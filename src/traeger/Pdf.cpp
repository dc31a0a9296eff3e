#include "traeger/Pdf.h"

#include <utility>

#include "traeger/Entpacken.h"

namespace zerna {

namespace {

/// Streams that are looked into: far more than any document has that is one picture or some pages.
constexpr int MostStreams = 100'000;

/// Takes the bytes up to the next stream's data off the rest. Whether there is one.
bool takeToStream(std::string_view& rest)
{
    for (std::size_t at = rest.find("stream"); at != std::string_view::npos; at = rest.find("stream")) {
        const bool begins = !rest.substr(0, at).ends_with("end");
        rest.remove_prefix(at + 6);
        const std::size_t lineEnd = rest.starts_with("\r\n") ? 2 : 1;
        if (begins && (lineEnd == 2 || rest.starts_with('\n'))) {
            rest.remove_prefix(lineEnd);
            return true;
        }
    }
    return false;
}

/// The data of a stream that is not packed, without the end of line that follows it.
std::string plain(std::string_view data)
{
    data = data.substr(0, data.find("endstream"));
    for (const char ending : {'\n', '\r'})
        data.remove_suffix(data.ends_with(ending) ? 1 : 0);
    return std::string(data);
}

bool isPacked(std::string_view data)
{
    constexpr char Deflate = 0x78; // with the window that everybody uses
    return data.starts_with(Deflate);
}

/// A JSON object that has members; other things in a PDF document may begin with a brace too.
bool isDocument(std::string_view begin)
{
    const std::size_t second = begin.find_first_not_of(" \t\r\n", 1);
    return begin.starts_with('{') && second != std::string_view::npos && begin[second] == '"';
}

/// Whether a JSON object says that it is ours, as each that we write does in its first member.
bool isMarked(std::string_view begin)
{
    const std::size_t key = begin.find("\"format\"");
    return key != std::string_view::npos && begin.find("\"Zerna-Legierung\"", key) != std::string_view::npos;
}

/// The data of the last stream that is marked as ours, else of the last that looks like a document, with all that
/// follows it; empty if there is none.
std::string_view lastDocument(std::string_view rest)
{
    constexpr std::size_t Enough = 256; // to see what it is
    std::string_view marked;
    std::string_view other;
    for (int i = 0; i < MostStreams && takeToStream(rest); ++i) {
        const std::string begin = isPacked(rest) ? entpackt(rest, Enough).bytes : std::string(rest.substr(0, Enough));
        if (isDocument(begin))
            (isMarked(begin) ? marked : other) = rest;
    }
    return marked.empty() ? other : marked;
}

} // namespace

bool istPdf(std::string_view bytes)
{
    constexpr std::size_t FarthestBegin = 1024; // some mailers put lines in front
    return bytes.substr(0, FarthestBegin).find("%PDF-") != std::string_view::npos;
}

Dokumentfund dokumentImPdf(std::string_view pdf)
{
    const std::string_view data = lastDocument(pdf);
    if (data.empty() && pdf.find("/Encrypt") != std::string_view::npos)
        return {Dateiart::Pdf, {}, "Das PDF-Dokument ist verschlüsselt; eine Legierung darin lässt sich nicht lesen."};
    if (data.empty() && pdf.find("%%EOF") == std::string_view::npos)
        return {Dateiart::Pdf, {}, "Das PDF-Dokument ist beschädigt: Es endet zu früh."};
    if (data.empty())
        return {Dateiart::Pdf, {}, keineLegierungIn("dem PDF-Dokument")};
    if (!isPacked(data))
        return {Dateiart::Pdf, plain(data), {}};
    Entpackt document = entpackt(data);
    if (!document.vollstaendig)
        return {Dateiart::Pdf, {}, "Die Legierung in dem PDF-Dokument ist beschädigt."};
    return {Dateiart::Pdf, std::move(document.bytes), {}};
}

} // namespace zerna
