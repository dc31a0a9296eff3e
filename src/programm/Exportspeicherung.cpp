#include "programm/Exportspeicherung.h"

#include <string>

#include "core/Datei.h"
#include "core/Exportdatei.h"
#include "core/Zeichensatz.h"

namespace zerna {

bool saveExport(MessageBoxes& boxes, std::string_view name, std::string_view text)
{
    try {
        writeExport(pathFromUtf8(name), toWindows1252(text));
        return true;
    } catch (const Laufzeitfehler& error) {
        showSaveFailure(boxes, name, error.what());
        return false;
    }
}

void showSaveFailure(MessageBoxes& boxes, std::string_view name, std::string_view reason)
{
    boxes.show(Icon::Exclamation, Programmtitel,
        "Die Datei \"" + std::string(name) + "\" konnte nicht gespeichert werden:\r\n" + std::string(reason) + ".");
}

} // namespace zerna
