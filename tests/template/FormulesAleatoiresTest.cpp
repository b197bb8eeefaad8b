// Random formulas, made of the pieces a formula is built from, fed to the
// evaluator and the calculator: nothing may crash or hang, and every result
// is a number's text.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>
#include <string>
#include <string_view>

#include "construction/FichiersEtude.h"
#include "frame/DossierTemporaire.h"
#include "frame/PortsScriptes.h"
#include "template/Formules.h"

namespace norvane {
namespace {

constexpr std::array<std::string_view, 30> kMorceaux = {
    "LG", "LG(", "RES", "-", "17", "!A", "-1", ")", "(", "+", "*", "/", "^", ":", "_", "a", "2", "0",
    ".", ",", "e", "formule:", "\xB2", "&", "|", " ", std::string_view("\0", 1), "\xFF", "AL", "9999999"};

std::string FormuleAleatoire(std::mt19937& alea) {
  std::uniform_int_distribution<std::size_t> longueur(0, 24);
  std::uniform_int_distribution<std::size_t> morceau(0, kMorceaux.size() - 1);
  std::string formule;
  for (std::size_t n = longueur(alea); n > 0; --n) formule += kMorceaux[morceau(alea)];
  return formule;
}

std::string OctetsAleatoires(std::mt19937& alea) {
  std::uniform_int_distribution<int> longueur(0, 64);
  std::uniform_int_distribution<int> octet(0, 255);
  std::string texte;
  for (int n = longueur(alea); n > 0; --n) texte += static_cast<char>(octet(alea));
  return texte;
}

// A number's text: digits, no-break spaces, one comma, a leading minus.
bool EstUnNombre(const std::string& texte) {
  if (texte.empty()) return false;
  return texte.find_first_not_of("-0123456789,\xA0") == std::string::npos;
}

class LignesEssai : public LignesTableau {
 public:
  float Valeur(int ligne, int annee) const override { return static_cast<float>(ligne) - static_cast<float>(annee); }
  std::string Texte(int ligne) const override { return "LG" + std::to_string(ligne); }
  bool DebuteAnneeUn() const override { return false; }
};

TEST(FormulesAleatoires, EvaluatorAlwaysGivesAFiniteNumber) {
  std::mt19937 alea(20240601);
  for (int i = 0; i < 20000; ++i) {
    std::string texte = i % 2 ? FormuleAleatoire(alea) : OctetsAleatoires(alea);
    EXPECT_TRUE(std::isfinite(EvaluerExpression(texte))) << texte;
  }
}

TEST(FormulesAleatoires, CalculatorAlwaysGivesANumberOrThePlaceholder) {
  test::DossierTemporaire racine;
  construction::EcrireSeries(racine / "ESSAI.TVL/RES.DON",
                             {construction::Serie("RES-1:0", "Un", {1, 2, 3}),
                              construction::Serie("RES-2:0", "Deux", {-4, 5.5f, 1e30f})});
  Session session;
  session.RepDossier[0] = racine.Chemin();
  session.NomDossier[0] = "ESSAI.TVL";
  MessagesScriptes messages;
  ProgressionMuette progression;
  EntitesCourantes entites;
  LignesEssai lignes;
  Generation generation(session, messages, progression, entites);
  generation.lignes = &lignes;

  std::mt19937 alea(7);
  std::uniform_int_distribution<int> annee(-3, 16);
  for (int i = 0; i < 5000; ++i) {
    std::string formule = FormuleAleatoire(alea);
    std::string valeur = ValeurCodeFormule(generation, "formule:" + formule);
    EXPECT_TRUE(EstUnNombre(valeur) || valeur == "<Code Mal renseign\xE9 : valeur non calcul\xE9" "e>") << formule;
    EXPECT_TRUE(EstUnNombre(CalculerFormule(generation, formule, static_cast<int16_t>(annee(alea))))) << formule;
    messages.messages.clear();
    messages.questions.clear();
  }
}

}  // namespace
}  // namespace norvane
