#pragma once

#include <string>
#include <string_view>

/// Small pictures as other programs might write them.
namespace zerna {

using namespace std::string_view_literals;

/// A PNG picture of one grey pixel.
inline const std::string Pngbild(
    "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\x8\0\0\0\0\x3A\x7E\x9B\x55\0\0\0\nIDATx\x9C"
    "c`\0\0\0\2\0\1H\xAF\xA4q\0\0\0\0IEND\xAE\x42\x60\x82"sv);

inline const std::string Svgbild =
    "<?xml version=\"1.0\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\">\n<g/>\n</svg>\n";

/// A PDF document with these bytes as the data of a stream, among others.
inline std::string pdfMit(std::string_view data)
{
    return "%PDF-1.4\n%\xE2\xE3\n1 0 obj\n<</FunctionType 4>>\nstream\n{ 360 mul }\nendstream\nendobj\n"
           "7 0 obj\n<</Filter /FlateDecode /Length 9999999999>>\r\nstream\r\n"
        + std::string(data) + "\nendstream\nendobj\n9 0 obj\n<<>>\nstream\n\x78\nendstream\nendobj\nxref\n0 0\n%%EOF\n";
}

} // namespace zerna
