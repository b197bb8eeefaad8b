// Fuzz target of the code interpreter: the input is a slice of template text,
// scanned for #tvl(...)# codes (explain mode on when the first byte is odd),
// then for the %tvl(...)% codes of a table cell. No dossier is chosen, so no
// study file is read.
#include <cstddef>
#include <cstdint>
#include <string>

#include "template/Directives.h"
#include "template/Interpreteur.h"

namespace {

using namespace norvane;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille) {
  if (taille == 0) return 0;
  static Session session;
  static MessagesMuets messages;
  static ProgressionMuette progression;
  static EntitesCourantes entites;
  session.InfoDossier.DateDebut = "29/02/2008";
  session.InfoDossier.TypeExploitation = donnees[0] & 2 ? 1 : 0;
  session.InfoDossier.NbAssocies = 11;
  Generation generation(session, messages, progression, entites);
  generation.horloge = [] { return std::time_t{1795000000}; };

  std::string texte(reinterpret_cast<const char*>(donnees) + 1, taille - 1);
  std::string cellule = texte;
  InterpreterPortion(generation, texte, donnees[0] & 1);
  InterpreterCellule(generation, cellule);
  return 0;
}
