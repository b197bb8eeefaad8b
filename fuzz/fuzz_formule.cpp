// Fuzz target of the formula calculator: the arithmetic evaluator on raw
// bytes, and the LG reference scan with every kind of year and a table in
// hand. No dossier is chosen, so no file is read.
#include <cstddef>
#include <cstdint>
#include <string>

#include "template/Evaluateur.h"
#include "template/Formules.h"
#include "template/References.h"

namespace {

using namespace norvane;

class LignesFixes : public LignesTableau {
 public:
  float Valeur(int ligne, int annee) const override { return static_cast<float>(ligne * 100 + annee); }
  std::string Texte(int ligne) const override { return "LG" + std::to_string(ligne); }
  bool DebuteAnneeUn() const override { return true; }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille) {
  std::string texte(reinterpret_cast<const char*>(donnees), taille);
  EvaluerExpression(texte);
  if (taille == 0) return 0;

  static Session session;
  static MessagesMuets messages;
  static ProgressionMuette progression;
  static EntitesCourantes entites;
  static LignesFixes lignes;
  Generation generation(session, messages, progression, entites);
  generation.lignes = donnees[0] & 1 ? &lignes : nullptr;
  int16_t annee = static_cast<int16_t>(static_cast<int8_t>(donnees[0]) % 20);
  std::string formule = texte.substr(1);
  RemplacerReferences(generation, formule, annee);
  CalculerFormule(generation, formule, annee);
  ValeurCodeFormule(generation, "formule:" + formule);
  return 0;
}
