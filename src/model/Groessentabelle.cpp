#include "model/Groessentabelle.h"

#include <vector>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"
#include "model/Ergebnisse.h"

namespace zerna {

namespace {

struct Groesse {
    std::string_view name;
    std::string wert;
    std::string_view einheit;
};

std::vector<Groesse> knownQuantities(const clsCalc& calc)
{
    std::vector<Groesse> quantities;
    for (const Ergebniszeile& zeile : ergebniszeilen()) {
        const float value = orUnbekannt([&] { return zeile.value(calc); });
        if (!istUnbekannt(value))
            quantities.push_back({zeile.caption.substr(0, zeile.caption.size() - 1),
                textOfSingle(value, Dezimaltrenner::Punkt), zeile.unit});
    }
    return quantities;
}

} // namespace

std::string groessentabelle(const clsCalc& calc)
{
    std::string table;
    for (const Groesse& q : knownQuantities(calc))
        table.append(q.name).append("\t").append(q.wert).append("\t").append(q.einheit).append("\r\n");
    return table;
}

std::string groessenJson(const clsCalc& calc)
{
    std::string json = "[";
    for (const Groesse& q : knownQuantities(calc)) {
        json.append(json.size() == 1 ? "\r\n" : ",\r\n").append("  {\"name\": \"").append(q.name);
        json.append("\", \"wert\": ").append(q.wert).append(", \"einheit\": \"").append(q.einheit).append("\"}");
    }
    return json + "\r\n]\r\n";
}

} // namespace zerna
