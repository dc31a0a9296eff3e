#include "model/Tabelle.h"

namespace zerna {

namespace {

std::string inQuotes(std::string_view text)
{
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            result += '\\';
        if (static_cast<unsigned char>(c) >= 0x20) // element symbols have no use for control characters
            result += c;
    }
    return result + '"';
}

} // namespace

std::string alsText(const Tabelle& tabelle)
{
    std::string text;
    for (const std::vector<std::string>& zeile : tabelle.zeilen) {
        for (std::size_t i = 0; i < zeile.size(); ++i)
            text.append(i == 0 ? "" : "\t").append(zeile[i]);
        text += "\r\n";
    }
    return text;
}

std::string alsJson(const Tabelle& tabelle)
{
    std::string json = "[";
    for (const std::vector<std::string>& zeile : tabelle.zeilen) {
        json += json.size() == 1 ? "\r\n  {" : ",\r\n  {";
        for (std::size_t i = 0; i < zeile.size(); ++i) {
            const Tabelle::Spalte& spalte = tabelle.spalten.at(i);
            json.append(i == 0 ? "" : ", ").append(inQuotes(spalte.name)).append(": ");
            json += spalte.istZahl ? zeile[i] : inQuotes(zeile[i]);
        }
        json += '}';
    }
    return json + "\r\n]\r\n";
}

} // namespace zerna
