// Fuzz target of the catalogues: the records of a .CFG read from raw bytes,
// and the series tree built from the same bytes written as a file.
#include <stdlib.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "study/Catalogues.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille) {
  using namespace norvane;
  static const std::string dossier = [] {
    std::string modele = (std::filesystem::temp_directory_path() / "fuzz-catalogue-XXXXXX").string();
    return ::mkdtemp(modele.data()) != nullptr ? modele + "/" : std::string("./");
  }();
  const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);
  LireCatalogue(octets);
  const char* nom = taille > 0 && (donnees[0] & 1) ? "RESSUP.CFG" : "RES.CFG";
  std::ofstream(dossier + nom, std::ios::binary | std::ios::trunc)
      .write(octets.data(), static_cast<std::streamsize>(octets.size()));
  RemplirArbreSeries(nom, dossier);
  return 0;
}
