// A whole document made from a template holding a table: the table lands in
// place with the colours shifted behind the template's own, and nothing of
// the dossier is written.
#include <chrono>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "tables/BancTableaux.h"
#include "template/Generateur.h"

namespace norvane::test {
namespace {

namespace fs = std::filesystem;

// Every file under a folder, with its bytes and its time of change.
std::map<std::string, std::pair<std::string, fs::file_time_type>> Photographie(const std::string& dossier) {
  std::map<std::string, std::pair<std::string, fs::file_time_type>> photo;
  for (const auto& entree : fs::recursive_directory_iterator(dossier)) {
    if (!entree.is_regular_file()) continue;
    std::ifstream flux(entree.path(), std::ios::binary);
    std::ostringstream octets;
    octets << flux.rdbuf();
    photo[entree.path().string()] = {octets.str(), entree.last_write_time()};
  }
  return photo;
}

const std::string kFormat = "5006;10;1;0;0;0;0;0;r;1;1;1;1;8";

class DocumentAvecTableau : public BancTableaux {
 protected:
  DocumentAvecTableau() {
    DossierGeneral info;
    info.NbAnEtude = 3;
    info.DateDebut = "01/05/2007";
    info.NomDossierTervol = "ESSAI.TVL";
    construction::CreerDossierEtude(temporaire.Chemin(), "ESSAI.TVL", info);
    session.InfoDossier = {};  // the generation reads it from the dossier
  }
};

TEST_F(DocumentAvecTableau, TheTableTakesTheCodesPlaceAndTheDossierIsNotWritten) {
  const auto avant = Photographie(temporaire / "ESSAI.TVL");
  DossierTemporaire sortie;
  sortie.Ecrire("modele.tvm",
                R"({\rtf1\ansi\ansicpg1252{\fonttbl{\f0 Arial;}}{\colortbl;\red0\green0\blue0;\red255\green0\blue0;})"
                "\r\n"
                R"(\pard{\fs20 #tvl(taba2 p1cr0;larg2000;larg7200([280;120][Ann\'e9e;)" + kFormat +
                    R"(][entete:1;)" + kFormat + "]#[280;120][Produit;" + kFormat +
                    R"(][serie:RES.DON+RES-1:0:0;)" + kFormat + R"(]))#}\par})"
                                                               "\r\n");
  const ResultatDocument r = CreerDocument(generation, sortie / "modele.tvm", sortie / "resultat.rtf",
                                           {.miseAJour = false, .sansOuvrir = true, .demanderRemplacement = false});
  ASSERT_TRUE(r.ecrit);
  const std::string document = sortie.Lire("resultat.rtf");
  EXPECT_EQ(document.find("#tvl("), std::string::npos);
  // Two colours of the template: black is 3, red is 8.
  EXPECT_NE(document.find("\\qr\\intbl\\clvertalb{\\fs20\\f5006\\cf3 Ann\xE9" "e}\\cell"), std::string::npos) << document;
  EXPECT_NE(document.find(R"(\qr\intbl\clvertalb{\fs20\f5006\cf3 2007/08}\cell)"), std::string::npos);
  EXPECT_NE(document.find(R"(\qr\intbl\clvertalb{\fs20\f5006\cf8 -3}\cell)"), std::string::npos);
  // The value is trimmed where it goes in, as every value is.
  EXPECT_TRUE(document.ends_with("\\row\\pard\\plain\r\n}\\par}\r\n"));
  EXPECT_EQ(Photographie(temporaire / "ESSAI.TVL"), avant);
}

}  // namespace
}  // namespace norvane::test
