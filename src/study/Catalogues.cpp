// .CFG record, 118 bytes; the number of records is the file's length / 118,
// truncated:
//   OFFSET SIZE MEANING
//   0      12   CodeCatalogue  series code "<name>-<number>", maybe ":<decimals>"
//   12     22   Intitule       title; "[ sans nom ]" marks an unused entry
//   34     40   Groupe1        first level of grouping, blank if none
//   74     40   Groupe2        second level of grouping, blank if none
//   114    2    Sorte          16-bit; 0 in record 1: the catalogue is empty;
//                              1: a series line
//   116    2    Reserve116     16-bit, not used
// Record 1 is the head: its Intitule is the title of the whole tree.
#include "study/Catalogues.h"

#include <set>

#include "frame/Disposition.h"
#include "frame/OutilsFichiers.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

constexpr const char* kSansNom = "[ sans nom ]";

namespace champ {
constexpr ChampDisposition CodeCatalogue{"CodeCatalogue", 0, 12};
constexpr ChampDisposition Intitule{"Intitule", 12, 22};
constexpr ChampDisposition Groupe1{"Groupe1", 34, 40};
constexpr ChampDisposition Groupe2{"Groupe2", 74, 40};
constexpr ChampDisposition Sorte{"Sorte", 114, 2};
constexpr ChampDisposition Reserve116{"Reserve116", 116, 2};
}  // namespace champ

constexpr ChampDisposition kChamps[] = {champ::CodeCatalogue, champ::Intitule, champ::Groupe1,
                                        champ::Groupe2,       champ::Sorte,    champ::Reserve116};
static_assert(PaveEnregistrement(kChamps, kLongueurEntreeCatalogue), "a catalogue record's fields tile 118 bytes");

std::string CheminCatalogue(const std::string& catalogue, const std::string& repDatacfg) {
  if (catalogue.find_first_of("/\\") != std::string::npos) return catalogue;
  return AjouterAntislash(repDatacfg) + catalogue;
}

// "RES" for ".../Datacfg/RES.CFG".
std::string NomCatalogue(const std::string& catalogue) {
  std::string nom = Trim(catalogue);
  const std::size_t separateur = nom.find_last_of("/\\");
  if (separateur != std::string::npos) nom.erase(0, separateur + 1);
  const std::size_t point = nom.rfind('.');
  if (point != std::string::npos) nom.erase(point);
  return nom;
}

bool EstSerie(const EntreeCatalogue& entree) {
  return entree.Sorte == 1 && entree.CodeCatalogue.find('-') != std::string::npos && Trim(entree.Intitule) != kSansNom;
}

// Adds each node once: a group met again is not repeated.
class ConstructeurArbre {
 public:
  std::string Ajouter(const std::string& cle, const std::string& texte, const std::string& image,
                      const std::string& parent) {
    if (cles_.insert(cle).second) noeuds_.push_back({cle, texte, image, parent});
    return cle;
  }
  std::vector<NoeudArbre> Noeuds() && { return std::move(noeuds_); }

 private:
  std::set<std::string> cles_;
  std::vector<NoeudArbre> noeuds_;
};

}  // namespace

bool LireEntreeCatalogue(LecteurBinaire& l, EntreeCatalogue& e) {
  l.LireTexte(e.CodeCatalogue, champ::CodeCatalogue);
  l.LireTexte(e.Intitule, champ::Intitule);
  l.LireTexte(e.Groupe1, champ::Groupe1);
  l.LireTexte(e.Groupe2, champ::Groupe2);
  l.Lire(e.Sorte, champ::Sorte);
  l.Lire(e.Reserve116, champ::Reserve116);
  return l.Ok();
}

std::vector<EntreeCatalogue> LireCatalogue(std::string_view octets) {
  std::vector<EntreeCatalogue> entrees(octets.size() / kLongueurEntreeCatalogue);
  LecteurBinaire lecteur(octets);
  for (EntreeCatalogue& entree : entrees) LireEntreeCatalogue(lecteur, entree);
  return entrees;
}

std::vector<NoeudArbre> RemplirArbreSeries(const std::string& catalogue, const std::string& repDatacfg) {
  const auto octets = LireFichier(CheminCatalogue(catalogue, repDatacfg));
  if (!octets) return {};
  const std::vector<EntreeCatalogue> entrees = LireCatalogue(*octets);
  if (entrees.empty() || entrees[0].Sorte == 0) return {};

  const std::string nom = NomCatalogue(catalogue);
  ConstructeurArbre arbre;
  std::string racine;
  if (!EgalSansCasse(nom, "RESSUP")) racine = arbre.Ajouter(nom, Trim(entrees[0].Intitule), "rep", "");
  for (std::size_t i = 1; i < entrees.size(); ++i) {
    const EntreeCatalogue& entree = entrees[i];
    if (!EstSerie(entree)) continue;
    std::string parent = racine;
    std::string cleGroupe = nom + "-";
    for (const std::string* groupe : {&entree.Groupe1, &entree.Groupe2}) {
      if (EstBlanc(*groupe)) continue;
      cleGroupe += Trim(*groupe);
      parent = arbre.Ajouter(cleGroupe, Trim(*groupe), "rep", parent);
    }
    const std::string code = Trim(entree.CodeCatalogue.substr(0, entree.CodeCatalogue.find(':')));
    arbre.Ajouter(nom + ".DON+" + code, Trim(entree.Intitule), "puce", parent);
  }
  return std::move(arbre).Noeuds();
}

}  // namespace norvane
