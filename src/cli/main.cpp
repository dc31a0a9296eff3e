#include "cli/Befehle.h"
#include "cli/Befehlszeile.h"

int main(int argc, char** argv) { return zerna::runCommandLine(argc, argv, zerna::defineBefehle); }
