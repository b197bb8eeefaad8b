// Fuzz target of table generation: the input is the text of a table code
// (what stands between "#tvl(" and ")#"), decoded and turned into RTF on a
// small built dossier of three years, compared with itself in slots 1 and 2.
// The first byte chooses the study's number of years and the template's
// colour count.
#include <stdlib.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "construction/FichiersEtude.h"
#include "tables/GenerationTableau.h"
#include "tables/MultiDossier.h"
#include "tables/TableauxDocument.h"

namespace {

using namespace norvane;

// The folder that holds FUZZ.TVL, built once.
const std::string& RacineDossier() {
  static const std::string racine = [] {
    std::string modele = (std::filesystem::temp_directory_path() / "nv-fuzz-tableau-XXXXXX").string();
    if (::mkdtemp(modele.data()) == nullptr) return std::string();
    using construction::Serie;
    construction::EcrireSeries(modele + "/FUZZ.TVL/RES.DON",
                               {Serie("RES-1:0", "Produit|EUR", {7, 100, -3, 0, 40}), Serie("RES-2:2", "Nul|", {}),
                                Serie("RES-3:1", "Charges|EUR", {0, 10.5f, 20, 30, -60})});
    construction::EcrireSeries(modele + "/FUZZ.TVL/pricult.don", {Serie("pricult-1:0", "Ble|EUR/ha", {1, 2, 3})});
    return modele + "/";
  }();
  return racine;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille) {
  if (taille == 0) return 0;
  Session session;
  for (std::size_t slot = 0; slot < 3; ++slot) {
    session.RepDossier[slot] = RacineDossier();
    session.NomDossier[slot] = "FUZZ.TVL";
  }
  session.InfoDossier.NbAnEtude = static_cast<int16_t>(donnees[0] % 8);
  session.InfoDossier.DateDebut = donnees[0] & 0x80 ? "31/12/2007" : "01/05/2007";
  MessagesMuets messages;
  ProgressionMuette progression;
  EntitesCourantes entites;
  Generation generation(session, messages, progression, entites);
  generation.etat.ProchaineCouleur = static_cast<int16_t>(donnees[0] >> 4);
  ChoixDossiersParSlots choix(session);
  TableauxDocument tableaux(choix);
  generation.tableaux = &tableaux;
  const std::string code(reinterpret_cast<const char*>(donnees) + 1, taille - 1);
  GenererTableau(generation, tableaux, code);
  // A second table of the same document sees what the first one left.
  tableaux.GenererTableau(generation, code);
  return 0;
}
