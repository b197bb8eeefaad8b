// What one generation reads from the study: each file opened once, read
// again by the next generation, and its texts made safe before they meet the
// RTF of the document.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>

#include "construction/FichiersEtude.h"
#include "support/BancInterpreteur.h"
#include "support/DossierTemporaire.h"
#include "template/Generateur.h"

namespace norvane::test {
namespace {

using ::testing::HasSubstr;

// True when every "{" of the RTF has its "}" (escaped ones are text).
bool AccoladesEquilibrees(const std::string& rtf) {
  int profondeur = 0;
  for (std::size_t i = 0; i < rtf.size(); ++i) {
    if (rtf[i] == '\\') {
      ++i;
    } else if (rtf[i] == '{') {
      ++profondeur;
    } else if (rtf[i] == '}' && --profondeur < 0) {
      return false;
    }
  }
  return profondeur == 0;
}

class LecturesGeneration : public BancInterpreteur {
 protected:
  LecturesGeneration() {
    DossierGeneral d;
    d.NomExploitation = "A}}}{\\rtf1 B";
    d.Adresse = "1 rue\x01 du Bourg\x1F";
    d.TypeExploitation = 1;
    d.NbAssocies = 1;
    d.NomAssocie[1] = "Paul {JA}";
    d.AnneeDebut = 2026;
    d.NbAnEtude = 3;
    construction::CreerDossierEtude(racine.Chemin(), "ESSAI.TVL", d);
    Series(7);
    racine.Ecrire("Norvane/donnees.INI", "[G]\r\nPrix=12\r\n");
    session.RepDossier[0] = racine.Chemin();
    session.NomDossier[0] = "ESSAI.TVL";
    session.RepNorvane = racine / "Norvane/";
  }

  void Series(float valeur) {
    construction::EcrireSeries(racine / "ESSAI.TVL/RES.DON",
                               {construction::Serie("RES-1:0", "Lait\x02 {cru}|l", {0, valeur})});
  }

  std::string Generer(const std::string& corps) {
    racine.Ecrire("modele.tvm", "{\\rtf1\\ansi " + corps + "\\par}");
    CreerDocument(generation, racine / "modele.tvm", racine / "resultat.rtf", {});
    return racine.Lire("resultat.rtf");
  }

  DossierTemporaire racine;
};

TEST_F(LecturesGeneration, StudyTextsCannotUnbalanceTheDocument) {
  const std::string rtf = Generer(
      "#tvl(nomSociete)#|#tvl(adresse)#|#tvl(RES.DON+RES-i1)#|#tvl(nomAssocies)#|#tvl(nomAss1)#|#tvl(saut2page)#");
  EXPECT_TRUE(AccoladesEquilibrees(rtf)) << rtf;
  EXPECT_THAT(rtf, HasSubstr(" A\\}\\}\\}\\{\\\\rtf1 B\r\n|"));  // the name reads as it was typed
  EXPECT_THAT(rtf, HasSubstr("|1 rue du Bourg\r\n|"));               // control bytes dropped
  EXPECT_THAT(rtf, HasSubstr("|lait \\{cru\\}\r\n|"));
  // Lists and page breaks built by the system stay RTF.
  EXPECT_THAT(rtf, HasSubstr(Cp("|Nom des associés : \\par - Paul \\{JA\\}\\par\r\n|Paul \\{JA\\}\r\n|\\page")));
}

TEST_F(LecturesGeneration, AFileChangedBetweenTwoGenerationsGivesItsNewValue) {
  EXPECT_THAT(Generer("#tvl(RES.DON+RES-1a1)#"), HasSubstr(" 7\r\n\\par}"));
  Series(8);
  EXPECT_THAT(Generer("#tvl(RES.DON+RES-1a1)#"), HasSubstr(" 8\r\n\\par}"));
}

TEST_F(LecturesGeneration, WithinOneGenerationEachFileIsOpenedOnce) {
  std::map<std::string, int> ouvertures;
  generation.etat.Fichiers = CacheEtude([&](const std::string& chemin) -> std::unique_ptr<std::istream> {
    ++ouvertures[std::filesystem::path(chemin).filename().string()];
    return std::make_unique<std::ifstream>(chemin, std::ios::binary);
  });
  std::string texte;
  for (int i = 0; i < 50; ++i) texte += "#tvl(RES.DON+RES-1a1)##tvl(RES.DON+RES-i1)##tvl(formule:1a:LG(RES-1)*2)##tvl(INI:G:Prix)#|";
  texte = Interpreter(texte);
  EXPECT_THAT(texte, HasSubstr("7lait \\{cru\\}1412|"));
  EXPECT_EQ(ouvertures["RES.DON"], 1);
  EXPECT_EQ(ouvertures["donnees.INI"], 1);
}

}  // namespace
}  // namespace norvane::test
