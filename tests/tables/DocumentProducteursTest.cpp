// A whole document made of crop, activity, asset and loan tables: the dossier
// comes out as it went in, but for the financing plan that was missing.
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "construction/FichiersIni.h"
#include "construction/FichiersTableaux.h"
#include "tables/BancProducteurs.h"
#include "template/Generateur.h"

namespace norvane::test {
namespace {

namespace fs = std::filesystem;
namespace c = construction;

std::map<std::string, std::pair<std::string, fs::file_time_type>> Photographie(const std::string& dossier) {
  std::map<std::string, std::pair<std::string, fs::file_time_type>> photo;
  for (const auto& entree : fs::directory_iterator(dossier)) {
    std::ifstream flux(entree.path(), std::ios::binary);
    std::ostringstream octets;
    octets << flux.rdbuf();
    photo[entree.path().filename().string()] = {octets.str(), entree.last_write_time()};
  }
  return photo;
}

class DocumentSpeciaux : public BancSpeciaux {
 protected:
  DocumentSpeciaux() {
    DossierGeneral info;
    info.NbAnEtude = 3;
    info.DateDebut = "01/05/2007";
    info.NomDossierTervol = "ESSAI.TVL";
    c::CreerDossierEtude(temporaire.Chemin(), "ESSAI.TVL", info);
    session.InfoDossier = {};
    c::CultureAnnuelle ble;
    ble.NumCulture = 1;
    ble.NomCulture = "Ble";
    c::EcrireCulturesAnnuelles(Dossier() + "cult.clt", {ble});
    c::EcrireCulturesPerennes(Dossier() + "CltP.cpD", {{1, "Vigne", 1, 0, 0, 1, 20}});
    c::Immobilisation hangar;
    hangar.Libelle = "Hangar";
    c::EcrireImmobilisations(Dossier() + "Immo.imm", {hangar});
    c::EcrireImmobilisations(Dossier() + "Sub.sub", {hangar});
    c::EcrireEmprunts(Dossier() + "Emprunt.emp", {c::Emprunt{}});
    c::EcrireModAniLib(Dossier() + "ModAniLib.ini", {{1, true, "Brebis"}});
  }
};

TEST_F(DocumentSpeciaux, OnlyTheMissingPlanAppearsInTheDossier) {
  const auto avant = Photographie(Dossier());
  ASSERT_EQ(avant.count("PlanF.fin"), 0u);
  std::string modele = R"({\rtf1\ansi\ansicpg1252{\fonttbl{\f0 Arial;}}{\colortbl;\red0\green0\blue0;\red255\green0\blue0;})";
  for (const std::string& code : {"culture1" + Code("x", "scult:@1:0:0"), "cultper1" + Code("x", "cultp:assolemper:0:0"),
                                  "actlibr1" + Code("x", "ALani:@1:0:0"), Code("x", "imemp:immos:0"),
                                  Code("x", "imemp:subvt:0"), Code("x", "imemp:emprt:0"), Code("x", "imemp:inves:0")}) {
    modele += "\r\n#tvl(" + code + ")#\\par";
  }
  modele += "}\r\n";
  DossierTemporaire sortie;
  sortie.Ecrire("modele.tvm", modele);
  messages.reponses = {Reponse::Oui, Reponse::Oui};
  const ResultatDocument r = CreerDocument(generation, sortie / "modele.tvm", sortie / "resultat.rtf",
                                           {.miseAJour = false, .sansOuvrir = true, .demanderRemplacement = false});
  ASSERT_TRUE(r.ecrit);
  const std::string document = sortie.Lire("resultat.rtf");
  EXPECT_EQ(document.find("#tvl("), std::string::npos);
  for (const char* attendu : {"Ble", "Vigne", "Brebis", "Hangar", "Emprunts anciens", "TOTAL"}) {
    EXPECT_NE(document.find(attendu), std::string::npos) << attendu;
  }
  auto apres = Photographie(Dossier());
  ASSERT_EQ(apres.count("PlanF.fin"), 1u);
  EXPECT_EQ(apres["PlanF.fin"].first.size(), 20u * 116u);
  apres.erase("PlanF.fin");
  EXPECT_EQ(apres, avant);
}

}  // namespace
}  // namespace norvane::test
