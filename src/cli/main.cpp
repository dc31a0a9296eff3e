#include "cli/Befehle.h"
#include "cli/Befehlszeile.h"
#include "core/Konsole.h"

int main(int argc, char** argv)
{
    zerna::Konsole konsole(argc, argv);
    return zerna::runCommandLine(konsole.argc(), konsole.argv(), zerna::defineBefehle);
}
