// Fuzz target of the series reader. The input is a code, a byte of "-"
// position, a byte of year, a byte of study years, then the bytes of the
// .DON file that the code reads (every code form names the same file). The
// dossier lives in a temporary folder made once. The reader through the
// generation's cache must answer as the reader without it.
#include <stdlib.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "support/PortsScriptes.h"
#include "study/Series.h"

namespace {

using namespace norvane;

// Every family reads the same file name: "Cult" + "X" + ".don" and so on all
// point at F.DON through the numbers below.
class EntitesFixes : public EntitesCourantes {
 public:
  std::string NumCultureCourante() const override { return "1"; }
  std::string NumCulturePCourante() const override { return "1"; }
  std::string NumActivite2Chiffres() const override { return "01"; }
  std::string NomActivite() const override { return "Activite"; }
};

std::string Dossier() {
  static const std::string dossier = [] {
    std::string modele = (std::filesystem::temp_directory_path() / "fuzz-serie-XXXXXX").string();
    if (::mkdtemp(modele.data()) == nullptr) return std::string("./");
    std::filesystem::create_directories(modele + "/E.TVL");
    return modele + "/";
  }();
  return dossier;
}

void Ecrire(const std::string& chemin, std::string_view octets) {
  std::ofstream(chemin, std::ios::binary | std::ios::trunc)
      .write(octets.data(), static_cast<std::streamsize>(octets.size()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille) {
  const std::string entree(reinterpret_cast<const char*>(donnees), taille);
  const std::size_t fin = entree.find('\n');
  if (fin == std::string::npos || taille < fin + 4) return 0;
  const std::string_view fichier = std::string_view(entree).substr(fin + 4);
  for (const char* nom : {"F.DON", "Cult1.don", "CltP1.don", "AL01AL.don"}) Ecrire(Dossier() + "E.TVL/" + nom, fichier);

  static Session session;
  session.RepDossier[0] = Dossier();
  session.NomDossier[0] = "E.TVL";
  session.InfoDossier.AnneeDebut = 2025;
  session.InfoDossier.NbAnEtude = static_cast<int16_t>(static_cast<int8_t>(donnees[fin + 3]));
  MessagesScriptes messages;
  static EntitesFixes entites;
  // Read without cache, then twice through one: the three answers, and what
  // comes back in the code and decimals, must be the same.
  CacheEtude cache;
  std::string premiere;
  for (CacheEtude* c : {static_cast<CacheEtude*>(nullptr), &cache, &cache}) {
    const ContexteSeries contexte{session, messages, entites, c};
    std::string code = entree.substr(0, fin);
    int16_t tiret = static_cast<int16_t>(static_cast<int8_t>(donnees[fin + 1]));
    int16_t annee = static_cast<int16_t>(static_cast<int8_t>(donnees[fin + 2]));
    int16_t decimales = -1;
    const std::string lu = LireSerie(contexte, code, tiret, annee, decimales, 0) + "|" + code + "|" +
                           std::to_string(annee) + "|" + std::to_string(decimales);
    if (c == nullptr) premiere = lu;
    if (lu != premiere) abort();
  }

  LecteurBinaire lecteur(fichier);
  SerieDonnees serie;
  while (LireSerieDonnees(lecteur, serie)) {
  }
  DecimalesDeCode(fichier.substr(0, 12));
  return 0;
}
