#include "model/rechnung/Tabelle.h"

#include <string_view>
#include <utility>

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

std::string htmlZelle(std::string_view tag, const Tabelle::Spalte& spalte, std::string_view text)
{
    std::string zelle = '<' + std::string(tag) + (spalte.istZahl ? " align=\"right\">" : ">");
    for (const char c : text)
        zelle += c == '&' ? "&amp;" : c == '<' ? "&lt;" : std::string(1, c);
    return zelle + "</" + std::string(tag) + '>';
}

std::string csvZelle(const std::string& text)
{
    if (text.find_first_of(";\"\r\n") == std::string::npos)
        return text;
    std::string cell = "\"";
    for (const char c : text)
        cell.append(c == '"' ? "\"\"" : std::string(1, c));
    return cell + '"';
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

Tabelle mitKopf(Tabelle tabelle)
{
    std::vector<std::string> kopf;
    for (const Tabelle::Spalte& spalte : tabelle.spalten)
        kopf.push_back(spalte.name);
    tabelle.zeilen.insert(tabelle.zeilen.begin(), std::move(kopf));
    return tabelle;
}

std::string alsCsv(const Tabelle& tabelle)
{
    std::string text = "\xEF\xBB\xBF";
    for (const std::vector<std::string>& zeile : mitKopf(tabelle).zeilen) {
        for (std::size_t i = 0; i < zeile.size(); ++i)
            text.append(i == 0 ? "" : ";").append(csvZelle(zeile[i]));
        text += "\r\n";
    }
    return text;
}

std::string alsHtml(const Tabelle& tabelle)
{
    std::string html = R"(<meta charset="utf-8"><table border="1" cellspacing="0" cellpadding="3"><tr>)";
    for (const Tabelle::Spalte& spalte : tabelle.spalten)
        html += htmlZelle("th", spalte, spalte.name);
    html += "</tr>";
    for (const std::vector<std::string>& zeile : tabelle.zeilen) {
        html += "\r\n<tr>";
        for (std::size_t i = 0; i < tabelle.spalten.size(); ++i)
            html += htmlZelle("td", tabelle.spalten[i], i < zeile.size() ? zeile[i] : std::string());
        html += "</tr>";
    }
    return html + "</table>";
}

std::string alsJson(const Tabelle& tabelle)
{
    std::string json = "[";
    for (const std::vector<std::string>& zeile : tabelle.zeilen) {
        json += json.size() == 1 ? "\r\n  {" : ",\r\n  {";
        for (std::size_t i = 0; i < zeile.size(); ++i) {
            const Tabelle::Spalte& spalte = tabelle.spalten.at(i);
            json.append(i == 0 ? "" : ", ").append(inQuotes(spalte.name)).append(": ");
            json += !spalte.istZahl ? inQuotes(zeile[i]) : zeile[i].empty() ? "null" : zeile[i];
        }
        json += '}';
    }
    return json + "\r\n]\r\n";
}

} // namespace zerna
