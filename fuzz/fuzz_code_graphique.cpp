// Fuzz target of the graph code reader. The input is the body of a gph(...)
// code as a template holds it; it is cleaned and read into one working model
// kept from input to input, as a generation keeps slot 1. The code built back
// from that model must read back to the same code.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "graphs/CodeGraphique.h"
#include "graphs/DessinGraphique.h"
#include "graphs/SeriesGraphique.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille) {
  using namespace norvane;
  static ModeleGraphique slot;
  const std::string corps(reinterpret_cast<const char*>(donnees), taille);
  const IssueLectureCode issue = LireCodeGraphique(slot, PreparerCodeGraphique(corps));
  MessagesMuets silence;
  SignalerLectureCode(silence, slot, issue);
  CompleterCouleurs(slot, [] { return 0.5; });
  GrilleGraphique grille;
  RemplirGrille(slot, SourceValeursGraphique{{}, static_cast<int16_t>(taille % 16), 2025, true}, grille, silence);

  const std::string code = ConstruireCodeGraphique(slot);
  ModeleGraphique relu;
  const IssueLectureCode retour = LireCodeGraphique(relu, code.substr(4, code.size() - 5));
  if (retour.etat != LectureCode::Complete || ConstruireCodeGraphique(relu) != code) std::abort();
  return 0;
}
