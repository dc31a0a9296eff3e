#include "bildprogramm/Bildprogramm.h"

int main(int argc, char** argv) { return zerna::runBildprogramm(argc, argv); }
