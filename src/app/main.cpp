#include "app/Demarrage.h"

int main(int argc, char** argv) { return norvane::Demarrer(argc, argv); }
