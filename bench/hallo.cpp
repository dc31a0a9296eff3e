// The smallest program of its kind, to be compared with.

#include <iostream>

int main() { std::cout << "Hallo\n"; }
